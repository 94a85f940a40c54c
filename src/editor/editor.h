#pragma once

#include <cstddef>
#include <string>

#include "core/program.h"
#include "editor/filetext.h"

namespace tessaro {

/// The form of the editor, as its logic sees it.
class EditorView {
  public:
    virtual ~EditorView() = default;
    virtual void showOpenedFile(const std::string& openedini, const std::string& title) = 0;
    /// Fills `Text1`. The box tells the change as it tells every other.
    virtual void showText(const std::u16string& text) = 0;
    virtual bool textIsEmpty() = 0;
    /// A line of `Text1` by its number from 0, without its end.
    virtual std::u16string line(std::size_t number) = 0;
};

/// What the editor remembers beyond the life of its form.
struct EditorMemory {
    Int16 EditorDirty;  ///< 1 after any change of the text, 0 after a load; no save clears it
};

/// The editor for the game's INI files: a file's whole text, loaded and saved.
///
/// Each save, of whatever kind, puts a line break behind the text that the text box does not get.
class Editor {
  public:
    Editor(Program& program, EditorView& view, EditorMemory& memory);

    /// To be told of each change of `Text1`; see `LineOrigins::replaced`.
    void textChanged(std::size_t first, std::size_t removed, std::size_t added);

    void loadChosenFile();
    void loadUnrealTournamentIni();
    void loadUserIni();
    void loadCacheIni();
    /// Writes to the file that the dialog `CD1` chose last, whichever file is open. Raises 75 if
    /// it never chose one.
    void save();
    /// Whether the editor may be closed, once the user has been asked. Raises what saving raises.
    bool mayClose();

    /// The text as the search goes through it: UTF-8, with its line ends.
    std::string text() const;

    const std::string& openedini() const { return openedini_; }
    const std::string& title() const { return title_; }
    const std::string& CD1() const { return CD1_; }

  private:
    bool ConfirmEditorDiscard();
    void LoadEditorFile(const std::string& path);
    void confirmAndLoad(const std::string& path);
    void SaveEditorText();
    void SaveFileAs();
    void write(const std::string& path);
    Answer askToSave();

    Program& program_;
    EditorView& view_;
    EditorMemory& memory_;
    FileText text_;
    std::string openedini_;  // full path; empty while no file is open
    std::string title_;
    std::string CD1_;  // the file chosen last in the dialog
};

}  // namespace tessaro
