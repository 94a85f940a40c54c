#include "support/failinghost.h"

#include "platform/runtime/runtimeerror.h"

namespace tessaro::test {

namespace {

bool contains(const HostPath& path, const std::string& part) {
    return path.string().find(part) != std::string::npos;
}

class LimitedWriter : public HostWriter {
  public:
    LimitedWriter(std::unique_ptr<HostWriter> real, std::optional<std::size_t>& space)
        : real_(std::move(real)), space_(space) {}

    void write(std::string_view bytes) override {
        const std::string_view fitting = bytes.substr(0, space_.value_or(bytes.size()));
        real_->write(fitting);
        if (space_) *space_ -= fitting.size();
        if (fitting.size() < bytes.size()) throw RunTimeError(errors::DiskFull);
    }
    void close() override { real_->close(); }

  private:
    std::unique_ptr<HostWriter> real_;
    std::optional<std::size_t>& space_;
};

}  // namespace

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
    const auto found = counts_.find(call);
    return found == counts_.end() ? 0 : found->second;
}

void FailingHost::pass(Call call, const HostPath& path) {
    ++counts_[call];
    const auto found = refusals_.find(call);
    if (found != refusals_.end() && contains(path, found->second.part)) {
        throw RunTimeError(found->second.number, path.string());
    }
    if (vanished_ && path.native().starts_with(*vanished_)) {
        throw RunTimeError(errors::PathNotFound, path.string());
    }
}

std::optional<HostStatus> FailingHost::status(const HostPath& path) {
    if (vanished_ && path.native().starts_with(*vanished_)) return std::nullopt;
    pass(Call::Status, path);
    return real_.status(path);
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
    return std::make_unique<LimitedWriter>(real_.create(file, like), space_);
}

void FailingHost::touch(const HostPath& file) {
    pass(Call::Touch, file);
    real_.touch(file);
}

void FailingHost::copy(const HostPath& from, const HostPath& to, const HostPath& like) {
    pass(Call::Copy, to);
    if (!space_) return real_.copy(from, to, like);
    LimitedWriter(real_.create(to, like), space_).write(real_.read(from));
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
