#include "players/username.h"

#include <QRegularExpression>

#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "players/Users.h"
#include "players/asciibas.h"
#include "shell/Skins.h"
#include "ui_username.h"

namespace tessaro {

username::username(Forms& forms, Program& program, UserMan& userMan)
    : SkinnedForm(forms, {.caption = "Change Name", .title = "Change Name"}),
      ui_(std::make_unique<Ui::usernameContent>()),
      program_(program),
      editor_(program, userMan, forms.get<Users>().UserTable()) {
    setUpContent(*ui_);
    setupCommands();
}

username::~username() = default;

void username::setupCommands() {
    const auto close = [this] { forms().unload(*this); };
    on(ui_->Text1, &QLineEdit::textChanged, forms(),
       [this](const QString& name) { followName(name); });
    on(ui_->Command1, &QPushButton::clicked, forms(), [this] { applyStyle(1); });
    on(ui_->Command2, &QPushButton::clicked, forms(), [this] { applyStyle(2); });
    on(ui_->Command3, &QPushButton::clicked, forms(), [this] { applyStyle(3); });
    on(ui_->ok, &QPushButton::clicked, forms(), [this] { confirm(); });
    on(ui_->Command4, &QPushButton::clicked, forms(), close);
    setCancelButton(*ui_->Command4);
}

void username::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    ui_->Text1->setText(toQt(editor_.open()));
    ui_->Text2->setText(ui_->Text1->text());
    ui_->ok->setEnabled(false);
}

// Always from the name as it was, never on top of another style.
void username::applyStyle(int style) {
    ui_->Text1->setText(ui_->Text2->text());
    ui_->Text1->setText(toQt(StylizeName(fromQt(ui_->Text1->text()), style)));
}

void username::followName(const QString& name) {
    // What was pasted may have several lines. A name with a line's end in it would forge lines in
    // the list of players.
    static const QRegularExpression lineEnd(QStringLiteral("[\\r\\n]"));
    if (name.contains(lineEnd)) return ui_->Text1->setText(name.section(lineEnd, 0, 0));
    ui_->ok->setEnabled(!name.isEmpty());
}

void username::confirm() {
    editor_.commit(fromQt(ui_->Text1->text()));
    forms().unload(*this);
}

}  // namespace tessaro
