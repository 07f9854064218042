#pragma once

#include <string_view>

namespace velmora {

struct Commands;

// The name of a command: one of those in `Commands` and no other.
class CommandName {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): a name reads as its text
    constexpr operator std::string_view() const { return text_; }

  private:
    friend struct Commands;
    constexpr explicit CommandName(std::string_view text) : text_(text) {}

    std::string_view text_;
};

// All commands that rows of the menus and keys of the toolbars run.
struct Commands {
    static constexpr CommandName newmnu{"newmnu"};
    static constexpr CommandName openmnu{"openmnu"};
    static constexpr CommandName savmnu{"savmnu"};
    static constexpr CommandName printmnu{"printmnu"};
    static constexpr CommandName mergeprntmnu{"mergeprntmnu"};
    static constexpr CommandName prints{"prints"};
    static constexpr CommandName runmnu{"runmnu"};
    static constexpr CommandName twentyfourhr{"twentyfourhr"};
    static constexpr CommandName viewmnu{"viewmnu"};
    static constexpr CommandName backupmnu{"backupmnu"};
    static constexpr CommandName exitmnu{"exitmnu"};
    static constexpr CommandName EditCut{"EditCut"};
    static constexpr CommandName EditCopy{"EditCopy"};
    static constexpr CommandName EditPaste{"EditPaste"};
    static constexpr CommandName searchtxtmnu{"searchtxtmnu"};
    static constexpr CommandName Setupmnu{"Setupmnu"};
    static constexpr CommandName ChfontD{"ChfontD"};
    static constexpr CommandName chsfntcal{"chsfntcal"};
    static constexpr CommandName chsfntvlm{"chsfntvlm"};
    static constexpr CommandName prntcal{"prntcal"};
    static constexpr CommandName evmnu{"evmnu"};
    static constexpr CommandName totoday{"totoday"};
    static constexpr CommandName weekat{"weekat"};
    static constexpr CommandName importplanner{"importplanner"};
    static constexpr CommandName prntentry{"prntentry"};
    static constexpr CommandName plprint{"plprint"};
    static constexpr CommandName repprnt{"repprnt"};
    static constexpr CommandName dialp{"dialp"};
    static constexpr CommandName dialwn{"dialwn"};
    static constexpr CommandName DialoOtherMnu{"DialoOtherMnu"};
    static constexpr CommandName faxmnu{"faxmnu"};
    static constexpr CommandName emailmnu{"emailmnu"};
    static constexpr CommandName webmnu{"webmnu"};
    static constexpr CommandName addmnu{"addmnu"};
    static constexpr CommandName chngmnu{"chngmnu"};
    static constexpr CommandName Importmnu{"Importmnu"};
    static constexpr CommandName exportmnu{"exportmnu"};
    static constexpr CommandName searchi{"searchi"};
    static constexpr CommandName envmnu{"envmnu"};
    static constexpr CommandName dialmnu{"dialmnu"};
    static constexpr CommandName calcmnu{"calcmnu"};
    static constexpr CommandName alset{"alset"};
    static constexpr CommandName taskmanager{"taskmanager"};
    static constexpr CommandName reptmnu{"reptmnu"};
    static constexpr CommandName monthlytasks{"monthlytasks"};
    static constexpr CommandName helpme{"helpme"};
    static constexpr CommandName abtmnu{"abtmnu"};
    static constexpr CommandName exitwinmnu{"exitwinmnu"};
    static constexpr CommandName importoldmnu{"importoldmnu"};
    static constexpr CommandName Explorer{"Explorer"};
    static constexpr CommandName Control{"Control"};
    static constexpr CommandName Planner{"Planner"};
    static constexpr CommandName Phonebook{"Phonebook"};
    static constexpr CommandName EMail{"EMail"};
    static constexpr CommandName WebPage{"WebPage"};
    static constexpr CommandName FontP{"FontP"};
    static constexpr CommandName PrintP{"PrintP"};
    static constexpr CommandName Delete{"Delete"};
    static constexpr CommandName Insert1{"Insert1"};
    static constexpr CommandName Insert2{"Insert2"};
    static constexpr CommandName Yellow{"Yellow"};
    static constexpr CommandName White{"White"};
};

}  // namespace velmora
