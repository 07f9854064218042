#pragma once

#include <QObject>
#include <string>

#include "app/AccessoriesRoom.h"
#include "app/AlarmRoom.h"
#include "app/BackupRoom.h"
#include "app/CallerRoom.h"
#include "app/CopiesRoom.h"
#include "app/DesktopCallServices.h"
#include "app/DesktopLink.h"
#include "app/DialerRoom.h"
#include "app/DocPadRoom.h"
#include "app/ExportRoom.h"
#include "app/FaxRoom.h"
#include "app/FontRoom.h"
#include "app/ImportRoom.h"
#include "app/JobRoom.h"
#include "app/LetterRoom.h"
#include "app/OccasionRoom.h"
#include "app/OutsideRoom.h"
#include "app/PaperRoom.h"
#include "app/PhonebookRoom.h"
#include "app/PlannerRoom.h"
#include "app/PreferencesRoom.h"
#include "app/PrintRoom.h"
#include "app/ReportRoom.h"
#include "app/SearchRoom.h"
#include "app/SystemRoom.h"
#include "app/TaskRoom.h"
#include "app/WindowRoom.h"
#include "app/World.h"
#include "core/CloseDown.h"
#include "core/CommandSet.h"
#include "core/SharedState.h"
#include "core/StartUp.h"
#include "core/forms/Calendar.h"
#include "core/forms/ContextMenus.h"
#include "platform/files/ProgramFolder.h"

namespace velmora {

class DialerPage;

// The one place that builds the program's objects and connects them.
class Program {
  public:
    // `nativeProgramFolder` holds the data that lie beside the program, as programFolder() gives
    // it. Throws Failure when there is no place for data or settings. `callServices` is asked once,
    // after the first paint, where callers are to be told.
    explicit Program(const NativePath& nativeProgramFolder = programFolder(),
                     CallServices callServices = desktopCallServices);

    // Runs the start-up list; the window is in view afterwards.
    void start();

    [[nodiscard]] Calendar& window() { return calendar_; }
    [[nodiscard]] const CommandSet& commands() const { return commands_; }

    // Begins to take part in the desktop's session: it finds the program, and shows its notices. To
    // be called once.
    void joinDesktop() { desktop_.join(); }

    // Shows the window before all others. `token` lets it come to the front where the desktop asks
    // for one.
    void bringToFront(const std::string& token = {});

    // Shows the number of a telephone link on the keypad. Nothing is dialed.
    void openLinks(const std::vector<std::string>& links);

    // Closes the window as the user does, questions included.
    void close();

    // Ends the event loop without a question: what is unsaved is kept for the next start.
    void endWithoutAsking();

    // Keeps what is unsaved for the next start. The program may go on.
    void keepAll();

    // The end of the desktop session, in two steps, since it may still be called off between them.
    // The question about unsaved text comes first, where there is one and it can be asked; false
    // when the session is to go on.
    [[nodiscard]] bool hasToAsk() const;
    [[nodiscard]] bool askBeforeSessionEnd();
    // The session has ended: as endWithoutAsking(), but for a text that the user did not want.
    void endWithSession();

    // True once the program has begun to end.
    [[nodiscard]] bool ended() const { return closeDown_.done(); }

  private:
    void bindCommands();
    void connectEnd();
    void run(CommandName command);
    void tellOfSettings();
    void offerWhatWasCutOff();
    void answerNotice(const std::string& subject);
    void endAfter(const std::string& utf8Text);
    [[nodiscard]] Patience::Replaced patientToTheEnd();

    World world_;
    SharedState state_;
    CommandSet commands_;
    DialerPage* dialerPage_;  // the window owns it
    Calendar calendar_;

    DesktopLink desktop_;
    WindowRoom windowRoom_;
    PhonebookRoom phonebook_;
    DialerRoom dialer_;
    CallerRoom callers_;
    OutsideRoom outside_;
    JobRoom jobs_;
    DocPadRoom docPad_;
    LetterRoom letterRoom_;
    PlannerRoom planner_;
    AlarmRoom alarms_;
    OccasionRoom events_;
    TaskRoom tasks_;
    FaxRoom fax_;
    FontRoom fonts_;
    ReportRoom reports_;
    ExportRoom export_;
    BackupRoom backup_;
    CopiesRoom copies_;
    ImportRoom import_;
    PrintRoom printing_;
    PaperRoom paper_;
    AccessoriesRoom accessories_;
    SystemRoom system_;
    PreferencesRoom preferences_;
    SearchRoom search_;
    ContextMenus contextMenus_;

    StartUp startUp_;
    CloseDown closeDown_;
    WorkOwner questions_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
