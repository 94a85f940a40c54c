#pragma once

#include <string>

#include "compress/batch.h"
#include "compress/vornxshell.h"
#include "platform/runtime/int16.h"

namespace tessaro {

/// Compresses the listed files, one process for each, and moves what appears beside a source to
/// `Program::CompressDest`. Files that are there already are counted and never overwritten.
class CompressBatch {
  public:
    CompressBatch(Program& program, BatchObserver& observer, Ucc ucc);

    ListItems ListView1;  ///< the files to compress
    ListItems ListView2;  ///< one row for each file of a run, skipped and failed ones too

    /// One run over the list. Failures of the first file (its result cannot be copied, moved or
    /// measured) are raised; those of the files after it are passed over, and then a result that
    /// could not be copied is deleted all the same.
    void run();

  private:
    template <class Statement>
    void statement(Statement&& step);
    void pass(std::size_t i);
    void compress(const std::string& file, const std::string& target);
    void moveResult(const std::string& produced, const std::string& target);

    Program& program_;
    BatchObserver& observer_;
    Ucc ucc_;
    Int16 ExistingCount_;
    bool ignoresFailures_ = false;
};

}  // namespace tessaro
