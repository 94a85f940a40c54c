#pragma once

#include <gtest/gtest.h>

#include <QGroupBox>
#include <span>

#include "support/forms/formsfixture.h"

namespace tessaro::test {

/// A control's text (of a frame its caption) and its own tooltip.
struct Text {
    const char* name;
    const char* text;
    const char* toolTip = "";
};

inline QString shownText(const QObject& control) {
    const char* property = qobject_cast<const QGroupBox*>(&control) != nullptr ? "title" : "text";
    return control.property(property).toString();
}

/// Each of the controls bears its text and its tooltip.
inline void expectTexts(Form& form, std::span<const Text> texts) {
    for (const Text& expected : texts) {
        const QWidget& shown = control<QWidget>(form, expected.name);
        EXPECT_EQ(shownText(shown), QString::fromUtf8(expected.text)) << expected.name;
        EXPECT_EQ(shown.toolTip(), QString::fromUtf8(expected.toolTip)) << expected.name;
    }
}

}  // namespace tessaro::test
