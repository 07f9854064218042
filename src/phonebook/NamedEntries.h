#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "phonebook/EntryTexts.h"
#include "phonebook/NameTable.h"
#include "phonebook/PhonebookStore.h"

namespace velmora {

// One book in the order of its names, as reports and exports go through it. All names are read and
// sorted first. Then each is looked up, and the book is read anew where it has changed since, so
// that what is used is what the book holds at that moment; an entry that was deleted or renamed
// meanwhile is left out. Two entries of one name stand in the list twice, and both are used each
// time.
class NamedEntries {
  public:
    // The most names that there may be.
    static constexpr std::size_t kMostNames = 30001;

    // Lets events run; false when the run is called off.
    using GoOn = std::function<bool()>;

    // `store` must outlive the object. Nothing is read yet. `fields`: what is wanted of an entry
    // apart from its names.
    NamedEntries(const PhonebookStore& store, std::string bookFile,
                 const std::vector<Field>& fields, GoOn goOn);

    enum class Names { Read, CalledOff, TooMany };

    // Puts the sorted names of the book into `names`. Throws Failure.
    [[nodiscard]] Names read(std::vector<std::string>& names);

    // Calls `use` with every entry that now has the name, in the order of the book. Forward only,
    // whatever happens to the book while `use` lets events run, which it tells by eventsRan(); it
    // returns false to end. Throws Failure.
    void forEach(const WantedName& name, const std::function<bool(const EntryTexts&)>& use);

    // The book may be another one than when it was indexed.
    void eventsRan() { eventsRan_ = true; }

  private:
    [[nodiscard]] bool readBook(const std::function<bool(RecordView)>& see);
    [[nodiscard]] bool refreshIndex();

    const PhonebookStore& store_;
    std::string bookFile_;
    GoOn goOn_;
    std::optional<OpenBook> book_;
    std::string version_;  // of the book, when it was indexed
    NameTable index_;
    KeptTexts texts_;
    bool eventsRan_ = false;
};

}  // namespace velmora
