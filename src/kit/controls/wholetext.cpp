#include "kit/controls/wholetext.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

#include "kit/look/text.h"

namespace tessaro {
namespace {

constexpr int textMargin = 2;  // that Qt leaves on either side of a box's text

class WholeText : public QObject {
  public:
    explicit WholeText(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return false;
        QStringList lines(cutText(box_));
        if (lines.first().isEmpty()) return false;
        if (!box_.toolTip().isEmpty()) lines += box_.toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           toolTipText(lines.join(QLatin1Char('\n'))), &box_);
        return true;
    }

  private:
    QLineEdit& box_;
};

}  // namespace

void showWholeTexts(QWidget& form) {
    for (auto* box : form.findChildren<QLineEdit*>()) new WholeText(*box);
}

QString cutText(const QLineEdit& box) {
    QStyleOptionFrame frame;
    frame.initFrom(&box);
    frame.lineWidth = box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    const QRect room = box.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &box);
    const int wanted = box.fontMetrics().horizontalAdvance(box.text()) + 2 * textMargin;
    return wanted > room.width() ? box.text() : QString();
}

}  // namespace tessaro
