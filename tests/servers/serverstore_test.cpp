#include "servers/serverstore.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "servers/serverfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Lines = std::vector<std::string>;

class ServerStore : public ServerFixture {
  protected:
    Lines loaded(const std::string& bytes) {
        disk_.write(serverFile, bytes);
        return reloaded();
    }
    Lines reloaded() {
        list_.clear();
        LoadServerList(program_, list_);
        return rows();
    }
    std::string saved() {
        SaveServerList(program_, list_);
        return disk_.read(serverFile);
    }
    Lines programFolder() { return disk_.names(R"(C:\Tessaro)"); }
};

TEST_F(ServerStore, ALineIsNameAddressAndPort) {
    loaded("Clan Server\\192.168.0.10\\7777\r\nOther\\ut.example.org\\8888\r\n");
    EXPECT_EQ(serverAt(list_, 1), (ServerRecord{"Clan Server", "192.168.0.10", "7777"}));
    EXPECT_EQ(serverAt(list_, 2), (ServerRecord{"Other", "ut.example.org", "8888"}));
    EXPECT_EQ(list_.count(), 2u);
}

TEST_F(ServerStore, AMissingFileIsMadeEmptyAndGivesAnEmptyList) {
    EXPECT_THAT(reloaded(), IsEmpty());
    EXPECT_EQ(disk_.read(serverFile), "");
}

TEST_F(ServerStore, AnEmptyFileGivesAnEmptyList) {
    EXPECT_THAT(loaded(""), IsEmpty());
}

TEST_F(ServerStore, ABlankLineShowsTheServerBeforeItASecondTime) {
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\r\n\r\nB\\2.2.2.2\\2222\r\n"),
                ElementsAre("A\\1.1.1.1\\1111", "A\\1.1.1.1\\1111", "B\\2.2.2.2\\2222"));
}

TEST_F(ServerStore, ABlankLineAtTheStartIsAServerWithoutAName) {
    EXPECT_THAT(loaded("\r\nB\\2.2.2.2\\2222\r\n"), ElementsAre("\\\\", "B\\2.2.2.2\\2222"));
}

TEST_F(ServerStore, AShortLineKeepsTheFieldsOfTheLineBefore) {
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\r\nB\r\nC\\3.3.3.3\r\nD\\4.4.4.4\\4444\r\n"),
                ElementsAre("A\\1.1.1.1\\1111", "B\\1.1.1.1\\1111", "C\\3.3.3.3\\1111",
                            "D\\4.4.4.4\\4444"));
}

TEST_F(ServerStore, AnEmptyFieldIsThereAndKeepsNothing) {
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\r\n\\\r\nC\\\\\r\nD\\4.4.4.4\\4444\r\n"),
                ElementsAre("A\\1.1.1.1\\1111", "\\\\1111", "C\\\\", "D\\4.4.4.4\\4444"));
}

TEST_F(ServerStore, AFourthFieldIsLostAtTheNextSave) {
    loaded("A\\1.1.1.1\\1111\\True\r\nB\\2.2.2.2\\2222\r\n");
    EXPECT_EQ(saved(), "A\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\n");
}

TEST_F(ServerStore, TheLastLineNeedsNoEnd) {
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222"),
                ElementsAre("A\\1.1.1.1\\1111", "B\\2.2.2.2\\2222"));
}

TEST_F(ServerStore, LinesOfOtherSystemsAreLinesToo) {
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\nB\\2.2.2.2\\2222\rC\\3.3.3.3\\3333\r\n"),
                ElementsAre("A\\1.1.1.1\\1111", "B\\2.2.2.2\\2222", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerStore, ANulInALineIsACharacterLikeOthers) {
    const std::string nul(1, '\0');
    const std::string bytes =
        "A" + nul + "B\\1.1.1.1\\1111\r\n" + nul + "\\2.2.2.2\\2222\r\nC\\3.3.3.3\\3333\r\n";
    loaded(bytes);
    EXPECT_EQ(serverAt(list_, 1).ServerName, "A" + nul + "B");
    EXPECT_EQ(serverAt(list_, 2).ServerName, nul);
    EXPECT_EQ(saved(), bytes);
}

TEST_F(ServerStore, RowsAreSavedInTheirOrder) {
    fill({{"B", "2.2.2.2", "2222"}, {"A", "1.1.1.1", "1111"}, {"B", "2.2.2.2", "2222"}});
    EXPECT_EQ(saved(), "B\\2.2.2.2\\2222\r\nA\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\n");
}

TEST_F(ServerStore, AnEmptyListEmptiesTheFile) {
    disk_.write(serverFile, "A\\1.1.1.1\\1111\r\n");
    EXPECT_EQ(saved(), "");
}

TEST_F(ServerStore, ABackslashInANameShiftsTheFieldsAtTheNextLoad) {
    fill({{"Red\\Blue", "1.1.1.1", "1111"}, {"B", "2.2.2.2", "2222"}});
    saved();
    EXPECT_THAT(reloaded(), ElementsAre("Red\\Blue\\1.1.1.1", "B\\2.2.2.2\\2222"));
}

TEST_F(ServerStore, LettersOfTheCodePageAreSavedInIt) {
    fill({{"Caf\u00e9", "1.1.1.1", "1111"}, {"\u2020 Clan \u2020", "2.2.2.2", "2222"}});
    EXPECT_EQ(saved(), "Caf\xE9\\1.1.1.1\\1111\r\n\x86 Clan \x86\\2.2.2.2\\2222\r\n");
    EXPECT_THAT(reloaded(),
                ElementsAre("Caf\u00e9\\1.1.1.1\\1111", "\u2020 Clan \u2020\\2.2.2.2\\2222"));
}

TEST_F(ServerStore, NamesOutsideTheCodePageSurviveASaveAndALoad) {
    const Lines names{"\u6771\u4eac\\1.1.1.1\\1111", "\u0416\u0443\u043a\\2.2.2.2\\2222",
                      "\U0001F3C6 Cup\\3.3.3.3\\3333", "Plain\\4.4.4.4\\4444"};
    fill({{"\u6771\u4eac", "1.1.1.1", "1111"},
          {"\u0416\u0443\u043a", "2.2.2.2", "2222"},
          {"\U0001F3C6 Cup", "3.3.3.3", "3333"},
          {"Plain", "4.4.4.4", "4444"}});
    saved();
    EXPECT_EQ(reloaded(), names);
    saved();
    EXPECT_EQ(reloaded(), names);
}

TEST_F(ServerStore, AFileInUtf8StaysSo) {
    const std::string bytes = "Caf\xC3\xA9\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\n";
    EXPECT_THAT(loaded(bytes), ElementsAre("Caf\u00e9\\1.1.1.1\\1111", "B\\2.2.2.2\\2222"));
    EXPECT_EQ(saved(), bytes);
}

TEST_F(ServerStore, AFileOf32768LinesIsReadToItsEnd) {
    std::string bytes;
    for (int i = 1; i <= 32768; ++i) bytes += std::to_string(i) + "\\10.0.0.1\\7777\r\n";
    disk_.write(serverFile, bytes);
    LoadServerList(program_, list_);
    EXPECT_EQ(list_.count(), 32768u);
    EXPECT_EQ(serverAt(list_, 32767).ServerName, "32767");
    EXPECT_EQ(serverAt(list_, 32768).ServerName, "32768");
}

TEST_F(ServerStore, ASaveCountsIn16BitsAndLeavesTheFileAloneWhereThatFails) {
    disk_.write(serverFile, "A\\1.1.1.1\\1111\r\n");
    for (int i = 0; i < 32768; ++i) addServer(list_, {"S", "10.0.0.1", "7777"});
    EXPECT_EQ(errorOf([&] { SaveServerList(program_, list_); }), errors::Overflow);
    EXPECT_EQ(disk_.read(serverFile), "A\\1.1.1.1\\1111\r\n");
    EXPECT_EQ(program_.table.freeNumber(), 1);
    list_.remove(1);
    EXPECT_EQ(saved().size(), 32767 * std::string("S\\10.0.0.1\\7777\r\n").size());
}

TEST_F(ServerStore, AFolderInPlaceOfTheFileIsReported) {
    disk_.makeFolder(serverFile);
    EXPECT_EQ(errorOf([&] { LoadServerList(program_, list_); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { SaveServerList(program_, list_); }), errors::PathFileAccess);
    EXPECT_THAT(disk_.names(serverFile), IsEmpty());
}

TEST_F(ServerStore, AReadOnlyFileIsReadAndRefusesToBeWritten) {
    loaded("A\\1.1.1.1\\1111\r\n");
    std::filesystem::permissions(disk_.at(serverFile), std::filesystem::perms::owner_read);
    EXPECT_THAT(reloaded(), ElementsAre("A\\1.1.1.1\\1111"));
    addServer(list_, {"B", "2.2.2.2", "2222"});
    EXPECT_EQ(errorOf([&] { SaveServerList(program_, list_); }), errors::PathFileAccess);
    EXPECT_EQ(disk_.read(serverFile), "A\\1.1.1.1\\1111\r\n");
}

TEST_F(ServerStore, AFileThatCannotBeReadIsReported) {
    disk_.write(serverFile, "A\\1.1.1.1\\1111\r\n");
    disk_.host.refuse(Call::Read, errors::PermissionDenied, "servers.ip");
    EXPECT_EQ(errorOf([&] { LoadServerList(program_, list_); }), errors::PermissionDenied);
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ServerStore, AFullDiskLeavesTheOldFileWholeAndNothingBesideIt) {
    const std::string old = "A\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\n";
    loaded(old);
    addServer(list_, {"C", "3.3.3.3", "3333"});
    for (std::size_t space = 0; space < old.size() + 16; ++space) {
        disk_.host.setDiskSpace(space);
        ASSERT_EQ(errorOf([&] { SaveServerList(program_, list_); }), errors::DiskFull) << space;
        ASSERT_EQ(disk_.read(serverFile), old) << space;
        ASSERT_THAT(programFolder(), ElementsAre("servers.ip")) << space;
    }
    disk_.host.relent();
    EXPECT_EQ(saved(), old + "C\\3.3.3.3\\3333\r\n");
}

TEST_F(ServerStore, ASaveThatFailsAtItsLastStepLeavesTheOldFile) {
    loaded("A\\1.1.1.1\\1111\r\n");
    addServer(list_, {"B", "2.2.2.2", "2222"});
    disk_.host.refuse(Call::Rename, errors::DiskFull, "servers.ip");
    EXPECT_EQ(errorOf([&] { SaveServerList(program_, list_); }), errors::DiskFull);
    EXPECT_EQ(disk_.read(serverFile), "A\\1.1.1.1\\1111\r\n");
    EXPECT_THAT(programFolder(), ElementsAre("servers.ip"));
}

TEST_F(ServerStore, TheFileUnitsAreFreeAfterALoadAndASave) {
    loaded("A\\1.1.1.1\\1111\r\n");
    saved();
    EXPECT_EQ(program_.table.freeNumber(), 1);
}

TEST_F(ServerStore, AnExtractionUnderWayWithTheFirstFileUnitIsNotDisturbed) {
    disk_.write(R"(C:\index)", "line\r\n");
    program_.table.openInput(1, R"(C:\index)");
    EXPECT_THAT(loaded("A\\1.1.1.1\\1111\r\n"), ElementsAre("A\\1.1.1.1\\1111"));
    EXPECT_EQ(saved(), "A\\1.1.1.1\\1111\r\n");
    EXPECT_EQ(program_.table.lineInput(1), "line");
}

TEST_F(ServerStore, ARowWithoutSubItemsIsAServerWithoutAddressAndPort) {
    list_.add("only a name");
    EXPECT_EQ(serverAt(list_, 1), (ServerRecord{"only a name", "", ""}));
    EXPECT_EQ(saved(), "only a name\\\\\r\n");
}

TEST_F(ServerStore, AnIndexPastTheLastServerRaises35600) {
    EXPECT_EQ(errorOf([&] { serverAt(list_, 1); }), errors::IndexOutOfBounds);
}

}  // namespace
}  // namespace tessaro::test
