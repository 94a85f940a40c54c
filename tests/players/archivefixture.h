#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "players/usermanager.h"
#include "players/watchedhost.h"
#include "support/outsides.h"
#include "support/scripteddialogs.h"
#include "support/testworld.h"

namespace tessaro::test {

/// Asked before another player takes the place of one who is in no archive.
inline const Message offer{"Save Info on Current ?", "Save New User?", Buttons::YesNo,
                           Icon::Question};

/// The User Manager without a window, and what was done to it, in order.
class RecordingUsers : public UsersView {
  public:
    ListItems rows = makeUserTable();
    std::string name = "Current";
    std::vector<std::string> steps;
    std::function<void(const std::string& step)> onStep;

    ListItems& UserTable() override { return rows; }
    std::string currentName() override { return name; }
    void showCurrentName(const std::string& shown) override {
        name = shown;
        step("name " + shown);
    }
    void enableSwap(bool enabled) override { step(enabled ? "enable" : "disable"); }
    void setBusyPointer(bool busy) override { step(busy ? "busy" : "idle"); }
    void editName() override { step("edit"); }
    void closeForm() override { step("close"); }
    void setMainState(int state) override { step("main " + std::to_string(state)); }

  private:
    void step(const std::string& done) {
        steps.push_back(done);
        if (onStep) onStep(done);
    }
};

/// A game in `C:\UT` whose player is "Current", and an archive beside the program with nothing in
/// it but its folder and an empty list.
class ArchiveFixture : public ::testing::Test {
  protected:
    ArchiveFixture() {
        program.gamePaths.UTSysPath = "C:\\UT\\System";
        disk.write(userIni, profileOf("Current"));
        disk.makeFolder(copies);
        disk.write(list, "");
    }

    /// A whole profile, with more in it than the player.
    static std::string profileOf(const std::string& name, const std::string& team = "1") {
        return "; kept\r\n[DefaultPlayer]\r\nName=" + name +
               "\r\nClass=BotPack.TMale2\r\nteam=" + team +
               "\r\nskin=SoldierSkins.blkt\r\nFace=SoldierSkins.Othello\r\n"
               "Voice=BotPack.VoiceMaleTwo\r\n\r\n[Engine.Input]\r\nA=Left\r\nA=Right\r\n";
    }
    /// The line of that player in the list.
    static std::string lineOf(const std::string& name, const std::string& file,
                              const std::string& team = "1") {
        return name + ",BotPack.TMale2," + team +
               ",SoldierSkins.blkt,SoldierSkins.Othello,BotPack.VoiceMaleTwo," + file + "\r\n";
    }
    static std::string copyOf(const std::string& file) { return copies + ("\\" + file); }

    /// Archives players by hand, as userini0.bak and so on, and loads the rows.
    void archive(const std::vector<std::string>& names) {
        std::string lines;
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::string file = "userini" + std::to_string(i) + ".bak";
            disk.write(copyOf(file), profileOf(names[i]));
            lines += lineOf(names[i], file);
        }
        disk.write(list, lines);
        load();
    }
    void load() { userMan.LoadPlayerList(users.rows, list); }
    void answer(Answer given) { dialogs.answer(given); }
    std::vector<Message>& messages() { return dialogs.messages; }

    /// The rows, their fields joined by "|".
    std::vector<std::string> rows() const {
        std::vector<std::string> all;
        for (std::size_t i = 1; i <= users.rows.count(); ++i) {
            std::string row = users.rows.item(i).text;
            for (const std::string& subItem : users.rows.item(i).subItems) row += "|" + subItem;
            all.push_back(row);
        }
        return all;
    }
    /// The players of the rows.
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (std::size_t i = 1; i <= users.rows.count(); ++i)
            all.push_back(users.rows.item(i).text);
        return all;
    }

    static constexpr char userIni[] = "C:\\UT\\System\\user.ini";
    static constexpr char list[] = "C:\\Tessaro\\playerlist.lst";
    static constexpr char copies[] = "C:\\Tessaro\\users";

    TestWorld disk;
    WatchedHost host{disk.host};
    ScriptedDialogs dialogs;
    RecordingSounds sounds;
    RecordingProcesses processes;
    ManualEvents events;

  private:
    /// The folder has to be there before the program is made.
    ProgramFile makeFolder() const {
        disk.makeFolder("C:\\Tessaro");
        return {"C:\\Tessaro", "tessaro"};
    }

  protected:
    Program program{host, disk.drives, {dialogs, sounds, processes, events}, makeFolder()};
    UserMan userMan{program};
    RecordingUsers users;
};

}  // namespace tessaro::test
