#include "platform/ProfileFile.h"

#include <utility>

namespace velmora {
namespace {

constexpr char kEndOfFile = '\x1A';
constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::string_view unquoted(std::string_view text) {
    const bool quoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
                        text.front() == text.back();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view upToEndOfFile(std::string_view text) {
    return text.substr(0, text.find(kEndOfFile));
}

// Takes the first line, without its end, from `text`.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (end == std::string_view::npos)
        text = {};
    else
        text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
    return line;
}

}  // namespace

ProfileFile::ProfileFile(std::string text, const CodePage& codePage)
    : codePage_(codePage), text_(std::move(text)) {
    std::string_view rest = upToEndOfFile(text_);
    Section* section = nullptr;
    while (!rest.empty())
        take(trimmed(takeLine(rest)), section);
}

// `section` is the one under way; none in front of the first, and in one whose name was there
// before.
void ProfileFile::take(std::string_view line, Section*& section) {
    if (line.starts_with('[')) {
        const std::size_t close = line.find(']');
        if (close == std::string_view::npos)
            return;
        const auto [place, isNew] =
            sections_.try_emplace(codePage_.upper(trimmed(line.substr(1, close - 1))));
        section = isNew ? &place->second : nullptr;
        return;
    }
    const std::size_t equals = line.find('=');
    if (!section || line.starts_with(';') || equals == std::string_view::npos)
        return;
    const std::string_view name = trimmed(line.substr(0, equals));
    section->places.try_emplace(codePage_.upper(name), section->keys.size());
    section->keys.push_back({name, unquoted(trimmed(line.substr(equals + 1)))});
}

const ProfileFile::Section* ProfileFile::find(std::string_view section) const {
    const auto found = sections_.find(codePage_.upper(trimmed(section)));
    return found == sections_.end() ? nullptr : &found->second;
}

std::string ProfileFile::value(std::string_view section, std::string_view key,
                               std::string_view otherwise, std::size_t mostBytes) const {
    if (const Section* found = find(section))
        if (const auto place = found->places.find(codePage_.upper(trimmed(key)));
            place != found->places.end())
            otherwise = found->keys[place->second].value;
    return std::string(otherwise.substr(0, mostBytes));
}

std::vector<std::string> ProfileFile::keysOf(std::string_view section,
                                             std::size_t mostBytes) const {
    std::vector<std::string> names;
    const Section* found = find(section);
    if (!found)
        return names;
    for (const Key& key : found->keys) {
        if (key.name.size() + 1 > mostBytes)
            break;
        mostBytes -= key.name.size() + 1;
        names.emplace_back(key.name);
    }
    return names;
}

std::vector<std::string> ProfileFile::headerLines(std::string_view text) {
    std::vector<std::string> headers;
    text = upToEndOfFile(text);
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.starts_with('['))
            headers.emplace_back(line.substr(1, line.size() < 2 ? 0 : line.size() - 2));
    }
    return headers;
}

}  // namespace velmora
