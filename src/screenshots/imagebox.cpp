#include "screenshots/imagebox.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace tessaro {

void ImageBox::showPicture(const QPixmap& picture) {
    setPixmap(picture);
    if (!stretch_) takeOnSize();
}

void ImageBox::setStretch(bool stretch) {
    stretch_ = stretch;
    if (!stretch) takeOnSize();
    update();
}

// On a screen of 150 % the size may come out broken; the last column is kept then, not cut.
void ImageBox::takeOnSize() {
    const QSizeF size = QSizeF(pixmap(Qt::ReturnByValue).size()) / devicePixelRatioF();
    resize(int(std::ceil(size.width())), int(std::ceil(size.height())));
}

void ImageBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (stretch_) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), picture);
        return;
    }
    // Undoes the scale of the screen, so that the pixels are copied and not scaled to and fro.
    const double pixel = 1 / devicePixelRatioF();
    painter.scale(pixel, pixel);
    painter.drawPixmap(0, 0, picture);
}

void ImageBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) Q_EMIT rightPressed(event->globalPosition().toPoint());
}

void ImageBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT clicked();
}

}  // namespace tessaro
