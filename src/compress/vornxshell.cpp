#include "compress/vornxshell.h"

namespace tessaro {

void RunHiddenInherit(Program& program, const std::string& commandLine) {
    program.processes.run(commandLine, Visibility::Hidden);
}

void RunHidden(Program& program, const std::string& commandLine) {
    program.processes.run(commandLine, Visibility::Hidden);
}

void RunVisible(Program& program, const std::string& commandLine) {
    program.processes.run(commandLine, Visibility::Visible);
}

std::string uccCommandLine(const GamePaths& paths, UccTask task, std::string_view file,
                           bool windows98) {
    std::string line = windows98 ? "command.com /c" : "";
    line += paths.UTSysPath;
    line += task == UccTask::Compress ? "\\ucc.exe compress " : "\\ucc.exe decompress ";
    return line.append("\"").append(file).append("\"");
}

void Ucc::run(UccTask task, const std::string& file) {
    version_.success = GetOSVersion(version_, system_);
    const bool windows98 = isWindows98(version_);
    const std::string line = uccCommandLine(program_.gamePaths, task, file, windows98);
    if (windows98) {
        RunHiddenInherit(program_, line);
    } else {
        RunHidden(program_, line);
    }
    program_.events.pump();
}

}  // namespace tessaro
