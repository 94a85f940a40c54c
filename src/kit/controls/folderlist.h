#pragma once

#include <QTreeWidget>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/files.h"

namespace tessaro {

/// A folder of a drive: the chain of folders that leads to it, and the folders in it. Double click
/// and Enter open a folder, Backspace goes up. Hidden folders are left out.
class FolderList : public QTreeWidget {
    Q_OBJECT
  public:
    explicit FolderList(QWidget* parent = nullptr);

    /// Shows the current folder. To be called before anything else.
    void use(Files& files);

    /// The open folder in the game's form, names as they are on the disk.
    const std::string& path() const { return path_; }
    /// Opens a folder, and reads it anew if it is open already. Raises 76 if there is no such
    /// folder, 70 if it may not be entered, 68 if there is no such drive.
    void setPath(std::string_view folder);
    /// The folder that is highlighted, the open one at first.
    std::string picked() const;

  Q_SIGNALS:
    /// Another folder was opened, by the user or by `setPath`.
    void changed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// None: the folders of the chain are always open.
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

  private:
    void openByUser(const QTreeWidgetItem* item);
    void fill();
    QTreeWidgetItem* addChain();
    std::vector<std::string> foldersInside() const;

    Files* files_ = nullptr;
    std::string path_;
};

}  // namespace tessaro
