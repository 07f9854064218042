#include "benches/BareBook.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace velmora::bench {
namespace {

std::string upper(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

std::string nameOf(const char* record) {
    const std::string_view last = bareField(record, 15, 20);
    if (last.empty())
        return std::string(bareField(record, 45, 50));
    return std::string(last) + ", " + std::string(bareField(record, 0, 15));
}

}  // namespace

std::vector<char> contentOfBook(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::vector<char> bytes(file ? static_cast<std::size_t>(file.tellg()) : 0);
    file.seekg(0);
    if (bytes.empty() || !file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        throw std::runtime_error("can not read " + path);
    return bytes;
}

std::string_view bareField(const char* record, std::size_t offset, std::size_t width) {
    const char* field = record + offset;
    std::size_t begin = 0;
    std::size_t end = width;
    while (begin < end && field[begin] == ' ')
        ++begin;
    while (end > begin && (field[end - 1] == ' ' || field[end - 1] == '\0'))
        --end;
    return {field + begin, end - begin};
}

std::vector<BareEntry> sortedEntries(const std::vector<char>& book) {
    std::vector<BareEntry> entries;
    for (std::size_t at = 0; at + kBareRecord <= book.size(); at += kBareRecord) {
        std::string name = nameOf(book.data() + at);
        entries.push_back({upper(name), std::move(name), book.data() + at});
    }
    std::sort(entries.begin(), entries.end(),
              [](const BareEntry& a, const BareEntry& b) { return a.key < b.key; });
    return entries;
}

}  // namespace velmora::bench
