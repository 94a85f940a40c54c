#include "kit/forms/handler.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QTimer>
#include <stdexcept>

#include "platform/runtime/runtimeerror.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;

using Handlers = test::FormsTest;

TEST_F(Handlers, ARunTimeErrorReachesTheStandardReportAndEndsTheProgram) {
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [] { throw RunTimeError(errors::Overflow); });
    EXPECT_THAT(world_.dialogs.messages,
                ElementsAre(Message{standardReport(RunTimeError(errors::Overflow)), "Ovrin Tessaro",
                                    Buttons::Ok, Icon::Stop}));
    EXPECT_TRUE(forms_.ended());
}

TEST_F(Handlers, AnotherExceptionIsReportedByItsWords) {
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [] { throw std::runtime_error("no memory left"); });
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].text, "no memory left");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(Handlers, TheEndOfTheProgramIsNoFailure) {
    guarded(forms_, [] { throw ProgramEnded{}; });
    EXPECT_TRUE(world_.dialogs.messages.empty());
}

TEST_F(Handlers, NoHandlerRunsAfterTheEnd) {
    forms_.end();
    bool ran = false;
    guarded(forms_, [&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST_F(Handlers, ASignalReachesItsHandlerUnderGuard) {
    QCheckBox box;
    on(&box, &QCheckBox::toggled, forms_, [](bool) { throw RunTimeError(errors::TypeMismatch); });
    world_.dialogs.answer(Answer::Ok);
    box.setChecked(true);
    EXPECT_EQ(world_.dialogs.messages.size(), 1u);
}

TEST_F(Handlers, AHandlerMayTakeTheArgumentsOrLeaveThem) {
    QCheckBox box;
    std::vector<bool> taken;
    int left = 0;
    on(&box, &QCheckBox::toggled, forms_, [&](bool checked) { taken.push_back(checked); });
    on(&box, &QCheckBox::toggled, forms_, [&] { ++left; });
    box.setChecked(true);
    box.setChecked(false);
    EXPECT_THAT(taken, ElementsAre(true, false));
    EXPECT_EQ(left, 2);
}

TEST_F(Handlers, ATimersPrivateSignalCanBeHandled) {
    QTimer timer;
    int ticks = 0;
    on(&timer, &QTimer::timeout, forms_, [&] { ++ticks; });
    timer.setSingleShot(true);
    timer.start(0);
    while (ticks == 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace tessaro
