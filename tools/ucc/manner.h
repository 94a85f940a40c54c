#pragma once

#include <filesystem>

namespace tessaro::ucc {

/// How the stand-in behaves: the environment variable TESSARO_UCC holds the word.
enum class Manner {
    Proper,
    Silent,     ///< "silent": leaves no file, and says that all went well
    Crash,      ///< "crash": dies of a signal
    OtherName,  ///< "othername": leaves its file under a name that begins with "other-"
    Slow,       ///< "slow": see dawdle()
    Utf16,      ///< "utf16": prints in UTF-16LE
    ReadsInput  ///< "stdin": reads its standard input to the end first
};

/// Raises std::runtime_error for a word that is none of them.
Manner mannerFromEnvironment();

/// Waits until there is a file named by TESSARO_UCC_RELEASE; without that variable, five seconds.
void dawdle();

/// What the manner makes of the name of a file to be written.
std::filesystem::path outputName(const std::filesystem::path& file, Manner manner);

}  // namespace tessaro::ucc
