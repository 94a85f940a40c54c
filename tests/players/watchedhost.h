#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "support/failinghost.h"
#include "support/testworld.h"

namespace tessaro::test {

/// Lets a test act between two changes of the disk, as another program or a sudden end would.
class WatchedHost : public FailingHost {
  public:
    using FailingHost::FailingHost;

    /// Runs before each change, and in the middle of each write and copy.
    std::function<void()> beforeChange = [] {};
    /// Runs after a file came to be called `file`.
    std::function<void(const HostPath& file)> afterRename = [](const HostPath&) {};
    std::function<void(const HostPath& file)> afterRemoval = [](const HostPath&) {};

    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        beforeChange();
        return std::make_unique<Writer>(FailingHost::create(file, like), beforeChange);
    }
    void touch(const HostPath& file) override {
        beforeChange();
        FailingHost::touch(file);
    }
    std::unique_ptr<HostWriter> createCopy(const HostPath& file, const HostPath& from) override {
        beforeChange();
        return std::make_unique<Writer>(FailingHost::createCopy(file, from), beforeChange);
    }
    std::unique_ptr<HostWriter> overwrite(const HostPath& file) override {
        beforeChange();
        return std::make_unique<Writer>(FailingHost::overwrite(file), beforeChange);
    }
    void rename(const HostPath& from, const HostPath& to) override {
        beforeChange();
        FailingHost::rename(from, to);
        afterRename(to);
    }
    void removeFile(const HostPath& file) override {
        beforeChange();
        FailingHost::removeFile(file);
        afterRemoval(file);
    }
    void makeFolder(const HostPath& folder) override {
        beforeChange();
        FailingHost::makeFolder(folder);
    }

  private:
    class Writer : public HostWriter {
      public:
        Writer(std::unique_ptr<HostWriter> real, const std::function<void()>& beforeChange)
            : real_(std::move(real)), beforeChange_(beforeChange) {}
        void write(std::string_view bytes) override {
            real_->write(bytes.substr(0, bytes.size() / 2));
            beforeChange_();
            real_->write(bytes.substr(bytes.size() / 2));
        }
        void copy(const HostPath& from) override {
            beforeChange_();
            real_->copy(from);
        }
        bool alike() const override { return real_->alike(); }
        void close() override {
            beforeChange_();
            real_->close();
        }

      private:
        std::unique_ptr<HostWriter> real_;
        const std::function<void()>& beforeChange_;
    };
};

}  // namespace tessaro::test
