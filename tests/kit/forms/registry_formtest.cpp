#include <gmock/gmock.h>

#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "kit/forms/forms.h"
#include "kit/forms/handler.h"
#include "kit/outside/qtevents.h"
#include "platform/runtime/runtimeerror.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using test::serveEvents;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What the forms of these tests did, in order.
std::vector<std::string> events;

class FormRegistry : public test::FormsTest {
  protected:
    FormRegistry() {
        events.clear();
        addForms();
    }
    void addForms();
};

// Writes its life down. `number` tells form classes apart.
template <int number>
class Recorder : public FormWindow<QDialog> {
  public:
    explicit Recorder(Forms& forms) : FormWindow(forms) { note("made"); }
    ~Recorder() override { note("gone"); }
    void Load() override { note("Load"); }
    bool QueryUnload() override {
        note("QueryUnload");
        return !refuses;
    }
    bool QueryUnloadAll() override { return !staysBehind; }
    void Unload() override {
        note("Unload");
        if (failure != 0) throw RunTimeError(failure);
    }
    bool refuses = false;
    bool staysBehind = false;
    int failure = 0;

  private:
    static void note(const char* what) {
        events.push_back(std::string(what) + " " + std::to_string(number));
    }
};
using First = Recorder<1>;
using Second = Recorder<2>;

class FailsInLoad : public Recorder<3> {
  public:
    using Recorder<3>::Recorder;
    void Load() override { throw RunTimeError(errors::PathNotFound); }
};

class TouchesItself : public Recorder<4> {
  public:
    using Recorder<4>::Recorder;
    void Load() override { same = &forms().get<TouchesItself>() == this; }
    bool same = false;
};

class MainWindowForm : public FormWindow<QMainWindow> {
  public:
    explicit MainWindowForm(Forms& forms) : FormWindow(forms) {}
    void Unload() override { forms().UnloadAllForms(); }
};

void FormRegistry::addForms() {
    forms_.add<First>();
    forms_.add<Second>();
    forms_.add<FailsInLoad>();
    forms_.add<TouchesItself>();
    forms_.add<MainWindowForm>();
}

TEST_F(FormRegistry, TheFirstTouchMakesAndLoadsAFormAndLaterOnesGiveTheSame) {
    EXPECT_EQ(forms_.loaded<First>(), nullptr);
    First& form = forms_.get<First>();
    EXPECT_EQ(&forms_.get<First>(), &form);
    EXPECT_EQ(forms_.loaded<First>(), &form);
    EXPECT_FALSE(form.isVisible());
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1"));
}

TEST_F(FormRegistry, AnErrorInLoadDestroysTheHalfMadeFormAndPassesOn) {
    EXPECT_EQ(test::errorOf([&] { forms_.get<FailsInLoad>(); }), 76);
    EXPECT_EQ(forms_.loaded<FailsInLoad>(), nullptr);
    serveEvents();
    EXPECT_THAT(events, ElementsAre("made 3", "gone 3"));
}

TEST_F(FormRegistry, AFormThatIsTouchedInItsOwnLoadIsNotMadeTwice) {
    EXPECT_TRUE(forms_.get<TouchesItself>().same);
}

TEST_F(FormRegistry, ShowingAFormTwiceShowsOneWindow) {
    forms_.show<First>();
    forms_.show<First>();
    EXPECT_TRUE(forms_.get<First>().isVisible());
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1"));
}

TEST_F(FormRegistry, ShowingAMinimisedFormBringsItBack) {
    forms_.show<First>();
    forms_.get<First>().showMinimized();
    forms_.show<First>();
    EXPECT_FALSE(forms_.get<First>().isMinimized());
}

TEST_F(FormRegistry, CloseAsksAndThenUnloads) {
    forms_.show<First>();
    forms_.get<First>().close();
    EXPECT_EQ(forms_.loaded<First>(), nullptr);
    serveEvents();
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "QueryUnload 1", "Unload 1", "gone 1"));
}

TEST_F(FormRegistry, AFormThatRefusesStaysOpen) {
    forms_.show<First>();
    First& form = forms_.get<First>();
    form.refuses = true;
    EXPECT_FALSE(form.close());
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(forms_.loaded<First>(), &form);
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "QueryUnload 1"));
}

TEST_F(FormRegistry, EscPressesTheCancelButtonOfADialogAndClosesNoneWithout) {
    forms_.show<First>();
    First& form = forms_.get<First>();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(forms_.loaded<First>(), &form);
    QPushButton cancel(&form);
    QObject::connect(&cancel, &QPushButton::clicked, [&] { form.close(); });
    form.setCancelButton(cancel);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(forms_.loaded<First>(), &form) << "The button cannot be seen";
    cancel.show();
    cancel.setEnabled(false);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(forms_.loaded<First>(), &form) << "The button cannot be pressed";
    cancel.setEnabled(true);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(forms_.loaded<First>(), nullptr);
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "QueryUnload 1", "Unload 1"));
}

TEST_F(FormRegistry, UnloadDoesNotAsk) {
    First& form = forms_.get<First>();
    form.refuses = true;
    forms_.unload(form);
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "Unload 1"));
}

TEST_F(FormRegistry, AFormThatFailsInUnloadGoesAndTheErrorPassesOn) {
    First& form = forms_.get<First>();
    form.failure = errors::DiskFull;
    EXPECT_EQ(test::errorOf([&] { forms_.unload(form); }), 61);
    EXPECT_EQ(forms_.loaded<First>(), nullptr);
}

TEST_F(FormRegistry, AFormMayUnloadItselfInItsOwnHandler) {
    forms_.show<First>();
    First& form = forms_.get<First>();
    QPushButton button(QStringLiteral("Close"));
    bool alive = false;
    on(&button, &QPushButton::clicked, forms_, [&] {
        forms_.unload(form);
        serveEvents();
        alive = events.back() == "Unload 1";
    });
    button.click();
    EXPECT_TRUE(alive);
    serveEvents();
    EXPECT_EQ(events.back(), "gone 1");
}

TEST_F(FormRegistry, AFormLoadedAnewIsAnotherInstance) {
    forms_.unload(forms_.get<First>());
    forms_.get<First>();
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "Unload 1", "made 1", "Load 1"));
}

TEST_F(FormRegistry, AllFormsAreUnloadedInLoadingOrder) {
    forms_.get<Second>();
    forms_.get<First>();
    events.clear();
    forms_.UnloadAllForms();
    EXPECT_TRUE(forms_.empty());
    EXPECT_THAT(events, ElementsAre("Unload 2", "Unload 1"));
}

TEST_F(FormRegistry, AFormMayRefuseToGoWithAllOthers) {
    forms_.get<First>().staysBehind = true;
    forms_.get<Second>();
    forms_.UnloadAllForms();
    EXPECT_NE(forms_.loaded<First>(), nullptr);
    EXPECT_EQ(forms_.loaded<Second>(), nullptr);
}

TEST_F(FormRegistry, AnErrorInOneFormDoesNotKeepTheOthersLoaded) {
    forms_.get<First>().failure = errors::DiskFull;
    forms_.get<Second>();
    forms_.UnloadAllForms();
    EXPECT_TRUE(forms_.empty());
}

TEST_F(FormRegistry, AMainWindowThatUnloadsAllFormsInItsUnloadIsUnloadedOnce) {
    forms_.get<First>();
    forms_.unload(forms_.get<MainWindowForm>());
    EXPECT_TRUE(forms_.empty());
}

TEST_F(FormRegistry, AModalFormBlocksUntilItIsUnloaded) {
    bool blocked = false;
    test::WhenItComes close(
        [&] { return forms_.loaded<First>() && forms_.get<First>().isVisible(); },
        [&] {
            blocked = QApplication::activeModalWidget() == &forms_.get<First>();
            forms_.get<First>().close();
        });
    forms_.showModal<First>();
    EXPECT_TRUE(blocked);
    EXPECT_EQ(forms_.loaded<First>(), nullptr);
}

TEST_F(FormRegistry, AModalFormThatIsHiddenLetsItsCallerGoOnAndStaysLoaded) {
    test::WhenItComes hide(
        [&] { return forms_.loaded<First>() && forms_.get<First>().isVisible(); },
        [&] { forms_.get<First>().hide(); });
    forms_.showModal<First>();
    EXPECT_TRUE(hide.acted());
    EXPECT_NE(forms_.loaded<First>(), nullptr);
    forms_.show<First>();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FormRegistry, AModalFormThatIsHiddenAndShownAgainInOneHandlerStaysModal) {
    int step = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        First& form = forms_.get<First>();
        if (++step == 1) {
            form.hide();
            form.show();
        } else {
            form.close();
        }
    });
    timer.start(1);
    forms_.showModal<First>();
    EXPECT_EQ(step, 2);
}

TEST_F(FormRegistry, AFormThatShowsAlreadyBecomesModal) {
    forms_.show<First>();
    QWidget* modal = nullptr;
    QTimer::singleShot(1, [&] {
        modal = QApplication::activeModalWidget();
        forms_.get<First>().close();
    });
    First* form = forms_.loaded<First>();
    forms_.showModal<First>();
    EXPECT_EQ(modal, form);
}

TEST_F(FormRegistry, TheEndUnwindsNestedModalForms) {
    std::vector<std::string> after;
    QTimer::singleShot(1, [&] {
        guarded(forms_, [&] {
            QTimer::singleShot(1, [&] { guarded(forms_, [&] { forms_.end(); }); });
            forms_.showModal<Second>();
            after.push_back("inner");
        });
    });
    guarded(forms_, [&] {
        forms_.showModal<First>();
        after.push_back("outer");
    });
    EXPECT_TRUE(forms_.ended());
    EXPECT_THAT(after, IsEmpty());
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "made 2", "Load 2"));
}

TEST_F(FormRegistry, TheProgramRunsUntilNoFormIsLeft) {
    forms_.show<First>();
    forms_.get<Second>();
    QTimer::singleShot(1, [&] {
        forms_.get<First>().close();
        // In a later turn of the loop, when the closed form is really gone.
        QTimer::singleShot(1, [&] { forms_.UnloadAllForms(); });
    });
    EXPECT_EQ(forms_.run(), 0);
    EXPECT_THAT(events, ElementsAre("made 1", "Load 1", "made 2", "Load 2", "QueryUnload 1",
                                    "Unload 1", "gone 1", "Unload 2"));
}

TEST_F(FormRegistry, AWaitWithoutAnEndIsLeftWhenTheLastFormHasGone) {
    QtEvents realEvents(end_);
    forms_.show<First>();
    bool left = false;
    QTimer::singleShot(1, [&] {
        guarded(forms_, [&] {
            QTimer::singleShot(1, [&] { forms_.get<First>().close(); });
            for (;;) realEvents.pumpEndless();
        });
        left = true;
    });
    EXPECT_EQ(forms_.run(), 0);
    EXPECT_TRUE(left);
    realEvents.pump();  // an ordinary wait comes to its own end
    EXPECT_FALSE(forms_.ended());
}

TEST_F(FormRegistry, AProgramThatEndedAtItsStartDoesNotRun) {
    forms_.get<First>();
    forms_.end();
    EXPECT_EQ(forms_.run(), 0);
}

}  // namespace
}  // namespace tessaro
