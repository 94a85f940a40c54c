#include "editor/inieditorpopup.h"

#include "editor/findfrm.h"
#include "editor/inieditor.h"
#include "kit/forms/handler.h"
#include "ui_inieditorpopup.h"

namespace tessaro {

inieditorpopup::inieditorpopup(Forms& forms)
    : FormWindow<QMainWindow>(forms), ui_(std::make_unique<Ui::inieditorpopup>()) {
    ui_->setupUi(this);
    connectToEditor(ui_->mnuloadini, &Editor::loadChosenFile);
    connectToEditor(ui_->mnusave, &Editor::save);
    connectToEditor(ui_->mnueditutini, &Editor::loadUnrealTournamentIni);
    connectToEditor(ui_->mnuedituserini, &Editor::loadUserIni);
    connectToEditor(ui_->mnueditcacheini, &Editor::loadCacheIni);
    on(ui_->mnuclose, &QAction::triggered, forms,
       [&forms] { forms.close(forms.get<inieditor>()); });
    on(ui_->mnufind, &QAction::triggered, forms, [&forms] { forms.showModal<findfrm>(); });
}

inieditorpopup::~inieditorpopup() = default;

void inieditorpopup::connectToEditor(QAction* item, void (Editor::*command)()) {
    on(item, &QAction::triggered, forms(),
       [this, command] { (forms().get<inieditor>().editor().*command)(); });
}

QMenu& inieditorpopup::mnufileini() const {
    return *ui_->mnufileini;
}

QMenu& inieditorpopup::mnueditini() const {
    return *ui_->mnueditini;
}

}  // namespace tessaro
