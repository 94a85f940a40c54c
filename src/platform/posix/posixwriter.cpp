#include "platform/posix/posixwriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "platform/posix/descriptor.h"
#include "platform/posix/likeness.h"
#include "platform/posix/posixcopy.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr mode_t newFile = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
// Nobody may look into a private file while its successor is being written.
constexpr mode_t onlyOurs = S_IRUSR | S_IWUSR;

class PosixWriter : public HostWriter {
  public:
    void write(std::string_view bytes) override { file_.write(bytes); }
    void copy(const HostPath& from) override {
        Descriptor source = openRegular(from);
        copyContents(source, file_);
    }

  protected:
    explicit PosixWriter(Descriptor file) : file_(std::move(file)) {}
    Descriptor file_;
};

// Without a name in a folder where the system can do that: whatever ends us, nothing is left
// behind.
std::optional<Descriptor> openNameless([[maybe_unused]] const HostPath& folder,
                                       [[maybe_unused]] mode_t mode) {
    std::optional<Descriptor> opened;
#ifdef O_TMPFILE
    attempt([&] { opened.emplace(folder, O_WRONLY | O_TMPFILE, mode); });
#endif
    return opened;
}

class NewFile : public PosixWriter {
  public:
    NewFile(Descriptor file, HostPath name, bool named)
        : PosixWriter(std::move(file)), name_(std::move(name)), unfinished_(named), named_(named) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() override {
        if (unfinished_) ::unlink(name_.c_str());
    }

    int descriptor() const { return file_.get(); }
    void setSource(Descriptor source) { source_.emplace(std::move(source)); }
    void copy(const HostPath& from) override {
        source_ ? copyContents(*source_, file_) : PosixWriter::copy(from);
    }
    void setAlike(bool alike) { alike_ = alike; }
    bool alike() const override { return alike_; }
    void close() override {
        file_.flush();
        if (!named_ && !giveName()) raiseErrno(name_);
        end();
    }
    bool closeAs(const HostPath& name) override {
        if (named_) return false;
        file_.flush();
        const HostPath given = std::exchange(name_, name);
        if (giveName()) {
            end();
            return true;
        }
        name_ = given;
        return false;
    }

  private:
    // Straight where the system lets us (an older one lets the privileged only), else through the
    // name that every open file has there. If it fails, `errno` tells why.
    bool giveName() {
        int done = ::linkat(file_.get(), "", AT_FDCWD, systemName(name_), AT_EMPTY_PATH);
        if (done == -1 && errno != EEXIST) {
            const std::string file = "/proc/self/fd/" + std::to_string(file_.get());
            done = ::linkat(AT_FDCWD, file.c_str(), AT_FDCWD, name_.c_str(), AT_SYMLINK_FOLLOW);
        }
        unfinished_ = done == 0;
        return unfinished_;
    }
    void end() {
        file_.close();
        unfinished_ = false;
    }

    std::optional<Descriptor> source_;  // open already
    HostPath name_;
    bool unfinished_;  // has its name, and is not whole or not known to be
    bool named_;       // from the beginning
    bool alike_ = true;
};

std::unique_ptr<NewFile> openNew(const HostPath& name, mode_t mode) {
    systemName(name);
    if (auto nameless = openNameless(name.parent_path(), mode))
        return std::make_unique<NewFile>(*std::move(nameless), name, false);
    Descriptor opened(name, O_WRONLY | O_CREAT | O_EXCL, mode);
    return std::make_unique<NewFile>(std::move(opened), name, true);
}

// Bytes go over the old ones, and what the old file had more of goes last: a disk that is full by
// then still has room for the old bytes.
class OldFile : public PosixWriter {
  public:
    explicit OldFile(const HostPath& file)
        : PosixWriter(Descriptor(file, O_WRONLY | O_NONBLOCK)), name_(file) {}

    bool alike() const override { return true; }
    void close() override {
        const off_t end = ::lseek(file_.get(), 0, SEEK_CUR);
        if (end == -1 || uninterrupted([&] { return ::ftruncate(file_.get(), end); }) == -1)
            raiseErrno(name_);
        file_.flush();
        file_.close();
    }

  private:
    HostPath name_;
};

}  // namespace

std::unique_ptr<HostWriter> writerLike(const HostPath& file, const HostPath& like) {
    const auto likeness = Likeness::of(like);
    auto created = openNew(file, likeness ? onlyOurs : newFile);
    if (likeness) created->setAlike(likeness->giveTo(created->descriptor()));
    return created;
}

std::unique_ptr<HostWriter> writerOfCopy(const HostPath& file, const HostPath& from) {
    Descriptor source = openRegular(from);
    auto created = openNew(file, onlyOurs);
    Likeness::giveToCopy(source.get(), created->descriptor());
    created->setSource(std::move(source));
    return created;
}

std::unique_ptr<HostWriter> writerOver(const HostPath& file) {
    return std::make_unique<OldFile>(file);
}

}  // namespace tessaro
