#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tessaro {

/// Space, tab and vertical tab.
std::string_view trimProfileBlanks(std::string_view text);
/// Whether `trimProfileBlanks` cuts that byte.
bool isProfileBlank(char byte);
/// CR or LF.
bool isLineEnd(char byte);
/// Where the line after one that ends at `end` begins.
std::size_t afterLineEnd(std::string_view text, std::size_t end);

/// A line of a section. All are parts of the text, so that they tell positions too.
struct ProfileLine {
    std::string_view whole;    ///< with its line end
    std::string_view content;  ///< without line end and outer blanks
};

/// A line with a key and its value.
struct ProfileKey {
    std::string_view line;  ///< with its line end
    std::string_view name;
    std::string_view value;   ///< without outer blanks, with its quotes
    std::string_view spaced;  ///< the value with the blanks round it
};

/// Gives the lines of one section, header not included.
class ProfileLines {
  public:
    ProfileLines(std::string_view text, std::size_t begin);
    /// Nothing at the next header or at the end of the text.
    std::optional<ProfileLine> next();

  private:
    std::size_t lineEnd();

    std::string_view text_;
    std::size_t position_;
    // The nearest line ends of each kind from `position_` on. Each is looked for only when passed,
    // so that a file with one kind is not searched to its end for the other on every line.
    std::size_t lineFeed_;
    std::size_t carriageReturn_;
};

/// Nothing for a line that holds no key: a comment, or a line without `=`.
std::optional<ProfileKey> keyOf(const ProfileLine& line);

}  // namespace tessaro
