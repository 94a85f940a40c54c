#include "kit/controls/option.h"

#include <memory>

#include "kit/forms/handler.h"

namespace tessaro {

void onSet(QAbstractButton& button, Forms& forms, const std::function<void()>& handler) {
    // A click begins with a press, whether of the mouse, a key or the program, and changes the
    // state before it is told.
    const auto pressed = std::make_shared<bool>(false);
    QObject::connect(&button, &QAbstractButton::pressed, &button, [pressed] { *pressed = true; });
    QObject::connect(&button, &QAbstractButton::released, &button, [pressed] { *pressed = false; });
    on(&button, &QAbstractButton::clicked, forms, handler);
    on(&button, &QAbstractButton::toggled, forms, [pressed, handler, &button](bool checked) {
        const bool lostToAnother = button.autoExclusive() && !checked;
        if (*pressed || lostToAnother) return;
        button.setFocus();
        handler();
    });
}

}  // namespace tessaro
