#include "support/outsides.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro::test {
namespace {

constexpr double secondsOfDay = 86400;
constexpr std::array<std::string_view, 11> soundNames{"bigselect", "boom",    "cd1min",   "cd3min",
                                                      "cd5min",    "godlike", "ladvance", "nasty",
                                                      "roger",     "wclose",  "wopen"};

std::string known(std::string_view name) {
    std::string lower = lowerCase(name);
    if (std::find(soundNames.begin(), soundNames.end(), lower) == soundNames.end())
        throw RunTimeError(errors::ResourceNotFound, lower);
    return lower;
}

}  // namespace

std::string RecordingSounds::resource(std::string_view name) {
    return "RIFF of " + known(name);
}

int RecordingSounds::start(std::string_view name) {
    names.push_back(known(name));
    if (onStart) onStart();
    return 1;
}

void ManualEvents::pump() {
    ++pumps;
    if (onPump) onPump();
    now = std::fmod(now + step, secondsOfDay);
}

void ManualEvents::pumpEndless() {
    ++endlessPumps;
    pump();
}

void ManualEvents::serveWhileBlocked() {
    if (!onBlocked) throw std::logic_error("Nobody expected the program to wait");
    onBlocked();
}

void RecordingProcesses::run(const std::string& commandLine, Visibility visibility) {
    runs.push_back({commandLine, visibility});
    if (child) child(commandLine);
}

}  // namespace tessaro::test
