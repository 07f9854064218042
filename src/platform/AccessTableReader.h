#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/NativePath.h"

namespace velmora {

enum class AccessType {
    Text,      // memos too; lines as they are stored
    Number,    // plain decimal text with "." and no zeros at its end
    Boolean,   // "True" or "False"
    DateTime,  // "yyyy-mm-dd hh:mm:ss", cut to the second
    Other,     // not read: the value is always Null
};

struct AccessField {
    std::string name;
    AccessType type = AccessType::Other;

    bool operator==(const AccessField&) const = default;
};

struct AccessTable {
    std::string name;
    std::vector<AccessField> fields;
    bool isSystem = false;  // made by Access itself, not by its user

    bool operator==(const AccessTable&) const = default;
};

// The values of a row in the order of the table's fields; Null is told from the empty text.
using AccessRow = std::vector<std::optional<std::string>>;

// Reads Access databases (97 to 2019) that were made elsewhere, whatever is in them: a damaged or
// foreign file is a Failure, never worse, and no file is ever written. All text is UTF-8.
class AccessTableReader {
  public:
    virtual ~AccessTableReader() = default;

    // All tables in the order of the file, the system's own too. Throws Failure.
    [[nodiscard]] virtual std::vector<AccessTable> tables(const NativePath& path) = 0;

    // Hands on the rows of a table, whose name counts in its exact spelling, in the order of the
    // file. Throws Failure, possibly after some rows; a Failure from `take` passes through.
    virtual void readRows(const NativePath& path, const std::string& table,
                          const std::function<void(const AccessRow&)>& take) = 0;
};

}  // namespace velmora
