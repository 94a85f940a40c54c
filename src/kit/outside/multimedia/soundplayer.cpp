#include "kit/outside/soundplayer.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include "kit/outside/hush.h"

namespace tessaro {
namespace {

bool hasDevice() {
    // Without a sound server Qt complains, which is no news to somebody who has none.
    const Hush hush;
    return !QMediaDevices::defaultAudioOutput().isNull();
}

}  // namespace

struct SoundPlayer::Voice {
    QSoundEffect effect;
};

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;

bool SoundPlayer::play(const QString& file) {
    // Asked each time: a headset may be plugged in while the program runs.
    if (!hasDevice()) return false;
    if (!voice_) voice_ = std::make_unique<Voice>();
    voice_->effect.stop();
    voice_->effect.setSource(QUrl(QStringLiteral("qrc:") + file));
    voice_->effect.play();
    return true;
}

}  // namespace tessaro
