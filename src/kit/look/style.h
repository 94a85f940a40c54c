#pragma once

#include <QApplication>
#include <QPalette>

namespace tessaro {

/// Names, icon, style and colours of the program. Style and colours are fixed, so that a desktop
/// with a dark scheme does not leave dark letters on a dark ground.
void applyProgramStyle(QApplication& application);

/// The light colours of everything but lists and text boxes.
QPalette programPalette();

/// Makes a list or text box show white letters on `ground`, which has to be dark.
void setFieldGround(QWidget& field, const QColor& ground);
/// Gives every list and text box inside `form` its design look, before a skin colours it.
void dressFields(QWidget& form);

}  // namespace tessaro
