#include "editor/inieditor.h"

#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "core/MainFrm.h"
#include "editor/findfrm.h"
#include "editor/inieditorpopup.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "kit/look/twips.h"
#include "shell/Skins.h"
#include "ui_inieditor.h"

namespace tessaro {
namespace {

// Where the menus open, in twips of the form.
constexpr double menuTop = 650;
constexpr double fileMenuLeft = 150;
constexpr double editMenuLeft = 630;

}  // namespace

inieditor::inieditor(Forms& forms, Program& program, EditorMemory& memory)
    : SkinnedForm(forms, {.caption = "INI File Editor", .title = "Untitled.ini"}),
      program_(program),
      ui_(std::make_unique<Ui::inieditorContent>()),
      editor_(program, *this, memory) {
    setUpContent(*ui_);
    setSizeGripEnabled(true);
    setupLabels();
    on(ui_->Text1, &TextBox::linesReplaced, forms, [this](int first, int removed, int added) {
        editor_.textChanged(static_cast<std::size_t>(first), static_cast<std::size_t>(removed),
                            static_cast<std::size_t>(added));
    });
}

inieditor::~inieditor() = default;

void inieditor::setupLabels() {
    for (QToolButton* label : {ui_->fakefile, ui_->fakedit}) label->setParent(this);
    placeLabels();
    setTabOrder(ui_->Text1, ui_->fakefile);
    setTabOrder(ui_->fakefile, ui_->fakedit);
    setTabOrder(ui_->fakedit, CommandX);
    on(ui_->fakefile, &QToolButton::clicked, forms(),
       [this] { popUp(forms().get<inieditorpopup>().mnufileini(), fileMenuLeft); });
    on(ui_->fakedit, &QToolButton::clicked, forms(),
       [this] { popUp(forms().get<inieditorpopup>().mnueditini(), editMenuLeft); });
}

// Beside the frame's plate, since the menus' places lie above the form's content.
void inieditor::placeLabels() {
    int left = leftimg->maximumWidth() + 1;
    for (QToolButton* label : {ui_->fakefile, ui_->fakedit}) {
        label->adjustSize();
        label->move(left, pixels(menuTop) - label->height());
        left += label->width();
    }
    const int plateFree = left * 5;  // it leaves a fifth on either side
    setMinimumWidth(std::min(plateFree, screen()->availableSize().width()));
}

void inieditor::popUp(QMenu& menu, double left) {
    // The menu belongs to a form that is never shown; some desktops want a visible owner.
    menu.winId();
    menu.windowHandle()->setTransientParent(windowHandle());
    menu.popup(mapToGlobal(QPoint(pixels(left), pixels(menuTop))));
}

void inieditor::changeEvent(QEvent* event) {
    SkinnedForm::changeEvent(event);
    if (event->type() == QEvent::FontChange) placeLabels();
}

void inieditor::Load() {
    ApplySkin(program_, forms(), *this);
}

bool inieditor::QueryUnload() {
    return editor_.mayClose();
}

bool inieditor::QueryUnloadAll() {
    return editor_.mayClose();
}

void inieditor::Unload() {
    if (auto* search = forms().loaded<findfrm>()) forms().unload(*search);
    // Kept by its user when the main window went, the editor was the last form that can be seen.
    if (forms().loaded<MainFrm>() == nullptr) forms().UnloadAllForms();
}

void inieditor::select(std::size_t start, std::size_t length) {
    ui_->Text1->select(start, length);
}

void inieditor::focusText() {
    ui_->Text1->setFocus();
}

void inieditor::showOpenedFile(const std::string& openedini, const std::string& title) {
    ui_->openedini->setText(toQt(openedini));
    setTitle(toQt(title));
}

void inieditor::showText(const std::u16string& text) {
    ui_->Text1->showText(text);
}

bool inieditor::textIsEmpty() {
    return ui_->Text1->isEmpty();
}

std::u16string inieditor::line(std::size_t number) {
    return ui_->Text1->line(number);
}

}  // namespace tessaro
