#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "app/CalendarPhonebookPane.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "docpad/forms/FontDialog.h"
#include "phonebook/SelectedEntry.h"
#include "platform/qt/QtPrintTargets.h"
#include "reports/EntryPrint.h"
#include "reports/EnvelopeEditor.h"
#include "reports/forms/Envelope.h"

namespace velmora {

// Connects what is printed of the selected entry, its sheet and its envelope, with the main window.
class PaperRoom {
  public:
    // All must outlive the room.
    PaperRoom(World& world, SharedState& state, Calendar& calendar, const PhonebookStore& store,
              PrintJobs& printing, std::function<void()> openPreferences);

    void bindCommands(CommandSet& commands);

    // Settings have changed that an open envelope shows.
    void showEnvelopeAnew();

  private:
    [[nodiscard]] Envelope& envelope();

    World& world_;
    Calendar& calendar_;
    std::function<void()> openPreferences_;
    CalendarPhonebookPane pane_;
    SelectedEntry entry_;
    EntryPrint entryPrint_;
    QtFontQuestion fonts_;
    QtPrintTargets targets_;
    EnvelopeEditor editor_;
    std::unique_ptr<Envelope> form_;  // from its opening until it is cancelled or closed
    QObject connections_;             // ends them all before what they call is gone
};

}  // namespace velmora
