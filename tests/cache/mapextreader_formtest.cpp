// The wizard in the hands of a screen reader.

#include <QRadioButton>

#include "cache/mapext.h"
#include "kit/look/text.h"
#include "support/forms/gameforms.h"
#include "support/forms/reader.h"

namespace tessaro::test {
namespace {

class WizardForReaders : public GameFormsTest {
  protected:
    WizardForReaders() {
        const std::string game = "C:\\UnrealTournament";
        program_.gamePaths = {game, game + "\\Cache", game + "\\Maps", game + "\\System"};
        program_.settings.Skin = "0";
        settings("[Common]\r\nVORNX=C:\\Tessaro\r\n");
        disk_.write(game + "\\Cache\\cache.ini", "[Cache]\r\n");
        guarded(forms_, [this] { forms_.show<mapext>(); });
        control<QPushButton>(wizard(), "next").click();
    }
    mapext& wizard() { return forms_.get<mapext>(); }
    QLineEdit& destination() { return control<QLineEdit>(wizard(), "Text2"); }
    QRadioButton& option(const char* name) { return control<QRadioButton>(wizard(), name); }
    bool destinationVisible() {
        const bool visible = destination().isVisible();
        for (const char* name : {"Command10", "Command1"})
            EXPECT_EQ(control<QWidget>(wizard(), name).isVisible(), visible) << name;
        return visible;
    }
};

TEST_F(WizardForReaders, ANewFolderThatIsChosenShowsItsBox) {
    EXPECT_FALSE(destinationVisible());
    toggle(option("Option2"));
    EXPECT_TRUE(destinationVisible());
    EXPECT_EQ(fromQt(destination().text()), "C:\\Tessaro");
    toggle(option("Option1"));
    EXPECT_FALSE(destinationVisible());
}

}  // namespace
}  // namespace tessaro::test
