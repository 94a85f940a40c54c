#include "core/program.h"

#include <utility>

#include "platform/text/numbers.h"

namespace tessaro {

Program::Program(Host& host, DriveMap drives, Outside outside, ProgramFile programFile)
    : dialogs(outside.dialogs),
      sounds(outside.sounds),
      processes(outside.processes),
      events(outside.events),
      file(std::move(programFile)),
      paths(host, std::move(drives)),
      files(host, paths),
      table(files),
      profile(files),
      ini(makeINI()) {}

bool Program::soundsOn() const {
    return equalsNumber(settings.Sounds, 1);
}

}  // namespace tessaro
