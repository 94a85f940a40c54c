#pragma once

#include <QWidget>

namespace tessaro {

/// Moves a form with the mouse, from a press of any button until its release. The desktop moves it,
/// from the first movement on (a desktop may refuse a move that begins with the press); where there
/// is no such service we do.
void DragForm(QWidget& form);

}  // namespace tessaro
