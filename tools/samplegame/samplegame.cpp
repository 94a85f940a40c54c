#include "tools/samplegame/samplegame.h"

#include <array>
#include <string_view>

#include "tools/samplegame/cachefolder.h"
#include "tools/samplegame/names.h"
#include "tools/samplegame/plainfiles.h"
#include "tools/samplegame/tree.h"

namespace tessaro::sample {

namespace {

constexpr auto folders = std::to_array<std::string_view>({
    "Cache",
    "Help",
    "Logs",
    "Manuals",
    "Maps",
    "Music",
    "NetGamesUSA.com",
    "Save",
    "Sounds",
    "System",
    "SystemLocalized/det",
    "SystemLocalized/frt",
    "Textures",
    "Web/plaintext",
});

// The game takes the next free number; the gap is two pictures that the player has deleted.
constexpr auto screenshotNames =
    std::to_array<std::string_view>({"Shot0000.bmp", "Shot0001.bmp", "Shot0004.bmp"});

std::string join(std::string_view folder, std::string_view name, std::string_view extension = {}) {
    return std::string(folder).append("/").append(name).append(extension);
}

std::string withCrLf(std::string_view text) {
    std::string lines;
    for (const char letter : text) {
        if (letter == '\n') lines += '\r';
        lines += letter;
    }
    return lines;
}

void writePackages(Tree& tree, Rng& rng) {
    for (const StockFiles& files : stockPackages()) {
        for (const std::string_view name : files.names) {
            const std::uint32_t size = rng.between(files.leastKb * 1024, files.mostKb * 1024);
            tree.write(join(files.folder, name, files.extension),
                       packageBytes(Guid::random(rng), size, rng));
        }
    }
    for (const std::string_view name : {"Save0.usa", "Save9.usa"}) {
        const std::uint32_t size = rng.between(20'000, 60'000);
        tree.write(join("Save", name), packageBytes(Guid::random(rng), size, rng));
    }
}

void writePrograms(Tree& tree) {
    for (const std::string_view name : programNames())
        tree.write(join("System", name), "This is a stand-in for " + std::string(name) +
                                             ": a text, not a program; it does not run.\r\n");
}

std::string localizedText(std::string_view name, std::string_view language) {
    return "; Invented texts of " + std::string(name) + " (" + std::string(language) +
           ")\r\n[Public]\r\nPreferences=(Caption=\"" + std::string(name) +
           "\",Parent=\"Options\")\r\n\r\n[Errors]\r\nUnknown=Something went wrong\r\n";
}

void writeLocalizedTexts(Tree& tree) {
    for (const std::string_view name : localizedNames()) {
        tree.write(join("System", name, ".int"), localizedText(name, "int"));
        tree.write(join("SystemLocalized/det", name, ".det"), localizedText(name, "det"));
        tree.write(join("SystemLocalized/frt", name, ".frt"), localizedText(name, "frt"));
    }
}

void writeTexts(Tree& tree) {
    for (const PlainFile& file : plainFiles()) tree.write(file.path, withCrLf(file.text));
    tree.write("System/UnrealTournament.ini", unrealTournamentIni());
    tree.write("System/User.ini", userIni());
    tree.write("System/Default.ini", defaultIni());
    tree.write("System/DefUser.ini", defUserIni());
}

void writePictures(Tree& tree, Rng& rng, Layout& layout) {
    for (const std::string_view name : screenshotNames) {
        tree.write(join("System", name), screenshotBmp(640, 480, rng));
        layout.screenshots.emplace_back(name);
    }
    tree.write("Help/Logo.bmp", screenshotBmp(160, 60, rng));
    tree.write("Help/UnrealTournamentLogo.bmp", screenshotBmp(201, 75, rng));
    tree.write("Help/UnrealTournamentSetupLogo.bmp", screenshotBmp(122, 240, rng));
}

}  // namespace

Layout buildSampleGame(const std::filesystem::path& folder, const Options& options) {
    Tree tree(folder);
    for (const std::string_view name : folders) tree.makeFolder(name);
    Rng rng(options.seed);
    Layout layout;
    writePackages(tree, rng);
    writePrograms(tree);
    writeLocalizedTexts(tree);
    writeTexts(tree);
    writePictures(tree, rng, layout);
    fillCache(tree, rng, options, layout);
    layout.totalBytes = tree.totalBytes();
    return layout;
}

}  // namespace tessaro::sample
