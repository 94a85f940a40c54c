#include "kit/look/style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QIcon>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTextEdit>
#include <algorithm>

#include "kit/look/pictures.h"

namespace tessaro {
namespace {

// Fusion keeps a picture of each button and head that it draws, under a number of the palette. An
// opening of a form makes new palettes, of new numbers, and leaves as many pictures behind as it
// has controls. So equal palettes become one: there are a few, however often a form is opened.
class SharedPalettes {
  public:
    void share(const QStyleOption* option) {
        if (option == nullptr) return;
        // Whoever has something drawn has made the option for that.
        QPalette& palette = const_cast<QStyleOption*>(option)->palette;
        const auto equal = std::find(known_.begin(), known_.end(), palette);
        if (equal == known_.end())
            known_.append(palette);
        else
            palette = *equal;
    }

  private:
    QList<QPalette> known_;
};

// Fusion, whatever the desktop, but for one icon that every menu bar asks for at its birth: Qt
// would load all picture libraries of the system to look at it, before the first paint.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (icon != SP_ToolBarHorizontalExtensionButton)
            return QProxyStyle::standardIcon(icon, option, widget);
        const QString folder = QStringLiteral(":/qt-project.org/styles/commonstyle/images/");
        return QIcon(programPicture(folder + QStringLiteral("toolbar-ext-h-16.png")));
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        palettes_.share(option);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        palettes_.share(option);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        palettes_.share(option);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    // Fusion lets a long caption touch the sides of its button.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        if (type != CT_PushButton) return size;
        return size.expandedTo({contents.width() + 2 * option->fontMetrics.height(), 0});
    }

  private:
    mutable SharedPalettes palettes_;
};

// A colour, the same in both states of a window, and the one of disabled controls.
struct RoleColour {
    QPalette::ColorRole role;
    QColor enabled;
    QColor disabled;
};

void setColours(QPalette& palette, std::initializer_list<RoleColour> colours) {
    for (const RoleColour& colour : colours) {
        palette.setColor(QPalette::Active, colour.role, colour.enabled);
        palette.setColor(QPalette::Inactive, colour.role, colour.enabled);
        palette.setColor(QPalette::Disabled, colour.role, colour.disabled);
    }
}

const QColor ground(239, 239, 239);
const QColor letters(0, 0, 0);
const QColor paleLetters(105, 105, 105);
const QColor fieldGround(64, 64, 64);
const QColor fieldLetters(255, 255, 255);
const QColor paleFieldLetters(220, 220, 220);

// The sizes that window managers show. Each one more would have to be unpacked and sent to the
// screen before the first window is there; larger ones are shown by launchers only.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48})
        icon.addPixmap(programPicture(QStringLiteral(":/icons/tessaro-%1.png").arg(size)));
    return icon;
}

bool isField(const QWidget& widget) {
    if (qobject_cast<const QHeaderView*>(&widget) != nullptr) return false;
    return qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

void setFieldLetters(QWidget& field) {
    QPalette palette = field.palette();
    setColours(palette, {{QPalette::Text, fieldLetters, paleFieldLetters},
                         {QPalette::PlaceholderText, paleFieldLetters, paleFieldLetters},
                         {QPalette::Highlight, QColor(224, 224, 224), QColor(190, 190, 190)},
                         {QPalette::HighlightedText, letters, letters}});
    // A list that drops down is drawn as a button; the head of another list is one, on a pale
    // ground.
    if (qobject_cast<QComboBox*>(&field) != nullptr)
        setColours(palette, {{QPalette::ButtonText, fieldLetters, paleFieldLetters}});
    field.setPalette(palette);
}

// A box that only shows its text is no field to write in, and does not look like one.
void flatten(QLineEdit& box) {
    box.setFrame(false);
    box.setCursor(Qt::ArrowCursor);
    QPalette palette = box.palette();
    setColours(palette, {{QPalette::Text, paleFieldLetters, paleFieldLetters}});
    box.setPalette(palette);
}

}  // namespace

QPalette programPalette() {
    QPalette palette;
    const QColor white(255, 255, 255);
    setColours(palette, {{QPalette::Window, ground, ground},
                         {QPalette::WindowText, letters, paleLetters},
                         {QPalette::Base, white, ground},
                         {QPalette::AlternateBase, QColor(247, 247, 247), ground},
                         {QPalette::Text, letters, paleLetters},
                         {QPalette::PlaceholderText, paleLetters, paleLetters},
                         {QPalette::Button, ground, ground},
                         {QPalette::ButtonText, letters, paleLetters},
                         {QPalette::BrightText, white, white},
                         {QPalette::ToolTipBase, QColor(255, 255, 220), QColor(255, 255, 220)},
                         {QPalette::ToolTipText, letters, letters},
                         {QPalette::Highlight, QColor(48, 100, 170), QColor(110, 110, 110)},
                         {QPalette::HighlightedText, white, white},
                         {QPalette::Link, QColor(0, 0, 200), paleLetters},
                         {QPalette::LinkVisited, QColor(110, 0, 140), paleLetters},
                         {QPalette::Light, white, white},
                         {QPalette::Midlight, QColor(247, 247, 247), QColor(247, 247, 247)},
                         {QPalette::Mid, QColor(184, 184, 184), QColor(184, 184, 184)},
                         {QPalette::Dark, QColor(159, 159, 159), QColor(190, 190, 190)},
                         {QPalette::Shadow, QColor(118, 118, 118), QColor(177, 177, 177)}});
    return palette;
}

void applyProgramStyle(QApplication& application) {
    QCoreApplication::setApplicationName(QStringLiteral("tessaro"));
    // No display name: Qt would add it to the title of every box.
    QGuiApplication::setDesktopFileName(QStringLiteral("tessaro"));
    // The last form to be unloaded ends the program, not the last window to be hidden.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(programPalette());
    application.setWindowIcon(programIcon());
}

void setFieldGround(QWidget& field, const QColor& colour) {
    QPalette palette = field.palette();
    setColours(palette,
               {{QPalette::Base, colour, colour}, {QPalette::AlternateBase, colour, colour}});
    // A list that drops down is drawn as a button.
    if (qobject_cast<QComboBox*>(&field) != nullptr)
        setColours(palette, {{QPalette::Button, colour, colour}});
    field.setPalette(palette);
}

void dressFields(QWidget& form) {
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        if (!isField(*widget)) continue;
        setFieldGround(*widget, fieldGround);
        setFieldLetters(*widget);
        auto* box = qobject_cast<QLineEdit*>(widget);
        if (box != nullptr && box->isReadOnly()) flatten(*box);
    }
}

}  // namespace tessaro
