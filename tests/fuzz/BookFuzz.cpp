// Reads any bytes as a book and compares the scans, which look at as few bytes as they can, with
// plain readings of the rules. Nothing here may crash, and nothing may differ.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "phonebook/Buckets.h"
#include "phonebook/CardText.h"
#include "phonebook/ListLine.h"
#include "phonebook/PhonebookStore.h"
#include "phonebook/RecordState.h"
#include "platform/Text.h"

namespace velmora {
namespace {

const CodePage& page() {
    return CodePage::western();
}

void require(bool holds, const char* what) {
    if (holds)
        return;
    std::cerr << "differs: " << what << '\n';
    std::abort();
}

class BytesRecords final : public BookRecords {
  public:
    explicit BytesRecords(std::string_view bytes) : bytes_(bytes) {}
    [[nodiscard]] RecordNumber count() const override {
        return static_cast<RecordNumber>((bytes_.size() + kRecordSize - 1) / kRecordSize);
    }
    [[nodiscard]] std::size_t read(RecordNumber first, std::span<char> target) const override {
        const std::size_t offset = static_cast<std::size_t>(first - 1) * kRecordSize;
        return offset < bytes_.size() ? bytes_.copy(target.data(), target.size(), offset) : 0;
    }
    void write(RecordNumber, const PhonebookRecord&) override { std::abort(); }
    [[nodiscard]] bool lock() override { return false; }
    void unlock() override {}
    [[nodiscard]] BookState state() const override { return {}; }

  private:
    std::string_view bytes_;
};

// One record, read the slow way.
struct PlainRecord {
    explicit PlainRecord(std::string_view bytes) : all(bytes) { all.resize(kRecordSize, '\0'); }

    [[nodiscard]] std::string raw(Field field) const {
        return all.substr(placeOf(field).offset, placeOf(field).width);
    }
    [[nodiscard]] std::string text(Field field) const {
        std::string value = raw(field);
        while (!value.empty() && (value.back() == ' ' || value.back() == '\0'))
            value.pop_back();
        while (!value.empty() && value.front() == ' ')
            value.erase(0, 1);
        return value;
    }
    [[nodiscard]] std::string upper(Field field) const { return page().upper(text(field)); }
    [[nodiscard]] bool isNul(Field field) const {
        return raw(field) == std::string(placeOf(field).width, '\0');
    }

    [[nodiscard]] RecordState state() const {
        if (upper(Field::Last) == "DELETED")
            return RecordState::Tombstone;
        if (!text(Field::Last).empty())
            return RecordState::Person;
        return text(Field::Company).empty() ? RecordState::Blank : RecordState::CompanyOnly;
    }

    [[nodiscard]] bool isIn(char bucket) const {
        const std::string last = text(Field::Last);
        const std::string name = last.empty() ? text(Field::Company) : last;
        if (name.empty())
            return false;
        const auto c = static_cast<unsigned char>(name[0]);
        if (bucket == '#')
            return (c < 'A' || c > 'z' || (c > 'Z' && c < 'a')) && c != 0;
        return page().upper(name)[0] == bucket;
    }

    [[nodiscard]] bool isNamed(const std::string& last, const std::string& first,
                               const std::string& company, bool person) const {
        if (person)
            return upper(Field::Last) == last && upper(Field::First) == first;
        return upper(Field::Company) == company && text(Field::Last).empty();
    }

    std::string all;
};

std::vector<PlainRecord> plainRecords(std::string_view bytes) {
    std::vector<PlainRecord> records;
    for (std::size_t at = 0; at < bytes.size(); at += kRecordSize)
        records.emplace_back(bytes.substr(at, kRecordSize));
    return records;
}

std::string plainUpper(std::string_view text) {
    return page().upper(fieldText(text));
}

std::optional<RecordNumber> plainFind(const std::vector<PlainRecord>& records,
                                      const std::string& line) {
    const std::size_t comma = line.find(',');
    const bool person = comma != std::string::npos;
    const std::string last = person ? plainUpper(trimBlanks(line.substr(0, comma))) : "";
    const std::string first = person ? plainUpper(trimBlanks(line.substr(comma + 1))) : "";
    const std::string company = person ? "" : plainUpper(trimBlanks(line));
    if (last.empty() && first.empty() && company.empty())
        return std::nullopt;
    for (std::size_t i = 0; i < records.size(); ++i)
        if (records[i].isNamed(last, first, company, person))
            return static_cast<RecordNumber>(i + 1);
    return std::nullopt;
}

Slot plainSlot(const std::vector<PlainRecord>& records, const PlainRecord& wanted) {
    const bool person = !wanted.text(Field::Last).empty();
    const bool named = person || !wanted.text(Field::Company).empty();
    for (std::size_t i = 0; i < records.size(); ++i) {
        const PlainRecord& record = records[i];
        const auto number = static_cast<RecordNumber>(i + 1);
        if (named && record.isNamed(wanted.upper(Field::Last), wanted.upper(Field::First),
                                    wanted.upper(Field::Company), person))
            return {number, true};
        if (record.state() == RecordState::Tombstone ||
            (record.isNul(Field::Last) && record.isNul(Field::First)))
            return {number, false};
    }
    return {static_cast<RecordNumber>(records.size() + 1), false};
}

void checkRecord(const PlainRecord& plain) {
    const PhonebookRecord record(plain.all);
    const RecordView view(record);
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        const std::string text = plain.text(field);
        require(view.text(field) == text, "text");
        require(view.isEmpty(field) == text.empty(), "empty");
        require(view.isAllNul(field) == plain.isNul(field), "all NUL");
        require(view.firstByte(field) == (text.empty() ? '\0' : text[0]), "first byte");
    }
    require(stateOf(view, page()) == plain.state(), "state");
    for (int index = 0; index < kBucketCount; ++index) {
        const Bucket& bucket = bucketAt(index);
        require(BucketFilter(bucket.name, page()).passes(view) == plain.isIn(bucket.name[0]),
                "bucket filter");
    }
    const int bucket = bucketOf(view, page());
    require(bucket == kSymbolBucket || plain.isIn(bucketAt(bucket).name[0]), "bucket");
    const std::string card = cardText(view);
    require(
        card.find(plain.text(Field::Last).empty() ? "\r\n" : "    Spouse: ") != std::string::npos,
        "card");
    require(card.size() < 2 * kRecordSize, "length of the card");
}

// `lines` are list lines that may or may not be in the book.
void checkBook(std::string_view bytes, std::vector<std::string> lines) {
    const std::vector<PlainRecord> plain = plainRecords(bytes);
    OpenBook book(std::make_unique<BytesRecords>(bytes), page());
    require(book.recordCount() == static_cast<RecordNumber>(plain.size()), "count");
    std::size_t at = 0;
    PhonebookRecord record;
    while (book.ReadNext(record)) {
        require(std::ranges::equal(record.bytes(), plain[at++].all), "record");
        require(book.AtEnd() == (at == plain.size() && bytes.size() % kRecordSize != 0), "end");
        if (const auto line = listLine(record, page()))
            lines.push_back(*line);
    }
    require(at == plain.size() && book.AtEnd(), "all records");
    for (const std::string& line : lines)
        require(book.FindByListLine(line) == plainFind(plain, line), "find");
    for (const PlainRecord& wanted : plain) {
        const Slot expected = plainSlot(plain, wanted);
        const Slot slot = book.FindSlot(PhonebookRecord(wanted.all), SlotMode::Add);
        require(slot.number == expected.number && slot.mustAsk == expected.mustAsk, "slot");
    }
}

// Small inputs make small records: the input is spread over the fields that decide.
std::string spread(std::string_view seed) {
    std::string book;
    constexpr std::size_t kPiece = 18;
    for (std::size_t at = 0; at < seed.size(); at += kPiece) {
        const std::string_view piece = seed.substr(at, kPiece);
        std::string record(kRecordSize, (piece[0] & 1) != 0 ? ' ' : '\0');
        const auto put = [&](Field field, std::string_view value) {
            std::copy(value.begin(), value.end(),
                      record.begin() + static_cast<std::ptrdiff_t>(placeOf(field).offset));
        };
        put(Field::Last, middle(piece, 2, 8));
        put(Field::First, middle(piece, 10, 4));
        put(Field::Company, middle(piece, 14, 5));
        book += record;
    }
    return book;
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::vector<std::string> lines{std::string(input.substr(0, lineEnd))};
    const std::string_view rest = input.substr(std::min(lineEnd + 1, input.size()));
    const ListLineParts parts = splitListLine(lines[0]);
    require(parts.isPerson == (lines[0].find(',') != std::string::npos), "split");
    checkRecord(PlainRecord(input.substr(0, kRecordSize)));
    const std::string book = spread(rest.substr(0, 400));
    for (const PlainRecord& record : plainRecords(book))
        checkRecord(record);
    checkBook(book, lines);
    checkBook(rest, lines);
    return 0;
}
