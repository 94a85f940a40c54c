#include "cache/mapext.h"

#include <QApplication>

#include "cache/wizard.h"
#include "core/VORNX.h"
#include "core/centerform.h"
#include "core/routines.h"
#include "kit/controls/listview.h"
#include "kit/controls/option.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"
#include "shell/Skins.h"
#include "ui_mapext.h"

namespace tessaro {

mapext::mapext(Forms& forms, Program& program, CacheEntry& entry)
    : SkinnedForm(forms, {.caption = "UT Cached Files Extractor", .title = "Map Extractor"}),
      phile(program.makeINI()),
      program_(program),
      ui_(std::make_unique<Ui::mapextContent>()),
      extraction_(program, *this, entry) {
    setUpContent(*ui_);
    setupStepOne();
    setupStepTwo();
    setupStepThree();
    setupDefaultButtons();
}

mapext::~mapext() {
    // The focus changes once more while the form's window goes, after our controls are gone.
    disconnect(qApp, nullptr, this, nullptr);
}

void mapext::setupStepOne() {
    ui_->Command4->setMaximumWidth(3 * ui_->Command4->fontMetrics().height());
    refit(*ui_->Command4);
    ui_->Drive1->use(program_.files);
    ui_->Dir1->use(program_.files);
    on(ui_->Drive1, &DriveList::changed, forms(), [this] { changeDrive(); });
    on(ui_->Dir1, &FolderList::changed, forms(), [this] { changeFolder(); });
    on(ui_->Command4, &QPushButton::clicked, forms(), [this] { goToTypedFolder(); });
    on(ui_->Command2, &QPushButton::clicked, forms(), [this] { forms().unload(*this); });
    setCancelButton(*ui_->Command2);
    on(ui_->next, &QPushButton::clicked, forms(), [this] { toStepTwo(); });
}

void mapext::setupStepTwo() {
    setNewFolderVisible(false);
    onSet(*ui_->Option1, forms(), [this] { setNewFolderVisible(false); });
    onSet(*ui_->Option2, forms(), [this] { chooseNewFolder(); });
    on(ui_->Command10, &QPushButton::clicked, forms(), [this] { browseDestination(); });
    on(ui_->Command1, &QPushButton::clicked, forms(), [this] { createFolder(); });
    on(ui_->Command6, &QPushButton::clicked, forms(),
       [this] { showStep(*ui_->Frame3, *ui_->next); });
    on(ui_->Command5, &QPushButton::clicked, forms(), [this] { toStepThree(); });
}

void mapext::setupStepThree() {
    ui_->ListView1->show(extraction_.ListView1);
    on(ui_->ListView1, &ListView::columnClicked, forms(),
       [this](int column) { extraction_.sortBy(column); });
    on(ui_->Command8, &QPushButton::clicked, forms(), [this] { extract(); });
    on(ui_->Command3, &QPushButton::clicked, forms(), [this] { extraction_.StopExtraction(); });
    on(ui_->Command9, &QPushButton::clicked, forms(),
       [this] { showStep(*ui_->Frame4, *ui_->Command5); });
}

// Enter confirms a typed folder while the box has the focus, and leads on everywhere else.
void mapext::setupDefaultButtons() {
    onward_ = ui_->next;
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        (now == ui_->Text1 ? ui_->Command4 : onward_)->setDefault(true);
    });
}

void mapext::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    loadExtractDest(program_, phile);
    const std::string& cache = program_.gamePaths.UTCachePath;
    ui_->Drive1->setDrive(cache.substr(0, 1));
    // A cache folder that is not there is a failure here, and ends the program.
    ui_->Dir1->setPath(cache);
    ui_->Text1->setText(toQt(ui_->Dir1->path()));
    ui_->Text2->setText(toQt(program_.settings.ExtractDest));
    CheckCacheDir();
}

void mapext::Unload() {
    saveExtractDest(program_, phile, fromQt(ui_->Text2->text()));
    extraction_.closeIndex();
}

void mapext::showStep(QWidget& frame, QPushButton& onward) {
    ui_->steps->setCurrentWidget(&frame);
    onward_ = &onward;
    onward.setDefault(true);
    onward.setFocus();
}

void mapext::changeDrive() {
    // A drive without a disc leaves things as they were.
    const std::string root = ui_->Drive1->drive().substr(0, 2) + "\\";
    attempt([&] { program_.paths.changeDrive(root); });
    attempt([&] { ui_->Dir1->setPath(root); });
    attempt([&] { changeFolder(); });
}

void mapext::changeFolder() {
    ui_->Text1->setText(toQt(ui_->Dir1->path()));
    program_.paths.changeFolder(ui_->Dir1->path());
    CheckCacheDir();
}

void mapext::goToTypedFolder() {
    const std::string typed = fromQt(ui_->Text1->text());
    if (DirExists(program_, typed) != Yes) return;
    attempt([&] { program_.paths.changeFolder(typed); });
    attempt([&] { ui_->Dir1->setPath(typed); });
    attempt([&] { CheckCacheDir(); });
}

void mapext::CheckCacheDir() {
    const bool valid = cacheFolderIsValid(program_, fromQt(ui_->Text1->text()), ui_->Dir1->path());
    ui_->validdir->setText(valid ? QStringLiteral("Valid Directory!")
                                 : QStringLiteral("Not a valid Directory."));
    ui_->next->setEnabled(valid);
}

void mapext::toStepTwo() {
    rememberCacheFolder(program_, ui_->Dir1->path());
    showStep(*ui_->Frame4, *ui_->Command5);
}

void mapext::chooseNewFolder() {
    ui_->Text2->setText(toQt(offeredDestination(program_)));
    setNewFolderVisible(true);
}

void mapext::setNewFolderVisible(bool visible) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{ui_->Text2, ui_->Command10, ui_->Command1})
        control->setVisible(visible);
}

void mapext::browseDestination() {
    const std::string answer = BrowseForFolder(
        program_, {"Where Do you wish to Extract your Map Files to?", fromQt(ui_->Text2->text())});
    if (answer.empty()) return;
    ui_->Text2->setText(toQt(answer));
    program_.settings.ExtractDest = answer;
}

void mapext::createFolder() {
    ui_->Text2->setText(toQt(createDestination(program_, fromQt(ui_->Text2->text()))));
}

void mapext::toStepThree() {
    extraction_.entry.mypath =
        destinationRoot(program_, ui_->Option1->isChecked(), fromQt(ui_->Text2->text()));
    ui_->Text6->setText(toQt(extraction_.entry.mypath));
    showStep(*ui_->Frame5, *ui_->Command8);
}

void mapext::extract() {
    extraction_.run(ui_->Dir1->path());
}

void mapext::show(ExtractionBox box, const std::string& text) {
    QLineEdit* const boxes[] = {ui_->Text3, ui_->Text4, ui_->Text5,
                                ui_->Text7, ui_->Text8, ui_->Text9};
    boxes[static_cast<std::size_t>(box)]->setText(toQt(text));
}

void mapext::enableStop(bool running) {
    ui_->Command3->setEnabled(running);
    ui_->Command8->setEnabled(!running);
}

void mapext::setBusyPointer(bool busy) {
    busy ? setCursor(Qt::WaitCursor) : unsetCursor();
}

bool mapext::stopped() {
    return !ui_->Command3->isEnabled();
}

bool mapext::overwriteExisting() {
    return ui_->Check1->isChecked();
}

void mapext::closeRequested() {
    forms().unload(*this);
}

}  // namespace tessaro
