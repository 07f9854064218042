#include "core/SettingsStore.h"

#include <algorithm>
#include <utility>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

std::string inForm(const TextKey& key, std::string value) {
    return key.trimmed ? std::string(trimBlanks(value)) : std::move(value);
}

std::string valueOf(const TextKey& key, std::string stored) {
    std::string value = inForm(key, std::move(stored));
    return value.empty() ? std::string(key.otherwise) : value;
}

// The switches and choices are texts of A to Z, which are the same in every code page.
std::string upper(std::string_view text) {
    return CodePage::western().upper(trimBlanks(text));
}

bool matches(std::string_view value, std::string_view text, Comparison comparison) {
    switch (comparison) {
        case Comparison::Exact:
            return value == text;
        case Comparison::AnyCase:
            return upper(value) == upper(text);
        case Comparison::AsNumber:
            return readNumber(value) == readNumber(text);
    }
    return false;
}

}  // namespace

void SettingsStore::Delete(std::string_view key) {
    ignoringErrors([&] { medium_.remove(key); });
}

std::string SettingsStore::read(const TextKey& key) const {
    return valueOf(key, medium_.read(key.name));
}

std::string SettingsStore::readOrFail(const TextKey& key) const {
    return valueOf(key, medium_.readOrFail(key.name));
}

bool SettingsStore::has(const TextKey& key) const {
    return !inForm(key, Read(key.name)).empty();
}

bool SettingsStore::read(const SwitchKey& key) const {
    const std::string value = Read(key.name);
    return value.empty() ? key.otherwise : matches(value, key.texts.on, key.comparison);
}

int SettingsStore::read(const NumberKey& key) const {
    const std::string value = Read(key.name);
    const int number = value.empty() ? key.otherwise : readWhole(value);
    const bool empty = key.emptyAtZero && number == 0;
    return std::clamp(empty ? key.otherwise : number, key.least, key.most);
}

std::optional<std::size_t> SettingsStore::read(const ChoiceKey& key) const {
    const std::string value = Read(key.name);
    const bool empty =
        key.comparison == Comparison::Exact ? value.empty() : trimBlanks(value).empty();
    if (empty)
        return key.otherwise;
    for (std::size_t i = 0; i < key.texts.size(); ++i)
        if (matches(value, key.texts[i], key.comparison))
            return i;
    return std::nullopt;
}

void SettingsStore::save(const SwitchKey& key, bool on) {
    medium_.save(key.name, on ? key.texts.on : key.texts.off);
}

}  // namespace velmora
