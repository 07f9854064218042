#include "app/ReportRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"
#include "platform/qt/QtText.h"

namespace velmora {

float DocPadSizeOnScreen::editorSize() const {
    return static_cast<float>(fonts_.fontOf(FontTarget::DocPad).pointSizeF());
}

void DocPadSizeOnScreen::setEditorSize(float points) {
    fonts_.setFont(FontTarget::DocPad,
                   {.face = fromQt(fonts_.fontOf(FontTarget::DocPad).family(), codePage_),
                    .size = points,
                    .colour = fonts_.colourOf(FontTarget::DocPad)});
}

ReportRoom::ReportRoom(World& world, Calendar& calendar, const PhonebookStore& store,
                       PrintJobs& printing, Reports::Actions actions)
    : calendar_(calendar),
      printing_(printing),
      editor_(calendar.textFonts(), world.codePage),
      reports_({printing, store, world.settings, editor_, world.clock, world.locale},
               calendar.status(), std::move(actions)),
      targets_(world.printer, world.printService, world.codePage),
      codePage_(world.codePage) {}

void ReportRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::repprnt, [this] {
        if (calendar_.dayViewShown())
            calendar_.status().show("Choose the Phonebook first: the report is of its entries.");
        else
            open(ReportKind::Complete);
    });
    commands.bind(Commands::mergeprntmnu, [this] { openMerge(); });
}

Form6& ReportRoom::form() {
    if (!form_)
        form_ = std::make_unique<Form6>(reports_, targets_, codePage_, &calendar_);
    return *form_;
}

void ReportRoom::open(ReportKind kind) {
    if (printing_.refuses())
        return;
    reports_.begin(kind);
    form().present();
}

void ReportRoom::openMerge() {
    if (printing_.refuses())
        return;
    reports_.beginMerge();
    form().present();
}

}  // namespace velmora
