// The clock, the events and the sounds of the running program, and its measures.

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "kit/look/twips.h"
#include "kit/outside/qtevents.h"
#include "kit/outside/qtsounds.h"
#include "support/forms/formsfixture.h"
#include "support/forms/qtmessages.h"

namespace tessaro {
namespace {

using RealEvents = test::FormsTest;

TEST_F(RealEvents, APumpServesWhatIsPending) {
    QtEvents events(end_);
    bool served = false;
    QTimer::singleShot(0, [&] { served = true; });
    while (!served) events.pump();
    EXPECT_TRUE(served);
}

TEST_F(RealEvents, APumpWithNothingPendingReturns) {
    QtEvents events(end_);
    for (int i = 0; i < 3; ++i) events.pump();
    EXPECT_FALSE(end_.ended());
}

TEST_F(RealEvents, APumpAfterTheEndUnwindsItsCaller) {
    QtEvents events(end_);
    end_.end();
    EXPECT_THROW(events.pump(), ProgramEnded);
}

TEST_F(RealEvents, TheClockLiesWithinADay) {
    const double now = QtEvents(end_).secondsSinceMidnight();
    EXPECT_GE(now, 0);
    EXPECT_LT(now, 86400);
}

// A wait that nothing limits, in which the windows stay in use.
class EndlessPump : public RealEvents {
  protected:
    QtEvents events_{end_};
};

TEST_F(EndlessPump, ServesTheUser) {
    QPushButton button;
    bool clicked = false;
    QObject::connect(&button, &QPushButton::clicked, [&] { clicked = true; });
    QTimer::singleShot(0, &button, [&] { QTest::mouseClick(&button, Qt::LeftButton); });
    while (!clicked) events_.pumpEndless();
    EXPECT_TRUE(clicked);
}

TEST_F(EndlessPump, TheEndOfTheDesktopsSessionEndsTheProgramAtOnce) {
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
    EXPECT_THROW(events_.pumpEndless(), ProgramEnded);
    EXPECT_TRUE(end_.ended());
}

// A window that the user tries to use while a child process runs.
class RepaintDuringAChild : public test::FormsTest {
  protected:
    struct Window : QWidget {
        int paints = 0;
        int clicks = 0;
        int contextMenus = 0;
        QPushButton button{this};
        QLineEdit box{this};

        Window() {
            box.move(0, 50);
            box.setContextMenuPolicy(Qt::CustomContextMenu);
            connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
            connect(&box, &QLineEdit::customContextMenuRequested, this, [this] { ++contextMenus; });
        }
        void paintEvent(QPaintEvent*) override { ++paints; }
    };

    RepaintDuringAChild() {
        window_.show();
        test::serveEvents();
    }
    // Does something from inside the repaint, where the desktop's events come in.
    void meanwhile(const std::function<void()>& act) {
        bool acted = false;
        QTimer::singleShot(0, &window_, [&] {
            acted = true;
            act();
        });
        while (!acted) events_.serveWhileBlocked();
    }
    void useEverything() {
        QTest::mouseClick(&window_.button, Qt::LeftButton);
        QTest::keyClick(&window_.button, Qt::Key_Space);
        QTest::keyClicks(&window_.box, QStringLiteral("typed"));
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("composed"));
        QCoreApplication::sendEvent(&window_.box, &composed);
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint(), Qt::NoModifier);
        QCoreApplication::sendEvent(&window_.box, &menuKey);
    }

    QtEvents events_{end_};
    Window window_;
};

TEST_F(RepaintDuringAChild, LetsWindowsPaint) {
    const int before = window_.paints;
    window_.update();
    while (window_.paints == before) events_.serveWhileBlocked();
    EXPECT_GT(window_.paints, before);
}

TEST_F(RepaintDuringAChild, LosesClicksKeysAndMenus) {
    meanwhile([this] { useEverything(); });
    EXPECT_EQ(window_.clicks, 0);
    EXPECT_EQ(window_.box.text(), QString());
    EXPECT_EQ(window_.contextMenus, 0);
}

TEST_F(RepaintDuringAChild, InputCountsAgainAfterwards) {
    events_.serveWhileBlocked();
    useEverything();
    EXPECT_EQ(window_.clicks, 2);
    EXPECT_EQ(window_.box.text(), QStringLiteral("typedcomposed"));
    EXPECT_EQ(window_.contextMenus, 1);
}

TEST_F(RepaintDuringAChild, ACloseButtonClosesNothing) {
    meanwhile([this] { window_.windowHandle()->close(); });
    EXPECT_TRUE(window_.isVisible());
    window_.windowHandle()->close();
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(RepaintDuringAChild, AnEndOfTheProgramLeavesTheWait) {
    EXPECT_THROW(meanwhile([this] { end_.end(); }), ProgramEnded);
}

TEST_F(RepaintDuringAChild, TheEndOfTheDesktopsSessionEndsTheProgram) {
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
    EXPECT_THROW(events_.serveWhileBlocked(), ProgramEnded);
    EXPECT_TRUE(end_.ended());
}

TEST(RealSounds, ASoundsBytesAreFoundWithoutRegardToCase) {
    QtSounds sounds;
    const std::string bytes = sounds.resource("godlike");
    EXPECT_EQ(bytes.substr(0, 4), "RIFF");
    EXPECT_EQ(sounds.resource("GodLike"), bytes);
}

TEST(RealSounds, AllElevenSoundsAreThere) {
    QtSounds sounds;
    for (const char* name : {"CD1MIN", "CD3MIN", "CD5MIN", "GODLIKE", "ROGER", "WCLOSE", "WOPEN",
                             "NASTY", "LADVANCE", "BOOM", "BIGSELECT"})
        EXPECT_EQ(sounds.resource(name).substr(0, 4), "RIFF") << name;
}

TEST(RealSounds, ASoundThatIsNotThereRaises326) {
    QtSounds sounds;
    EXPECT_EQ(test::errorOf([&] { sounds.resource("monsterkill"); }), 326);
    EXPECT_EQ(test::errorOf([&] { sounds.start("monsterkill"); }), 326);
    EXPECT_EQ(test::errorOf([&] { sounds.start("../pictures/main"); }), 326);
}

TEST(RealSounds, StartingIsHarmlessWhetherOrNotThereIsADevice) {
    QtSounds sounds;
    EXPECT_EQ(sounds.start("roger"), 1) << "Before the first try nothing is known of a device";
    EXPECT_EQ(sounds.start("wopen"), 1);
    test::serveEvents();
    EXPECT_LE(sounds.start("nasty"), 1);
    test::serveEvents();
}

TEST(RealSounds, WithoutADeviceNothingIsSaidOnTheTerminal) {
    const test::QtMessages messages;
    QtSounds sounds;
    const bool silent = QTest::qWaitFor([&] { return sounds.start("roger") == 0; }, 2000);
    if (!silent) GTEST_SKIP() << "There is a sound device here.";
    EXPECT_EQ(messages.said().filter(QStringLiteral("Audio")), QStringList());
}

TEST(Twips, FifteenMakeAPixel) {
    EXPECT_EQ(pixels(8000), 533);
    EXPECT_EQ(pixels(250), 17);
    EXPECT_EQ(pixels(-15), -1);
    EXPECT_EQ(twips(32), 480);
}

}  // namespace
}  // namespace tessaro
