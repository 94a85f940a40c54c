#include "kit/forms/forms.h"

#include <QCoreApplication>
#include <algorithm>
#include <exception>
#include <utility>

#include "kit/forms/modalloop.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

Forms::~Forms() {
    // A window that hides itself at its end looks once more at lists that went before it.
    for (const auto& entry : entries_) entry->form->window().hide();
}

std::vector<std::type_index> Forms::known() const {
    std::vector<std::type_index> types;
    for (const auto& [type, maker] : makers_) types.push_back(type);
    return types;
}

Form& Forms::get(std::type_index type) {
    Form* form = find(type);
    return form != nullptr ? *form : load(type);
}

Form* Forms::find(std::type_index type) const {
    for (const auto& entry : entries_)
        if (entry->type == type) return entry->form.get();
    return nullptr;
}

Forms::Entry* Forms::find(const Form& form) const {
    for (const auto& entry : entries_)
        if (entry->form.get() == &form) return entry.get();
    return nullptr;
}

Form& Forms::load(std::type_index type) {
    const Running running(*this);
    std::unique_ptr<Form> form = makers_.at(type)();
    Form& loading = *form;
    // Known before its Load runs, since what Load calls may touch the form again.
    entries_.push_back(std::make_unique<Entry>(Entry{type, std::move(form)}));
    try {
        loading.Load();
    } catch (...) {
        if (find(loading) != nullptr) letGo(loading);
        throw;
    }
    return loading;
}

void Forms::show(Form& form) {
    if (!isLoaded(form)) return;  // its Load closed it again
    QWidget& window = form.window();
    // One that the user minimised comes back; one that starts minimised stays so.
    if (window.isVisible()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    if (window.isMinimized()) return;
    window.raise();
    window.activateWindow();
}

void Forms::showModal(Form& form) {
    if (!isLoaded(form)) return;
    const Running running(*this);
    ModalLoop loop(form.window());
    show(form);
    while (!ended() && isLoaded(form) && form.window().isVisible()) loop.wait();
    throwIfEnded();
}

void Forms::close(Form& form) {
    unloadIf(&Form::QueryUnload, form);
}

void Forms::unloadIf(bool (Form::*agrees)(), Form& form) {
    const Entry* entry = find(form);
    if (entry == nullptr || entry->unloading) return;
    if ((form.*agrees)()) unload(form);
}

void Forms::unload(Form& form) {
    Entry* entry = find(form);
    if (entry == nullptr || entry->unloading) return;
    const Running running(*this);
    entry->unloading = true;
    std::exception_ptr failure;
    try {
        form.Unload();
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        failure = std::current_exception();
    }
    form.window().hide();
    letGo(form);
    if (failure) std::rethrow_exception(failure);
}

void Forms::letGo(Form& form) {
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const auto& one) { return one->form.get() == &form; });
    unloaded_.push_back(std::move((*entry)->form));
    entries_.erase(entry);
    if (entries_.empty() && serving_) end_.desert();
}

void Forms::UnloadAllForms() {
    std::vector<Form*> all;
    for (const auto& entry : entries_) all.push_back(entry->form.get());
    const Running running(*this);  // keeps what is unloaded alive, so no address is used twice
    for (Form* form : all) attempt([&] { unloadIf(&Form::QueryUnloadAll, *form); });
}

int Forms::run() {
    if (ended() || empty()) return 0;
    serving_ = true;
    const int result = QCoreApplication::exec();
    serving_ = false;
    return result;
}

void Forms::leave() {
    if (--depth_ > 0 || unloaded_.empty()) return;
    // Not at once: Qt's own code for the event under way still holds the window.
    QMetaObject::invokeMethod(
        &later_, [this] { bury(); }, Qt::QueuedConnection);
}

void Forms::bury() {
    // Inside another handler's event loop; the end of that handler posts anew.
    if (depth_ > 0) return;
    unloaded_.clear();
}

}  // namespace tessaro
