#include "players/ascii.h"

#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "players/asciibas.h"
#include "shell/Skins.h"
#include "ui_ascii.h"

namespace tessaro {

ascii::ascii(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "ASCII Viewer",
                          .title = "ASCII Viewer",
                          .secondButton = true,
                          .dragBy = DragBy::Plate,
                          .secondButtonTask = "Help"}),
      ui_(std::make_unique<Ui::asciiContent>()),
      program_(program) {
    setUpContent(*ui_);
    setupChart();
    setupHelp();
}

ascii::~ascii() = default;

void ascii::setupChart() {
    ui_->Text2->setFixedWidth(2 * ui_->Text2->fontMetrics().height());
    refit(*ui_->Text2);
    on(ui_->List1, &CharacterList::mousePressed, forms(), [this] { showPicked(); });
    on(ui_->List1, &CharacterList::chosen, forms(), [this] { addPicked(); });
}

void ascii::setupHelp() {
    on(CommandQ, &QPushButton::clicked, forms(), [this] { showHelp(); });
}

void ascii::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    ui_->List1->fill(chartRows());
}

void ascii::showPicked() {
    ui_->Text2->setText(ui_->List1->picked());
}

// All of the text is highlighted, for the box's own menu, which is where copying happens.
void ascii::addPicked() {
    showPicked();  // a key has not shown it yet
    ui_->Text1->setText(ui_->Text1->text() + ui_->List1->picked());
    ui_->Text1->setFocus();
    ui_->Text1->selectAll();
}

void ascii::showHelp() {
    program_.dialogs.message(
        {"Double Click on an item to add it to box below. Spell words and names, then \r\n"
         "rightclick the bottom highlighted text to copy and paste to another location",
         "ASCII Viewer Help", Buttons::Ok, Icon::None});
}

void ascii::mouseDoubleClickEvent(QMouseEvent*) {
    setWindowState(Qt::WindowNoState);
}

}  // namespace tessaro
