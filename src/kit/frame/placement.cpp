#include "kit/frame/placement.h"

#include <QFontMetrics>
#include <QScreen>
#include <QVariant>
#include <algorithm>

namespace tessaro {
namespace {

constexpr char shiftProperty[] = "shift";
constexpr int besideCaption = 130;  // icon and buttons of a desktop's frame

}  // namespace

void centreAcross(const QWidget& form, QWidget& control, int shift) {
    control.setProperty(shiftProperty, shift);
    control.move(form.width() / 2 - control.width() / 2 + shift, control.y());
}

void centreAcross(const QWidget& form, QWidget& control) {
    centreAcross(form, control, control.property(shiftProperty).toInt());
}

QRect fittedInto(const QRect& screen, const QRect& window) {
    const QSize size = window.size().boundedTo(screen.size());
    const int left = std::clamp(window.left(), screen.left(), screen.right() + 1 - size.width());
    const int top = std::clamp(window.top(), screen.top(), screen.bottom() + 1 - size.height());
    return {QPoint(left, top), size};
}

int captionWidth(const QWidget& window) {
    QFont font = window.font();
    font.setBold(true);  // as many desktops have it
    const int caption = QFontMetrics(font).horizontalAdvance(window.windowTitle());
    return std::min(caption + besideCaption, window.screen()->availableSize().width());
}

}  // namespace tessaro
