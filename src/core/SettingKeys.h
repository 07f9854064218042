#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

// Every key of the settings: what kind of value lies under it, what its readers take for an empty
// one, and what Preferences shows for an empty one, which is not always the same. No other file
// holds the name of a key.
namespace velmora {

// A text, as it is stored.
struct TextKey {
    std::string_view name;
    std::string_view otherwise{};  // for an empty value
    std::string_view shown{};      // in Preferences for an empty value
    bool trimmed = false;          // of blanks, before it is looked at
};

// How a value is compared with what it may be.
enum class Comparison {
    Exact,
    AnyCase,   // and without the blanks around it
    AsNumber,  // by the number that the text begins with
};

// The two texts of a switch.
struct SwitchTexts {
    std::string_view on;
    std::string_view off;
};
inline constexpr SwitchTexts kYesNo{"YES", "NO"};
inline constexpr SwitchTexts kOnOff{"ON", "OFF"};
inline constexpr SwitchTexts kOneZero{"1", "0"};

// On or off. A value that is not the text for on is off.
struct SwitchKey {
    std::string_view name;
    SwitchTexts texts;
    Comparison comparison = Comparison::AnyCase;
    bool otherwise = false;
    bool shown = false;
};

// A whole number in decimal digits; a text that begins with none is 0.
struct NumberKey {
    std::string_view name;
    int otherwise = 0;
    int shown = 0;
    bool emptyAtZero = false;  // 0 counts as the empty value
    int least = std::numeric_limits<int>::min();
    int most = std::numeric_limits<int>::max();
};

// One of a few texts, told by its place among them, from 0.
struct ChoiceKey {
    std::string_view name;
    std::span<const std::string_view> texts;
    Comparison comparison = Comparison::AnyCase;
    std::size_t otherwise = 0;
    std::size_t shown = 0;
};

// A font: its face, its size in points and its colour as a decimal number.
struct FontKey {
    TextKey face;
    TextKey size;
    TextKey colour;
};

// Keys that are made while the program runs: they begin with `prefix`.
struct KeyFamily {
    std::string_view prefix;
};

// The key as Preferences reads it.
template <typename Key>
constexpr Key inPreferences(Key key) {
    key.otherwise = key.shown;
    if constexpr (requires { key.comparison; }) {
        if (key.comparison == Comparison::Exact)
            key.comparison = Comparison::AnyCase;
    }
    return key;
}

namespace keys {

// Folders, without a separator at their end; the program's folder where there is none.
inline constexpr TextKey White{.name = "White", .trimmed = true};
inline constexpr TextKey Yellow{.name = "Yellow", .trimmed = true};
inline constexpr TextKey Calendar{.name = "Calendar", .trimmed = true};

// The main window.
inline constexpr SwitchKey TwentyFourHours{.name = "24hr", .texts = kYesNo};
inline constexpr TextKey WindowShape{.name = "WindowShape"};

// The planner. The hours are the first and the last line of a day.
inline constexpr NumberKey PlannerStart{.name = "PlannerStart", .emptyAtZero = true};
inline constexpr NumberKey PlannerEnd{
    .name = "PlannerEnd", .otherwise = 23, .shown = 23, .emptyAtZero = true};
inline constexpr SwitchKey EventStart{.name = "EventStart", .texts = kOneZero, .otherwise = true};
// As far as the list looks ahead at most: some hundred years.
inline constexpr NumberKey EventDays{.name = "EventDays", .least = 0, .most = 36525};
inline constexpr TextKey AlarmSound{.name = "AlarmSound", .shown = "none"};
// What a session could not store, for the next one.
inline constexpr TextKey UnstoredAppointments{.name = "UnstoredAppointments"};

// DocPad.
inline constexpr SwitchKey KeepDoc{.name = "KeepDoc", .texts = kOneZero};
inline constexpr TextKey Doc{.name = "Doc"};
inline constexpr SwitchKey Wordwrap{.name = "Wordwrap", .texts = kOneZero};
inline constexpr SwitchKey Header{.name = "Header", .texts = kOneZero, .otherwise = true};

// Fonts that the user chose; the planner's has no colour to store, but one that is stored counts.
inline constexpr FontKey DocFont{{"DocFont"}, {"DocFontS"}, {"DocFontC"}};
inline constexpr FontKey PlanFont{{"PlanFont"}, {"PlanFontS"}, {"PlanFontC"}};
inline constexpr FontKey ListFont{{"ListFont"}, {"ListFontS"}, {"ListFontC"}};

// The telephone. Of the port's name the last character counts.
inline constexpr TextKey ComPort{.name = "ComPort", .shown = "COM1", .trimmed = true};
inline constexpr std::array<std::string_view, 2> kDialModes{"Tone", "Pulse"};
inline constexpr ChoiceKey ComType{
    .name = "ComType", .texts = kDialModes, .comparison = Comparison::Exact};
inline constexpr TextKey ComPrefix{.name = "ComPrefix"};
inline constexpr TextKey ComInit{.name = "ComInit", .trimmed = true};
inline constexpr TextKey LocalAreaCode{.name = "LocalAreaCode", .trimmed = true};
inline constexpr SwitchKey LogPhone{
    .name = "LogPhone", .texts = kOneZero, .comparison = Comparison::AsNumber};
inline constexpr SwitchKey CallerId{.name = "CallerID", .texts = kOnOff};
// As the start reads it, which decides for the whole session.
inline constexpr SwitchKey CallerIdAtStart{
    .name = CallerId.name, .texts = kOnOff, .comparison = Comparison::Exact};
// The default lies in the folder of the system's programs.
inline constexpr TextKey Dialer{
    .name = "Dialer", .otherwise = "\\dialer.exe", .shown = "\\dialer.exe", .trimmed = true};
inline constexpr TextKey LastNumber{.name = "LastNumber"};
// The folder of an outside fax program, its last separator included.
inline constexpr TextKey FaxProgramFolder{.name = "Destination"};

// E-mail and web.
inline constexpr SwitchKey IEEnhanced{.name = "IEEnhanced", .texts = kYesNo, .shown = true};
inline constexpr TextKey Browser{.name = "Browser"};
inline constexpr TextKey EMail{.name = "EMail"};
inline constexpr TextKey EMailSettings{.name = "EMailSettings", .shown = "/n"};

// Entries, letters and envelopes. The captions of the two custom fields differ by where they stand.
inline constexpr TextKey Custom1{.name = "Custom1", .otherwise = "Custom1", .trimmed = true};
inline constexpr TextKey Custom2{.name = "Custom2", .otherwise = "Custom2", .trimmed = true};
inline constexpr TextKey Custom1OnForm{
    .name = Custom1.name, .otherwise = "Custom1:", .trimmed = true};
inline constexpr TextKey Custom2OnForm{
    .name = Custom2.name, .otherwise = "Custom2", .trimmed = true};
inline constexpr TextKey Custom1InExport{.name = Custom1.name};
inline constexpr TextKey Custom2InExport{.name = Custom2.name};
inline constexpr TextKey Custom1InSearch{
    .name = Custom1.name, .otherwise = "Custom 1", .trimmed = true};
inline constexpr TextKey Custom2InSearch{
    .name = Custom2.name, .otherwise = "Custom 2", .trimmed = true};
inline constexpr TextKey DefaultSalutation{.name = "DefaultSal"};
inline constexpr SwitchKey LetterTab{
    .name = "LetterTab", .texts = kOneZero, .comparison = Comparison::AsNumber};
inline constexpr SwitchKey LetterTel{.name = "LetterTel", .texts = kOneZero, .otherwise = true};
inline constexpr std::array<std::string_view, 3> kEnvelopePositions{"Left", "Center", "Right"};
inline constexpr ChoiceKey EnvelopePrinting{
    .name = "EnvelopePrinting", .texts = kEnvelopePositions, .otherwise = 1, .shown = 1};
inline constexpr SwitchKey EnvelopeAtTop{
    .name = "EnvTop", .texts = kOnOff, .comparison = Comparison::Exact};

// The lines of an envelope: the return address, and the fonts of its lines and of the address's.
inline constexpr std::array<TextKey, 4> Return{
    {{"Return1"}, {"Return2"}, {"Return3"}, {"Return4"}}};
inline constexpr std::array<FontKey, 4> ReturnFonts{{{{"RFont1"}, {"RFontS1"}, {"RFontC1"}},
                                                     {{"RFont2"}, {"RFontS2"}, {"RFontC2"}},
                                                     {{"RFont3"}, {"RFontS3"}, {"RFontC3"}},
                                                     {{"RFont4"}, {"RFontS4"}, {"RFontC4"}}}};
inline constexpr std::array<FontKey, 7> AddressFonts{{{{"AFont2"}, {"AFontS2"}, {"AFontC2"}},
                                                      {{"AFont3"}, {"AFontS3"}, {"AFontC3"}},
                                                      {{"AFont4"}, {"AFontS4"}, {"AFontC4"}},
                                                      {{"AFont5"}, {"AFontS5"}, {"AFontC5"}},
                                                      {{"AFont6"}, {"AFontS6"}, {"AFontC6"}},
                                                      {{"AFont10"}, {"AFontS10"}, {"AFontC10"}},
                                                      {{"AFont11"}, {"AFontS11"}, {"AFontC11"}}}};

// Which columns of which list were taken for what, in the imports of late.
inline constexpr TextKey ImportMappings{.name = "ImportMappings"};

// The numbered lists: planner/ListShapes.h has what stands behind.
inline constexpr KeyFamily Alarms{"Alarms\\"};
inline constexpr KeyFamily Tasks{"Tasks\\"};
inline constexpr KeyFamily Weekly{"Weekly\\"};
inline constexpr KeyFamily Monthly{"Monthly\\"};
inline constexpr KeyFamily Events{"Events\\"};

}  // namespace keys

}  // namespace velmora
