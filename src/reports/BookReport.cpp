#include "reports/BookReport.h"

#include <algorithm>
#include <utility>

#include "core/PrintFace.h"
#include "core/SharedState.h"
#include "phonebook/ListLine.h"
#include "phonebook/Sorts.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// The event loop runs after so many records: a turn of it takes longer than the look at a record.
constexpr RecordNumber kRecordsPerTurn = 32;

constexpr const char* kWait = "Please Wait While Printing...";
constexpr float kLargestOnScreen = 12;  // points; more than this becomes
constexpr float kInsteadOnScreen = 7;

}  // namespace

BookReport::End BookReport::print(PrintSeries& series, std::int16_t bookKind) {
    const bool yellow = bookKind == kYellowPages;
    bookFile_ = yellow ? kYellowPagesFile : kWhitePagesFile;
    const std::string title = yellow ? "Yellow Pages" : "White Pages";
    tooManyNames_ = false;
    const PrintTask task{
        .title = std::string(nameOf(profile_.kind)) + ", " + title,
        .fontName = profile_.inEditorFace ? docPadFace(parts_.settings) : listFace(parts_.settings),
        .fontSize = profile_.firstHead.size,
        .orientation = PageOrientation::Portrait,
        .cancelLeavesOrientation = true,
        .lastText = kApplicationTitle,
        .failureIsTold = FailureIsTold::OnTheStatusLine};
    series.run(task, [&](PrintRun& job) {
        job.state.ReportBook = bookKind;
        job.state.ReportBookTitle = title;
        job.state.ReportFile = bookFile_;
        run(job);
    });
    book_.reset();
    index_.reset();
    return tooManyNames_ ? End::TooManyNames : End::Done;
}

void BookReport::run(PrintRun& run) {
    run.tell(kWait);
    if (profile_.needsBook && !parts_.store.exists(bookFile_))
        return;
    ReportState& state = run.state;
    if (!readNames(run))
        return;
    state.ReportCount = static_cast<int>(state.ReportNames.size());
    SortNameList(state.ReportNames, 0, state.ReportCount - 1, kSortAscending + kSortIgnoringCase,
                 parts_.store.codePage());
    ReportPages pages(run, profile_, look());
    pages.begin();
    for (state.ReportIndex = 0; state.ReportIndex < state.ReportCount && !run.cancelled();
         ++state.ReportIndex) {
        run.tell(kWait);
        printName(run, pages, state.ReportNames[static_cast<std::size_t>(state.ReportIndex)]);
        if (state.ReportIndex % kRecordsPerTurn == 0) {
            (void)run.goOn();
            eventsRan_ = true;
        }
    }
}

ReportPages::Look BookReport::look() const {
    return {.face = profile_.inEditorFace ? docPadFace(parts_.settings) : listFace(parts_.settings),
            .colour = readWhole(parts_.settings.read(keys::ListFont.colour)),
            .editorSize = parts_.editor.editorSize(),
            .custom1 = parts_.settings.read(keys::Custom1),
            .custom2 = parts_.settings.read(keys::Custom2),
            .date = formatMoment(parts_.clock.now(), "mm-dd-yyyy", parts_.locale)};
}

// False when the job was called off, or the list is full.
bool BookReport::readNames(PrintRun& run) {
    std::vector<std::string>& names = run.state.ReportNames;
    const bool read = readBook(run, [&](RecordView record) {
        auto line = listLine(record, parts_.store.codePage());
        if (!line)
            return;
        tooManyNames_ = names.size() == kMostNames;
        if (!tooManyNames_)
            names.push_back(*std::move(line));
    });
    return read && !tooManyNames_;
}

// Reads the book from its beginning and indexes it anew. False when the job was called off.
bool BookReport::readBook(PrintRun& run, const std::function<void(RecordView)>& see) {
    book_.emplace(parts_.store.Open(bookFile_));
    version_ = book_->state().version;
    index_.emplace(parts_.store.codePage());
    index_->reserve(book_->recordCount());
    eventsRan_ = true;  // a long book is read with events
    BookScan records = book_->scan();
    while (!tooManyNames_ && records.next()) {
        index_->add(records.number(), records.record());
        see(records.record());
        if (records.number() % kRecordsPerTurn == 1 && !run.goOn())
            return false;
    }
    return true;
}

// Between two turns of the event loop nobody but another program can write, and a turn comes soon.
bool BookReport::refreshIndex(PrintRun& run) {
    if (!std::exchange(eventsRan_, false) || book_->state().version == version_)
        return true;
    return readBook(run, [](RecordView) {});
}

// Goes forward in the book, whatever happens to it in a page turn.
void BookReport::printName(PrintRun& run, ReportPages& pages, const std::string& name) {
    const WantedName wanted(name, parts_.store.codePage());
    RecordNumber last = 0;
    while (!run.cancelled() && refreshIndex(run)) {
        const std::vector<RecordNumber>& numbers = index_->of(wanted);
        const auto next = std::upper_bound(numbers.begin(), numbers.end(), last);
        if (next == numbers.end())
            return;
        last = *next;
        PhonebookRecord record;
        if (!book_->ReadAt(last, record) || !wanted.fits(record))
            continue;
        if (profile_.shrinksEditor && !wanted.isPerson())
            shrinkEditor();
        if (pages.print(record, name, wanted.isPerson()))
            eventsRan_ = true;
    }
}

void BookReport::shrinkEditor() {
    if (parts_.editor.editorSize() > kLargestOnScreen)
        parts_.editor.setEditorSize(kInsteadOnScreen);
}

}  // namespace velmora
