#include "app/tools.h"

#include "cache/mapext.h"
#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "core/MainFrm.h"
#include "core/splash.h"
#include "platform/runtime/runtimeerror.h"
#include "prefs/Prefs.h"
#include "screenshots/screenshot.h"
#include "shell/Skinz.h"
#include "shell/menus.h"

namespace tessaro {

Tools::Tools(Forms& forms, Program& program) : forms_(forms) {
    MainParts& parts = *this;
    forms.add<MainFrm>(program, parts);
    forms.add<splash>(program);
    forms.add<Skinz>();
    forms.add<Prefs>(program);
    forms.add<mapext>(program);
    forms.add<comp>(program);
    forms.add<comp2>(program);
    forms.add<decomp>(program);
    forms.add<decomp2>(program);
    forms.add<screenshot>(program);
}

void Tools::buildMenus(QMainWindow& window) {
    const auto exitProgram = [this] { forms_.get<MainFrm>().exitProgram(); };
    // From the menu bar, and not from the pop-up menu, a viewer that cannot open is silent.
    const auto viewShots = [this] { attempt([this] { forms_.show<screenshot>(); }); };
    tessaro::buildMenus(forms_, window,
                        {
                            {"mnumapextractor", [this] { forms_.show<mapext>(); }},
                            {"mnurmapext", [this] { forms_.showModal<mapext>(); }},
                            {"mnumapcompress", [this] { forms_.show<comp>(); }},
                            {"mnurcompress", [this] { forms_.show<comp>(); }},
                            {"mnudecomp", [this] { forms_.show<decomp>(); }},
                            {"mnuviewscrnshot", viewShots},
                            {"mnurscrnsht", [this] { forms_.show<screenshot>(); }},
                            {"mnuprefs", [this] { showPrefs(); }},
                            {"mnurprefs", [this] { showPrefs(); }},
                            {"mnuexit", exitProgram},
                            {"mnurexit", exitProgram},
                        });
}

std::string Tools::loadFolderToCheck() {
    return forms_.get<Prefs>().folder();
}

void Tools::showPrefs() {
    forms_.showModal<Prefs>();
}

}  // namespace tessaro
