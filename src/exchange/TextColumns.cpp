#include "exchange/TextColumns.h"

#include "platform/Text.h"

namespace velmora {

bool splitColumns(std::string_view line, char separator, std::vector<std::string_view>& columns) {
    columns.clear();
    while (columns.size() < kMostColumns) {
        const std::size_t end = line.find(separator);
        columns.push_back(trimBlanks(line.substr(0, end)));
        if (end == std::string_view::npos)
            return true;
        line.remove_prefix(end + 1);
    }
    return false;
}

}  // namespace velmora
