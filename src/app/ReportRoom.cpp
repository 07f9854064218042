#include "app/ReportRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"
#include "platform/qt/QtText.h"

namespace velmora {

float DocPadSizeOnScreen::editorSize() const {
    return static_cast<float>(calendar_.fontOf(FontTarget::DocPad).pointSizeF());
}

void DocPadSizeOnScreen::setEditorSize(float points) {
    calendar_.setFont(FontTarget::DocPad,
                      {.face = fromQt(calendar_.fontOf(FontTarget::DocPad).family(), codePage_),
                       .size = points,
                       .colour = calendar_.colourOf(FontTarget::DocPad)});
}

ReportRoom::ReportRoom(World& world, Calendar& calendar, const PhonebookStore& store,
                       PrintJobs& printing, Reports::Actions actions)
    : calendar_(calendar),
      printing_(printing),
      editor_(calendar, world.codePage),
      reports_({printing, store, world.settings, editor_, world.clock, world.locale},
               calendar.status(), std::move(actions)),
      targets_(world.printer, world.printService, world.codePage),
      form_(reports_, targets_, world.codePage, &calendar) {}

void ReportRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::repprnt, [this] {
        if (calendar_.dayViewShown())
            calendar_.status().show("Choose the Phonebook first: the report is of its entries.");
        else
            open(ReportKind::Complete);
    });
    commands.bind(Commands::mergeprntmnu, [this] { openMerge(); });
}

void ReportRoom::open(ReportKind kind) {
    if (printing_.refuses())
        return;
    reports_.begin(kind);
    form_.present();
}

void ReportRoom::openMerge() {
    if (printing_.refuses())
        return;
    reports_.beginMerge();
    form_.present();
}

}  // namespace velmora
