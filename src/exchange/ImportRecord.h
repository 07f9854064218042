#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "exchange/ImportQuestions.h"
#include "exchange/ImportSource.h"
#include "phonebook/PhonebookRecord.h"

namespace velmora {

// Makes entries of the rows of a source.
class ImportRecord {
  public:
    // The columns that the mapping names, as the source has them.
    ImportRecord(const ImportMapping& mapping, const ImportSource& source);

    // Every field is assigned; a value that is too long for its field is cut.
    [[nodiscard]] PhonebookRecord of(const ImportRow& row);

    // So many values were cut until now.
    [[nodiscard]] std::uint64_t cut() const { return cut_; }

  private:
    [[nodiscard]] std::optional<std::string_view> value(ImportField field,
                                                        const ImportRow& row) const;
    [[nodiscard]] std::string cityLine(const ImportRow& row) const;
    void assign(PhonebookRecord& record, Field field, std::string_view value);

    std::array<std::optional<std::size_t>, kImportFieldCount> columns_;
    bool cityStateZipSeparate_;
    std::uint64_t cut_ = 0;
};

}  // namespace velmora
