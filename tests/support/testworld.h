#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/files.h"
#include "platform/files/filetable.h"
#include "platform/files/paths.h"
#include "platform/profile/profilecalls.h"
#include "platform/runtime/runtimeerror.h"
#include "support/failinghost.h"

namespace tessaro::test {

/// A folder of its own for a test, removed at the end. The process's current folder is put back
/// where it was.
class TemporaryFolder {
  public:
    TemporaryFolder() : TemporaryFolder(std::filesystem::temp_directory_path()) {}
    explicit TemporaryFolder(const HostPath& above);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const HostPath& path() const { return path_; }

  private:
    HostPath start_;
    HostPath path_;
};

/// A Wine prefix in a temporary folder, with the drives C: (its `drive_c`) and Z: (`/`), and the
/// file units on top of it. The current folder is `C:\`. Files are real; the host fails where it
/// is told to.
///
/// The helpers take paths in the game's form, reach the disk past the units under test, and
/// therefore need the exact letter case.
class TestWorld {
    TemporaryFolder folder_;
    std::unique_ptr<Host> real_;

  public:
    TestWorld();

    const HostPath& folder() const { return folder_.path(); }
    HostPath prefix() const { return folder() / "prefix"; }
    HostPath driveC() const { return prefix() / "drive_c"; }
    /// Host path of a path on `C:`.
    HostPath at(std::string_view gamePath) const;

    /// Writes a file and makes the folders above it.
    void write(std::string_view gamePath, std::string_view bytes) {
        writeHost(at(gamePath), bytes);
    }
    static void writeHost(const HostPath& file, std::string_view bytes);
    std::string read(std::string_view gamePath) const { return readHost(at(gamePath)); }
    static std::string readHost(const HostPath& file);
    bool exists(std::string_view gamePath) const;
    void makeFolder(std::string_view gamePath) const;
    /// Names in a folder in byte order, hidden ones too.
    std::vector<std::string> names(std::string_view gamePath) const {
        return namesIn(at(gamePath));
    }
    static std::vector<std::string> namesIn(const HostPath& folder);

    FailingHost host;
    DriveMap drives;
    Paths paths;
    Files files;
    FileTable table;
    ProfileCalls profile;

  private:
    static DriveMap makePrefix(const HostPath& prefix);
};

/// The number of the run-time error that a statement raises, or 0 if it raises none.
template <class Statement>
int errorOf(Statement&& statement) {
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace tessaro::test
