#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QToolButton>
#include <ostream>
#include <string>
#include <vector>

#include "core/CommandTable.h"
#include "core/MenuHelp.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/ToolStrip.h"
#include "forms/CalendarFixture.h"
#include "forms/Widgets.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSMonth.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// What the window has to show, written a second time: a slip in the table of commands is seen here.
struct Item {
    int level;
    std::string name, caption, help;

    bool operator==(const Item&) const = default;
};

struct Key {
    std::string key, toolTip, hoverInPlanner, hoverElsewhere;

    bool operator==(const Key&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Item& item) {
    return out << item.level << " " << item.name << " '" << item.caption << "' '" << item.help
               << "'";
}
std::ostream& operator<<(std::ostream& out, const Key& key) {
    return out << key.key << " '" << key.toolTip << "' '" << key.hoverInPlanner << "' '"
               << key.hoverElsewhere << "'";
}

// clang-format off
const std::vector<Item> kTree{
    {0, "filmnu", "&File", ""},
    {1, "newmnu", "&New DocPad", "Create a new DocPad document."},
    {1, "openmnu", "&Open Text File", "Open a text file for editing."},
    {1, "savmnu", "&Save As DocPad", "Save a DocPad document as text."},
    {1, "", "-", ""},
    {1, "printmnu", "&Print DocPad", "Print the DocPad document."},
    {1, "mergeprntmnu", "&Merge Print DocPad", "Merge Print the current DocPad document."},
    {1, "prints", "Printer &Setup...", "Printer Setup and Configuration."},
    {1, "", "-", ""},
    {1, "runmnu", "&Run...", "Run other programs."},
    {1, "", "-", ""},
    {1, "twentyfourhr", "&24 Hour Clock", "Change clock to 24-hour format."},
    {1, "", "-", ""},
    {1, "viewmnu", "&View Phone Log", "View the Phone Log."},
    {1, "damnu2", "-", ""},
    {1, "backupmnu", "&Backup Data on Floppy", "Backup phonebook data onto floppy."},
    {1, "exitwinmnu", "Exit &Windows...", "Ends the session of the desktop."},
    {1, "exitmnu", "E&xit", "Exit this program."},
    {0, "edtimnu", "&Edit", ""},
    {1, "EditCut", "&Cut", "Delete the selected text."},
    {1, "EditCopy", "&Copy", "Copy the selected text."},
    {1, "EditPaste", "&Paste", "Paste the selected text."},
    {1, "searchtxtmnu", "&Search", "Search DocPad document..."},
    {1, "editspemnu", "-", ""},
    {1, "Setupmnu", "Setup &Preferences...", "Setup program preferences..."},
    {0, "fntmnu", "F&ont", ""},
    {1, "ChfontD", "&Choose Font- DocPad", "Choose a font for the DocPad document."},
    {1, "chsfntcal", "Choose &Font- Planner", "Choose a font for the Planner text."},
    {1, "chsfntvlm", "Cho&ose Font- Phonebook List", "Choose a font for the Phonebook list."},
    {0, "planmnu", "&Planner", ""},
    {1, "prntcal", "Print Events of &the Day", "Print events for the current day."},
    {1, "evmnu", "&Datewarden", "Shows the Datewarden (tm)..."},
    {1, "totoday", "&Go To Today", "Sets the Planner and Calendar to Today's Date."},
    {1, "weekat", "&Week at a Glance...", "Shows the Week at a Glance Screen..."},
    {1, "da99amnu", "-", ""},
    {1, "importplanner", "&Import Version 6.x and Earlier Planner Data", "Allows Importation of Planner v6.x and Earlier Data..."},
    {0, "vlmmnu", "P&honebook", ""},
    {1, "prntentry", "Print C&urrent Entry", "Print the current entry's information."},
    {1, "plprint", "Print Telecommunications &Listing", "Print a telecommunications listing."},
    {1, "repprnt", "Print &Report", "Print a complete report for all entries."},
    {1, "dialp", "&Dial Phone Number", "Dial the entry's phone number."},
    {1, "dialwn", "Dial &Work Number", "Dial the entry's work number."},
    {1, "DialoOtherMnu", "Dial &Other Number", "Dial the entry's other number."},
    {1, "faxmnu", "&Fax Entry", "Fax the entry."},
    {1, "emailmnu", "Send Entr&y E-Mail", "Send e-mail to the entry."},
    {1, "webmnu", "&Go to Entry's Web Page", "Go to the entry's web page."},
    {1, "addmnu", "&Add Entry...", "Add an entry to the phonebook."},
    {1, "chngmnu", "&Change Entry...", "Change the selected entry."},
    {1, "Importmnu", "&Import Data Into Phonebooks", "Import data from an Access or Text Database."},
    {1, "importoldmnu", "Import &Earlier Phonebooks", "Import the phonebooks of an earlier release."},
    {1, "exportmnu", "E&xport Data", "Export data from phonebooks to text files."},
    {1, "searchi", "&Search Database", "Search the phonebook."},
    {1, "envmnu", "&Envelope...", "Create an envelope."},
    {0, "dialmnu", "&Dialer", "Activate the Dialer."},
    {0, "calcmnu", "&Calculator", "Activate VLMCalc calculator."},
    {0, "almnu", "&Alarm", ""},
    {1, "alset", "View and Set...", "View or Set Alarms."},
    {0, "TaskList", "&Task List", ""},
    {1, "taskmanager", "&Task Manager", "View the General Task List."},
    {1, "reptmnu", "&Weekly Tasks", "View or Set Repetitive Weekly Tasks."},
    {1, "monthlytasks", "&Monthly Tasks", "View or Set Repetitive Monthly Tasks."},
    {0, "hlpmnu", "&Help", ""},
    {1, "helpme", "Help &Contents", "Show Help Contents."},
    {1, "da99mnu", "-", ""},
    {1, "abtmnu", "&About", "About..."},
};

const std::vector<Key> kMainKeys{
    {"Save", "Save DocPad Document", "Saves the current DocPad document as text.", "Saves the current DocPad document as text."},
    {"Open", "Open DocPad Document", "Allows viewing and editing of most text files.", "Allows viewing and editing of most text files."},
    {"New", "New DocPad Document", "Creates a new DocPad document.", "Creates a new DocPad document."},
    {"PrintD", "Print DocPad Document", "Prints the current DocPad Document.", "Prints the current DocPad Document."},
    {"FontD", "Change DocPad Font", "Changes the font and point size for the planner.", "Changes the font and point size for the phonebook list."},
    {"SearchD", "Search DocPad Document", "Searches DocPad's Document for Text.", "Searches DocPad's Document for Text."},
    {"Run", "Run...", "Shows the Run... dialog.", "Shows the Run... dialog."},
    {"Event", "Datewarden", "Shows the Datewarden (tm).", "Shows the Datewarden (tm)."},
    {"Week", "Week at a Glance", "Shows the Week at a Glance Schedule.", "Shows the Week at a Glance Schedule."},
    {"Task", "Task Manager", "Displays the Personal Task List.", "Displays the Personal Task List."},
    {"Alarm", "Alarms...", "Displays the Alarm View/Set screen.", "Displays the Alarm View/Set screen."},
    {"Explorer", "Windows Explorer", "Runs Explorer.", "Runs Explorer."},
    {"Control", "Control Panel", "Runs Control Panel.", "Runs Control Panel."},
    {"VLMCalc", "VLMCalc", "", ""},
    {"About", "About", "About", "About"},
    {"Planner", "Switch to Planner", "Activates the Planner", "Activates the Planner"},
    {"Phonebook", "Switch to Phonebook", "Activates the Phonebook.", "Activates the Phonebook."},
    {"Dialer", "Switch to Dialer", "Activates the Voice/Mail Dialer.", "Activates the Voice/Mail Dialer."},
    {"EMail", "Run E-Mail Program", "", ""},
    {"WebPage", "Run Web Browser", "", ""},
    {"Preferences", "Preferences...", "Shows Preferences.", "Shows Preferences."},
    {"FontP", "Change Planner Font", "", ""},
    {"PrintP", "Print...", "Prints The Calendar of Events.", "Prints Telecommunications Listing."},
    {"Exit", "Exit", "Ends the Velmora session.", "Ends the Velmora session."},
};

const std::vector<Key> kContactKeys{
    {"New", "Add a Contact", "", ""},
    {"Edit", "Edit a Contact", "", ""},
    {"Delete", "Remove a Contact", "Deletes the selected entry.", "Deletes the selected entry."},
    {"PrintT", "Print Telecommunications Listing...", "", ""},
    {"Insert1", "Insert Full Data", "", ""},
    {"Insert2", "Create Business Letter", "", ""},
    {"PrintE", "Print Entry Data", "", ""},
    {"Env", "Create Envelope", "", ""},
    {"Phone1", "Dial Phone 1", "Calls the selected entry's phone number.", "Calls the selected entry's phone number."},
    {"Phone2", "Dial Phone 2", "", ""},
    {"Phone3", "Dial Phone 3", "", ""},
    {"Fax", "Fax Entry", "", ""},
    {"Search", "Search for an Entry...", "", ""},
};

const std::vector<Key> kBookKeys{
    {"Yellow", "Switch to Yellow Pages", "Select White or Yellow Pages.", "Select White or Yellow Pages."},
    {"White", "Switch to White Pages", "Select White or Yellow Pages.", "Select White or Yellow Pages."},
};
// clang-format on

class CommandTree : public test::CalendarFixture {
  protected:
    CommandTree() {
        calendar.menus().setItemsEnabled([](std::string_view) { return true; });
        for (ToolStrip* strip : strips())
            strip->setKeyEnabled([](std::string_view) { return true; });
        QObject::connect(&calendar.menus(), &CommandMenus::chosen,
                         [this](const MenuRow& row) { chosen.emplace_back(row.name); });
        for (ToolStrip* strip : strips())
            QObject::connect(strip, &ToolStrip::chosen,
                             [this](const ToolRow& row) { chosen.emplace_back(row.key); });
    }
    ~CommandTree() override {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    std::vector<ToolStrip*> strips() {
        return {&calendar.mainKeys(), &test::named<ToolStrip>(calendar, "VLMToolbar"),
                &test::named<ToolStrip>(calendar, "PhonebookToolbar")};
    }

    // The menu bar as the user meets it: captions by level, with the help of each item.
    std::vector<Item> shownTree() {
        std::vector<Item> result;
        for (const QAction* head : calendar.menuBar()->actions()) {
            result.push_back(itemOf(*head, 0));
            if (head->menu())
                for (const QAction* action : head->menu()->actions())
                    result.push_back(itemOf(*action, 1));
        }
        return result;
    }

    // The keys of a strip from left to right, with what the pointer over them says.
    static std::vector<Key> shownKeys(ToolStrip& strip) {
        std::vector<Key> result;
        QObject::connect(&strip, &ToolStrip::hovered, &strip, [&](const ToolRow& row) {
            result.back().hoverInPlanner = hoverText(row, true);
            result.back().hoverElsewhere = hoverText(row, false);
        });
        for (auto* button : strip.findChildren<QToolButton*>()) {
            const std::string name = button->objectName().toStdString();
            result.push_back(
                {name.substr(name.find('_') + 1), button->toolTip().toStdString(), {}, {}});
            QEvent enter(QEvent::Enter);
            QCoreApplication::sendEvent(button, &enter);
            EXPECT_FALSE(button->icon().isNull()) << name;
        }
        QObject::disconnect(&strip, &ToolStrip::hovered, &strip, nullptr);
        return result;
    }

    // Two heads share a key: from the other one the arrow leads on.
    void openByKeyboard(const QAction& head, Qt::Key accessKey) {
        QTest::keyClick(&calendar, accessKey, Qt::AltModifier);
        for (int steps = 0; QApplication::activePopupWidget() != head.menu() && steps < 10;
             ++steps) {
            QWidget* popup = QApplication::activePopupWidget();
            QTest::keyClick(popup ? popup : calendar.menuBar(), Qt::Key_Right);
        }
    }

    std::vector<std::string> chosen;

  private:
    static Item itemOf(const QAction& action, int level) {
        const std::string name =
            (action.menu() ? action.menu()->objectName() : action.objectName()).toStdString();
        if (action.isSeparator())
            return {level, name, "-", ""};
        Item item{level, name, action.text().toStdString(), ""};
        for (const MenuRow& row : menuTree())
            if (row.name == item.name)
                item.help = row.help;
        return item;
    }
};

TEST_F(CommandTree, StandsLetterForLetterInTheMenuBar) {
    const std::vector<Item> shown = shownTree();
    ASSERT_EQ(shown.size(), kTree.size());
    for (std::size_t i = 0; i < kTree.size(); ++i)
        EXPECT_EQ(shown[i], kTree[i]);
}

TEST_F(CommandTree, StandsLetterForLetterInTheToolbars) {
    const std::vector<const std::vector<Key>*> expected{&kMainKeys, &kContactKeys, &kBookKeys};
    for (std::size_t strip = 0; strip < expected.size(); ++strip) {
        const std::vector<Key> shown = shownKeys(*strips()[strip]);
        ASSERT_EQ(shown.size(), expected[strip]->size());
        for (std::size_t i = 0; i < shown.size(); ++i)
            EXPECT_EQ(shown[i], (*expected[strip])[i]);
    }
}

TEST_F(CommandTree, GivesTheHelpOfEachItemToAHighlightByMouse) {
    const MenuHelp help;
    std::uint32_t word = 0x8080000B;  // the first head
    for (const Item& item : kTree) {
        if (item.name == "exitwinmnu" || item.name == "importoldmnu") {
            EXPECT_EQ(help.wordOf(item.name), 0U);  // they have no number
            continue;
        }
        const auto text = help.MenuSelect(word++);
        if (item.help.empty())
            EXPECT_EQ(text, std::nullopt) << item;
        else
            EXPECT_EQ(text, item.help) << item;
    }
}

// Opens the menu by its access key, walks down to the item and presses Enter, for every item.
TEST_F(CommandTree, RunsEveryCommandOfTheMenusByKeyboard) {
    calendar.text().setFocus();
    for (const QAction* head : calendar.menuBar()->actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(head->text());
        ASSERT_FALSE(mnemonic.isEmpty()) << head->text().toStdString();
        const auto key = mnemonic[0].key();
        if (!head->menu()) {
            chosen.clear();
            QTest::keyClick(&calendar, key, Qt::AltModifier);
            EXPECT_EQ(chosen, std::vector<std::string>{head->objectName().toStdString()});
            continue;
        }
        for (const QAction* action : head->menu()->actions()) {
            if (action->isSeparator())
                continue;
            chosen.clear();
            openByKeyboard(*head, key);
            ASSERT_EQ(QApplication::activePopupWidget(), head->menu());
            for (int steps = 0; head->menu()->activeAction() != action && steps < 40; ++steps)
                QTest::keyClick(head->menu(), Qt::Key_Down);
            QTest::keyClick(head->menu(), Qt::Key_Return);
            EXPECT_EQ(chosen, std::vector<std::string>{action->objectName().toStdString()});
        }
    }
}

// Walks through the window by Tab and presses the space bar on every key of the toolbars.
TEST_F(CommandTree, RunsEveryKeyOfTheToolbarsByKeyboard) {
    calendar.raisePaneButton(Pane::Phonebook);
    calendar.leftColumn().month()->setFocus();
    QSet<QWidget*> visited;
    while (!visited.contains(QApplication::focusWidget()) && visited.size() < 200) {
        QWidget* at = QApplication::focusWidget();
        visited.insert(at);
        if (qobject_cast<QToolButton*>(at) && qobject_cast<ToolStrip*>(at->parentWidget()))
            QTest::keyClick(at, Qt::Key_Space);
        QTest::keyClick(at, Qt::Key_Tab,
                        at == &calendar.text() ? Qt::ControlModifier : Qt::NoModifier);
    }
    std::vector<std::string> expected;
    for (const auto* keys : {&kBookKeys, &kContactKeys, &kMainKeys})
        for (const Key& key : *keys)
            expected.push_back(key.key);
    EXPECT_EQ(chosen, expected);
}

}  // namespace
}  // namespace velmora
