#pragma once

#include <functional>
#include <string>

class QObject;
class QPushButton;

namespace velmora {

class Planner;
class SSDay;
class SSMonth;
class SSYear;

// The planner's controls, and what a drop on the month asks of the form around them.
struct PlannerWidgets {
    SSDay& day;
    SSMonth& month;
    SSYear& year;
    QPushButton& yearButton;                    // "Yea&r"
    std::function<std::string()> selectedLine;  // of the phonebook list; empty without one
    std::function<void()> popUpSchedulingMenu;
};

// Tells the planner what is done in its controls. What is being typed into the day view is stored
// before the month's date changes, by whatever road, so that it gets the date it was typed on. The
// planner is told nothing more once `context` is gone, which must go before it.
void connectPlanner(const PlannerWidgets& widgets, Planner& planner, const QObject& context);

}  // namespace velmora
