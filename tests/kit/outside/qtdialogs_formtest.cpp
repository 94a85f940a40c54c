#include "kit/outside/qtdialogs.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using test::visibleWindow;
using test::WhenItComes;

class RealDialogs : public test::FormsTest {
  protected:
    QtDialogs dialogs_{end_, world_.world.host, world_.world.drives};

    /// Shows a message and lets `act` answer it.
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
    for (const auto& [button, answer] : cases) {
        EXPECT_EQ(answered(question, [b = button](QMessageBox& box) { box.button(b)->click(); }),
                  answer);
    }
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

class FolderPicker : public RealDialogs {
  protected:
    std::string picked(std::function<void(QFileDialog&)> act) {
        const auto box = [] { return visibleWindow<QFileDialog>("folderPicker"); };
        const WhenItComes answer([&] { return box() != nullptr; }, [&] { act(*box()); });
        return dialogs_.pickFolder("Select Your Unreal Tournament Folder.");
    }
};

TEST_F(FolderPicker, GivesTheFolderInTheGamesForm) {
    world_.world.makeFolder("C:\\Games\\UT 99");
    const std::string folder = world_.world.at("C:\\Games\\UT 99").string();
    const std::string answer = picked([&](QFileDialog& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Select Your Unreal Tournament Folder."));
        box.setDirectory(QString::fromStdString(folder));
        box.selectFile(QString::fromStdString(folder));
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_EQ(answer, "C:\\Games\\UT 99");
}

TEST_F(FolderPicker, GivesAnEmptyTextWhenCancelled) {
    EXPECT_EQ(picked([](QFileDialog& box) { box.reject(); }), "");
}

}  // namespace
}  // namespace tessaro
