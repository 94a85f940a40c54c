#include "kit/outside/qtdesktop.h"

#include <QDesktopServices>
#include <QUrl>

#include "kit/look/text.h"

namespace tessaro {

void QtDesktop::openAddress(const std::string& address) {
    QDesktopServices::openUrl(QUrl(toQt(address)));
}

}  // namespace tessaro
