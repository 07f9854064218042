#pragma once

#include <QObject>
#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "docpad/ClipboardCommands.h"
#include "docpad/DialogState.h"
#include "docpad/DocPad.h"
#include "docpad/DocPadView.h"
#include "docpad/FontCommand.h"
#include "docpad/PadPrint.h"
#include "docpad/PadSearch.h"
#include "docpad/RecoveryFile.h"
#include "docpad/Trash.h"
#include "docpad/forms/FocusedWidget.h"
#include "docpad/forms/FontDialog.h"
#include "docpad/forms/PadEditFont.h"
#include "docpad/forms/PadEditText.h"
#include "docpad/forms/RecoveryTimer.h"
#include "docpad/forms/TextSearch.h"
#include "docpad/forms/TrashPictures.h"
#include "phonebook/EntryCommands.h"
#include "telephony/PhoneLog.h"
#include "telephony/PhoneLogViewer.h"

namespace velmora {

// DocPad's captions in the main window.
class CalendarDocPadView final : public DocPadView {
  public:
    explicit CalendarDocPadView(Calendar& calendar) : calendar_(calendar) {}

    void setTitle(const std::string& text) override;
    void announce(const std::string& text) override;
    [[nodiscard]] std::string title() const override { return calendar_.docPadCaption(); }
    void setWindowCaption(const std::string& text) override { calendar_.setCaption(text); }

  private:
    Calendar& calendar_;
};

// The selected line of the entry list, dropped on the trash.
class DroppedLine final : public DroppedEntry {
  public:
    DroppedLine(Calendar& calendar, EntryCommands& entries)
        : calendar_(calendar), entries_(entries) {}

    [[nodiscard]] bool available() const override;
    void remove() override { entries_.dropOnTrash(); }

  private:
    Calendar& calendar_;
    EntryCommands& entries_;
};

// Builds DocPad and connects it with the main window.
class DocPadRoom {
  public:
    // All must outlive the room.
    DocPadRoom(World& world, SharedState& state, Calendar& calendar, EntryCommands& entries,
               PrintJobs& printing);

    void bindCommands(CommandSet& commands);

    [[nodiscard]] DocPad& docPad() { return docPad_; }
    [[nodiscard]] const DocPad& docPad() const { return docPad_; }
    [[nodiscard]] PadText& text() { return text_; }

    // See DocPad::mayClose().
    [[nodiscard]] bool mayClose();

    // Keeps unsaved text for the next start, as the program may be about to end.
    void keepForNextStart();

    // What is kept stays as it is from here on, whatever an open box does as the program ends.
    void sealKept();

  private:
    void connect();
    void openSearch();

    Calendar& calendar_;
    const CodePage& codePage_;
    PadEditText text_;
    CalendarDocPadView view_;
    DialogState dialog_;
    RecoveryFile recovery_;
    PadEditFont textFont_;
    PadPrint printer_;
    DocPad docPad_;
    RecoveryTimer recoveryTimer_;
    PadSearch search_;
    std::unique_ptr<TextSearch> searchForm_;  // made when it is wanted
    FocusedWidget focused_;
    SystemClipboard clipboard_;
    ClipboardCommands clipboardCommands_;
    QtFontQuestion fontQuestion_;
    FontCommand fontCommand_;
    PhoneLog phoneLog_;
    PhoneLogViewer phoneLogViewer_;
    TrashPictures trashPictures_;
    DroppedLine droppedLine_;
    Trash trash_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
