#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// The values of a row, trimmed, in code-page text, in the order of the source's columns. Null is
// nothing. Valid for as long as the row is being looked at.
using ImportRow = std::vector<std::optional<std::string_view>>;

// What an import reads: a table with columns.
class ImportSource {
  public:
    // So far an import has come.
    struct Progress {
        std::uint64_t done = 0;
        std::uint64_t all = 0;  // 0 when nobody knows
    };

    virtual ~ImportSource() = default;

    // The names of the columns, in code-page text.
    [[nodiscard]] virtual const std::vector<std::string>& columns() const = 0;

    // How the answer to a question names the column at this place, from 0.
    [[nodiscard]] virtual std::string choiceOf(std::size_t column) const = 0;

    // The first rows, for the user to look at; none where they can not be had for nothing.
    [[nodiscard]] virtual const std::vector<std::vector<std::string>>& firstRows() const = 0;

    // What the user has to know before the first question, or nothing.
    [[nodiscard]] virtual const std::string& remark() const = 0;

    // Hands on the rows from the first to the last, until `take` says false. Throws Failure,
    // possibly after some rows.
    virtual void readRows(const std::function<bool(const ImportRow&)>& take) = 0;

    // While the rows are read.
    [[nodiscard]] virtual Progress progress() const = 0;

    // So many characters had no place in the code page and became "?", in all that has been read.
    [[nodiscard]] virtual std::uint64_t replacedCharacters() const = 0;
};

}  // namespace velmora
