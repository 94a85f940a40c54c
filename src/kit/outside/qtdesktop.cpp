#include "kit/outside/qtdesktop.h"

#include <QDesktopServices>
#include <QUrl>

#include "kit/look/text.h"
#include "kit/outside/hush.h"

namespace tessaro {

void QtDesktop::openAddress(const std::string& address) {
    const Hush hush;  // a failure is no news to somebody who has no browser
    QDesktopServices::openUrl(QUrl(toQt(address)));
}

}  // namespace tessaro
