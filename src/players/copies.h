#pragma once
// The copies of `user.ini` in the archive's folder. The folder is listed once for all questions: to
// ask for one copy after the other takes long among thousands.

#include <string>
#include <string_view>
#include <unordered_set>

#include "core/program.h"

namespace tessaro {

/// The name of the copy with that number, such as "userini17.bak".
std::string copyName(int number);
/// Whether a text names one file. A pattern, or no name at all, would be answered for others.
bool namesOneFile(std::string_view BackupFile);
/// The lowest number that no copy in the folder bears. Raises 6 past 32767, and what listing the
/// folder raises.
Int16 freeCopyNumber(Program& program, std::string_view folder);

/// Which copies there are at the moment of its making.
class Copies {
  public:
    Copies(Program& program, std::string folder);

    /// What `FileExists` says of the file in the folder.
    bool has(const std::string& BackupFile) const;

  private:
    Program& program_;
    std::string folder_;
    std::unordered_set<std::string> names_;  // in lower case
};

}  // namespace tessaro
