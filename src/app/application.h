#pragma once

#include <QApplication>
#include <memory>

#include "app/tools.h"
#include "kit/forms/forms.h"
#include "kit/outside/qtdesktop.h"
#include "kit/outside/qtdialogs.h"
#include "kit/outside/qtevents.h"
#include "kit/outside/qtsounds.h"

namespace tessaro {

/// The running program: everything that it is made of, made once.
class Application {
  public:
    Application(int& argc, char** argv);

    Forms& forms() { return forms_; }
    Program& program() { return program_; }
    /// Starts the main window and serves events until no form is left. Gives the exit code.
    int run();

  private:
    QApplication application_;
    std::unique_ptr<Host> host_;
    DriveMap drives_;
    ProgramEnd programEnd_;
    QtDialogs dialogs_;
    QtSounds sounds_;
    QtEvents events_;
    QtDesktop desktop_;
    std::unique_ptr<Processes> processes_;
    Program program_;
    Forms forms_;
    Tools tools_;
};

}  // namespace tessaro
