#include "prefs/Prefs.h"

#include <QApplication>
#include <QSignalBlocker>
#include <algorithm>

#include "core/MainFrm.h"
#include "core/centerform.h"
#include "kit/controls/option.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "shell/Skins.h"
#include "ui_Prefs.h"

namespace tessaro {
namespace {

constexpr int mostDigitsOfDays = 3;

// What the dialog is filled with is no click.
void setOption(QAbstractButton& option, bool chosen) {
    const QSignalBlocker unheard(option);
    option.setChecked(chosen);
}

// 0 clear, 1 ticked, 2 greyed; what else a settings file may hold counts as off.
void setCheckValue(QCheckBox& box, int value) {
    const QSignalBlocker unheard(box);
    if (value == 2) return box.setCheckState(Qt::PartiallyChecked);
    box.setChecked(value == 1);
}

int checkValue(const QCheckBox& box) {
    if (box.checkState() == Qt::PartiallyChecked) return 2;
    return box.isChecked() ? 1 : 0;
}

StartMap selectedMap(const Ui::PrefsContent& ui) {
    if (ui.Option6->isChecked()) return StartMap::Custom;
    if (ui.Option7->isChecked()) return StartMap::BlackLogo;
    if (ui.Option8->isChecked()) return StartMap::Flyby;
    return StartMap::None;
}

}  // namespace

Prefs::Prefs(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "Ovrin Tessaro", .title = "Preferences"}),
      ui_(std::make_unique<Ui::PrefsContent>()),
      program_(program),
      rules_(program, *this) {
    setUpContent(*ui_);
    ui_->Text1->setFocus();
    setupCommands();
    setupDirtyMarks();
    setupChecks();
}

Prefs::~Prefs() {
    // A visible window loses the focus as it is destroyed, when this part of it is gone already.
    disconnect(qApp, nullptr, this, nullptr);
}

void Prefs::setupCommands() {
    on(ui_->Command1, &QPushButton::clicked, forms(), [this] { rules_.browse(); });
    on(ui_->Command2, &QPushButton::clicked, forms(), [this] { rules_.apply(); });
    on(ui_->Command3, &QPushButton::clicked, forms(), [this] { rules_.clearCache(); });
    on(ui_->Command5, &QPushButton::clicked, forms(), [this] {
        // Its letter and a screen reader press it where the focus is not.
        followFocus(focusWidget(), ui_->Command5);
        rules_.cancel();
    });
    setCancelButton(*ui_->Command5);
    on(ui_->Command6, &QPushButton::clicked, forms(), [this] { rules_.ok(); });
}

void Prefs::setupDirtyMarks() {
    const auto changed = [this] { rules_.changed(); };
    for (QLineEdit* box : {ui_->Text1, ui_->Text2, ui_->Text3})
        connect(box, &QLineEdit::textChanged, this, changed);
    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             ui_->Check3, ui_->Check4, ui_->Option1, ui_->Option2, ui_->Option3, ui_->Option4,
             ui_->Option5, ui_->Option6, ui_->Option7, ui_->Option8})
        onSet(*button, forms(), changed);
    connect(qApp, &QApplication::focusChanged, this, &Prefs::followFocus);
}

void Prefs::setupChecks() {
    // A greyed box can be clicked out of that state, but not into it.
    for (QCheckBox* box : {ui_->Check1, ui_->Check2, ui_->Check3, ui_->Check4})
        onSet(*box, forms(), [box] { box->setTristate(false); });
    connect(ui_->Text2, &QLineEdit::textEdited, this,
            [this] { ui_->Text2->setMaxLength(mostDigitsOfDays); });
}

// These two count as changed when the focus leaves them, not at the click, and not when it goes
// straight to the close box.
void Prefs::followFocus(const QWidget* left, const QWidget* entered) {
    if (left != ui_->Check1 && left != ui_->Check2) return;
    if (isAncestorOf(entered) && entered != CommandX) rules_.changed();
}

void Prefs::Load() {
    PrepareForm(*this);
    rules_.open();
    ui_->pathHint->setVisible(!okEnabled());
    refit(*ui_->pathHint);
}

bool Prefs::QueryUnload() {
    rules_.cancel();
    return false;
}

std::string Prefs::folder() {
    return fromQt(ui_->Text1->text());
}

void Prefs::showFolder(const std::string& folder) {
    ui_->Text1->setText(toQt(folder));
}

void Prefs::selectFolder() {
    ui_->Text1->selectAll();
}

void Prefs::showTimesUsed(int count) {
    ui_->cntlbl->setText(QString::number(count));
}

PrefsOptions Prefs::options() {
    return {folder(),
            checkValue(*ui_->Check1),
            checkValue(*ui_->Check2),
            checkValue(*ui_->Check3),
            fromQt(ui_->Text5->text()),
            fromQt(ui_->Text6->text()),
            fromQt(ui_->Text7->text()),
            ui_->Option3->isChecked(),
            ui_->Option4->isChecked(),
            ui_->Option5->isChecked()};
}

void Prefs::showOptions(const PrefsOptions& options) {
    showFolder(options.gameFolder);
    setCheckValue(*ui_->Check1, options.sounds);
    setCheckValue(*ui_->Check2, options.autoSave);
    setCheckValue(*ui_->Check3, options.showSplash);
    ui_->Text5->setText(toQt(options.extractDest));
    ui_->Text6->setText(toQt(options.defUser));
    ui_->Text7->setText(toQt(options.asciiFont));
    setOption(*ui_->Option3, options.firstSkin);
    setOption(*ui_->Option4, options.secondSkin);
    setOption(*ui_->Option5, options.thirdSkin);
}

GameTweaks Prefs::tweaks() {
    return {fromQt(ui_->Text3->text()), selectedMap(*ui_), fromQt(ui_->Text2->text()),
            checkValue(*ui_->Check4)};
}

void Prefs::showTweaks(const GameTweaks& tweaks) {
    ui_->Text3->setText(toQt(tweaks.mapName));
    setOption(*ui_->Option6, tweaks.startMap == StartMap::Custom);
    setOption(*ui_->Option7, tweaks.startMap == StartMap::BlackLogo);
    setOption(*ui_->Option8, tweaks.startMap == StartMap::Flyby);
    // Three characters can be typed. A longer number in the game's file stays whole, and is
    // written back whole, until the user edits it.
    const QString days = toQt(tweaks.purgeDays);
    ui_->Text2->setMaxLength(std::max(mostDigitsOfDays, int(days.size())));
    ui_->Text2->setText(days);
    setCheckValue(*ui_->Check4, tweaks.bossSkins);
}

bool Prefs::okEnabled() {
    return ui_->Command6->isEnabled();
}

void Prefs::enableSaving() {
    ui_->Command6->setEnabled(true);
    ui_->Command2->setEnabled(true);
    ui_->pathHint->hide();
}

void Prefs::applySkin() {
    ApplySkin(program_, forms(), *this);
}

void Prefs::hideDialog() {
    hide();
}

void Prefs::showDialog() {
    forms().show(*this);
}

void Prefs::closeDialog() {
    forms().unload(*this);
}

void Prefs::endProgram() {
    forms().unload(*this);
    if (auto* mainWindow = forms().loaded<MainFrm>()) forms().unload(*mainWindow);
    forms().end();
}

}  // namespace tessaro
