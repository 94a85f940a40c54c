#include "core/routines.h"

#include <string>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

Box centeredOn(const Box& screen, const Box& form) {
    Box placed = form;
    placed.top = screen.height * 0.85 / 2 - form.height / 2;
    placed.left = screen.width / 2 - form.width / 2;
    return placed;
}

namespace {

void pauseBy(Events& events, double seconds, void (Events::*serve)()) {
    const double start = events.secondsSinceMidnight();
    // At midnight the clock falls back to 0, and the wait lasts until it has passed `start` again.
    // `start` + `seconds` may lie beyond what the clock can show.
    double wanted = seconds;
    for (double passed = 0; passed < wanted; passed = events.secondsSinceMidnight() - start) {
        if (passed < 0) wanted = 0;
        (events.*serve)();
    }
}

YesNo anyMatch(Program& program, std::string_view path, int attributes) {
    std::string name;
    attempt([&] { name = program.files.firstMatch(path, attributes); });
    return yesNo(!name.empty());
}

}  // namespace

void Pause(Events& events, double seconds) {
    pauseBy(events, seconds, &Events::pump);
}

void pauseUntil(Events& events, double seconds, const std::function<bool()>& come) {
    // The first pause has its end: who closes the program in it does not cut short what follows.
    Pause(events, seconds);
    while (!come()) pauseBy(events, seconds, &Events::pumpEndless);
}

void waitUntil(Events& events, const std::function<bool()>& come) {
    while (!come()) events.serveWhileBlocked();
}

YesNo DirExists(Program& program, std::string_view path) {
    // An empty path stands for the current folder, which may be a root with nothing in it.
    if (path.empty()) return yesNo(program.files.canList(path));
    return anyMatch(program, path, attributes::Directory);
}

YesNo FileExists(Program& program, std::string_view path) {
    using namespace attributes;
    return anyMatch(program, path, Normal | ReadOnly | Hidden | System | Archive);
}

void PlaySoundResource(Program& program, std::string_view name) {
    program.SoundBuffer = program.sounds.resource(name);
    program.SoundResult = program.sounds.start(name);
}

YesNo ValidatePaths(Program& program, std::string_view base) {
    for (const char* folder : {"\\sounds", "\\maps", "\\textures", "\\system", "\\cache"}) {
        if (DirExists(program, std::string(base) + folder) != Yes) return No;
    }
    return Yes;
}

}  // namespace tessaro
