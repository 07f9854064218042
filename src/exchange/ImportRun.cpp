#include "exchange/ImportRun.h"

#include <chrono>

#include "exchange/ImportRecord.h"
#include "platform/FatalFailure.h"

namespace velmora {
namespace {

using std::chrono::steady_clock;

// Rows that are written together: as many as come within this time, but no more than these.
constexpr std::chrono::milliseconds kTurn(10);
constexpr std::size_t kMostRowsTogether = 256;

std::string counted(std::uint64_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

std::string textOf(const ImportReport& report, const CodePage& codePage) {
    if (report.notBegun)
        return "Nothing was imported, since the phonebook could not be copied first. " +
               codePage.fromUtf8(report.trouble);
    const FillCounts& counts = report.counts;
    std::string text = counted(counts.added, "entry", "entries") + " added, " +
                       std::to_string(counts.replaced) + " replaced.";
    if (report.calledOff)
        text += " The import was called off.";
    if (counts.unwritten > 0)
        text += " " + counted(counts.unwritten, "entry", "entries") +
                " could not be written: " + codePage.fromUtf8(counts.whyUnwritten);
    if (!report.trouble.empty())
        text += " The rest could not be read: " + codePage.fromUtf8(report.trouble);
    if (report.bookWasReplaced)
        text +=
            " The file of the phonebook was taken away or replaced meanwhile: what was "
            "imported before that may be missing.";
    if (report.cut > 0)
        text += " " + counted(report.cut, "value was", "values were") + " too long and cut.";
    if (report.unknown > 0)
        text += " " + counted(report.unknown, "character", "characters") +
                " that Velmora can not store became \"?\".";
    if (!report.copy.empty())
        text += " The phonebook as it was before: " + report.copy;
    return text;
}

ImportReport ImportRun::run(LongJob& job, ImportSource& source, const ImportMapping& mapping,
                            const std::string& bookFile,
                            const std::function<void(const State&)>& tell) {
    ImportReport report;
    try {
        report.copy = parts_.copies.copyBook(bookFile, [&] { return job.goOn(); });
    } catch (const Failure& failure) {
        report.trouble = failure.what();
        report.notBegun = true;
        return report;
    }
    report.calledOff = job.cancelled();
    if (report.calledOff)
        return report;
    ImportRecord records(mapping, source);
    BookFiller* writing = nullptr;
    const auto letEventsRun = [&] {
        if (writing)
            tell({writing->lastNumber(), writing->isHeldUp(), source.progress()});
        return job.goOn();
    };
    BookFiller filler(parts_.store, bookFile, letEventsRun);
    writing = &filler;
    steady_clock::time_point begun = steady_clock::now();
    bool stuck = false;
    const auto take = [&](const ImportRow& row) {
        filler.add(records.of(row));
        if (filler.waiting() < kMostRowsTogether && steady_clock::now() - begun < kTurn)
            return true;
        stuck = !filler.write();
        const bool wanted = letEventsRun();
        begun = steady_clock::now();
        return wanted && !stuck;
    };
    const auto finish = [&] {
        if (!stuck)
            (void)filler.write();
        report.counts = filler.counts();
        report.bookWasReplaced = filler.bookWasReplaced();
    };
    try {
        source.readRows(take);
    } catch (const FatalFailure&) {
        finish();
        throw;
    } catch (const Failure& failure) {
        if (!job.cancelled())
            report.trouble = failure.what();
    }
    report.calledOff = job.cancelled();
    finish();
    report.cut = records.cut();
    report.unknown = source.replacedCharacters();
    return report;
}

}  // namespace velmora
