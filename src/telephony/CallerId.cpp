#include "telephony/CallerId.h"

#include <optional>
#include <string_view>

#include "phonebook/CardText.h"
#include "phonebook/HitLine.h"
#include "phonebook/RecordState.h"
#include "platform/Failure.h"
#include "platform/Text.h"
#include "telephony/DialSettings.h"

namespace velmora {
namespace {

// The place in a line, from 1, at which the entry's name begins.
constexpr std::size_t kNameAt = 4;

// The event loop runs after so many records: often enough for nobody to see the window stand still.
constexpr RecordNumber kRecordsPerTurn = 8;

// How an entry is listed: "Last, First", or the company, which may be empty. Nothing for a deleted
// one.
std::optional<std::string> callerLine(RecordView record, const CodePage& codePage) {
    if (isTombstone(record, codePage))
        return std::nullopt;
    const std::string_view last = record.text(Field::Last);
    if (last.empty())
        return std::string(record.text(Field::Company));
    return std::string(last) + ", " + std::string(record.text(Field::First));
}

bool isYellow(const std::string& line, const CodePage& codePage) {
    return !line.empty() && codePage.upper(line.front()) == kYellowLetter;
}

}  // namespace

void CallerId::listenTo(TelephonyLine& line) {
    if (isSwitchedOn(parts_.settings))
        line.activate([this](const Caller& caller) { onCall(caller); });
}

void CallerId::onCall(const Caller& caller) {
    if (!parts_.loop.closing() && parts_.settings.read(keys::CallerId))
        onNumber(caller.number);
}

void CallerId::onNumber(const std::string& number) {
    searched_ = CallerNumber(std::string(trimBlanks(number)));
    parts_.status.show("Incoming Phone Call from: " + callerNumber() + ".");
    ignoringErrors([this] {
        if (logsCalls(parts_.settings))
            parts_.log.append(PhoneLog::Direction::Incoming, callerNumber());
    });
    CallerReport& report = parts_.report;
    report.present();
    report.enableList(false);
    report.clearLines();
    report.showNumber(callerNumber());
    searchBooks();
    if (parts_.loop.closing())
        return;
    report.enableList(true);
    if (report.hasLines())
        report.present();
    else
        parts_.status.show("No matching entries to incoming call found.");
}

void CallerId::searchBooks() {
    ignoringErrors([this] { searchBook(kYellowPagesFile, kYellowLetter); });
    ignoringErrors([this] { searchBook(kWhitePagesFile, kWhiteLetter); });
}

void CallerId::searchBook(const std::string& bookFile, char bookLetter) {
    if (parts_.loop.closing())
        return;
    const CodePage& codePage = parts_.store.codePage();
    const OpenBook book = parts_.store.Open(bookFile);
    BookScan records = book.scan();
    while (records.next()) {
        if (searched_.isIn(records.record()))
            if (const auto line = callerLine(records.record(), codePage))
                parts_.report.addLine(lineWithBook(bookLetter, *line));
        if (records.number() % kRecordsPerTurn != 1)
            continue;
        parts_.loop.yield();
        if (parts_.loop.closing())
            return;
    }
    parts_.loop.yield();
}

void CallerId::showEntry(const std::string& line) {
    const bool yellow = isYellow(line, parts_.store.codePage());
    parts_.report.showCard("", yellow);
    ignoringErrors([&] {
        if (const auto record = entryOf(line))
            parts_.report.showCard(cardText(*record, kCallerCard), yellow);
    });
}

std::optional<PhonebookRecord> CallerId::entryOf(const std::string& line) const {
    const CodePage& codePage = parts_.store.codePage();
    const OpenBook book =
        parts_.store.Open(isYellow(line, codePage) ? kYellowPagesFile : kWhitePagesFile);
    const std::string_view name = middle(line, kNameAt);
    if (const auto number = book.FindByListLine(name)) {
        PhonebookRecord record;
        (void)book.ReadAt(*number, record);
        return record;
    }
    // An entry that has a first name alone stands in the list as its book's letter.
    if (line.empty() || !trimBlanks(name).empty())
        return std::nullopt;
    BookScan records = book.scan();
    while (records.next())
        if (!isNeverWritten(records.record()) && callerLine(records.record(), codePage) == "")
            return PhonebookRecord(records.record().bytes());
    return std::nullopt;
}

}  // namespace velmora
