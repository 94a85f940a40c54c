#pragma once

#include "kit/forms/programend.h"
#include "platform/files/paths.h"
#include "platform/outside/dialogs.h"

namespace tessaro {

/// The program's boxes. This is the only unit that shows any. Their object names are "messageBox",
/// "inputBox" and "folderPicker". Texts are shown as they are, never read as markup.
class QtDialogs : public Dialogs {
  public:
    QtDialogs(const ProgramEnd& programEnd, Host& host, DriveMap drives)
        : end_(programEnd), paths_(host, std::move(drives)) {}

    Answer message(const Message& message) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& preset) override;
    std::string pickFolder(const std::string& prompt) override;

  private:
    const ProgramEnd& end_;
    Paths paths_;  // turns what the picker gives into the game's form, nothing else
};

}  // namespace tessaro
