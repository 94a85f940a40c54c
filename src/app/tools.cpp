#include "app/tools.h"

#include "cache/mapext.h"
#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "core/MainFrm.h"
#include "core/splash.h"
#include "players/Users.h"
#include "players/ascii.h"
#include "players/username.h"
#include "prefs/Prefs.h"
#include "shell/Skinz.h"
#include "shell/menus.h"

namespace tessaro {

Tools::Tools(Forms& forms, Program& program) : forms_(forms), userMan_(program) {
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
    forms.add<Users>(program, userMan_);
    forms.add<username>(program, userMan_);
    forms.add<ascii>(program);
}

void Tools::buildMenus(QMainWindow& window) {
    const auto exitProgram = [this] { forms_.get<MainFrm>().exitProgram(); };
    tessaro::buildMenus(forms_, window,
                        {
                            {"mnumapextractor", [this] { forms_.show<mapext>(); }},
                            {"mnurmapext", [this] { forms_.showModal<mapext>(); }},
                            {"mnumapcompress", [this] { forms_.show<comp>(); }},
                            {"mnurcompress", [this] { forms_.show<comp>(); }},
                            {"mnudecomp", [this] { forms_.show<decomp>(); }},
                            {"mnuusermanager", [this] { forms_.show<Users>(); }},
                            {"mnuruserman", [this] { forms_.show<Users>(); }},
                            {"mnuascii", [this] { forms_.show<ascii>(); }},
                            {"mnurasciiview", [this] { forms_.show<ascii>(); }},
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
