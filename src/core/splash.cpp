#include "core/splash.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "core/mainwindow.h"
#include "kit/forms/forms.h"
#include "kit/forms/handler.h"
#include "kit/look/pictures.h"
#include "kit/look/text.h"
#include "ui_splash.h"

namespace tessaro {
namespace {

constexpr int shownMilliseconds = 3000;

}  // namespace

splash::splash(Forms& forms, Program& program)
    : FormWindow(forms),
      INI(program.makeINI()),
      program_(program),
      ui_(std::make_unique<Ui::splash>()),
      picture_(programPicture(QStringLiteral(":/pictures/splash.png"))) {
    ui_->setupUi(this);
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFixedSize(picture_.size());
    setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::gray, Qt::white, Qt::black));
    Timer1.setObjectName(QStringLiteral("Timer1"));
    Timer1.setParent(this);
    on(&Timer1, &QTimer::timeout, forms, [this] { timeOut(); });
    Timer1.start(shownMilliseconds);
}

splash::~splash() = default;

void splash::Load() {
    ui_->Label2->setText(toQt(playerName(INI, program_.gamePaths)));
}

void splash::timeOut() {
    setEnabled(false);
    forms().unload(*this);
}

void splash::acknowledge() {
    acknowledgeSplash(program_);
    forms().unload(*this);
}

void splash::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(rect(), picture_);
}

void splash::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) guarded(forms(), [this] { acknowledge(); });
}

void splash::keyPressEvent(QKeyEvent* event) {
    constexpr int pressing[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space};
    if (std::find(std::begin(pressing), std::end(pressing), event->key()) != std::end(pressing))
        guarded(forms(), [this] { acknowledge(); });
}

}  // namespace tessaro
