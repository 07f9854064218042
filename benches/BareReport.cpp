#include "benches/BareReport.h"

#include <cstddef>
#include <utility>

#include "benches/BareBook.h"

namespace velmora::bench {
namespace {

struct Cell {
    const char* label;
    std::size_t offset;
    std::size_t width;
};

constexpr Cell kNumbers[] = {{"Home: ", 535, 20},  {"Work: ", 555, 20},  {"Fax: ", 575, 20},
                             {"Pager: ", 595, 25}, {"Other: ", 620, 20}, {"E-Mail: ", 640, 100}};
constexpr Cell kHead[] = {
    {"", 95, 60},          {"Class: ", 970, 25}, {"Date Reference: ", 1245, 20},
    {"", 45, 50},          {"", 155, 75},        {"", 230, 75},
    {"", 305, 75},         {"", 380, 75},        {"", 505, 30},
    {"Country: ", 455, 50}};
constexpr Cell kTail[] = {{"Web Page: ", 740, 200},
                          {"Custom1: ", 1265, 25},
                          {"Custom2: ", 1290, 25},
                          {"Memo: ", 995, 250}};

template <typename Cells>
void format(std::vector<std::string>& texts, const char* record, const Cells& cells) {
    for (const Cell& cell : cells)
        texts.push_back(std::string(cell.label).append(bareField(record, cell.offset, cell.width)));
}

}  // namespace

std::vector<std::string> bareReport(const std::string& path, ReportKind kind) {
    const std::vector<char> book = contentOfBook(path);
    std::vector<std::string> texts;
    for (BareEntry& entry : sortedEntries(book)) {
        texts.push_back(std::move(entry.name));
        if (kind == ReportKind::Complete)
            format(texts, entry.record, kHead);
        format(texts, entry.record, kNumbers);
        if (kind == ReportKind::Complete)
            format(texts, entry.record, kTail);
    }
    return texts;
}

}  // namespace velmora::bench
