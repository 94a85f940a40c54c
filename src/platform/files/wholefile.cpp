// How a file is replaced.
//
// The new bytes go into a new file in the same folder, made like the old one and pushed to the
// disk. Where the system can do that it has no name until then, and where there is no old file it
// gets the right one at once. Else a rename puts it into the place of the old file: at no moment is
// there half of one, for a reader, after a kill or a power cut.
//
// But a rename puts another file into the place. A second name of the old one would be left with
// the old bytes; and where the new one could not be made like the old one, where files cannot come
// into being beside it or the system holds on to the old one (a folder that only others may write,
// a file mounted by itself), it cannot be done. There the new bytes are written over the old ones,
// after a copy of the old file was made elsewhere. A failure puts the copy back; after a kill it
// still lies there.
//
// A change of what a file holds stands between the reading and the rename, and others write too:
//
//     ours     takes the folder's lock, reads, changes, writes beside, looks again, renames
//     another  opens the file, empties it, writes a part, writes the rest, closes it
//
// Programs of ours wait for the lock, so theirs is the whole row. What another one does between our
// reading and our last look shows there, and we begin again. What it is doing while we read, a file
// emptied or half written, would look the same at both ends of our row if it takes its time; but
// then it has the file open for writing, and the system tells that.

#include "platform/files/wholefile.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr int mostTries = 100;
// How long to wait for another program of ours. Past that it hangs, and the last look has to do.
constexpr std::chrono::milliseconds turnPatience{2000};
// How long to wait for another program that has the file open.
constexpr std::chrono::milliseconds writerPatience{500};
constexpr std::chrono::milliseconds noPatience{0};

using Fill = std::function<void(HostWriter&)>;
using Question = std::function<bool()>;

// A file, and what is to take its place.
struct Replacement {
    Host& host;
    HostPath target;
    std::optional<HostStatus> old;  // nothing if there is no file yet
    bool alone;                     // the folder is locked
    HostPath copied;                // where there is no file yet, it is made as a copy of this one
    Fill fill;                      // writes the new contents
    Question current;  // asked last of all: whether the new contents still stand for the old ones

    std::unique_ptr<HostWriter> create(const HostPath& beside) const {
        return old || copied.empty() ? host.create(beside, target)
                                     : host.createCopy(beside, copied);
    }
    // Whether the system forbids a step, rather than fails at it, and there is another way.
    template <class Step>
    bool forbids(const Step& step) const {
        try {
            step();
            return false;
        } catch (const RunTimeError& error) {
            const bool forbidden = error.number() == errors::PermissionDenied ||
                                   error.number() == errors::PathFileAccess;
            if (!old || !forbidden) throw;
            return true;
        }
    }
};

enum class Outcome { Done, Outdated, Forbidden };

bool always() {
    return true;
}

// Counted on from where chance has set in: to ask chance takes long.
std::string freshDigits() {
    static std::uint64_t last =
        (std::uint64_t{std::random_device()()} << 32U) | std::random_device()();
    char digits[16];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), ++last, 16);
    return {digits, written.ptr};
}

// A name that no listing of the program shows. Only chance keeps two programs apart, but under the
// folder's lock the name is ours alone, and what a killed one left there goes with the next write.
// In the cache folder the game clears away *.tmp by itself.
std::string temporaryName(bool alone) {
    return alone ? ".tessaro.tmp" : ".tessaro-" + freshDigits() + ".tmp";
}

void requireFolder(Host& host, const HostPath& folder) {
    const auto status = host.status(folder);
    if (!status || !status->folder) throw RunTimeError(errors::PathNotFound, folder.string());
}

// Raises what speaks against replacing a file, of which this is known.
void requireReplaceable(Host& host, const HostPath& target, const std::optional<HostStatus>& old) {
    if (!old) {
        requireFolder(host, target.parent_path());
    } else if (!host.writable(target)) {
        throw RunTimeError(errors::PathFileAccess, target.string());
    }
}

// What is known of a file, once it is clear that it may be replaced.
std::optional<HostStatus> replaceable(Host& host, const HostPath& target) {
    auto old = host.status(target);
    requireReplaceable(host, target, old);
    return old;
}

HostStatus requireFile(Host& host, const HostPath& file) {
    const auto status = host.status(file);
    if (!status) throw RunTimeError(errors::FileNotFound, file.string());
    if (status->folder) throw RunTimeError(errors::PathFileAccess, file.string());
    return *status;
}

// Raises what speaks against putting a copy into the place of a file.
void requireCopyable(Host& host, const HostPath& from, const HostPath& to, const HostStatus& old) {
    const HostStatus given = requireFile(host, from);
    const bool same =
        given.stamp.device == old.stamp.device && given.stamp.inode == old.stamp.inode;
    if (same) throw RunTimeError(errors::PermissionDenied, to.string());
    requireReplaceable(host, to, old);
}

// A file of ours that goes again, unless it takes a lasting place or is left where it is.
class PassingFile {
  public:
    PassingFile(Host& host, HostPath name) : host_(host), name_(std::move(name)) {}
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;
    ~PassingFile() {
        if (passing_) attempt([&] { host_.removeFile(name_); });
    }

    const HostPath& name() const { return name_; }
    void leave() { passing_ = false; }
    void moveTo(const HostPath& target) {
        host_.rename(name_, target);
        leave();
    }

  private:
    Host& host_;
    HostPath name_;
    bool passing_ = true;
};

// The new file is in place. If its name is not yet on the disk, a crash gives the old one.
Outcome done(const Replacement& job, const HostPath& folder) {
    attempt([&] { job.host.flushFolder(folder); });
    return Outcome::Done;
}

Outcome renameOver(const Replacement& job, const HostPath& folder, const HostPath& name) {
    std::unique_ptr<HostWriter> writer;
    if (job.forbids([&] { writer = job.create(name); })) return Outcome::Forbidden;
    if (job.old && !writer->alike()) return Outcome::Forbidden;
    job.fill(*writer);
    if (!job.old && job.current() && writer->closeAs(job.target)) return done(job, folder);
    writer->close();
    PassingFile beside(job.host, name);
    if (!job.current()) return Outcome::Outdated;
    if (job.forbids([&] { beside.moveTo(job.target); })) return Outcome::Forbidden;
    return done(job, folder);
}

Outcome renameOver(const Replacement& job) {
    const HostPath folder = job.target.parent_path();
    bool alone = job.alone;
    for (int tries = 1;; ++tries) {
        const HostPath name = folder / temporaryName(alone);
        try {
            return renameOver(job, folder, name);
        } catch (const RunTimeError& error) {
            if (error.number() != errors::FileAlreadyExists || tries == mostTries) throw;
            // What another user left may not be ours to remove.
            if (alone) alone = attempt([&] { job.host.removeFile(name); });
        }
    }
}

void copyTo(Host& host, const HostPath& file, const HostPath& copy) {
    const auto writer = host.create(copy, file);
    writer->copy(file);
    writer->close();
    attempt([&] { host.flushFolder(copy.parent_path()); });
}

// Beside the file if that can be, so that after a kill the player finds it.
HostPath keptCopy(Host& host, const HostPath& file) {
    HostPath name = file.filename();
    name += ".tessaro-" + freshDigits() + ".bak";
    HostPath beside = file.parent_path() / name;
    if (attempt([&] { copyTo(host, file, beside); })) return beside;
    HostPath elsewhere = host.keepingFolder() / name;
    copyTo(host, file, elsewhere);
    return elsewhere;
}

void overwrite(Host& host, const HostPath& file, const Fill& fill) {
    const auto writer = host.overwrite(file);
    fill(*writer);
    writer->close();
}

// Where that fails too the copy is all that is left of the file.
void putBack(Host& host, PassingFile& kept, const HostPath& file, int number) {
    const auto fill = [&](HostWriter& writer) { writer.copy(kept.name()); };
    if (attempt([&] { overwrite(host, file, fill); })) return;
    kept.leave();
    throw RunTimeError(number, file.string() + ": kept as " + kept.name().string());
}

Outcome writeOver(const Replacement& job) {
    PassingFile kept(job.host, keptCopy(job.host, job.target));
    if (!job.current()) return Outcome::Outdated;
    try {
        overwrite(job.host, job.target, job.fill);
    } catch (const RunTimeError& error) {
        putBack(job.host, kept, job.target, error.number());
        throw;
    }
    return Outcome::Done;
}

Outcome replace(const Replacement& job) {
    if (job.old && job.old->names > 1) return writeOver(job);
    const Outcome outcome = renameOver(job);
    return outcome == Outcome::Forbidden ? writeOver(job) : outcome;
}

Fill bytesOf(std::string_view bytes) {
    return [bytes](HostWriter& writer) { writer.write(bytes); };
}

std::optional<std::string> contentsOf(Host& host, const HostPath& file) {
    if (!host.status(file)) return std::nullopt;
    return host.read(file);
}

// Tells whether the change was made, or need not be.
bool changeOnce(Host& host, const HostPath& target, bool alone, const FileChange& change) {
    const auto old = contentsOf(host, target);
    const auto changed = change(old ? std::string_view(*old) : std::string_view());
    if (!changed) return true;
    const auto there = replaceable(host, target);
    const auto current = [&] {
        return host.settles(target, noPatience) && contentsOf(host, target) == old;
    };
    return replace({host, target, there, alone, {}, bytesOf(*changed), current}) == Outcome::Done;
}

}  // namespace

void replaceFile(Host& host, const HostPath& file, std::string_view bytes) {
    const HostPath target = host.target(file);
    const auto lock = host.lock(target.parent_path(), turnPatience);
    const auto old = replaceable(host, target);
    replace({host, target, old, lock != nullptr, {}, bytesOf(bytes), always});
}

void changeFile(Host& host, const HostPath& file, const FileChange& change) {
    const HostPath target = host.target(file);
    requireFolder(host, target.parent_path());
    const auto lock = host.lock(target.parent_path(), turnPatience);
    for (int tries = 0; tries < mostTries; ++tries) {
        if (!host.settles(target, writerPatience)) break;
        if (changeOnce(host, target, lock != nullptr, change)) return;
    }
    throw RunTimeError(errors::PermissionDenied, target.string());
}

void requireReplaceable(Host& host, const HostPath& file) {
    replaceable(host, host.target(file));
}

void replaceByCopy(Host& host, const HostPath& from, const HostPath& to) {
    const HostPath target = host.target(to);
    const auto old = host.status(target);
    if (old) requireCopyable(host, from, target, *old);
    const auto fill = [&](HostWriter& writer) { writer.copy(from); };
    try {
        replace({host, target, old, false, from, fill, always});
    } catch (const RunTimeError&) {
        // Asked only now: of thousands of copies each has its file and its folder.
        requireFile(host, from);
        requireFolder(host, target.parent_path());
        throw;
    }
}

bool isUnderWay(std::string_view hostName) {
    return hostName.starts_with(".tessaro") && hostName.ends_with(".tmp");
}

}  // namespace tessaro
