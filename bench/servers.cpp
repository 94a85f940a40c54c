#include <glib.h>

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"
#include "servers/serverstore.h"

namespace tessaro::bench {
namespace {

constexpr std::size_t gameIniSize = 1'000'000;
constexpr int many = 10'000;
constexpr int few = 100;
constexpr int rounds = 25;
constexpr int listRounds = 151;  // a millisecond each
constexpr double importMark = 2.00;
constexpr double entryMark = 1.50;
constexpr double listMark = 2.00;

constexpr char gameIni[] = "C:\\UnrealTournament\\System\\UnrealTournament.ini";
constexpr char section[] = "UBrowser.UBrowserFavoritesFact";
constexpr char serverFile[] = "C:\\Tessaro\\servers.ip";

void require(bool right) {
    if (!right) throw std::runtime_error("not the servers that were written");
}

ServerRecord server(int number) {
    const std::string text = std::to_string(number);
    return {"Server " + text + " of a clan with a name",
            "10.0." + std::to_string(number / 256) + "." + std::to_string(number % 256), "7777"};
}

std::string lineOf(int number) {
    const ServerRecord one = server(number);
    return one.ServerName + "\\" + one.IP + "\\" + one.Port;
}

std::string favoriteKey(int number) {
    return "Favorites[" + std::to_string(number) + "]";
}

// Of one size, whatever the number of favourites in it; these are as the game's browser writes
// them: name, address, port, query port, and whether it stays.
std::string gameIniWith(int favorites) {
    std::string text = "[Engine.GameInfo]\r\nbLowGore=False\r\n\r\n[" + std::string(section) +
                       "]\r\nFavoriteCount=" + std::to_string(favorites) + "\r\n";
    for (int i = 0; i < favorites; ++i)
        text += favoriteKey(i) + "=" + lineOf(i) + "\\7778\\True\\\r\n";
    text += "\r\n[Bench.Growth]\r\n";
    for (int i = 0; text.size() < gameIniSize; ++i)
        text += "Growth" + std::to_string(i) + "=what else the game remembers\r\n";
    return text;
}

// A game with so many favourites.
class Game {
  public:
    Game(const Place& place, int favorites) : world_(place), favorites_(favorites) {
        world_.write(gameIni, gameIniWith(favorites));
    }

    // Milliseconds of an import into an empty list by a program that has read nothing yet.
    double import() {
        FreshProgram fresh(world_);
        ListItems list = makeServerList();
        const double took = cpuMilliseconds([&] { ImportFavorites(fresh.program, list); });
        require(list.count() == static_cast<std::size_t>(favorites_));
        require(serverAt(list, list.count()) == server(favorites_ - 1));
        return took;
    }
    double importPerEntry() { return 1000 * import() / favorites_; }

    void readWithGLib() const {
        GKeyFile* file = ::g_key_file_new();
        // Without this flag it takes the number in a key for a language, and passes the key over.
        const bool loaded = ::g_key_file_load_from_file(file, world_.at(gameIni).c_str(),
                                                        G_KEY_FILE_KEEP_TRANSLATIONS, nullptr);
        int found = 0;
        for (int i = 0; loaded && i < favorites_; ++i) {
            gchar* text = ::g_key_file_get_value(file, section, favoriteKey(i).c_str(), nullptr);
            found += text != nullptr;
            ::g_free(text);
        }
        ::g_key_file_free(file);
        require(found == favorites_);
    }

  private:
    World world_;
    int favorites_;
};

void readLines(const HostPath& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    require(lines.size() == many && lines.back() == lineOf(many - 1) + "\r");
}

void writeLines(const HostPath& file, const std::vector<std::string>& lines) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines) stream << line << "\r\n";
    stream.close();
    require(bool(stream));
}

bool compareLoads(const Place& place, World& world) {
    FreshProgram fresh(world);
    const auto load = [&] {
        ListItems list = makeServerList();
        LoadServerList(fresh.program, list);
        require(list.count() == many && serverAt(list, many) == server(many - 1));
    };
    const HostPath file = world.at(serverFile);
    const Comparison compared = takeTurns(
        listRounds, [&] { return cpuMilliseconds(load); },
        [&] { return cpuMilliseconds([&] { readLines(file); }); });
    return report(on(place, "load of 10,000 servers"), compared, "ms", listMark);
}

bool compareSaves(const Place& place, World& world) {
    FreshProgram fresh(world);
    ListItems list = makeServerList();
    LoadServerList(fresh.program, list);
    std::vector<std::string> lines;
    for (int i = 0; i < many; ++i) lines.push_back(lineOf(i));
    const HostPath copy = world.at("C:\\Tessaro\\lines");
    const Comparison compared = takeTurns(
        listRounds, [&] { return cpuMilliseconds([&] { SaveServerList(fresh.program, list); }); },
        [&] { return cpuMilliseconds([&] { writeLines(copy, lines); }); });
    return report(on(place, "save of 10,000 servers"), compared, "ms", listMark);
}

}  // namespace

bool importFavorites(const Place& place) {
    Game large(place, many);
    Game small(place, few);
    const Comparison whole = takeTurns(
        rounds, [&] { return large.import(); },
        [&] { return cpuMilliseconds([&] { large.readWithGLib(); }); });
    const Comparison entry = takeTurns(
        rounds, [&] { return large.importPerEntry(); }, [&] { return small.importPerEntry(); });
    const bool fast =
        report(on(place, "import of 10,000 favourites, 1 MB"), whole, "ms", importMark);
    return report(on(place, "one of 10,000 favourites, one of 100"), entry, "us", entryMark) &&
           fast;
}

// Processor time: how long the disk's flush takes is the disk's affair.
bool serverList(const Place& place) {
    World world(place);
    std::string text;
    for (int i = 0; i < many; ++i) text += lineOf(i) + "\r\n";
    world.write(serverFile, text);
    const bool loads = compareLoads(place, world);
    return compareSaves(place, world) && loads;
}

}  // namespace tessaro::bench
