#include "kit/forms/handler.h"

#include <exception>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

void report(Forms& forms, const std::string& text) {
    try {
        forms.dialogs().message({text, "Ovrin Tessaro", Buttons::Ok, Icon::Stop});
    } catch (const ProgramEnded&) {  // a handler inside the report's loop was faster
    }
    forms.end();
}

}  // namespace

void guarded(Forms& forms, const std::function<void()>& handler) {
    if (forms.ended()) return;
    const Forms::Running running(forms);
    try {
        handler();
    } catch (const ProgramEnded&) {  // the way out of a handler, no failure
    } catch (const RunTimeError& error) {
        report(forms, standardReport(error));
    } catch (const std::exception& error) {
        report(forms, error.what());
    }
}

}  // namespace tessaro
