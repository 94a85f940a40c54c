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
};

}  // namespace tessaro
