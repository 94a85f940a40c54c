#include "compress/compressbatch.h"

#include "core/VORNX.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

CompressBatch::CompressBatch(Program& program, BatchObserver& observer, Ucc ucc)
    : ListView1(makeBatchList()),
      ListView2(makeBatchList()),
      program_(program),
      observer_(observer),
      ucc_(std::move(ucc)) {}

void CompressBatch::run() {
    ExistingCount_ = 0;
    ignoresFailures_ = false;
    ListView2.clear();
    observer_.setRunning(true);
    for (std::size_t i = 1; i <= ListView1.count(); ++i) {
        if (observer_.abandoned()) return;
        pass(i);
    }
    if (observer_.abandoned()) return;
    observer_.setRunning(false);
    if (confirmClosing(program_,
                       "File Batch Compression Complete.\nDo you wish to close UT File Compressor?",
                       "Compression Completed"))
        statement([&] { observer_.closeTool(); });
}

// The switch to ignoring failures stands at the end of a file's steps, so that it covers every
// file of a run but the first.
template <class Statement>
void CompressBatch::statement(Statement&& step) {
    if (ignoresFailures_) {
        attempt(step);
    } else {
        step();
    }
}

void CompressBatch::pass(std::size_t i) {
    const std::string file = ListView1.item(i).text;
    const std::string target = program_.CompressDest + "\\" + GetFileName(program_, file) + ".uz";
    if (FileExists(program_, target) == Yes) {
        statement([&] { ++ExistingCount_; });
        observer_.showExisting(ExistingCount_);
    }
    if (FileExists(program_, target) != Yes) compress(file, target);
    ListView2.add(i, target);
    statement(
        [&] { ListView2.setSubItem(i, 1, std::to_string(program_.files.fileLength(target))); });
    ignoresFailures_ = true;
    observer_.showProgress(static_cast<int>(i));
}

void CompressBatch::compress(const std::string& file, const std::string& target) {
    ucc_.run(UccTask::Compress, file);
    const std::string produced = file + ".uz";
    if (FileExists(program_, produced) != Yes) {
        reportMissingResult(program_, file, program_.CompressDest);
        return;
    }
    // A destination that has vanished is not spoken of: the result stays beside its source. The
    // two are told apart as texts, so the same folder in another spelling counts as another one.
    if (DirExists(program_, program_.CompressDest) == Yes && produced != target)
        moveResult(produced, target);
}

// Two statements: while failures are ignored, a copy that failed does not keep the file from being
// deleted, and the result is lost.
void CompressBatch::moveResult(const std::string& produced, const std::string& target) {
    statement([&] { program_.files.copyFile(produced, target); });
    statement([&] { program_.files.deleteFiles(produced); });
}

}  // namespace tessaro
