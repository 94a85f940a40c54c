// Why a question may be answered from memory.
//
// A folder's stamp, which is its place on the disk and the time of its last change, is another one
// once a name has come or gone. While it is the one under which the names were read, a name that
// was found is there (or has been, a moment ago), and a name that was not found is not there, save
// in two cases.
//
// A clock stands behind the stamp, and it ticks. Names may have come later in the very tick that
// the stamp tells of, and it would not show. So the names are settled only if they were read a tick
// or more after the stamp's time; until then they are read anew for each answer. How long a tick is
// the stamp itself lets guess: one of whole seconds comes from a coarse clock. And where it is the
// clock of another machine, what counts is when we first saw the stamp.
//
// Going a folder's path costs more than looking at a folder that is held open, so one that is asked
// often is held. But what is held stays the same folder when one above it is renamed and another
// comes to stand at the path. So the path is gone again every now and then, and a rename above is
// seen a little later.
//
// Any answer is true for the moment of the look only. A tool that asks for thousands of names in a
// row lets a look serve for a moment longer, and says itself what it adds to a folder: to list a
// folder of 5,000 maps anew for each that is extracted would cost more than to extract it.
//
// Where the names cannot be read at all, only the exact name can be asked for. If there is none,
// one in another case may still be there, so the answer is the failure.

#include "platform/files/folderindex.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/files/hostpath.h"
#include "platform/files/standins.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {

namespace {

constexpr std::int64_t second = 1'000'000'000;
// Stamps come from a clock that ticks every 1 to 10 ms, on some file systems (FAT) every 2 s. A
// folder that changes twice within a tick bears the same stamp both times.
constexpr std::int64_t fineTick = second / 50;
constexpr std::int64_t coarseTick = 2 * second + fineTick;

// Questions between two changes after which it pays to hold a folder. That keeps a disk from being
// unplugged, too.
constexpr int often = 100;
// How long a way once gone is taken for the same, and amid many questions any look for the present.
constexpr std::chrono::milliseconds trust{20};

std::int64_t tickOf(const FolderStamp& stamp) {
    return stamp.changedNanoseconds % second == 0 ? coarseTick : fineTick;
}

std::int64_t nanosecondsNow() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

}  // namespace

void FolderIndex::Table::fill(std::vector<std::string> names) {
    names_ = std::move(names);
    slots_.assign(std::bit_ceil(2 * names_.size() + 1), {});
    for (std::size_t index = 0; index < names_.size(); ++index) place(index);
}

void FolderIndex::Table::place(std::size_t index) {
    const std::uint32_t hash = nameHash(names_[index]);
    std::size_t at = hash & (slots_.size() - 1);
    while (slots_[at].name != 0) at = (at + 1) & (slots_.size() - 1);
    slots_[at] = {hash, static_cast<std::uint32_t>(index + 1)};
}

void FolderIndex::Table::add(std::string name) {
    const std::string* same = find(name);
    if (same && *same == name) return;
    names_.push_back(std::move(name));
    if (slots_.size() > 2 * names_.size()) {
        place(names_.size() - 1);
    } else {
        fill(std::move(names_));
    }
}

const std::string* FolderIndex::Table::find(std::string_view name) const {
    const std::uint32_t hash = nameHash(name);
    const std::size_t mask = slots_.size() - 1;
    const std::string* best = nullptr;
    for (std::size_t at = hash & mask; slots_[at].name != 0; at = (at + 1) & mask) {
        if (slots_[at].hash != hash) continue;
        const std::string& each = names_[slots_[at].name - 1];
        if (each == name) return &each;
        if (sameName(each, name) && (!best || each < *best)) best = &each;
    }
    return best;
}

FolderIndex::Finding FolderIndex::find(const HostPath& folder, std::string_view name) {
    bool justRead = false;
    Names* names = namesNow(folder, justRead);
    if (!names) return {};
    // Within a tick of the folder's last change names that were read before prove nothing, so the
    // folder is read again. That ends with the tick: at worst a run of questions reads the folder
    // over and over for so long.
    if (!names->settled && !justRead) read(folder, names->stamp, *names);
    const std::string* spelled = names->table.find(name);
    if (spelled) return {true, *spelled};
    if (!names->refusal) return {true, std::nullopt};
    if (!host_.status(inFolder(folder, hostName(name)))) throw RunTimeError(*names->refusal);
    return {true, std::string(name)};
}

// The index of a folder as it is now, and whether all of its names were read only now; null if
// there is no such folder.
FolderIndex::Names* FolderIndex::namesNow(const HostPath& folder, bool& justRead) {
    const auto known = folders_.find(folder.native());
    if (known != folders_.end() && unchanged(known->second)) {
        justRead = isFresh(known->second.readAt, known->second.lookedAt);
        return &known->second;
    }
    const auto status = host_.status(folder);
    if (!status || !status->folder) {
        forget(folder);
        return nullptr;
    }
    Names& names = folders_[folder.native()];
    if (names.stamp != status->stamp) {
        read(folder, status->stamp, names);
        justRead = !names.refusal;
    }
    names.foundAt = names.lookedAt = std::chrono::steady_clock::now();
    if (++names.questions == often) attempt([&] { names.held = host_.hold(folder); });
    return &names;
}

void FolderIndex::add(const HostPath& file) {
    const HostPath folder = file.parent_path();
    const auto known = folders_.find(folder.native());
    if (known == folders_.end()) return;
    if (manySince_ && !known->second.refusal) {
        known->second.table.add(gameName(file.filename().string()));
    } else {
        forget(folder);
    }
}

void FolderIndex::setManyQuestions(bool many) {
    manySince_.reset();
    if (many) manySince_ = std::chrono::steady_clock::now();
}

// Whether a look can still serve amid many questions.
bool FolderIndex::isFresh(Time look, Time now) const {
    return manySince_ && look >= *manySince_ && now - look < trust;
}

// A held folder's stamp tells of new names at once, but not that another folder took the place of
// one above. So its path is gone again every now and then.
bool FolderIndex::unchanged(Names& names) const {
    if (!names.held && !manySince_) return false;
    const Time now = std::chrono::steady_clock::now();
    if (isFresh(names.lookedAt, now)) return true;
    if (!names.held || now - names.foundAt >= trust || names.held->stamp() != names.stamp)
        return false;
    names.lookedAt = now;
    return true;
}

void FolderIndex::read(const HostPath& folder, FolderStamp stamp, Names& names) {
    const std::int64_t now = nanosecondsNow();
    if (names.stamp != stamp) names.stampSeenAt = now;
    names.stamp = stamp;
    // The second term serves network folders whose clock runs ahead of ours.
    const std::int64_t age = std::max(now - stamp.changedNanoseconds, now - names.stampSeenAt);
    std::vector<std::string> listing;
    names.refusal.reset();
    try {
        listing = host_.list(folder);
    } catch (const RunTimeError& error) {
        names.refusal = error;  // which may pass
    }
    names.settled = age >= tickOf(stamp) && !names.refusal;
    for (std::string& each : listing) {
        if (needsStandIn(each)) each = gameName(each);
    }
    names.table.fill(std::move(listing));
    names.readAt = names.refusal ? Time() : std::chrono::steady_clock::now();
    names.questions = 0;
    names.held.reset();
}

}  // namespace tessaro
