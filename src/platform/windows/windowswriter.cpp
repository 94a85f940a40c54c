#include "platform/windows/windowswriter.h"

#include <utility>
#include <vector>

#include "platform/runtime/runtimeerror.h"
#include "platform/windows/handle.h"
#include "platform/windows/windowslikeness.h"

namespace tessaro {

namespace {

constexpr std::size_t copiedAtOnce = 1U << 18U;
constexpr DWORD forNewFile = GENERIC_WRITE | DELETE | READ_CONTROL | WRITE_DAC;

class WindowsWriter : public HostWriter {
  public:
    void write(std::string_view bytes) override { file_.write(bytes); }
    void copy(const HostPath& from) override {
        Handle source = openRegular(from);
        std::vector<char> buffer(copiedAtOnce);
        while (const std::size_t got = source.read(buffer.data(), buffer.size()))
            file_.write({buffer.data(), got});
    }

  protected:
    explicit WindowsWriter(Handle file) : file_(std::move(file)) {}
    Handle file_;
};

// Up to its end the file is marked as one to be deleted: whatever ends us, the system closes it,
// and nothing is left behind.
class NewFile : public WindowsWriter {
  public:
    NewFile(const HostPath& name, DWORD attributes)
        : WindowsWriter(Handle(name, {forNewFile, CREATE_NEW, FILE_ATTRIBUTE_NORMAL})),
          attributes_(attributes),
          passing_(setPassing(TRUE) != FALSE) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() override {
        if (!file_ || passing_) return;
        attempt([&] { file_.close(); });
        ::DeleteFileW(systemName(file_.path()).c_str());
    }

    void giveAccessOf(const HostPath& like) { alike_ = giveAccess(file_.get(), like); }
    bool alike() const override { return alike_; }
    void close() override {
        file_.flush();
        if (passing_) file_.require(setPassing(FALSE));
        passing_ = false;
        giveAttributes();
        file_.close();
    }

  private:
    BOOL setPassing(BOOL passing) {
        FILE_DISPOSITION_INFO info = {};
        info.DeleteFile = passing != FALSE;
        return ::SetFileInformationByHandle(file_.get(), FileDispositionInfo, &info, sizeof info);
    }
    // Last of all, since a read-only file could not be marked.
    void giveAttributes() {
        if (attributes_ == 0) return;
        FILE_BASIC_INFO info = {};
        info.FileAttributes = attributes_;
        ::SetFileInformationByHandle(file_.get(), FileBasicInfo, &info, sizeof info);
    }

    DWORD attributes_;
    bool passing_;  // marked; not every disk can do that
    bool alike_ = true;
};

// Bytes go over the old ones, and what the old file had more of goes last: a disk that is full by
// then still has room for the old bytes.
class OldFile : public WindowsWriter {
  public:
    explicit OldFile(const HostPath& file)
        : WindowsWriter(Handle(file, {.access = GENERIC_WRITE})) {}

    bool alike() const override { return true; }
    void close() override {
        file_.require(::SetEndOfFile(file_.get()));
        file_.flush();
        file_.close();
    }
};

}  // namespace

std::unique_ptr<HostWriter> writerLike(const HostPath& file, const HostPath& like) {
    const auto attributes = lastingAttributes(like);
    auto created = std::make_unique<NewFile>(file, attributes.value_or(0));
    if (attributes) created->giveAccessOf(like);
    return created;
}

std::unique_ptr<HostWriter> writerOfCopy(const HostPath& file, const HostPath& from) {
    return std::make_unique<NewFile>(file, lastingAttributes(from).value_or(0));
}

std::unique_ptr<HostWriter> writerOver(const HostPath& file) {
    return std::make_unique<OldFile>(file);
}

}  // namespace tessaro
