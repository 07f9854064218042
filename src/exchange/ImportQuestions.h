#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// What an import asks a column for.
enum class ImportField {
    Title,
    First,
    Last,
    Position,
    Company,
    Street,
    City,
    State,
    Zip,
    CityStateZip,
    Country,
    AdditionalAddress,
    Home,
    Work,
    Pager,
    Fax,
    Other,
    EMail,
    Memo,
    Salutation,
    Class,
    DateReference,
    Custom1,
    Custom2,
    Spouse,
    WebPage,
};

inline constexpr std::size_t kImportFieldCount = 26;

// The answers: how the source calls the column of each field; empty, or "None" in any case, for a
// field that stays empty.
struct ImportMapping {
    std::array<std::string, kImportFieldCount> choices;
    bool cityStateZipSeparate = false;

    [[nodiscard]] const std::string& operator[](ImportField field) const {
        return choices[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] std::string& operator[](ImportField field) {
        return choices[static_cast<std::size_t>(field)];
    }
};

// The last line of every list of columns.
inline constexpr const char* kNoColumn = "None";

// True for "None" in any case.
[[nodiscard]] bool isNoColumn(std::string_view text);

// The question for a field, as it stands above the columns.
[[nodiscard]] std::string_view questionFor(ImportField field);

// The field that is asked for first, and behind another one; nothing behind the last. Behind the
// street the user says first whether city, state and zip code are separate.
inline constexpr ImportField kFirstImportField = ImportField::Title;
[[nodiscard]] std::optional<ImportField> fieldBehind(ImportField field, bool cityStateZipSeparate);

// How far the questions have come when this one is asked, of kImportSteps.
inline constexpr int kImportSteps = 25;
[[nodiscard]] int importStepOf(ImportField field);

}  // namespace velmora
