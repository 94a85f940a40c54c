#pragma once

#include <QWidget>

namespace tessaro {

/// Places a form centred across its screen and a little above the middle.
void CenterForm(QWidget& form);

/// Called by most tool forms right before they are dressed. There is nothing to prepare; the forms
/// keep the call as the place for it.
inline void PrepareForm(QWidget&) {}

}  // namespace tessaro
