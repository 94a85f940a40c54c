#include "editor/textbox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <random>

#include "editor/filetext.h"

namespace tessaro {
namespace {

// A file in a real text box.
class TextBoxTest : public testing::Test {
  protected:
    TextBoxTest() {
        QObject::connect(&box_, &TextBox::linesReplaced, [this](int first, int removed, int added) {
            text_.replaced(static_cast<std::size_t>(first), static_cast<std::size_t>(removed),
                           static_cast<std::size_t>(added));
        });
    }

    void load(const std::string& bytes) {
        FileText loaded(bytes);
        box_.showText(loaded.loaded());
        text_ = std::move(loaded);
    }
    std::string saved() const {
        return text_.saved([this](std::size_t number) { return box_.line(number); });
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&box_, key, modifiers);
    }
    void type(const char* text) { QTest::keyClicks(&box_, QLatin1String(text)); }
    // Puts the cursor at a column of a line, both from 0; with `select` the selection's end.
    void go(int line, int column, bool select = false) {
        QTextCursor cursor = box_.textCursor();
        cursor.setPosition(box_.document()->findBlockByNumber(line).position() + column,
                           select ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
        box_.setTextCursor(cursor);
    }

    TextBox box_;
    FileText text_;
};

TEST_F(TextBoxTest, EveryCharacterIsShownAndSavedAsItIs) {
    std::u16string text;
    for (char32_t unit = 0; unit < 0x10000; ++unit) {
        text += u'[';
        text += static_cast<char16_t>(unit);
        text += u']';
    }
    std::string file = "\xFF\xFE";
    for (const char16_t unit : text) {
        file += static_cast<char>(unit & 0xFF);
        file += static_cast<char>(unit >> 8);
    }
    load(file);
    EXPECT_EQ(box_.line(0).substr(0, 3), (std::u16string{u'[', 0, u']'}));
    EXPECT_EQ(saved(), file + std::string("\r\0\n\0", 4));
    go(0, 0);
    type("x");
    file.insert(2, std::string("x\0", 2));
    EXPECT_EQ(saved(), file + std::string("\r\0\n\0", 4));
}

TEST_F(TextBoxTest, AMarkInsideTheTextIsShown) {
    load(
        "\xEF\xBB\xBF\xEF\xBB\xBF"
        "a");
    EXPECT_EQ(box_.line(0), u"\ufeffa");
}

TEST_F(TextBoxTest, TypingTouchesItsLineAlone) {
    load("one\r\ntwo\nthree\rlast \xE9");
    go(1, 3);
    type(" more");
    EXPECT_EQ(saved(), "one\r\ntwo more\nthree\rlast \xE9\r\n");
}

TEST_F(TextBoxTest, EnterAndBackspaceTouchTheirLinesAlone) {
    load("one\r\ntwo\nthree\rlast");
    go(1, 3);
    press(Qt::Key_Return);
    type("new");
    EXPECT_EQ(saved(), "one\r\ntwo\nnew\nthree\rlast\r\n");
    go(3, 0);
    press(Qt::Key_Backspace);
    EXPECT_EQ(saved(), "one\r\ntwo\nnewthree\rlast\r\n");
    go(2, 0);
    press(Qt::Key_Backspace);
    EXPECT_EQ(saved(), "one\r\ntwonewthree\rlast\r\n");
    go(0, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(saved(), "\r\none\r\ntwonewthree\rlast\r\n");
}

TEST_F(TextBoxTest, UndoAndRedoBringTheLineEndsBack) {
    const std::string file = "one\r\ntwo\nthree\rfour\n\rlast";
    load(file);
    go(1, 1);
    go(4, 0, true);
    press(Qt::Key_Delete);
    EXPECT_EQ(saved(), "one\r\nt\rlast\r\n");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(saved(), file + "\r\n");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(saved(), "one\r\nt\rlast\r\n");
}

TEST_F(TextBoxTest, ALoadCannotBeUndone) {
    load("one");
    type("x");
    load("two");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box_.line(0), u"two");
}

TEST_F(TextBoxTest, SelectAllCutAndPasteGiveTheTextBack) {
    load("caf\xE9\xA0!\r\n\tkey=\xA0value\r\nlast");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_TRUE(box_.isEmpty());
    EXPECT_EQ(saved(), "\r\n");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(saved(), "caf\xE9\xA0!\r\n\tkey=\xA0value\r\nlast\r\n");
}

TEST_F(TextBoxTest, CopiedTextIsPlainAndKeepsItsCharacters) {
    load("a\xA0z\r\nlast");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    const QMimeData& copied = *QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied.text(), QStringLiteral("a\u00a0z\nlast"));
    EXPECT_EQ(copied.formats(), QStringList(QStringLiteral("text/plain")));
}

TEST_F(TextBoxTest, PastedLinesOfAnotherSystemEndAsTheirNeighbours) {
    load("one\ntwo\n");
    QApplication::clipboard()->setText(QStringLiteral("A\r\nB\rC\nD"));
    go(1, 0);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(saved(), "one\nA\nB\nC\nDtwo\n\r\n");
}

TEST_F(TextBoxTest, AnEditInSeveralStepsIsToldAsOne) {
    load("moved\na\r\nb\nc\rd\r\nlast");
    QTextCursor cursor(box_.document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.setPosition(box_.document()->findBlockByNumber(4).position());
    cursor.insertText(QStringLiteral("moved\n"));
    cursor.endEditBlock();
    EXPECT_EQ(saved(), "a\r\nb\nc\rd\r\nmoved\r\nlast\r\n");
    box_.undo();
    EXPECT_EQ(saved(), "moved\na\r\nb\nc\rd\r\nlast\r\n");
}

TEST_F(TextBoxTest, ASelectionIsTakenByPositionsAndShown) {
    std::u16string text;
    for (int i = 0; i < 500; ++i) text += u"line\r\n";
    box_.resize(300, 200);
    box_.show();
    box_.showText(text);
    box_.select(400 * 5 + 1, 3);
    EXPECT_EQ(box_.textCursor().selectedText(), QStringLiteral("ine"));
    EXPECT_EQ(box_.textCursor().blockNumber(), 400);
    const int middle = box_.cursorRect().center().y();
    EXPECT_NEAR(middle, box_.viewport()->height() / 2, box_.fontMetrics().lineSpacing());
}

// Whatever is done: what is told of the lines agrees with the lines that are there, and nothing
// but typed lines is new.
TEST_F(TextBoxTest, TheToldChangesAgreeWithTheLinesThroughRandomEdits) {
    std::mt19937 chance(5);
    const auto below = [&](int limit) {
        return std::uniform_int_distribution<int>(0, limit)(chance);
    };
    int told = 0;
    QObject::connect(&box_, &TextBox::linesReplaced, [&](int first, int removed, int added) {
        EXPECT_GE(first, 0);
        EXPECT_GE(removed, 1);
        EXPECT_GE(added, 1);
        told += added - removed;
    });
    const std::string ends[] = {"\r\n", "\n", "\r"};
    for (int round = 0; round < 30; ++round) {
        std::string file;
        for (int i = 0; i < 20; ++i) file += "line" + std::to_string(i) + ends[below(2)];
        load(file);
        told = box_.blockCount();
        for (int step = 0; step < 40; ++step) {
            const int size = box_.document()->characterCount() - 1;
            QTextCursor cursor(box_.document());
            cursor.setPosition(below(size));
            cursor.setPosition(std::min(size, cursor.position() + below(12)),
                               QTextCursor::KeepAnchor);
            box_.setTextCursor(cursor);
            switch (below(6)) {
                case 0:
                    press(Qt::Key_Return);
                    break;
                case 1:
                    press(Qt::Key_Delete);
                    break;
                case 2:
                    type("x");
                    break;
                case 3:
                    box_.undo();
                    break;
                case 4:
                    box_.redo();
                    break;
                case 5:
                    box_.cut();
                    break;
                default:
                    box_.insertPlainText(QStringLiteral("p\nq\nr"));
            }
            ASSERT_EQ(told, box_.blockCount());
        }
        while (box_.document()->isUndoAvailable()) box_.undo();
        EXPECT_EQ(saved(), file + "\r\n");
    }
}

TEST_F(TextBoxTest, LongLinesAreNotWrapped) {
    box_.resize(300, 200);
    box_.show();
    load(std::string(10000, 'x') + "\r\nlast");
    EXPECT_EQ(box_.document()->firstBlock().layout()->lineCount(), 1);
    EXPECT_EQ(box_.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(box_.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    go(0, 9999);
    type("y");
    EXPECT_EQ(saved(), std::string(9999, 'x') + "yx\r\nlast\r\n");
}

}  // namespace
}  // namespace tessaro
