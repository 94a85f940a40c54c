#include "editor/editor.h"

#include <utility>

#include "core/VORNX.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

constexpr char untitled[] = "Untitled.ini";

}  // namespace

Editor::Editor(Program& program, EditorView& view, EditorMemory& memory)
    : program_(program), view_(view), memory_(memory), title_(untitled) {}

void Editor::textChanged(std::size_t first, std::size_t removed, std::size_t added) {
    memory_.EditorDirty = 1;
    text_.replaced(first, removed, added);
}

std::string Editor::text() const {
    return text_.text([this](std::size_t number) { return view_.line(number); });
}

Answer Editor::askToSave() {
    return program_.dialogs.message(
        {"Do you wish to save changes", "File Not Saved.", Buttons::YesNoCancel, Icon::Question});
}

bool Editor::ConfirmEditorDiscard() {
    if (memory_.EditorDirty != 1) return true;
    const Answer answer = askToSave();
    if (answer == Answer::Yes) SaveEditorText();
    return answer != Answer::Cancel;
}

void Editor::loadChosenFile() {
    if (!ConfirmEditorDiscard()) return;
    std::string chosen;
    attempt([&] {
        chosen = program_.dialogs.pickFileToOpen(
            {"", "All UT .ini Files(*.ini)|*.ini|", program_.gamePaths.UTSysPath});
    });
    if (!chosen.empty()) {
        CD1_ = chosen;
        LoadEditorFile(chosen);
    }
    // Also after a cancelled dialog: changes that the user declined to save count as clean.
    memory_.EditorDirty = 0;
}

void Editor::loadUnrealTournamentIni() {
    confirmAndLoad(program_.gamePaths.UTSysPath + "\\unrealtournament.ini");
}

void Editor::loadUserIni() {
    confirmAndLoad(program_.gamePaths.UTSysPath + "\\user.ini");
}

void Editor::loadCacheIni() {
    confirmAndLoad(program_.gamePaths.UTCachePath + "\\cache.ini");
}

void Editor::confirmAndLoad(const std::string& path) {
    if (ConfirmEditorDiscard()) LoadEditorFile(path);
}

// A file that cannot be read changes the names that are shown, and not the text.
void Editor::LoadEditorFile(const std::string& path) {
    title_ = FileNamePart(path);
    openedini_ = path;
    view_.showOpenedFile(openedini_, title_);
    attempt([&] {
        FileText loaded(program_.files.read(path));
        view_.showText(loaded.loaded());
        text_ = std::move(loaded);
    });
    memory_.EditorDirty = 0;
}

void Editor::save() {
    if (!openedini_.empty()) return write(CD1_);
    if (!view_.textIsEmpty()) return SaveFileAs();
    program_.dialogs.message({"No File Loaded", "No file to save", Buttons::Ok, Icon::Stop});
}

void Editor::SaveEditorText() {
    write(openedini_);
}

// What is shown as open stays as it was.
void Editor::SaveFileAs() {
    std::string chosen;
    attempt([&] {
        chosen = program_.dialogs.pickFileToSave(
            {"Save File As", "All File Types(*.*)|*.*|", program_.gamePaths.UTSysPath, title_});
    });
    if (chosen.empty()) return;
    CD1_ = chosen;
    attempt([&] { write(chosen); });
}

void Editor::write(const std::string& path) {
    program_.files.replace(path,
                           text_.saved([this](std::size_t number) { return view_.line(number); }));
}

bool Editor::mayClose() {
    if (memory_.EditorDirty != 1) return true;
    const Answer answer = askToSave();
    if (answer != Answer::Yes) return answer == Answer::No;
    if (!openedini_.empty()) {
        SaveEditorText();
        return true;
    }
    if (title_ == untitled) SaveFileAs();
    return !CD1_.empty();
}

}  // namespace tessaro
