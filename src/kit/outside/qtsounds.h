#pragma once

#include <QObject>
#include <QString>

#include "kit/outside/soundplayer.h"
#include "platform/outside/sounds.h"

namespace tessaro {

/// Plays the program's sounds from its resources. Without a sound device it is silent.
///
/// The first sound is played from the event loop, a moment after `start` returned: loading the
/// system's sound library takes long enough to hold up the first paint.
class QtSounds : public Sounds {
  public:
    QtSounds();

    std::string resource(std::string_view name) override;
    /// Gives 0 once it is known that there is no device.
    int start(std::string_view name) override;

  private:
    void playSoon();
    void playNext();

    SoundPlayer player_;
    QString next_;         // resource file of the sound to be started
    bool loaded_ = false;  // the sound library, or its loading is under way
    bool silent_ = false;
    QObject later_;
};

}  // namespace tessaro
