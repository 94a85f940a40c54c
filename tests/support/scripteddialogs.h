#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/outside/dialogs.h"

namespace tessaro::test {

/// Answers the program's boxes from a script and records them. A box that nobody expected fails
/// the test, as does an answer that nobody asked for.
class ScriptedDialogs : public Dialogs {
  public:
    struct Input {
        std::string prompt;
        std::string title;
        std::string preset;
        bool operator==(const Input&) const = default;
    };

    ~ScriptedDialogs() override;

    void answer(Answer answer) { answers_.push_back(answer); }
    /// An empty text cancels.
    void type(std::string text) { texts_.push_back(std::move(text)); }
    void pick(std::string folder) { folders_.push_back(std::move(folder)); }
    /// For a file picker. An empty text cancels.
    void pickFile(std::string file) { files_.push_back(std::move(file)); }
    /// Runs while each box is open.
    std::function<void()> whileOpen;

    std::vector<Message> messages;
    std::vector<Input> inputs;
    std::vector<std::string> pickers;  ///< the prompts of folder pickers
    std::vector<FolderPicker> folderPickers;
    std::vector<FilePicker> openPickers;
    std::vector<FilePicker> savePickers;

    Answer message(const Message& message) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& preset) override;
    std::string pickFolder(const FolderPicker& picker) override;
    std::string pickFileToOpen(const FilePicker& picker) override;
    std::string pickFileToSave(const FilePicker& picker) override;

  private:
    std::string nextFile(const std::string& box);

    std::deque<Answer> answers_;
    std::deque<std::string> texts_;
    std::deque<std::string> folders_;
    std::deque<std::string> files_;
};

}  // namespace tessaro::test
