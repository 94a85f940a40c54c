#pragma once

namespace tessaro {

/// The hourglass over the whole program. A form that takes no input cannot show one of its own: a
/// disabled widget has no pointer. What was shown goes with this.
class BusyPointer {
  public:
    BusyPointer() = default;
    ~BusyPointer() { show(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

    void show(bool busy);

  private:
    bool shown_ = false;
};

}  // namespace tessaro
