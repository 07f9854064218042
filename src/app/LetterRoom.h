#pragma once

#include <QObject>
#include <functional>
#include <string>

#include "app/CalendarPhonebookPane.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "docpad/LetterCommands.h"
#include "docpad/MergePrint.h"
#include "docpad/Signature.h"
#include "docpad/forms/Form9.h"
#include "docpad/forms/PadEditFont.h"
#include "docpad/forms/PadEditText.h"
#include "phonebook/PhonebookStore.h"
#include "reports/Reports.h"

namespace velmora {

// Builds what writes letters in DocPad from entries of the phonebook, and connects it with the main
// window.
class LetterRoom {
  public:
    // All must outlive the room. `text` is that of DocPad.
    LetterRoom(World& world, SharedState& state, Calendar& calendar, const PhonebookStore& store,
               PrintJobs& printing, PadText& text,
               std::function<void(const std::string& utf8Text)> endAfter);

    void bindCommands(CommandSet& commands);

    // Prints DocPad's text as letters to the entries of the books, which are one at least.
    void print(ReportBooks books);

  private:
    void onSelectedLine(void (LetterCommands::*add)(const std::string&));
    void addDropped(void (LetterCommands::*add)(const std::string&), const std::string& line);

    Calendar& calendar_;
    CalendarPhonebookPane pane_;
    LetterCommands letters_;
    PadEditFont font_;
    Signature signature_;
    Form9Question question_;
    MergePrint mergePrint_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
