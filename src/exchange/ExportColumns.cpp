#include "exchange/ExportColumns.h"

namespace velmora {

bool isExportHeader(std::string_view line) {
    if (!line.starts_with(kExportColumns[0].header))
        return false;
    line.remove_prefix(kExportColumns[0].header.size());
    const std::size_t second = line.find(kExportColumns[1].header);
    if (second == std::string_view::npos)
        return false;
    const std::string_view separator = line.substr(0, second);
    for (std::size_t i = 1; i < kExportColumns.size() && !kExportColumns[i].header.empty(); ++i) {
        if (!line.starts_with(separator))
            return false;
        line.remove_prefix(separator.size());
        if (!line.starts_with(kExportColumns[i].header))
            return false;
        line.remove_prefix(kExportColumns[i].header.size());
    }
    return line.starts_with(separator) && line.ends_with(kExportColumns.back().header);
}

}  // namespace velmora
