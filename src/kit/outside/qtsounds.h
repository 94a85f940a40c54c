#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "platform/outside/sounds.h"

class QSoundEffect;

namespace tessaro {

/// Plays the program's sounds from its resources. Without a sound device it is silent.
///
/// The player is made from the event loop, a moment after the first `start` returned: loading the
/// system's sound library takes long enough to hold up the first paint. Nothing may wait for a
/// sound's end, which never comes where there is no device.
class QtSounds : public Sounds {
  public:
    QtSounds();
    ~QtSounds() override;

    std::string resource(std::string_view name) override;
    /// Gives 0 once it is known that there is no device.
    int start(std::string_view name) override;

  private:
    void playSoon();
    void playNext();

    std::unique_ptr<QSoundEffect> effect_;
    QString next_;         // resource file of the sound to be started
    bool loaded_ = false;  // the sound library, or its loading is under way
    bool silent_ = false;
    QObject later_;
};

}  // namespace tessaro
