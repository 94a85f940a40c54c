#pragma once

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDialog>
#include <QString>
#include <QWidget>

namespace tessaro {

class Forms;

/// One form of the program, as the registry of forms sees it.
class Form {
  public:
    explicit Form(Forms& forms) : forms_(forms) {}
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    virtual QWidget& window() = 0;
    /// Runs once, when the form is created. The form is not visible yet.
    virtual void Load() {}
    /// Asked when the user closes the form; false keeps it open.
    virtual bool QueryUnload() { return true; }
    /// Asked when the main window takes all forms with it; false keeps this one.
    virtual bool QueryUnloadAll() { return true; }
    virtual void Unload() {}

    Forms& forms() { return forms_; }

  protected:
    /// The way of every close button, key and window manager: asks the form, then unloads it.
    void closeByUser();
    bool stillLoaded() const;

  private:
    Forms& forms_;
};

/// A dialog whose Esc presses its cancel button, if it has one that can be pressed, and does
/// nothing else: left alone, Qt's would close a window that offers no such way out.
class CancelDialog : public QDialog {
  public:
    using QDialog::QDialog;
    void setCancelButton(QAbstractButton& button) { cancel_ = &button; }
    void reject() override {
        if (cancel_ != nullptr && cancel_->isVisible() && cancel_->isEnabled()) cancel_->click();
    }

  private:
    QAbstractButton* cancel_ = nullptr;
};

template <class Base>
struct WindowBase {
    using type = Base;
};
template <>
struct WindowBase<QDialog> {
    using type = CancelDialog;
};

/// A form that is a window of the class `Base`, QMainWindow or QDialog.
template <class Base>
class FormWindow : public WindowBase<Base>::type, public Form {
  public:
    explicit FormWindow(Forms& forms) : Form(forms) {}
    QWidget& window() override { return *this; }

  protected:
    void closeEvent(QCloseEvent* event) override {
        closeByUser();
        event->setAccepted(!stillLoaded());
    }
};

}  // namespace tessaro
