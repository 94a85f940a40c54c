#pragma once

#include "kit/outside/qttray.h"
#include "platform/outside/desktop.h"

namespace tessaro {

/// The user's desktop, as Qt reaches it.
class QtDesktop : public Desktop {
  public:
    void openAddress(const std::string& address) override;
    void notifyIcon(TrayAction action, const NotifyRecord& record) override {
        tray_.notify(action, record);
    }

  private:
    QtTray tray_;
};

}  // namespace tessaro
