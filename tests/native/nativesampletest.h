#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files/nativegame.h"
#include "support/programfolder.h"
#include "support/testprogram.h"
#include "tools/samplegame/nativesample.h"
#include "tools/ucc/programs.h"

namespace tessaro::test {

/// One native sample with its programs, to make copies of.
inline const sample::NativeSample& sharedNativeSample() {
    static const TemporaryFolder folder;
    static const sample::NativeSample built = [] {
        auto made = sample::buildNativeSample(folder.path());
        ucc::installNativePrograms(made.game, executablePath().parent_path());
        return made;
    }();
    return built;
}

/// A program on the sample game as it lies on Linux, with a home of its own and real child
/// processes. Sounds are off.
class NativeSampleTest : public ::testing::Test {
  protected:
    NativeSampleTest() {
        std::filesystem::copy(sharedNativeSample().game.parent_path(), folder(),
                              std::filesystem::copy_options::recursive);
        auto& settings = program.settings;
        settings.Sounds = settings.AutoSave = settings.ShowSplash = settings.WindowSize = "0";
        const std::string root = program.paths.toGame(folder() / "game");
        program.gamePaths = {root, root + "\\cache", root + "\\maps", root + "\\system"};
        world.processes.child = [this](const std::string& line) {
            processes_->run(line, Visibility::Hidden);
        };
    }

    HostPath folder() const { return world.world.folder() / "native"; }
    HostPath game() const { return folder() / "game"; }
    HostPath programs() const { return game() / nativeNames().folder; }
    HostPath written() const { return folder() / "home" / ".utpg"; }
    const sample::Layout& layout() const { return sharedNativeSample().layout; }
    /// The game's path of something in the game, such as `System\user.ini`.
    std::string path(const std::string& tail) const {
        return program.gamePaths.UTPath + "\\" + tail;
    }
    static std::string read(const HostPath& file) { return TestWorld::readHost(file); }
    static void write(const HostPath& file, std::string_view bytes) {
        TestWorld::writeHost(file, bytes);
    }

    TestProgram world;
    Program& program = world.program;

  private:
    Environment home_{"HOME", (folder() / "home").string()};
    std::unique_ptr<Processes> processes_ =
        makeProcesses(world.world.host, world.world.drives, [] {});
};

}  // namespace tessaro::test
