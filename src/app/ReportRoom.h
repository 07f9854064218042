#pragma once

#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/forms/Calendar.h"
#include "phonebook/PhonebookStore.h"
#include "platform/qt/QtPrintTargets.h"
#include "reports/Reports.h"
#include "reports/forms/Form6.h"

namespace velmora {

// The size of DocPad's text on the screen, as listings see it.
class DocPadSizeOnScreen final : public EditorSize {
  public:
    DocPadSizeOnScreen(CalendarTextFonts& fonts, const CodePage& codePage)
        : fonts_(fonts), codePage_(codePage) {}

    [[nodiscard]] float editorSize() const override;
    void setEditorSize(float points) override;

  private:
    CalendarTextFonts& fonts_;
    const CodePage& codePage_;
};

// Connects the print dialog and the reports of the books with the main window.
class ReportRoom {
  public:
    // All must outlive the room.
    ReportRoom(World& world, Calendar& calendar, const PhonebookStore& store, PrintJobs& printing,
               Reports::Actions actions);

    void bindCommands(CommandSet& commands);

    // Opens the print dialog for the listing.
    void openListing() { open(ReportKind::Listing); }

  private:
    void open(ReportKind kind);
    void openMerge();
    [[nodiscard]] Form6& form();

    Calendar& calendar_;
    PrintJobs& printing_;
    DocPadSizeOnScreen editor_;
    Reports reports_;
    QtPrintTargets targets_;
    const CodePage& codePage_;
    std::unique_ptr<Form6> form_;  // made when it is wanted
};

}  // namespace velmora
