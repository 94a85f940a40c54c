#include "cache/wizard.h"

#include "core/gamefiles.h"
#include "core/iniCalls.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

bool cacheFolderIsValid(Program& program, std::string_view folderText,
                        std::string_view chosenFolder) {
    const bool root = chosenFolder.ends_with(":\\");
    const std::string index = std::string(folderText) + (root ? "cache.ini" : "\\cache.ini");
    return FileExists(program, index) == Yes;
}

void loadExtractDest(Program& program, clsINI& phile) {
    phile.inifile(program.settingsFile());
    using namespace extractdestination;
    program.settings.ExtractDest = phile.getKeyValue(key, firstFolder, section);
}

void saveExtractDest(Program& program, clsINI& phile, std::string_view destination) {
    phile.inifile(program.settingsFile());
    phile.setKeyValue(extractdestination::key, destination, extractdestination::section);
}

void rememberCacheFolder(Program& program, const std::string& chosenFolder) {
    if (FileExists(program, cacheIndexIn(chosenFolder)) == Yes)
        program.gamePaths.UTMapPath = chosenFolder;
}

std::string offeredDestination(Program& program) {
    const std::string& lastUsed = program.settings.ExtractDest;
    return DirExists(program, lastUsed) == Yes ? lastUsed : program.gamePaths.UTPath;
}

std::string destinationRoot(const Program& program, bool intoTheGame,
                            const std::string& destinationText) {
    return (intoTheGame ? program.gamePaths.UTPath : destinationText) + "\\";
}

std::string createDestination(Program& program, const std::string& folder) {
    attempt([&] { program.paths.changeFolder(folder); });
    std::string answer =
        program.dialogs.input("Enter New Folder Name", "Create Folder", folder + "\\UTMaps");
    if (answer.empty()) return folder;
    if (DirExists(program, ".\\" + answer) == Yes) {
        program.dialogs.message(
            {"Directory Exists", "Cannot create folder", Buttons::Ok, Icon::Information});
        return folder;
    }
    // The answer is kept as typed, also when no folder could be made of it.
    attempt([&] { program.files.makeFolder(answer); });
    attempt([&] { program.paths.changeFolder(answer); });
    return answer;
}

}  // namespace tessaro
