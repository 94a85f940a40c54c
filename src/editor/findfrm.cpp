#include "editor/findfrm.h"

#include "editor/boxtext.h"
#include "editor/inieditor.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "shell/Skins.h"
#include "ui_findfrm.h"

namespace tessaro {

findfrm::findfrm(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "Find What?", .title = "Find Text"}),
      program_(program),
      ui_(std::make_unique<Ui::findfrmContent>()),
      search_(program.dialogs, *this) {
    setUpContent(*ui_);
    on(ui_->Text2, &QLineEdit::textChanged, forms,
       [this](const QString& text) { ui_->Command1->setDisabled(text.isEmpty()); });
    on(ui_->Command1, &QPushButton::clicked, forms,
       [this] { search_.click(fromQt(ui_->Text2->text())); });
    on(ui_->Command2, &QPushButton::clicked, forms, [this] { this->forms().close(*this); });
    setCancelButton(*ui_->Command2);
}

findfrm::~findfrm() = default;

void findfrm::Load() {
    ApplySkin(program_, forms(), *this);
    search_.open(editor().editor().text());
    moveToCornerOfEditor();
}

inieditor& findfrm::editor() {
    return forms().get<inieditor>();
}

// Out of the way of the hits, which are shown in the middle of the text.
void findfrm::moveToCornerOfEditor() {
    move(editor().geometry().bottomRight() - rect().bottomRight());
}

void findfrm::select(std::size_t start, std::size_t length) {
    const std::size_t from = boxPosition(search_.SearchText, start);
    editor().select(from, boxPosition(search_.SearchText, start + length) - from);
}

void findfrm::focusText() {
    editor().focusText();
}

void findfrm::showCaption(const std::string& caption) {
    ui_->Command1->setText(toQt(caption));
}

}  // namespace tessaro
