#include "app/LetterRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"
#include "platform/controls/PadEdit.h"

namespace velmora {

LetterRoom::LetterRoom(World& world, SharedState& state, Calendar& calendar,
                       const PhonebookStore& store, PrintJobs& printing, PadText& text,
                       std::function<void(const std::string& utf8Text)> endAfter)
    : calendar_(calendar),
      pane_(calendar),
      letters_({state, store, world.settings, text, world.messages}),
      font_(calendar.text(), world.codePage),
      signature_(world.locations.programFolder(), world.files, world.messages),
      question_(world.codePage, calendar,
                [&calendar] { calendar.status().show(kCharacterReplaced); }),
      mergePrint_({printing, store, world.settings, text, font_, signature_, question_, world.clock,
                   world.locale, std::move(endAfter)}) {
    // Queued: the drag has to be over before a box opens.
    QObject::connect(
        &calendar.text(), &PadEdit::entryDropped, &connections_,
        [this](const std::string& line) { addDropped(&LetterCommands::addLetterHead, line); },
        Qt::QueuedConnection);
    QObject::connect(
        &calendar.text(), &PadEdit::taskDropped, &connections_,
        [this](const std::string& task) { addDropped(&LetterCommands::addTask, task); },
        Qt::QueuedConnection);
}

void LetterRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::Insert1, [this] { onSelectedLine(&LetterCommands::InsertEntryText); });
    commands.bind(Commands::Insert2, [this] { onSelectedLine(&LetterCommands::addLetterHead); });
}

void LetterRoom::print(ReportBooks books) {
    using WhichBooks = MergePrint::WhichBooks;
    if (books == ReportBooks::Both)
        mergePrint_.run(WhichBooks::Both);
    else
        mergePrint_.run(books == ReportBooks::White ? WhichBooks::White : WhichBooks::Yellow);
}

void LetterRoom::onSelectedLine(void (LetterCommands::*add)(const std::string&)) {
    const std::string line = pane_.selectedLine();
    if (line.empty())
        calendar_.status().show("Select an entry in the list first.");
    else
        (letters_.*add)(line);
}

void LetterRoom::addDropped(void (LetterCommands::*add)(const std::string&),
                            const std::string& line) {
    (letters_.*add)(line);
    calendar_.activateWindow();
    calendar_.text().setFocus();
}

}  // namespace velmora
