#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// The program's sounds and their player, which is made once and lent to all who play. Nothing of
/// the caller's is kept; called on the program's one thread.
class Sounds {
  public:
    virtual ~Sounds() = default;
    /// The WAVE bytes of a sound; case does not matter. Raises 326 if there is none of that name.
    virtual std::string resource(std::string_view name) = 0;
    /// Starts a sound and returns at once; a new one cuts off the one playing. Gives 1, or 0 where
    /// nothing can be played, which is no error.
    virtual int start(std::string_view name) = 0;
};

}  // namespace tessaro
