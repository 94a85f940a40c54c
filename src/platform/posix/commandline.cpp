// How one text becomes arguments.
//
// On Windows a program is started with one text, and nobody splits it but the program itself: the
// start-up code that its compiler put in front of it. A program here is started with its arguments
// apart, so the splitting is ours, by the same rules, or names of files would arrive otherwise than
// they would there. Quotes switch blanks off and on and are no part of the argument; a backslash is
// a letter, since paths are full of them, but before a quote:
//
//     written       arrives as
//     a\b  "c d"    a\b    c d
//     c" "d         c d            quotes inside of a word
//     a\\b          a\\b           no quote behind them
//     a\"b          a"b            an odd one makes the quote a letter
//     a\\"b c"      a\b c          two give one, and the quote is a quote
//     "a""b c       a"b    c       a letter, and the end of the quotes
//     ""            (empty)        an argument all the same
//
// The program's own name is cut off first, by the system and more simply.

#include "platform/posix/commandline.h"

#include <algorithm>

#include "platform/text/ascii.h"

namespace tessaro {

namespace {

constexpr std::string_view blanks = " \t";

bool isBlank(char character) {
    return blanks.find(character) != std::string_view::npos;
}

void skipBlanks(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
}

// Takes one argument off the front of the line.
class ArgumentReader {
  public:
    explicit ArgumentReader(std::string_view& rest) : rest_(rest) {}

    std::string read() {
        while (!rest_.empty() && (quoted_ || !isBlank(rest_.front()))) {
            if (rest_.front() == '\\') {
                takeBackslashes();
            } else if (rest_.front() == '"') {
                takeQuote();
            } else {
                take(1);
            }
        }
        return std::move(argument_);
    }

  private:
    void take(std::size_t count) {
        argument_ += rest_.substr(0, count);
        rest_.remove_prefix(count);
    }

    void takeBackslashes() {
        const std::size_t count = std::min(rest_.find_first_not_of('\\'), rest_.size());
        const bool beforeQuote = count < rest_.size() && rest_[count] == '"';
        if (!beforeQuote) return take(count);
        rest_.remove_prefix(count - count / 2);
        take(count / 2);
        if (count % 2 == 1) take(1);
    }

    void takeQuote() {
        rest_.remove_prefix(1);
        if (quoted_ && rest_.starts_with('"')) take(1);
        quoted_ = !quoted_;
    }

    std::string_view& rest_;
    std::string argument_;
    bool quoted_ = false;
};

}  // namespace

CommandLine splitCommandLine(std::string_view line) {
    CommandLine parts;
    parts.program = line.substr(0, line.find_first_of(blanks));
    std::string_view rest = line.substr(parts.program.size());
    for (skipBlanks(rest); !rest.empty(); skipBlanks(rest))
        parts.arguments.push_back(ArgumentReader(rest).read());
    return parts;
}

bool isFullGamePath(std::string_view text) {
    if (text.size() < 3 || text.substr(1, 2) != ":\\") return false;
    return isAsciiLetter(text.front());
}

}  // namespace tessaro
