#pragma once

#include <string>
#include <vector>

#include "platform/CodePage.h"

namespace velmora {

// The order of the entry list: by upper-cased bytes, whatever the locale; lines that are then
// equal keep the order in which they came.
class ListOrder {
  public:
    // `codePage` must outlive this object.
    explicit ListOrder(const CodePage& codePage) : codePage_(codePage) {}

    // True when `a` stands before `b`.
    [[nodiscard]] bool before(const std::string& a, const std::string& b) const {
        return codePage_.compareIgnoringCase(a, b) < 0;
    }

    void sort(std::vector<std::string>& lines) const;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
