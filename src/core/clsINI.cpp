#include "core/clsINI.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "core/gamefiles.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr std::string_view notSet = "<not_set>";
constexpr std::string_view versionKey = "version";
constexpr std::string_view firstVersion = "1.0";
constexpr std::string_view suffix = ".ini";
constexpr std::size_t valueSize = 255;
constexpr std::size_t listingSize = 1024;
constexpr char separator = '\0';

// The listing without the NUL behind its last name. A listing that was cut ends in no NUL and loses
// a letter of its last name instead.
std::string_view withoutLast(std::string_view listing) {
    return left(listing, length(listing) - 1);
}

// No piece at all for an empty text.
std::vector<std::string> pieces(std::string_view list) {
    std::vector<std::string> names;
    while (!list.empty()) {
        const std::size_t end = list.find(separator);
        names.emplace_back(list.substr(0, end));
        if (end == std::string_view::npos) break;
        list.remove_prefix(end + 1);
        if (list.empty()) names.emplace_back();
    }
    return names;
}

}  // namespace

clsINI::clsINI(ProfileCalls& profile, FileTable& files, ProgramFile program)
    : profile_(profile), files_(files), program_(std::move(program)) {
    setDefaultINIFilePath();
    // A whole path, although it names a section: `getVersion` leaves it in the file as such until
    // `inifile` is assigned.
    defaultSectionName = program_.settingsFile();
    sectionName = defaultSectionName;
}

void clsINI::inifile(std::string_view INIFileIn) {
    inifile_ = INIFileIn;
    const std::string name = fileNameOf(INIFileIn);
    defaultSectionName = name.substr(0, name.rfind('.'));
    sectionName = defaultSectionName;
}

void clsINI::setDefaultINIFilePath() {
    const bool root = program_.folder.ends_with('\\');
    inifile_ = program_.folder + (root ? "" : "\\") + program_.name + std::string(suffix);
}

void clsINI::CreateKeyValue(std::string_view section, std::string_view key, std::string_view value,
                            std::string_view INIFileLoc) {
    // The two Create members know no section of their own: an empty one is written as it is.
    profile_.writePrivateProfileString(section, key, value, fileOr(INIFileLoc));
}

void clsINI::CreateKey(std::string_view section, std::string_view key,
                       std::string_view INIFileLoc) {
    CreateKeyValue(section, key, {}, INIFileLoc);
}

void clsINI::setKey(std::string_view key, std::string_view section, std::string_view INIFileLoc) {
    setKeyValue(key, {}, section, INIFileLoc);
}

void clsINI::setKeyValue(std::string_view key, std::string_view value, std::string_view section,
                         std::string_view INIFileLoc) {
    profile_.writePrivateProfileString(sectionOr(section), key, value, fileOr(INIFileLoc));
}

std::string clsINI::getVersion(std::string_view INIFileLoc) {
    return getKeyValue(versionKey, firstVersion, defaultSectionName, INIFileLoc);
}

std::string clsINI::getSections(std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    ensureIniFile();
    const std::string listing = profile_.getPrivateProfileString(
        std::nullopt, std::nullopt, DefaultReturnValue, listingSize, file);
    if (listing.empty()) return {};
    // Only this listing is trimmed and looked at once more; the one of keys is not.
    std::string_view names = trimSpaces(withoutLast(listing));
    if (names.ends_with(separator)) names.remove_suffix(1);
    return std::string(names);
}

Int16 clsINI::getNumberOfSections(std::string_view INIFileLoc) {
    return static_cast<long long>(pieces(getSections(INIFileLoc)).size());
}

std::string clsINI::getKeysInSection(std::string_view section, std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    const std::string_view place = sectionOr(section);
    ensureIniFile();
    // One try: of a listing longer than the buffer the rest is lost, and callers live with that.
    const std::string listing = profile_.getPrivateProfileString(
        place, std::nullopt, DefaultReturnValue, listingSize, file);
    return listing.empty() ? std::string() : std::string(withoutLast(listing));
}

Int16 clsINI::getNumberOfKeysInSection(std::string_view section, std::string_view INIFileLoc) {
    const std::string keys = getKeysInSection(section, INIFileLoc);
    return keys.empty() ? 0 : 1 + std::ranges::count(keys, separator);
}

std::string clsINI::getKeyValue(std::string_view key, std::string_view defaultValue,
                                std::string_view section, std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    const std::string_view place = sectionOr(section);
    std::string fallback(defaultValue.empty() ? notSet : defaultValue);
    ensureIniFile();
    // Asked with an empty default, so that a key that is absent and one without a value look the
    // same: both get the default written into the file.
    std::string value = profile_.getPrivateProfileString(place, key, {}, valueSize, file);
    if (!value.empty()) return value;
    setKeyValue(key, fallback, place, file);
    return fallback;
}

void clsINI::deleteSection(std::string_view section, std::string_view INIFileLoc) {
    profile_.writePrivateProfileString(sectionOr(section), std::nullopt, std::nullopt,
                                       fileOr(INIFileLoc));
}

void clsINI::deleteAllSections(std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    // The names come from the object's own file whatever file is given: of another one only the
    // sections go that stand in both.
    for (const std::string& name : pieces(getSections())) {
        if (!name.empty()) deleteSection(name, file);
    }
}

void clsINI::deleteKey(std::string_view key, std::string_view section,
                       std::string_view INIFileLoc) {
    profile_.writePrivateProfileString(sectionOr(section), key, std::nullopt, fileOr(INIFileLoc));
}

void clsINI::deleteKeyValue(std::string_view key, std::string_view section,
                            std::string_view INIFileLoc) {
    setKeyValue(key, {}, section, INIFileLoc);  // the line stays
}

void clsINI::renameSection(std::string_view NewSection, std::string_view section,
                           std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    const std::string_view place = sectionOr(section);
    ensureIniFile();
    // Keys behind the end of the listing are lost with the old section, and a key without a value
    // arrives with the placeholder that its reading gave it.
    for (const std::string& key : pieces(getKeysInSection(place, file))) {
        const std::string value = getKeyValue(key, {}, place, file);
        setKeyValue(key, value, NewSection, file);
    }
    deleteSection(place, file);
}

void clsINI::renameKey(std::string_view currentKey, std::string_view NewKey,
                       std::string_view section, std::string_view INIFileLoc) {
    const std::string_view file = fileOr(INIFileLoc);
    const std::string_view place = sectionOr(section);
    ensureIniFile();
    const std::string value = getKeyValue(currentKey, {}, place, file);
    setKeyValue(NewKey, value, place, file);
    deleteKey(currentKey, place, file);
}

// Always the object's own file, also in a call that names another: a foreign file is not created by
// reading it, and the own one is.
void clsINI::ensureIniFile() {
    files_.touch(sharedFileNumber, inifile_);
}

std::string clsINI::fileNameOf(std::string_view path) {
    return std::string(path.substr(path.rfind('\\') + 1));
}

std::string_view clsINI::fileOr(std::string_view INIFileLoc) const {
    return INIFileLoc.empty() ? inifile_ : INIFileLoc;
}

std::string_view clsINI::sectionOr(std::string_view section) const {
    return section.empty() ? sectionName : section;
}

}  // namespace tessaro
