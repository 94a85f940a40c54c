#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "compress/batch.h"
#include "compress/droplist.h"
#include "compress/vornxshell.h"
#include "support/testprogram.h"

namespace tessaro::test {

inline constexpr char packerFolder[] = R"(C:\UnrealTournament\System)";
inline constexpr char destination[] = R"(C:\Out)";

inline const SystemVersion windows98{4, 10, 2222, 1, "", ""};
inline const SystemVersion anotherSystem{6, 1, 0, 0, "", "Linux"};

/// Puts a game and a destination for batches into a program's world, and plays the game's packer:
/// it does to real files what that does to them. Its compressed files hold the package's name, a
/// line end and the package.
class Packer {
  public:
    explicit Packer(TestProgram& test) : test_(test) {
        test.program.gamePaths.UTSysPath = packerFolder;
        test.program.CompressDest = destination;
        test.program.DecompressDest = destination;
        test.world.makeFolder(packerFolder);
        test.world.makeFolder(destination);
        test.processes.child = [this](const std::string& line) { pack(line); };
    }

    /// Files for which the packer leaves nothing.
    std::vector<std::string> failing;

    /// The file that a command line quotes.
    static std::string fileOf(std::string_view line) {
        const std::size_t start = line.find('"') + 1;
        return std::string(line.substr(start, line.rfind('"') - start));
    }
    static std::string compressed(const std::string& name, const std::string& bytes) {
        return name + "\n" + bytes;
    }
    /// Writes a compressed package whose packed name is that of the file.
    void writeUz(const std::string& file, const std::string& bytes) {
        const std::string name = file.substr(file.rfind('\\') + 1);
        test_.world.write(file, compressed(name.substr(0, name.size() - 3), bytes));
    }
    void fillBatch(ListItems& batch, const std::vector<std::string>& paths) {
        for (const std::string& path : paths) batch.setSubItem(batch.add(path), 1, "1");
    }
    std::vector<std::string> commandLines() const {
        std::vector<std::string> lines;
        for (const auto& run : test_.processes.runs) lines.push_back(run.commandLine);
        return lines;
    }

  private:
    void pack(const std::string& line) {
        const std::string file = fileOf(line);
        if (std::find(failing.begin(), failing.end(), file) != failing.end()) return;
        const std::string name = file.substr(file.rfind('\\') + 1);
        const std::string bytes = test_.world.read(file);
        if (line.find("ucc.exe compress ") != std::string::npos) {
            test_.world.write(file + ".uz", compressed(name, bytes));
        } else {
            const std::size_t end = bytes.find('\n');
            test_.world.write(packerFolder + ("\\" + bytes.substr(0, end)), bytes.substr(end + 1));
        }
    }

    TestProgram& test_;
};

/// The rows of a list, their columns divided by "|".
inline std::vector<std::string> rowsOf(const ListItems& list) {
    std::vector<std::string> rows;
    for (std::size_t i = 1; i <= list.count(); ++i) {
        std::string row = list.item(i).text;
        for (const std::string& subItem : list.item(i).subItems) row += "|" + subItem;
        rows.push_back(row);
    }
    return rows;
}

/// Writes down what a batch shows.
class RecordingBatch : public BatchObserver {
  public:
    std::vector<std::string> seen;
    bool gone = false;

    void setRunning(bool running) override { seen.emplace_back(running ? "running" : "idle"); }
    bool abandoned() override { return gone; }
    void showExisting(int count) override { seen.push_back("existing " + std::to_string(count)); }
    void showProgress(int position) override {
        seen.push_back("progress " + std::to_string(position));
    }
    void closeTool() override { seen.emplace_back("closed"); }
};

}  // namespace tessaro::test
