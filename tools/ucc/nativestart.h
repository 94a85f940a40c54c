#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tessaro::ucc {

/// What the game's programs for Linux do first, whatever they are asked for: they find their
/// folder, make the player's, `~/.utpg/System`, and look for the two INIs there, then beside
/// themselves. One that is in neither is made in the player's folder, of its template.
class NativeStart {
  public:
    /// What a program of that file does. Nothing if its name is none of a program for Linux, which
    /// are `ucc-bin` and `ut-bin`, as a rule with the machine behind.
    static std::optional<NativeStart> of(const std::filesystem::path& program);

    /// The folder of the program, and the player's; where that cannot be used, the same.
    const std::filesystem::path& programs() const { return programs_; }
    const std::filesystem::path& written() const { return written_; }
    /// The three lines that tell what is used.
    std::vector<std::string> lines() const;
    /// Writes the game's INI as nearly every run does, and leaves what it was made in lying.
    void rewriteIni() const;

  private:
    explicit NativeStart(std::filesystem::path programs);
    std::filesystem::path find(const char* name, const char* madeOf) const;

    std::filesystem::path programs_;
    std::filesystem::path written_;
    std::filesystem::path gameIni_;
    std::filesystem::path userIni_;
};

}  // namespace tessaro::ucc
