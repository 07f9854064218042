#include "phonebook/NamedEntries.h"

#include <algorithm>
#include <utility>

#include "phonebook/ListLine.h"
#include "phonebook/Sorts.h"

namespace velmora {
namespace {

// The event loop runs after so many records: a turn of it takes longer than the look at a record.
constexpr RecordNumber kRecordsPerTurn = 32;

std::vector<Field> withNames(std::vector<Field> fields) {
    for (const Field name : {Field::Last, Field::First, Field::Company})
        if (std::ranges::find(fields, name) == fields.end())
            fields.push_back(name);
    return fields;
}

}  // namespace

NamedEntries::NamedEntries(const PhonebookStore& store, std::string bookFile,
                           const std::vector<Field>& fields, GoOn goOn)
    : store_(store),
      bookFile_(std::move(bookFile)),
      goOn_(std::move(goOn)),
      index_(store.codePage()),
      texts_(withNames(fields)) {}

NamedEntries::Names NamedEntries::read(std::vector<std::string>& names) {
    names.clear();
    bool tooMany = false;
    const bool whole = readBook([&](RecordView record) {
        auto line = listLine(record, store_.codePage());
        if (!line)
            return true;
        tooMany = names.size() == kMostNames;
        if (!tooMany)
            names.push_back(*std::move(line));
        return !tooMany;
    });
    if (tooMany)
        return Names::TooMany;
    if (!whole)
        return Names::CalledOff;
    SortNameList(names, 0, static_cast<int>(names.size()) - 1, kSortAscending + kSortIgnoringCase,
                 store_.codePage());
    return Names::Read;
}

void NamedEntries::forEach(const WantedName& name,
                           const std::function<bool(const EntryTexts&)>& use) {
    RecordNumber last = 0;
    while (refreshIndex()) {
        const std::vector<RecordNumber>& numbers = index_.of(name);
        const auto next = std::upper_bound(numbers.begin(), numbers.end(), last);
        if (next == numbers.end())
            return;
        last = *next;
        const EntryTexts entry = texts_.of(last);
        if (name.fits(entry) && !use(entry))
            return;
    }
}

// Reads the book from its beginning and indexes it anew. False when it was not read to its end.
bool NamedEntries::readBook(const std::function<bool(RecordView)>& see) {
    book_.emplace(store_.Open(bookFile_));
    version_ = book_->state().version;
    index_.clear();
    index_.reserve(book_->recordCount());
    texts_.clear();
    texts_.reserve(book_->recordCount());
    eventsRan_ = true;  // a long book is read with events
    BookScan records = book_->scan();
    while (records.next()) {
        index_.add(records.number(), records.record());
        texts_.add(records.record());
        if (!see(records.record()))
            return false;
        if (records.number() % kRecordsPerTurn == 1 && !goOn_())
            return false;
    }
    return true;
}

// Between two turns of the event loop nobody but another program can write, and a turn comes soon.
// False when the run was called off meanwhile.
bool NamedEntries::refreshIndex() {
    if (!std::exchange(eventsRan_, false) || book_->state().version == version_)
        return true;
    return readBook([](RecordView) { return true; });
}

}  // namespace velmora
