#pragma once

#include <QApplication>
#include <QPalette>

namespace tessaro {

/// Names, icon, style and colours of the program. Style and colours are fixed, so that a desktop
/// with a dark scheme does not leave dark letters on a dark ground.
void applyProgramStyle(QApplication& application);

/// The light colours of everything but lists and text boxes.
QPalette programPalette();

/// Gives a list or text box its ground, which has to be dark; its letters stay as they are.
void setFieldGround(QWidget& field, const QColor& ground);
/// Gives every list and text box inside `form` its design look, white letters on a dark ground,
/// before a skin colours the ground. A box that cannot be written in is flat, its letters paler.
void dressFields(QWidget& form);

}  // namespace tessaro
