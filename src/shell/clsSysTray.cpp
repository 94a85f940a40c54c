#include "shell/clsSysTray.h"

#include <QMouseEvent>
#include <cmath>

#include "core/MainFrm.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/utf8.h"
#include "shell/Skinz.h"
#include "shell/menus.h"

namespace tessaro {
namespace {

constexpr auto hookName = "pichook";
constexpr std::size_t mostTipCharacters = 64;

// Qt numbers its pictures in the upper half of the key; the lower one tells of changes.
std::int32_t handleOf(const QPixmap& picture) {
    return static_cast<std::int32_t>(picture.cacheKey() >> 32);
}

}  // namespace

clsSysTray::clsSysTray(Forms& forms, Desktop& desktop) : forms_(forms), desktop_(desktop) {}

void clsSysTray::SourceWindow(Form& form) {
    source_ = &form;
    try {
        makeHook(form.window());
    } catch (const RunTimeError& error) {
        reportAndEnd(error);
    }
}

void clsSysTray::makeHook(QWidget& window) {
    const QString name = QLatin1String(hookName);
    if (window.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly) != nullptr)
        throw RunTimeError(errors::ControlNameInUse, hookName);
    pichook_ = new QLabel(&window);
    pichook_->setObjectName(name);
    pichook_->hide();
    pichook_->setPixmap(window.windowIcon().pixmap(window.windowIcon().availableSizes().value(0)));
    pichook_->setMouseTracking(true);  // it hears of moves without a button too
    pichook_->installEventFilter(this);
    pichook_->setAttribute(Qt::WA_DontCreateNativeAncestors);
    record_.hWnd = pichook_->winId();
}

void clsSysTray::reportAndEnd(const RunTimeError& error) {
    forms_.dialogs().message({standardReport(error), "Error", Buttons::Ok, Icon::Stop});
    forms_.end();
    throw ProgramEnded{};
}

QWidget& clsSysTray::window() const {
    if (source_ == nullptr) throw RunTimeError(errors::ObjectNotSet);
    return source_->window();
}

QLabel& clsSysTray::hook() const {
    if (pichook_ == nullptr) throw RunTimeError(errors::ObjectNotSet);
    return *pichook_;
}

void clsSysTray::RemoveFromSysTray() {
    record_.hWnd = hook().winId();
    desktop_.notifyIcon(TrayAction::Delete, record_);
}

void clsSysTray::IconInSysTray() {
    desktop_.notifyIcon(TrayAction::Add, record_);
}

void clsSysTray::MinToSysTray() {
    IconInSysTray();
    window().hide();  // which takes it out of the task list too
}

void clsSysTray::ChangeIcon(const QPixmap& toNewIcon) {
    attempt([&] { hook().setPixmap(toNewIcon); });
    attempt([&] { record_.hIcon = handleOf(hook().pixmap(Qt::ReturnByValue)); });
    desktop_.notifyIcon(TrayAction::Modify, record_);
}

void clsSysTray::ChangeToolTip(const std::string& cNewTip) {
    toolTip_ = cNewTip;
    record_.szTip = left(cNewTip + '\0', mostTipCharacters);
    desktop_.notifyIcon(TrayAction::Modify, record_);
    if (window().isMinimized()) window().setWindowTitle(toQt(cNewTip));
}

bool clsSysTray::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const double x = static_cast<QMouseEvent*>(event)->position().x();
        guarded(forms_, [&] { hear(static_cast<std::int32_t>(std::lround(x))); });
    }
    return false;
}

void clsSysTray::hear(std::int32_t message) {
    previousMessage_ = lastMessage_;
    lastMessage_ = message;
    if (busy_ != No) return;
    busy_ = Yes;
    act(message);
    busy_ = No;
}

void clsSysTray::act(std::int32_t message) {
    switch (message) {
        case traymessage::LButtonDown:
            return Q_EMIT LButtonDown();
        case traymessage::LButtonUp:
            return Q_EMIT LButtonUp();
        case traymessage::LButtonDblClk:
            return doubleClicked();
        case traymessage::RButtonDown:
            return rightClicked();
        case traymessage::RButtonUp:
            return Q_EMIT RButtonUP();
        case traymessage::RButtonDblClk:
            return Q_EMIT RButtonDblClk();
        default:
            return;
    }
}

void clsSysTray::doubleClicked() {
    if (defaultDblClk_ != No) {
        window().setWindowState(Qt::WindowNoState);
        forms_.throwIfEnded();  // the Resize of the main window may have failed
        forms_.show(*source_);
        RemoveFromSysTray();
    }
    Q_EMIT LButtonDblClk();
}

void clsSysTray::rightClicked() {
    showPopupMenu(forms_);
    Q_EMIT RButtonDown();
}

void SetRunType(Forms& forms, Desktop& desktop, int mode) {
    if (mode != 0 && mode != 1) return;
    MainFrm& mainWindow = forms.get<MainFrm>();
    mainWindow.gSysTray = std::make_shared<clsSysTray>(forms, desktop);
    clsSysTray& tray = *mainWindow.gSysTray;
    tray.SourceWindow(mainWindow);
    tray.ChangeIcon(forms.get<Skinz>().picture("systraypic"));
    tray.ChangeToolTip("Ovrin Tessaro");
    mode == 0 ? tray.RemoveFromSysTray() : tray.MinToSysTray();
}

}  // namespace tessaro
