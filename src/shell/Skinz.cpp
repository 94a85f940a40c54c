#include "shell/Skinz.h"

#include <QLabel>

#include "kit/look/pictures.h"
#include "ui_Skinz.h"

namespace tessaro {

Skinz::Skinz(Forms& forms) : FormWindow<QDialog>(forms) {
    Ui::Skinz().setupUi(this);
    // Each control bears the name of its picture.
    for (auto* label : findChildren<QLabel*>()) {
        const QString name = label->objectName().toLower();
        label->setPixmap(programPicture(QStringLiteral(":/pictures/%1.png").arg(name)));
    }
}

QPixmap Skinz::picture(const char* name) const {
    const auto* label = findChild<QLabel*>(QLatin1String(name));
    return label != nullptr ? label->pixmap(Qt::ReturnByValue) : QPixmap();
}

}  // namespace tessaro
