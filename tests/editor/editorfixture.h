#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "editor/editor.h"
#include "editor/plainbox.h"
#include "support/testprogram.h"

namespace tessaro::test {

/// The editor's form without a window.
class RecordingEditorView : public EditorView {
  public:
    PlainBox box;
    std::string openedini;
    std::string title;

    void showOpenedFile(const std::string& path, const std::string& name) override {
        openedini = path;
        title = name;
    }
    void showText(const std::u16string& text) override { box.show(text); }
    bool textIsEmpty() override { return box.lines == BoxLines(1); }
    std::u16string line(std::size_t number) override { return box.line(number); }
};

inline const Message saveQuestion{"Do you wish to save changes", "File Not Saved.",
                                  Buttons::YesNoCancel, Icon::Question};
inline const std::string iniFolder = "C:\\UT\\System";
inline const std::string utIni = iniFolder + "\\unrealtournament.ini";
inline const std::string userIni = iniFolder + "\\user.ini";
inline const std::string cacheIni = "C:\\UT\\Cache\\cache.ini";
inline const std::string mine = "C:\\Mine\\my.ini";

/// The editor on a small game.
class EditorTest : public testing::Test {
  protected:
    EditorTest() {
        program_.gamePaths = {"C:\\UT", "C:\\UT\\Cache", "C:\\UT\\Maps", iniFolder};
        disk_.write(utIni, "[URL]\r\nName=Me\r\n");
        disk_.write(userIni, "[DefaultPlayer]\r\n");
        disk_.write(mine, "[Mine]\n");
        disk_.makeFolder("C:\\UT\\Cache");
        view_.box.changed = [this](auto... lines) { editor_.textChanged(lines...); };
    }

    std::string shown() const {
        std::string text;
        for (const std::u16string& line : view_.box.lines) text += readable(line) + "|";
        return text;
    }
    void type(std::u16string line) { view_.box.edit(0, 1, {std::move(line)}); }
    int dirty() const { return memory_.EditorDirty; }
    void loadMine() {
        dialogs_.pickFile(mine);
        editor_.loadChosenFile();
    }

    TestProgram world_;
    Program& program_ = world_.program;
    TestWorld& disk_ = world_.world;
    ScriptedDialogs& dialogs_ = world_.dialogs;
    RecordingEditorView view_;
    EditorMemory memory_;
    Editor editor_{program_, view_, memory_};
};

}  // namespace tessaro::test
