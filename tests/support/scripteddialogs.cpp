#include "support/scripteddialogs.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessaro::test {
namespace {

// The next line of a script, or `otherwise` and a failure.
template <class Line>
Line next(std::deque<Line>& script, const std::string& box, Line otherwise) {
    if (script.empty()) {
        ADD_FAILURE() << "Nobody expected this box: " << box;
        return otherwise;
    }
    Line line = std::move(script.front());
    script.pop_front();
    return line;
}

Answer escapeOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::YesNo:
            return Answer::No;
        case Buttons::OkCancel:
        case Buttons::YesNoCancel:
            break;
    }
    return Answer::Cancel;
}

}  // namespace

ScriptedDialogs::~ScriptedDialogs() {
    EXPECT_TRUE(answers_.empty()) << "A message box did not come";
    EXPECT_TRUE(texts_.empty()) << "An input box did not come";
    EXPECT_TRUE(folders_.empty()) << "A folder picker did not come";
    EXPECT_TRUE(files_.empty()) << "A file picker did not come";
}

Answer ScriptedDialogs::message(const Message& message) {
    messages.push_back(message);
    if (whileOpen) whileOpen();
    return next(answers_, message.title + ": " + message.text, escapeOf(message.buttons));
}

std::string ScriptedDialogs::input(const std::string& prompt, const std::string& title,
                                   const std::string& preset) {
    inputs.push_back({prompt, title, preset});
    if (whileOpen) whileOpen();
    return next(texts_, title + ": " + prompt, std::string());
}

std::string ScriptedDialogs::pickFolder(const FolderPicker& picker) {
    pickers.push_back(picker.prompt);
    folderPickers.push_back(picker);
    if (whileOpen) whileOpen();
    return next(folders_, picker.prompt, std::string());
}

std::string ScriptedDialogs::pickFileToOpen(const FilePicker& picker) {
    openPickers.push_back(picker);
    return nextFile("Open " + picker.folder);
}

std::string ScriptedDialogs::pickFileToSave(const FilePicker& picker) {
    savePickers.push_back(picker);
    return nextFile(picker.title + ": " + picker.name);
}

std::string ScriptedDialogs::nextFile(const std::string& box) {
    if (whileOpen) whileOpen();
    return next(files_, box, std::string());
}

}  // namespace tessaro::test
