#include "cache/extraction.h"

#include "core/VORNX.h"
#include "core/gamefiles.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

constexpr double secondsPerFile = 0.1;
constexpr std::string_view separator = ",     ";

}  // namespace

Extraction::Extraction(Program& program, ExtractionObserver& observer, CacheEntry& cacheEntry)
    : entry(cacheEntry),
      ListView1({{"filename", "Filename"}, {"filetype", "Filetype"}, {"size", "Size"}}),
      program_(program),
      observer_(observer) {}

void Extraction::run(const std::string& cacheFolder) {
    program_.paths.changeFolder(entry.mypath);
    ListView1.clear();
    AnnounceCacheSize(program_);
    observer_.enableStop(true);
    observer_.setBusyPointer(true);
    prepareFolders();
    entry.EFile = 0;
    entry.linecnt = 1;
    entry.linecnt2 = 1;
    if (announceMissingIndex(cacheIndexIn(cacheFolder))) return;
    if (!extractUntilStopped(cacheFolder)) askToClose();
}

// Relative names: a change of folder does not change the drive, so for a destination on another
// drive these are looked for, and made, on the current one.
void Extraction::prepareFolders() {
    for (const char* folder : {"maps", "system", "textures", "sounds", "music"}) {
        if (DirExists(program_, folder) != Yes) program_.files.makeFolder(folder);
    }
}

// The buttons stay as in a run: only "&Stop" brings "&Extract" back.
bool Extraction::announceMissingIndex(const std::string& index) {
    if (FileExists(program_, index) == Yes) return false;
    observer_.setBusyPointer(false);
    program_.dialogs.message(
        {"The Specified Cache.ini file could not be located\n"
         "in the specified folder, please check\n"
         "the path and try again.",
         "Error Finding Cache Resources", Buttons::Ok, Icon::Stop});
    return true;
}

// Tells whether the user stopped it. A failure anywhere in here (a full disk, a locked target, a
// counter past its width, the index closed by the form's end) leads to the closing question
// without a word of it, also when it comes after the press on "&Stop".
bool Extraction::extractUntilStopped(const std::string& cacheFolder) {
    attempt([&] { program_.table.openInput(sharedFileNumber, cacheIndexIn(cacheFolder)); });
    bool stopped = false;
    const Files::ManyQuestions many(program_.files);
    attempt([&] {
        while (!stopped && !program_.table.endOfFile(sharedFileNumber)) {
            pass(cacheFolder);
            observer_.show(ExtractionBox::Existing, std::to_string(entry.EFile));
            stopped = observer_.stopped();
        }
    });
    return stopped;
}

void Extraction::pass(const std::string& cacheFolder) {
    entry.InputData = program_.table.lineInput(sharedFileNumber);
    if (isSkippedLine(entry.InputData)) return;
    entry.cfile = cachedFileOf(cacheFolder, entry.InputData);
    if (program_.files.firstMatch(entry.cfile, attributes::Normal).empty()) {
        noteFailure();
        return;
    }
    extract();
    entry.InputData.clear();
}

// The game has removed the file: counted, and the walk goes on.
void Extraction::noteFailure() {
    const std::string number = std::to_string(entry.linecnt2);
    std::string& failure = List2.emplace_back();
    failure.reserve(entry.cfile.size() + separator.size() + number.size());
    failure.append(entry.cfile).append(separator).append(number);
    observer_.show(ExtractionBox::Failed, number);
    ++entry.linecnt2;
}

void Extraction::extract() {
    // Only now: a short line without a cached file is a mere failure, with one it ends the run.
    entry.mfile = trueNameOf(entry.InputData);
    entry.msize = std::to_string(program_.files.fileLength(entry.cfile));
    observer_.show(ExtractionBox::CurrentFile, entry.cfile);
    observer_.show(ExtractionBox::MapName, entry.mfile);
    observer_.show(ExtractionBox::FileSize, kilobytesOf(entry.msize) + "kb");
    observer_.show(ExtractionBox::Extracted, std::to_string(ListView1.count()));
    Pause(program_.events, secondsPerFile);
    getext(entry.mfile, entry.ExtLen);
    for (const FileType& type : FileTypeTable) {
        if (!isOfType(entry.mfile, entry.ExtLen, type)) continue;
        copyTo(entry.mypath + std::string(type.folder) + entry.mfile);
        // After the row was added: each row shows the kind of the file copied before it.
        entry.myftype = type.label;
    }
}

// What the index holds came from the servers that the player visited. A name that leads out of the
// destination is none that a file can bear.
void Extraction::copyTo(const std::string& destination) {
    if (!program_.paths.isInside(destination, entry.mypath))
        throw RunTimeError(errors::BadFileNumber, destination);
    if (FileExists(program_, destination) == Yes) {
        ++entry.EFile;
        if (!observer_.overwriteExisting()) return;
    }
    program_.files.copyFile(entry.cfile, destination);
    AddCopiedFileToList();
}

void Extraction::AddCopiedFileToList() {
    const std::size_t row = ListView1.add(entry.mfile);
    ListView1.setSubItem(row, "filetype", entry.myftype);
    ListView1.setSubItem(row, "size", kilobytesOf(entry.msize) + "KB");
    ++entry.linecnt;
}

void Extraction::askToClose() {
    observer_.setBusyPointer(false);
    const Answer answer =
        program_.dialogs.message({"Extraction Complete, Do you wish to close this window?",
                                  "Map Extractions Completed", Buttons::YesNo, Icon::None});
    if (answer == Answer::Yes) {
        observer_.closeRequested();
    } else {
        StopExtraction();
    }
}

void Extraction::StopExtraction() {
    observer_.enableStop(false);
    observer_.setBusyPointer(false);
    closeIndex();
}

// The order never returns to ascending, and the test compares a column counted from 0 with one
// counted from 1.
void Extraction::sortBy(int column) {
    if (ListView1.sortKey() == column && ListView1.sortOrder() == 0) ListView1.setSortOrder(1);
    ListView1.setSortKey(column - 1);
}

void Extraction::closeIndex() {
    attempt([&] { program_.table.close(sharedFileNumber); });
}

}  // namespace tessaro
