#pragma once

#include <cstddef>
#include <string>

#include "platform/outside/dialogs.h"
#include "platform/runtime/int16.h"

namespace tessaro {

/// What a search shows. Places count characters from 0, a CR LF as two.
class SearchView {
  public:
    virtual ~SearchView() = default;
    virtual void select(std::size_t start, std::size_t length) = 0;
    virtual void focusText() = 0;
    virtual void showCaption(const std::string& caption) = 0;
};

/// The search of the editor, through a copy of its text, without regard to case. A place beyond
/// the 32767th character does not fit into `SearchPos` and raises 6.
class Search {
  public:
    Search(Dialogs& dialogs, SearchView& view) : dialogs_(dialogs), view_(view) {}

    /// Starts on a fresh copy of the text, which is valid UTF-8.
    void open(std::string text);
    /// The one button, whose first click searches twice: it shows the second hit, or fails with
    /// error 5 if there is none at all.
    void click(const std::string& wanted);

    /// From the top.
    void FindFirst(const std::string& wanted);
    /// From `SearchPos` on, and from the top again behind the last hit. Raises 5 for a `SearchPos`
    /// of 0.
    void FindNext(const std::string& wanted);
    /// From the end backwards. Nothing calls it yet.
    void FindLast(const std::string& wanted);

    std::string SearchText;
    Int16 SearchPos;    ///< the character, from 1, behind the last hit; 0 without one
    Int16 SearchCount;  ///< hits since the last FindFirst

  private:
    Int16 positionFrom(Int16 start, const std::string& wanted) const;
    Int16 positionAt(std::size_t byte) const;
    void show(const std::string& wanted);
    void reportNoHit();

    Dialogs& dialogs_;
    SearchView& view_;
    std::string folded_;  // SearchText in lower case
    std::string caption_;
};

}  // namespace tessaro
