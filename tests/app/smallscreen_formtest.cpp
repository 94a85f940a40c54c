// Every form on a screen that is small for it. The test's screen is always the same; what a scale
// of 200 % on 1366 x 768 does to the room, a font of 19 points does here.

#include <QAbstractButton>
#include <QScreen>
#include <algorithm>

#include "kit/frame/contentarea.h"
#include "support/forms/allforms.h"

namespace tessaro::test {
namespace {

// All forms in a font of so many points.
class SmallScreens : public AllFormsTest, public ::testing::WithParamInterface<int> {
  protected:
    SmallScreens() : AllFormsTest(GetParam()) {}

    static bool seen(const QWidget& control, const QWidget& through) {
        const QRect place(control.mapTo(&through, QPoint()), control.size());
        return through.rect().contains(place);
    }
};

TEST_P(SmallScreens, NoFormIsLargerThanTheScreen) {
    visitForms([](Form& form) {
        const QRect screen = form.window().screen()->availableGeometry();
        const bool skinned = form.window().findChild<ContentArea*>() != nullptr;
        EXPECT_TRUE(!skinned || screen.contains(form.window().geometry()))
            << form.window().width() << " x " << form.window().height();
    });
}

TEST_P(SmallScreens, EveryButtonCanBeScrolledIntoSight) {
    int reached = 0;
    visitForms([&](Form& form) {
        auto* area = form.window().findChild<ContentArea*>();
        if (area == nullptr) return;
        for (auto* button : form.window().findChildren<QAbstractButton*>()) {
            if (!button->isVisible()) continue;
            const bool scrolled = area->isAncestorOf(button);
            if (scrolled) area->ensureWidgetVisible(button, 0, 0);
            // A row of buttons may be wider than the room, but no button is.
            EXPECT_TRUE(seen(*button, scrolled ? *area->viewport() : form.window()))
                << button->objectName().toStdString();
            const int wanted = std::min(button->minimumSizeHint().width(), button->maximumWidth());
            EXPECT_GE(button->width(), wanted);
            ++reached;
        }
    });
    EXPECT_GT(reached, 100);
}

INSTANTIATE_TEST_SUITE_P(Points, SmallScreens, ::testing::Values(9, 14, 19));

}  // namespace
}  // namespace tessaro::test
