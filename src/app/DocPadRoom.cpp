#include "app/DocPadRoom.h"

#include <QLabel>

#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "docpad/forms/DocumentDrag.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/TrashCan.h"
#include "platform/files/ProgramFolder.h"

namespace velmora {
namespace {

constexpr const char* kTrashIsBusy =
    "The trash is being emptied and takes nothing now. Try again in a moment.";

}  // namespace

void CalendarDocPadView::setTitle(const std::string& text) {
    calendar_.setDocPadCaption(text);
}

void CalendarDocPadView::announce(const std::string& text) {
    setTitle(text);
    calendar_.docPad().title()->repaint();
}

bool DroppedLine::available() const {
    const EntryList* list = calendar_.leftColumn().list();
    return list->isVisible() && list->hasSelection();
}

DocPadRoom::DocPadRoom(World& world, SharedState& state, Calendar& calendar, EntryCommands& entries,
                       PrintJobs& printing)
    : calendar_(calendar),
      codePage_(world.codePage),
      text_(calendar.text()),
      view_(calendar),
      dialog_(world.messages),
      recovery_(world.codePage.fromUtf8(configurationFolder().utf8()), world.files,
                world.runningPrograms, world.clock),
      textFont_(calendar.text(), world.codePage),
      printer_({printing, text_, textFont_, dialog_, world.settings, world.clock, world.locale,
                world.codePage}),
      docPad_({text_, view_, dialog_, state, world.messages, world.files, world.settings,
               calendar.status(), printer_, recovery_, world.loop}),
      recoveryTimer_([this] { return docPad_.keepInBackground(); }),
      search_(text_, world.codePage, world.messages),
      focused_(world.codePage),
      clipboard_(world.codePage),
      clipboardCommands_(focused_, clipboard_),
      fontQuestion_(world.codePage),
      fontCommand_(keys::DocFont, FontCommand::Keeps::NameSizeAndColour, textFont_, fontQuestion_,
                   world.settings, world.loop),
      phoneLog_(world.locations.programFolder(), world.files, world.clock, world.locale),
      phoneLogViewer_(phoneLog_, docPad_, view_, dialog_, world.messages),
      trashPictures_(*calendar.rail().trash()),
      droppedLine_(calendar, entries),
      trash_({text_, view_, dialog_, state, world.messages, world.files, world.loop, trashPictures_,
              droppedLine_}) {
    connect();
}

void DocPadRoom::connect() {
    PadEdit* edit = &calendar_.text();
    QObject::connect(edit, &PadEdit::textChanged, &recoveryTimer_, &RecoveryTimer::changed);
    const auto tellReplaced = [this] { calendar_.status().show(kCharacterReplaced); };
    QObject::connect(edit, &PadEdit::characterReplaced, &connections_, tellReplaced);
    QObject::connect(&clipboard_, &SystemClipboard::characterReplaced, &connections_, tellReplaced);
    QObject::connect(&calendar_.docPad(), &DocPadColumn::growHovered, &connections_,
                     [this] { calendar_.status().show("Maximizes DocPad."); });
    QObject::connect(&calendar_.docPad(), &DocPadColumn::shrinkHovered, &connections_,
                     [this] { calendar_.status().show("Restores DocPad to Normal Size."); });
    new DocumentDrag(*calendar_.docPad().titleIcon());
    TrashCan* can = calendar_.rail().trash();
    QObject::connect(can, &TrashCan::refused, &connections_,
                     [this] { calendar_.status().show(kTrashIsBusy); });
    // Queued: the drag has to be over before a box opens.
    QObject::connect(
        can, &TrashCan::entryDropped, &connections_, [this] { trash_.dropEntry(); },
        Qt::QueuedConnection);
    QObject::connect(
        can, &TrashCan::documentDropped, &connections_, [this] { trash_.dropDocPad(); },
        Qt::QueuedConnection);
}

void DocPadRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::newmnu, [this] { docPad_.New(); });
    commands.bind(Commands::openmnu, [this] { docPad_.Open(); });
    commands.bind(Commands::savmnu, [this] { docPad_.Save(); });
    commands.bind(Commands::printmnu, [this] { docPad_.Print(); });
    commands.bind(Commands::searchtxtmnu, [this] { openSearch(); });
    commands.bind(Commands::ChfontD, [this] { fontCommand_.change(); });
    commands.bind(Commands::EditCut, [this] { clipboardCommands_.EditCut(); });
    commands.bind(Commands::EditCopy, [this] { clipboardCommands_.EditCopy(); });
    commands.bind(Commands::EditPaste, [this] { clipboardCommands_.EditPaste(); });
    commands.bind(Commands::viewmnu, [this] { phoneLogViewer_.view(); });
}

void DocPadRoom::openSearch() {
    if (!searchForm_)
        searchForm_ = std::make_unique<TextSearch>(search_, codePage_, &calendar_);
    searchForm_->present();
}

void DocPadRoom::keepForNextStart() {
    if (docPad_.changed() || recoveryTimer_.waiting())
        docPad_.keepForRecovery();
}

void DocPadRoom::sealKept() {
    recoveryTimer_.stop();
    recovery_.seal();
}

bool DocPadRoom::mayClose() {
    if (!docPad_.mayClose())
        return false;
    sealKept();
    return true;
}

}  // namespace velmora
