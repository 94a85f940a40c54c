#include "players/Users.h"

#include "core/MainFrm.h"
#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "players/username.h"
#include "shell/Skins.h"
#include "ui_Users.h"

namespace tessaro {

Users::Users(Forms& forms, Program& program, UserMan& userMan)
    : SkinnedForm(forms, {.caption = "UT User Manager", .title = "User Manager"}),
      ui_(std::make_unique<Ui::UsersContent>()),
      program_(program),
      rules_(program, userMan, *this) {
    setUpContent(*ui_);
    setupList();
    setupCommands();
}

Users::~Users() = default;

void Users::setupList() {
    ui_->ListView1->show(rows_);
    ui_->ListView1->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    on(ui_->ListView1, &ListView::doubleClicked, forms(), [this] { ui_->Command7->click(); });
}

void Users::setupCommands() {
    on(ui_->Command2, &QPushButton::clicked, forms(), [this] { rules_.saveCurrent(); });
    on(ui_->Command3, &QPushButton::clicked, forms(), [this] { rules_.play(); });
    on(ui_->Command4, &QPushButton::clicked, forms(), [this] { rules_.deleteSelected(); });
    on(ui_->Command5, &QPushButton::clicked, forms(), [this] { rules_.changeName(); });
    on(ui_->Command7, &QPushButton::clicked, forms(), [this] { rules_.setAsCurrent(); });
}

void Users::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    rules_.open();
    refit(*ui_->ListView1);  // as wide as its columns
}

void Users::Unload() {
    rules_.save();
}

std::string Users::currentName() {
    return fromQt(ui_->Text1->text());
}

void Users::showCurrentName(const std::string& name) {
    ui_->Text1->setText(toQt(name));
}

void Users::enableSwap(bool enabled) {
    // Left alone, the focus would go on to the button that deletes.
    if (!enabled && ui_->Command7->hasFocus()) ui_->ListView1->setFocus();
    ui_->Command7->setEnabled(enabled);
}

void Users::setBusyPointer(bool busy) {
    busy ? setCursor(Qt::WaitCursor) : unsetCursor();
}

void Users::editName() {
    forms().showModal<username>();
}

void Users::closeForm() {
    forms().unload(*this);
}

void Users::setMainState(int state) {
    forms().get<MainFrm>().setState(state);
}

}  // namespace tessaro
