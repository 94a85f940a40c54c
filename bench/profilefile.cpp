#include <glib.h>

#include <fstream>
#include <stdexcept>

#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::bench {
namespace {

constexpr std::size_t fileSize = 77'000;
constexpr int rounds = 15;
constexpr int callsInARound = 50;
constexpr double mark = 1.00;

constexpr char fileName[] = "C:\\UnrealTournament\\System\\UnrealTournament.ini";
constexpr char section[] = "Bench.LastSection";
constexpr char key[] = "Wanted";

// The game's own file, grown by one long section, with the key at its end. GLib reads it as it is:
// keys that repeat and the section that stands twice are no errors there.
std::string profileText() {
    std::string text = sample::unrealTournamentIni() + "\r\n[Bench.Growth]\r\n";
    for (int i = 0; text.size() < fileSize; ++i) {
        const std::string number = std::to_string(i);
        text += "Favorites" + number + "=A server\\10.0.0.1\\" + number + "\\True\r\n";
    }
    return text + "\r\n[" + section + "]\r\n" + key + "=0\r\nBehind=1\r\n";
}

// A key file of GLib's, loaded anew for each call, as ours is read anew.
class KeyFile {
  public:
    explicit KeyFile(const char* file) : file_(::g_key_file_new()) {
        if (!::g_key_file_load_from_file(file_, file, G_KEY_FILE_KEEP_COMMENTS, nullptr))
            throw std::runtime_error("GLib cannot read the file");
    }
    KeyFile(const KeyFile&) = delete;
    KeyFile& operator=(const KeyFile&) = delete;
    ~KeyFile() { ::g_key_file_free(file_); }

    std::string value() const {
        gchar* text = ::g_key_file_get_string(file_, section, key, nullptr);
        const std::string value = text != nullptr ? text : "";
        ::g_free(text);
        return value;
    }
    void set(const std::string& value) {
        ::g_key_file_set_string(file_, section, key, value.c_str());
    }
    void save(const char* file) const {
        if (!::g_key_file_save_to_file(file_, file, nullptr))
            throw std::runtime_error("GLib cannot write the file");
    }

  private:
    GKeyFile* file_;
};

void require(bool right) {
    if (!right) throw std::runtime_error("the key has another value");
}

// One file for each side, since each writes it in its own way.
class Sides {
  public:
    explicit Sides(const Place& place)
        : world_(place), fresh_(world_), ini_(fresh_.program.makeINI()) {
        world_.write(fileName, profileText());
        ini_.inifile(fileName);
        reference_ = world_.at("C:\\reference.ini");
        std::filesystem::copy_file(world_.at(fileName), reference_);
    }

    // Somebody looks into the file each time, so that it is read anew.
    void readOurs() {
        std::ifstream(world_.at(fileName)).close();
        require(ini_.getKeyValue(key, {}, section) == "0");
    }
    void readReference() { require(KeyFile(reference_.c_str()).value() == "0"); }
    // Another value in each call: a write that changes nothing might be left out.
    void writeOurs() { ini_.setKeyValue(key, std::to_string(++written_), section); }
    void writeReference() {
        KeyFile file(reference_.c_str());
        file.set(std::to_string(++written_));
        file.save(reference_.c_str());
    }

  private:
    World world_;
    FreshProgram fresh_;
    clsINI ini_;
    HostPath reference_;
    int written_ = 0;
};

// Processor time: how long the disk's flush takes is the disk's affair.
bool compare(const std::string& name, Sides& sides, void (Sides::*ours)(),
             void (Sides::*reference)()) {
    const auto measurement = [&sides](void (Sides::*call)()) {
        return [&sides, call] {
            const auto calls = [&] {
                for (int i = 0; i < callsInARound; ++i) (sides.*call)();
            };
            return cpuMilliseconds(calls) / callsInARound;
        };
    };
    return report(name, takeTurns(rounds, measurement(ours), measurement(reference)), "ms", mark);
}

}  // namespace

bool profileFile(const Place& place) {
    Sides sides(place);
    const bool reads = compare(on(place, "getKeyValue, end of a 77 KB file"), sides,
                               &Sides::readOurs, &Sides::readReference);
    const bool writes = compare(on(place, "setKeyValue, end of a 77 KB file"), sides,
                                &Sides::writeOurs, &Sides::writeReference);
    return reads && writes;
}

}  // namespace tessaro::bench
