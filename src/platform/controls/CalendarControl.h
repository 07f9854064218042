#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/Format.h"
#include "platform/calendar/CalendarModel.h"
#include "platform/controls/AccessibleParts.h"

namespace velmora {

// What the month and the year control have in common: a date that can be chosen by text, pointer
// and keys, styles of days, today's mark, and two arrows that turn to what lies before and behind
// without choosing anything.
class CalendarControl : public QWidget, public AccessibleParts {
    Q_OBJECT

  public:
    // The date chosen as "MM/dd/yyyy".
    [[nodiscard]] std::string Date() const { return model_.dateText(); }
    [[nodiscard]] std::chrono::year_month_day date() const { return model_.date(); }

    // Chooses the date that the text means (see readDate() for its forms), brings it on show, and
    // emits selectionChanged() before it returns, also for the date that was chosen already.
    // Throws Failure for a text that is no date or lies out of range; then nothing changes.
    void setDate(std::string_view text);
    void setDate(std::chrono::year_month_day date);

    // Marks another day as today.
    void setToday(std::chrono::year_month_day today);
    [[nodiscard]] std::chrono::year_month_day today() const { return model_.today(); }

    // Adds a style set for days, or replaces the one of that name.
    void setStyleSet(std::string_view name, const StyleSet& style);

    // Gives a day the style set of that name. Throws Failure for an unknown name, for a text that
    // is no date and for a date out of range; then nothing changes.
    void setDayStyle(std::string_view dateText, std::string_view styleName);

    // Tells how many appointments a date has. It is asked for what assistive tools are told of a
    // date, and only then; without it they hear of none.
    void setCounter(std::function<int(std::chrono::year_month_day)> appointmentsOn);

    // Paints anew when the event loop comes to it.
    void Refresh() { update(); }

    // The date at a point in the widget's own coordinates, if there is one.
    [[nodiscard]] virtual std::optional<std::chrono::year_month_day> dateAt(QPoint point) const = 0;

    // Where a date is drawn; empty while it is not on show.
    [[nodiscard]] virtual QRect dateRect(std::chrono::year_month_day date) const = 0;

  signals:
    // A date is about to be chosen, and Date() still gives the former one: the last moment to store
    // what belongs to it. However the date is chosen, this comes first.
    void beforeSelection();
    // A date was chosen: by setDate(), pointer or keys.
    void selectionChanged(const std::string& dateText);
    void focusEntered();
    void focusLeft();

  protected:
    CalendarControl(CalendarModel model, LocaleFormats locale, const CodePage& codePage,
                    QWidget* parent);

    // The area of an arrow; `direction` is -1 or 1.
    [[nodiscard]] virtual QRect arrowRect(int direction) const = 0;
    // Turns by one page; does nothing at the end of the range.
    virtual void turnPage(int direction) = 0;
    // Makes the page of the chosen date the one on show.
    virtual void showChosen() = 0;
    // Names of the arrows for assistive tools.
    [[nodiscard]] virtual QString arrowName(int direction) const = 0;

    [[nodiscard]] const CalendarModel& model() const { return model_; }
    [[nodiscard]] const LocaleFormats& locale() const { return locale_; }
    [[nodiscard]] QString shown(std::string_view text) const;
    // "14 March 2001"
    [[nodiscard]] QString spoken(std::chrono::year_month_day date) const;
    // "today, 3 appointments", or the one or the other, or nothing.
    [[nodiscard]] QString spokenMarks(std::chrono::year_month_day date) const;
    [[nodiscard]] std::optional<std::chrono::year_month_day> hovered() const { return hovered_; }
    [[nodiscard]] AccessiblePart dayPart(std::chrono::year_month_day date) const;
    [[nodiscard]] AccessiblePart arrowPart(int direction) const;
    // -1 or 1 over an arrow, else 0.
    [[nodiscard]] int arrowAt(QPoint point) const;
    void paintArrows(QPainter& painter) const;
    void updateDate(std::optional<std::chrono::year_month_day> date);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void setHovered(std::optional<std::chrono::year_month_day> date, int arrow);

    CalendarModel model_;
    LocaleFormats locale_;
    CodePage codePage_;
    std::function<int(std::chrono::year_month_day)> appointmentsOn_;
    std::optional<std::chrono::year_month_day> hovered_;
    int hoveredArrow_ = 0;
    int wheelTurn_ = 0;
};

}  // namespace velmora
