#include "core/MainFrm.h"

#include <QEvent>
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

const QColor groundOfPicture(0x0A, 0x16, 0x22);

}  // namespace

MainFrm::MainFrm(Forms& forms, Program& program, MainParts& parts)
    : FormWindow(forms),
      INI(program.makeINI()),
      program_(program),
      parts_(parts),
      ui_(std::make_unique<Ui::MainFrm>()) {
    ui_->setupUi(this);
    ui_->client->setPalette(QPalette(groundOfPicture));
    ui_->Image1->setPixmap(programPicture(QStringLiteral(":/pictures/main.png")));
    setMinimumSize(pixels(smallestMainWindow.width), pixels(smallestMainWindow.height));
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
        placeBackground();  // the desktop has framed the window by now
    }
    if (event->type() == QEvent::WindowStateChange) {
        stateIsNew_ = true;
        followSize();
    }
}

void MainFrm::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    placeBackground();
    // The size that comes with a new state belongs to that state's one Resize.
    if (isVisible() && !std::exchange(stateIsNew_, false)) followSize();
}

void MainFrm::placeBackground() {
    const MainWindowSize size =
        backgroundSize({twips(frameSize().width()), twips(frameSize().height())});
    ui_->Image1->resize(pixels(size.width), pixels(size.height));
}

void MainFrm::followSize() {
    guarded(forms(), [this] { resizeMainWindow(program_, state()); });
}

}  // namespace tessaro
