#include "kit/controls/wrappingoption.h"

#include <QStyleOptionButton>
#include <utility>

namespace tessaro {

WrappingOption::WrappingOption(QWidget* parent) : QRadioButton(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize WrappingOption::sizeHint() const {
    const QSize oneLine = QRadioButton::sizeHint();
    return {oneLine.width(), oneLine.height() + (wrapped_ ? fontMetrics().height() : 0)};
}

QSize WrappingOption::minimumSizeHint() const {
    const QSize lines = fontMetrics().size(Qt::TextShowMnemonic, twoLines());
    return {lines.width() + besideText(), sizeHint().height()};
}

void WrappingOption::initStyleOption(QStyleOptionButton* option) const {
    QRadioButton::initStyleOption(option);
    if (wrapped_) option->text = twoLines();
}

void WrappingOption::resizeEvent(QResizeEvent* event) {
    QRadioButton::resizeEvent(event);
    const bool tooWide = width() < QRadioButton::sizeHint().width();
    if (std::exchange(wrapped_, tooWide) != tooWide) updateGeometry();
}

// Broken at the blank nearest to the middle.
QString WrappingOption::twoLines() const {
    QString lines = text();
    const qsizetype middle = lines.size() / 2;
    const qsizetype before = lines.lastIndexOf(QLatin1Char(' '), middle);
    const qsizetype after = lines.indexOf(QLatin1Char(' '), middle);
    const bool later = before < 0 || (after >= 0 && after - middle < middle - before);
    const qsizetype blank = later ? after : before;
    if (blank >= 0) lines[blank] = QLatin1Char('\n');
    return lines;
}

// What the mark takes, and the room around it.
int WrappingOption::besideText() const {
    return QRadioButton::sizeHint().width() -
           fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

}  // namespace tessaro
