#include "shell/Skins.h"

#include <QLabel>
#include <QPushButton>
#include <vector>

#include "kit/frame/placement.h"
#include "kit/look/style.h"
#include "kit/look/twips.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"
#include "shell/Skinz.h"

namespace tessaro {
namespace {

using Names = std::vector<const char*>;

// One skin: names of its pictures on `Skinz`, and its colours.
struct Skin {
    int number;
    const char* sideBar;
    const char* topBar;
    const char* bottomBar;
    double plateShift;  // twips that the plate stands right of the middle
    QColor buttons;
    QColor fields;
    QColor title;
    const Names& fieldNames;  // in the order in which they are coloured
};

const Names allFields{"ListView1", "ListView2", "List1", "Dir1",  "Drive1", "Text1", "Text2",
                      "Text3",     "Text4",     "Text5", "Text6", "Text7",  "Text8", "Text9"};
// The first skin names one list twice and leaves the second list to what it had before.
const Names firstSkinFields{"ListView1", "List1", "Dir1",  "Drive1", "ListView1", "Text1", "Text2",
                            "Text3",     "Text4", "Text5", "Text6",  "Text7",     "Text8", "Text9"};

const Skin skins[] = {
    {0, "sideimg", "topimg", "btmimg", 0, QColor(128, 128, 128), QColor(64, 64, 64),
     QColor(0, 0, 0), firstSkinFields},
    {1, "sideimg2", "topimg2", "btmimg2", 250, QColor(128, 128, 255), QColor(0, 0, 192),
     QColor(255, 255, 255), allFields},
    {2, "sideimg3", "topimg3", "btmimg3", 0, QColor(255, 128, 0), QColor(192, 0, 0),
     QColor(255, 255, 255), allFields},
};

template <class Control>
Control* control(QWidget& form, const char* name) {
    return form.findChild<Control*>(QLatin1String(name));
}

void setPicture(QWidget& form, const char* name, const QPixmap& picture) {
    if (auto* label = control<QLabel>(form, name)) label->setPixmap(picture);
}

// The program's style would paint a paler colour than it is given, a style sheet paints that one.
// Focus and press have to be told by the sheet then. The letters are black throughout, which can
// be read on the colour of every skin and on paler ones.
QString buttonSheet(const QColor& colour) {
    return QStringLiteral(
               "QPushButton { background-color: %1; color: black; border: 1px solid black;"
               " border-radius: 2px }"
               "QPushButton:focus { border: 2px solid black }"
               "QPushButton:hover { background-color: %2 }"
               "QPushButton:pressed { background-color: %3 }")
        .arg(colour.name(), colour.lighter(115).name(), colour.lighter(135).name());
}

void setButtonColour(QWidget& form, const char* name, const QColor& colour) {
    auto* button = control<QPushButton>(form, name);
    if (button == nullptr) return;
    QPalette palette = button->palette();
    palette.setColor(QPalette::Button, colour);
    button->setPalette(palette);
    button->setStyleSheet(buttonSheet(colour));
}

void setTitleColour(QWidget& form, const QColor& colour) {
    auto* title = control<QLabel>(form, "Title");
    if (title == nullptr) return;
    QPalette palette = title->palette();
    palette.setColor(QPalette::WindowText, colour);
    title->setPalette(palette);
}

void dress(QWidget& form, const Skin& skin, const Skinz& store) {
    if (auto* plate = control<QWidget>(form, "timg"))
        centreAcross(form, *plate, pixels(skin.plateShift));
    if (auto* title = control<QWidget>(form, "Title")) centreAcross(form, *title, 0);
    setPicture(form, "leftimg", store.picture(skin.sideBar));
    setPicture(form, "rightimg", store.picture(skin.sideBar));
    setPicture(form, "timg", store.picture(skin.topBar));
    setPicture(form, "bimg", store.picture(skin.bottomBar));
    setButtonColour(form, "CommandX", skin.buttons);
    setButtonColour(form, "CommandQ", skin.buttons);
    for (const char* name : skin.fieldNames)
        if (auto* field = control<QWidget>(form, name)) setFieldGround(*field, skin.fields);
    setTitleColour(form, skin.title);
    form.update();  // the form itself paints the band behind the plate
}

}  // namespace

void ApplySkin(Program& program, Forms& forms, QWidget& form) {
    const std::string& chosen = program.settings.Skin;
    for (const Skin& skin : skins) {
        attempt([&] {
            if (equalsNumber(chosen, skin.number)) dress(form, skin, forms.get<Skinz>());
        });
    }
}

}  // namespace tessaro
