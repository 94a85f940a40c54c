#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QObject>
#include <QWidget>
#include <functional>
#include <stdexcept>
#include <string>

#include "app/tools.h"
#include "kit/forms/forms.h"
#include "support/testprogram.h"

namespace tessaro::test {

/// A program with its forms. Events are served for real; everything else of the outside is
/// scripted.
class FormsTest : public ::testing::Test {
  protected:
    FormsTest() = default;
    /// Frees the event loops that an end of the program stopped for good.
    ~FormsTest() override;

    TestProgram world_;
    Program& program_ = world_.program;
    ProgramEnd end_;
    Forms forms_{world_.dialogs, end_};
    RecordingDesktop desktop_;
    Tools tools_{forms_, program_, desktop_};
};

/// Serves what is pending.
void serveEvents();

/// Asks again and again, from inside whatever event loop runs, whether something has come, and then
/// acts once.
class WhenItComes : public QObject {
  public:
    WhenItComes(std::function<bool()> come, std::function<void()> act);
    bool acted() const { return acted_; }

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    std::function<bool()> come_;
    std::function<void()> act_;
    bool acted_ = false;
};

/// The visible window of that class and object name, or null.
template <class Window>
Window* visibleWindow(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window != nullptr && window->isVisible() && window->objectName() == QLatin1String(name))
            return window;
    }
    return nullptr;
}

/// A control of a form by its name.
template <class Control>
Control& control(Form& form, const char* name) {
    auto* found = form.window().findChild<Control*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

}  // namespace tessaro::test
