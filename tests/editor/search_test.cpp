#include "editor/search.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/scripteddialogs.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using test::errorOf;

// A selection, as text.
std::string place(std::size_t start, std::size_t length) {
    return std::to_string(start) + "+" + std::to_string(length);
}

class RecordingView : public SearchView {
  public:
    std::vector<std::string> did;
    std::string caption;

    void select(std::size_t start, std::size_t length) override {
        did.push_back(place(start, length));
    }
    void focusText() override { did.emplace_back("focus"); }
    void showCaption(const std::string& text) override { caption = text; }
};

class SearchTest : public testing::Test {
  protected:
    using Places = std::vector<std::string>;

    test::ScriptedDialogs dialogs_;
    RecordingView view_;
    Search search_{dialogs_, view_};
};

const Message notFound{"Search String Not found!", "Finished Search", Buttons::Ok,
                       Icon::Information};

TEST_F(SearchTest, OpensOnACopyWithoutAPlaceAndOffersToFind) {
    search_.open("Some text");
    EXPECT_EQ(search_.SearchText, "Some text");
    EXPECT_EQ(search_.SearchPos, 0);
    EXPECT_EQ(view_.caption, "&Find");
}

TEST_F(SearchTest, TheFirstClickSearchesTwiceAndShowsTheSecondHit) {
    search_.open("Paths=1\r\nPaths=2\r\nPaths=3\r\n");
    search_.click("Paths");
    EXPECT_EQ(view_.did, (Places{"0+5", "9+5"}));
    EXPECT_EQ(view_.caption, "&Next");
    EXPECT_EQ(search_.SearchCount, 2);
    search_.click("Paths");
    search_.click("Paths");
    EXPECT_EQ(view_.did, (Places{"0+5", "9+5", "18+5", "0+5"}));
    EXPECT_EQ(search_.SearchCount, 1);
}

TEST_F(SearchTest, ASingleHitIsMarkedTwiceByTheFirstClick) {
    search_.open("only one here");
    search_.click("one");
    EXPECT_EQ(view_.did, (Places{"5+3", "5+3"}));
    EXPECT_EQ(search_.SearchCount, 1);
    EXPECT_EQ(search_.SearchPos, 9);
}

TEST_F(SearchTest, TheFirstClickOnAnAbsentStringReportsItAndFails) {
    search_.open("text");
    dialogs_.answer(Answer::Ok);
    EXPECT_EQ(errorOf([&] { search_.click("absent"); }), errors::InvalidProcedureCall);
    EXPECT_EQ(dialogs_.messages, std::vector<Message>{notFound});
    EXPECT_EQ(view_.caption, "&Next");
    EXPECT_TRUE(view_.did.empty());
}

TEST_F(SearchTest, AnAbsentStringAfterAHitIsReportedOnceAndFailsAtTheNextClick) {
    search_.open("text and text");
    search_.click("text");
    dialogs_.answer(Answer::Ok);
    search_.click("absent");
    EXPECT_EQ(dialogs_.messages, std::vector<Message>{notFound});
    EXPECT_EQ(search_.SearchPos, 0);
    EXPECT_EQ(errorOf([&] { search_.click("text"); }), errors::InvalidProcedureCall);
}

TEST_F(SearchTest, CaseDoesNotMatter) {
    search_.open("Paths PATHS pAtHs caf\xC3\x89");
    search_.FindFirst("paths");
    search_.FindNext("paths");
    search_.FindNext("pathS");
    EXPECT_EQ(view_.did, (Places{"0+5", "6+5", "12+5"}));
    search_.FindFirst("CAF\xC3\xA9");
    EXPECT_EQ(view_.did.back(), "18+4");
}

TEST_F(SearchTest, HitsDoNotOverlap) {
    search_.open("aaaa");
    search_.FindFirst("aa");
    search_.FindNext("aa");
    search_.FindNext("aa");
    EXPECT_EQ(view_.did, (Places{"0+2", "2+2", "0+2"}));
}

TEST_F(SearchTest, AChangedStringGoesOnFromTheOldPlace) {
    search_.open("one two one two");
    search_.FindFirst("two");
    search_.FindNext("one");
    EXPECT_EQ(view_.did, (Places{"4+3", "8+3"}));
    EXPECT_EQ(search_.SearchCount, 2);
}

TEST_F(SearchTest, PlacesCountCharactersAndACrLfAsTwo) {
    search_.open("\xC3\xA9\r\n\xF0\x9F\x8E\xAE\nfound\rfound");
    search_.FindFirst("found");
    search_.FindNext("found");
    EXPECT_EQ(view_.did, (Places{"5+5", "11+5"}));
}

TEST_F(SearchTest, TheSearchGoesOnBehindALastHitAtTheVeryEnd) {
    search_.open("an end, the end");
    search_.FindFirst("end");
    search_.FindNext("end");
    EXPECT_EQ(search_.SearchPos, 16);
    search_.FindNext("end");
    EXPECT_EQ(view_.did.back(), "3+3");
}

TEST_F(SearchTest, OpeningAgainStartsAnew) {
    search_.open("one one one");
    search_.click("one");
    search_.open("two two two");
    EXPECT_EQ(view_.caption, "&Find");
    EXPECT_EQ(search_.SearchPos, 0);
    search_.click("two");
    EXPECT_EQ(view_.did.back(), "4+3");
}

TEST_F(SearchTest, FindLastSearchesBackwardsAndGivesTheTextTheFocus) {
    search_.open("end and END and");
    search_.FindLast("end");
    EXPECT_EQ(view_.did, (Places{"focus", "8+3"}));
    EXPECT_EQ(search_.SearchPos, 12);
    EXPECT_EQ(search_.SearchCount, 1);
}

TEST_F(SearchTest, FindLastReportsAnAbsentString) {
    search_.open("text");
    dialogs_.answer(Answer::Ok);
    search_.FindLast("absent");
    EXPECT_EQ(dialogs_.messages, std::vector<Message>{notFound});
    EXPECT_EQ(search_.SearchPos, 0);
    EXPECT_TRUE(view_.did.empty());
}

TEST_F(SearchTest, TheLastHitThatFitsEndsBeforeThe32767thCharacter) {
    search_.open(std::string(32763, '.') + "end rest");
    search_.FindFirst("end");
    EXPECT_EQ(search_.SearchPos, 32767);
    EXPECT_EQ(view_.did.back(), "32763+3");
}

TEST_F(SearchTest, AHitThatEndsBeyondThe32767thCharacterIsMarkedAndOverflows) {
    search_.open(std::string(32764, '.') + "end rest");
    EXPECT_EQ(errorOf([&] { search_.FindFirst("end"); }), errors::Overflow);
    EXPECT_EQ(view_.did.back(), "32764+3");
}

TEST_F(SearchTest, AHitThatBeginsBeyondThe32767thCharacterOverflowsUnmarked) {
    search_.open(std::string(32767, '.') + "end rest");
    EXPECT_EQ(errorOf([&] { search_.FindFirst("end"); }), errors::Overflow);
    EXPECT_EQ(errorOf([&] { search_.FindLast("rest"); }), errors::Overflow);
    EXPECT_TRUE(view_.did.empty());
}

TEST_F(SearchTest, TheLimitCountsCharactersNotBytes) {
    std::string text;
    for (int i = 0; i < 32763; ++i) text += "\xC3\xA9";
    search_.open(text + "end rest");
    search_.FindFirst("end");
    EXPECT_EQ(view_.did.back(), "32763+3");
}

}  // namespace
}  // namespace tessaro
