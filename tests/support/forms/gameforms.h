#pragma once

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "core/MainFrm.h"
#include "kit/forms/handler.h"
#include "support/forms/formsfixture.h"

namespace tessaro::test {

/// Forms on a game in `C:\UnrealTournament`, with settings that open without a splash.
class GameFormsTest : public FormsTest {
  protected:
    GameFormsTest() {
        for (const char* folder : {"Sounds", "Maps", "Textures", "System", "Cache"})
            disk_.makeFolder(std::string("C:\\UnrealTournament\\") + folder);
        disk_.write("C:\\UnrealTournament\\System\\UnrealTournament.ini", "[URL]\r\n");
        disk_.write("C:\\UnrealTournament\\System\\User.ini", "[DefaultPlayer]\r\nName=Me\r\n");
        settings("[Misc]\r\nShowSplash=0\r\n");
    }

    void settings(const std::string& text) { disk_.write("C:\\Tessaro\\vornx.ini", text); }
    std::string savedSettings() { return disk_.read("C:\\Tessaro\\vornx.ini"); }
    MainFrm& start() {
        guarded(forms_, [this] { forms_.show<MainFrm>(); });
        return forms_.get<MainFrm>();
    }
    QAction& menuItem(const char* name) {
        return *forms_.get<MainFrm>().findChild<QAction*>(QLatin1String(name));
    }

    TestWorld& disk_ = world_.world;
    std::vector<std::string>& sounds_ = world_.sounds.names;
};

}  // namespace tessaro::test
