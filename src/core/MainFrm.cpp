#include "core/MainFrm.h"

#include <QEvent>
#include <QScreen>
#include <utility>

#include "core/centerform.h"
#include "core/splash.h"
#include "kit/forms/forms.h"
#include "kit/forms/handler.h"
#include "kit/look/pictures.h"
#include "kit/look/twips.h"
#include "platform/runtime/runtimeerror.h"
#include "ui_MainFrm.h"

namespace tessaro {
namespace {

constexpr QSize usualFrame(8, 32);  // that desktops draw around a window
const QColor groundOfPicture(0x0A, 0x16, 0x22);

}  // namespace

MainFrm::MainFrm(Forms& forms, Program& program, MainParts& parts)
    : FormWindow(forms),
      INI(program.makeINI()),
      program_(program),
      parts_(parts),
      ui_(std::make_unique<Ui::MainFrm>()) {
    ui_->setupUi(this);
    resize(size().boundedTo(screen()->availableSize() - usualFrame));
    ui_->client->setPalette(QPalette(groundOfPicture));
    ui_->Image1->setPixmap(programPicture(QStringLiteral(":/pictures/main.png")));
    fitToFrame();
    parts_.buildMenus(*this);
}

MainFrm::~MainFrm() = default;

void MainFrm::Load() {
    INI.inifile(program_.settingsFile());
    loadMainWindow(program_, *this);
}

void MainFrm::Unload() {
    leaving_ = true;
    unloadMainWindow(program_, *this);
}

void MainFrm::center() {
    CenterForm(*this);
}

void MainFrm::setState(int state) {
    constexpr Qt::WindowState states[] = {Qt::WindowNoState, Qt::WindowMinimized,
                                          Qt::WindowMaximized};
    if (state < 0 || state > windowstate::Maximised)
        throw RunTimeError(errors::InvalidPropertyValue);
    // A change comes back through `changeEvent`; a window that is not seen yet is resized even
    // without.
    if (!isVisible() && state == this->state()) return handleResize();
    setWindowState(states[state]);
    // A failure in the Resize that has just run was reported there; what called us must not go on.
    forms().throwIfEnded();
}

int MainFrm::state() {
    if (isMinimized()) return windowstate::Minimised;
    return isMaximized() ? windowstate::Maximised : windowstate::Normal;
}

void MainFrm::showSplash() {
    forms().showModal<splash>();
}

std::string MainFrm::loadFolderToCheck() {
    return parts_.loadFolderToCheck();
}

void MainFrm::showPrefs() {
    parts_.showPrefs();
}

void MainFrm::unloadAllForms() {
    forms().UnloadAllForms();
}

void MainFrm::exitProgram() {
    // Pressed again during the farewell: to end here would lose the settings that are yet to be
    // saved.
    if (leaving_) return;
    forms().unload(*this);
    forms().end();
}

void MainFrm::SetRunType(int mode) {
    parts_.setRunType(mode);
}

bool MainFrm::event(QEvent* event) {
    // Menus have no status texts; their empty ones would wipe ours.
    return event->type() == QEvent::StatusTip || FormWindow<QMainWindow>::event(event);
}

void MainFrm::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        ui_->StatusBar1->showMessage(QStringLiteral("Tessaro"));
        fitToFrame();  // the desktop has framed the window by now
    }
    if (event->type() == QEvent::WindowStateChange) {
        sizeToCome_ = state() != windowstate::Minimised && state() != sizedState_;
        handleResize();
    }
}

void MainFrm::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    fitToFrame();
    if (isVisible() && !std::exchange(sizeToCome_, false)) handleResize();
}

// The limits and the picture go by the whole window, its frame included.
void MainFrm::fitToFrame() {
    const QSize frame = frameSize() - size();
    setMinimumSize(pixels(smallestMainWindow.width) - frame.width(),
                   pixels(smallestMainWindow.height) - frame.height());
    const MainWindowSize picture =
        backgroundSize({twips(frameSize().width()), twips(frameSize().height())});
    ui_->Image1->resize(pixels(picture.width), pixels(picture.height));
}

// The window's one Resize. It runs once for each new state, visible or not, and once for each size
// that the visible window gets while it stays in a state. The size that follows a new state
// belongs to it and is no Resize of its own; none follows when the window comes back to the state
// that it was minimised from, since it has kept that size.
void MainFrm::handleResize() {
    if (state() != windowstate::Minimised) sizedState_ = state();
    guarded(forms(), [this] { resizeMainWindow(program_, state()); });
}

}  // namespace tessaro
