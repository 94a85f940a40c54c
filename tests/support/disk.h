#pragma once

#include <filesystem>
#include <system_error>

namespace tessaro::test {

/// The reasons of tests that are skipped.
inline constexpr const char* noLinks = "links cannot be made here";
inline constexpr const char* noPermissions = "files are not kept from some of their users here";
inline constexpr const char* noDevices = "devices have no names among the files here";
inline constexpr const char* noCases = "names that differ in case only are one name here";
inline constexpr const char* noLostFolder = "a folder that a program is in cannot be deleted here";
inline constexpr const char* noNamelessFiles = "a file has its name from the beginning here";
inline constexpr const char* noOddNames = "no file can bear such a name here";

/// Whether links can be made: not on every system, nor by everybody.
inline bool hasLinks() {
    namespace fs = std::filesystem;
    static const bool made = [] {
        const auto link = fs::temp_directory_path() / "tessaro-test-link";
        std::error_code failure;
        fs::create_symlink("nowhere", link, failure);
        // Another run of the tests may be asking at the same moment.
        const bool can = !failure || failure == std::errc::file_exists;
        fs::remove(link, failure);
        return can;
    }();
    return made;
}

/// Whether a file has permissions for its owner, a group and all others.
inline bool hasPermissions(const std::filesystem::path& file) {
    namespace fs = std::filesystem;
    const fs::perms before = fs::status(file).permissions();
    fs::permissions(file, fs::perms(0640));
    const bool kept = fs::status(file).permissions() == fs::perms(0640);
    fs::permissions(file, before);
    return kept;
}

inline bool onPosix() {
    return std::filesystem::path::preferred_separator == '/';
}

/// Whether names that differ in case only are names of two files.
inline bool hasCases() {
    return onPosix();
}

/// Whether a file may have any name but one with the separator in it: asterisks, stray bytes.
inline bool hasOddNames() {
    return onPosix();
}

/// Whether a file can be written before it has a name.
inline bool hasNamelessFiles() {
    return onPosix();
}

/// Whether a folder can be deleted while a program is in it.
inline bool canLoseFolder() {
    return onPosix();
}

}  // namespace tessaro::test
