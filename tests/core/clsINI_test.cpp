#include "core/clsINI.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::errorOf;

constexpr std::string_view own = "C:\\tessaro\\own.ini";
constexpr std::string_view other = "C:\\tessaro\\other.ini";

class INI : public testing::Test {
  protected:
    INI() {
        world.makeFolder("C:\\tessaro");
        ini.inifile(own);
    }

    clsINI fresh(const std::string& folder = "C:\\tessaro") {
        return {world.profile, world.table, {folder, "Tessaro"}};
    }
    void file(std::string_view bytes) { world.write(own, bytes); }
    void otherFile(std::string_view bytes) { world.write(other, bytes); }
    std::string content() { return world.read(own); }
    std::string otherContent() { return world.read(other); }

    test::TestWorld world;
    clsINI ini = fresh();
};

TEST_F(INI, AFreshInstanceNamesTheProgramsFileAndAWholePathAsSections) {
    const clsINI it = fresh();
    EXPECT_EQ(it.inifile(), "C:\\tessaro\\Tessaro.ini");
    EXPECT_EQ(it.defaultSectionName, "C:\\tessaro\\vornx.ini");
    EXPECT_EQ(it.sectionName, "C:\\tessaro\\vornx.ini");
    EXPECT_EQ(it.DefaultReturnValue, "");
    EXPECT_TRUE(world.names("C:\\tessaro").empty());
}

TEST_F(INI, TheDefaultPathInADriveRootHasOneBackslash) {
    EXPECT_EQ(fresh("C:\\").inifile(), "C:\\Tessaro.ini");
}

TEST_F(INI, TheDefaultPathLeavesTheSections) {
    ini.sectionName = "mine";
    ini.setDefaultINIFilePath();
    EXPECT_EQ(ini.inifile(), "C:\\tessaro\\Tessaro.ini");
    EXPECT_EQ(ini.sectionName, "mine");
    EXPECT_EQ(ini.defaultSectionName, "own");
}

TEST_F(INI, AssigningAFileDerivesBothSectionsFromItsName) {
    const auto sectionsOf = [this](std::string_view path) {
        ini.inifile(path);
        EXPECT_EQ(ini.inifile(), path);  // no suffix is added
        EXPECT_EQ(ini.sectionName, ini.defaultSectionName);
        return ini.sectionName;
    };
    EXPECT_EQ(sectionsOf("C:\\UT\\System\\user.ini"), "user");
    EXPECT_EQ(sectionsOf("C:\\UT\\notes"), "notes");
    EXPECT_EQ(sectionsOf("notes"), "notes");
    EXPECT_EQ(sectionsOf("a.b.ini"), "a.b");
    EXPECT_EQ(sectionsOf("C:\\a.b\\notes"), "notes");
    EXPECT_EQ(sectionsOf("C:\\UT\\.ini"), "");
    EXPECT_EQ(sectionsOf("C:\\UT\\"), "");
    EXPECT_EQ(sectionsOf(""), "");
}

TEST_F(INI, ASectionSetEarlierDoesNotSurviveTheAssignmentOfAFile) {
    ini.sectionName = "mine";
    ini.inifile(own);
    EXPECT_EQ(ini.sectionName, "own");
}

TEST_F(INI, ReadingAKeyOfAMissingFileCreatesItWithTheDefault) {
    EXPECT_EQ(ini.getKeyValue("X", "", "S"), "<not_set>");
    EXPECT_EQ(content(), "[S]\r\nX=<not_set>\r\n");
}

TEST_F(INI, ReadingAnAbsentKeyWritesItsDefault) {
    file("[S]\nA=1\n");
    EXPECT_EQ(ini.getKeyValue("B", "two", "S"), "two");
    EXPECT_EQ(content(), "[S]\nA=1\nB=two\n");
}

TEST_F(INI, ReadingAnEmptyValueRewritesTheLineWithTheDefault) {
    file("[S]\nA=\nB=2\n");
    EXPECT_EQ(ini.getKeyValue("A", "one", "S"), "one");
    EXPECT_EQ(content(), "[S]\nA=one\nB=2\n");
}

TEST_F(INI, ReadingAPresentValueLeavesTheFile) {
    file("[S]\nA = \"1\" \n");
    EXPECT_EQ(ini.getKeyValue("a", "one", "s"), "1");
    EXPECT_EQ(content(), "[S]\nA = \"1\" \n");
}

TEST_F(INI, AValueIsReadToItsFirst254Characters) {
    file("[S]\nA=" + std::string(300, 'x') + "\nB=" + std::string(254, 'y') + "\n");
    EXPECT_EQ(ini.getKeyValue("A", "", "S"), std::string(254, 'x'));
    EXPECT_EQ(ini.getKeyValue("B", "", "S"), std::string(254, 'y'));
}

TEST_F(INI, ALongDefaultComesBackWhole) {
    const std::string longDefault(300, 'd');
    EXPECT_EQ(ini.getKeyValue("A", longDefault, "S"), longDefault);
}

TEST_F(INI, ADefaultThatCannotBeWrittenComesBackAllTheSame) {
    file("[S]\n");
    EXPECT_EQ(ini.getKeyValue("A", "x\ny", "S"), "x\ny");
    EXPECT_EQ(content(), "[S]\n");
}

TEST_F(INI, WithoutASectionTheFieldIsUsed) {
    file("[own]\nA=1\n[mine]\nA=2\n");
    EXPECT_EQ(ini.getKeyValue("A"), "1");
    ini.sectionName = "mine";
    EXPECT_EQ(ini.getKeyValue("A"), "2");
    ini.setKeyValue("A", "3");
    ini.setKey("B");
    EXPECT_EQ(content(), "[own]\nA=1\n[mine]\nA=3\nB=\n");
    ini.deleteKey("B");
    ini.deleteKeyValue("A");
    EXPECT_EQ(content(), "[own]\nA=1\n[mine]\nA=\n");
    ini.deleteSection();
    EXPECT_EQ(content(), "[own]\nA=1\n");
}

TEST_F(INI, AForeignFileIsReadAndWrittenInPlaceOfTheOwn) {
    otherFile("[S]\nA=1\n");
    EXPECT_EQ(ini.getKeyValue("A", "", "S", other), "1");
    EXPECT_EQ(ini.getKeyValue("B", "2", "S", other), "2");
    EXPECT_EQ(otherContent(), "[S]\nA=1\nB=2\n");
}

TEST_F(INI, ReadingAForeignFileTouchesTheOwnOne) {
    otherFile("[S]\nA=1\n");
    ini.getKeyValue("A", "", "S", other);
    EXPECT_EQ(content(), "");
}

TEST_F(INI, ListingAForeignFileCreatesTheOwnOneAndNotTheForeign) {
    EXPECT_EQ(ini.getSections(other), "");
    EXPECT_TRUE(world.exists(own));
    EXPECT_FALSE(world.exists(other));
}

TEST_F(INI, TheTouchStepLeavesAnExistingFileAlone) {
    file("[S]\nA=1");
    ini.getSections();
    ini.getKeysInSection("S");
    EXPECT_EQ(content(), "[S]\nA=1");
}

TEST_F(INI, TheTouchStepsFailureReachesTheCaller) {
    ini.inifile("C:\\missing\\own.ini");
    EXPECT_EQ(errorOf([&] { ini.getKeyValue("A", "1", "S"); }), 76);
    EXPECT_EQ(errorOf([&] { ini.getSections(); }), 76);
    EXPECT_EQ(errorOf([&] { ini.getKeysInSection("S"); }), 76);
    EXPECT_EQ(errorOf([&] { ini.renameSection("T", "S"); }), 76);
    EXPECT_EQ(errorOf([&] { ini.renameKey("A", "B", "S"); }), 76);
}

TEST_F(INI, TheOwnFilesTouchFailsEvenWhereAForeignFileIsRead) {
    otherFile("[S]\nA=1\n");
    ini.inifile("C:\\missing\\own.ini");
    EXPECT_EQ(errorOf([&] { ini.getKeyValue("A", "", "S", other); }), 76);
}

TEST_F(INI, AFileNumberOneThatIsOpenStopsTheTouchStep) {
    file("[S]\nA=1\n");
    world.table.openInput(1, own);
    EXPECT_EQ(errorOf([&] { ini.getKeyValue("A", "", "S"); }), 55);
    world.table.close(1);
    EXPECT_EQ(ini.getKeyValue("A", "", "S"), "1");
}

TEST_F(INI, TheWritingMembersDoNotTouchAndDoNotFail) {
    ini.inifile("C:\\missing\\own.ini");
    EXPECT_EQ(errorOf([&] {
                  ini.setKeyValue("A", "1", "S");
                  ini.deleteKey("A", "S");
                  ini.deleteSection("S");
              }),
              0);
    EXPECT_FALSE(world.exists("C:\\missing"));
}

TEST_F(INI, CreateMembersTakeTheSectionAsGiven) {
    ini.CreateKeyValue("S", "A", "1");
    ini.CreateKey("S", "B");
    ini.CreateKeyValue("", "C", "3");
    ini.CreateKey("", "D");
    EXPECT_EQ(content(), "[S]\r\nA=1\r\nB=\r\n[]\r\nC=3\r\nD=\r\n");
    ini.CreateKey("S", "A", other);
    EXPECT_EQ(otherContent(), "[S]\r\nA=\r\n");
}

TEST_F(INI, SettingAKeyEmptiesItsValue) {
    file("[S]\nA=1\n");
    ini.setKey("A", "S");
    EXPECT_EQ(content(), "[S]\nA=\n");
}

TEST_F(INI, DeletingAValueKeepsTheLineDeletingAKeyRemovesIt) {
    file("[S]\nA=1\nB=2\n");
    ini.deleteKeyValue("A", "S");
    EXPECT_EQ(content(), "[S]\nA=\nB=2\n");
    ini.deleteKey("A", "S");
    EXPECT_EQ(content(), "[S]\nB=2\n");
}

TEST_F(INI, ValuesStoreAndReadBackOutsideAscii) {
    ini.setKeyValue("A", "Größe", "S");
    EXPECT_EQ(content(),
              "[S]\r\nA=Gr\xF6\xDF"
              "e\r\n");
    EXPECT_EQ(ini.getKeyValue("A", "", "S"), "Größe");
}

TEST_F(INI, TheVersionOfAFreshInstanceStandsUnderAWholePath) {
    clsINI it = fresh();
    EXPECT_EQ(it.getVersion(), "1.0");
    EXPECT_EQ(world.read("C:\\tessaro\\Tessaro.ini"),
              "[C:\\tessaro\\vornx.ini]\r\nversion=1.0\r\n");
}

TEST_F(INI, TheVersionStandsUnderTheFilesNameOnceAFileIsAssigned) {
    ini.sectionName = "mine";  // does not count
    EXPECT_EQ(ini.getVersion(), "1.0");
    EXPECT_EQ(content(), "[own]\r\nversion=1.0\r\n");
    otherFile("[own]\nversion=7\n");
    EXPECT_EQ(ini.getVersion(other), "7");
}

TEST_F(INI, SectionsAreJoinedByNul) {
    file("[A]\n[B]\nk=1\n[A]\n");
    EXPECT_EQ(ini.getSections(), "A\0B\0A"s);
    EXPECT_EQ(ini.getNumberOfSections(), 3);
}

TEST_F(INI, OneSectionIsListedWithoutANul) {
    file("[A]\n");
    EXPECT_EQ(ini.getSections(), "A");
    EXPECT_EQ(ini.getNumberOfSections(), 1);
}

TEST_F(INI, NoSectionsAreAnEmptyTextAndCountNought) {
    EXPECT_EQ(ini.getSections(), "");
    EXPECT_EQ(ini.getNumberOfSections(), 0);
    file("k=1\n");
    EXPECT_EQ(ini.getNumberOfSections(), 0);
}

TEST_F(INI, AnEmptyLastSectionNameFallsOffTheListOfSections) {
    file("[A]\n[]\n");
    EXPECT_EQ(ini.getSections(), "A");
    EXPECT_EQ(ini.getNumberOfSections(), 1);
}

TEST_F(INI, AnEmptyLastKeyNameStaysInTheListOfKeys) {
    file("[S]\nA=1\n=2\n");
    EXPECT_EQ(ini.getKeysInSection("S"), "A\0"s);
    EXPECT_EQ(ini.getNumberOfKeysInSection("S"), 2);
}

TEST_F(INI, KeysAreJoinedByNul) {
    file("[S]\nA=1\n;c\nB\nC=\nA=2\n[own]\nD=1\n");
    EXPECT_EQ(ini.getKeysInSection("S"), "A\0C\0A"s);
    EXPECT_EQ(ini.getNumberOfKeysInSection("S"), 3);
    EXPECT_EQ(ini.getKeysInSection(), "D");
    EXPECT_EQ(ini.getNumberOfKeysInSection(), 1);
}

TEST_F(INI, NoKeysAreAnEmptyTextAndCountNought) {
    file("[S]\n");
    EXPECT_EQ(ini.getKeysInSection("S"), "");
    EXPECT_EQ(ini.getNumberOfKeysInSection("S"), 0);
    EXPECT_EQ(ini.getNumberOfKeysInSection("none"), 0);
}

TEST_F(INI, TheDefaultOfAListingLosesItsLastCharacter) {
    ini.DefaultReturnValue = "none";
    EXPECT_EQ(ini.getKeysInSection("S"), "non");
    EXPECT_EQ(ini.getSections(other), "non");
}

TEST_F(INI, AListingTooLongKeepsItsFirst1021Characters) {
    std::string sections;
    std::string keys = "[S]\n";
    std::string names;
    for (int i = 1000; i < 1300; ++i) {
        sections += "[" + std::to_string(i) + "]\n";
        keys += std::to_string(i) + "=1\n";
        names += std::to_string(i) + '\0';
    }
    file(sections);
    EXPECT_EQ(ini.getSections(), names.substr(0, 1021));
    EXPECT_EQ(ini.getNumberOfSections(), 205);
    file(keys);
    EXPECT_EQ(ini.getKeysInSection("S"), names.substr(0, 1021));
    EXPECT_EQ(ini.getNumberOfKeysInSection("S"), 205);
}

TEST_F(INI, DeletingASectionTakesAllItsLines) {
    file("[S]\nA=1\n; c\n[T]\nB=2\n");
    ini.deleteSection("S");
    EXPECT_EQ(content(), "[T]\nB=2\n");
}

TEST_F(INI, DeletingAllSectionsEmptiesTheOwnFile) {
    file("; top\n[A]\na=1\n[B]\nb=1\n[A]\nc=1\n");
    ini.deleteAllSections();
    EXPECT_EQ(content(), "; top\n");
}

TEST_F(INI, DeletingAllSectionsOfAnotherFileGoesByTheOwnFilesNames) {
    file("[A]\n[B]\n");
    otherFile("[A]\na=1\n[C]\nc=1\n");
    ini.deleteAllSections(other);
    EXPECT_EQ(otherContent(), "[C]\nc=1\n");
    EXPECT_EQ(content(), "[A]\n[B]\n");
}

TEST_F(INI, DeletingAllSectionsPassesOverAnEmptyName) {
    file("[A]\n[]\nx=1\n[own]\nb=1\n");
    ini.deleteAllSections();
    EXPECT_EQ(content(), "[]\nx=1\n");
}

TEST_F(INI, RenamingASectionMovesItsKeysAndFillsEmptyOnes) {
    file("[S]\nA=\nB=2\n");
    ini.renameSection("T", "S");
    EXPECT_EQ(content(), "[T]\nA=<not_set>\nB=2\n");
}

TEST_F(INI, RenamingASectionJoinsAnExistingOne) {
    file("[S]\nA=1\nB=2\n[T]\nB=9\nC=3\n");
    ini.renameSection("t", "S");
    EXPECT_EQ(content(), "[T]\nB=2\nC=3\nA=1\n");
}

TEST_F(INI, RenamingASectionWithoutKeysDeletesIt) {
    file("[S]\n; c\n[T]\nA=1\n");
    ini.renameSection("U", "S");
    EXPECT_EQ(content(), "[T]\nA=1\n");
}

TEST_F(INI, RenamingASectionKeepsTheFirstOfRepeatedKeysOnly) {
    file("[S]\nO=1\nO=2\n");
    ini.renameSection("T", "S");
    EXPECT_EQ(content(), "[T]\nO=1\n");
}

TEST_F(INI, RenamingASectionCutsLongValues) {
    file("[S]\nA=" + std::string(300, 'x') + "\n");
    ini.renameSection("T", "S");
    EXPECT_EQ(content(), "[T]\nA=" + std::string(254, 'x') + "\n");
}

TEST_F(INI, RenamingASectionLosesKeysBeyondTheListing) {
    const std::string tail(99, 'k');
    std::string moved = "[T]\n";
    for (char letter = 'a'; letter < 'k'; ++letter) moved += letter + tail + "=v\n";
    file("[S]\n" + moved.substr(4) + "k" + tail + "=v\nl" + tail + "=v\n");
    ini.renameSection("T", "S");
    // Ten whole names fill 1010 characters; the eleventh comes cut, and as such has no value.
    EXPECT_EQ(content(), moved + std::string(11, 'k') + "=<not_set>\n");
}

TEST_F(INI, RenamingASectionWorksOnAForeignFileAndOnTheFieldsSection) {
    otherFile("[own]\nA=1\n");
    ini.renameSection("T", "", other);
    EXPECT_EQ(otherContent(), "[T]\nA=1\n");
    EXPECT_EQ(content(), "");
}

TEST_F(INI, RenamingAKeyPutsItAtTheEndOfTheSection) {
    file("[S]\nA=1\nB=2\n; c\n");
    ini.renameKey("A", "C", "S");
    EXPECT_EQ(content(), "[S]\nB=2\nC=1\n; c\n");
}

TEST_F(INI, RenamingAMissingKeyLeavesThePlaceholder) {
    file("[S]\nB=2\n");
    ini.renameKey("A", "C", "S");
    EXPECT_EQ(content(), "[S]\nB=2\nC=<not_set>\n");
}

TEST_F(INI, RenamingAKeyWorksOnAForeignFileAndOnTheFieldsSection) {
    otherFile("[own]\nA=1\n");
    ini.renameKey("A", "B", "", other);
    EXPECT_EQ(otherContent(), "[own]\nB=1\n");
}

}  // namespace
}  // namespace tessaro
