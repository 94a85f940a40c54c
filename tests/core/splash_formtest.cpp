#include "core/splash.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

using Names = std::vector<std::string>;

class SplashForm : public GameFormsTest {
  protected:
    SplashForm() {
        program_.gamePaths.UTSysPath = "C:\\UnrealTournament\\System";
        program_.settings.Sounds = "1";
    }
    splash& shown() {
        forms_.show<splash>();
        return forms_.get<splash>();
    }
    QTimer& timer() { return *forms_.get<splash>().findChild<QTimer*>(QStringLiteral("Timer1")); }
};

TEST_F(SplashForm, SaysForWhomTheProgramWasWritten) {
    splash& form = shown();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Ovrin Tessaro (Loading...)"));
    EXPECT_EQ(control<QLabel>(form, "Label1").text(), QStringLiteral("Written For"));
    EXPECT_EQ(control<QLabel>(form, "Label2").text(), QStringLiteral("Me"));
    EXPECT_EQ(control<QLabel>(form, "Label3").text(), QStringLiteral("ver 3.0!"));
}

TEST_F(SplashForm, HasThreeSecondsFromTheStart) {
    shown();
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(timer().interval(), 3000);
}

TEST_F(SplashForm, GoesInSilenceWhenItsTimeIsOver) {
    shown();
    QMetaObject::invokeMethod(&timer(), "timeout");
    EXPECT_EQ(forms_.loaded<splash>(), nullptr);
    EXPECT_EQ(sounds_, Names{});
}

TEST_F(SplashForm, AnswersAClickAndGoesAfterHalfASecond) {
    const double start = world_.events.now;
    QTest::mouseClick(&shown(), Qt::LeftButton);
    EXPECT_EQ(forms_.loaded<splash>(), nullptr);
    EXPECT_EQ(sounds_, Names{"roger"});
    EXPECT_GE(world_.events.now - start, 0.5);
}

TEST_F(SplashForm, AKeyThatPressesAButtonIsAsGoodAsAClick) {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space}) {
        sounds_.clear();
        QTest::keyClick(&shown(), static_cast<Qt::Key>(key));
        EXPECT_EQ(forms_.loaded<splash>(), nullptr) << key;
        EXPECT_EQ(sounds_, Names{"roger"}) << key;
    }
}

TEST_F(SplashForm, OtherKeysAndButtonsDoNotEndIt) {
    splash& form = shown();
    QTest::keyClick(&form, Qt::Key_Shift);
    QTest::keyClick(&form, Qt::Key_A);
    QTest::mouseClick(&form, Qt::RightButton);
    QTest::mouseClick(&form, Qt::MiddleButton);
    EXPECT_EQ(forms_.loaded<splash>(), &form);
    EXPECT_EQ(sounds_, Names{});
}

TEST_F(SplashForm, AClickOnOneOfItsTextsCounts) {
    splash& form = shown();
    QTest::mouseClick(&control<QLabel>(form, "Label2"), Qt::LeftButton);
    EXPECT_EQ(forms_.loaded<splash>(), nullptr);
}

TEST_F(SplashForm, TimeMayEndDuringTheWaitOfAClick) {
    splash& form = shown();
    world_.events.onPump = [&] {
        if (forms_.loaded<splash>() != nullptr) QMetaObject::invokeMethod(&timer(), "timeout");
    };
    QTest::mouseClick(&form, Qt::LeftButton);
    EXPECT_EQ(forms_.loaded<splash>(), nullptr);
}

}  // namespace
}  // namespace tessaro::test
