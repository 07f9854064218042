#include "app/TaskRoom.h"

#include "core/forms/StatusBar.h"

namespace velmora {

TaskRoom::TaskRoom(World& world, Calendar& calendar, PrintJobs& printing)
    : world_(world),
      calendar_(calendar),
      printing_(printing),
      toDo_(world.settings, world.messages, world.clock, world.locale),
      weekly_(world.settings, world.clock),
      monthly_(world.settings, world.clock) {}

void TaskRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::taskmanager, [this] { presentToDo(); });
    commands.bind(Commands::reptmnu, [this] { presentWeekly(); });
    commands.bind(Commands::monthlytasks, [this] { presentMonthly(); });
}

template <typename Form, typename Logic>
Form& TaskRoom::make(std::unique_ptr<Form>& form, Logic& logic) {
    form = std::make_unique<Form>(logic, world_.codePage, &calendar_);
    QObject::connect(form.get(), &Form::characterReplaced, &connections_,
                     [this] { calendar_.status().show(kCharacterReplaced); });
    return *form;
}

void TaskRoom::presentToDo() {
    if (!toDoForm_) {
        Form3& form = make(toDoForm_, toDo_);
        QObject::connect(&form, &Form3::printWanted, &form, [this](const std::string& fontName) {
            toDo_.PrintTasks(printing_, fontName);
        });
        QObject::connect(&form, &Form3::monthlyWanted, &form, [this] { presentMonthly(); });
        QObject::connect(&form, &Form3::weeklyWanted, &form, [this] { presentWeekly(); });
    }
    toDoForm_->present();
}

void TaskRoom::presentWeekly() {
    if (!weeklyForm_)
        make(weeklyForm_, weekly_);
    weeklyForm_->present();
}

void TaskRoom::presentMonthly() {
    if (!monthlyForm_)
        make(monthlyForm_, monthly_);
    monthlyForm_->present();
}

}  // namespace velmora
