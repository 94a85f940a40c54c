#include "shell/Skins.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "kit/controls/listview.h"
#include "kit/frame/skinnedform.h"
#include "shell/Skinz.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

const QColor designGround(64, 64, 64);

struct Lists {
    ListView* ListView1 = nullptr;
    ListView* ListView2 = nullptr;
    QLineEdit* Text9 = nullptr;
    QLineEdit* Text10 = nullptr;

    template <class Widget>
    static Widget* make(QWidget* content, const char* name) {
        auto* widget = new Widget(content);
        widget->setObjectName(QLatin1String(name));
        content->layout()->addWidget(widget);
        return widget;
    }
    void setupUi(QWidget* content) {
        new QVBoxLayout(content);
        ListView1 = make<ListView>(content, "ListView1");
        ListView2 = make<ListView>(content, "ListView2");
        Text9 = make<QLineEdit>(content, "Text9");
        Text10 = make<QLineEdit>(content, "Text10");
        content->resize(400, 300);
    }
};

class BatchForm : public SkinnedForm {
  public:
    explicit BatchForm(Forms& forms) : SkinnedForm(forms, {"Batch", "Batch", true}) {
        setUpContent(ui);
    }
    Lists ui;
};

QColor ground(const QWidget* field) {
    return field->palette().color(QPalette::Base);
}

QImage storedPicture(const char* name) {
    return QPixmap(QStringLiteral(":/pictures/%1.png").arg(QLatin1String(name))).toImage();
}

QImage pictureOn(const QLabel* label) {
    return label->pixmap(Qt::ReturnByValue).toImage();
}

class SkinTest : public test::FormsTest {
  protected:
    SkinTest() { forms_.add<BatchForm>(); }

    BatchForm& dressedIn(const char* skin) {
        program_.settings.Skin = skin;
        BatchForm& form = forms_.get<BatchForm>();
        ApplySkin(program_, forms_, form);
        return form;
    }
};

TEST_F(SkinTest, TheFirstSkinIsGreyWithABlackTitle) {
    const BatchForm& form = dressedIn("0");
    EXPECT_EQ(form.CommandX->palette().color(QPalette::Button), QColor(128, 128, 128));
    EXPECT_EQ(form.CommandQ->palette().color(QPalette::Button), QColor(128, 128, 128));
    EXPECT_EQ(ground(form.ui.ListView1), QColor(64, 64, 64));
    EXPECT_EQ(form.Title->palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(SkinTest, TheSecondSkinIsBlueWithAWhiteTitle) {
    const BatchForm& form = dressedIn("1");
    EXPECT_EQ(form.CommandX->palette().color(QPalette::Button), QColor(128, 128, 255));
    EXPECT_EQ(ground(form.ui.ListView1), QColor(0, 0, 192));
    EXPECT_EQ(ground(form.ui.ListView2), QColor(0, 0, 192));
    EXPECT_EQ(ground(form.ui.Text9), QColor(0, 0, 192));
    EXPECT_EQ(form.Title->palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(SkinTest, TheThirdSkinIsRedWithAWhiteTitle) {
    const BatchForm& form = dressedIn("2");
    EXPECT_EQ(form.CommandX->palette().color(QPalette::Button), QColor(255, 128, 0));
    EXPECT_EQ(ground(form.ui.ListView2), QColor(192, 0, 0));
    EXPECT_EQ(form.Title->palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(SkinTest, TheFirstSkinLeavesTheSecondListAsItWas) {
    BatchForm& form = dressedIn("2");
    dressedIn("0");
    EXPECT_EQ(ground(form.ui.ListView1), QColor(64, 64, 64));
    EXPECT_EQ(ground(form.ui.ListView2), QColor(192, 0, 0));
}

// Every control that a skin may colour, each at first of a colour that no skin has, and which of
// them are of the skin's colour once they are dressed.
QStringList colouredBy(Program& program, Forms& forms, const char* skin, const QColor& colour) {
    QWidget form;
    for (const char* name : {"ListView1", "ListView2", "List1", "Dir1", "Drive1", "Text1", "Text2",
                             "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9"}) {
        auto* field = new QLineEdit(&form);
        field->setObjectName(QLatin1String(name));
        field->setPalette(QPalette(Qt::green));
    }
    program.settings.Skin = skin;
    ApplySkin(program, forms, form);
    QStringList coloured;
    for (const QLineEdit* field : form.findChildren<QLineEdit*>())
        if (ground(field) == colour) coloured << field->objectName();
    return coloured;
}

TEST_F(SkinTest, EachSkinColoursItsListOfFields) {
    const QStringList all{"ListView1", "ListView2", "List1", "Dir1",  "Drive1", "Text1", "Text2",
                          "Text3",     "Text4",     "Text5", "Text6", "Text7",  "Text8", "Text9"};
    QStringList allButTheSecondList = all;
    allButTheSecondList.removeOne(QStringLiteral("ListView2"));
    EXPECT_EQ(colouredBy(program_, forms_, "0", QColor(64, 64, 64)), allButTheSecondList);
    EXPECT_EQ(colouredBy(program_, forms_, "1", QColor(0, 0, 192)), all);
    EXPECT_EQ(colouredBy(program_, forms_, "2", QColor(192, 0, 0)), all);
}

TEST_F(SkinTest, OnlyTheNamedBoxesAreColoured) {
    const BatchForm& form = dressedIn("1");
    EXPECT_EQ(ground(form.ui.Text10), designGround);
}

TEST_F(SkinTest, NoSkinTouchesTheLettersOfListsAndTextBoxes) {
    const BatchForm& form = forms_.get<BatchForm>();
    EXPECT_EQ(form.ui.Text9->palette().color(QPalette::Text), QColor(Qt::white));
    const QColor designed(Qt::yellow);
    for (QWidget* field : std::initializer_list<QWidget*>{form.ui.ListView1, form.ui.Text9}) {
        QPalette palette = field->palette();
        palette.setColor(QPalette::Text, designed);
        field->setPalette(palette);
    }
    for (const char* skin : {"0", "1", "2"}) {
        dressedIn(skin);
        EXPECT_EQ(form.ui.ListView1->palette().color(QPalette::Text), designed) << skin;
        EXPECT_EQ(form.ui.Text9->palette().color(QPalette::Text), designed) << skin;
    }
}

TEST_F(SkinTest, TheHeadOfAListCanBeReadInEverySkin) {
    for (const char* skin : {"0", "1", "2"}) {
        const QPalette head = dressedIn(skin).ui.ListView1->header()->palette();
        EXPECT_GT(
            head.color(QPalette::Button).lightness() - head.color(QPalette::ButtonText).lightness(),
            128)
            << skin;
    }
}

TEST_F(SkinTest, EachSkinHasItsOwnFramePictures) {
    const std::pair<const char*, const char*> suffixes[] = {{"0", ""}, {"1", "2"}, {"2", "3"}};
    for (const auto& [skin, suffix] : suffixes) {
        const BatchForm& form = dressedIn(skin);
        const auto stored = [s = suffix](const std::string& name) {
            return storedPicture((name + s).c_str());
        };
        EXPECT_EQ(pictureOn(form.timg), stored("topimg"));
        EXPECT_EQ(pictureOn(form.bimg), stored("btmimg"));
        EXPECT_EQ(pictureOn(form.leftimg), stored("sideimg"));
        EXPECT_EQ(pictureOn(form.rightimg), stored("sideimg"));
        EXPECT_FALSE(pictureOn(form.timg).isNull());
    }
}

TEST_F(SkinTest, TheSecondSkinAloneMovesThePlateRightAndTheTitleStaysCentred) {
    for (const auto& [skin, shift] : {std::pair{"0", 0}, {"1", 17}, {"2", 0}}) {
        const BatchForm& form = dressedIn(skin);
        EXPECT_EQ(form.timg->x(), form.width() / 2 - form.timg->width() / 2 + shift) << skin;
        EXPECT_EQ(form.Title->x(), form.width() / 2 - form.Title->width() / 2) << skin;
    }
}

TEST_F(SkinTest, ThePlateKeepsItsShiftWhenTheFormGrows) {
    BatchForm& form = dressedIn("1");
    forms_.show<BatchForm>();
    form.resize(700, 500);
    test::serveEvents();
    EXPECT_EQ(form.timg->x(), 350 - form.timg->width() / 2 + 17);
}

TEST_F(SkinTest, AnyOtherSkinLeavesTheDesignLook) {
    for (const char* skin : {"3", "-1", "", "black"}) {
        const BatchForm& form = dressedIn(skin);
        EXPECT_EQ(ground(form.ui.ListView2), designGround) << skin;
        EXPECT_TRUE(pictureOn(form.timg).isNull()) << skin;
    }
    EXPECT_EQ(forms_.loaded<Skinz>(), nullptr);
}

TEST_F(SkinTest, TheNumberMayBeWrittenInAnotherWay) {
    EXPECT_EQ(ground(dressedIn(" 1.0 ").ui.ListView1), QColor(0, 0, 192));
}

TEST_F(SkinTest, AFormWithoutTheFramesControlsIsDressedWithoutError) {
    program_.settings.Skin = "2";
    QWidget form;
    QLineEdit box(&form);
    box.setObjectName(QStringLiteral("Text1"));
    ApplySkin(program_, forms_, form);
    EXPECT_EQ(ground(&box), QColor(192, 0, 0));
}

TEST_F(SkinTest, TheStoreOfPicturesIsLoadedAtFirstUseAndStaysHidden) {
    EXPECT_EQ(forms_.loaded<Skinz>(), nullptr);
    dressedIn("0");
    const Skinz* store = forms_.loaded<Skinz>();
    ASSERT_NE(store, nullptr);
    EXPECT_FALSE(store->isVisible());
    for (const char* name :
         {"systraypic", "Image4", "Image5", "chno", "chok", "minup", "mindn", "closeup", "closedn"})
        EXPECT_FALSE(store->picture(name).isNull()) << name;
}

TEST_F(SkinTest, TheColoursAreReallyPainted) {
    BatchForm& form = dressedIn("1");
    forms_.show<BatchForm>();
    form.resize(500, 400);
    test::serveEvents();
    const QImage picture = form.grab().toImage();
    const auto colourAt = [&](QWidget* part, const QPoint& place) {
        return picture.pixelColor(part->mapTo(&form, place));
    };
    EXPECT_EQ(colourAt(form.ui.ListView2->viewport(), QPoint(50, 30)), QColor(0, 0, 192));
    EXPECT_EQ(colourAt(form.ui.Text9, form.ui.Text9->rect().center()), QColor(0, 0, 192));
    EXPECT_EQ(colourAt(form.CommandX, QPoint(4, 4)), QColor(128, 128, 255));
}

}  // namespace
}  // namespace tessaro
