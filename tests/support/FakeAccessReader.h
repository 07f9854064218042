#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/AccessTableReader.h"
#include "platform/Failure.h"

namespace velmora::test {

// Gives prepared tables and the rows of the one named `appoint`, whatever file is asked for.
class FakeAccessReader final : public AccessTableReader {
  public:
    [[nodiscard]] std::vector<AccessTable> tables(const NativePath&) override {
        if (damaged)
            throw Failure("The Access database is damaged and can not be read.");
        return described;
    }
    void readRows(const NativePath&, const std::string& table,
                  const std::function<void(const AccessRow&)>& take) override {
        asked.push_back(table);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (beforeRow)
                beforeRow(i);
            take(rows[i]);
        }
        if (atEnd)
            atEnd();
    }

    bool damaged = false;
    std::vector<AccessTable> described{{"MSysObjects", {}, true},
                                       {"Appoint",
                                        {{"ID", AccessType::Number},
                                         {"TagVariant", AccessType::DateTime},
                                         {"Date", AccessType::DateTime},
                                         {"BeginTime", AccessType::Text},
                                         {"EndTime", AccessType::Text},
                                         {"desc", AccessType::Text},
                                         {"StyleSet", AccessType::Text}},
                                        false}};
    std::vector<AccessRow> rows;
    std::vector<std::string> asked;
    std::function<void(std::size_t)> beforeRow;
    std::function<void()> atEnd;
};

}  // namespace velmora::test
