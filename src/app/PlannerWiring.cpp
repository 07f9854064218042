#include "app/PlannerWiring.h"

#include <QPushButton>

#include "planner/Planner.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

void connectDay(SSDay& day, Planner& planner, const QObject* context) {
    QObject::connect(&day, &SSDay::beforeEdit, context,
                     [&planner] { planner.AlignMonthWithDayOnShow(); });
    QObject::connect(&day, &SSDay::OnTaskEditBegin, context, [&planner](int index, bool exists) {
        planner.OnTaskEditBegin(index, exists);
    });
    QObject::connect(&day, &SSDay::OnTaskEditEnd, context,
                     [&planner](int index, bool keepRefresh, bool save) {
                         planner.OnTaskEditEnd(index, keepRefresh, save);
                     });
    QObject::connect(&day, &SSDay::OnTaskRemove, context, [&planner] { planner.OnTaskRemove(); });
    QObject::connect(&day, &SSDay::undoWanted, context, [&planner] { planner.OnUndoRemoval(); });
    QObject::connect(&day, &SSDay::pointerMoved, context,
                     [&planner] { planner.OnDayPointerMoved(); });
}

void connectMonth(const PlannerWidgets& widgets, Planner& planner, const QObject* context) {
    SSMonth& month = widgets.month;
    SSDay* day = &widgets.day;
    QObject::connect(&month, &SSMonth::beforeSelection, day, &SSDay::commitEditor);
    QObject::connect(&month, &SSMonth::selectionChanged, context,
                     [&planner](const std::string& date) { planner.OnMonthSelection(date); });
    QObject::connect(&month, &SSMonth::focusEntered, context,
                     [&planner] { planner.OnMonthGotFocus(); });
    QObject::connect(&month, &SSMonth::focusLeft, context,
                     [&planner] { planner.OnMonthLostFocus(); });
    QObject::connect(&month, &SSMonth::dropped, context,
                     [widgets, &planner](const QPoint& point, const QByteArray& entry) {
                         const bool selected =
                             !entry.isNull() && entry.toStdString() == widgets.selectedLine();
                         if (planner.OnMonthDrop(point.x(), point.y(), selected))
                             widgets.popUpSchedulingMenu();
                     });
}

void connectYear(const PlannerWidgets& widgets, Planner& planner, const QObject* context) {
    SSYear& year = widgets.year;
    SSDay* day = &widgets.day;
    QObject::connect(&year, &SSYear::selectionChanged, context,
                     [&planner](const std::string& date) { planner.OnYearSelection(date); });
    QObject::connect(&year, &SSYear::doubleClicked, context, [day, &planner] {
        day->commitEditor();
        planner.OnYearDoubleClick();
    });
    QObject::connect(&year, &SSYear::captionClicked, context,
                     [&planner] { planner.OnYearCaptionClick(); });
    QObject::connect(&widgets.yearButton, &QPushButton::clicked, context, [day, &planner] {
        day->commitEditor();
        planner.OpenYear();
    });
}

}  // namespace

void connectPlanner(const PlannerWidgets& widgets, Planner& planner, const QObject& context) {
    connectDay(widgets.day, planner, &context);
    connectMonth(widgets, planner, &context);
    connectYear(widgets, planner, &context);
}

}  // namespace velmora
