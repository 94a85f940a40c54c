#include "kit/controls/drivelist.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include "kit/look/reader.h"
#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

QString driveText(char letter) {
    return QString(QLatin1Char(letter)).toLower() + QLatin1Char(':');
}

// Names the list and the chosen drive, "Drive c:". Qt's own tells the drive alone.
class DriveListReader : public QAccessibleWidget {
  public:
    explicit DriveListReader(DriveList* list)
        : QAccessibleWidget(list, QAccessible::ComboBox), list_(*list) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return list_.currentText();
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name ? text + QLatin1Char(' ') + list_.currentText() : text;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = list_.view()->isVisible();
        return state;
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == list_.view() ? 0 : -1;
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& action) override {
        if (!actionNames().contains(action)) return QAccessibleWidget::doAction(action);
        list_.view()->isVisible() ? list_.hidePopup() : list_.showPopup();
    }

  private:
    DriveList& list_;
};

}  // namespace

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
    readThrough<DriveList, DriveListReader>();
    setFocusPolicy(Qt::StrongFocus);  // the wheel alone takes no focus
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&renamed);
        Q_EMIT changed();
    });
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
