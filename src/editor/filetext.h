#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/lineorigins.h"
#include "editor/loadedfile.h"

namespace tessaro {

/// The text of a file that is edited in a text box, which knows one kind of line end only. Lines
/// that the user does not touch keep their bytes, new ones end as the line above does.
class FileText {
  public:
    /// The text of no file.
    FileText() : FileText(std::string()) {}
    explicit FileText(std::string bytes);

    /// What the box is to show.
    const std::u16string& loaded() const { return loaded_.text(); }

    /// See `LineOrigins`.
    void replaced(std::size_t first, std::size_t removed, std::size_t added);

    /// The bytes of a file with what the box holds now, and a line break (CR LF) behind it. A text
    /// that does not fit into the loaded file's encoding gives a file in UTF-16LE.
    std::string saved(const BoxLine& box) const;
    /// What the box holds now, with the line ends that a save would give it, in valid UTF-8.
    std::string text(const BoxLine& box) const;

  private:
    /// Some whole loaded lines, and what stands behind them instead of the next ones.
    struct Piece {
        std::size_t from = 0;
        std::size_t to = 0;
        std::u16string typed;
    };

    std::vector<Piece> pieces(const BoxLine& box) const;
    bool hasEnd(const LineOrigin& origin) const;
    LineOrigin firstWithEnd(const std::vector<LineOrigin>& lines) const;
    std::u16string_view endOf(const LineOrigin& origin) const;
    std::u16string joined(const std::vector<Piece>& pieces) const;
    std::optional<std::string> spliced(const std::vector<Piece>& pieces) const;

    LoadedFile loaded_;
    LineOrigins origins_;
};

}  // namespace tessaro
