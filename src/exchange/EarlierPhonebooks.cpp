#include "exchange/EarlierPhonebooks.h"

#include <array>
#include <utility>

#include "core/SharedState.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::string_view kGroups = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kOtherSigns = "SY";
constexpr std::size_t kLongestValue = 511;
constexpr std::size_t kLongestList = 31999;
constexpr std::size_t kMostTogether = 64;
constexpr std::uint64_t kLongestFile = std::uint64_t{64} << 20;

struct Source {
    std::string_view key;
    Field field;
};
constexpr std::array kSources{
    Source{"Title", Field::Title},      Source{"First", Field::First},
    Source{"Last", Field::Last},        Source{"OS", Field::Position},
    Source{"Company", Field::Company},  Source{"Street", Field::Address1},
    Source{"Street2", Field::Address2}, Source{"Country", Field::Country},
    Source{"Phone", Field::Phone},      Source{"Work", Field::WorkPhone},
    Source{"Fax", Field::Fax},          Source{"Note", Field::Memo},
    Source{"Class", Field::Class},      Source{"PSal", Field::Salutation},
};
constexpr std::array kEmptied{Field::Address3,      Field::Address4,   Field::PostalCode,
                              Field::Pager,         Field::OtherPhone, Field::EMail,
                              Field::DateReference, Field::Custom1,    Field::Custom2};

std::string counted(std::uint64_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

PhonebookRecord earlierEntry(const ProfileFile& file, std::string_view name, std::uint64_t& cut) {
    PhonebookRecord record;
    for (const Field field : kEmptied)
        record.assign(field, "");
    for (const Source& source : kSources) {
        const std::string value = file.value(name, source.key, "", kLongestValue);
        if (value.size() > placeOf(source.field).width)
            ++cut;
        record.assign(source.field, value);
    }
    return record;
}

void EarlierPhonebooks::import() {
    if (parts_.jobs.refuses())
        return;
    if (!parts_.messages.ask("Import",
                             "Ready to Import? If an entry already exists, it will be overwritten "
                             "by the newly imported data.",
                             Answer::No))
        return;
    const std::int16_t reportBook = parts_.state.ReportBook;
    Outcome outcome;
    parts_.jobs.run([&](LongJob& job) {
        job.tell("Importing...");
        for (const std::int16_t book : {kYellowPages, kWhitePages})
            if (!job.cancelled() && outcome.trouble.empty())
                importBook(book, job, outcome);
        job.tell(textOf(outcome, job.cancelled()));
    });
    parts_.state.ReportBook = reportBook;
    parts_.bookChanged();
}

void EarlierPhonebooks::importBook(std::int16_t bookKind, LongJob& job, Outcome& outcome) {
    const bool yellow = bookKind == kYellowPages;
    const std::string bookFile = yellow ? kYellowPagesFile : kWhitePagesFile;
    const std::string_view ending = yellow ? ".DAT" : ".DAB";
    parts_.state.ReportBook = bookKind;
    parts_.state.ReportBookTitle = yellow ? "Yellow Pages" : "White Pages";
    parts_.state.ReportFile = bookFile;
    BookFiller filler(parts_.store, bookFile, [&] { return job.goOn(); });
    try {
        const std::string folder = parts_.locations.BookFolder(bookFile);
        bool copied = false;
        for (std::size_t i = 0; i <= kGroups.size() && !job.cancelled(); ++i) {
            const std::string group(i < kGroups.size() ? kGroups.substr(i, 1) : kOtherSigns);
            const std::string key = i < kGroups.size() ? group + "Nu" : "SyNu";
            const ProfileFile counts(
                read(folder + "\\" + group + "NAMES" + std::string(ending), outcome),
                parts_.store.codePage());
            if (readNumber(counts.value("Number", key, "0", kLongestValue)) <= 0)
                continue;
            if (!std::exchange(copied, true)) {
                const std::string copy =
                    parts_.copies.copyBook(bookFile, [&] { return job.goOn(); });
                if (job.cancelled())
                    return;
                outcome.copies += (copy.empty() || outcome.copies.empty() ? "" : ", ") + copy;
            }
            importGroup(group, folder, ending, filler, job, outcome);
        }
    } catch (const Failure& failure) {
        outcome.trouble = failure.what();
    }
    const FillCounts& counts = filler.counts();
    outcome.counts.added += counts.added;
    outcome.counts.replaced += counts.replaced;
    outcome.counts.unwritten += counts.unwritten;
    if (outcome.counts.whyUnwritten.empty())
        outcome.counts.whyUnwritten = counts.whyUnwritten;
}

void EarlierPhonebooks::importGroup(std::string_view group, const std::string& folder,
                                    std::string_view ending, BookFiller& filler, LongJob& job,
                                    Outcome& outcome) {
    const ProfileFile entries(
        read(folder + "\\" + std::string(group) + "Names" + std::string(ending), outcome),
        parts_.store.codePage());
    for (const std::string& name : entries.keysOf(std::string(group) + "Name", kLongestList)) {
        filler.add(earlierEntry(entries, name, outcome.cut));
        if (filler.waiting() < kMostTogether)
            continue;
        (void)filler.write();
        if (!job.goOn())
            return;
    }
    (void)filler.write();
}

// A file that is not there has nothing in it.
std::string EarlierPhonebooks::read(const std::string& path, Outcome& outcome) const {
    if (!parts_.files.exists(path))
        return {};
    try {
        if (auto text = parts_.files.readWhole(path, kLongestFile))
            return *std::move(text);
        outcome.trouble = "The file " + parts_.store.codePage().toUtf8(path) + " is too long.";
    } catch (const Failure& failure) {
        outcome.trouble = failure.what();
    }
    return {};
}

std::string EarlierPhonebooks::textOf(const Outcome& outcome, bool calledOff) const {
    const CodePage& codePage = parts_.store.codePage();
    std::string text = std::string(kApplicationTitle) + "  " +
                       counted(outcome.counts.added, "entry", "entries") + " added, " +
                       std::to_string(outcome.counts.replaced) + " replaced.";
    if (calledOff)
        text += " The import was called off.";
    if (!outcome.trouble.empty())
        text += " Not all could be imported: " + codePage.fromUtf8(outcome.trouble);
    if (outcome.counts.unwritten > 0)
        text += " " + counted(outcome.counts.unwritten, "entry", "entries") +
                " could not be written: " + codePage.fromUtf8(outcome.counts.whyUnwritten);
    if (outcome.cut > 0)
        text += " " + counted(outcome.cut, "value was", "values were") + " too long and cut.";
    if (!outcome.copies.empty())
        text += " As it was before: " + outcome.copies;
    return text;
}

}  // namespace velmora
