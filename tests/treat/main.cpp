// tessaro-treat FOLDER: does to a sample game what a player does with the program, through the
// same rules but without windows. The settings in FOLDER name the game. scripts/same-bytes does
// so on two systems, and compares what that leaves.

#include <cstdio>
#include <exception>

#include "cache/extraction.h"
#include "core/iniCalls.h"
#include "platform/files/hostpath.h"
#include "platform/outside/arguments.h"
#include "players/archivefixture.h"
#include "prefs/recordingview.h"
#include "servers/serverstore.h"

namespace {

using namespace tessaro;

class Watcher : public ExtractionObserver {
  public:
    void show(ExtractionBox /*box*/, const std::string& /*text*/) override {}
    void enableStop(bool running) override { running_ = running; }
    void setBusyPointer(bool /*busy*/) override {}
    bool stopped() override { return !running_; }
    bool overwriteExisting() override { return true; }
    void closeRequested() override {}

  private:
    bool running_ = false;
};

// Says yes to everything.
class Willing : public Dialogs {
  public:
    Answer message(const Message& message) override {
        return message.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
    std::string input(const std::string& /*prompt*/, const std::string& /*title*/,
                      const std::string& preset) override {
        return preset;
    }
    std::string pickFolder(const FolderPicker& /*picker*/) override { return {}; }
    std::string pickFileToOpen(const FilePicker& /*picker*/) override { return {}; }
    std::string pickFileToSave(const FilePicker& /*picker*/) override { return {}; }
};

class Treatment {
  public:
    explicit Treatment(const HostPath& folder)
        : program_(*host_, drives_, {dialogs_, sounds_, processes_, events_},
                   {Paths(*host_, drives_).toGame(folder), "tessaro"}) {}

    void run() {
        LoadSettings(program_);
        extract();
        changePreferences();
        keepPlayers();
        importServers();
        SaveSettings(program_);
    }

  private:
    void extract() {
        Watcher watcher;
        CacheEntry entry;
        entry.mypath = program_.gamePaths.UTPath + "\\";
        Extraction extraction(program_, watcher, entry);
        extraction.run(program_.gamePaths.UTCachePath);
        extraction.closeIndex();
        std::printf("%zu files extracted\n", extraction.ListView1.count());
    }

    void changePreferences() {
        test::RecordingView view;
        PrefsRules prefs(program_, view);
        prefs.open();
        view.controls.sounds = 0;
        view.controls.firstSkin = false;
        view.controls.thirdSkin = true;
        view.gameTweaks = {"DM-Höhle.unr", StartMap::Custom, "12", 1};
        prefs.changed();
        prefs.ok();
    }

    void keepPlayers() {
        test::RecordingUsers view;
        UserMan userMan(program_);
        UserManager users(program_, userMan, view);
        users.open();
        users.saveCurrent();
        view.rows.pick(1);
        users.setAsCurrent();
        users.save();
        std::printf("%zu players kept\n", view.rows.count());
    }

    void importServers() {
        ListItems servers = makeServerList();
        LoadServerList(program_, servers);
        ImportFavorites(program_, servers);
        addServer(servers, {"Höhle € \xD0\xB6", "10.0.0.1", "7777"});
        SaveServerList(program_, servers);
        std::printf("%zu servers kept\n", servers.count());
    }

    std::unique_ptr<Host> host_ = makeHost();
    DriveMap drives_ = hostDrives();
    Willing dialogs_;
    test::RecordingSounds sounds_;
    test::RecordingProcesses processes_;
    test::ManualEvents events_;
    Program program_;
};

}  // namespace

int main(int argc, char** argv) {
    const auto arguments = programArguments(argc, argv);
    if (arguments.size() != 2) {
        std::fputs("Usage: tessaro-treat PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    try {
        Treatment(hostPath(arguments[1])).run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The treatment ended early: %s\n", error.what());
        return 1;
    }
}
