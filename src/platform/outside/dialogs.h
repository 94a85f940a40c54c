#pragma once

#include <string>

namespace tessaro {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Stop, Question, Information };
enum class Answer { Ok, Cancel, Yes, No };

/// One question or notice to the user.
struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    bool operator==(const Message&) const = default;
};

/// What a folder picker shows.
struct FolderPicker {
    std::string prompt;       ///< its caption
    std::string folder = {};  ///< where it opens, in the game's form, or the nearest above that
    std::string hint = {};    ///< what the folder has to hold; follows the prompt
    bool operator==(const FolderPicker&) const = default;
};

/// What a file picker shows.
struct FilePicker {
    std::string title;      ///< an empty one leaves the picker its own
    std::string filter;     ///< the one kind of files listed: "INI files(*.ini)|*.ini|"
    std::string folder;     ///< where it opens, in the game's form, if that is there
    std::string name = {};  ///< proposed
    bool operator==(const FilePicker&) const = default;
};

/// The one door for questions, made once and lent to all who ask. Each call returns when the user
/// has answered; handlers of other forms may run until then, on the same thread.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual Answer message(const Message& message) = 0;
    /// The text typed, or an empty one if the user cancelled.
    virtual std::string input(const std::string& prompt, const std::string& title,
                              const std::string& preset) = 0;
    /// A folder in the game's form, or an empty text if the user cancelled.
    virtual std::string pickFolder(const FolderPicker& picker) = 0;
    /// A file in the game's form, or an empty text if the user cancelled. The file need not exist.
    virtual std::string pickFileToOpen(const FilePicker& picker) = 0;
    /// The same; a file that exists is picked without a further question.
    virtual std::string pickFileToSave(const FilePicker& picker) = 0;
};

}  // namespace tessaro
