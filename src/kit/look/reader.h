#pragma once
// How a form is told to screen readers, where Qt by itself tells it badly.

#include <QAccessibleWidget>
#include <QString>

namespace tessaro {

/// Has screen readers see every control of the class `Control` through a `Reader`, which is made
/// from a `Control*`. To be called by the control's constructor.
template <class Control, class Reader>
void readThrough() {
    QAccessible::installFactory(
        [](const QString& className, QObject* object) -> QAccessibleInterface* {
            const bool ours =
                className == QLatin1String(Control::staticMetaObject.className()) && object;
            return ours ? new Reader(static_cast<Control*>(object)) : nullptr;
        });
}

/// Gives each frame inside `form` its own caption for a name, since Qt would call one that lies in
/// another by the outer's; and each list its tooltip for a description, as all others have it.
void nameForReaders(QWidget& form);

}  // namespace tessaro
