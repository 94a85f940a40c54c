#pragma once

#include <QAbstractButton>
#include <functional>

#include "kit/forms/forms.h"

namespace tessaro {

/// Connects an option or check box to what a click on it does. Whatever else sets it acts as that
/// click, once, and takes the focus there as the mouse does: a screen reader changes the state
/// without a click. Who fills in a value on the program's behalf blocks the button's signals.
void onSet(QAbstractButton& button, Forms& forms, const std::function<void()>& handler);

}  // namespace tessaro
