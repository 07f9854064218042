#pragma once

#include <string>
#include <string_view>

#include "core/DataLocations.h"
#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "phonebook/FileBooks.h"
#include "phonebook/PhonebookStore.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"

namespace velmora::test {

// A record as the entry form writes it: every field is assigned.
inline PhonebookRecord formRecord(std::string_view last, std::string_view first,
                                  std::string_view company = "", std::string_view memo = "") {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), "");
    record.assign(Field::Last, last);
    record.assign(Field::First, first);
    record.assign(Field::Company, company);
    record.assign(Field::Memo, memo);
    return record;
}

inline PhonebookRecord personRecord(std::string_view last, std::string_view first,
                                    std::string_view memo = "") {
    return formRecord(last, first, "", memo);
}

inline PhonebookRecord companyRecord(std::string_view company, std::string_view memo = "") {
    return formRecord("", "", company, memo);
}

inline std::string bytesOf(const PhonebookRecord& record) {
    return {record.bytes().data(), record.bytes().size()};
}

// The bytes of a deleted entry.
inline std::string tombstoneBytes() {
    return std::string(15, '\0') + "DELETED" + std::string(13, ' ') + std::string(1560, '\0');
}

// Both books in memory, in the program's folder "/velmora".
struct PhonebookFixture {
    MemorySettings medium;
    SettingsStore settings{medium};
    MemoryFiles files;
    const CodePage& codePage = CodePage::western();
    DataLocations locations{"/velmora", settings, files, codePage};
    FileBooks books{files, locations,
                    [this](const std::string& path) { return files.stampOf(path); }};
    PhonebookStore store{books, codePage};
    SharedState state;

    std::string& yellow() { return files["/velmora\\DATAY.QEL"]; }
    std::string& white() { return files["/velmora\\DATAW.QEL"]; }

    // The bytes of slot `number`, from 1.
    static std::string slot(const std::string& book, std::size_t number) {
        return book.substr((number - 1) * kRecordSize, kRecordSize);
    }
};

}  // namespace velmora::test
