#include "reports/Reports.h"

#include <chrono>
#include <utility>

#include "core/SharedState.h"

namespace velmora {
namespace {

constexpr std::chrono::seconds kBetweenBooks(10);

}  // namespace

Reports::Reports(const ReportParts& parts, StatusLine& statusLine, Actions actions)
    : parts_(parts), statusLine_(statusLine), actions_(std::move(actions)) {}

void Reports::begin(ReportKind kind) {
    cancel();
    ReportState& state = parts_.printing.state();
    (kind == ReportKind::Listing ? state.ListingPending : state.ReportPending) = true;
}

void Reports::beginMerge() {
    cancel();
    parts_.printing.state().MergePending = true;
}

bool Reports::print(const ReportChoice& choice) {
    if (parts_.printing.refuses())
        return false;
    ReportState& state = parts_.printing.state();
    const std::int16_t saved = state.ReportBook;
    const bool merge = std::exchange(state.MergePending, false);
    const bool listing = std::exchange(state.ListingPending, false);
    const bool report = std::exchange(state.ReportPending, false);
    const bool chosen = choice.books != ReportBooks::None;
    if (!chosen)
        statusLine_.show(
            "No book was chosen, so nothing was printed. Close the dialog and begin "
            "anew.");
    if (chosen && merge)
        actions_.mergePrint(choice.books);
    if (chosen && listing)
        printBooks(ReportKind::Listing, choice);
    if (chosen && report)
        printBooks(ReportKind::Complete, choice);
    cancel();
    state.ReportBook = saved;
    return chosen && (merge || listing || report);
}

void Reports::printBooks(ReportKind kind, const ReportChoice& choice) {
    BookReport report(parts_, kind, choice.size);
    bool fits = true;
    parts_.printing.runSeries([&](PrintSeries& series) {
        if (choice.books != ReportBooks::White)
            fits = report.print(series, kYellowPages) == BookReport::End::Done;
        if (fits && choice.books == ReportBooks::Both)
            series.waitFor(kBetweenBooks);
        if (fits && choice.books != ReportBooks::Yellow)
            fits = report.print(series, kWhitePages) == BookReport::End::Done;
    });
    if (!fits)
        actions_.endProgram("Subscript out of range");
}

void Reports::cancel() {
    ReportState& state = parts_.printing.state();
    state.MergePending = false;
    state.ListingPending = false;
    state.ReportPending = false;
}

}  // namespace velmora
