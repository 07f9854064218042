#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/forms/Calendar.h"
#include "planner/MonthlyTasks.h"
#include "planner/ToDoList.h"
#include "planner/WeeklyTasks.h"
#include "planner/forms/Form10.h"
#include "planner/forms/Form3.h"
#include "planner/forms/Monthly.h"

namespace velmora {

// Builds the three lists of tasks and connects them with the main window. The forms are made when
// they are first asked for.
class TaskRoom {
  public:
    // All must outlive the room.
    TaskRoom(World& world, Calendar& calendar, PrintJobs& printing);

    void bindCommands(CommandSet& commands);

    // Other forms open these too.
    void presentToDo();
    void presentWeekly();
    void presentMonthly();

  private:
    template <typename Form, typename Logic>
    Form& make(std::unique_ptr<Form>& form, Logic& logic);

    World& world_;
    Calendar& calendar_;
    PrintJobs& printing_;
    ToDoList toDo_;
    WeeklyTasks weekly_;
    MonthlyTasks monthly_;
    std::unique_ptr<Form3> toDoForm_;
    std::unique_ptr<Form10> weeklyForm_;
    std::unique_ptr<Monthly> monthlyForm_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
