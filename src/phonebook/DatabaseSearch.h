#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "phonebook/HitLine.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "phonebook/SearchFields.h"
#include "phonebook/SearchView.h"
#include "platform/EventLoop.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

struct SearchCriteria {
    std::string text;        // code-page text, taken as it is; its case does not count
    FieldSet fields;         // those that are looked at
    bool bothBooks = false;  // the White Pages, too, after the Yellow Pages
};

// What the search works with. All must outlive it.
struct DatabaseSearchParts {
    SharedState& state;
    const SettingsStore& settings;
    const PhonebookStore& store;
    LetterView& letters;
    Messages& messages;
    StatusLine& statusLine;
    EventLoop& loop;

    // Flips the main window's hidden check box, which makes the window do what PendingBook and
    // PendingLetter ask for before this returns.
    std::function<void()> flipCheck1;
};

// Looks through the books for a text while the program stays alive: the event loop runs after the
// first record of a book, then after every few, and at its end. Whatever happens there is borne:
// the form closes, which ends the search; the same form asks for another search, which takes this
// one's place; the program ends. The search reads both books by their names and leaves the book and
// the letter in use alone.
class DatabaseSearch {
  public:
    DatabaseSearch(DatabaseSearchParts parts, SearchView& view)
        : parts_(std::move(parts)), view_(view) {}

    // The form has been opened.
    void opened();

    // What the two custom fields are called.
    [[nodiscard]] CustomCaptions customCaptions() const;

    // Searches and shows the hits in one piece. Does nothing for an empty text. A book that can not
    // be read shows the standard error box and ends the search; hits found before stay.
    void search(const SearchCriteria& criteria);

    // Empties the list of hits, and forgets those of a search under way.
    void clearHits();

    // Goes to the book and the letter of a line of the list; nothing for an empty line. The letter
    // "A" can not be asked for: the window stays on the letter it shows.
    void goTo(const std::string& hitLine);

    // The form has closed. The main window's list is loaded again, unless goTo() has chosen what it
    // shows.
    void closed();

  private:
    [[nodiscard]] bool isWanted() const;
    void runOnce(const SearchCriteria& criteria);
    void scanBooks(const SearchCriteria& criteria);
    void scanBook(const std::string& bookFile, char bookLetter, const SearchCriteria& criteria,
                  const HitWriter& writer);
    void finish();
    void showFound();

    DatabaseSearchParts parts_;
    SearchView& view_;
    std::vector<std::string> hits_;       // of the search under way
    std::optional<SearchCriteria> next_;  // asked for while a search is under way
    bool running_ = false;
    bool cancelled_ = false;  // the form has closed since the search began
    bool navigated_ = false;  // goTo() has been used since the form was opened
};

}  // namespace velmora
