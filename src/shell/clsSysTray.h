#pragma once
// clsSysTray: a form's icon in the desktop's tray.

#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <string>

#include "kit/forms/forms.h"
#include "platform/outside/desktop.h"
#include "platform/runtime/int16.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

/// Puts an icon for a form into the desktop's tray and turns the mouse's messages on it into
/// events.
///
/// The tray is given the window of a hidden picture box on the form, `pichook`, and tells that of
/// the mouse, see `Desktop`. A right click shows the main window's pop-up menu, whichever form is
/// served. Messages that come while a handler of one runs, or that menu is open, are dropped.
class clsSysTray : public QObject {
    Q_OBJECT
  public:
    clsSysTray(Forms& forms, Desktop& desktop);

    void ToolTip(const std::string& tip) { ChangeToolTip(tip); }
    const std::string& ToolTip() const { return toolTip_; }
    void Icon(const QPixmap& picture) { ChangeIcon(picture); }
    /// The handle of the icon's picture; 0 for none.
    std::int32_t Icon() const { return record_.hIcon; }
    /// Whether a left double click brings the form back; it does from the start.
    void DefaultDblClk(YesNo restore) { defaultDblClk_ = restore; }
    YesNo DefaultDblClk() const { return defaultDblClk_; }
    /// To be set once, before all else. If the form has a `pichook` already, an error box comes and
    /// the program ends.
    void SourceWindow(Form& form);
    Form* SourceWindow() const { return source_; }

    /// Raises 91 without a source window.
    void RemoveFromSysTray();
    void IconInSysTray();
    /// Leaves nothing of the form but its icon. Raises 91 without a source window.
    void MinToSysTray();
    /// Never raises.
    void ChangeIcon(const QPixmap& toNewIcon);
    /// A minimised source window gets the tip as its caption. Raises 91 without a source window.
    void ChangeToolTip(const std::string& cNewTip);

    std::int32_t lastMessage() const { return lastMessage_; }
    std::int32_t previousMessage() const { return previousMessage_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void LButtonDblClk();
    void LButtonDown();
    void LButtonUp();
    void RButtonDblClk();
    void RButtonDown();
    void RButtonUP();

  private:
    void makeHook(QWidget& window);
    [[noreturn]] void reportAndEnd(const RunTimeError& error);
    QWidget& window() const;
    QLabel& hook() const;
    void hear(std::int32_t message);
    void act(std::int32_t message);
    void doubleClicked();
    void rightClicked();

    Forms& forms_;
    Desktop& desktop_;
    NotifyRecord record_;
    std::string toolTip_;
    Form* source_ = nullptr;
    YesNo defaultDblClk_ = Yes;
    QPointer<QLabel> pichook_;  // owned by the form
    std::int32_t lastMessage_ = 0;
    std::int32_t previousMessage_ = 0;
    YesNo busy_ = No;
};

/// Gives the main window its tray object. Mode 0 leaves the window in the task bar, mode 1 leaves
/// nothing but the icon; any other mode does nothing. A second call ends the program, since the
/// main window can be served once only.
void SetRunType(Forms& forms, Desktop& desktop, int mode);

}  // namespace tessaro
