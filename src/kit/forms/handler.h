#pragma once

#include <QObject>
#include <functional>
#include <type_traits>
#include <utility>

#include "kit/forms/forms.h"

namespace tessaro {

/// Runs a handler. What leaves it ends here: a run-time error is reported and ends the program;
/// so does any other exception, which would be a defect of ours. Once the program was ended no
/// handler runs any more.
void guarded(Forms& forms, const std::function<void()>& handler);

/// Connects a signal to a handler that takes all, some of the first or none of its arguments.
template <class Sender, class Signal, class Handler>
void on(Sender* sender, Signal signal, Forms& forms, Handler handler) {
    // The constraint lets Qt choose how many arguments to hand over.
    QObject::connect(
        sender, signal, sender,
        [&forms, handler ](auto&&... arguments) mutable requires std::is_invocable_v<
            Handler&, decltype(arguments)...> { guarded(forms, [&] { handler(arguments...); }); });
}

}  // namespace tessaro
