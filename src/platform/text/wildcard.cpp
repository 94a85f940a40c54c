#include "platform/text/wildcard.h"

#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

constexpr std::string_view anyExtension = ".*";

// Goes through pattern and name side by side. On a mismatch the last `*` takes one character more.
class Matcher {
  public:
    Matcher(std::string_view pattern, std::string_view name) : pattern_(pattern), name_(name) {}

    bool matches() {
        while (atName_ < name_.size()) {
            if (!step() && !widenStar()) return false;
        }
        return pattern_.find_first_not_of('*', atPattern_) == std::string_view::npos;
    }

  private:
    bool step() {
        if (atPattern_ == pattern_.size()) return false;
        const char wanted = pattern_[atPattern_];
        if (wanted == '*') {
            afterStar_ = ++atPattern_;
            starTook_ = atName_;
            return true;
        }
        if (wanted != '?' && wanted != name_[atName_]) return false;
        ++atPattern_;
        passCharacter(wanted == '?', atName_);
        return true;
    }

    bool widenStar() {
        if (afterStar_ == std::string_view::npos) return false;
        passCharacter(true, starTook_);
        atName_ = starTook_;
        atPattern_ = afterStar_;
        return true;
    }

    // Letters are compared byte by byte, but a wildcard takes whole characters.
    void passCharacter(bool whole, std::size_t& position) {
        if (whole) {
            nextCharacter(name_, position);
        } else {
            ++position;
        }
    }

    std::string_view pattern_;
    std::string_view name_;
    std::size_t atPattern_ = 0;
    std::size_t atName_ = 0;
    std::size_t afterStar_ = std::string_view::npos;
    std::size_t starTook_ = 0;
};

}  // namespace

bool hasWildcard(std::string_view pattern) {
    return pattern.find('*') != std::string_view::npos ||
           pattern.find('?') != std::string_view::npos;
}

bool matchesWildcard(std::string_view pattern, std::string_view name) {
    const std::string wanted = lowerCase(pattern);
    const std::string given = lowerCase(name);
    if (Matcher(wanted, given).matches()) return true;
    return wanted.ends_with(anyExtension) &&
           Matcher(std::string_view(wanted).substr(0, wanted.size() - anyExtension.size()), given)
               .matches();
}

}  // namespace tessaro
