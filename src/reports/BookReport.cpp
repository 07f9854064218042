#include "reports/BookReport.h"

#include <utility>

#include "core/PrintFace.h"
#include "core/SharedState.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// The event loop runs after so many entries.
constexpr int kEntriesPerTurn = 32;

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
    entries_.reset();
    return tooManyNames_ ? End::TooManyNames : End::Done;
}

void BookReport::run(PrintRun& run) {
    run.tell(kWait);
    if (profile_.needsBook && !parts_.store.exists(bookFile_))
        return;
    ReportState& state = run.state;
    entries_.emplace(parts_.store, bookFile_, fieldsOf(profile_), [&run] { return run.goOn(); });
    const auto names = entries_->read(state.ReportNames);
    tooManyNames_ = names == NamedEntries::Names::TooMany;
    if (names != NamedEntries::Names::Read)
        return;
    state.ReportCount = static_cast<int>(state.ReportNames.size());
    ReportPages pages(run, profile_, look());
    pages.begin();
    for (state.ReportIndex = 0; state.ReportIndex < state.ReportCount && !run.cancelled();
         ++state.ReportIndex) {
        run.tell(kWait);
        printName(run, pages, state.ReportNames[static_cast<std::size_t>(state.ReportIndex)]);
        if (state.ReportIndex % kEntriesPerTurn == 0) {
            (void)run.goOn();
            entries_->eventsRan();
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

void BookReport::printName(PrintRun& run, ReportPages& pages, const std::string& name) {
    const WantedName wanted(name, parts_.store.codePage());
    if (run.cancelled())
        return;
    entries_->forEach(wanted, [&](const EntryTexts& entry) {
        if (profile_.shrinksEditor && !wanted.isPerson())
            shrinkEditor();
        if (pages.print(entry, name, wanted.isPerson()))
            entries_->eventsRan();
        return !run.cancelled();
    });
}

void BookReport::shrinkEditor() {
    if (parts_.editor.editorSize() > kLargestOnScreen)
        parts_.editor.setEditorSize(kInsteadOnScreen);
}

}  // namespace velmora
