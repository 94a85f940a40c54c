#include "kit/frame/contentarea.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace tessaro {
namespace {

// Left alone, a scroll area would not let anything shrink that can wrap its lines.
class Content : public QWidget {
  public:
    int heightForWidth(int width) const override {
        return layout() != nullptr ? layout()->totalMinimumHeightForWidth(width) : -1;
    }
};

}  // namespace

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new Content);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* entered) {
        if (entered != nullptr && widget()->isAncestorOf(entered)) scrollTo(*entered);
    });
}

// One that is larger than the room would be shown from its middle.
void ContentArea::scrollTo(QWidget& control) {
    ensureWidgetVisible(&control);
    const QSize room = viewport()->size();
    if (control.size().boundedTo(room) == control.size()) return;
    const QPoint beginning = control.mapTo(widget(), QPoint());
    ensureVisible(beginning.x(), beginning.y(), 0, 0);
}

void ContentArea::setSurroundings(const QSize& size) {
    surroundings_ = size;
    updateGeometry();
}

QSize ContentArea::sizeHint() const {
    return fitted(widget()->sizeHint());
}

QSize ContentArea::minimumSizeHint() const {
    return fitted(widget()->minimumSizeHint());
}

int ContentArea::heightForWidth(int width) const {
    return std::min(widget()->heightForWidth(width), room().height());
}

bool ContentArea::eventFilter(QObject* watched, QEvent* event) {
    const bool scrolls = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return scrolls;
}

QSize ContentArea::room() const {
    return screen()->availableSize() - surroundings_;
}

// With a pixel to spare: at a scale of 150 % a desktop may round a window down.
QSize ContentArea::fitted(const QSize& wanted) const {
    return scrolledSize(wanted + QSize(1, 1), room(), verticalScrollBar()->sizeHint().width());
}

QSize scrolledSize(QSize wanted, const QSize& room, int scrollBar) {
    if (wanted.height() > room.height()) wanted.rwidth() += scrollBar;
    if (wanted.width() > room.width()) wanted.rheight() += scrollBar;
    return wanted.boundedTo(room);
}

}  // namespace tessaro
