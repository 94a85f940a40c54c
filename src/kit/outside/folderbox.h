#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <string>

#include "kit/controls/drivelist.h"
#include "kit/controls/folderlist.h"
#include "platform/outside/dialogs.h"

namespace tessaro {

/// Lets the user choose a folder, in the paths that the program speaks everywhere. Qt's own box
/// knows those of the host alone.
class FolderBox : public QDialog {
    Q_OBJECT
  public:
    FolderBox(QWidget* owner, Files& files, const FolderPicker& picker);

    /// The folder that was chosen.
    const std::string& folder() const { return list_->path(); }
    /// Takes the folder in the box, typed or picked; stays open if it is not there.
    void accept() override;

  private:
    void layOut();
    void openNear(std::string folder);
    bool goTo(const std::string& folder);
    void showPicked();
    void changeDrive();
    void makeFolder();
    std::string typed() const;
    void complain(const char* text);

    Files& files_;
    DriveList* drives_;
    QLineEdit* path_;
    FolderList* list_;
    QLabel* notice_;  // why the folder was not taken
};

}  // namespace tessaro
