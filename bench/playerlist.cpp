#include <dirent.h>
#include <sys/stat.h>

#include <fstream>
#include <memory>
#include <stdexcept>

#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"
#include "players/UserMan.h"

namespace tessaro::bench {
namespace {

constexpr int playerCount = 10'000;
constexpr int rounds = 15;
constexpr double mark = 2.00;

constexpr char copiesFolder[] = "C:\\Tessaro\\users";
constexpr char listFile[] = "C:\\Tessaro\\playerlist.lst";

std::string copyName(int number) {
    return "userini" + std::to_string(number) + ".bak";
}

void fillArchive(const World& world) {
    std::string list;
    for (int i = 0; i < playerCount; ++i) {
        list += "Player" + std::to_string(i) +
                ",BotPack.TMale2,255,SoldierSkins.blkt,SoldierSkins.Othello,"
                "BotPack.VoiceMaleTwo," +
                copyName(i) + "\r\n";
        world.write(std::string(copiesFolder) + '\\' + copyName(i), "");
    }
    world.write(listFile, list);
}

void require(bool right) {
    if (!right) throw std::runtime_error("the archive was not seen whole");
}

double loadList(World& world) {
    FreshProgram fresh(world);
    UserMan userMan(fresh.program);
    ListItems rows = makeUserTable();
    const double took = cpuMilliseconds([&] { userMan.LoadPlayerList(rows, listFile); });
    require(rows.count() == playerCount);
    return took;
}

void statEachLine(const std::string& list, const std::string& folder) {
    std::ifstream lines(list);
    std::string line;
    int present = 0;
    while (std::getline(lines, line)) {
        struct ::stat status = {};
        const std::size_t name = line.rfind(',') + 1;
        const std::string file = line.substr(name, line.size() - name - 1);
        present += ::stat((folder + '/' + file).c_str(), &status) == 0;
    }
    require(present == playerCount);
}

double chooseName(World& world) {
    FreshProgram fresh(world);
    UserMan userMan(fresh.program);
    const double took = cpuMilliseconds([&] { userMan.NextBackupName(); });
    require(userMan.LastBackupPath().ends_with(copyName(playerCount)));
    return took;
}

void listFolder(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    int names = 0;
    while (open && ::readdir(open.get()) != nullptr) ++names;
    require(names == playerCount + 2);
}

}  // namespace

// Processor time: the folder is in memory, and nothing waits.
bool playerList(const Place& place) {
    World world(place);
    fillArchive(world);
    const std::string list = world.at(listFile);
    const std::string folder = world.at(copiesFolder);
    const Comparison loading = takeTurns(
        rounds, [&] { return loadList(world); },
        [&] { return cpuMilliseconds([&] { statEachLine(list, folder); }); });
    const bool loads = report(on(place, "LoadPlayerList, 10,000 players"), loading, "ms", mark);
    const Comparison choosing = takeTurns(
        rounds, [&] { return chooseName(world); },
        [&] { return cpuMilliseconds([&] { listFolder(folder); }); });
    return report(on(place, "NextBackupName, 10,000 numbers taken"), choosing, "ms", mark) && loads;
}

}  // namespace tessaro::bench
