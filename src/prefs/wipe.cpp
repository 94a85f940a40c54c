#include "prefs/wipe.h"

#include <string>

#include "core/gamefiles.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

bool confirms(Program& program, const char* text, const char* title) {
    return program.dialogs.message({text, title, Buttons::YesNo, Icon::Question}) == Answer::Yes;
}

// A link that is still there could not be deleted, or leads nowhere and was not listed. Writing
// would follow it out of the folder.
void dropLink(Program& program, const std::string& file) {
    Host& host = program.files.host();
    const HostPath path = program.paths.toWrite(file);
    if (host.target(path) != path) host.removeFile(path);
}

// The game finds an index without entries. Each statement stands alone: where the number is in use
// the line goes into whatever is open under it, and that file is closed.
void writeEmptyIndex(Program& program) {
    const std::string index = cacheIndexIn(program.gamePaths.UTCachePath);
    attempt([&] {
        dropLink(program, index);
        program.table.openOutput(sharedFileNumber, index);
    });
    attempt([&] { program.table.printLine(sharedFileNumber, "[Cache]"); });
    attempt([&] { program.table.close(sharedFileNumber); });
}

void clearCache(Program& program) {
    // The variable that is tested is never filled. An empty path lists the current folder, so the
    // test holds as a rule, and the wipe runs even with a wrong cache path.
    const std::string cacheFolder;
    if (DirExists(program, cacheFolder) != Yes) {
        program.dialogs.message(
            {"UT Cache Folder is invalid or missing, check the path and try again",
             "Error Clearing Cache", Buttons::Ok, Icon::Stop});
        return;
    }
    // As a wildcard always did, this leaves hidden and system files and folders alone; of a link
    // only the link goes.
    attempt([&] { program.files.deleteWhatGoes(program.gamePaths.UTCachePath + "\\*.*"); });
    writeEmptyIndex(program);
}

void clearTempFiles(Program& program) {
    if (DirExists(program, program.gamePaths.UTPath) != Yes) {
        program.dialogs.message(
            {"One or more paths were fount to be invalid, Please Check your installation of UT",
             "Error with paths", Buttons::Ok, Icon::Stop});
        return;
    }
    // In the game's own folder, not in its cache folder.
    attempt([&] { program.files.deleteWhatGoes(program.gamePaths.UTPath + "\\cache*.tmp"); });
}

}  // namespace

void ClearCacheAndTempFiles(Program& program) {
    if (confirms(program, "Do you wish to reset your cache and clear its contents?",
                 "Clear All Cache Files?"))
        clearCache(program);
    if (confirms(program, "Do you wish to clear all UT Temp files?", "Remove Temp files?"))
        clearTempFiles(program);
}

}  // namespace tessaro
