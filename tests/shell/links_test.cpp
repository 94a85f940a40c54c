#include "shell/links.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "shell/menutable.h"
#include "support/outsides.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

TEST(Links, EachItemOfTheMenuOfLinksHasItsAddress) {
    std::vector<std::string_view> inMenu;
    for (const MenuItem& item : menuItems)
        if (item.parent == "mnulinks") inMenu.push_back(item.name);
    std::vector<std::string_view> inTable;
    for (const Link& link : links) inTable.push_back(link.item);
    EXPECT_EQ(inTable, inMenu);
}

TEST(Links, EachLeadsToAPlaceOfItsOwnInTheWeb) {
    std::set<std::string_view> addresses;
    for (const Link& link : links) {
        EXPECT_THAT(std::string(link.address), StartsWith("https://"));
        EXPECT_EQ(link.address.find_first_of(" \\\"<>"), std::string_view::npos) << link.address;
        addresses.insert(link.address);
    }
    EXPECT_EQ(addresses.size(), std::size(links));
}

TEST(Links, OpeningAnItemHandsItsAddressToTheDesktop) {
    test::RecordingDesktop desktop;
    openLink(desktop, "mnuunreality");
    openLink(desktop, "mnuwwwut");
    EXPECT_THAT(desktop.addresses, ElementsAre(links[4].address, links[0].address));
}

TEST(Links, AnItemThatIsNoLinkOpensNothing) {
    test::RecordingDesktop desktop;
    openLink(desktop, "mnuexit");
    EXPECT_THAT(desktop.addresses, ElementsAre());
}

}  // namespace
}  // namespace tessaro
