#pragma once

#include <QString>
#include <memory>

namespace tessaro {

/// What the system plays sounds with: on Windows its own call, so that no library comes along for
/// it, elsewhere Qt Multimedia. Nothing may wait for a sound's end, which never comes where there
/// is no device.
class SoundPlayer {
  public:
    SoundPlayer();
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    /// Starts a WAVE file among the program's resources, such as "/sounds/boom.wav", and cuts off
    /// what is playing. Gives false if there is no device.
    bool play(const QString& file);

  private:
    struct Voice;
    std::unique_ptr<Voice> voice_;  // made for the first sound
};

}  // namespace tessaro
