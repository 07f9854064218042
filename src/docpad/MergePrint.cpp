#include "docpad/MergePrint.h"

#include <algorithm>
#include <chrono>

#include "core/DataLocations.h"
#include "core/PrintFace.h"
#include "core/SharedState.h"
#include "phonebook/ListLine.h"
#include "phonebook/Sorts.h"
#include "platform/Failure.h"
#include "platform/PrintDevice.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr const char* kWait = "Please Wait While Printing...";
constexpr const char* kPrinting = "Printing: Merge Document   Page ";
constexpr const char* kQueueIsFull =
    "The printer takes no more letters now. Waiting; the printer icon cancels.";
constexpr std::size_t kMostNames = 30001;
constexpr std::size_t kLongestNameInTitle = 60;
constexpr float kDateSize = 10;  // points
constexpr auto kBetweenBooks = 3s;
constexpr auto kBeforeNextTry = 2s;

std::string identityOf(bool isPerson, std::string_view name, std::string_view first,
                       const CodePage& codePage) {
    std::string identity(1, isPerson ? 'P' : 'C');
    identity += codePage.upper(name);
    identity += '\0';
    identity += codePage.upper(first);
    return identity;
}

// Of the entry that a name stands for; nothing for a name that stands for none.
std::string identityOf(const std::string& name, const CodePage& codePage) {
    const ListLineParts parts = splitListLine(name);
    if (parts.isPerson)
        return parts.last.empty() ? std::string()
                                  : identityOf(true, parts.last, parts.first, codePage);
    return identityOf(false, parts.company, {}, codePage);
}

std::string identityOf(RecordView record, const CodePage& codePage) {
    if (!listLine(record, codePage))
        return {};
    return record.isEmpty(Field::Last)
               ? identityOf(false, record.text(Field::Company), {}, codePage)
               : identityOf(true, record.text(Field::Last), record.text(Field::First), codePage);
}

}  // namespace

std::string addressBlock(RecordView entry, const LetterStyle& style) {
    std::string block;
    if (!entry.isEmpty(Field::Last))
        block += nameLine(entry) + "\r\n";
    for (const Field field : {Field::Position, Field::Company, Field::Address1, Field::Address2,
                              Field::Address3, Field::Address4, Field::PostalCode, Field::Country})
        if (const std::string_view text = entry.text(field); !text.empty())
            block += std::string(text) + "\r\n";
    const std::string_view salutation = entry.text(Field::Salutation);
    block += "\r\n\r\n";
    if (style.tab)
        block += '\t';
    block += salutation.empty() ? style.defaultSalutation : std::string(salutation);
    block += "\r\n\r\n";
    return block;
}

void MergePrint::run(Books books) {
    static_cast<void>(parts_.printing.runSeries([&](PrintSeries& series) {
        bool goesOn = true;
        if (books != Books::White)
            goesOn = mergeBook(series, kYellowPages);
        if (books == Books::Both && goesOn)
            series.waitFor(kBetweenBooks);
        if (books != Books::Yellow && goesOn)
            mergeBook(series, kWhitePages);
    }));
}

// False when the next book is not to be asked about either.
bool MergePrint::mergeBook(PrintSeries& series, std::int16_t book) {
    const auto signature = parts_.question.ask(parts_.signature.load());
    if (!signature)
        return true;
    parts_.signature.keep(*signature);
    ControlFont font = parts_.font.font();
    font.name = docPadFace(parts_.settings);
    // Changes that are made while it prints are not for this run.
    const Letter letter{formatMoment(parts_.clock.now(), NamedFormat::MediumDate, parts_.locale),
                        parts_.pad.bytes(), *signature, font, readLetterStyle(parts_.settings)};
    const bool isYellow = book == kYellowPages;
    const PrintTask task{.title = isYellow ? "Letters, Yellow Pages" : "Letters, White Pages",
                         .fontName = font.name,
                         .fontSize = static_cast<float>(font.size),
                         .lastText = kApplicationTitle};
    bool tooMany = false;
    const PrintEnd end = series.run(task, [&](PrintRun& run) {
        const std::string file = isYellow ? kYellowPagesFile : kWhitePagesFile;
        run.state.ReportBook = book;
        run.tell(kWait);
        if (!readNames(run, file))
            return;
        tooMany = run.state.ReportNames.size() > kMostNames;
        if (!tooMany)
            printLetters(series, run, file, letter);
    });
    index_.clear();
    if (tooMany)
        parts_.endAfter("Subscript out of range");
    // All letters of both books go into one file, and without it there is no run.
    const bool noFile =
        end == PrintEnd::Cancelled && parts_.printing.printer().CurrentPrinter() == kPrintToPdf;
    return !noFile && !tooMany;
}

void MergePrint::printLetters(PrintSeries& series, PrintRun& run, const std::string& bookFile,
                              const Letter& letter) {
    std::vector<std::string>& names = run.state.ReportNames;
    if (!names.empty())
        SortNameList(names, 0, static_cast<int>(names.size()) - 1,
                     kSortAscending + kSortIgnoringCase, parts_.store.codePage());
    run.tell(kPrinting + std::to_string(run.state.ReportPage));
    for (std::size_t i = 0; i < names.size(); ++i) {
        run.state.ReportIndex = static_cast<int>(i);
        run.tell(kWait);
        const auto entry = find(run, bookFile, names[i]);
        if (!run.goOn())
            return;
        if (!entry)
            continue;
        const std::string title = "Letter to " + names[i].substr(0, kLongestNameInTitle) + " (" +
                                  std::to_string(i + 1) + " of " + std::to_string(names.size()) +
                                  ")";
        if (!send(series, run, letter, *entry, title))
            return;
        run.tell(kPrinting + std::to_string(i + 1));
    }
}

// The names of all entries, and where each lies. False when the run was called off.
bool MergePrint::readNames(PrintRun& run, const std::string& bookFile) {
    const CodePage& codePage = parts_.store.codePage();
    index_.clear();
    run.state.ReportNames.clear();
    const OpenBook book = parts_.store.Open(bookFile);
    BookScan scan = book.scan();
    while (scan.next()) {
        if (auto line = listLine(scan.record(), codePage)) {
            run.state.ReportNames.push_back(std::move(*line));
            index_.try_emplace(identityOf(scan.record(), codePage), scan.number());
        }
        if (!run.goOn())
            return false;
    }
    run.state.ReportCount = static_cast<int>(run.state.ReportNames.size());
    return true;
}

// The first entry of a name as it lies in the book now: the user may have changed or deleted it
// while events ran.
std::optional<PhonebookRecord> MergePrint::find(PrintRun& run, const std::string& bookFile,
                                                const std::string& name) {
    const CodePage& codePage = parts_.store.codePage();
    const std::string identity = identityOf(name, codePage);
    const auto known = index_.find(identity);
    if (identity.empty() || known == index_.end())
        return std::nullopt;
    const OpenBook book = parts_.store.Open(bookFile);
    PhonebookRecord entry;
    if (book.ReadAt(known->second, entry) && identityOf(entry, codePage) == identity)
        return entry;
    BookScan scan = book.scan();
    while (scan.next()) {
        if (identityOf(scan.record(), codePage) == identity) {
            known->second = scan.number();
            const auto bytes = scan.record().bytes();
            return PhonebookRecord(std::span<const char>(bytes.data(), bytes.size()));
        }
        if (!run.goOn())
            return std::nullopt;
    }
    return std::nullopt;
}

// Prints one letter and sends it; where the queue takes none now, waits and tries again. False when
// the run was called off.
bool MergePrint::send(PrintSeries& series, PrintRun& run, const Letter& letter,
                      const PhonebookRecord& entry, const std::string& title) {
    PrintSurface& printer = run.printer;
    while (true) {
        printer.SetScaleMode(kInches);
        printer.SetFontName(letter.font.name);
        printer.SetForeColor(letter.font.colour);
        printer.SetFontSize(kDateSize);
        printer.Print(letter.date);
        printer.SetFontSize(static_cast<float>(letter.font.size));
        printer.PrintPart("\r\n\r\n");
        printer.Print(addressBlock(entry, letter.style));
        printer.PrintPart(letter.body);
        printer.Print("\r\n" + letter.signature);
        try {
            return run.endJob(title);
        } catch (const QueueIsFull&) {
            run.tell(kQueueIsFull);
            series.waitFor(kBeforeNextTry);
            if (!run.goOn())
                return false;
        }
    }
}

}  // namespace velmora
