#include "core/SettingsTable.h"

#include <algorithm>
#include <stdexcept>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr int kLastHour = 23;

constexpr std::array<std::string_view, 8> kPorts{"COM1", "COM2", "COM3", "COM4",
                                                 "COM5", "COM6", "COM7", "COM8"};

constexpr ChoiceKey kComPort{.name = keys::ComPort.name, .texts = kPorts};

// clang-format off
constexpr auto kRows = std::to_array<PreferenceRow>({
    {.key = keys::Browser, .controls = {"Text8"}, .handler = R"(http\shell\open\command)"},
    {.key = keys::EMail, .controls = {"Text11"}, .handler = R"(mailto\shell\open\command)"},
    {.key = keys::EMailSettings, .controls = {"Text12"}},
    {.key = keys::IEEnhanced, .controls = {"Check6"}},
    {.key = kComPort,
     .controls = {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6", "Option7", "Option8"},
     .storedBefore = "COM1", .shownWhenUnknown = true},
    {.key = keys::ComType, .controls = {"Option9", "Option10"}},
    {.key = keys::ComPrefix, .controls = {"Text5"}},
    {.key = keys::ComInit, .controls = {"Text1"}},
    {.key = keys::LocalAreaCode, .controls = {"Text9"}},
    {.key = keys::Dialer, .controls = {"Text14"}, .systemProgram = true},
    {.key = keys::LogPhone, .controls = {"Check3"}},
    {.key = keys::LetterTel, .controls = {"Check1"}},
    {.key = keys::LetterTab, .controls = {"Check4"}},
    {.key = keys::DefaultSalutation, .controls = {"Text6"}},
    {.key = keys::Custom1, .controls = {"Text3"}},
    {.key = keys::Custom2, .controls = {"Text2"}},
    {.key = keys::EventStart, .controls = {"Check2"}},
    {.key = keys::Wordwrap, .controls = {"Check7"}},
    {.key = keys::Header, .controls = {"Check10"}},
    {.key = keys::KeepDoc, .controls = {"Check8"}},
    {.key = keys::EnvelopePrinting, .controls = {"Option11", "Option13", "Option12"}},
    {.key = keys::EnvelopeAtTop, .controls = {"Check9"}},
    {.key = keys::CallerId, .controls = {"Check5"}},
    {.key = keys::EventDays, .controls = {"VScroll3"}},
    {.key = keys::PlannerStart, .controls = {"VScroll1"}, .hour = true},
    {.key = keys::PlannerEnd, .controls = {"VScroll2"}, .hour = true},
    {.key = keys::White, .controls = {"Text4"}},
    {.key = keys::Yellow, .controls = {"Text7"}},
    {.key = keys::Calendar, .controls = {"Text15"}},
    {.key = keys::AlarmSound, .controls = {"Text10"}, .storedWhenEmpty = "none"},
});
// clang-format on

template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

std::string_view nameOf(const PreferenceRow& row) {
    return std::visit([](const auto& key) { return key.name; }, row.key);
}

std::string textShown(const PreferenceRow& row, const TextKey& key, const SettingsStore& settings,
                      std::string_view systemFolder) {
    std::string text = settings.read(inPreferences(key));
    if (settings.has(key))
        return text;
    if (row.systemProgram)
        text.insert(0, systemFolder);
    if (!row.handler.empty()) {
        const std::string program = settings.read(TextKey{row.handler});
        text = program.substr(0, program.find(' '));
    }
    return text;
}

// 0 counts as no hour at all, and so does a text that is no number.
int hourShown(const NumberKey& key, const SettingsStore& settings) {
    const double hour = readNumber(settings.read(TextKey{key.name}));
    if (hour == 0)
        return key.shown;
    return roundToWhole(std::clamp(hour, 0.0, static_cast<double>(kLastHour)));
}

std::optional<std::size_t> choiceShown(const PreferenceRow& row, const ChoiceKey& key,
                                       const SettingsStore& settings) {
    const auto chosen = settings.read(inPreferences(key));
    return !chosen && row.shownWhenUnknown ? std::optional<std::size_t>(0) : chosen;
}

}  // namespace

std::span<const PreferenceRow> preferenceRows() {
    return kRows;
}

std::size_t preferenceRowOf(std::string_view key) {
    const auto found =
        std::ranges::find_if(kRows, [&](const PreferenceRow& row) { return nameOf(row) == key; });
    if (found == kRows.end())
        throw std::invalid_argument("no such row");
    return static_cast<std::size_t>(found - kRows.begin());
}

PreferenceRange rangeOf(const PreferenceRow& row) {
    if (row.hour)
        return {0, kLastHour};
    const auto& key = std::get<NumberKey>(row.key);
    return {key.least, key.most};
}

PreferenceValue shownValue(const PreferenceRow& row, const SettingsStore& settings,
                           std::string_view systemFolder) {
    return std::visit(Overloaded{[&](const TextKey& key) -> PreferenceValue {
                                     return textShown(row, key, settings, systemFolder);
                                 },
                                 [&](const SwitchKey& key) -> PreferenceValue {
                                     return settings.read(inPreferences(key));
                                 },
                                 [&](const NumberKey& key) -> PreferenceValue {
                                     return row.hour ? hourShown(key, settings)
                                                     : settings.read(inPreferences(key));
                                 },
                                 [&](const ChoiceKey& key) -> PreferenceValue {
                                     return choiceShown(row, key, settings);
                                 }},
                      row.key);
}

void storeValue(const PreferenceRow& row, const PreferenceValue& value, SettingsStore& settings) {
    const auto store = [&](std::string_view text) { settings.save(TextKey{nameOf(row)}, text); };
    std::visit(Overloaded{[&](const TextKey&) {
                              const auto& text = std::get<std::string>(value);
                              store(text.empty() ? row.storedWhenEmpty : text);
                          },
                          [&](const SwitchKey& key) { settings.save(key, std::get<bool>(value)); },
                          [&](const NumberKey&) { store(numberShown(row, std::get<int>(value))); },
                          [&](const ChoiceKey& key) {
                              if (!row.storedBefore.empty())
                                  store(row.storedBefore);
                              if (const auto chosen = std::get<std::optional<std::size_t>>(value))
                                  store(key.texts[*chosen]);
                          }},
               row.key);
}

std::string numberShown(const PreferenceRow& row, int number) {
    const std::string digits = std::to_string(number);
    return row.hour && digits.size() == 1 ? "0" + digits : digits;
}

}  // namespace velmora
