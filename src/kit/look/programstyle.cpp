#include "kit/look/programstyle.h"

#include "kit/look/pictures.h"

namespace tessaro {

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    if (icon != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    const QString folder = QStringLiteral(":/qt-project.org/styles/commonstyle/images/");
    return QIcon(programPicture(folder + QStringLiteral("toolbar-ext-h-16.png")));
}

}  // namespace tessaro
