#pragma once

#include <QStringList>

namespace tessaro::test {

/// Takes what Qt says on the terminal, while it lives; one at a time.
class QtMessages {
  public:
    QtMessages() {
        said_.clear();
        before_ = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { said_.append(text); });
    }
    ~QtMessages() { qInstallMessageHandler(before_); }
    QtMessages(const QtMessages&) = delete;
    QtMessages& operator=(const QtMessages&) = delete;

    const QStringList& said() const { return said_; }

  private:
    QtMessageHandler before_;
    // The handler is a plain function.
    static inline QStringList said_;
};

}  // namespace tessaro::test
