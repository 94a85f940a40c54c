#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/host.h"

namespace tessaro::test {

enum class Call {
    Status,
    List,
    Lock,
    Settle,
    Read,
    Create,
    Overwrite,
    Touch,
    Copy,
    Close,
    Rename,
    Flush,
    RemoveFile,
    MakeFolder,
    ChangeFolder
};

/// Passes everything on to a real host, but fails where it is told to, for root too.
class FailingHost : public Host {
  public:
    explicit FailingHost(Host& real) : real_(real) {}

    /// From now on this call raises `number` for paths that contain `part`.
    void refuse(Call call, int number, std::string part = {});
    /// So many bytes can still be written; what goes beyond raises 61. Bytes that are written over
    /// those of an old file cost nothing.
    void setDiskSpace(std::size_t bytes) { space_ = bytes; }
    /// Files and folders whose path contains `part` cannot be written.
    void protect(std::string part) { protected_ = std::move(part); }
    /// Files and folders whose name contains `part` are hidden, as some systems have it.
    void hide(std::string part) { hidden_ = std::move(part); }
    /// A new file has its name from the beginning, as where the system knows no other way.
    void nameEarly() { early_ = true; }
    /// A folder is gone with all that is in it.
    void vanish(const HostPath& folder) { vanished_ = folder.native(); }
    /// Nothing fails any more.
    void relent();
    /// How often a call was made.
    int count(Call call) const;
    /// All calls that were made, in their order.
    const std::vector<Call>& calls() const { return calls_; }

    std::optional<HostStatus> status(const HostPath& path) override;
    std::vector<std::string> list(const HostPath& folder) override;
    std::unique_ptr<FolderLock> lock(const HostPath& folder,
                                     std::chrono::milliseconds patience) override;
    bool writable(const HostPath& path) override;
    bool takesFiles(const HostPath& folder) override;
    bool settles(const HostPath& file, std::chrono::milliseconds patience) override;
    std::string read(const HostPath& file) override;
    WatchedBytes readWatched(const HostPath& file) override;
    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override;
    std::unique_ptr<HostWriter> createCopy(const HostPath& file, const HostPath& from) override;
    std::unique_ptr<HostWriter> overwrite(const HostPath& file) override;
    void touch(const HostPath& file) override;
    void rename(const HostPath& from, const HostPath& to) override;
    void flushFolder(const HostPath& folder) override;
    void removeFile(const HostPath& file) override;
    void makeFolder(const HostPath& folder) override;
    void makePrivateFolder(const HostPath& folder) override;
    HostPath keepingFolder() override;
    HostPath target(const HostPath& path) override;
    HostPath currentFolder() override;
    void changeFolder(const HostPath& folder) override;

  private:
    class Writer;
    struct Refusal {
        int number;
        std::string part;
    };
    void pass(Call call, const HostPath& path);

    Host& real_;
    std::map<Call, Refusal> refusals_;
    std::vector<Call> calls_;
    std::optional<std::size_t> space_;
    std::optional<std::string> protected_;
    std::optional<std::string> hidden_;
    std::optional<HostPath::string_type> vanished_;
    bool early_ = false;
};

}  // namespace tessaro::test
