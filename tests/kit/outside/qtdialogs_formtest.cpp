#include "kit/outside/qtdialogs.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "kit/outside/folderbox.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using test::visibleWindow;
using test::WhenItComes;

class RealDialogs : public test::FormsTest {
  protected:
    QtDialogs dialogs_{end_, world_.world.host, world_.world.drives};

    // Shows a message and lets `act` answer it.
    Answer answered(const Message& message, std::function<void(QMessageBox&)> act) {
        const auto box = [] { return visibleWindow<QMessageBox>("messageBox"); };
        const WhenItComes answer([&] { return box() != nullptr; }, [&] { act(*box()); });
        return dialogs_.message(message);
    }
    Answer afterKey(Buttons buttons, Qt::Key key) {
        return answered({"text", "title", buttons, Icon::None},
                        [key](QMessageBox& box) { QTest::keyClick(&box, key); });
    }
};

TEST_F(RealDialogs, AMessageShowsItsTextAsItIs) {
    answered({"Map <b>A</b> & B", "Title", Buttons::Ok, Icon::Stop}, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Map <b>A</b> & B"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.accept();
    });
}

TEST_F(RealDialogs, EveryButtonGivesItsAnswer) {
    const Message question{"Save?", "Save Settings?", Buttons::YesNoCancel, Icon::Question};
    const std::pair<QMessageBox::StandardButton, Answer> cases[] = {
        {QMessageBox::Yes, Answer::Yes},
        {QMessageBox::No, Answer::No},
        {QMessageBox::Cancel, Answer::Cancel}};
    for (const auto& [button, answer] : cases)
        EXPECT_EQ(answered(question, [b = button](QMessageBox& box) { box.button(b)->click(); }),
                  answer);
}

TEST_F(RealDialogs, EnterPressesTheFirstButton) {
    EXPECT_EQ(afterKey(Buttons::Ok, Qt::Key_Return), Answer::Ok);
    EXPECT_EQ(afterKey(Buttons::OkCancel, Qt::Key_Return), Answer::Ok);
    EXPECT_EQ(afterKey(Buttons::YesNo, Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(afterKey(Buttons::YesNoCancel, Qt::Key_Return), Answer::Yes);
}

TEST_F(RealDialogs, EscIsTheLastResort) {
    EXPECT_EQ(afterKey(Buttons::Ok, Qt::Key_Escape), Answer::Ok);
    EXPECT_EQ(afterKey(Buttons::OkCancel, Qt::Key_Escape), Answer::Cancel);
    EXPECT_EQ(afterKey(Buttons::YesNo, Qt::Key_Escape), Answer::No);
    EXPECT_EQ(afterKey(Buttons::YesNoCancel, Qt::Key_Escape), Answer::Cancel);
}

TEST_F(RealDialogs, AMessageIsAsWideAsItsTitle) {
    const std::string title = "Sorry, the destination path does not Exist. Check it, please.";
    answered({"No.", title, Buttons::Ok, Icon::Stop}, [](QMessageBox& box) {
        EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()) + 60);
        EXPECT_LE(box.width(), box.screen()->availableSize().width());
        box.accept();
    });
}

TEST_F(RealDialogs, TheEndOfTheProgramUnwindsTheCallerOfABox) {
    EXPECT_THROW(answered({"text", "title"}, [this](QMessageBox&) { end_.end(); }), ProgramEnded);
}

class InputBox : public RealDialogs {
  protected:
    std::string typed(std::function<void(QInputDialog&)> act) {
        const auto box = [] { return visibleWindow<QInputDialog>("inputBox"); };
        const WhenItComes answer([&] { return box() != nullptr; }, [&] { act(*box()); });
        return dialogs_.input("New <i>name</i>", "Rename Server", "caf\xC3\xA9");
    }
};

TEST_F(InputBox, OffersThePresetAndGivesWhatWasTyped) {
    const std::string answer = typed([](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Rename Server"));
        EXPECT_EQ(box.textValue(), QStringLiteral("caf\u00e9"));
        EXPECT_EQ(box.findChild<QLabel*>()->text(), QStringLiteral("New <i>name</i>"));
        EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        box.setTextValue(QStringLiteral("\u0141\u00f3d\u017a"));
        box.accept();
    });
    EXPECT_EQ(answer,
              "\xC5\x81\xC3\xB3"
              "d\xC5\xBA");
}

TEST_F(InputBox, IsWideEnoughForItsTitle) {
    typed([](QInputDialog& box) {
        EXPECT_GT(box.width(), 2 * box.fontMetrics().horizontalAdvance(box.windowTitle()));
        box.reject();
    });
}

TEST_F(InputBox, GivesOneLineOfAPastedText) {
    for (const char* pasted : {"one\ntwo", "one\r\ntwo\r\n", "one\n"}) {
        const std::string answer = typed([pasted](QInputDialog& box) {
            box.setTextValue(QString::fromUtf8(pasted));
            box.accept();
        });
        EXPECT_EQ(answer, "one");
    }
}

TEST_F(InputBox, GivesAnEmptyTextWhenCancelled) {
    EXPECT_EQ(typed([](QInputDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); }), "");
}

class FolderPickers : public RealDialogs {
  protected:
    std::string picked(std::function<void(FolderBox&)> act) {
        const auto box = [] { return visibleWindow<FolderBox>("folderPicker"); };
        const WhenItComes answer([&] { return box() != nullptr; }, [&] { act(*box()); });
        return dialogs_.pickFolder({"Select Your Unreal Tournament Folder.", "C:\\Games"});
    }
};

TEST_F(FolderPickers, GiveTheFolderInTheGamesForm) {
    world_.world.makeFolder("C:\\Games\\UT 99");
    const std::string answer = picked([&](FolderBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Select Your Unreal Tournament Folder."));
        auto& path = *box.findChild<QLineEdit*>(QStringLiteral("path"));
        EXPECT_EQ(path.text(), QStringLiteral("C:\\Games"));
        path.setText(QStringLiteral("C:\\games\\ut 99"));
        QTest::keyClick(&path, Qt::Key_Return);
    });
    EXPECT_EQ(answer, "C:\\Games\\UT 99");
}

TEST_F(FolderPickers, GiveAnEmptyTextWhenCancelled) {
    world_.world.makeFolder("C:\\Games");
    EXPECT_EQ(picked([](FolderBox& box) { box.reject(); }), "");
}

TEST_F(FolderPickers, TheEndOfTheProgramUnwindsTheirCaller) {
    EXPECT_THROW(picked([this](FolderBox&) { end_.end(); }), ProgramEnded);
}

class FilePickers : public RealDialogs {
  protected:
    FilePickers() {
        world_.world.write("C:\\UT\\System\\User.INI", "[Mine]\r\n");
        world_.world.write("C:\\UT\\System\\Readme", "");
    }

    using Act = std::function<void(QFileDialog&)>;

    std::string picked(std::string (QtDialogs::*pick)(const FilePicker&), const Act& act) {
        const auto box = [] { return visibleWindow<QFileDialog>("filePicker"); };
        const WhenItComes answer([&] { return box() != nullptr; }, [&] { act(*box()); });
        return (dialogs_.*pick)(picker_);
    }
    std::string opened(const Act& act) { return picked(&QtDialogs::pickFileToOpen, act); }
    std::string saved(const Act& act) { return picked(&QtDialogs::pickFileToSave, act); }

    static QLineEdit& nameField(const QFileDialog& box) {
        return *box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }
    static void enter(const QFileDialog& box, const QString& name) {
        nameField(box).setText(name);
        QTest::keyClick(&nameField(box), Qt::Key_Return);
    }
    // Whether the box lists the file, once it has read its folder.
    static bool lists(const QFileDialog& box, const QString& name) {
        const auto* view = box.findChild<QListView*>(QStringLiteral("listView"));
        const QAbstractItemModel* model = view->model();
        const auto found = [&] {
            return !model->match(model->index(0, 0, view->rootIndex()), Qt::DisplayRole, name, 1)
                        .isEmpty();
        };
        return QTest::qWaitFor(found);
    }
    QString systemFolder() const {
        return QString::fromStdString(world_.world.at("C:\\UT\\System").generic_string());
    }

    FilePicker picker_{"", "All UT .ini Files(*.ini)|*.ini|", "C:\\ut\\system"};
};

TEST_F(FilePickers, OpenInTheFolderToldAndListTheFilesOfTheirKind) {
    opened([&](QFileDialog& box) {
        EXPECT_EQ(box.directory().path(), systemFolder());
        EXPECT_EQ(box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText(),
                  QStringLiteral("All UT .ini Files(*.ini)"));
        EXPECT_TRUE(lists(box, QStringLiteral("User.INI")));
        EXPECT_EQ(box.nameFilters(), QStringList(QStringLiteral("files (*.ini)")));
        box.reject();
    });
}

TEST_F(FilePickers, AllFilesAreThoseWithoutADotToo) {
    picker_.filter = "All File Types(*.*)|*.*|";
    saved([&](QFileDialog& box) {
        EXPECT_EQ(box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText(),
                  QStringLiteral("All File Types(*.*)"));
        EXPECT_TRUE(lists(box, QStringLiteral("Readme")));
        box.reject();
    });
}

TEST_F(FilePickers, GiveTheFileInTheGamesForm) {
    EXPECT_EQ(opened([](QFileDialog& box) { enter(box, QStringLiteral("User.INI")); }),
              "C:\\UT\\System\\User.INI");
}

TEST_F(FilePickers, GiveAFileToOpenThatIsNotThere) {
    EXPECT_EQ(opened([](QFileDialog& box) { enter(box, QStringLiteral("New.ini")); }),
              "C:\\UT\\System\\New.ini");
}

TEST_F(FilePickers, ProposeTheNameToldUnderTheTitleTold) {
    picker_.title = "Save File As";
    picker_.name = "Untitled.ini";
    const std::string file = saved([](QFileDialog& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Save File As"));
        EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(nameField(box).text(), QStringLiteral("Untitled.ini"));
        QTest::keyClick(&nameField(box), Qt::Key_Return);
    });
    EXPECT_EQ(file, "C:\\UT\\System\\Untitled.ini");
}

TEST_F(FilePickers, AskNothingAboutAFileThatIsThere) {
    EXPECT_EQ(saved([](QFileDialog& box) { enter(box, QStringLiteral("User.INI")); }),
              "C:\\UT\\System\\User.INI");
}

TEST_F(FilePickers, OpenSomewhereIfTheFolderIsNotThere) {
    for (const char* folder : {"C:\\Gone", "Q:\\Gone", ""}) {
        picker_.folder = folder;
        EXPECT_EQ(opened([](QFileDialog& box) {
                      EXPECT_TRUE(box.directory().exists());
                      box.reject();
                  }),
                  "");
    }
}

TEST_F(FilePickers, TheEndOfTheProgramUnwindsTheirCaller) {
    EXPECT_THROW(opened([this](QFileDialog&) { end_.end(); }), ProgramEnded);
}

}  // namespace
}  // namespace tessaro
