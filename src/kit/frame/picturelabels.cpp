#include "kit/frame/picturelabels.h"

#include <QPainter>
#include <QStyle>

#include "kit/look/reader.h"

namespace tessaro {
namespace {

// Without a name, and not to be seen.
class NothingToRead : public QAccessibleWidget {
  public:
    explicit NothingToRead(PictureLabel* picture) : QAccessibleWidget(picture) {}
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

}  // namespace

PictureLabel::PictureLabel(QWidget* parent) : QLabel(parent) {
    readThrough<PictureLabel, NothingToRead>();
}

void PlateLabel::paintEvent(QPaintEvent*) {
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (picture.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double cap = double(capWidth) * height() / pictureHeight;
    // Sources are measured in the picture's own dots, which a dense screen has twice as many of.
    const double from = capWidth * picture.devicePixelRatio();
    const double middle = picture.width() - 2 * from;
    painter.drawPixmap(QRectF(0, 0, cap, height()), picture, QRectF(0, 0, from, picture.height()));
    painter.drawPixmap(QRectF(cap, 0, width() - 2 * cap, height()), picture,
                       QRectF(from, 0, middle, picture.height()));
    painter.drawPixmap(QRectF(width() - cap, 0, cap, height()), picture,
                       QRectF(from + middle, 0, from, picture.height()));
}

void TitleLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}

}  // namespace tessaro
