#include "app/application.h"

#include "core/MainFrm.h"
#include "kit/forms/handler.h"
#include "kit/look/style.h"
#include "platform/files/programfolder.h"

namespace tessaro {
namespace {

ProgramFile runningProgram(Host& host, const DriveMap& drives) {
    const HostPath file = executablePath();
    const HostPath folder = programFolder(host, file, userDataFolder());
    return {Paths(host, drives).toGame(folder), file.stem().string()};
}

}  // namespace

Application::Application(int& argc, char** argv)
    : application_(argc, argv),
      host_(makeHost()),
      drives_(hostDrives()),
      dialogs_(programEnd_, *host_, drives_),
      events_(programEnd_),
      processes_(makeProcesses(*host_, drives_, [this] { events_.serveWhileBlocked(); })),
      program_(*host_, drives_, {dialogs_, sounds_, *processes_, events_},
               runningProgram(*host_, drives_)),
      forms_(dialogs_, programEnd_),
      tools_(forms_, program_, desktop_) {
    applyProgramStyle(application_);
}

int Application::run() {
    guarded(forms_, [this] { forms_.show<MainFrm>(); });
    return forms_.run();
}

}  // namespace tessaro
