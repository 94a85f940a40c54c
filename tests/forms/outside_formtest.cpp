// The clock, the events and the sounds of the running program, and its measures.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include "forms/qtevents.h"
#include "forms/qtsounds.h"
#include "forms/twips.h"
#include "support/forms/formsfixture.h"

namespace tessaro::forms {
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

TEST(Twips, FifteenMakeAPixel) {
    EXPECT_EQ(pixels(8000), 533);
    EXPECT_EQ(pixels(250), 17);
    EXPECT_EQ(pixels(-15), -1);
    EXPECT_EQ(twips(32), 480);
}

}  // namespace
}  // namespace tessaro::forms
