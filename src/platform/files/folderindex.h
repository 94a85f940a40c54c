#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/files/host.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

/// Finds names in host folders without regard to case. Keeps an index per folder, dropped when the
/// folder changes, so that asking a folder of 30,000 files for many missing names stays cheap: a
/// question costs one look at the folder's stamp, where it is asked often mostly without its path.
class FolderIndex {
  public:
    explicit FolderIndex(Host& host) : host_(host) {}

    struct Finding {
        bool folder = false;              ///< whether there is such a folder at all
        std::optional<std::string> name;  ///< nothing if there is no such name in it
    };
    /// The name as it is spelled in the folder: the exact one if it is there, else one that differs
    /// in case only (the first in byte order, if several do). A name found may have been deleted a
    /// moment ago; who opens it finds out. A name not found is not there.
    ///
    /// A folder that may be searched but not listed (no right to, too many open files) knows exact
    /// names only. For all others it raises what listing it raised: a name that it may hold in
    /// another case must not be taken for a free one.
    Finding find(const HostPath& folder, std::string_view name);
    void forget(const HostPath& folder) { folders_.erase(folder.native()); }
    /// A file of ours has come into its folder, if it was not there.
    void add(const HostPath& file);
    /// Whether many questions are to come in a row: then an answer may be 20 ms old, but for what
    /// `forget` and `add` tell of.
    void setManyQuestions(bool many);

  private:
    using Time = std::chrono::steady_clock::time_point;
    // A hash table of its own kind: a miss, the common answer, reads one place in memory.
    class Table {
      public:
        void fill(std::vector<std::string> names);
        void add(std::string name);
        const std::string* find(std::string_view name) const;

      private:
        struct Slot {
            std::uint32_t hash;
            std::uint32_t name;  // counted from 1, 0 in a free slot
        };
        void place(std::size_t index);
        std::vector<std::string> names_;
        std::vector<Slot> slots_;  // a power of two, so that a hash is cut to a slot by a mask
    };
    struct Names {
        FolderStamp stamp;
        std::int64_t stampSeenAt = 0;         // when a listing first met this stamp; nanoseconds
        bool settled = false;                 // a change from here on would show in the stamp
        int questions = 0;                    // since the names were read
        std::optional<RunTimeError> refusal;  // what listing it raised
        Table table;
        std::unique_ptr<HeldFolder> held;  // of one that is asked often
        Time readAt;
        Time lookedAt;
        Time foundAt;  // by its path
    };
    Names* namesNow(const HostPath& folder, bool& justRead);
    bool isFresh(Time look, Time now) const;
    bool unchanged(Names& names) const;
    void read(const HostPath& folder, FolderStamp stamp, Names& names);

    Host& host_;
    std::unordered_map<HostPath::string_type, Names> folders_;
    std::optional<Time> manySince_;
};

}  // namespace tessaro
