// The desktop's browser and tray, as far as a test can see them without a desktop.

#include "kit/outside/qtdesktop.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>
#include <utility>
#include <vector>

#include "kit/outside/qttray.h"
#include "support/forms/qtmessages.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;

// Stands in for the user's browser, and can be asked where it is.
class Browser : public QTextBrowser {
  public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "setSource"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }
};

TEST(TheDesktop, OpensAnAddressInTheUsersBrowser) {
    const Browser browser;
    QtDesktop().openAddress("https://web.archive.org/web/2002/http://www.planetunreal.com/");
    EXPECT_EQ(browser.source().toString(),
              QStringLiteral("https://web.archive.org/web/2002/http://www.planetunreal.com/"));
}

TEST(TheDesktop, SaysNothingWhereThereIsNoBrowser) {
    const test::QtMessages messages;
    QtDesktop().openAddress("no-such-scheme://nowhere");
    qWarning("heard");
    EXPECT_EQ(messages.said(), QStringList{"heard"});
}

// A hook with a tray that shows its picture.
class RealTray : public ::testing::Test {
  protected:
    // Writes down where the mouse moves.
    class Hook : public QLabel {
      public:
        std::vector<int> places;

      protected:
        void mouseMoveEvent(QMouseEvent* event) override {
            places.push_back(event->position().toPoint().x());
        }
    };

    RealTray() {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        hook_.setPixmap(red);
        hook_.setMouseTracking(true);
        record_.hWnd = hook_.winId();
        record_.szTip = std::string("Ovrin\0", 6);
    }
    ~RealTray() override { QApplication::setDoubleClickInterval(doubleClickInterval_); }
    QSystemTrayIcon* icon() { return tray_.findChild<QSystemTrayIcon*>(); }
    void click(QSystemTrayIcon::ActivationReason reason) { Q_EMIT icon()->activated(reason); }
    std::vector<int> heard() { return std::exchange(hook_.places, {}); }

    int doubleClickInterval_ = QApplication::doubleClickInterval();
    Hook hook_;
    NotifyRecord record_;
    QtTray tray_;
};

TEST_F(RealTray, AnIconIsAddedWithItsPictureAndTip) {
    EXPECT_EQ(icon(), nullptr);
    tray_.notify(TrayAction::Add, record_);
    ASSERT_NE(icon(), nullptr);
    EXPECT_TRUE(icon()->isVisible());
    EXPECT_EQ(icon()->toolTip(), QStringLiteral("Ovrin"));
    EXPECT_EQ(icon()->icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(RealTray, AnIconIsChanged) {
    tray_.notify(TrayAction::Add, record_);
    QPixmap blue(16, 16);
    blue.fill(Qt::blue);
    hook_.setPixmap(blue);
    record_.szTip = std::string(64, 'x');
    tray_.notify(TrayAction::Modify, record_);
    EXPECT_EQ(icon()->icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::blue));
    EXPECT_EQ(icon()->toolTip(), QString(64, QLatin1Char('x')));
}

TEST_F(RealTray, WhatIsNotThereIsNeitherChangedNorDeleted) {
    tray_.notify(TrayAction::Modify, record_);
    tray_.notify(TrayAction::Delete, record_);
    EXPECT_EQ(icon(), nullptr);
    tray_.notify(TrayAction::Add, record_);
    NotifyRecord other = record_;
    other.hWnd = 0;
    other.szTip = "other";
    tray_.notify(TrayAction::Modify, other);
    tray_.notify(TrayAction::Delete, other);
    EXPECT_TRUE(icon()->isVisible());
    EXPECT_EQ(icon()->toolTip(), QStringLiteral("Ovrin"));
}

TEST_F(RealTray, ASecondIconIsNotAdded) {
    tray_.notify(TrayAction::Add, record_);
    const QSystemTrayIcon* first = icon();
    record_.szTip = "second";
    tray_.notify(TrayAction::Add, record_);
    EXPECT_EQ(tray_.findChildren<QSystemTrayIcon*>().size(), 1);
    EXPECT_EQ(icon(), first);
    EXPECT_EQ(first->toolTip(), QStringLiteral("Ovrin"));
}

TEST_F(RealTray, ADeletedIconIsGoneAndMayBeAddedAgain) {
    tray_.notify(TrayAction::Add, record_);
    const QPointer<QSystemTrayIcon> first = icon();
    tray_.notify(TrayAction::Delete, record_);
    EXPECT_FALSE(first->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(first, nullptr);
    tray_.notify(TrayAction::Add, record_);
    EXPECT_TRUE(icon()->isVisible());
}

TEST_F(RealTray, AClickReachesTheHookAsPressAndRelease) {
    QApplication::setDoubleClickInterval(0);
    tray_.notify(TrayAction::Add, record_);
    click(QSystemTrayIcon::Trigger);
    EXPECT_THAT(heard(), ElementsAre(513, 514));
    click(QSystemTrayIcon::Context);
    EXPECT_THAT(heard(), ElementsAre(516, 517));
    click(QSystemTrayIcon::DoubleClick);
    EXPECT_THAT(heard(), ElementsAre(515, 514));
    click(QSystemTrayIcon::MiddleClick);
    EXPECT_THAT(heard(), ElementsAre());
}

TEST_F(RealTray, TwoClicksThatFollowEachOtherAreADoubleOne) {
    QApplication::setDoubleClickInterval(1000 * 60 * 60);
    tray_.notify(TrayAction::Add, record_);
    for (int i = 0; i < 3; ++i) click(QSystemTrayIcon::Trigger);
    EXPECT_THAT(heard(), ElementsAre(513, 514, 515, 514, 513, 514));
}

TEST_F(RealTray, AClickAfterTheTimeOfADoubleOneIsASingleOne) {
    QApplication::setDoubleClickInterval(0);
    tray_.notify(TrayAction::Add, record_);
    for (int i = 0; i < 2; ++i) click(QSystemTrayIcon::Trigger);
    EXPECT_THAT(heard(), ElementsAre(513, 514, 513, 514));
}

TEST_F(RealTray, AnIconThatIsGoneTellsNothingMore) {
    tray_.notify(TrayAction::Add, record_);
    QSystemTrayIcon* gone = icon();
    tray_.notify(TrayAction::Delete, record_);
    Q_EMIT gone->activated(QSystemTrayIcon::Trigger);
    EXPECT_THAT(heard(), ElementsAre());
}

}  // namespace
}  // namespace tessaro
