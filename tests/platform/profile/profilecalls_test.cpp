#include "platform/profile/profilecalls.h"

#include <gtest/gtest.h>

#include "platform/text/encoding.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::Call;

constexpr std::string_view path = "C:\\game\\user.ini";

class Profile : public testing::Test {
  protected:
    Profile() { world.makeFolder("C:\\game"); }

    void file(std::string_view bytes) { world.write(path, bytes); }
    std::string content() { return world.read(path); }
    bool fileExists() { return world.exists(path); }

    std::string get(std::optional<std::string_view> section, std::optional<std::string_view> key,
                    std::string_view defaultText = "?", std::size_t size = 100) {
        return world.profile.getPrivateProfileString(section, key, defaultText, size, path);
    }
    bool put(std::string_view section, std::optional<std::string_view> key,
             std::optional<std::string_view> text) {
        return world.profile.writePrivateProfileString(section, key, text, path);
    }

    test::TestWorld world;
};

constexpr auto none = std::nullopt;

TEST_F(Profile, SpacesRoundTheNamesThatAreAskedForAreCutButNotTabs) {
    file("[S]\nk=v\n");
    EXPECT_EQ(get("  S ", " k  "), "v");
    EXPECT_EQ(get("\tS", "k"), "?");
    EXPECT_EQ(get("S", "k\t"), "?");
}

TEST_F(Profile, NamesAreWrittenWithoutTheirOuterSpaces) {
    EXPECT_TRUE(put(" S ", " k ", " v "));
    EXPECT_EQ(content(), "[S]\r\nk= v \r\n");
}

TEST_F(Profile, AMissingFileSectionOrKeyGivesTheDefault) {
    EXPECT_EQ(get("S", "k"), "?");
    EXPECT_EQ(get("S", none), "?");
    EXPECT_EQ(get(none, none), "?");
    file("[S]\nk=v\n");
    EXPECT_EQ(get("S", "j"), "?");
    EXPECT_EQ(get("T", "k"), "?");
    EXPECT_EQ(get("T", none), "?");
}

TEST_F(Profile, AMissingFolderGivesTheDefault) {
    EXPECT_EQ(world.profile.getPrivateProfileString("S", "k", "?", 9, "C:\\none\\a.ini"), "?");
    EXPECT_EQ(world.profile.getPrivateProfileString("S", "k", "?", 9, "Q:\\a.ini"), "?");
}

TEST_F(Profile, AFolderInPlaceOfTheFileGivesTheDefault) {
    world.makeFolder(path);
    EXPECT_EQ(get("S", "k"), "?");
}

TEST_F(Profile, AFileThatCannotBeReadGivesTheDefault) {
    file("[S]\nk=v\n");
    world.host.refuse(Call::Read, errors::DeviceIo);
    EXPECT_EQ(get("S", "k"), "?");
}

TEST_F(Profile, AnEmptyValueIsNotTheDefault) {
    file("[S]\nk=\n");
    EXPECT_EQ(get("S", "k"), "");
}

TEST_F(Profile, TrailingSpacesOfTheDefaultAreCutLeadingOnesKept) {
    EXPECT_EQ(get("S", "k", "  a b  "), "  a b");
    EXPECT_EQ(get("S", "k", "a\t"), "a\t");
    EXPECT_EQ(get("S", "k", "   "), "");
}

TEST_F(Profile, QuotesOfTheDefaultStay) {
    EXPECT_EQ(get("S", "k", "\"a\""), "\"a\"");
    EXPECT_EQ(get("S", "k", " '"), " '");
}

TEST_F(Profile, ABareNameMeansAFileInTheCurrentFolder) {
    world.write("C:\\bare.ini", "[S]\nk=root\n");
    world.paths.changeFolder("C:\\game");
    EXPECT_TRUE(world.profile.writePrivateProfileString("S", "k", "here", "bare.ini"));
    EXPECT_EQ(world.read("C:\\game\\bare.ini"), "[S]\r\nk=here\r\n");
    EXPECT_EQ(world.profile.getPrivateProfileString("S", "k", "?", 9, "bare.ini"), "here");
    world.paths.changeFolder("C:\\");
    EXPECT_EQ(world.profile.getPrivateProfileString("S", "k", "?", 9, "bare.ini"), "root");
}

TEST_F(Profile, AValueIsCutToOneLessThanTheSize) {
    file("[S]\nk=12345\n");
    EXPECT_EQ(get("S", "k", "", 6), "12345");
    EXPECT_EQ(get("S", "k", "", 5), "1234");
    EXPECT_EQ(get("S", "k", "", 1), "");
    EXPECT_EQ(get("S", "j", "12345", 5), "1234");
}

TEST_F(Profile, SizesCountCharacters) {
    file("[S]\nk=äöü\n");
    EXPECT_EQ(get("S", "k", "", 3), "äö");
    file("[ä]\n[ö]\n");
    EXPECT_EQ(get(none, none, "", 4), "ä\0"s);
    EXPECT_EQ(get(none, none, "", 6), "ä\0ö\0"s);
}

TEST_F(Profile, AListingThatFillsTheSizeAlreadyCountsAsCut) {
    file("[ab]\n[cd]\n");  // two names, two NULs, and the last NUL: 7
    EXPECT_EQ(get(none, none, "", 8), "ab\0cd\0"s);
    EXPECT_EQ(get(none, none, "", 7), "ab\0cd"s);
    EXPECT_EQ(get(none, none, "", 6), "ab\0c"s);
    EXPECT_EQ(get(none, none, "", 2), "");
    EXPECT_EQ(get(none, none, "", 1), "");
}

TEST_F(Profile, AListingOfKeysIsCutInTheSameWay) {
    file("[S]\nab=1\ncd=2\n");
    EXPECT_EQ(get("S", none, "", 8), "ab\0cd\0"s);
    EXPECT_EQ(get("S", none, "", 7), "ab\0cd"s);
}

TEST_F(Profile, ASizeOfNoughtGivesNothing) {
    file("[S]\nk=v\n");
    EXPECT_EQ(get("S", "k", "?", 0), "");
    EXPECT_EQ(get(none, none, "?", 0), "");
    EXPECT_EQ(get("S", "j", "?", 0), "");
}

TEST_F(Profile, AFileWithoutSectionsListsNothing) {
    file("k=v\n");
    EXPECT_EQ(get(none, none), "");
    file("[S]\n");
    EXPECT_EQ(get("S", none), "");
}

TEST_F(Profile, WritingCreatesTheFile) {
    EXPECT_TRUE(put("S", "k", "v"));
    EXPECT_EQ(content(), "[S]\r\nk=v\r\n");
    EXPECT_EQ(get("S", "k"), "v");
}

TEST_F(Profile, WritingReplacesDeletesAndAdds) {
    file("[S]\nk=1\nj=2\n[T]\nl=3\n");
    EXPECT_TRUE(put("S", "k", "4"));
    EXPECT_TRUE(put("S", "j", none));
    EXPECT_TRUE(put("T", none, none));
    EXPECT_TRUE(put("U", "m", ""));
    EXPECT_EQ(content(), "[S]\nk=4\n[U]\nm=\n");
}

TEST_F(Profile, AMissingKeyDeletesTheSectionWhateverTheText) {
    file("[S]\nk=1\n");
    EXPECT_TRUE(put("S", none, "text"));
    EXPECT_EQ(content(), "");
}

TEST_F(Profile, WritingWhatIsThereDoesNotTouchTheFile) {
    file("[S]\nk=v\n");
    EXPECT_TRUE(put("s", "K", "v"));
    EXPECT_TRUE(put("S", "j", none));
    EXPECT_TRUE(put("T", none, none));
    EXPECT_EQ(world.host.count(Call::Create), 0);
    EXPECT_EQ(world.host.count(Call::Rename), 0);
}

TEST_F(Profile, WritingWhatIsThereSucceedsInAReadOnlyFile) {
    file("[S]\nk=v\n");
    world.host.protect("user.ini");
    EXPECT_TRUE(put("S", "k", "v"));
}

TEST_F(Profile, DeletingInAMissingFileMakesNoFile) {
    EXPECT_TRUE(put("S", "k", none));
    EXPECT_TRUE(put("S", none, none));
    EXPECT_FALSE(fileExists());
}

TEST_F(Profile, AReadOnlyFileIsRefusedAndStays) {
    file("[S]\nk=v\n");
    world.host.protect("user.ini");
    EXPECT_FALSE(put("S", "k", "w"));
    EXPECT_FALSE(put("S", "k", none));
    EXPECT_FALSE(put("S", none, none));
    EXPECT_EQ(content(), "[S]\nk=v\n");
}

TEST_F(Profile, AFullDiskLeavesTheFileAsItWas) {
    file("[S]\nk=v\n");
    world.host.setDiskSpace(3);
    EXPECT_FALSE(put("S", "k", "w"));
    EXPECT_EQ(content(), "[S]\nk=v\n");
    EXPECT_EQ(world.names("C:\\game"), std::vector<std::string>{"user.ini"});
}

TEST_F(Profile, AFileThatCannotBeReadIsNotOverwritten) {
    file("[S]\nk=v\n");
    world.host.refuse(Call::Read, errors::DeviceIo);
    EXPECT_FALSE(put("S", "j", "w"));
    EXPECT_EQ(content(), "[S]\nk=v\n");
}

TEST_F(Profile, AMissingFolderIsRefused) {
    EXPECT_FALSE(world.profile.writePrivateProfileString("S", "k", "v", "C:\\none\\a.ini"));
    EXPECT_FALSE(world.exists("C:\\none"));
}

TEST_F(Profile, AFolderInPlaceOfTheFileIsRefused) {
    world.makeFolder(path);
    EXPECT_FALSE(put("S", "k", "v"));
    EXPECT_TRUE(world.names(path).empty());
}

TEST_F(Profile, ALineBreakInsideIsRefused) {
    file("[S]\nk=v\n");
    for (const std::string forged : {"a\nb=c", "a\rb", "a\r\n[T]", "\n"}) {
        EXPECT_FALSE(put(forged, "k", "v"));
        EXPECT_FALSE(put("S", forged, "v"));
        EXPECT_FALSE(put("S", "k", forged));
        EXPECT_FALSE(put(forged, none, none));
    }
    EXPECT_EQ(content(), "[S]\nk=v\n");
}

TEST_F(Profile, ANameThatCouldNotBeReadBackIsRefused) {
    file("[S]\nk=v\n");
    for (const std::string key : {"a=b", "=", ";k", "[k", "[k]", "\tk", "k\t", "\vk", " ;k "}) {
        EXPECT_FALSE(put("S", key, "w")) << key;
        EXPECT_FALSE(put("S", key, none)) << key;
    }
    for (const std::string section : {"S]", "a]b", "]", "\tS", "S\v"}) {
        EXPECT_FALSE(put(section, "k", "w")) << section;
        EXPECT_FALSE(put(section, "k", none)) << section;
        EXPECT_FALSE(put(section, none, none)) << section;
    }
    EXPECT_EQ(content(), "[S]\nk=v\n");
}

TEST_F(Profile, OddNamesThatCanBeReadBackAreWritten) {
    for (const std::string key : {"a[0]", "a;b", "#k", "", "k]", "a b", "a\tb"}) {
        EXPECT_TRUE(put("S", key, "<" + key + ">")) << key;
        EXPECT_EQ(get("S", key), "<" + key + ">");
    }
    for (const std::string section : {"", ";S", "a=b", "[S", "a b", "C:\\game\\vornx.ini"}) {
        EXPECT_TRUE(put(section, "k", "<" + section + ">")) << section;
        EXPECT_EQ(get(section, "k"), "<" + section + ">");
    }
}

TEST_F(Profile, ANulInsideIsRefused) {
    file("[S]\nk=v\n");
    EXPECT_FALSE(put("S\0"s, "k", "w"));
    EXPECT_FALSE(put("S", "k\0"s, "w"));
    EXPECT_FALSE(put("S", "k", "w\0"s));
    EXPECT_EQ(content(), "[S]\nk=v\n");
}

TEST_F(Profile, AStrayByteInAnArgumentIsALetterOfTheCodePage) {
    for (const std::string& bytes :
         {"[s]\n"s, "[s]\nj=\xC3\xA9\n"s, "\xEF\xBB\xBF[s]\n"s, "\xFF\xFE[\0s\0]\0\n\0"s}) {
        file(bytes);
        EXPECT_TRUE(put("s", "\xE9", "\x80"));
        const std::string written = content();
        EXPECT_EQ(get("s", "\xE9"), "€") << testing::PrintToString(bytes);
        EXPECT_EQ(get("s", "é"), "€") << testing::PrintToString(bytes);
        EXPECT_TRUE(put("s", "\xE9", "\x80"));
        EXPECT_EQ(content(), written);
    }
    file("[\xE9]\nk=v\n");
    EXPECT_EQ(get("\xE9", "k"), "v");
    EXPECT_EQ(get("\xE9", none), "k\0"s);
}

TEST_F(Profile, TwoHalvesOfAPairInAnArgumentAreOneCharacter) {
    EXPECT_TRUE(put("s", "k", "\xED\xA0\xBC\xED\xBE\xAE"));
    EXPECT_EQ(get("s", "k"), "\xF0\x9F\x8E\xAE");
}

TEST_F(Profile, TheOddByteOfAnotherFileDoesNotTravelWithAText) {
    const std::string odd = decodeText("\xFF\xFEv\0z"s, Encoding::Utf16LittleEndian);
    file("[s]\n");
    EXPECT_TRUE(put("s", "k", odd + odd));
    EXPECT_EQ(content(), "[s]\nk=vv\n");
    file("\xFF\xFE[\0s\0]\0\n\0"s);
    EXPECT_TRUE(put("s", "k", odd + odd));
    EXPECT_EQ(content(), "\xFF\xFE[\0s\0]\0\n\0k\0=\0v\0v\0\n\0"s);
}

TEST_F(Profile, AFileIsFoundWithoutRegardToCase) {
    world.write("C:\\game\\User.INI", "[S]\nk=v\n");
    EXPECT_EQ(get("S", "k"), "v");
    EXPECT_TRUE(put("S", "k", "w"));
    EXPECT_EQ(world.names("C:\\game"), std::vector<std::string>{"User.INI"});
}

TEST_F(Profile, TextComesBackAsItWentInAcrossTheEncodings) {
    EXPECT_TRUE(put("S", "k", "café"));
    EXPECT_EQ(content(), "[S]\r\nk=caf\xE9\r\n");
    EXPECT_TRUE(put("S", "j", "Łódź"));
    EXPECT_TRUE(content().starts_with("\xFF\xFE"));
    EXPECT_EQ(get("S", "k"), "café");
    EXPECT_EQ(get("S", "j"), "Łódź");
    EXPECT_TRUE(put("S", "j", "plain"));
    EXPECT_TRUE(content().starts_with("\xFF\xFE"));  // the file keeps what it has become
}

}  // namespace
}  // namespace tessaro
