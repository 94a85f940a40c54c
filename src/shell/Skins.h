#pragma once
// Skins: dresses a form in the skin that the settings name.

#include <QWidget>

#include "core/program.h"
#include "kit/forms/forms.h"

namespace tessaro {

/// Gives a form's frame, buttons, lists and text boxes the pictures and colours of the current
/// skin. Controls are found by name; one that the form lacks is passed over. Never raises; a skin
/// that is not there leaves the form as it is.
void ApplySkin(Program& program, Forms& forms, QWidget& form);

}  // namespace tessaro
