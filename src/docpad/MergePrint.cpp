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
constexpr std::size_t kMostNames = 30001;
constexpr std::size_t kLongestNameInTitle = 60;
constexpr float kDateSize = 10;  // points
constexpr auto kBetweenBooks = 3s;

// Of a record that stands in the list.
bool isNamed(RecordView record, const WantedName& name, const CodePage& codePage) {
    return name.fits(record) && listLine(record, codePage);
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

void MergePrint::run(WhichBooks books) {
    static_cast<void>(parts_.printing.runSeries([&](PrintSeries& series) {
        bool goesOn = true;
        if (books != WhichBooks::White)
            goesOn = mergeBook(series, kYellowPages);
        if (books == WhichBooks::Both && goesOn)
            series.waitFor(kBetweenBooks);
        if (books != WhichBooks::Yellow && goesOn)
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
            printLetters(run, file, letter);
    });
    index_.clear();
    if (tooMany)
        parts_.endAfter("Subscript out of range");
    // All letters of both books go into one file, and without it there is no run.
    const bool noFile =
        end == PrintEnd::Cancelled && parts_.printing.printer().CurrentPrinter() == kPrintToPdf;
    return !noFile && !tooMany;
}

void MergePrint::printLetters(PrintRun& run, const std::string& bookFile, const Letter& letter) {
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
        if (!send(run, letter, *entry, title))
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
            index_.add(scan.number(), scan.record());
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
    const WantedName wanted(name, codePage);
    const std::vector<RecordNumber>& known = index_.of(wanted);
    if (known.empty())
        return std::nullopt;
    const OpenBook book = parts_.store.Open(bookFile);
    PhonebookRecord entry;
    if (book.ReadAt(known.front(), entry) && isNamed(entry, wanted, codePage))
        return entry;
    BookScan scan = book.scan();
    while (scan.next()) {
        if (isNamed(scan.record(), wanted, codePage)) {
            const auto bytes = scan.record().bytes();
            return PhonebookRecord(std::span<const char>(bytes.data(), bytes.size()));
        }
        if (!run.goOn())
            return std::nullopt;
    }
    return std::nullopt;
}

// Prints one letter and sends it. False when the run was called off.
bool MergePrint::send(PrintRun& run, const Letter& letter, const PhonebookRecord& entry,
                      const std::string& title) {
    PrintSurface& printer = run.printer;
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
    return run.endJob(title);
}

}  // namespace velmora
