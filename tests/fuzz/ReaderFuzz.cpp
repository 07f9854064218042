// Any bytes as the answer of the child process that reads Access databases: they are refused, or
// make tables and rows within bounds, whatever the pieces they arrive in; and what rows there are
// is converted to a planner, or refused.

#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/DatabaseFile.h"
#include "planner/sqlite/AccessConversion.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "platform/access/AccessAnswer.h"
#include "platform/access/AccessValue.h"
#include "platform/sqlite/Database.h"
#include "support/FakeAccessReader.h"

namespace velmora {
namespace {

using fuzz::require;

void feed(access::AccessAnswer& answer, std::string_view bytes, std::size_t piece) {
    for (std::size_t at = 0; at < bytes.size(); at += piece)
        answer.feed(bytes.substr(at, piece));
    answer.end(true);
}

std::vector<AccessTable> tablesIn(std::string_view bytes, std::size_t piece) {
    access::TableCollector tables;
    access::AccessAnswer answer([&](const access::Message& message) { tables.add(message); });
    feed(answer, bytes, piece);
    return tables.take();
}

std::vector<AccessRow> rowsIn(std::string_view bytes, std::size_t piece) {
    std::vector<AccessRow> all;
    const std::function<void(const AccessRow&)> take = [&](const AccessRow& row) {
        all.push_back(row);
    };
    access::RowCollector rows(take);
    access::AccessAnswer answer([&](const access::Message& message) { rows.add(message); });
    feed(answer, bytes, piece);
    rows.finish();
    return all;
}

template <class Read>
void checkPieces(const Read& read) {
    std::size_t whole = 0;
    std::size_t pieces = 0;
    const bool first = fuzz::succeeds([&] { whole = read(std::size_t{1} << 20U).size(); });
    const bool second = fuzz::succeeds([&] { pieces = read(7).size(); });
    require(first == second && (!first || whole == pieces), "pieces change nothing");
}

void checkWidth(const std::vector<AccessRow>& rows) {
    for (const AccessRow& row : rows)
        require(row.size() == rows.front().size() && row.size() <= 255, "rows are of one width");
}

void checkConversion(std::vector<AccessRow> rows, AccessType typeOfTimes) {
    const fuzz::DatabaseFile file("qel.mdb");
    file.write(std::string("\0\1\0\0Standard Jet DB\0", 20));
    test::FakeAccessReader reader;
    for (AccessField& field : reader.described[1].fields)
        if (field.name == "BeginTime" || field.name == "EndTime")
            field.type = typeOfTimes;
    const std::size_t count = rows.size();
    reader.rows = std::move(rows);
    AccessConversion conversion(reader);
    std::string original;
    if (!fuzz::succeeds([&] { original = conversion.convert(file.path()); })) {
        require(kindOfDatabase(file.path()) == DatabaseKind::Access, "it stays as it is");
        return;
    }
    (void)unlink(file.path().sibling(original).c_str());
    sqlite::Database database(file.path(), sqlite::Access::ReadOnly);
    auto rowCount = database.prepare("SELECT count(*) FROM appoint");
    require(rowCount.step() && rowCount.integer(0) == static_cast<std::int64_t>(count),
            "all rows are converted");
}

void checkValues(std::string_view text) {
    const std::string plain = access::plainNumber(text);
    require(access::plainNumber(plain) == plain || plain.find_first_of("eE") != std::string::npos,
            "a plain number is plain");
    double number = 0;
    std::copy_n(text.data(), std::min(text.size(), sizeof number),
                reinterpret_cast<char*>(&number));
    if (const auto moment = access::momentText(number))
        require(moment->size() == 19, "the length of a moment");
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, std::min<std::size_t>(size, 20000));
    const unsigned how = input.byte();
    const std::string bytes(input.rest());
    checkValues(bytes);
    checkPieces([&](std::size_t piece) { return tablesIn(bytes, piece); });
    checkPieces([&](std::size_t piece) { return rowsIn(bytes, piece); });
    std::vector<AccessRow> rows;
    if (!fuzz::succeeds([&] { rows = rowsIn(bytes, 4096); }) || rows.empty())
        return 0;
    checkWidth(rows);
    if (how % 4 == 0 && rows.size() < 100)
        checkConversion(rows, how < 128 ? AccessType::Text : AccessType::DateTime);
    return 0;
}
