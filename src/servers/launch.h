#pragma once

#include <string>

#include "core/mainwindow.h"
#include "core/program.h"

namespace tessaro {

/// Starts the game on a server and returns when it has ended; the main window is minimised for that
/// time. Tells the user if there is no game. The line is, neither of its parts being quoted,
///
///     C:\UnrealTournament\System\unrealtournament.exe 192.168.0.10?port=7777
void LaunchOnServer(Program& program, MainWindow& mainWindow, const std::string& IP,
                    const std::string& Port);

}  // namespace tessaro
