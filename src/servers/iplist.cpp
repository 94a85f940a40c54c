#include "servers/iplist.h"

#include "core/MainFrm.h"
#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "servers/listeditmenu.h"
#include "shell/Skins.h"
#include "ui_iplist.h"

namespace tessaro {

iplist::iplist(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "UT Favorites", .title = "UT IP Manager"}),
      program_(program),
      manager_(program, *this),
      ui_(std::make_unique<Ui::iplistContent>()) {
    setUpContent(*ui_);
    setupList();
    setupCommands();
}

iplist::~iplist() = default;

void iplist::setupList() {
    ListView& list = *ui_->ListView1;
    list.show(manager_.ListView1);
    on(&list, &ListView::columnClicked, forms(), [this](int column) { manager_.sortBy(column); });
    on(&list, &ListView::doubleClicked, forms(), [this] { manager_.playIfSelected(); });
    on(&list, &ListView::menuWanted, forms(),
       [this](const QPoint& place) { forms().get<listeditmenu>().popup(place); });
}

void iplist::setupCommands() {
    on(ui_->Command1, &QPushButton::clicked, forms(), [this] { manager_.play(); });
    on(ui_->Command2, &QPushButton::clicked, forms(), [this] { manager_.add(); });
    on(ui_->Command3, &QPushButton::clicked, forms(), [this] { manager_.remove(); });
    on(ui_->Command4, &QPushButton::clicked, forms(), [this] { manager_.importFavorites(); });
    for (QLineEdit* box : {ui_->Text1, ui_->Text2, ui_->Text3})
        on(box, &QLineEdit::returnPressed, forms(), [this] { manager_.add(); });
}

void iplist::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    LoadServerList(program_, manager_.ListView1);
}

void iplist::Unload() {
    SaveServerList(program_, manager_.ListView1);
}

ServerRecord iplist::entered() {
    return {lineFromQt(ui_->Text1->text()), lineFromQt(ui_->Text2->text()),
            lineFromQt(ui_->Text3->text())};
}

void iplist::clearEntered() {
    for (QLineEdit* box : {ui_->Text1, ui_->Text2, ui_->Text3}) box->clear();
}

void iplist::closeForm() {
    forms().unload(*this);
}

MainWindow& iplist::mainWindow() {
    return forms().get<MainFrm>();
}

}  // namespace tessaro
