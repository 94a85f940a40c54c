#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// Whether a name is one that the game gives its screenshots: "shot" in front, "bmp" at the end, in
/// any letter case. A dot is not asked for.
bool isScreenshotName(std::string_view name);

/// The names of the shots, and which of them is selected. Indices count from 0; -1 is a selection
/// too: none.
class ShotList {
  public:
    static constexpr int noSelection = -1;

    void add(std::string name) { names_.push_back(std::move(name)); }
    const std::vector<std::string>& names() const { return names_; }
    int count() const { return static_cast<int>(names_.size()); }

    int index() const { return index_; }
    /// The selected name, or an empty text.
    std::string selectedName() const;
    /// Tells whether that changed the selection. Raises 380 for an index that the list has not.
    bool select(int index);
    /// Removes the selected name; nothing is selected then. There must be a selection.
    void removeSelected();

  private:
    std::vector<std::string> names_;
    int index_ = noSelection;
};

}  // namespace tessaro
