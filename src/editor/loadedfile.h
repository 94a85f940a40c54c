#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/encoding.h"

namespace tessaro {

/// A file as it was loaded: its bytes, its text as the text box shows it, and where its lines are
/// in both. Lines count from 0; there is always one, and the last has no end.
class LoadedFile {
  public:
    explicit LoadedFile(std::string bytes);

    Encoding encoding() const { return encoding_; }
    /// In bytes.
    std::size_t size() const { return bytes_.size(); }
    const std::u16string& text() const { return text_; }

    std::size_t lineCount() const { return starts_.size() - 1; }
    bool isLast(std::size_t line) const { return line + 1 == lineCount(); }
    std::u16string_view line(std::size_t line) const;
    std::u16string_view lineEnd(std::size_t line) const;

    /// The lines before `to` from `from` on, with their ends: their bytes, and their text.
    std::string_view bytes(std::size_t from, std::size_t to) const;
    std::u16string_view text(std::size_t from, std::size_t to) const;
    /// What stands behind the text: the last byte of a UTF-16 file of odd size.
    std::string_view odd() const;

  private:
    struct Start {
        std::size_t byte;
        std::size_t unit;
    };
    void findLines();
    std::size_t bytesOf(std::size_t unit, std::size_t count) const;
    std::size_t endOf(std::size_t line) const;

    std::string bytes_;
    Encoding encoding_;
    std::u16string text_;
    std::vector<Start> starts_;  // of each line, and behind the last
};

}  // namespace tessaro
