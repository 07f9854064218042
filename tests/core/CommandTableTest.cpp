#include "core/CommandTable.h"

#include <gtest/gtest.h>

#include <map>
#include <string_view>

#include <set>
#include <string>

#include "core/MenuHelp.h"

namespace velmora {
namespace {

TEST(CommandTable, TheBarHasItsMenusInOrder) {
    std::vector<std::string> bar;
    for (const MenuRow& row : menuTree())
        if (row.level == 0)
            bar.emplace_back(row.caption);
    EXPECT_EQ(
        bar, (std::vector<std::string>{"&File", "&Edit", "F&ont", "&Planner", "P&honebook",
                                       "&Dialer", "&Calculator", "&Alarm", "&Task List", "&Help"}));
}

TEST(CommandTable, NamesAreUniqueAndHeadsAreTold) {
    std::set<std::string_view> names;
    for (const MenuRow& row : menuTree())
        if (!row.name.empty()) {
            EXPECT_TRUE(names.insert(row.name).second) << row.name;
        }
    std::set<std::string_view> heads;
    for (const MenuRow& row : menuTree())
        if (isHead(row))
            heads.insert(row.name);
    EXPECT_EQ(heads, (std::set<std::string_view>{"filmnu", "edtimnu", "fntmnu", "planmnu", "vlmmnu",
                                                 "almnu", "TaskList", "hlpmnu"}));
}

TEST(CommandTable, EveryKeyHasAToolTipAndACommand) {
    for (const auto toolbar : {mainToolbar(), contactToolbar(), phonebookToolbar()})
        for (const ToolRow& row : toolbar) {
            EXPECT_FALSE(row.toolTip.empty()) << row.key;
            EXPECT_FALSE(row.command.empty()) << row.key;
        }
    EXPECT_EQ(mainToolbar().size(), 24U);
    EXPECT_EQ(contactToolbar().size(), 13U);
    EXPECT_EQ(phonebookToolbar().size(), 2U);
}

TEST(CommandTable, TwoKeysTalkOfWhatIsOnShow) {
    const auto textOf = [](std::string_view key, bool dayViewShown) {
        for (const ToolRow& row : mainToolbar())
            if (row.key == key)
                return std::string(hoverText(row, dayViewShown));
        return std::string("no such key");
    };
    EXPECT_EQ(textOf("FontD", true), "Changes the font and point size for the planner.");
    EXPECT_EQ(textOf("FontD", false), "Changes the font and point size for the phonebook list.");
    EXPECT_EQ(textOf("PrintP", true), "Prints The Calendar of Events.");
    EXPECT_EQ(textOf("PrintP", false), "Prints Telecommunications Listing.");
    EXPECT_EQ(textOf("Save", false), "Saves the current DocPad document as text.");
}

TEST(MenuHelp, AMouseHighlightFindsItsText) {
    const MenuHelp help;
    EXPECT_EQ(help.MenuSelect(0x8080000C), "Create a new DocPad document.");
    EXPECT_EQ(help.MenuSelect(0x8080000E), "Save a DocPad document as text.");
    EXPECT_EQ(help.MenuSelect(0x80800010), "Print the DocPad document.");
    EXPECT_EQ(help.wordOf("newmnu"), 0x8080000CU);
    EXPECT_EQ(help.MenuSelect(help.wordOf("abtmnu")), "About...");
    EXPECT_EQ(help.wordOf("importoldmnu"), 0U);
}

TEST(MenuHelp, SeparatorsHeadsAndKeyboardHighlightsSayNothing) {
    const MenuHelp help;
    EXPECT_EQ(help.MenuSelect(0x8080000B), std::nullopt);  // the head of the first menu
    EXPECT_EQ(help.MenuSelect(0x8080000F), std::nullopt);  // the first separator
    EXPECT_EQ(help.MenuSelect(0x0080000C), std::nullopt);
    EXPECT_EQ(help.MenuSelect(0), std::nullopt);
}

TEST(MenuHelp, EveryItemUnderThePointerHasItsTextNumberedOrNot) {
    const MenuHelp help;
    std::map<std::string_view, std::string> texts;
    for (const MenuRow& row : menuTree())
        if (!isHead(row) && !isSeparator(row))
            texts[row.name] = help.helpOf(row).value_or("nothing");
    EXPECT_EQ(texts["dialmnu"], "Activate the Dialer.");
    EXPECT_EQ(texts["calcmnu"], "Activate VLMCalc calculator.");
    EXPECT_EQ(texts["importoldmnu"], "Import the phonebooks of an earlier release.");
    EXPECT_EQ(texts["exitwinmnu"], "Ends the session of the desktop.");
    for (const auto& [name, text] : texts)
        EXPECT_NE(text, "nothing") << name;
}

TEST(MenuHelp, TheWindowMenuHasItsTexts) {
    const MenuHelp help;
    EXPECT_EQ(help.MenuSelect(0xA0900000), "System Menu");
    EXPECT_EQ(help.MenuSelect(0xA083F120), "Restores the window to its previous size.");
    EXPECT_EQ(help.MenuSelect(0xA080F010), "Moves the window.");
    EXPECT_EQ(help.MenuSelect(0xA080F000), "Changes the size of the window.");
    EXPECT_EQ(help.MenuSelect(0xA080F020), "Minimizes the window.");
    EXPECT_EQ(help.MenuSelect(0xA080F060), "Closes the window and ends the program.");
    EXPECT_EQ(help.MenuSelect(0x20900000), "Switch to another application.");
}

}  // namespace
}  // namespace velmora
