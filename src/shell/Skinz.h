#pragma once

#include <QDialog>
#include <QPixmap>

#include "kit/forms/forms.h"

namespace tessaro {

/// The store of the frame pictures and of the tray icon's picture. Never shown; once loaded it
/// stays until all forms are unloaded.
class Skinz : public FormWindow<QDialog> {
    Q_OBJECT
  public:
    explicit Skinz(Forms& forms);

    /// The picture on the control of that name; an empty one if there is no such control.
    QPixmap picture(const char* name) const;

    /// Follows the mouse on `systraypic` as if its place were the tray's message: a press of the
    /// right button shows the pop-up menu, one of the left button shows the main window or hides
    /// it. Nothing comes here in practice, since the box is never seen; the tray icon speaks to
    /// `clsSysTray`.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void hear(int x);
};

}  // namespace tessaro
