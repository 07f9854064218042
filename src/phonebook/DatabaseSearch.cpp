#include "phonebook/DatabaseSearch.h"

#include <utility>

#include "phonebook/Buckets.h"
#include "phonebook/RecordSearch.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// The place in a hit line, from 1, at which the entry's name begins.
constexpr std::size_t kNameAt = 4;

// The event loop runs after so many records. A turn of it takes longer than the look at a record;
// eight of them are done in some 10 microseconds, in which nobody sees the window stand still.
constexpr RecordNumber kRecordsPerTurn = 8;

std::int16_t bookOfLine(const std::string& hitLine) {
    switch (hitLine.front()) {
        case kYellowLetter:
            return kYellowPages;
        case kWhiteLetter:
            return kWhitePages;
        default:
            return 0;
    }
}

}  // namespace

CustomCaptions DatabaseSearch::customCaptions() const {
    return {parts_.settings.read(keys::Custom1InSearch),
            parts_.settings.read(keys::Custom2InSearch)};
}

void DatabaseSearch::opened() {
    navigated_ = false;
}

// A search that is asked for in a turn of the event loop waits until the one under way has let go:
// so no stack grows however often it is asked for.
void DatabaseSearch::search(const SearchCriteria& criteria) {
    if (criteria.text.empty())
        return;
    next_ = criteria;
    if (std::exchange(running_, true))
        return;
    while (next_) {
        const SearchCriteria now = *std::exchange(next_, std::nullopt);
        cancelled_ = false;
        runOnce(now);
    }
    running_ = false;
}

bool DatabaseSearch::isWanted() const {
    return !cancelled_ && !next_ && !parts_.loop.closing();
}

void DatabaseSearch::runOnce(const SearchCriteria& criteria) {
    view_.showLight(SearchLight::Searching);
    view_.showHitList(false);
    clearHits();
    try {
        scanBooks(criteria);
        if (isWanted())
            finish();
    } catch (const Failure& failure) {
        if (!isWanted())
            return;
        showFound();
        parts_.messages.standardError(failure.what());
    }
}

void DatabaseSearch::scanBooks(const SearchCriteria& criteria) {
    const HitWriter writer(customCaptions(), parts_.store.codePage());
    scanBook(kYellowPagesFile, kYellowLetter, criteria, writer);
    if (criteria.bothBooks && isWanted())
        scanBook(kWhitePagesFile, kWhiteLetter, criteria, writer);
}

void DatabaseSearch::scanBook(const std::string& bookFile, char bookLetter,
                              const SearchCriteria& criteria, const HitWriter& writer) {
    const RecordSearch search(criteria.text, criteria.fields, parts_.store.codePage());
    const OpenBook book = parts_.store.Open(bookFile);
    BookScan records = book.scan();
    while (isWanted() && records.next()) {
        const FieldSet found = search.fieldsThatHold(records.record());
        if (found.any())
            writer.addLines(bookLetter, records.record(), found, hits_);
        if (records.number() % kRecordsPerTurn == 1)
            parts_.loop.yield();
    }
    if (isWanted())
        parts_.loop.yield();
}

// Nothing is read from here on: the boxes run the event loop, in which anything may happen.
void DatabaseSearch::finish() {
    const bool noHit = hits_.empty();
    Filterit(hits_);
    const bool noEntry = hits_.empty();
    showFound();
    if (noHit)
        parts_.statusLine.show("No matching entries found.");
    if (noEntry)
        parts_.messages.tell("No Entries Found", "No entries were found.");
}

void DatabaseSearch::showFound() {
    view_.setHits(std::exchange(hits_, {}));
    view_.showHitList(true);
    view_.showLight(SearchLight::Done);
}

void DatabaseSearch::clearHits() {
    hits_.clear();
    view_.setHits({});
}

void DatabaseSearch::goTo(const std::string& hitLine) {
    if (hitLine.empty())
        return;
    navigated_ = true;
    try {
        parts_.state.PendingBook = bookOfLine(hitLine);
        parts_.state.PendingLetter = static_cast<std::int16_t>(
            bucketOfText(middle(hitLine, kNameAt, 1), parts_.store.codePage()));
        parts_.letters.reload();
        parts_.flipCheck1();
        parts_.letters.selectLine(entryLineOf(hitLine));
    } catch (const Failure& failure) {
        parts_.state.PendingBook = 0;
        parts_.state.PendingLetter = 0;
        parts_.messages.standardError(failure.what());
    }
}

void DatabaseSearch::closed() {
    cancelled_ = true;
    next_.reset();
    if (navigated_ || parts_.loop.closing())
        return;
    try {
        parts_.letters.refresh();
    } catch (const Failure& failure) {
        parts_.messages.standardError(failure.what());
    }
}

}  // namespace velmora
