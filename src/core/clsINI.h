#pragma once

#include <string>
#include <string_view>

#include "platform/files/filetable.h"
#include "platform/profile/profilecalls.h"
#include "platform/runtime/int16.h"

namespace tessaro {

/// Where the running program lies: its folder in the game's form and its name without extension.
struct ProgramFile {
    std::string folder;
    std::string name;

    /// The program's settings, beside it.
    std::string settingsFile() const { return folder + "\\vornx.ini"; }
};

/// The one door to profile-style text files: the program's own settings and the game's INI files.
/// Holds nothing of a file in memory; what a member writes is in the file when it returns.
///
/// An empty `INIFileLoc` means the field `inifile`; an empty `section` means the field
/// `sectionName`, but for the two Create members. Reading a value writes its default into the file
/// if the key has none, and creates the file `inifile` if there is none.
///
/// The touch step of the reading members opens `inifile` under file number 1; that is the only
/// run-time error that leaves the class (55, 75, 76). Failed writes go unnoticed.
class clsINI {
  public:
    clsINI(ProfileCalls& profile, FileTable& files, ProgramFile program);

    /// Stores a path; both section fields become its file name up to the last dot.
    void inifile(std::string_view INIFileIn);
    const std::string& inifile() const { return inifile_; }
    /// `inifile` becomes the program's own name with ".ini"; the sections stay.
    void setDefaultINIFilePath();

    std::string sectionName;
    std::string defaultSectionName;
    std::string DefaultReturnValue;

    void CreateKeyValue(std::string_view section, std::string_view key, std::string_view value,
                        std::string_view INIFileLoc = {});
    void CreateKey(std::string_view section, std::string_view key,
                   std::string_view INIFileLoc = {});
    void setKey(std::string_view key, std::string_view section = {},
                std::string_view INIFileLoc = {});
    void setKeyValue(std::string_view key, std::string_view value, std::string_view section = {},
                     std::string_view INIFileLoc = {});
    std::string getVersion(std::string_view INIFileLoc = {});
    /// Names joined by NUL; of a listing over 1021 characters the rest is lost.
    std::string getSections(std::string_view INIFileLoc = {});
    Int16 getNumberOfSections(std::string_view INIFileLoc = {});
    std::string getKeysInSection(std::string_view section = {}, std::string_view INIFileLoc = {});
    Int16 getNumberOfKeysInSection(std::string_view section = {}, std::string_view INIFileLoc = {});
    /// At most 254 characters. A key without a value gets `defaultValue` ("<not_set>" if that is
    /// empty) in the file and as the result.
    std::string getKeyValue(std::string_view key, std::string_view defaultValue = {},
                            std::string_view section = {}, std::string_view INIFileLoc = {});
    void deleteSection(std::string_view section = {}, std::string_view INIFileLoc = {});
    void deleteAllSections(std::string_view INIFileLoc = {});
    void deleteKey(std::string_view key, std::string_view section = {},
                   std::string_view INIFileLoc = {});
    void deleteKeyValue(std::string_view key, std::string_view section = {},
                        std::string_view INIFileLoc = {});
    void renameSection(std::string_view NewSection, std::string_view section = {},
                       std::string_view INIFileLoc = {});
    void renameKey(std::string_view currentKey, std::string_view NewKey,
                   std::string_view section = {}, std::string_view INIFileLoc = {});

  private:
    void ensureIniFile();
    static std::string fileNameOf(std::string_view path);
    std::string_view fileOr(std::string_view INIFileLoc) const;
    std::string_view sectionOr(std::string_view section) const;

    ProfileCalls& profile_;
    FileTable& files_;
    ProgramFile program_;
    std::string inifile_;
};

}  // namespace tessaro
