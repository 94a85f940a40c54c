#pragma once

#include <QAccessible>
#include <QWidget>
#include <string>

namespace tessaro::test {

/// What a screen reader sees of a control.
inline QAccessibleInterface& reader(QObject& control) {
    return *QAccessible::queryAccessibleInterface(&control);
}
inline std::string nameFor(QObject& control) {
    return reader(control).text(QAccessible::Name).toStdString();
}

/// A screen reader's own action on a control, past mouse and keyboard.
inline void act(QWidget& control, const QString& action) {
    reader(control).actionInterface()->doAction(action);
}
inline void toggle(QWidget& control) {
    act(control, QAccessibleActionInterface::toggleAction());
}

}  // namespace tessaro::test
