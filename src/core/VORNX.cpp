#include "core/VORNX.h"

#include "core/gamefiles.h"
#include "core/routines.h"

namespace tessaro {
namespace {

Int16 countLines(FileTable& table, int number) {
    Int16 lines;
    while (!table.endOfFile(number)) {
        table.lineInput(number);
        ++lines;
    }
    return lines;
}

const char* soundFor(int lines) {
    if (lines > 300) return "cd5min";
    if (lines < 100) return "cd1min";
    return "cd3min";
}

}  // namespace

void AnnounceCacheSize(Program& program) {
    program.table.openInput(sharedFileNumber, cacheIndexIn(program.gamePaths.UTCachePath));
    const Int16 lines = countLines(program.table, sharedFileNumber);
    program.table.close(sharedFileNumber);
    if (program.soundsOn()) PlaySoundResource(program, soundFor(lines));
    program.events.pump();
}

std::string FileNamePart(std::string_view path) {
    // Without a backslash npos + 1 is 0, which gives the whole text.
    return std::string(path.substr(path.rfind('\\') + 1));
}

std::string GetFileName(Program& program, std::string_view path) {
    program.LastFileName = FileNamePart(path);
    return program.LastFileName;
}

YesNo AnyListViewItemSelected(const ListItems& ListView1) {
    return yesNo(anyItemSelected(ListView1));
}

std::string BrowseForFolder(Program& program, const FolderPicker& picker) {
    return program.dialogs.pickFolder(picker);
}

}  // namespace tessaro
