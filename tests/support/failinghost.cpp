#include "support/failinghost.h"

#include <algorithm>

#include "platform/runtime/runtimeerror.h"

namespace tessaro::test {

namespace {

bool contains(const HostPath& path, const std::string& part) {
    return path.generic_string().find(part) != std::string::npos;
}

}  // namespace

// Writes while there is space, and closes while it is let.
class FailingHost::Writer : public HostWriter {
  public:
    // `covered` bytes have their space already.
    Writer(FailingHost& host, HostPath file, std::unique_ptr<HostWriter> real, std::size_t covered)
        : host_(host), file_(std::move(file)), real_(std::move(real)), covered_(covered) {}

    void write(std::string_view bytes) override {
        const std::size_t free = std::min(covered_, bytes.size());
        const std::size_t room = host_.space_ ? free + *host_.space_ : bytes.size();
        const std::string_view fitting = bytes.substr(0, room);
        real_->write(fitting);
        covered_ -= free;
        if (host_.space_) *host_.space_ -= fitting.size() - free;
        if (fitting.size() < bytes.size()) throw RunTimeError(errors::DiskFull);
    }
    void copy(const HostPath& from) override {
        host_.pass(Call::Copy, file_);
        host_.space_ ? write(host_.real_.read(from)) : real_->copy(from);
    }
    bool alike() const override { return real_->alike(); }
    void close() override {
        host_.pass(Call::Close, file_);
        real_->close();
    }
    bool closeAs(const HostPath& name) override {
        if (host_.early_) return false;
        host_.pass(Call::Close, file_);
        return real_->closeAs(name);
    }

  private:
    FailingHost& host_;
    HostPath file_;
    std::unique_ptr<HostWriter> real_;
    std::size_t covered_;
};

void FailingHost::refuse(Call call, int number, std::string part) {
    refusals_[call] = {number, std::move(part)};
}

void FailingHost::relent() {
    refusals_.clear();
    space_.reset();
    protected_.reset();
    vanished_.reset();
}

int FailingHost::count(Call call) const {
    return static_cast<int>(std::count(calls_.begin(), calls_.end(), call));
}

void FailingHost::pass(Call call, const HostPath& path) {
    calls_.push_back(call);
    const auto found = refusals_.find(call);
    if (found != refusals_.end() && contains(path, found->second.part))
        throw RunTimeError(found->second.number, path.string());
    if (vanished_ && path.native().starts_with(*vanished_))
        throw RunTimeError(errors::PathNotFound, path.string());
}

std::optional<HostStatus> FailingHost::status(const HostPath& path) {
    if (vanished_ && path.native().starts_with(*vanished_)) return std::nullopt;
    pass(Call::Status, path);
    auto status = real_.status(path);
    if (status && hidden_)
        status->hidden = path.filename().string().find(*hidden_) != std::string::npos;
    return status;
}

std::vector<std::string> FailingHost::list(const HostPath& folder) {
    pass(Call::List, folder);
    return real_.list(folder);
}

std::unique_ptr<FolderLock> FailingHost::lock(const HostPath& folder,
                                              std::chrono::milliseconds patience) {
    pass(Call::Lock, folder);
    return real_.lock(folder, patience);
}

bool FailingHost::writable(const HostPath& path) {
    return !(protected_ && contains(path, *protected_)) && real_.writable(path);
}

bool FailingHost::takesFiles(const HostPath& folder) {
    return !(protected_ && contains(folder, *protected_)) && real_.takesFiles(folder);
}

bool FailingHost::settles(const HostPath& file, std::chrono::milliseconds patience) {
    pass(Call::Settle, file);
    return real_.settles(file, patience);
}

std::string FailingHost::read(const HostPath& file) {
    pass(Call::Read, file);
    return real_.read(file);
}

WatchedBytes FailingHost::readWatched(const HostPath& file) {
    pass(Call::Read, file);
    return real_.readWatched(file);
}

std::unique_ptr<HostWriter> FailingHost::create(const HostPath& file, const HostPath& like) {
    pass(Call::Create, file);
    return std::make_unique<Writer>(*this, file, real_.create(file, like), 0);
}

std::unique_ptr<HostWriter> FailingHost::createCopy(const HostPath& file, const HostPath& from) {
    pass(Call::Create, file);
    return std::make_unique<Writer>(*this, file, real_.createCopy(file, from), 0);
}

std::unique_ptr<HostWriter> FailingHost::overwrite(const HostPath& file) {
    pass(Call::Overwrite, file);
    const std::size_t size = real_.status(file)->size;
    return std::make_unique<Writer>(*this, file, real_.overwrite(file), size);
}

void FailingHost::touch(const HostPath& file) {
    pass(Call::Touch, file);
    real_.touch(file);
}

void FailingHost::rename(const HostPath& from, const HostPath& to) {
    pass(Call::Rename, to);
    real_.rename(from, to);
}

void FailingHost::flushFolder(const HostPath& folder) {
    pass(Call::Flush, folder);
    real_.flushFolder(folder);
}

void FailingHost::removeFile(const HostPath& file) {
    pass(Call::RemoveFile, file);
    real_.removeFile(file);
}

void FailingHost::makeFolder(const HostPath& folder) {
    pass(Call::MakeFolder, folder);
    real_.makeFolder(folder);
}

void FailingHost::makePrivateFolder(const HostPath& folder) {
    pass(Call::MakeFolder, folder);
    real_.makePrivateFolder(folder);
}

HostPath FailingHost::keepingFolder() {
    return real_.keepingFolder();
}

HostPath FailingHost::target(const HostPath& path) {
    return real_.target(path);
}

HostPath FailingHost::currentFolder() {
    return real_.currentFolder();
}

void FailingHost::changeFolder(const HostPath& folder) {
    pass(Call::ChangeFolder, folder);
    real_.changeFolder(folder);
}

}  // namespace tessaro::test
