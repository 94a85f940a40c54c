#pragma once

#include <string>
#include <string_view>

#include "platform/files/nativegame.h"
#include "support/programfolder.h"
#include "support/testworld.h"

namespace tessaro::test {

/// A game that was built for this system, outside of the Wine prefix of a world, and a home folder
/// for its player, which `HOME` names as long as this lives. The game was never started.
class NativeGameFolder {
  public:
    explicit NativeGameFolder(TestWorld& world)
        : world_(world), variable_("HOME", (world.folder() / "home").string()) {
        for (const char* folder : {"Cache", "Maps", "Music", "Sounds", "System", "Textures"})
            std::filesystem::create_directories(root() / folder);
        std::filesystem::create_directories(home());
        for (const char* name : {"ucc-bin", "ut-bin"}) write(programs() / (name + suffix()), name);
    }

    HostPath home() const { return world_.folder() / "home"; }
    /// What the game writes lies here, once it has been started.
    HostPath written() const { return home() / ".utpg"; }
    HostPath root() const { return world_.folder() / "ut"; }
    HostPath programs() const { return root() / nativeNames().folder; }
    static std::string suffix() { return nativeNames().suffix; }

    /// The game's path of something in its folder, such as `System\user.ini`.
    std::string path(std::string_view tail = {}) const {
        const std::string folder = world_.paths.toGame(root());
        return tail.empty() ? folder : folder + "\\" + std::string(tail);
    }

    static void write(const HostPath& file, std::string_view bytes) {
        TestWorld::writeHost(file, bytes);
    }
    static std::string read(const HostPath& file) { return TestWorld::readHost(file); }

  private:
    TestWorld& world_;
    Environment variable_;
};

}  // namespace tessaro::test
