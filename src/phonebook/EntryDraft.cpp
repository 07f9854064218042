#include "phonebook/EntryDraft.h"

#include <charconv>

#include "core/DataLocations.h"

namespace velmora {
namespace {

constexpr std::string_view kYes = "1";
constexpr std::string_view kNo = "0";

// Each text with its length in front: "5:Adair".
void put(std::string& bytes, std::string_view text) {
    bytes += std::to_string(text.size());
    bytes += ':';
    bytes += text;
}

// Cuts the next text off `rest`; nothing when there is none.
std::optional<std::string> take(std::string_view& rest) {
    std::size_t size = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), size);
    if (error != std::errc() || end == rest.data() + rest.size() || *end != ':')
        return std::nullopt;
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()) + 1);
    if (size > rest.size())
        return std::nullopt;
    std::string text(rest.substr(0, size));
    rest.remove_prefix(size);
    return text;
}

// Cuts a switch off `rest`; nothing when there is none.
std::optional<bool> takeSwitch(std::string_view& rest) {
    const auto text = take(rest);
    if (!text || (*text != kYes && *text != kNo))
        return std::nullopt;
    return *text == kYes;
}

bool isBook(const std::string& file) {
    return file == kYellowPagesFile || file == kWhitePagesFile;
}

}  // namespace

std::string bytesOf(const EntryDraft& draft) {
    std::string bytes;
    put(bytes, draft.origin.bookFile);
    put(bytes, draft.origin.line ? kYes : kNo);
    put(bytes, draft.origin.line.value_or(""));
    put(bytes, draft.values.justCompany ? kYes : kNo);
    for (const std::string& field : draft.values.fields)
        put(bytes, field);
    return bytes;
}

std::optional<EntryDraft> draftOf(std::string_view bytes) {
    const auto book = take(bytes);
    const auto changes = takeSwitch(bytes);
    const auto line = take(bytes);
    const auto justCompany = takeSwitch(bytes);
    if (!book || !isBook(*book) || !changes || !line || !justCompany)
        return std::nullopt;
    EntryDraft draft;
    draft.origin = {*book, *changes ? line : std::nullopt};
    draft.values.justCompany = *justCompany;
    for (std::string& field : draft.values.fields) {
        const auto text = take(bytes);
        if (!text)
            return std::nullopt;
        field = *text;
    }
    return bytes.empty() ? std::optional(draft) : std::nullopt;
}

}  // namespace velmora
