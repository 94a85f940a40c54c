// Every form in every skin: the frame is closed all round, and what is written can be read.

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>

#include "kit/controls/drivelist.h"
#include "kit/frame/skinnedform.h"
#include "support/forms/allforms.h"
#include "support/forms/contrast.h"

namespace tessaro::test {
namespace {

// All forms in one skin.
class Skinned : public AllFormsTest, public ::testing::WithParamInterface<const char*> {
  protected:
    using Look = std::function<void(SkinnedForm&)>;

    void look(const Look& see) {
        program_.settings.Skin = GetParam();
        visitForms([&](Form& form) {
            if (auto* skinned = dynamic_cast<SkinnedForm*>(&form)) see(*skinned);
        });
    }
};

// The colours of the letters on a ground, in every state of a control.
void expectReadable(const QWidget& control, QPalette::ColorRole letters,
                    QPalette::ColorRole ground) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QPalette& palette = control.palette();
        EXPECT_GE(contrast(palette.color(group, letters), palette.color(group, ground)), readable)
            << control.objectName().toStdString() << ": " << letters << " on " << ground
            << " in group " << group;
    }
}

bool isField(const QWidget& control) {
    if (qobject_cast<const QHeaderView*>(&control) != nullptr) return false;
    return qobject_cast<const QAbstractItemView*>(&control) != nullptr ||
           qobject_cast<const QLineEdit*>(&control) != nullptr ||
           qobject_cast<const QTextEdit*>(&control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&control) != nullptr;
}

// The darkest letter of a picture against its most frequent colour, which is the ground.
double contrastInside(QWidget& control) {
    const QImage picture = control.grab(control.rect().adjusted(3, 3, -3, -3)).toImage();
    const QColor ground = picture.pixelColor(0, 0);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, contrast(picture.pixelColor(x, y), ground));
    return most;
}

TEST_P(Skinned, TheFrameIsClosedAllRound) {
    look([](SkinnedForm& form) {
        const QImage picture = form.grab().toImage();
        const QColor ground = form.palette().color(QPalette::Window);
        const int inset = 4;  // inside the line around the form and within the thinnest bar
        const QRect way = form.rect().adjusted(inset, inset, -inset, -inset);
        std::vector<QPoint> places;
        for (int x = way.left(); x <= way.right(); ++x) {
            places.emplace_back(x, way.top());
            places.emplace_back(x, form.leftimg->y() - 3);  // the foot of the plate's band
            places.emplace_back(x, way.bottom());
        }
        for (int y = way.top(); y <= way.bottom(); ++y) {
            places.emplace_back(way.left(), y);
            places.emplace_back(way.right(), y);
        }
        std::vector<QPoint> open;
        for (const QPoint& place : places) {
            const QWidget* control = form.childAt(place);
            const bool button = qobject_cast<const QAbstractButton*>(control) != nullptr;
            if (!button && picture.pixelColor(place) == ground) open.push_back(place);
        }
        EXPECT_TRUE(open.empty()) << open.size() << " places, the first at " << open.front().x()
                                  << ", " << open.front().y();
    });
}

TEST_P(Skinned, FieldsCanBeRead) {
    int read = 0;
    look([&](SkinnedForm& form) {
        for (const auto* control : form.findChildren<QWidget*>()) {
            if (!isField(*control) || !control->isVisible()) continue;
            expectReadable(*control, QPalette::Text, QPalette::Base);
            expectReadable(*control, QPalette::PlaceholderText, QPalette::Base);
            expectReadable(*control, QPalette::HighlightedText, QPalette::Highlight);
            ++read;
        }
        for (const auto* drives : form.findChildren<DriveList*>())
            expectReadable(*drives, QPalette::ButtonText, QPalette::Button);
    });
    EXPECT_GT(read, 30);
}

TEST_P(Skinned, LabelsButtonsAndHeadsCanBeRead) {
    look([](SkinnedForm& form) {
        for (const auto* label : form.findChildren<QLabel*>())
            if (label != form.Title) expectReadable(*label, QPalette::WindowText, QPalette::Window);
        for (const auto* frame : form.findChildren<QGroupBox*>())
            expectReadable(*frame, QPalette::WindowText, QPalette::Window);
        for (const auto* head : form.findChildren<QHeaderView*>())
            expectReadable(*head, QPalette::ButtonText, QPalette::Button);
        for (const auto* button : form.findChildren<QAbstractButton*>())
            if (button != form.CommandX && button != form.CommandQ)
                expectReadable(*button, QPalette::ButtonText, QPalette::Button);
    });
}

TEST_P(Skinned, TheFramesButtonsCanBeRead) {
    look([](SkinnedForm& form) {
        for (QPushButton* button : {form.CommandX, form.CommandQ})
            if (button != nullptr) {
                EXPECT_GE(contrastInside(*button), readable) << button->objectName().toStdString();
            }
        form.CommandX->setDown(true);
        EXPECT_GE(contrastInside(*form.CommandX), readable) << "pressed";
        form.CommandX->setDown(false);
    });
}

TEST_P(Skinned, TheTitleCanBeReadOnItsPlate) {
    look([](SkinnedForm& form) {
        const QColor letters = form.Title->palette().color(QPalette::WindowText);
        const QImage plate = form.timg->grab().toImage();
        const QRect title = form.Title->geometry().translated(-form.timg->pos());
        for (int y = title.top(); y <= title.bottom(); ++y) {
            EXPECT_GE(contrast(plate.pixelColor(title.center().x(), y), letters), readable) << y;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Numbers, Skinned, ::testing::Values("0", "1", "2"));

}  // namespace
}  // namespace tessaro::test
