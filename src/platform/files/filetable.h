#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/files.h"
#include "platform/text/encoding.h"

namespace tessaro {

/// Text files opened by number (1 to 511). A number in use raises 55, a number that is not open 52,
/// a wrong mode 54. Two routines that use the same fixed number therefore must not overlap, and
/// fail visibly if they do.
class FileTable {
  public:
    explicit FileTable(Files& files) : files_(files) {}

    /// Raises 53, 75, 76 if the file cannot be read.
    void openInput(int number, std::string_view file);
    /// The file is replaced whole when it is closed. Raises 75, 76 at once if that cannot be.
    void openOutput(int number, std::string_view file);
    /// Creates the file if there is none. What is printed goes to its end when it is closed.
    void openAppend(int number, std::string_view file);
    /// The same, closed at once: what is left of it is a file that is there.
    void touch(int number, std::string_view file);

    /// The next line without its end (CR LF, CR or LF), to be looked at or copied before the file
    /// is closed. Raises 62 past the end.
    std::string_view lineInput(int number);
    bool endOfFile(int number);
    /// Adds a line, ended by CR LF.
    void printLine(int number, std::string_view text);
    /// Closing a number that is not open does nothing.
    void close(int number);
    /// The lowest number that is free. Raises 67 if all are in use.
    int freeNumber() const;

  private:
    enum class Mode { Input, Output, Append };
    struct OpenFile {
        Mode mode;
        std::string path;  // full game path: the current folder may change while it is open
        std::string text;  // input: the whole file; otherwise what was printed
        std::size_t position = 0;
        Encoding encoding = Encoding::CodePage;
    };
    OpenFile& opened(int number, bool forInput);
    void requireFree(int number) const;
    void save(const OpenFile& file);

    Files& files_;
    std::map<int, OpenFile> open_;
};

}  // namespace tessaro
