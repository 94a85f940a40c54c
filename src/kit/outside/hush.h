#pragma once

#include <QtGlobal>

namespace tessaro {

/// While one lives, Qt says nothing on the terminal: for what a desktop may lack without harm.
class Hush {
  public:
    Hush()
        : before_(
              qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {})) {
    }
    ~Hush() { qInstallMessageHandler(before_); }
    Hush(const Hush&) = delete;
    Hush& operator=(const Hush&) = delete;

  private:
    QtMessageHandler before_;
};

}  // namespace tessaro
