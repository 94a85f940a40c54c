#pragma once

#include <QObject>
#include <memory>
#include <typeindex>
#include <vector>

#include "core/program.h"
#include "kit/forms/form.h"
#include "kit/forms/programend.h"

namespace tessaro::forms {

/// The forms that are loaded, one instance of each. A form class has a constructor that takes
/// `Forms&`.
///
/// A form that was unloaded is no longer known here, but the object lives on until no handler runs
/// any more, because handlers of that very form may be up the stack.
class Forms {
  public:
    Forms(Program& program, ProgramEnd& programEnd) : program_(program), end_(programEnd) {}
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    Program& program() { return program_; }

    /// The instance; the first touch creates it and runs its Load. An error in Load destroys the
    /// half-made form and passes on.
    template <class T>
    T& get();
    /// The instance if it is loaded, else null.
    template <class T>
    T* loaded();

    /// Shows the form, or brings it to the front.
    template <class T>
    void show() {
        show(get<T>());
    }
    /// Shows the form and returns when it is hidden or unloaded; no other form takes input until
    /// then.
    template <class T>
    void showModal() {
        const Running running(*this);
        showModal(get<T>());
    }
    void show(Form& form);
    void showModal(Form& form);

    /// Unloads the form unless it refuses.
    void close(Form& form);
    /// Runs Unload and lets the form go, also if Unload fails; the error passes on.
    void unload(Form& form);
    /// In the order in which they were loaded. An error in one does not keep the others.
    void UnloadAllForms();

    bool isLoaded(const Form& form) const { return find(form) != nullptr; }
    bool empty() const { return entries_.empty(); }

    /// Ends the program outright: no further Unload runs, and nothing of the running handlers after
    /// the event loop that they wait in.
    void end() { end_.end(); }
    bool ended() const { return end_.ended(); }
    void throwIfEnded() const { end_.throwIfEnded(); }

    /// Serves events until no form is left or the program was ended.
    int run();

    /// While one lives, a handler runs.
    class Running {
      public:
        explicit Running(Forms& forms) : forms_(forms) { ++forms_.depth_; }
        ~Running() { forms_.leave(); }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        Forms& forms_;
    };

  private:
    struct Entry {
        std::type_index type;
        std::unique_ptr<Form> form;
        bool unloading = false;
    };

    Form* find(std::type_index type) const;
    Entry* find(const Form& form) const;
    void load(std::type_index type, std::unique_ptr<Form> form);
    void release(Form& form);
    void leave();
    void bury();

    Program& program_;
    ProgramEnd& end_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::vector<std::unique_ptr<Form>> unloaded_;
    int depth_ = 0;
    bool serving_ = false;
    QObject later_;  // receiver of what we post; what is still posted goes with it
};

template <class T>
T* Forms::loaded() {
    return static_cast<T*>(find(typeid(T)));
}

template <class T>
T& Forms::get() {
    if (T* form = loaded<T>()) return *form;
    auto made = std::make_unique<T>(*this);
    T& form = *made;
    load(typeid(T), std::move(made));
    return form;
}

}  // namespace tessaro::forms
