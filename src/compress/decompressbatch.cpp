#include "compress/decompressbatch.h"

#include "core/VORNX.h"
#include "core/routines.h"

namespace tessaro {

std::string packagePathOf(std::string_view uzFile) {
    return std::string(uzFile.substr(0, uzFile.find(".uz")));
}

DecompressBatch::DecompressBatch(Program& program, BatchObserver& observer, Ucc ucc)
    : ListView1(makeBatchList()),
      ListView2(makeBatchList()),
      program_(program),
      observer_(observer),
      ucc_(std::move(ucc)) {}

void DecompressBatch::run() {
    observer_.showProgress(0);
    expdest_ = program_.DecompressDest;
    observer_.setRunning(true);
    FileFound_ = 0;
    ListView2.clear();
    const Int16 last = static_cast<long long>(ListView1.count());
    for (i_ = 1; i_ <= last; ++i_) {
        if (observer_.abandoned()) return;
        pass();
    }
    if (observer_.abandoned()) return;
    observer_.setRunning(false);
    askToClose();
}

// A source that has vanished is passed over, and the bar does not move for it.
void DecompressBatch::pass() {
    UZfiles_ = ListView1.item(static_cast<std::size_t>(i_)).text;
    Decompfile_ = expdest_ + "\\" + GetFileName(program_, packagePathOf(UZfiles_));
    if (FileExists(program_, UZfiles_) != Yes) return;
    if (FileExists(program_, Decompfile_) == Yes) {
        ++FileFound_;
        observer_.showExisting(FileFound_);
        if (overwriteExisting) DoDecompression();
    } else {
        DoDecompression();
    }
    observer_.showProgress(i_);
}

// The tool is taken to write into the system folder, wherever its source lies. A result that
// cannot be moved because the destination has gone stays there, without a word.
void DecompressBatch::DoDecompression() {
    ucc_.run(UccTask::Decompress, UZfiles_);
    const std::string name = GetFileName(program_, Decompfile_);
    FromFile_ = program_.gamePaths.UTSysPath + "\\" + name;
    if (FileExists(program_, FromFile_) != Yes) {
        reportMissingResult(program_, name, expdest_);
        return;
    }
    if (DirExists(program_, expdest_) != Yes) return;
    if (FileExists(program_, FromFile_) == Yes) {
        moveResult(name);
    } else {
        program_.dialogs.message(
            {"File Decompression Error!", "File Copy Error", Buttons::Ok, Icon::Stop});
    }
}

// The system folder is a mere staging place: a package of the game's that the tool has written
// over is gone after the move. The row goes where the file stands in the batch, which the list
// refuses when a file before it left no row.
void DecompressBatch::moveResult(const std::string& name) {
    program_.files.copyFile(FromFile_, Decompfile_);
    program_.files.deleteFiles(FromFile_);
    const std::string target = expdest_ + "\\" + name;
    const auto row = static_cast<std::size_t>(i_);
    ListView2.add(row, target);
    ListView2.setSubItem(row, 1, std::to_string(program_.files.fileLength(target)));
}

void DecompressBatch::askToClose() {
    const std::string text = "Batch Decompression Complete.\n" + std::to_string(FileFound_) +
                             " existing file(s) found.\n"
                             "Do you wish to close UT File Decompressor?";
    if (confirmClosing(program_, text, "Decompression Completed")) observer_.closeTool();
}

}  // namespace tessaro
