#pragma once
// vornxshell: starts the game's own programs and returns when they have ended.

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/modWinVersion.h"
#include "core/program.h"

namespace tessaro {

/// For the game's tools where the line goes through the system's shell. No window appears.
void RunHiddenInherit(Program& program, const std::string& commandLine);
/// For the game's tools. No window appears.
void RunHidden(Program& program, const std::string& commandLine);
/// For the game itself.
void RunVisible(Program& program, const std::string& commandLine);

/// What `ucc.exe` does to a file. `Compress` leaves FILE.uz beside FILE; `Decompress` leaves the
/// package, without its ".uz", in the game's system folder.
enum class UccTask { Compress, Decompress };

/// The line for one file, such as
///
///     C:\UnrealTournament\System\ucc.exe compress "C:\My Maps\DM-Foo.unr"
///
/// and on Windows 98, where no blank may follow "/c",
///
///     command.com /cC:\UnrealTournament\System\ucc.exe compress "C:\My Maps\DM-Foo.unr"
///
/// Only the file is quoted: a system folder with blanks breaks the line.
std::string uccCommandLine(const GamePaths& paths, UccTask task, std::string_view file,
                           bool windows98);

/// The game's packer. Its success shows in the file that was to appear, and in nothing else.
class Ucc {
  public:
    explicit Ucc(Program& program, std::optional<SystemVersion> system = systemVersion())
        : program_(program), system_(std::move(system)) {}

    /// Runs it on one file and serves pending events afterwards.
    void run(UccTask task, const std::string& file);

  private:
    Program& program_;
    std::optional<SystemVersion> system_;
    OSVersionInfo version_;
};

}  // namespace tessaro
