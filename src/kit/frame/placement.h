#pragma once

#include <QRect>
#include <QWidget>

namespace tessaro {

/// Moves a control to the middle of the form's width and `shift` pixels right of it. The control
/// remembers the shift.
void centreAcross(const QWidget& form, QWidget& control, int shift);
/// The same with the shift that the control remembers.
void centreAcross(const QWidget& form, QWidget& control);

/// `window` moved, and shrunk if it must be, so that it lies within `screen`.
QRect fittedInto(const QRect& screen, const QRect& window);

/// How wide a window has to be for a desktop to show its caption whole, if the screen is.
int captionWidth(const QWidget& window);

}  // namespace tessaro
