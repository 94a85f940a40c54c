#include "screenshots/screenshot.h"

#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>

#include "core/VORNX.h"
#include "core/centerform.h"
#include "kit/forms/forms.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "kit/look/twips.h"
#include "screenshots/bitmap.h"
#include "ui_screenshot.h"

namespace tessaro {
namespace {

TwipsSize inTwips(const QSize& size) {
    return {twips(size.width()), twips(size.height())};
}

QSize inPixels(const TwipsSize& size) {
    return {pixels(size.width), pixels(size.height)};
}

TwipsSize withFrame(const TwipsSize& size) {
    return {size.width + windowFrame.width, size.height + windowFrame.height};
}

}  // namespace

screenshot::screenshot(Forms& forms, Program& program)
    : FormWindow(forms),
      program_(program),
      ui_(std::make_unique<Ui::screenshot>()),
      names_(new QStringListModel(this)),
      mnurcmenu_(new QMenu(QStringLiteral("rcmenu"), this)),
      viewer_(program, *this) {
    ui_->setupUi(this);
    // A window that is cut to its picture has no use for being maximised.
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setPalette(QPalette(Qt::black));  // seen where a stretched window has shrunk back
    setupControls();
    setupMenu();
}

screenshot::~screenshot() = default;

void screenshot::setupControls() {
    ui_->List1->setModel(names_);
    on(ui_->List1->selectionModel(), &QItemSelectionModel::currentChanged, forms(),
       [this](const QModelIndex& current) {
           if (!following_) run([&] { viewer_.select(current.row()); });
       });
    on(ui_->List1, &QListView::customContextMenuRequested, forms(),
       [this] { mnurcmenu_->popup(ui_->Image1->mapToGlobal(QPoint())); });
    on(ui_->Image1, &ImageBox::rightPressed, forms(),
       [this](const QPoint& place) { mnurcmenu_->popup(place); });
    on(ui_->Image1, &ImageBox::clicked, forms(), [this] { ui_->List1->setFocus(); });
}

void screenshot::setupMenu() {
    mnurcmenu_->setObjectName(QStringLiteral("mnurcmenu"));
    addItem("mnunext", "Next Picture          [Down Arrow]", [this] { viewer_.nextPicture(); });
    addItem("mnuprev", "Previous Picture    [Up Arrow]", [this] { viewer_.previousPicture(); });
    addItem("mnufullscrn", "Full Screen", [this] { viewer_.toggleFullScreen(); });
    addSeparator("mnuhgsdi");
    addItem("mnudelpic", "&Delete Picture", [this] { viewer_.DeleteSelectedPicture(); });
    addSeparator("mnuhyph");
    addItem("mnuclose", "&Close", [this] { unloadForm(); });
}

void screenshot::addItem(const char* name, const char* caption,
                         const std::function<void()>& command) {
    QAction* item = mnurcmenu_->addAction(QLatin1String(caption));
    item->setObjectName(QLatin1String(name));
    on(item, &QAction::triggered, forms(), [this, command] { run(command); });
}

void screenshot::addSeparator(const char* name) {
    mnurcmenu_->addSeparator()->setObjectName(QLatin1String(name));
}

void screenshot::Load() {
    viewer_.LoadScreenshotList();
}

void screenshot::mouseReleaseEvent(QMouseEvent*) {
    ui_->List1->setFocus();
}

// A form that the viewer hides and shows again at once stays on the screen meanwhile, unpainted:
// taken down, it would lose its place, and the keys pressed in that moment would go elsewhere.
void screenshot::run(const std::function<void()>& command) {
    hidden_ = false;
    const auto hideIfLeftHidden = qScopeGuard([this] {
        if (hidden_) hide();
    });
    command();
}

void screenshot::showNames(const ShotList& list) {
    const QScopedValueRollback following(following_, true);
    QStringList names;
    for (const std::string& name : list.names()) names += toQt(name);
    names_->setStringList(names);
}

void screenshot::removeName(int index) {
    const QScopedValueRollback following(following_, true);
    names_->removeRow(index);
    ui_->List1->setCurrentIndex({});  // of itself the list would go to a neighbour
}

void screenshot::showSelection(int index) {
    const QScopedValueRollback following(following_, true);
    ui_->List1->setCurrentIndex(names_->index(index));
}

void screenshot::loadPicture(const std::string& path) {
    ui_->Image1->showPicture(readBitmap(program_.files, path));
    ui_->Image1->setAccessibleName(toQt(FileNamePart(path)));
}

TwipsSize screenshot::pictureSize() {
    return inTwips(ui_->Image1->size());
}

void screenshot::setPictureSize(const TwipsSize& size) {
    ui_->Image1->resize(inPixels(size));
}

void screenshot::setStretch(bool stretch) {
    ui_->Image1->setStretch(stretch);
}

void screenshot::disablePicture() {
    ui_->Image1->setEnabled(false);
}

void screenshot::setCaption(const std::string& caption) {
    setWindowTitle(toQt(caption));
}

TwipsSize screenshot::formSize() {
    return withFrame(inTwips(size()));
}

void screenshot::setFormSize(const TwipsSize& size) {
    setFixedSize(inPixels({size.width - windowFrame.width, size.height - windowFrame.height}));
}

// What the real frame takes of the screen is not there for the picture.
TwipsSize screenshot::screenSize() {
    return withFrame(inTwips(screen()->size() - (frameSize() - size())));
}

void screenshot::center() {
    CenterForm(*this);
}

void screenshot::moveToTopEdge() {
    move(x(), screen()->geometry().top());
}

void screenshot::moveToLeftEdge() {
    move(screen()->geometry().left(), y());
}

void screenshot::repaintForm() {
    repaint();
}

void screenshot::hideForm() {
    hidden_ = true;
}

void screenshot::showForm() {
    hidden_ = false;
    forms().show(*this);
}

void screenshot::unloadForm() {
    forms().unload(*this);
}

}  // namespace tessaro
