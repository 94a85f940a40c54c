// Every form on a screen that is small for it. The test's screen is always the same; what a scale
// of 200 % on 1366 x 768 does to the room, a font of 19 points does here.

#include <QPushButton>
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

    // To its beginning, where it is wider than the room.
    static void scrollTo(ContentArea& area, QWidget& control) {
        area.ensureWidgetVisible(&control, 0, 0);
        const QPoint corner = control.mapTo(area.widget(), QPoint());
        area.ensureVisible(corner.x(), corner.y(), 0, 0);
    }
    // An option is as wide as its form; what it shows may be less.
    static bool seen(const QAbstractButton& button, const QWidget& through) {
        const bool pushed = qobject_cast<const QPushButton*>(&button) != nullptr;
        const int width = pushed ? button.width() : button.minimumSizeHint().width();
        const QRect place(button.mapTo(&through, QPoint()), QSize(width, button.height()));
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
            if (scrolled) scrollTo(*area, *button);
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
