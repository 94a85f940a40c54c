#include <gmock/gmock.h>

#include "servers/serverfixture.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ImportingFavorites : public ServerFixture {
  protected:
    void import(const std::string& ini) {
        disk_.write(gameIni, ini);
        ImportFavorites(program_, list_);
    }
    int errorOfImport(const std::string& ini) {
        return errorOf([&] { import(ini); });
    }
    std::string ini() const { return disk_.read(gameIni); }
};

TEST_F(ImportingFavorites, NameAddressAndPortStandInTheirColumns) {
    import(
        favorites("2", {R"(The Mill\192.0.2.14\7778\True)", R"(Two\ut.example.org\8889\False)"}));
    EXPECT_EQ(serverAt(list_, 1), (ServerRecord{"The Mill", "192.0.2.14", "7778"}));
    EXPECT_EQ(serverAt(list_, 2), (ServerRecord{"Two", "ut.example.org", "8889"}));
    EXPECT_EQ(list_.item(1).subItems.size(), 2u);
}

TEST_F(ImportingFavorites, RowsGoBehindThoseThatAreThere) {
    fill({{"Mine", "1.1.1.1", "1111"}});
    import(favorites("1", {R"(Theirs\2.2.2.2\2222\True)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(Mine\1.1.1.1\1111)", R"(Theirs\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, TheListsFileIsNotWritten) {
    import(favorites("1", {R"(Theirs\2.2.2.2\2222\True)"}));
    EXPECT_FALSE(disk_.exists(serverFile));
}

TEST_F(ImportingFavorites, ASecondImportAddsNothing) {
    const std::string text = favorites("2", {R"(A\1.1.1.1\1111\True)", R"(B\2.2.2.2\2222\True)"});
    import(text);
    import(text);
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, OfTwoOfOneNameTheFirstIsImported) {
    import(favorites(
        "3", {R"(A\1.1.1.1\1111\True)", R"(A\9.9.9.9\9999\True)", R"(B\2.2.2.2\2222\True)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, AKnownNameWithANewAddressIsPassedOver) {
    fill({{"A", "1.1.1.1", "1111"}});
    import(favorites("1", {R"(A\9.9.9.9\9999\True)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)"));
}

TEST_F(ImportingFavorites, NamesThatDifferInCaseAreTwoServers) {
    fill({{"clan", "1.1.1.1", "1111"}});
    import(favorites("2", {R"(Clan\2.2.2.2\2222\True)", R"(CLAN\3.3.3.3\3333\True)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(clan\1.1.1.1\1111)", R"(Clan\2.2.2.2\2222)",
                                    R"(CLAN\3.3.3.3\3333)"));
}

TEST_F(ImportingFavorites, AKnownNameIsPassedOverWhateverElseItLacks) {
    fill({{"A", "1.1.1.1", "1111"}});
    import(favorites("2", {"A", R"(B\2.2.2.2\2222)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, ABlankNameIsAName) {
    import(favorites("3", {R"(\1.1.1.1\1111\True)", R"(\9.9.9.9\9999\True)", R"(B\2.2.2.2\2222)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, FurtherFieldsAreIgnored) {
    import(favorites("2", {R"(A\1.1.1.1\1111\True\more\and more)", R"(B\2.2.2.2\2222)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"));
}

TEST_F(ImportingFavorites, NoMoreAreReadThanAreCounted) {
    import(favorites("1", {R"(A\1.1.1.1\1111)", R"(B\2.2.2.2\2222)"}));
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)"));
}

TEST_F(ImportingFavorites, ACountOfNothingOrLessImportsNothing) {
    for (const char* count : {"0", "-1", "-32768"}) {
        import(favorites(count, {R"(A\1.1.1.1\1111)"}));
        EXPECT_THAT(rows(), IsEmpty()) << count;
    }
}

TEST_F(ImportingFavorites, AMissingSectionImportsNothingAndGainsACount) {
    import("[URL]\r\nPort=7777\r\n");
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(ini(), "[URL]\r\nPort=7777\r\n" + favoritesHeader + "FavoriteCount=0\r\n");
}

TEST_F(ImportingFavorites, ACountWithoutAValueIsWrittenBackAsNothing) {
    import(favorites("", {R"(A\1.1.1.1\1111)"}));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(ini(), HasSubstr("FavoriteCount=0\r\n"));
}

TEST_F(ImportingFavorites, AMissingGameFileIsMadeByTheReading) {
    ImportFavorites(program_, list_);
    EXPECT_EQ(disk_.read(systemFolder + R"(\unrealtournament.ini)"),
              favoritesHeader + "FavoriteCount=0\r\n");
}

TEST_F(ImportingFavorites, AMissingSystemFolderIsReported) {
    program_.gamePaths.UTSysPath = R"(C:\Nowhere\System)";
    EXPECT_EQ(errorOf([&] { ImportFavorites(program_, list_); }), errors::PathNotFound);
}

TEST_F(ImportingFavorites, ACountThatIsNoNumberIsATypeMismatch) {
    for (const char* count : {"many", "7 servers", "0x10"})
        EXPECT_EQ(errorOfImport(favorites(count, {R"(A\1.1.1.1\1111)"})), errors::TypeMismatch)
            << count;
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ImportingFavorites, ACountOfMoreThan16BitsIsAnOverflow) {
    for (const char* count : {"32768", "40000", "-40000"})
        EXPECT_EQ(errorOfImport(favorites(count, {R"(A\1.1.1.1\1111)"})), errors::Overflow)
            << count;
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ImportingFavorites, AFavouriteThatIsCountedButMissingEndsTheImportAndIsWrittenBack) {
    const std::string before = favorites("4", {R"(A\1.1.1.1\1111)"});
    EXPECT_EQ(errorOfImport(before), errors::SubscriptOutOfRange);
    EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(0\\)"));
    EXPECT_EQ(ini(), before + "Favorites[1]=0\r\n");
}

TEST_F(ImportingFavorites, AFavouriteWithoutAValueIsWrittenBackToo) {
    EXPECT_EQ(errorOfImport(favorites("3", {R"(A\1.1.1.1\1111)", "", R"(C\3.3.3.3\3333)"})),
              errors::SubscriptOutOfRange);
    EXPECT_EQ(ini(), favorites("3", {R"(A\1.1.1.1\1111)", "0", R"(C\3.3.3.3\3333)"}));
}

TEST_F(ImportingFavorites, AFavouriteOfFewerThanThreeFieldsAddsItsNameAndEndsTheImport) {
    for (const char* entry : {"B", R"(B\2.2.2.2)"}) {
        list_.clear();
        EXPECT_EQ(errorOfImport(favorites("3", {R"(A\1.1.1.1\1111)", entry, R"(C\3.3.3.3\3333)"})),
                  errors::SubscriptOutOfRange);
        EXPECT_THAT(rows(), ElementsAre(R"(A\1.1.1.1\1111)", R"(B\\)")) << entry;
    }
}

TEST_F(ImportingFavorites, AValueIsCutAt254CharactersAndLosesWhatIsBehind) {
    const std::string name(245, 'n');
    import(favorites("2", {name + R"(\1.1.1.1\1111\True)", R"(B\2.2.2.2\2222\True)"}));
    EXPECT_EQ(serverAt(list_, 1), (ServerRecord{name, "1.1.1.1", ""}));
    EXPECT_EQ(serverAt(list_, 2), (ServerRecord{"B", "2.2.2.2", "2222"}));
}

TEST_F(ImportingFavorites, AValueCutBeforeItsPortIsShortOfFields) {
    const std::string name(247, 'n');
    EXPECT_EQ(errorOfImport(favorites("2", {name + R"(\1.1.1.1\1111\True)", R"(B\2.2.2.2\2222)"})),
              errors::SubscriptOutOfRange);
    EXPECT_THAT(rows(), ElementsAre(name + R"(\\)"));
}

TEST_F(ImportingFavorites, LettersOutsideAsciiArriveWhole) {
    import(favorites("2", {"Caf\xE9 \x86\\1.1.1.1\\1111\\True", R"(B\2.2.2.2\2222)"}));
    EXPECT_EQ(serverAt(list_, 1).ServerName, "Caf\u00e9 \u2020");
}

TEST_F(ImportingFavorites, NothingIsWrittenWhereEveryKeyHasItsValue) {
    import(favorites("1", {R"(A\1.1.1.1\1111)"}));
    EXPECT_EQ(disk_.host.count(Call::Rename), 0);
}

using SlowImportingFavorites = ImportingFavorites;
TEST_F(SlowImportingFavorites, TenThousandComeInOneGo) {
    std::vector<std::string> entries;
    std::vector<std::string> wanted;
    for (int i = 0; i < 10'000; ++i) {
        const std::string server = "S" + std::to_string(i) + "\\10.0.0.1\\7777";
        entries.push_back(server + "\\True");
        wanted.push_back(server);
    }
    import(favorites("10000", entries));
    EXPECT_EQ(rows(), wanted);
}

TEST_F(ImportingFavorites, TheSampleGamesFavouritesImportButForTheOneThatIsThereTwice) {
    import(sample::unrealTournamentIni());
    EXPECT_THAT(rows(),
                ElementsAre(R"(The Harbour Kettle [DM]\192.0.2.14\7778)",
                            R"(|QX| Windmill CTF | no camping\198.51.100.7\7778)",
                            R"(203.0.113.9\203.0.113.9\8889)",
                            R"(Tarn's Place - Assault 24/7\203.0.113.77\9001)",
                            R"(Sunday Siege = Fun\198.51.100.201\7798)", R"(\192.0.2.31\7778)",
                            R"(Monster Cellar (co-op)\192.0.2.200\7788)",
                            R"(Grandmasters' Invitational - Tuesday Ladder\192.0.2.77\7778)",
                            R"(Polite Players Only\203.0.113.120\7778)"));
    EXPECT_EQ(ini(), sample::unrealTournamentIni());
}

TEST(ServerNames, TellWhetherARowBearsExactlyThatName) {
    ListItems list = makeServerList();
    addServer(list, {"Clan", "1.1.1.1", "1111"});
    ServerNames names(list);
    names.add("Later");
    EXPECT_EQ(names.ServerInList("Clan"), Yes);
    EXPECT_EQ(names.ServerInList("Later"), Yes);
    EXPECT_EQ(names.ServerInList("clan"), No);
    EXPECT_EQ(names.ServerInList("Clan "), No);
    EXPECT_EQ(names.ServerInList("1.1.1.1"), No);
    EXPECT_EQ(names.ServerInList(""), No);
}

}  // namespace
}  // namespace tessaro::test
