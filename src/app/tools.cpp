#include "app/tools.h"

#include "cache/mapext.h"
#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "core/MainFrm.h"
#include "core/splash.h"
#include "editor/findfrm.h"
#include "editor/inieditor.h"
#include "editor/inieditorpopup.h"
#include "platform/runtime/runtimeerror.h"
#include "players/Users.h"
#include "players/ascii.h"
#include "players/username.h"
#include "prefs/Prefs.h"
#include "screenshots/screenshot.h"
#include "servers/iplist.h"
#include "servers/listeditmenu.h"
#include "shell/Skinz.h"
#include "shell/about.h"
#include "shell/clsSysTray.h"
#include "shell/help.h"
#include "shell/links.h"
#include "shell/menus.h"
#include "shell/webpage.h"

namespace tessaro {

Tools::Tools(Forms& forms, Program& program, Desktop& desktop)
    : forms_(forms), program_(program), desktop_(desktop), userMan_(program) {
    MainParts& parts = *this;
    forms.add<MainFrm>(program, parts);
    forms.add<splash>(program);
    forms.add<Skinz>();
    forms.add<webpage>(program);
    forms.add<about>(program);
    forms.add<Prefs>(program);
    forms.add<mapext>(program, cacheEntry_);
    forms.add<comp>(program);
    forms.add<comp2>(program);
    forms.add<decomp>(program);
    forms.add<decomp2>(program);
    forms.add<iplist>(program);
    forms.add<listeditmenu>();
    forms.add<inieditor>(program, editor_);
    forms.add<inieditorpopup>();
    forms.add<findfrm>(program);
    forms.add<screenshot>(program);
    forms.add<Users>(program, userMan_);
    forms.add<username>(program, userMan_);
    forms.add<ascii>(program);
}

void Tools::buildMenus(QMainWindow& window) {
    const auto exitProgram = [this] { forms_.get<MainFrm>().exitProgram(); };
    const auto showAbout = [this] { forms_.showModal<about>(); };
    const auto link = [this](std::string_view item) {
        return [this, item] { openLink(desktop_, item); };
    };
    const auto page = [this](const HelpPage& help) {
        return [this, &help] { showHelpPage(forms_, program_, help); };
    };
    // From the menu bar, and not from the pop-up menu, a viewer that cannot open is silent.
    const auto viewShots = [this] { attempt([this] { forms_.show<screenshot>(); }); };
    tessaro::buildMenus(forms_, window,
                        {
                            {"mnumapextractor", [this] { forms_.show<mapext>(); }},
                            {"mnurmapext", [this] { forms_.showModal<mapext>(); }},
                            {"mnumapcompress", [this] { showCompressor(forms_); }},
                            {"mnurcompress", [this] { showCompressor(forms_); }},
                            {"mnudecomp", [this] { forms_.show<decomp>(); }},
                            {"mnuipaddr", [this] { forms_.show<iplist>(); }},
                            {"mnuripaddr", [this] { forms_.show<iplist>(); }},
                            {"mnuinieditor", [this] { forms_.show<inieditor>(); }},
                            {"mnuviewscrnshot", viewShots},
                            {"mnurscrnsht", [this] { forms_.show<screenshot>(); }},
                            {"mnuusermanager", [this] { forms_.show<Users>(); }},
                            {"mnuruserman", [this] { forms_.show<Users>(); }},
                            {"mnuascii", [this] { forms_.show<ascii>(); }},
                            {"mnurasciiview", [this] { forms_.show<ascii>(); }},
                            {"mnuprefs", [this] { showPrefs(); }},
                            {"mnurprefs", [this] { showPrefs(); }},
                            {"mnuwwwut", link("mnuwwwut")},
                            {"mnuwwwplanet", link("mnuwwwplanet")},
                            {"mnuutitalia", link("mnuutitalia")},
                            {"mnuunrealfiles", link("mnuunrealfiles")},
                            {"mnuunreality", link("mnuunreality")},
                            {"mnuabout", showAbout},
                            {"mnuraboot", showAbout},
                            {"mnumehelp", [this] { showHelpBox(program_.dialogs); }},
                            {"mnuucc", page(consoleHelp)},
                            {"mnurunserver", page(serverHelp)},
                            {"mnuserveradmin", page(adminHelp)},
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

void Tools::setRunType(int mode) {
    SetRunType(forms_, desktop_, mode);
}

}  // namespace tessaro
