#pragma once

#include <string>

#include "platform/text/encoding.h"

namespace tessaro::ucc {

/// What the program prints, line by line, as it happens.
class Console {
  public:
    /// The game's tool writes UTF-16LE into a file or a pipe on some systems, and on Linux nothing
    /// but ASCII, letters outside of it `garbled`.
    explicit Console(Encoding encoding, bool garbled = false)
        : encoding_(encoding), garbled_(garbled) {}
    /// `line` is UTF-8, as names of files are.
    void print(const std::string& line) const;

  private:
    Encoding encoding_;
    bool garbled_;
};

}  // namespace tessaro::ucc
