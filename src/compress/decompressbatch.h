#pragma once

#include <string>
#include <string_view>

#include "compress/batch.h"
#include "compress/vornxshell.h"
#include "platform/runtime/int16.h"

namespace tessaro {

/// The package's path for a compressed file: all up to its first ".uz". One in the middle of a name
/// or of a folder cuts too, an upper-case one never does.
std::string packagePathOf(std::string_view uzFile);

/// Decompresses the listed files, one process for each, and moves what appears in the game's system
/// folder to `Program::DecompressDest`. Nothing guards it: every failure is raised.
class DecompressBatch {
  public:
    DecompressBatch(Program& program, BatchObserver& observer, Ucc ucc);

    ListItems ListView1;  ///< the files to decompress
    ListItems ListView2;  ///< the files that were produced
    bool overwriteExisting = false;

    /// One run over the list. Raises 35600 for a file that succeeds after one that was skipped or
    /// failed, since results are listed at their place in the batch.
    void run();

  private:
    void pass();
    void DoDecompression();
    void moveResult(const std::string& name);
    void askToClose();

    Program& program_;
    BatchObserver& observer_;
    Ucc ucc_;

    std::string expdest_;
    std::string UZfiles_;     // the compressed file under work
    std::string Decompfile_;  // where its package belongs
    std::string FromFile_;    // where the tool leaves it
    Int16 FileFound_;
    Int16 i_;
};

}  // namespace tessaro
