#pragma once

#include <QMainWindow>
#include <QMenu>
#include <memory>

#include "kit/forms/forms.h"

namespace Ui {
class inieditorpopup;
}

namespace tessaro {

class Editor;

/// The menus of the editor, which has no menu bar of its own. The form itself is never shown; once
/// loaded it stays until all forms are unloaded.
class inieditorpopup : public FormWindow<QMainWindow> {
    Q_OBJECT
  public:
    explicit inieditorpopup(Forms& forms);
    ~inieditorpopup() override;

    QMenu& mnufileini() const;
    QMenu& mnueditini() const;

  private:
    void connectToEditor(QAction* item, void (Editor::*command)());

    std::unique_ptr<Ui::inieditorpopup> ui_;
};

}  // namespace tessaro
