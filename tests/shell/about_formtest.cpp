#include "shell/about.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include "cache/mapext.h"
#include "kit/look/twips.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class AboutForm : public GameFormsTest {
  protected:
    about& shown() {
        forms_.show<about>();
        stopped(forms_.get<about>());
        serveEvents();
        return forms_.get<about>();
    }
    QTextEdit& text() { return control<QTextEdit>(forms_.get<about>(), "Text1"); }
    static QTimer& timer(about& form) { return *form.findChild<QTimer*>(QStringLiteral("Timer1")); }
    // Lets no tick come by itself.
    static void stopped(about& form) { timer(form).stop(); }
    void tick(int times) {
        for (int i = 0; i < times; ++i)
            QMetaObject::invokeMethod(&timer(forms_.get<about>()), "timeout");
    }
    // Chooses a menu item and does something once the box is there.
    void choose(const char* item, const std::function<void(about&)>& act) {
        const WhenItComes box(
            [&] { return forms_.loaded<about>() && forms_.get<about>().isVisible(); },
            [&] { act(forms_.get<about>()); });
        menuItem(item).trigger();
        EXPECT_TRUE(box.acted()) << item;
        EXPECT_EQ(forms_.loaded<about>(), nullptr) << item;
    }
};

TEST_F(AboutForm, HasItsCaptionItsTitleAndTheCredits) {
    const about& form = shown();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("About Ovrin Tessaro v3"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("About Tessaro"));
    EXPECT_EQ(text().toPlainText().toStdString(), credits());
}

TEST_F(AboutForm, TheCreditsStartAtTheFootOfTheFrame) {
    shown();
    EXPECT_EQ(text().geometry(), QRect(0, pixels(3560), pixels(3495), pixels(13400)));
    EXPECT_EQ(text().parentWidget()->objectName(), QStringLiteral("Frame1"));
    EXPECT_LE(text().parentWidget()->height(), pixels(3560));
}

TEST_F(AboutForm, EachTickMovesThemUp) {
    shown();
    tick(1);
    EXPECT_EQ(text().y(), pixels(3553));
    tick(99);
    EXPECT_EQ(text().y(), pixels(2860));
    EXPECT_EQ(text().x(), 0);
}

TEST_F(AboutForm, AfterAFullPassTheyComeInAgainFromBelow) {
    shown();
    tick(2423);
    EXPECT_EQ(text().y(), pixels(3700));
    tick(10);
    EXPECT_EQ(text().y(), pixels(3630));
}

TEST_F(AboutForm, TheyRollByThemselvesWhileTheBoxIsThere) {
    forms_.show<about>();
    EXPECT_TRUE(timer(forms_.get<about>()).isActive());
    EXPECT_TRUE(QTest::qWaitFor([&] { return text().y() < pixels(3560); }));
}

TEST_F(AboutForm, NothingTicksAnyMoreOnceItIsClosed) {
    forms_.show<about>();
    const Forms::Running handler(forms_);  // keeps the closed form alive
    const QPointer<QTimer> itsTimer = &timer(forms_.get<about>());
    forms_.get<about>().CommandX->click();
    EXPECT_EQ(forms_.loaded<about>(), nullptr);
    ASSERT_NE(itsTimer, nullptr);
    EXPECT_FALSE(itsTimer->isActive());
}

TEST_F(AboutForm, TheMainWindowTakesNoInputWhileItIsThereHoweverItWasOpened) {
    MainFrm& window = start();
    for (const char* item : {"mnuabout", "mnuraboot"}) {
        choose(item, [&](about& form) {
            EXPECT_FALSE(window.isEnabled());
            EXPECT_TRUE(form.isModal());
            QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier);
            EXPECT_EQ(forms_.loaded<mapext>(), nullptr);
            form.CommandX->click();
        });
        EXPECT_TRUE(window.isEnabled()) << item;
    }
}

TEST_F(AboutForm, EveryWayOfClosingGivesTheMainWindowBack) {
    MainFrm& window = start();
    const std::function<void(about&)> ways[] = {
        [](about& form) { form.CommandX->click(); },
        [](about& form) { form.close(); },
        [this](about& form) { forms_.unload(form); },
    };
    for (const auto& way : ways) {
        choose("mnuabout", way);
        EXPECT_TRUE(window.isEnabled());
    }
}

TEST_F(AboutForm, TheEndOfAllFormsIsNotHeldUpByIt) {
    start();
    choose("mnuraboot", [&](about&) { forms_.get<MainFrm>().close(); });
    EXPECT_TRUE(forms_.empty());
}

TEST_F(AboutForm, TheTextTakesNeitherFocusNorMouseNorKeys) {
    about& form = shown();
    tick(300);
    EXPECT_EQ(text().focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(text().viewport()->focusPolicy(), Qt::NoFocus);
    const QPoint place = text().mapTo(&form, QPoint(50, 20));
    EXPECT_EQ(form.childAt(place)->objectName(), QStringLiteral("Frame1"));
    QTest::keyClicks(&text(), QStringLiteral("typed"));
    EXPECT_EQ(text().toPlainText().toStdString(), credits());
}

TEST_F(AboutForm, CannotBeMoved) {
    about& form = shown();
    QTest::mousePress(form.timg, Qt::LeftButton);
    QTest::mousePress(form.Title, Qt::LeftButton);
    EXPECT_EQ(form.findChild<QObject*>(QStringLiteral("drag")), nullptr);
}

TEST_F(AboutForm, TheFrameHasTheGroundOfTheTextInEachSkin) {
    for (const auto& [skin, ground] :
         {std::pair{"0", QColor(64, 64, 64)}, {"1", QColor(0, 0, 192)}, {"2", QColor(192, 0, 0)}}) {
        program_.settings.Skin = skin;
        about& form = shown();
        tick(200);
        const QImage picture = form.grab().toImage();
        const auto& frame = control<QFrame>(form, "Frame1");
        EXPECT_EQ(picture.pixelColor(frame.mapTo(&form, QPoint(2, 2))), ground) << skin;
        EXPECT_EQ(picture.pixelColor(text().mapTo(&form, QPoint(2, 2))), ground) << skin;
        forms_.unload(form);
    }
}

// Whether every line of the credits stands on one line of the box and within it.
void expectRoomFor(QTextEdit& text) {
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        EXPECT_LE(block.layout()->lineCount(), 1) << block.text().toStdString();
    EXPECT_LE(text.document()->size().height(), text.height());
    EXPECT_LE(text.document()->idealWidth(), text.width());
}

TEST_F(AboutForm, TheTextFitsItsBox) {
    shown();
    expectRoomFor(text());
}

class LargeFont {
  public:
    LargeFont() {
        QFont large = before_;
        large.setPointSize(30);
        QApplication::setFont(large);
    }
    ~LargeFont() { QApplication::setFont(before_); }
    LargeFont(const LargeFont&) = delete;
    LargeFont& operator=(const LargeFont&) = delete;

  private:
    QFont before_ = QApplication::font();
};

TEST_F(AboutForm, ALargeFontGetsALargerBoxAndRollsAsFarInAsManySteps) {
    const LargeFont large;
    shown();
    expectRoomFor(text());
    EXPECT_GT(text().width(), 2 * pixels(3495));
    const int height = text().height();
    tick(2422);
    EXPECT_NEAR(text().y(), -height, 2);
    tick(1);
    EXPECT_GT(text().y(), 0);
}

}  // namespace
}  // namespace tessaro::test
