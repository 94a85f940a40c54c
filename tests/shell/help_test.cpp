#include "shell/help.h"

#include <gmock/gmock.h>

#include <regex>

#include "support/scripteddialogs.h"

namespace tessaro {
namespace {

using ::testing::HasSubstr;

const ProgramFile program{"C:\\Games\\Tessaro Tools", "tessaro"};

TEST(HelpAddresses, AreMadeOfTheProgramAndThePageAndBlanksStay) {
    EXPECT_EQ(helpAddress(program, consoleHelp),
              "res://C:\\Games\\Tessaro Tools\\tessaro.exe/console.htm");
    EXPECT_EQ(helpAddress(program, serverHelp),
              "res://C:\\Games\\Tessaro Tools\\tessaro.exe/servers.htm");
    EXPECT_EQ(helpAddress(program, adminHelp),
              "res://C:\\Games\\Tessaro Tools\\tessaro.exe/admin.htm");
}

TEST(HelpAddresses, LeadToTheirFileInTheProgram) {
    EXPECT_EQ(helpFile(program, helpAddress(program, adminHelp)), "admin.htm");
    EXPECT_EQ(helpFile(program, helpAddress(program, consoleHelp)), "console.htm");
    EXPECT_EQ(helpFile(program, "res://C:\\Games\\Tessaro Tools\\tessaro.exe/CONSOLE.HTM"),
              "console.htm");
}

TEST(HelpAddresses, LeadNowhereElse) {
    for (const char* address : {"", "console.htm", "http://example.org/console.htm",
                                "res://C:\\Games\\Other\\tessaro.exe/console.htm",
                                "res://C:\\Games\\Tessaro Tools\\other.exe/console.htm",
                                "res://C:\\Games\\Tessaro Tools\\tessaro.exe",
                                "res://C:\\Games\\Tessaro Tools\\tessaro.exe/",
                                "res://C:\\Games\\Tessaro Tools\\tessaro.exe/../pictures/main.png",
                                "res://C:\\Games\\Tessaro Tools\\tessaro.exe/..\\vornx.ini"})
        EXPECT_EQ(helpFile(program, address), std::nullopt) << address;
}

TEST(HelpPages, EachHasItsTitleAbove) {
    EXPECT_EQ(consoleHelp.title, "Console Commands");
    EXPECT_EQ(serverHelp.title, "Running UT Servers");
    EXPECT_EQ(adminHelp.title, "Server Admin Help");
}

TEST(HelpBox, HasContactsThePromiseAndTheCopyrightInThreeBlocks) {
    test::ScriptedDialogs dialogs;
    dialogs.answer(Answer::Ok);
    showHelpBox(dialogs);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    const Message& box = dialogs.messages[0];
    EXPECT_EQ(box.title, "Tessaro Help");
    EXPECT_EQ(box.icon, Icon::Information);
    EXPECT_EQ(box.buttons, Buttons::Ok);
    const std::regex blocks(".*@.*\n.*messenger.*\n\n.*\n.*\n\nCopyright .*");
    EXPECT_TRUE(std::regex_match(box.text, blocks)) << box.text;
    EXPECT_THAT(box.text, HasSubstr("\n\nOpen Source for this program is to be made available\n"
                                    "sometime in the near future (maybe)\n\n"));
}

}  // namespace
}  // namespace tessaro
