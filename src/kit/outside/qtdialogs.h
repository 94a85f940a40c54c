#pragma once

#include "kit/forms/programend.h"
#include "platform/files/files.h"
#include "platform/outside/dialogs.h"

class QFileDialog;

namespace tessaro {

/// The program's boxes. This is the only unit that shows any. Their object names are "messageBox",
/// "inputBox", "folderPicker" and "filePicker". Texts are shown as they are, never read as markup.
class QtDialogs : public Dialogs {
  public:
    QtDialogs(const ProgramEnd& programEnd, Host& host, DriveMap drives)
        : end_(programEnd), paths_(host, std::move(drives)), files_(host, paths_) {}

    Answer message(const Message& message) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& preset) override;
    std::string pickFolder(const FolderPicker& picker) override;
    std::string pickFileToOpen(const FilePicker& picker) override;
    std::string pickFileToSave(const FilePicker& picker) override;

  private:
    std::string pickFile(QFileDialog& box, const FilePicker& picker);
    std::string picked(QFileDialog& box);

    const ProgramEnd& end_;
    // The pickers' folders and files, from and into the game's form, nothing else.
    Paths paths_;
    Files files_;
};

}  // namespace tessaro
