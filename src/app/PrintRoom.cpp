#include "app/PrintRoom.h"

#include <QLabel>

#include "core/forms/PlannerPage.h"
#include "core/forms/StatusBar.h"
#include "planner/EventsOfDay.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"

namespace velmora {

PrintRoom::PrintRoom(World& world, Calendar& calendar, PrintJobs& printing)
    : world_(world),
      calendar_(calendar),
      printing_(printing),
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
    const QFont font = calendar_.fontOf(FontTarget::DayView);
    PrintEventsOfDay(
        printing_,
        {.tasks = calendar_.day().Tasks(),
         .fontName = fromQt(font.family(), world_.codePage),
         .fontSize = static_cast<float>(font.pointSizeF()),
         .colour = calendar_.colourOf(FontTarget::DayView),
         .longDate = fromQt(calendar_.plannerPage().dateLine()->text(), world_.codePage)},
        world_.codePage);
}

void PrintRoom::printWhatIsOnShow() {
    if (calendar_.dayViewShown())
        printDay();
    else
        calendar_.status().show(kNotYet);
}

}  // namespace velmora
