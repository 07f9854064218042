#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "exchange/ImportSource.h"
#include "platform/AccessTableReader.h"
#include "platform/CodePage.h"
#include "platform/NativePath.h"

namespace velmora {

// Makes a reader that calls `whileWaiting` at least some ten times a second as long as nothing
// comes; a Failure from it ends the reading and passes through.
using MakeAccessReader =
    std::function<std::unique_ptr<AccessTableReader>(std::function<void()> whileWaiting)>;

// The tables of a database that an import may be asked for: those of its user. A table whose name
// begins with "MS", in any case, counts as the system's own.
[[nodiscard]] std::vector<AccessTable> importableTables(std::vector<AccessTable> tables);

// A value of a field as an import takes it over, before it is trimmed, in UTF-8: a date as
// "3/9/2026", with its time where that is not midnight, a number with at most 15 digits.
[[nodiscard]] std::string importedValue(const std::string& value, AccessType type);

// A table of an Access database as an import reads it.
class TableSource final : public ImportSource {
  public:
    // `goOn` lets events run while the table is read; false from it ends the reading with a
    // Failure. `codePage` must outlive the source.
    TableSource(NativePath file, AccessTable table, MakeAccessReader makeReader,
                std::function<bool()> goOn, const CodePage& codePage);

    [[nodiscard]] const std::vector<std::string>& columns() const override { return columns_; }
    // Its name.
    [[nodiscard]] std::string choiceOf(std::size_t column) const override {
        return columns_[column];
    }
    [[nodiscard]] const std::vector<std::vector<std::string>>& firstRows() const override {
        return firstRows_;
    }
    [[nodiscard]] const std::string& remark() const override { return remark_; }
    void readRows(const std::function<bool(const ImportRow&)>& take) override;
    [[nodiscard]] Progress progress() const override { return {}; }
    [[nodiscard]] std::uint64_t replacedCharacters() const override { return replaced_; }

  private:
    [[nodiscard]] std::string toText(const std::string& utf8);

    NativePath file_;
    AccessTable table_;
    MakeAccessReader makeReader_;
    std::function<bool()> goOn_;
    const CodePage& codePage_;
    std::vector<std::string> columns_;
    std::vector<std::vector<std::string>> firstRows_;  // there are none
    std::string remark_;
    std::uint64_t replaced_ = 0;
};

}  // namespace velmora
