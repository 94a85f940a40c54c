#include "kit/outside/folderbox.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

#include "kit/frame/placement.h"
#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

constexpr int letters = 60;  // a usual path
constexpr int rows = 22;

template <class Control>
Control* made(QWidget* parent, const char* name, const char* readAs) {
    auto* control = new Control(parent);
    control->setObjectName(QLatin1String(name));
    control->setAccessibleName(QLatin1String(readAs));
    return control;
}

QString captionOf(const FolderPicker& picker) {
    return toQt(picker.hint.empty() ? picker.prompt : picker.prompt + ' ' + picker.hint);
}

}  // namespace

FolderBox::FolderBox(QWidget* owner, Files& files, const FolderPicker& picker)
    : QDialog(owner),
      files_(files),
      drives_(made<DriveList>(this, "drives", "Drive")),
      path_(made<QLineEdit>(this, "path", "Folder")),
      list_(made<FolderList>(this, "folders", "Folders")),
      notice_(new QLabel(this)) {
    setObjectName(QStringLiteral("folderPicker"));
    setWindowTitle(captionOf(picker));
    layOut();
    drives_->use(files);
    list_->use(files);
    connect(drives_, &DriveList::changed, this, &FolderBox::changeDrive);
    connect(list_, &QTreeWidget::currentItemChanged, this, &FolderBox::showPicked);
    openNear(picker.folder);
}

void FolderBox::layOut() {
    notice_->setObjectName(QStringLiteral("notice"));
    notice_->hide();
    auto* makeFolder = new QPushButton(QStringLiteral("&New Folder"), this);
    makeFolder->setObjectName(QStringLiteral("newFolder"));
    makeFolder->setAutoDefault(false);
    connect(makeFolder, &QPushButton::clicked, this, &FolderBox::makeFolder);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &FolderBox::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FolderBox::reject);
    auto* layout = new QGridLayout(this);
    layout->addWidget(drives_, 0, 0, 1, 2);
    layout->addWidget(path_, 1, 0);
    layout->addWidget(makeFolder, 1, 1);
    layout->addWidget(list_, 2, 0, 1, 2);
    layout->addWidget(notice_, 3, 0, 1, 2);
    layout->addWidget(buttons, 4, 0, 1, 2);
    path_->setFocus();
    const QSize wanted(letters * fontMetrics().averageCharWidth(), rows * fontMetrics().height());
    resize(wanted.expandedTo({captionWidth(*this), 0}).boundedTo(screen()->availableSize()));
}

// Where a folder is not there, the nearest one above it that is.
void FolderBox::openNear(std::string folder) {
    while (!goTo(folder)) {
        const std::size_t end = folder.rfind('\\');
        if (end == std::string::npos) return;  // not even its drive
        folder.resize(end);
    }
}

bool FolderBox::goTo(const std::string& folder) {
    if (folder.empty() || !attempt([&] { list_->setPath(folder); })) return false;
    const QSignalBlocker quiet(drives_);
    attempt([&] { drives_->setDrive(list_->path()); });
    showPicked();
    return true;
}

void FolderBox::showPicked() {
    notice_->hide();
    path_->setText(toQt(list_->picked()));
}

void FolderBox::changeDrive() {
    if (goTo(drives_->drive() + '\\')) return;
    goTo(list_->path());
    complain("This drive cannot be read.");
}

void FolderBox::makeFolder() {
    const std::string folder = typed();
    if (attempt([&] { files_.makeFolder(folder); }) && goTo(folder)) return;
    complain("There is such a folder, or it cannot be made.");
}

// A name without a drive means one in the folder that is open.
std::string FolderBox::typed() const {
    const std::string text = lineFromQt(path_->text());
    const bool whole = text.find(':') != std::string::npos || text.find_first_of("\\/") == 0;
    return whole || text.empty() ? text : list_->path() + '\\' + text;
}

void FolderBox::accept() {
    if (goTo(typed())) return QDialog::accept();
    complain("There is no such folder. To make it, press New Folder.");
}

void FolderBox::complain(const char* text) {
    notice_->setText(QLatin1String(text));
    notice_->show();
    path_->setFocus();
    path_->selectAll();
}

}  // namespace tessaro
