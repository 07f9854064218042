#include "core/CommandTable.h"

#include <array>

namespace velmora {
namespace {

constexpr MenuRow separator(int level, std::string_view name = {}) {
    return {level, name, "-", {}, {}};
}

constexpr MenuRow added(int level, CommandName name, std::string_view caption,
                        std::string_view help) {
    MenuRow row{level, name, caption, help, {}};
    row.unnumbered = true;
    return row;
}

constexpr MenuRow checkable(MenuRow row) {
    row.checkable = true;
    return row;
}

// clang-format off
constexpr std::array kMenuTree{
    MenuRow{0, "filmnu", "&File", "", ""},
    MenuRow{1, Commands::newmnu, "&New DocPad", "Create a new DocPad document.", "Ctrl+N"},
    MenuRow{1, Commands::openmnu, "&Open Text File", "Open a text file for editing.", "Ctrl+O"},
    MenuRow{1, Commands::savmnu, "&Save As DocPad", "Save a DocPad document as text.", "Ctrl+S"},
    separator(1),
    MenuRow{1, Commands::printmnu, "&Print DocPad", "Print the DocPad document.", "Ctrl+P"},
    MenuRow{1, Commands::mergeprntmnu, "&Merge Print DocPad", "Merge Print the current DocPad document.", ""},
    MenuRow{1, Commands::prints, "Printer &Setup...", "Printer Setup and Configuration.", ""},
    separator(1),
    MenuRow{1, Commands::runmnu, "&Run...", "Run other programs.", ""},
    separator(1),
    checkable(MenuRow{1, Commands::twentyfourhr, "&24 Hour Clock", "Change clock to 24-hour format.", ""}),
    separator(1),
    MenuRow{1, Commands::viewmnu, "&View Phone Log", "View the Phone Log.", ""},
    separator(1, "damnu2"),
    MenuRow{1, Commands::backupmnu, "&Backup Data on Floppy", "Backup phonebook data onto floppy.", ""},
    added(1, Commands::exitwinmnu, "Exit &Windows...", "Ends the session of the desktop."),
    MenuRow{1, Commands::exitmnu, "E&xit", "Exit this program.", "Ctrl+Q"},

    MenuRow{0, "edtimnu", "&Edit", "", ""},
    MenuRow{1, Commands::EditCut, "&Cut", "Delete the selected text.", ""},
    MenuRow{1, Commands::EditCopy, "&Copy", "Copy the selected text.", ""},
    MenuRow{1, Commands::EditPaste, "&Paste", "Paste the selected text.", ""},
    MenuRow{1, Commands::searchtxtmnu, "&Search", "Search DocPad document...", "Ctrl+F"},
    separator(1, "editspemnu"),
    MenuRow{1, Commands::Setupmnu, "Setup &Preferences...", "Setup program preferences...", ""},

    MenuRow{0, "fntmnu", "F&ont", "", ""},
    MenuRow{1, Commands::ChfontD, "&Choose Font- DocPad", "Choose a font for the DocPad document.", ""},
    MenuRow{1, Commands::chsfntcal, "Choose &Font- Planner", "Choose a font for the Planner text.", ""},
    MenuRow{1, Commands::chsfntvlm, "Cho&ose Font- Phonebook List", "Choose a font for the Phonebook list.", ""},

    MenuRow{0, "planmnu", "&Planner", "", ""},
    MenuRow{1, Commands::prntcal, "Print Events of &the Day", "Print events for the current day.", ""},
    MenuRow{1, Commands::evmnu, "&Datewarden", "Shows the Datewarden (tm)...", ""},
    MenuRow{1, Commands::totoday, "&Go To Today", "Sets the Planner and Calendar to Today's Date.", "Ctrl+T"},
    MenuRow{1, Commands::weekat, "&Week at a Glance...", "Shows the Week at a Glance Screen...", ""},
    separator(1, "da99amnu"),
    MenuRow{1, Commands::importplanner, "&Import Version 6.x and Earlier Planner Data", "Allows Importation of Planner v6.x and Earlier Data...", ""},

    MenuRow{0, "vlmmnu", "P&honebook", "", ""},
    MenuRow{1, Commands::prntentry, "Print C&urrent Entry", "Print the current entry's information.", ""},
    MenuRow{1, Commands::plprint, "Print Telecommunications &Listing", "Print a telecommunications listing.", ""},
    MenuRow{1, Commands::repprnt, "Print &Report", "Print a complete report for all entries.", ""},
    MenuRow{1, Commands::dialp, "&Dial Phone Number", "Dial the entry's phone number.", ""},
    MenuRow{1, Commands::dialwn, "Dial &Work Number", "Dial the entry's work number.", ""},
    MenuRow{1, Commands::DialoOtherMnu, "Dial &Other Number", "Dial the entry's other number.", ""},
    MenuRow{1, Commands::faxmnu, "&Fax Entry", "Fax the entry.", ""},
    MenuRow{1, Commands::emailmnu, "Send Entr&y E-Mail", "Send e-mail to the entry.", ""},
    MenuRow{1, Commands::webmnu, "&Go to Entry's Web Page", "Go to the entry's web page.", ""},
    MenuRow{1, Commands::addmnu, "&Add Entry...", "Add an entry to the phonebook.", ""},
    MenuRow{1, Commands::chngmnu, "&Change Entry...", "Change the selected entry.", ""},
    MenuRow{1, Commands::Importmnu, "&Import Data Into Phonebooks", "Import data from an Access or Text Database.", ""},
    added(1, Commands::importoldmnu, "Import &Earlier Phonebooks", "Import the phonebooks of an earlier release."),
    MenuRow{1, Commands::exportmnu, "E&xport Data", "Export data from phonebooks to text files.", ""},
    MenuRow{1, Commands::searchi, "&Search Database", "Search the phonebook.", ""},
    MenuRow{1, Commands::envmnu, "&Envelope...", "Create an envelope.", ""},

    MenuRow{0, Commands::dialmnu, "&Dialer", "Activate the Dialer.", ""},
    MenuRow{0, Commands::calcmnu, "&Calculator", "Activate VLMCalc calculator.", ""},

    MenuRow{0, "almnu", "&Alarm", "", ""},
    MenuRow{1, Commands::alset, "View and Set...", "View or Set Alarms.", ""},

    MenuRow{0, "TaskList", "&Task List", "", ""},
    MenuRow{1, Commands::taskmanager, "&Task Manager", "View the General Task List.", ""},
    MenuRow{1, Commands::reptmnu, "&Weekly Tasks", "View or Set Repetitive Weekly Tasks.", ""},
    MenuRow{1, Commands::monthlytasks, "&Monthly Tasks", "View or Set Repetitive Monthly Tasks.", ""},

    MenuRow{0, "hlpmnu", "&Help", "", ""},
    MenuRow{1, Commands::helpme, "Help &Contents", "Show Help Contents.", "F1"},
    separator(1, "da99mnu"),
    MenuRow{1, Commands::abtmnu, "&About", "About...", ""},
};

constexpr std::array kMainToolbar{
    ToolRow{"Save", "Save DocPad Document", "Saves the current DocPad document as text.", Commands::savmnu},
    ToolRow{"Open", "Open DocPad Document", "Allows viewing and editing of most text files.", Commands::openmnu},
    ToolRow{"New", "New DocPad Document", "Creates a new DocPad document.", Commands::newmnu, true},
    ToolRow{"PrintD", "Print DocPad Document", "Prints the current DocPad Document.", Commands::printmnu},
    ToolRow{"FontD", "Change DocPad Font", "Changes the font and point size for the planner.", Commands::ChfontD, false, "", "Changes the font and point size for the phonebook list."},
    ToolRow{"SearchD", "Search DocPad Document", "Searches DocPad's Document for Text.", Commands::searchtxtmnu, true},
    ToolRow{"Run", "Run...", "Shows the Run... dialog.", Commands::runmnu, true},
    ToolRow{"Event", "Datewarden", "Shows the Datewarden (tm).", Commands::evmnu},
    ToolRow{"Week", "Week at a Glance", "Shows the Week at a Glance Schedule.", Commands::weekat},
    ToolRow{"Task", "Task Manager", "Displays the Personal Task List.", Commands::taskmanager},
    ToolRow{"Alarm", "Alarms...", "Displays the Alarm View/Set screen.", Commands::alset, true},
    ToolRow{"Explorer", "Windows Explorer", "Runs Explorer.", Commands::Explorer},
    ToolRow{"Control", "Control Panel", "Runs Control Panel.", Commands::Control},
    ToolRow{"VLMCalc", "VLMCalc", "", Commands::calcmnu},
    ToolRow{"About", "About", "About", Commands::abtmnu, true},
    ToolRow{"Planner", "Switch to Planner", "Activates the Planner", Commands::Planner},
    ToolRow{"Phonebook", "Switch to Phonebook", "Activates the Phonebook.", Commands::Phonebook},
    ToolRow{"Dialer", "Switch to Dialer", "Activates the Voice/Mail Dialer.", Commands::dialmnu, true},
    ToolRow{"EMail", "Run E-Mail Program", "", Commands::EMail},
    ToolRow{"WebPage", "Run Web Browser", "", Commands::WebPage, true},
    ToolRow{"Preferences", "Preferences...", "Shows Preferences.", Commands::Setupmnu},
    ToolRow{"FontP", "Change Planner Font", "", Commands::FontP},
    ToolRow{"PrintP", "Print...", "Prints The Calendar of Events.", Commands::PrintP, true, "", "Prints Telecommunications Listing."},
    ToolRow{"Exit", "Exit", "Ends the Velmora session.", Commands::exitmnu},
};

constexpr std::array kContactToolbar{
    ToolRow{"New", "Add a Contact", "", Commands::addmnu, false, "VLM_New"},
    ToolRow{"Edit", "Edit a Contact", "", Commands::chngmnu},
    ToolRow{"Delete", "Remove a Contact", "Deletes the selected entry.", Commands::Delete, true},
    ToolRow{"PrintT", "Print Telecommunications Listing...", "", Commands::plprint},
    ToolRow{"Insert1", "Insert Full Data", "", Commands::Insert1},
    ToolRow{"Insert2", "Create Business Letter", "", Commands::Insert2},
    ToolRow{"PrintE", "Print Entry Data", "", Commands::prntentry},
    ToolRow{"Env", "Create Envelope", "", Commands::envmnu, true},
    ToolRow{"Phone1", "Dial Phone 1", "Calls the selected entry's phone number.", Commands::dialp},
    ToolRow{"Phone2", "Dial Phone 2", "", Commands::dialwn},
    ToolRow{"Phone3", "Dial Phone 3", "", Commands::DialoOtherMnu},
    ToolRow{"Fax", "Fax Entry", "", Commands::faxmnu, true},
    ToolRow{"Search", "Search for an Entry...", "", Commands::searchi},
};

constexpr std::array kPhonebookToolbar{
    ToolRow{"Yellow", "Switch to Yellow Pages", "Select White or Yellow Pages.", Commands::Yellow},
    ToolRow{"White", "Switch to White Pages", "Select White or Yellow Pages.", Commands::White},
};
// clang-format on

}  // namespace

std::span<const MenuRow> menuTree() {
    return kMenuTree;
}

bool isHead(const MenuRow& row) {
    const MenuRow* next = &row + 1;
    const MenuRow* end = kMenuTree.data() + kMenuTree.size();
    return &row >= kMenuTree.data() && next < end && next->level > row.level;
}

std::string_view hoverText(const ToolRow& row, bool dayViewShown) {
    return dayViewShown || row.hoverElsewhere.empty() ? row.hover : row.hoverElsewhere;
}

std::span<const ToolRow> mainToolbar() {
    return kMainToolbar;
}

std::span<const ToolRow> contactToolbar() {
    return kContactToolbar;
}

std::span<const ToolRow> phonebookToolbar() {
    return kPhonebookToolbar;
}

}  // namespace velmora
