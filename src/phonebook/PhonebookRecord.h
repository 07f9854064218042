#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

// The 26 fields of an entry in the order in which they lie in a record.
enum class Field {
    First,
    Last,
    Title,
    Company,
    Position,
    Address1,
    Address2,
    Address3,
    Address4,
    Country,
    PostalCode,
    Phone,
    WorkPhone,
    Fax,
    Pager,
    OtherPhone,
    EMail,
    WebPage,
    Salutation,
    Class,
    Memo,
    DateReference,
    Custom1,
    Custom2,
    FileAttachment,
    Spouse,
};

inline constexpr std::size_t kFieldCount = 26;
inline constexpr std::size_t kRecordSize = 1595;

struct FieldPlace {
    std::size_t offset;
    std::size_t width;
};

inline constexpr std::array<FieldPlace, kFieldCount> kFieldPlaces{{
    {0, 15},    {15, 20},   {35, 10},   {45, 50},    {95, 60},   {155, 75}, {230, 75},
    {305, 75},  {380, 75},  {455, 50},  {505, 30},   {535, 20},  {555, 20}, {575, 20},
    {595, 25},  {620, 20},  {640, 100}, {740, 200},  {940, 30},  {970, 25}, {995, 250},
    {1245, 20}, {1265, 25}, {1290, 25}, {1315, 255}, {1570, 25},
}};

[[nodiscard]] constexpr FieldPlace placeOf(Field field) {
    return kFieldPlaces[static_cast<std::size_t>(field)];
}

// One entry as it lies on disk: 1595 bytes, 26 fixed-width fields of code-page text, no
// separators. A fresh record is all NULs.
class PhonebookRecord {
  public:
    PhonebookRecord() { bytes_.fill('\0'); }

    // `bytes` may be short: what is missing reads as NUL.
    explicit PhonebookRecord(std::span<const char> bytes);

    [[nodiscard]] std::span<const char, kRecordSize> bytes() const { return bytes_; }

    // The bytes of a field, all of its width.
    [[nodiscard]] std::string_view raw(Field field) const;

    // A field as readers see it: padding and leading blanks off.
    [[nodiscard]] std::string_view text(Field field) const;

    // Pads with blanks, cuts what is too long.
    void assign(Field field, std::string_view value);

  private:
    std::array<char, kRecordSize> bytes_;
};

}  // namespace velmora
