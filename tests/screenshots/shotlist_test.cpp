#include "screenshots/shotlist.h"

#include <gmock/gmock.h>

#include "support/testworld.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;

TEST(ShotNames, BeginWithShotAndEndInBmpInAnyLetterCase) {
    for (const char* name : {"Shot0001.bmp", "SHOT0001.BMP", "sHoT.BmP", "shot.bmp", "shotbmp",
                             "Shot of Jürgen.bmp", "shot0001.bmp.bmp", "shot0001xbmp"})
        EXPECT_TRUE(isScreenshotName(name)) << name;
    for (const char* name : {"Shot.bmp.txt", "Logo.bmp", " Shot0001.bmp", "Sho0001.bmp", "shot",
                             "bmp", "Shot0001.bmp ", "Shot0001.png", "Screenshot.bmp", ""})
        EXPECT_FALSE(isScreenshotName(name)) << name;
}

class Shots : public ::testing::Test {
  protected:
    Shots() {
        for (const char* name : {"a", "b", "c"}) list_.add(name);
    }
    ShotList list_;
};

TEST_F(Shots, NothingIsSelectedAtFirst) {
    EXPECT_EQ(list_.index(), -1);
    EXPECT_EQ(list_.selectedName(), "");
}

TEST_F(Shots, ASelectionIsToldApartFromTheOneThatWas) {
    EXPECT_TRUE(list_.select(1));
    EXPECT_EQ(list_.selectedName(), "b");
    EXPECT_FALSE(list_.select(1));
    EXPECT_TRUE(list_.select(2));
    EXPECT_EQ(list_.selectedName(), "c");
}

TEST_F(Shots, NoSelectionIsASelectionToo) {
    list_.select(1);
    EXPECT_TRUE(list_.select(-1));
    EXPECT_EQ(list_.selectedName(), "");
    EXPECT_FALSE(list_.select(-1));
}

TEST_F(Shots, AnIndexBeyondEitherEndIsRefusedAndTheSelectionStays) {
    list_.select(1);
    for (const int index : {-2, 3, 4})
        EXPECT_EQ(errorOf([&] { list_.select(index); }), errors::InvalidPropertyValue) << index;
    EXPECT_EQ(list_.index(), 1);
}

TEST_F(Shots, ARemovalLeavesNoSelection) {
    list_.select(1);
    list_.removeSelected();
    EXPECT_THAT(list_.names(), ElementsAre("a", "c"));
    EXPECT_EQ(list_.index(), -1);
}

}  // namespace
}  // namespace tessaro::test
