#include "kit/outside/soundplayer.h"

#include <windows.h>

// After it, whose names it uses.
#include <mmsystem.h>

#include <QByteArray>
#include <QResource>

namespace tessaro {

// The system reads from our bytes for as long as it plays.
struct SoundPlayer::Voice {
    explicit Voice(const QString& file) : bytes(QResource(file).uncompressedData()) {}
    Voice(const Voice&) = delete;
    Voice& operator=(const Voice&) = delete;
    ~Voice() { ::PlaySoundW(nullptr, nullptr, 0); }

    bool start() const {
        return ::PlaySoundW(reinterpret_cast<LPCWSTR>(bytes.constData()), nullptr,
                            SND_MEMORY | SND_ASYNC | SND_NODEFAULT) != FALSE;
    }

    QByteArray bytes;
};

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;

bool SoundPlayer::play(const QString& file) {
    if (::waveOutGetNumDevs() == 0) return false;
    voice_ = std::make_unique<Voice>(file);
    return voice_->start();
}

}  // namespace tessaro
