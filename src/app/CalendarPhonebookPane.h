#pragma once

#include "core/forms/Calendar.h"
#include "phonebook/PhonebookPane.h"

namespace velmora {

// The phonebook's parts of the main window, as the phonebook sees them.
class CalendarPhonebookPane final : public PhonebookPane {
  public:
    explicit CalendarPhonebookPane(Calendar& calendar) : calendar_(calendar) {}

    void clearList() override;
    void addLines(std::vector<std::string> lines) override;
    [[nodiscard]] std::string selectedLine() const override;
    bool selectLine(const std::string& line) override;
    void showDetails(const std::string& text) override;
    void showBookLabels(bool yellow, bool white) override;
    void showLetter(int index) override;
    void showBook(std::int16_t kind) override;

  private:
    Calendar& calendar_;
};

}  // namespace velmora
