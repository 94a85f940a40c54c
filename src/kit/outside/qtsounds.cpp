#include "kit/outside/qtsounds.h"

#include <QFile>
#include <QResource>
#include <QTimer>
#include <utility>

#include "kit/look/pictures.h"
#include "kit/look/text.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {
namespace {

// Time for a window that has just been shown to paint itself: its screen's answer comes through the
// same event loop.
constexpr int untilPaintedMilliseconds = 50;

// Name of the resource file; the names of sounds ignore case. Raises 326.
QString soundFile(std::string_view name) {
    const QString file = QStringLiteral("/sounds/%1.wav").arg(toQt(lowerCase(name)));
    if (!QFile::exists(QLatin1Char(':') + file))
        throw RunTimeError(errors::ResourceNotFound, std::string(name));
    return file;
}

}  // namespace

QtSounds::QtSounds() {
    loadResources();
}

std::string QtSounds::resource(std::string_view name) {
    return QResource(soundFile(name)).uncompressedData().toStdString();
}

int QtSounds::start(std::string_view name) {
    const bool posted = !next_.isEmpty();
    next_ = soundFile(name);
    if (!posted)
        QMetaObject::invokeMethod(
            &later_, [this] { playSoon(); }, Qt::QueuedConnection);
    return silent_ ? 0 : 1;
}

void QtSounds::playSoon() {
    const int wait = std::exchange(loaded_, true) ? 0 : untilPaintedMilliseconds;
    QTimer::singleShot(wait, &later_, [this] { playNext(); });
}

void QtSounds::playNext() {
    silent_ = !player_.play(std::exchange(next_, QString()));
}

}  // namespace tessaro
