#include "benches/BareReport.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace velmora::bench {
namespace {

constexpr std::size_t kRecord = 1595;

struct Cell {
    const char* label;
    std::size_t offset;
    std::size_t width;
};

constexpr Cell kLast{"", 15, 20}, kFirst{"", 0, 15}, kCompany{"", 45, 50};

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

std::string_view trimmed(const char* record, const Cell& cell) {
    const char* field = record + cell.offset;
    std::size_t begin = 0;
    std::size_t end = cell.width;
    while (begin < end && field[begin] == ' ')
        ++begin;
    while (end > begin && (field[end - 1] == ' ' || field[end - 1] == '\0'))
        --end;
    return {field + begin, end - begin};
}

std::string upper(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

template <typename Cells>
void format(std::vector<std::string>& texts, const char* record, const Cells& cells) {
    for (const Cell& cell : cells)
        texts.push_back(std::string(cell.label).append(trimmed(record, cell)));
}

std::string nameOf(const char* record) {
    const std::string_view last = trimmed(record, kLast);
    if (last.empty())
        return std::string(trimmed(record, kCompany));
    return std::string(last) + ", " + std::string(trimmed(record, kFirst));
}

std::vector<char> contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::vector<char> bytes(file ? static_cast<std::size_t>(file.tellg()) : 0);
    file.seekg(0);
    if (bytes.empty() || !file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        throw std::runtime_error("can not read " + path);
    return bytes;
}

}  // namespace

std::vector<std::string> bareReport(const std::string& path, ReportKind kind) {
    struct Entry {
        std::string key;
        std::string name;
        const char* record;
    };
    const std::vector<char> book = contentOf(path);
    std::vector<Entry> entries;
    for (std::size_t at = 0; at + kRecord <= book.size(); at += kRecord) {
        std::string name = nameOf(book.data() + at);
        entries.push_back({upper(name), std::move(name), book.data() + at});
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.key < b.key; });
    std::vector<std::string> texts;
    for (Entry& entry : entries) {
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
