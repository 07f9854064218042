#include "platform/access/AccessFile.h"

// clang-format off
// In this order: mdbtools.h includes the other inside extern "C", which C++ refuses.
#include <glib.h>
#include <mdbtools.h>
// clang-format on

#include <algorithm>
#include <optional>

#include "platform/Failure.h"
#include "platform/access/AccessValue.h"

namespace velmora::access {

namespace {

constexpr std::size_t kLongestValue = 1 << 20;

struct TableCloser {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
using Table = std::unique_ptr<MdbTableDef, TableCloser>;

AccessType typeOf(const MdbColumn& column) {
    switch (column.col_type) {
        case MDB_TEXT:
        case MDB_MEMO:
            return AccessType::Text;
        case MDB_BYTE:
        case MDB_INT:
        case MDB_LONGINT:
        case MDB_MONEY:
        case MDB_FLOAT:
        case MDB_DOUBLE:
        case MDB_NUMERIC:
            return AccessType::Number;
        case MDB_BOOL:
            return AccessType::Boolean;
        case MDB_DATETIME:
            return AccessType::DateTime;
        default:
            return AccessType::Other;
    }
}

MdbColumn& columnAt(const MdbTableDef& table, std::size_t index) {
    return *static_cast<MdbColumn*>(g_ptr_array_index(table.columns, index));
}

Table openTable(MdbCatalogEntry* entry) {
    Table table(mdb_read_table(entry));
    if (!table || !mdb_read_columns(table.get()))
        throw Failure("A table of the Access database can not be read.");
    return table;
}

std::vector<MdbCatalogEntry*> tableEntries(MdbHandle* handle) {
    std::vector<MdbCatalogEntry*> entries;
    for (unsigned i = 0; i < handle->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(handle->catalog, i));
        if (entry->object_type == MDB_TABLE)
            entries.push_back(entry);
    }
    return entries;
}

// Which values of the row just fetched are Null: the library itself gives no text for both.
std::vector<bool> nullsOfRow(MdbTableDef* table) {
    std::vector<bool> nulls(table->num_cols, true);
    int start = 0;
    std::size_t size = 0;
    if (mdb_find_row(table->entry->mdb, static_cast<int>(table->cur_row) - 1, &start, &size) != 0)
        return nulls;
    MdbField fields[MDB_MAX_COLS];
    const int count = mdb_crack_row(table, start & 0x1FFF, size, fields);
    for (int i = 0; i < count; ++i)
        if (fields[i].colnum >= 0 && static_cast<unsigned>(fields[i].colnum) < table->num_cols)
            nulls[static_cast<std::size_t>(fields[i].colnum)] = fields[i].is_null != 0;
    return nulls;
}

class RowReader {
  public:
    explicit RowReader(MdbTableDef* table) : table_(table), lengths_(table->num_cols, 0) {
        for (unsigned i = 0; i < table->num_cols; ++i) {
            types_.push_back(typeOf(columnAt(*table, i)));
            if (types_.back() == AccessType::Other) {
                buffers_.emplace_back();
                continue;
            }
            // Left unset, so that only what a value fills becomes memory.
            buffers_.push_back(std::make_unique_for_overwrite<char[]>(kLongestValue));
            mdb_bind_column(table, static_cast<int>(i) + 1, buffers_.back().get(), &lengths_[i]);
        }
    }

    [[nodiscard]] AccessRow row() {
        const std::vector<bool> nulls = nullsOfRow(table_);
        AccessRow values(types_.size());
        for (std::size_t i = 0; i < types_.size(); ++i)
            values[i] = value(i, nulls[i]);
        return values;
    }

  private:
    [[nodiscard]] std::optional<std::string> value(std::size_t i, bool isNull) {
        const MdbColumn& column = columnAt(*table_, i);
        switch (types_[i]) {
            case AccessType::Other:
                return std::nullopt;
            case AccessType::Boolean:
                // This type keeps its value where the others keep whether they are Null.
                return isNull ? "False" : "True";
            case AccessType::DateTime:
                if (isNull || column.cur_value_start <= 0 ||
                    column.cur_value_start + 8 > static_cast<int>(MDB_PGSIZE))
                    return std::nullopt;
                return momentText(
                    mdb_get_double(table_->entry->mdb->pg_buf, column.cur_value_start));
            case AccessType::Text:
                return isNull ? std::nullopt : std::optional(bound(i));
            case AccessType::Number:
                return isNull ? std::nullopt : std::optional(plainNumber(bound(i)));
        }
        return std::nullopt;
    }

    [[nodiscard]] std::string bound(std::size_t i) const {
        const auto length = static_cast<std::size_t>(std::max(0, lengths_[i]));
        return {buffers_[i].get(), std::min(length, kLongestValue)};
    }

    MdbTableDef* table_;
    std::vector<AccessType> types_;
    std::vector<std::unique_ptr<char[]>> buffers_;
    std::vector<int> lengths_;
};

}  // namespace

void AccessFile::Closer::operator()(void* handle) const {
    mdb_close(static_cast<MdbHandle*>(handle));
}

AccessFile::AccessFile(const std::string& path) {
    MdbHandle* handle = mdb_open(path.c_str(), MDB_NOFLAGS);
    handle_.reset(handle);
    if (!handle)
        throw Failure("\"" + path + "\" is no Access database.");
    mdb_set_bind_size(handle, kLongestValue);
    if (!mdb_read_catalog(handle, MDB_ANY))
        throw Failure("\"" + path + "\" is an Access database that can not be read.");
}

std::vector<AccessTable> AccessFile::tables() {
    std::vector<AccessTable> result;
    for (MdbCatalogEntry* entry : tableEntries(static_cast<MdbHandle*>(handle_.get()))) {
        const Table table = openTable(entry);
        AccessTable& described = result.emplace_back();
        described.name = entry->object_name;
        described.isSystem = mdb_is_user_table(entry) == 0;
        for (unsigned i = 0; i < table->num_cols; ++i) {
            const MdbColumn& column = columnAt(*table, i);
            described.fields.push_back({column.name, typeOf(column)});
        }
    }
    return result;
}

void AccessFile::readRows(const std::string& table,
                          const std::function<void(const AccessRow&)>& take) {
    for (MdbCatalogEntry* entry : tableEntries(static_cast<MdbHandle*>(handle_.get()))) {
        if (table != entry->object_name)
            continue;
        const Table opened = openTable(entry);
        RowReader reader(opened.get());
        mdb_rewind_table(opened.get());
        while (mdb_fetch_row(opened.get()))
            take(reader.row());
        return;
    }
    throw Failure("The Access database has no table \"" + table + "\".");
}

}  // namespace velmora::access
