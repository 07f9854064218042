#include "app/PlannerWiring.h"

#include <QPushButton>

#include "planner/Planner.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

void connectDay(SSDay& day, Planner& planner) {
    QObject::connect(&day, &SSDay::beforeEdit, &day,
                     [&planner] { planner.AlignMonthWithDayOnShow(); });
    QObject::connect(&day, &SSDay::OnTaskEditBegin, &day, [&planner](int index, bool exists) {
        planner.OnTaskEditBegin(index, exists);
    });
    QObject::connect(&day, &SSDay::OnTaskEditEnd, &day,
                     [&planner](int index, bool keepRefresh, bool save) {
                         planner.OnTaskEditEnd(index, keepRefresh, save);
                     });
    QObject::connect(&day, &SSDay::OnTaskRemove, &day, [&planner] { planner.OnTaskRemove(); });
    QObject::connect(&day, &SSDay::pointerMoved, &day, [&planner] { planner.OnDayPointerMoved(); });
}

void connectMonth(const PlannerWidgets& widgets, Planner& planner) {
    SSMonth& month = widgets.month;
    SSDay* day = &widgets.day;
    QObject::connect(&month, &SSMonth::beforeSelection, day, &SSDay::commitEditor);
    QObject::connect(&month, &SSMonth::selectionChanged, day,
                     [&planner](const std::string& date) { planner.OnMonthSelection(date); });
    QObject::connect(&month, &SSMonth::focusEntered, day,
                     [&planner] { planner.OnMonthGotFocus(); });
    QObject::connect(&month, &SSMonth::focusLeft, day, [&planner] { planner.OnMonthLostFocus(); });
    QObject::connect(&month, &SSMonth::dropped, day,
                     [widgets, &planner](const QPoint& point, const QByteArray& entry) {
                         const bool selected =
                             !entry.isNull() && entry.toStdString() == widgets.selectedLine();
                         if (planner.OnMonthDrop(point.x(), point.y(), selected))
                             widgets.popUpSchedulingMenu();
                     });
}

void connectYear(const PlannerWidgets& widgets, Planner& planner) {
    SSYear& year = widgets.year;
    SSDay* day = &widgets.day;
    QObject::connect(&year, &SSYear::selectionChanged, day,
                     [&planner](const std::string& date) { planner.OnYearSelection(date); });
    QObject::connect(&year, &SSYear::doubleClicked, day, [day, &planner] {
        day->commitEditor();
        planner.OnYearDoubleClick();
    });
    QObject::connect(&year, &SSYear::captionClicked, day,
                     [&planner] { planner.OnYearCaptionClick(); });
    QObject::connect(&widgets.yearButton, &QPushButton::clicked, day, [day, &planner] {
        day->commitEditor();
        planner.OpenYear();
    });
}

}  // namespace

void connectPlanner(const PlannerWidgets& widgets, Planner& planner) {
    connectDay(widgets.day, planner);
    connectMonth(widgets, planner);
    connectYear(widgets, planner);
}

}  // namespace velmora
