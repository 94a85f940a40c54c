// What a screen reader gets of every form: the tree that Qt gives it, walked through.

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStatusBar>
#include <QTextEdit>
#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "kit/frame/picturelabels.h"
#include "support/forms/allforms.h"
#include "support/forms/reader.h"

namespace tessaro::test {
namespace {

using Interfaces = std::vector<QAccessibleInterface*>;

// Forms that nobody ever sees: a store of pictures, and two that lend their menus to others.
const std::set<std::string> neverShown{"tessaro::Skinz", "tessaro::listeditmenu",
                                       "tessaro::inieditorpopup"};

// Two controls that bear one name on one form, and why that is no trouble.
struct Twice {
    const char* name;
    const char* first;
    const char* second;
    const char* why;
};
const Twice allowed[] = {
    {"ASCII Viewer", "", "Title", "a window without a title bar shows its caption itself"},
    {"Change Name", "", "Title", "a window without a title bar shows its caption itself"},
    {"Close", "Command3", "CommandX", "both close the form"},
};

// Their children are what they list, which is the user's and not ours.
bool isList(const QAccessibleInterface& one) {
    switch (one.role()) {
        case QAccessible::List:
        case QAccessible::Tree:
        case QAccessible::Table:
        case QAccessible::ComboBox:
            return true;
        default:
            return false;
    }
}

void collect(const QAccessibleInterface& parent, Interfaces& all) {
    for (int i = 0; i < parent.childCount(); ++i) {
        QAccessibleInterface* child = parent.child(i);
        if (child == nullptr || child->state().invisible) continue;
        all.push_back(child);
        if (!isList(*child)) collect(*child, all);
    }
}

// What is announced of a form: the window itself and all below it that is not hidden.
Interfaces announced(QWidget& window) {
    Interfaces all{&reader(window)};
    collect(reader(window), all);
    return all;
}

std::string nameOf(const QAccessibleInterface& one) {
    return one.text(QAccessible::Name).toStdString();
}
std::string objectName(const QAccessibleInterface& one) {
    return one.object() == nullptr ? "" : one.object()->objectName().toStdString();
}

bool hasReason(const std::string& name, const std::string& first, const std::string& second) {
    return std::any_of(std::begin(allowed), std::end(allowed), [&](const Twice& twice) {
        return name == twice.name && first == twice.first && second == twice.second;
    });
}

// A box that holds others and tells nothing itself; it is passed by as long as it has no name.
bool isContainer(const QAccessibleInterface& one) {
    switch (one.role()) {
        case QAccessible::Client:
        case QAccessible::Border:
        case QAccessible::Pane:
        case QAccessible::LayeredPane:
        case QAccessible::Whitespace:
            return true;
        default:
            return false;
    }
}

bool takesInput(const QAccessibleInterface& one) {
    return one.state().focusable || isList(one) || one.role() == QAccessible::MenuItem ||
           qobject_cast<QAbstractButton*>(one.object()) != nullptr;
}

class ScreenReaders : public AllFormsTest {
  protected:
    using Look = std::function<void(QWidget&, const Interfaces&)>;

    void read(const Look& look) {
        visitForms([&](Form& form) {
            if (neverShown.contains(form.window().metaObject()->className())) return;
            look(form.window(), announced(form.window()));
        });
    }
    // The same for the controls of one class that are announced.
    template <class Control>
    void readEach(const std::function<void(Control&)>& look) {
        read([&](QWidget&, const Interfaces& all) {
            for (const QAccessibleInterface* one : all)
                if (auto* control = qobject_cast<Control*>(one->object())) look(*control);
        });
    }
};

TEST_F(ScreenReaders, MeetEveryControlThatTakesTheFocus) {
    read([](QWidget& window, const Interfaces& all) {
        std::set<const QObject*> met;
        for (const QAccessibleInterface* one : all) met.insert(one->object());
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus) {
                EXPECT_TRUE(met.contains(widget)) << widget->objectName().toStdString();
            }
    });
}

TEST_F(ScreenReaders, HearANameForEveryControlThatTakesInput) {
    read([](QWidget&, const Interfaces& all) {
        for (const QAccessibleInterface* one : all)
            if (takesInput(*one)) {
                EXPECT_NE(nameOf(*one), "") << objectName(*one);
            }
    });
}

TEST_F(ScreenReaders, HearNoNameTwiceOnAFormWithoutAReason) {
    read([](QWidget&, const Interfaces& all) {
        std::map<std::string, std::string> heard;
        for (const QAccessibleInterface* one : all) {
            // A label says what the control beside it is, and bears its name.
            const auto* label = qobject_cast<QLabel*>(one->object());
            const std::string name = nameOf(*one);
            if (name.empty() || (label != nullptr && label->buddy() != nullptr)) continue;
            const auto [first, fresh] = heard.emplace(name, objectName(*one));
            EXPECT_TRUE(fresh || hasReason(name, first->second, objectName(*one)))
                << name << ": " << first->second << " and " << objectName(*one);
        }
    });
}

TEST_F(ScreenReaders, HearWhatALabelSaysNow) {
    readEach<QLabel>([](QLabel& label) {
        if (!label.pixmap(Qt::ReturnByValue).isNull()) return;
        const QString before = label.text();
        label.setText(QStringLiteral("Said anew"));
        EXPECT_EQ(nameFor(label), "Said anew") << label.objectName().toStdString();
        label.setText(before);
    });
}

TEST_F(ScreenReaders, HearWhatTheStatusBarSaysNow) {
    bool heard = false;
    readEach<QStatusBar>([&](QStatusBar& bar) {
        EXPECT_EQ(nameFor(bar), bar.currentMessage().toStdString());
        bar.showMessage(QStringLiteral("Said anew"));
        EXPECT_EQ(nameFor(bar), "Said anew");
        heard = true;
    });
    EXPECT_TRUE(heard);
}

TEST_F(ScreenReaders, HearTheCaptionOfAWindowAsItIsNow) {
    read([](QWidget& window, const Interfaces&) {
        EXPECT_NE(nameFor(window), "");
        const QString before = window.windowTitle();
        window.setWindowTitle(QStringLiteral("Called anew"));
        EXPECT_EQ(nameFor(window), "Called anew");
        window.setWindowTitle(before);
    });
}

TEST_F(ScreenReaders, HearWhatStandsInABox) {
    readEach<QLineEdit>([](QLineEdit& box) {
        EXPECT_EQ(reader(box).text(QAccessible::Value), box.text())
            << box.objectName().toStdString();
    });
    const auto expectWholeText = [](QWidget& box, const QString& text) {
        QAccessibleTextInterface& heard = *reader(box).textInterface();
        EXPECT_EQ(heard.text(0, heard.characterCount()), text) << box.objectName().toStdString();
    };
    readEach<QTextEdit>([&](QTextEdit& box) { expectWholeText(box, box.toPlainText()); });
    readEach<QPlainTextEdit>([&](QPlainTextEdit& box) { expectWholeText(box, box.toPlainText()); });
}

TEST_F(ScreenReaders, HearHowFarABatchIs) {
    bool heard = false;
    readEach<QProgressBar>([&](QProgressBar& bar) {
        bar.setValue(bar.maximum());
        EXPECT_EQ(reader(bar).valueInterface()->currentValue().toInt(), bar.maximum());
        heard = true;
    });
    EXPECT_TRUE(heard);
}

TEST_F(ScreenReaders, HearATooltipAsTheDescription) {
    readEach<QWidget>([](QWidget& control) {
        if (control.toolTip().isEmpty()) return;
        EXPECT_EQ(reader(control).text(QAccessible::Description), control.toolTip())
            << control.objectName().toStdString();
    });
}

TEST_F(ScreenReaders, HearAFrameByItsOwnCaption) {
    readEach<QGroupBox>([](QGroupBox& frame) {
        EXPECT_EQ(nameFor(frame), frame.title().toStdString()) << frame.objectName().toStdString();
    });
}

TEST_F(ScreenReaders, PassByPicturesAndBoxesThatOnlyHoldOthers) {
    read([](QWidget&, const Interfaces& all) {
        for (const QAccessibleInterface* one : all) {
            EXPECT_EQ(qobject_cast<PictureLabel*>(one->object()), nullptr) << objectName(*one);
            if (isContainer(*one)) {
                EXPECT_EQ(nameOf(*one), "") << objectName(*one);
            }
        }
    });
}

}  // namespace
}  // namespace tessaro::test
