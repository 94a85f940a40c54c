#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/folderindex.h"
#include "platform/files/host.h"
#include "platform/files/nativegame.h"

namespace tessaro {

// A game that was built for this system does not keep all of a folder in one place. It reads its
// own files and writes into a folder of the player, its home, and starts from a folder of its
// programs that only its kind has. So six of a native game's folders are stacks of host folders:
//
//     folder of the game                host folders, the upper first        a new file goes to
//     System                            HOME/System, PROGRAMS, GAME/System   HOME/System
//     Cache                             HOME/Cache, GAME/Cache               HOME/Cache
//     Maps, Textures, Sounds, Music     HOME/Maps, GAME/Maps ...             GAME/Maps where that
//                                                                            can be written, else
//                                                                            HOME/Maps
//
//     Linux:  HOME      ~/.utpg
//             PROGRAMS  GAME/System64, GAME/SystemARM64 or GAME/System, by the machine
//
// A name is looked for from the top down, in each folder without regard to case. A listing is the
// union of all, of names that differ in case only the upper one. A file is written where it was
// found, but in Cache: the game never changes what lies below there, and neither do we; a write
// makes a file above it.
//
// HOME is made when something is written to it, for its owner only, as the game makes it. So is its
// Cache, once the folder is asked for and neither is there, as in a game that has not downloaded
// anything yet. Where the game cannot use HOME (a file has its name), the folders below are all
// there is, and a new file goes to the uppermost of them.
//
// Some names of System stand for something else, or are special to the game:
//
//     ucc.exe, unrealtournament.exe   the programs in PROGRAMS
//     unrealtournament.ini, user.ini  each by itself. The game knows them as `UnrealTournament.ini`
//                                     and `User.ini` only, so a file of that spelling in any of the
//                                     folders comes before one that differs in case, and a new one
//                                     is spelled so.
//                                     It does not look for them in GAME/System, and without any it
//                                     begins with a copy of its template, `Default.ini` or
//                                     `DefUser.ini`. So one in GAME/System, and failing that the
//                                     template, is what is read, and a write makes that copy first.
//                                     One that is deleted shows none below it, and comes back to
//                                     where it lay: two games share HOME, and a player's file that
//                                     moved there would be played by both.
//
// What ucc makes of a file lies beside it: `x.unr.uz` is first looked for where `x.unr` is.
//
// A folder is known by its name and by the programs of the game round it, which are looked for
// once. An ordinary folder costs a comparison of its name when it is first met.

/// Such a stack.
class LayeredFolder {
  public:
    enum class Kind { System, Cache, Content };
    struct Finding {
        bool folder = false;           ///< whether any of the folders is there
        std::optional<HostPath> path;  ///< nothing if none of them has the name
        std::size_t layer = 0;         ///< which of them has it
        bool first = false;            ///< no other file could come to be found before it
        bool kept = false;             ///< the file is not to be changed
    };

    /// `own` is the game's folder, there or not; `name` as the game spells it.
    LayeredFolder(Host& host, FolderIndex& index, Kind kind, const NativeGame& game,
                  std::string_view name, HostPath own);

    Finding find(std::string_view name) const;
    /// The host folder for one who enters the whole: of System the one with the game's INI, else
    /// HOME's, else the game's. Nothing if none is there.
    std::optional<HostPath> place() const;
    /// The name as it is spelled in the game's folder.
    std::string name() const { return own_.filename().string(); }
    /// The upper first. They need not be there.
    const std::vector<HostPath>& folders() const { return folders_; }
    /// Where a name that is in none of them would come to be.
    HostPath placeForNew(std::string_view name) const;
    /// Where a file is to be written, once its folder has been made if it is HOME's.
    HostPath toWrite(std::string_view name) const;
    /// The file that goes when the name is deleted; nothing if it has to stay.
    std::optional<HostPath> toDelete(std::string_view name);
    /// What the game would make a file of that is not there or has to stay as it is.
    std::optional<HostPath> templateOf(std::string_view name) const;
    /// Makes HOME's folder where it is missing, as far as it can be made.
    void makeUpper() const;

  private:
    struct Profile;
    static const Profile profiles[];
    const Profile* profileNamed(std::string_view name) const;
    const HostPath* programNamed(std::string_view name) const;
    Finding search(std::string_view name, std::size_t depth, bool exact = false) const;
    Finding findProfile(const Profile& profile) const;
    Finding findResult(std::string_view name) const;
    std::size_t layerForNew(std::string_view name) const;

    Host& host_;
    FolderIndex& index_;
    Kind kind_;
    NativeGame game_;
    HostPath own_;
    std::vector<HostPath> folders_;
    mutable std::map<std::string_view, std::size_t> deleted_;  // profile not back yet -> its layer
};

/// All stacks that were met.
class Layers {
  public:
    Layers(Host& host, FolderIndex& index) : host_(host), index_(index) {}

    /// The stack of that name in a game's folder; null if it is an ordinary folder.
    LayeredFolder* in(const HostPath& game, std::string_view name);

  private:
    struct Game {
        std::optional<NativeGame> native;
        std::map<std::string_view, LayeredFolder> folders;  // by the game's spelling
    };
    Game& gameIn(const HostPath& folder);

    Host& host_;
    FolderIndex& index_;
    std::map<HostPath, Game> games_;
};

}  // namespace tessaro
