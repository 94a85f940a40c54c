#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/text/encoding.h"

namespace tessaro::test {

/// A plain reading of the rules for profile files, to compare random work with: cut the text into
/// lines, look at them one after the other, put them together again.
class PlainProfile {
  public:
    /// A text in an 8-bit encoding, without a mark.
    PlainProfile(const std::string& text, Encoding encoding);

    std::string text() const;
    /// The line on which a key, or without one a section's header, stands; nothing if it is not
    /// there.
    std::optional<std::size_t> find(const std::string& section,
                                    const std::optional<std::string>& key) const;
    std::optional<std::string> value(const std::string& section, const std::string& key) const;
    /// Whether all of the arguments can be held.
    bool holds(const std::string& section, const std::string& key, const std::string& value) const;
    void write(const std::string& section, const std::string& key, const std::string& value);
    void erase(const std::string& section, const std::optional<std::string>& key);

  private:
    std::string decoded(const std::string& part) const;
    std::string encoded(const std::string& part) const;
    std::string headerName(const std::string& line) const;
    std::string keyName(const std::string& line) const;
    std::size_t sectionEnd(std::size_t header) const;
    void addLine(std::size_t at, const std::string& line);

    std::vector<std::string> lines_;  // each with its end
    Encoding encoding_;
    std::string lineEnd_ = "\r\n";  // of new lines
};

/// What a change makes of a file's bytes, in whatever encoding, by the plain rules.
std::string plainlyChanged(const std::string& bytes, const std::string& section,
                           const std::optional<std::string>& key,
                           const std::optional<std::string>& value);
/// What a key's value reads as in a file's bytes.
std::optional<std::string> plainValue(const std::string& bytes, const std::string& section,
                                      const std::string& key);

}  // namespace tessaro::test
