#include "kit/outside/qtsounds.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QResource>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include "kit/look/pictures.h"
#include "kit/look/text.h"
#include "kit/outside/hush.h"
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

bool hasDevice() {
    // Without a sound server Qt complains, which is no news to somebody who has none.
    const Hush hush;
    return !QMediaDevices::defaultAudioOutput().isNull();
}

}  // namespace

QtSounds::QtSounds() {
    loadResources();
}

QtSounds::~QtSounds() = default;

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
    const QUrl url(QStringLiteral("qrc:") + std::exchange(next_, QString()));
    // Asked each time: a headset may be plugged in while the program runs.
    silent_ = !hasDevice();
    if (silent_) return;
    if (!effect_) effect_ = std::make_unique<QSoundEffect>();
    effect_->stop();
    effect_->setSource(url);
    effect_->play();
}

}  // namespace tessaro
