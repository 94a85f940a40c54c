#pragma once

#include <QProxyStyle>

namespace tessaro {

/// Fusion, whatever the desktop, but for one icon that every menu bar asks for at its birth: Qt
/// would load all picture libraries of the system to look at it, before the first paint.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace tessaro
