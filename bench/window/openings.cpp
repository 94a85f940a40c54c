// tessaro-bench-openings: what each form leaves on the heap each time it is opened and closed.
// Tells a line for each: its name and the bytes.

#include <malloc.h>

#include <QCoreApplication>
#include <cstdio>

#include "app/tools.h"
#include "bench/window/measuring.h"
#include "cache/mapext.h"
#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "core/splash.h"
#include "editor/findfrm.h"
#include "editor/inieditor.h"
#include "players/Users.h"
#include "players/ascii.h"
#include "players/username.h"
#include "prefs/Prefs.h"
#include "screenshots/screenshot.h"
#include "servers/iplist.h"
#include "shell/about.h"
#include "shell/webpage.h"
#include "tools/samplegame/players.h"
#include "tools/samplegame/samplegame.h"

namespace tessaro::bench {
namespace {

constexpr int roundsToWarmUp = 100;
constexpr int rounds = 500;

class NoDesktop : public Desktop {
  public:
    void openAddress(const std::string&) override {}
    void notifyIcon(TrayAction, const NotifyRecord&) override {}
};

template <class T>
void open(Forms& forms) {
    const Forms::Running running(forms);
    forms.show<T>();
    QCoreApplication::processEvents();
    forms.unload(forms.get<T>());
}

template <class T>
void openOften(Forms& forms, int times) {
    for (int i = 0; i < times; ++i) {
        open<T>(forms);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

template <class T>
void measure(const char* name, Forms& forms) {
    openOften<T>(forms, roundsToWarmUp);
    const std::size_t before = ::mallinfo2().uordblks;
    openOften<T>(forms, rounds);
    const auto left = static_cast<double>(::mallinfo2().uordblks) - static_cast<double>(before);
    std::printf("%s %f\n", name, left / rounds);
}

// A form that works on what is selected in another one.
template <class T, class Owner>
void measureOver(const char* name, Forms& forms) {
    forms.show<Owner>();
    measure<T>(name, forms);
    forms.unload(forms.get<Owner>());
}

void measureForms(World& world) {
    sample::buildSampleGame(world.at("C:\\UnrealTournament"));
    sample::writePlayers(world.at("C:\\Tessaro"));
    FreshProgram fresh(world);
    fresh.program.settings = {.Sounds = "0",
                              .AutoSave = "0",
                              .ShowSplash = "0",
                              .TimesUsed = {},
                              .Skin = "0",
                              .ExtractDest = {},
                              .DefUser = {},
                              .ASCIIFont = {},
                              .WindowSize = "0"};
    ProgramEnd end;
    Forms forms(noDialogs(), end);
    NoDesktop desktop;
    const Tools tools(forms, fresh.program, desktop);
    measure<mapext>("mapext", forms);
    measure<comp>("comp", forms);
    measure<comp2>("comp2", forms);
    measure<decomp>("decomp", forms);
    measure<decomp2>("decomp2", forms);
    measure<Prefs>("Prefs", forms);
    measure<Users>("Users", forms);
    measureOver<username, Users>("username", forms);
    measure<ascii>("ascii", forms);
    measure<iplist>("iplist", forms);
    measure<inieditor>("inieditor", forms);
    measureOver<findfrm, inieditor>("findfrm", forms);
    measure<screenshot>("screenshot", forms);
    measure<webpage>("webpage", forms);
    measure<about>("about", forms);
    measure<splash>("splash", forms);
}

}  // namespace
}  // namespace tessaro::bench

int main(int argc, char** argv) {
    return tessaro::bench::measureWindows(argc, argv, tessaro::bench::measureForms);
}
