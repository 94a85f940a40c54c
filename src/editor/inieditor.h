#pragma once

#include <QMenu>
#include <memory>

#include "editor/editor.h"
#include "kit/frame/skinnedform.h"

namespace Ui {
class inieditorContent;
}

namespace tessaro {

/// The editor for the game's INI files. Two labels stand for menu titles; the menus themselves are
/// on `inieditorpopup`.
class inieditor : public SkinnedForm, private EditorView {
    Q_OBJECT

  public:
    inieditor(Forms& forms, Program& program, EditorMemory& memory);
    ~inieditor() override;

    void Load() override;
    bool QueryUnload() override;
    bool QueryUnloadAll() override;
    void Unload() override;

    Editor& editor() { return editor_; }
    /// Selects a part of `Text1`; see `TextBox`.
    void select(std::size_t start, std::size_t length);
    void focusText();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void setupLabels();
    void placeLabels();
    void popUp(QMenu& menu, double left);

    void showOpenedFile(const std::string& openedini, const std::string& title) override;
    void showText(const std::u16string& text) override;
    bool textIsEmpty() override;
    std::u16string line(std::size_t number) override;

    Program& program_;
    std::unique_ptr<Ui::inieditorContent> ui_;
    Editor editor_;
};

}  // namespace tessaro
