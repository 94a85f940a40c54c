#include "core/centerform.h"

#include <gtest/gtest.h>

#include <QScreen>

namespace tessaro {
namespace {

TEST(Placement, CentresAcrossAndALittleAboveTheMiddle) {
    QWidget form;
    form.resize(300, 200);
    CenterForm(form);
    const QRect screen = form.screen()->geometry();
    EXPECT_EQ(form.x(), (screen.width() - 300) / 2);
    EXPECT_EQ(form.y(), qRound(screen.height() * 0.85 / 2 - 100));
}

TEST(Placement, KeepsTheTopOfATallFormWithinReach) {
    QWidget form;
    form.resize(300, form.screen()->geometry().height());
    CenterForm(form);
    EXPECT_EQ(form.y(), form.screen()->geometry().top());
}

}  // namespace
}  // namespace tessaro
