#include "kit/controls/drivelist.h"

#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

QString driveText(char letter) {
    return QString(QLatin1Char(letter)).toLower() + QLatin1Char(':');
}

}  // namespace

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);  // the wheel alone takes no focus
    connect(this, &QComboBox::currentIndexChanged, this, [this] { Q_EMIT changed(); });
}

void DriveList::use(Files& files) {
    const QSignalBlocker quiet(this);
    clear();
    for (const char letter : files.paths().drives()) addItem(driveText(letter));
    setCurrentIndex(findText(driveText(files.paths().currentFolder().front())));
}

std::string DriveList::drive() const {
    return fromQt(currentText());
}

void DriveList::setDrive(std::string_view drive) {
    const int index = drive.empty() ? -1 : findText(driveText(drive.front()));
    if (index < 0) throw RunTimeError(errors::DeviceUnavailable, std::string(drive));
    setCurrentIndex(index);
}

void DriveList::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox box;
    initStyleOption(&box);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = 1;
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, frame);
    painter.drawControl(QStyle::CE_ComboBoxLabel, box);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.palette.setColor(QPalette::WindowText, palette().color(QPalette::Text));
    arrow.rect = style()
                     ->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, this)
                     .adjusted(4, 0, -4, 0);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, arrow);
}

void DriveList::wheelEvent(QWheelEvent* event) {
    // A turn of the wheel over a list without focus means to scroll, not to choose.
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}

}  // namespace tessaro
