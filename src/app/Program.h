#pragma once

#include "app/AccessoriesRoom.h"
#include "app/AlarmRoom.h"
#include "app/CalendarPhonebookPane.h"
#include "app/DocPadRoom.h"
#include "app/EntryForms.h"
#include "app/EventsRoom.h"
#include "app/FontRoom.h"
#include "app/JobRoom.h"
#include "app/PlannerRoom.h"
#include "app/PrintRoom.h"
#include "app/SearchRoom.h"
#include "app/TaskRoom.h"
#include "app/World.h"
#include "core/ClockLine.h"
#include "core/CloseDown.h"
#include "core/CommandSet.h"
#include "core/DocPadSize.h"
#include "core/MenuHelp.h"
#include "core/PaneSwitch.h"
#include "core/PendingWish.h"
#include "core/SharedState.h"
#include "core/StartUp.h"
#include "core/Tray.h"
#include "core/forms/Calendar.h"
#include "phonebook/EntryCommands.h"
#include "phonebook/EntryRecovery.h"
#include "phonebook/EntryResume.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "platform/qt/QtTrayIcon.h"

namespace velmora {

// The one place that builds the program's objects and connects them.
class Program {
  public:
    // Throws Failure when there is no place for data or settings.
    Program();

    // Runs the start-up list; the window is in view afterwards.
    void start();

    [[nodiscard]] Calendar& window() { return calendar_; }

    // Closes the window as the user does, questions included.
    void close();

    // Ends the event loop without a question: what is unsaved is kept for the next start.
    void endWithoutAsking();

    // Keeps what is unsaved for the next start, when nothing can be shown any more.
    void keepAll() { closeDown_.keepAll(); }

    // True once the program has begun to end.
    [[nodiscard]] bool ended() const { return closeDown_.done(); }

  private:
    void bindCommands();
    void connectWindow();
    void connectPhonebook();
    void connectDialer();
    void connectStatusHelp();
    void run(std::string_view command);
    void tellOfDamagedSettings();
    void offerWhatWasCutOff();
    void endAfter(const std::string& utf8Text);

    World world_;
    SharedState state_;
    Calendar calendar_;
    CommandSet commands_;
    MenuHelp menuHelp_;

    PaneSwitch panes_;
    DocPadSize docPadSize_;
    ClockLine clockLine_;
    QtTrayIcon trayIcon_;
    Tray tray_;

    PhonebookStore store_;
    EntryWriter writer_;
    CalendarPhonebookPane phonebookPane_;
    LetterView letters_;
    PendingWish pendingWish_;
    EntryRecovery entryRecovery_;
    EntryForms entryForms_;
    EntryCommands entries_;
    EntryResume entryResume_;

    JobRoom jobs_;
    DocPadRoom docPad_;
    PlannerRoom planner_;
    AlarmRoom alarms_;
    EventsRoom events_;
    TaskRoom tasks_;
    FontRoom fonts_;
    PrintRoom printing_;
    AccessoriesRoom accessories_;
    SearchRoom search_;

    StartUp startUp_;
    CloseDown closeDown_;
};

}  // namespace velmora
