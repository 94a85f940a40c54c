#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/profile/profiletext.h"
#include "platform/text/lettercase.h"

namespace tessaro {

/// Reads of one profile file's bytes, in whatever encoding they are. Results are UTF-8. Remembers
/// where it found what, so that many reads of one section cost no more than one pass through it.
/// The bytes must outlive this object.
class ProfileReader {
  public:
    explicit ProfileReader(std::string_view bytes);

    /// The value of the first line of a key in the first section of that name, without blanks and
    /// one pair of quotes round it; nothing if there is none.
    std::optional<std::string> value(std::string_view section, std::string_view key);
    /// Names of all sections, in order, repeats included, a NUL after each.
    std::string sections() const;
    /// Names of all keys of the first section of that name, in the same form; nothing if there is
    /// no such section.
    std::optional<std::string> keys(std::string_view section);

  private:
    struct Hash {
        std::size_t operator()(std::string_view name) const { return nameHash(name); }
    };
    struct Same {
        bool operator()(std::string_view one, std::string_view other) const {
            return sameName(one, other);
        }
    };
    template <class Value>
    using ByName = std::unordered_map<std::string_view, Value, Hash, Same>;
    struct Section {
        ProfileSection place;
        std::optional<ByName<std::string_view>> values;  // nothing until one is asked for
    };

    Section* find(std::string_view section);
    std::string_view readable(std::string_view name);
    void takeValues(Section& section);

    ProfileText text_;
    ByName<Section> sections_;
    ByName<Section>::iterator lastFound_;   // reads of one section come in a row
    std::deque<std::string> decodedNames_;  // of those that are not UTF-8 where they stand
};

}  // namespace tessaro
