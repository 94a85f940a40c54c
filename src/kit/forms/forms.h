#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "kit/forms/form.h"
#include "kit/forms/programend.h"
#include "platform/outside/dialogs.h"

namespace tessaro {

/// The forms of the program: which there are, and the one instance of each that is loaded. A form
/// class has a constructor that takes `Forms&` first.
///
/// Owns the loaded forms; everything runs in the one thread of the windows.
///
/// A form that was unloaded is no longer known here, but the object lives on until no handler runs
/// any more, because handlers of that very form may be up the stack.
class Forms {
  public:
    Forms(Dialogs& dialogs, ProgramEnd& programEnd) : dialogs_(dialogs), end_(programEnd) {}
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    Dialogs& dialogs() { return dialogs_; }

    /// Makes a form class known, and what its constructor takes after `Forms&`.
    template <class T, class... Parts>
    void add(Parts&... parts) {
        makers_[typeid(T)] = [this, &parts...] { return std::make_unique<T>(*this, parts...); };
    }

    /// The form classes that were made known.
    std::vector<std::type_index> known() const;

    /// The instance; the first touch creates it and runs its Load. An error in Load destroys the
    /// half-made form and passes on. The class must be known.
    template <class T>
    T& get();
    Form& get(std::type_index type);
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
    /// Unloads what does not refuse, in the order of loading. An error in one does not keep the
    /// others.
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
    Form& load(std::type_index type);
    void unloadIf(bool (Form::*agrees)(), Form& form);
    void letGo(Form& form);
    void leave();
    void bury();

    Dialogs& dialogs_;
    ProgramEnd& end_;
    // By hash: where a class is of one file only, not every library keeps to one order of types.
    std::unordered_map<std::type_index, std::function<std::unique_ptr<Form>()>> makers_;
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
    return static_cast<T&>(get(typeid(T)));
}

}  // namespace tessaro
