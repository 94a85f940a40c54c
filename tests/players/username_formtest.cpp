#include "players/username.h"

#include <QClipboard>
#include <QGroupBox>

#include "players/playersforms.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;

class NameForm : public PlayersFormsTest {
  protected:
    // Opens the editor on the first of these players and acts in it. Gives what it is closed by.
    void edit(const std::vector<std::string>& players, const std::function<void()>& act) {
        archive(players);
        openUsers();
        clickRow(0);
        const WhenItComes come([this] { return isOpen(); },
                               [&] {
                                   act();
                                   if (auto* form = forms_.loaded<username>()) forms_.unload(*form);
                               });
        button("Command5").click();
        EXPECT_TRUE(come.acted());
    }
    bool isOpen() {
        const auto* form = forms_.loaded<username>();
        return form != nullptr && form->isVisible();
    }
    QLineEdit& box() { return control<QLineEdit>(forms_.get<username>(), "Text1"); }
    QPushButton& editorsButton(const char* name) {
        return control<QPushButton>(forms_.get<username>(), name);
    }
    std::string text() { return box().text().toStdString(); }
    void type(const QString& name) {
        box().selectAll();
        box().insert(name);  // the test library's keys are those of ASCII
    }
};

TEST_F(NameForm, EveryControlBearsItsText) {
    edit({"Ann"}, [&] {
        auto& form = forms_.get<username>();
        EXPECT_EQ(form.Title->text(), QStringLiteral("Change Name"));
        EXPECT_EQ(control<QGroupBox>(form, "Frame1").title(), QStringLiteral("New User Name:"));
        for (const auto& [name, caption] :
             {std::pair("Command1", "ASCII Style 1"), std::pair("Command2", "ASCII Style 2"),
              std::pair("Command3", "ASCII Style 3"), std::pair("ok", "&OK"),
              std::pair("Command4", "&Cancel")})
            EXPECT_EQ(editorsButton(name).text(), QLatin1String(caption)) << name;
        EXPECT_FALSE(control<QLineEdit>(form, "Text2").isVisible());
        EXPECT_TRUE(form.isModal());
    });
}

TEST_F(NameForm, OpensOnTheNameInsideTheCopyWithOkOutOfReach) {
    archive({"Ann", "Bob"});
    edit({"Ann", "Bob"}, [&] {
        EXPECT_EQ(text(), "Ann");
        EXPECT_EQ(control<QLineEdit>(forms_.get<username>(), "Text2").text(),
                  QStringLiteral("Ann"));
        EXPECT_FALSE(editorsButton("ok").isEnabled());
    });
}

TEST_F(NameForm, OkFollowsTheText) {
    edit({"Ann"}, [&] {
        type(QStringLiteral("x"));
        EXPECT_TRUE(editorsButton("ok").isEnabled());
        QTest::keyClick(&box(), Qt::Key_Backspace);
        EXPECT_EQ(text(), "");
        EXPECT_FALSE(editorsButton("ok").isEnabled());
        type(QStringLiteral("Ann"));
        EXPECT_TRUE(editorsButton("ok").isEnabled());
    });
}

TEST_F(NameForm, StylesStartFromTheNameAsItWas) {
    edit({"Dieter"}, [&] {
        type(QStringLiteral("typed"));
        for (const auto& [name, styled] :
             {std::pair("Command1", "Ðìë†ë®"), std::pair("Command2", "Ðïê†ê®"),
              std::pair("Command3", "Ðîé†é®"), std::pair("Command1", "Ðìë†ë®")}) {
            editorsButton(name).click();
            EXPECT_EQ(text(), styled) << name;
        }
        EXPECT_TRUE(editorsButton("ok").isEnabled());
    });
}

TEST_F(NameForm, AStyleThatChangesNothingLeavesOkOutOfReach) {
    edit({"Mb-X"}, [&] {
        editorsButton("Command1").click();
        EXPECT_EQ(text(), "Mb-X");
        EXPECT_FALSE(editorsButton("ok").isEnabled());
    });
}

TEST_F(NameForm, OkRenamesTheCopyAndMovesTheRowToTheEnd) {
    edit({"Ann", "Bob", "Cid"}, [&] {
        type(QStringLiteral("Zoë"));
        editorsButton("ok").click();
        EXPECT_EQ(forms_.loaded<username>(), nullptr);
    });
    EXPECT_THAT(names(), ElementsAre("Bob", "Cid", "Zoë"));
    EXPECT_EQ(disk_.read(copyOf(0)), profileOf("Zo\xEB"));
    EXPECT_EQ(disk_.read(list), lineOf("Bob", 1) + lineOf("Cid", 2) + lineOf("Zo\xEB", 0, "255"));
}

TEST_F(NameForm, EnterIsOk) {
    edit({"Ann", "Bob"}, [&] {
        type(QStringLiteral("Zed"));
        QTest::keyClick(&box(), Qt::Key_Return);
    });
    EXPECT_THAT(names(), ElementsAre("Bob", "Zed"));
}

TEST_F(NameForm, CancelTheCloseButtonAndEscapeChangeNothing) {
    const std::vector<std::function<void()>> ways{[&] { editorsButton("Command4").click(); },
                                                  [&] { forms_.get<username>().CommandX->click(); },
                                                  [&] { QTest::keyClick(&box(), Qt::Key_Escape); }};
    for (const auto& way : ways) {
        edit({"Ann", "Bob"}, [&] {
            type(QStringLiteral("Zed"));
            way();
            EXPECT_EQ(forms_.loaded<username>(), nullptr);
        });
        EXPECT_THAT(names(), ElementsAre("Ann", "Bob"));
        EXPECT_EQ(disk_.read(copyOf(0)), profileOf("Ann"));
        EXPECT_EQ(disk_.read(list), lineOf("Ann", 0) + lineOf("Bob", 1));
    }
}

TEST_F(NameForm, AStyledNameWithAJIsGoneFromTheListAtOnceButNotItsCopy) {
    edit({"jim", "Bob"}, [&] {
        editorsButton("Command1").click();
        EXPECT_EQ(text(), ",jìm");
        editorsButton("ok").click();
    });
    EXPECT_THAT(names(), ElementsAre("Bob"));
    EXPECT_EQ(disk_.read(copyOf(0)), profileOf(",j\xECm"));
}

TEST_F(NameForm, RenamingTheCurrentPlayerMakesItsOldNameNew) {
    edit({"Me", "Bob"}, [&] {
        type(QStringLiteral("Me too"));
        editorsButton("ok").click();
    });
    EXPECT_EQ(currentName(), "Me");
    // Behind it stands what the start of the program has added.
    EXPECT_TRUE(disk_.read(userIni).starts_with(profileOf("Me")));
    clickRow(0);
    answers({Answer::Yes, Answer::No});
    button("Command7").click();
    EXPECT_THAT(titles(), ElementsAre("UT Player Set", "Save New User?"));
}

TEST_F(NameForm, TakesALongNameWhole) {
    edit({"Ann", "Bob"}, [&] {
        box().setText(QString(40'000, QLatin1Char('n')));
        EXPECT_EQ(text().size(), 40'000u);
        editorsButton("ok").click();
    });
    EXPECT_EQ(names().back(), std::string(40'000, 'n'));
}

TEST_F(NameForm, OfSeveralPastedLinesTheFirstIsTaken) {
    edit({"Ann", "Bob"}, [&] {
        box().selectAll();
        box().insert(QStringLiteral("One\r\nTwo,c,1,s,f,v,userini1.bak"));
        EXPECT_EQ(text(), "One");
        editorsButton("ok").click();
    });
    EXPECT_THAT(names(), ElementsAre("Bob", "One"));
}

}  // namespace
}  // namespace tessaro::test
