#include "app/PrintRoom.h"

#include <QLabel>
#include <utility>

#include "core/forms/PlannerPage.h"
#include "planner/DayPrint.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"

namespace velmora {

PrintRoom::PrintRoom(World& world, Calendar& calendar, PrintJobs& printing,
                     std::function<void()> openListing)
    : world_(world),
      calendar_(calendar),
      printing_(printing),
      openListing_(std::move(openListing)),
      question_(world.codePage),
      setup_(printing, question_, world.messages) {}

void PrintRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::prints, [this] { setup_.change(); });
    commands.bind(Commands::prntcal, [this] { printDay(); });
    commands.bind(Commands::plprint, [this] { printWhatIsOnShow(); });
    commands.bind(Commands::PrintP, [this] { printWhatIsOnShow(); });
}

void PrintRoom::printDay() {
    if (printing_.refuses())
        return;
    calendar_.day().commitEditor();
    const QFont font = calendar_.textFonts().fontOf(FontTarget::DayView);
    PrintEventsOfDay(
        printing_,
        {.tasks = calendar_.day().Tasks(),
         .fontName = fromQt(font.family(), world_.codePage),
         .fontSize = static_cast<float>(font.pointSizeF()),
         .colour = calendar_.textFonts().colourOf(FontTarget::DayView),
         .longDate = fromQt(calendar_.plannerPage().dateLine()->text(), world_.codePage)},
        world_.codePage);
}

void PrintRoom::printWhatIsOnShow() {
    if (calendar_.dayViewShown())
        printDay();
    else
        openListing_();
}

}  // namespace velmora
