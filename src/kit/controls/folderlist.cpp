#include "kit/controls/folderlist.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>
#include <algorithm>

#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int levelIndent = 14;

std::string joined(const std::string& folder, const std::string& name) {
    return folder.ends_with('\\') ? folder + name : folder + '\\' + name;
}

// "C:\", "Games" and "UT" of `C:\Games\UT`.
std::vector<std::string> partsOf(const std::string& path) {
    std::vector<std::string> parts{path.substr(0, 3)};
    for (std::size_t start = 3; start < path.size();) {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        if (end > start) parts.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

QTreeWidgetItem* makeItem(const std::string& name, const std::string& path, const QIcon& icon) {
    auto* item = new QTreeWidgetItem({toQt(name)});
    item->setData(0, pathRole, toQt(path));
    item->setIcon(0, icon);
    return item;
}

}  // namespace

FolderList::FolderList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setIndentation(levelIndent);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    header()->setStretchLastSection(true);
    // Not `itemActivated`, which some desktops raise on a single click.
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { openByUser(item); });
}

void FolderList::use(Files& files) {
    files_ = &files;
    setPath(files.paths().currentFolder());
}

void FolderList::setPath(std::string_view folder) {
    const std::string full = files_->paths().absolute(folder);
    const HostPath place = files_->paths().toHost(full);
    // Asked from inside: a folder that may not be entered raises here, before anything changes.
    const auto status = files_->host().status(place / ".");
    if (!status || !status->folder) throw RunTimeError(errors::PathNotFound, full);
    const std::string before = std::exchange(path_, files_->paths().spelled(full));
    fill();
    if (path_ != before) Q_EMIT changed();
}

std::string FolderList::picked() const {
    const QTreeWidgetItem* item = currentItem();
    return item != nullptr ? fromQt(item->data(0, pathRole).toString()) : path_;
}

void FolderList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        openByUser(currentItem());
    } else if (event->key() == Qt::Key_Backspace) {
        attempt([&] { setPath(joined(path_, "..")); });  // at a root, the root once more
    } else {
        QTreeWidget::keyPressEvent(event);
    }
}

// A folder that has gone meanwhile, or may not be entered, leaves the list as it is.
void FolderList::openByUser(const QTreeWidgetItem* item) {
    if (item == nullptr) return;
    const std::string path = fromQt(item->data(0, pathRole).toString());
    attempt([&] { setPath(path); });
}

void FolderList::fill() {
    clear();
    QTreeWidgetItem* open = addChain();
    const QIcon icon = style()->standardIcon(QStyle::SP_DirClosedIcon);
    QList<QTreeWidgetItem*> items;
    for (const std::string& name : foldersInside())
        items.append(makeItem(name, joined(path_, name), icon));
    open->addChildren(items);
    expandAll();
    setCurrentItem(open);
}

// The folders from the drive down to the open one; gives the item of the latter.
QTreeWidgetItem* FolderList::addChain() {
    const QIcon icon = style()->standardIcon(QStyle::SP_DirOpenIcon);
    QTreeWidgetItem* last = invisibleRootItem();
    std::string path;
    for (const std::string& part : partsOf(path_)) {
        path = path.empty() ? part : joined(path, part);
        QTreeWidgetItem* item = makeItem(part, path, icon);
        last->addChild(item);
        last = item;
    }
    return last;
}

std::vector<std::string> FolderList::foldersInside() const {
    std::vector<std::string> folders;
    attempt([&] { folders = files_->foldersIn(path_); });
    return folders;
}

}  // namespace tessaro
