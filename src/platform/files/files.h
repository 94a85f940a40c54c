#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/filememory.h"
#include "platform/files/host.h"
#include "platform/files/paths.h"
#include "platform/files/wholefile.h"

namespace tessaro {

/// Attributes of a directory listing. A listing gives files that have no other attribute than the
/// ones asked for (read-only and archive never hide a file), and folders only if asked for.
namespace attributes {
inline constexpr int Normal = 0;
inline constexpr int ReadOnly = 1;
inline constexpr int Hidden = 2;
inline constexpr int System = 4;
inline constexpr int Directory = 16;
inline constexpr int Archive = 32;
}  // namespace attributes

/// The file statements of the run-time library, on game paths. Each raises the numbers that the
/// library raises: 53 file not found, 76 path not found, 75 path/file access error, 61 disk full.
class Files {
  public:
    Files(Host& host, Paths& paths) : host_(host), paths_(paths) {}

    /// Names that match a path whose last part may hold `*` and `?` (`*.*` matches every name), in
    /// the order of their names. A path that ends in `\`, and an empty one (the current folder),
    /// list the folder's content, with "." and ".." first if folders are asked for. A folder that
    /// is not there lists nothing; a drive that is not there raises 68.
    std::vector<std::string> list(std::string_view pattern, int attributes);
    /// The first of `list`, or an empty text.
    std::string firstMatch(std::string_view pattern, int attributes);

    /// Whether a folder is there and lets its names be listed, whatever they are.
    bool canList(std::string_view folder);
    /// Names of the files in a folder, hidden ones too, in no order; none if it is not there. For
    /// many questions about one folder: to ask for each name costs a look at the disk each.
    std::vector<std::string> filesIn(std::string_view folder);
    /// Names of the folders in a folder, but for hidden ones, in the order of their names.
    std::vector<std::string> foldersIn(std::string_view folder);

    /// Bytes in a file; a folder measures 0. Raises 53.
    std::uintmax_t fileLength(std::string_view file);
    /// Copies over what is there. A copy that fails leaves what was there before and no fragment.
    /// Raises 53 without a source, 76 without the target's folder, 75 for a folder on either side
    /// or a read-only target, 70 if both are the same file.
    void copyFile(std::string_view from, std::string_view to);
    /// Deletes the files (never folders) that match. Raises 53 if none does; stops at the first
    /// that cannot be deleted, with 75 for one that is read-only.
    void deleteFiles(std::string_view pattern);
    /// Deletes those of the files (never folders) that match and can be deleted; there may be none.
    void deleteWhatGoes(std::string_view pattern);
    /// Raises 75 if the name is taken, 76 if the folder above is not there.
    void makeFolder(std::string_view folder);

    std::string read(std::string_view file);
    /// What `read` gives. The same object as in the call before if the bytes are the same, so that
    /// what was made of them can be kept with it. Asked for in a row, a file is mostly not read.
    std::shared_ptr<const std::string> content(std::string_view file);
    /// Replaces a file whole (see wholefile.h), or creates it.
    void replace(std::string_view file, std::string_view bytes);
    /// Reads, changes and replaces a file as one step (see wholefile.h). A missing file is created.
    void change(std::string_view file, const FileChange& change);
    /// Opens for appending and closes. Creates an empty file, or changes nothing.
    void touch(std::string_view file);

    Host& host() { return host_; }
    Paths& paths() { return paths_; }

    /// While one lives, what is read stays as it was at one moment of that time: steps that make up
    /// one read ask the system once. Not to be held over a write.
    class OneMoment {
      public:
        explicit OneMoment(Files& files) : memory_(files.memory_) { memory_.holdMoment(true); }
        ~OneMoment() { memory_.holdMoment(false); }
        OneMoment(const OneMoment&) = delete;
        OneMoment& operator=(const OneMoment&) = delete;

      private:
        FileMemory& memory_;
    };

    /// While one lives, an answer about a name may be 20 ms old, but for what we write
    /// ourselves: for a run of questions so long that looking at the folder each time would count.
    class ManyQuestions {
      public:
        explicit ManyQuestions(Files& files) : paths_(files.paths_) {
            paths_.setManyQuestions(true);
        }
        ~ManyQuestions() { paths_.setManyQuestions(false); }
        ManyQuestions(const ManyQuestions&) = delete;
        ManyQuestions& operator=(const ManyQuestions&) = delete;

      private:
        Paths& paths_;
    };

  private:
    bool remembers(std::string_view file);
    HostPath toChange(std::string_view file);
    std::vector<std::string> namesToDelete(std::string_view pattern);
    std::vector<std::optional<HostPath>> toDelete(std::string_view pattern,
                                                  const std::vector<std::string>& names);
    template <class Wanted>
    std::vector<std::string> namesIn(const std::vector<HostPath>& places, const Wanted& wanted);
    std::vector<HostPath> placesOf(std::string_view folder);
    std::vector<std::string> listFolder(std::string_view folder, std::string_view pattern,
                                        int attributes);

    Host& host_;
    Paths& paths_;
    FileMemory memory_{host_};
};

}  // namespace tessaro
