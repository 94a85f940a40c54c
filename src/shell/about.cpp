#include "shell/about.h"

#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "core/MainFrm.h"
#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "kit/look/twips.h"
#include "shell/Skins.h"
#include "ui_about.h"

namespace tessaro {
namespace {

constexpr int wantedMilliseconds = 1;
// The steps are made for desktops that serve a timer 64 times a second at most.
constexpr int servedMilliseconds = 16;

// How much larger than `room` a text in that font is; 1 if it fits.
double zoomFor(const QString& text, const QFont& font, const QSize& room) {
    QTextDocument document;
    document.setDefaultFont(font);
    document.setPlainText(text);
    const QSizeF needed = document.size();
    return std::max({1.0, std::ceil(needed.width()) / room.width(),
                     std::ceil(needed.height()) / room.height()});
}

void setGround(QWidget& widget, const QColor& colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, colour);
    widget.setPalette(palette);
}

}  // namespace

about::about(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "About Ovrin Tessaro v3",
                          .title = "About Tessaro",
                          .dragBy = DragBy::Nothing}),
      program_(program),
      ui_(std::make_unique<Ui::aboutContent>()) {
    setUpContent(*ui_);
    ui_->Text1->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui_->Text1->document()->setDefaultTextOption(QTextOption(Qt::AlignHCenter));
    Timer1.setObjectName(QStringLiteral("Timer1"));
    Timer1.setParent(this);
    Timer1.setTimerType(Qt::PreciseTimer);
    on(&Timer1, &QTimer::timeout, forms, [this] { tick(); });
}

about::~about() = default;

void about::Load() {
    enableMainWindow(false);
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    setGround(*ui_->Frame1, ui_->Text1->palette().color(QPalette::Base));
    writeCredits();
    Timer1.start(std::max(wantedMilliseconds, servedMilliseconds));
}

void about::Unload() {
    Timer1.stop();
    enableMainWindow(true);
}

void about::enableMainWindow(bool enable) {
    if (auto* mainWindow = forms().loaded<MainFrm>()) mainWindow->setEnabled(enable);
}

void about::writeCredits() {
    const QString text = toQt(credits());
    const QSize room(pixels(CreditsRoll::width), pixels(CreditsRoll::height));
    zoom_ = zoomFor(text, ui_->Text1->font(), room);
    ui_->Text1->setPlainText(text);
    ui_->Text1->resize(scaled(CreditsRoll::width), scaled(CreditsRoll::height));
    ui_->Frame1->setFixedSize(scaled(CreditsRoll::width), scaled(CreditsRoll::firstTop));
    placeCredits();
    refit(*ui_->Frame1);
}

void about::tick() {
    version_.success = GetOSVersion(version_);
    roll_.tick(version_);
    placeCredits();
}

void about::placeCredits() {
    ui_->Text1->move(0, scaled(roll_.top()));
}

int about::scaled(int twips) const {
    return pixels(twips * zoom_);
}

}  // namespace tessaro
