#include "kit/controls/wrapping.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace tessaro {

QString twoLines(const QString& text) {
    QString lines = text;
    const qsizetype middle = lines.size() / 2;
    const qsizetype before = lines.lastIndexOf(QLatin1Char(' '), middle);
    const qsizetype after = lines.indexOf(QLatin1Char(' '), middle);
    const bool later = before < 0 || (after >= 0 && after - middle < middle - before);
    const qsizetype blank = later ? after : before;
    if (blank >= 0) lines[blank] = QLatin1Char('\n');
    return lines;
}

void WrappingOption::initStyleOption(QStyleOptionButton* option) const {
    QRadioButton::initStyleOption(option);
    option->text = shownText();
}

// The text itself stays one line, for whoever reads it.
void WrappingLabel::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), int(alignment()), palette(), isEnabled(), shownText(),
                         foregroundRole());
}

}  // namespace tessaro
