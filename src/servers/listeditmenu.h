#pragma once

#include <QDialog>
#include <QMenu>

#include "kit/forms/forms.h"

namespace tessaro {

/// The popup menu of the server list. The form itself is never shown; once loaded it stays until
/// all forms are unloaded.
class listeditmenu : public FormWindow<QDialog> {
    Q_OBJECT
  public:
    explicit listeditmenu(Forms& forms);

    /// Opens the menu at a place on the screen and returns at once.
    void popup(const QPoint& place) { mypopup_->popup(place); }

  private:
    QMenu* mypopup_;
};

}  // namespace tessaro
