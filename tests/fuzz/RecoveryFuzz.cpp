// Any bytes where DocPad, an entry form and a write to a book left something for the next start.

#include <algorithm>
#include <string>

#include "docpad/RecoveryFile.h"
#include "fuzz/Fuzzing.h"
#include "phonebook/EntryRecovery.h"
#include "phonebook/WriteTrace.h"
#include "support/FakeClock.h"
#include "support/FakeRunningPrograms.h"
#include "support/MemoryFiles.h"

namespace velmora {
namespace {

using fuzz::require;

constexpr const char* kFolder = "/velmora";

void checkText(std::string_view bytes) {
    test::MemoryFiles files;
    const test::FakeRunningPrograms programs;
    const test::FakeClock clock;
    const std::string path = std::string(kFolder) + "\\docpad.recovery1";
    files[path] = bytes;
    RecoveryFile recovery(kFolder, files, programs, clock);
    const auto found = recovery.abandoned("");
    require(found.size() <= 1, "one file holds one text");
    if (found.empty())
        return;
    require(bytes.ends_with(found[0].text) && !found[0].text.empty(), "the text is in the file");
    recovery.take(found[0]);
    require(recovery.abandoned("").empty(), "what was taken is not offered again");
    test::FakeRunningPrograms nextRun;
    nextRun.own = "next run";
    nextRun.running = {};
    const auto again = RecoveryFile(kFolder, files, nextRun, clock).abandoned("");
    require(again.size() == 1 && again[0].text == found[0].text &&
                again[0].documentName == found[0].documentName,
            "what was taken is kept");
}

bool areEqual(const EntryDraft& a, const EntryDraft& b) {
    return a.origin.bookFile == b.origin.bookFile && a.origin.line == b.origin.line &&
           a.values == b.values;
}

void checkDraft(std::string_view bytes) {
    if (const auto draft = draftOf(bytes)) {
        const auto again = draftOf(bytesOf(*draft));
        require(again && areEqual(*again, *draft), "a draft comes back");
        require(!draftOf(bytesOf(*draft) + "x"), "nothing stands behind a draft");
    }
    test::MemoryFiles files;
    const test::FakeRunningPrograms programs;
    files[std::string(kFolder) + "\\entry.recovery3"] = bytes;
    EntryRecovery recovery(kFolder, files, programs);
    for (const EntryRecovery::Kept& kept : recovery.abandoned())
        recovery.forget(kept);
    require(recovery.abandoned().empty(), "what is forgotten is gone");
}

// A whole trace of a write to one of the first records, of which the input gives the bytes.
std::string traceOf(fuzz::Input& input) {
    std::string trace = "Velmora write 1\n";
    const auto number = [&](std::uint64_t value) {
        for (int i = 0; i < 8; ++i, value >>= 8U)
            trace += static_cast<char>(value & 0xFFU);
    };
    number(static_cast<std::uint64_t>(input.byte() % 8) * kRecordSize);
    std::string old(kRecordSize, static_cast<char>(input.byte()));
    std::string now(kRecordSize, static_cast<char>(input.byte()));
    for (std::string* record : {&old, &now}) {
        const std::string_view text = input.line();
        record->replace(0, std::min(text.size(), kRecordSize), text.substr(0, kRecordSize));
    }
    trace += old + now;
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : trace)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    number(sum);
    return trace;
}

// A trace can finish the one write that it tells of, and nothing else.
void checkTrace(std::string_view trace, std::string_view book) {
    test::MemoryFiles files;
    const std::string path = std::string(kFolder) + "\\DATAY.QEL";
    files[path] = book;
    files[path + ".unfinished"] = trace;
    {
        const auto open = files.openOrCreate(path);
        const bool locked = open->lock(std::chrono::milliseconds(0));
        (void)fuzz::succeeds([&] { WriteTrace(files, path).finish(*open); });
        if (locked)
            open->unlock();
    }
    const std::string& after = files[path];
    std::size_t first = 0;
    while (first < std::min(after.size(), book.size()) && after[first] == book[first])
        ++first;
    const std::size_t slot = first - first % kRecordSize;
    require(after.size() <= std::max(book.size(), slot + kRecordSize), "a book does not grow");
    if (slot + kRecordSize < book.size())
        require(after.substr(slot + kRecordSize) == book.substr(slot + kRecordSize),
                "no other record changes");
    require(!files.has(path + ".unfinished"), "the trace is gone");
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, size);
    const unsigned what = input.byte();
    const std::string_view bytes = input.rest();
    switch (what % 6) {
        case 0:
            checkText(bytes);
            break;
        case 1:
            checkText("Velmora DocPad recovery 2\n" + std::string(bytes));
            break;
        case 2:
            checkDraft(bytes);
            break;
        case 3:
            checkDraft("Velmora entry recovery 1\nmark\n" + std::string(bytes));
            break;
        case 4: {
            const std::string trace = traceOf(input);
            const std::size_t records = 1 + input.byte() % 4;
            std::string book(records * kRecordSize, '\0');
            book.replace(0, std::min(input.rest().size(), book.size()),
                         input.rest().substr(0, book.size()));
            checkTrace(trace, book);
            break;
        }
        default:
            checkTrace(bytes.substr(0, bytes.size() / 2), bytes.substr(bytes.size() / 2));
            break;
    }
    return 0;
}
