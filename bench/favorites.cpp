#include <glib.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"

namespace tessaro::bench {
namespace {

constexpr std::size_t fileSize = 1'000'000;
constexpr int many = 10'000;
constexpr int few = 100;
constexpr int rounds = 15;
constexpr double wholeMark = 2.00;
constexpr double entryMark = 1.50;

constexpr char fileName[] = "C:\\UnrealTournament\\System\\UnrealTournament.ini";
constexpr char section[] = "UBrowser.UBrowserFavoritesFact";

std::string favoriteKey(int number) {
    return "Favorites[" + std::to_string(number) + "]";
}

// As the game's browser writes them: name, address, port, query port, and whether it stays.
std::string favorite(int number) {
    const std::string text = std::to_string(number);
    return "Server " + text + "\\10.0.0." + text + "\\7777\\7778\\True\\";
}

std::string gameIni(int favorites) {
    std::string text = "[Engine.GameInfo]\r\nbLowGore=False\r\n\r\n[" + std::string(section) +
                       "]\r\nFavoriteCount=" + std::to_string(favorites) + "\r\n";
    for (int i = 0; i < favorites; ++i) text += favoriteKey(i) + "=" + favorite(i) + "\r\n";
    text += "\r\n[Bench.Growth]\r\n";
    for (int i = 0; text.size() < fileSize; ++i)
        text += "Growth" + std::to_string(i) + "=what else the game remembers\r\n";
    return text;
}

void require(bool right) {
    if (!right) throw std::runtime_error("a favourite is not what was written");
}

// A game's file with so many favourites, read in both ways.
class Import {
  public:
    explicit Import(int favorites) : favorites_(favorites) {
        world_.write(fileName, gameIni(favorites));
    }

    // A program that knows nothing of the file yet.
    double ours() {
        FreshProgram fresh(world_);
        clsINI ini = fresh.program.makeINI();
        ini.inifile(fileName);
        return cpuMilliseconds([&] { read(ini); });
    }
    double oursForOne() { return 1000 * ours() / favorites_; }
    double reference() {
        return cpuMilliseconds([this] { readReference(); });
    }

  private:
    void read(clsINI& ini) const {
        require(ini.getKeyValue("FavoriteCount", "0", section) == std::to_string(favorites_));
        for (int i = 0; i < favorites_; ++i)
            require(ini.getKeyValue(favoriteKey(i), "0", section).starts_with("Server "));
    }

    void readReference() {
        GKeyFile* file = ::g_key_file_new();
        // Without the flag it would take the number for a language and pass the key over.
        const bool loaded = ::g_key_file_load_from_file(file, world_.at(fileName).c_str(),
                                                        G_KEY_FILE_KEEP_TRANSLATIONS, nullptr);
        for (int i = 0; loaded && i < favorites_; ++i) {
            gchar* text = ::g_key_file_get_value(file, section, favoriteKey(i).c_str(), nullptr);
            require(text != nullptr && std::string_view(text).starts_with("Server "));
            ::g_free(text);
        }
        ::g_key_file_free(file);
        require(loaded);
    }

    World world_;  // on a disk, as a player's game is
    int favorites_;
};

}  // namespace

bool importFavorites() {
    Import large(many);
    Import small(few);
    const auto whole = takeTurns(
        rounds, [&] { return large.ours(); }, [&] { return large.reference(); });
    const auto entry = takeTurns(
        rounds, [&] { return large.oursForOne(); }, [&] { return small.oursForOne(); });
    const bool fast = report("import of 10,000 favourites, 1 MB", whole, "ms", wholeMark);
    return report("one of 10,000 favourites, one of 100", entry, "us", entryMark) && fast;
}

}  // namespace tessaro::bench
