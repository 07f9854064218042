#include "exchange/MappingMemory.h"

#include <algorithm>
#include <string_view>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr char kBetweenLists = '\x1D';
constexpr char kBetweenParts = '\x1E';
constexpr char kBetweenValues = '\x1F';
constexpr std::size_t kMostLists = 8;
constexpr std::size_t kLongestList = 8192;  // bytes

std::vector<std::string_view> cut(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    while (true) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

// Empty where it can not be told from another list.
std::string keyOf(const std::vector<std::string>& columns) {
    std::string key;
    for (const std::string& column : columns) {
        if (column.find_first_of("\x1D\x1E\x1F") != std::string::npos)
            return {};
        key += column + kBetweenValues;
    }
    return key.size() > kLongestList ? std::string() : key;
}

// "<columns>|<Y or N>|<choices>"
std::string textOf(const std::string& key, const ImportMapping& mapping) {
    std::string text = key + kBetweenParts + (mapping.cityStateZipSeparate ? "Y" : "N");
    text += kBetweenParts;
    for (const std::string& choice : mapping.choices)
        text += choice + kBetweenValues;
    return text;
}

}  // namespace

std::optional<ImportMapping> MappingMemory::of(const std::vector<std::string>& columns) const {
    const std::string key = keyOf(columns);
    if (key.empty())
        return std::nullopt;
    const std::string stored = settings_.read(keys::ImportMappings);
    for (const std::string_view list : cut(stored, kBetweenLists)) {
        const auto parts = cut(list, kBetweenParts);
        if (parts.size() != 3 || parts[0] != key)
            continue;
        const auto choices = cut(parts[2], kBetweenValues);
        if (choices.size() != kImportFieldCount + 1)
            continue;
        ImportMapping mapping;
        mapping.cityStateZipSeparate = parts[1] == "Y";
        std::copy_n(choices.begin(), kImportFieldCount, mapping.choices.begin());
        return mapping;
    }
    return std::nullopt;
}

void MappingMemory::remember(const std::vector<std::string>& columns,
                             const ImportMapping& mapping) {
    const std::string key = keyOf(columns);
    if (key.empty())
        return;
    std::string text = textOf(key, mapping);
    const std::string stored = settings_.read(keys::ImportMappings);
    std::size_t lists = 1;
    for (const std::string_view list : cut(stored, kBetweenLists)) {
        if (list.empty() || list.starts_with(key + kBetweenParts) || ++lists > kMostLists)
            continue;
        text += kBetweenLists;
        text += list;
    }
    ignoringErrors([&] { settings_.save(keys::ImportMappings, text); });
}

}  // namespace velmora
