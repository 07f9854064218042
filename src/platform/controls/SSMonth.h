#pragma once

#include <QBasicTimer>
#include <QByteArray>
#include <vector>

#include "platform/calendar/MonthGrid.h"
#include "platform/controls/CalendarControl.h"

namespace velmora {

// The month navigator: a caption with two arrows, the heads of the weekdays, and six weeks. The
// month on show follows the date; the arrows and the wheel only leaf. It paints no frame.
//
// Its dates reach from 1 January 100 to 31 December 9999.
//
// A drag of anything may be dropped on it; the cell under the pointer shows it, and a drag that
// rests on an arrow leafs.
class SSMonth final : public CalendarControl {
    Q_OBJECT

  public:
    SSMonth(const LocaleFormats& locale, const CodePage& codePage,
            std::chrono::year_month_day today, QWidget* parent = nullptr);

    // The width at the right end of the caption row, captionHeight() high, that stays free for a
    // button which the form lays there; 0 at first.
    void setCaptionReserve(int width);

    // The lower rows of a small window.
    void setSmall(bool small);
    [[nodiscard]] int captionHeight() const;

    [[nodiscard]] std::chrono::year_month monthOnShow() const { return grid_.month(); }

    [[nodiscard]] std::optional<std::chrono::year_month_day> dateAt(QPoint point) const override;
    [[nodiscard]] QRect dateRect(std::chrono::year_month_day date) const override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] int partCount() const override { return MonthGrid::kCells + 2; }
    [[nodiscard]] AccessiblePart part(int index) const override;
    [[nodiscard]] QString describePart(int index) const override;
    void pressPart(int index) override;

  signals:
    // Something was dropped at `point`, also where no date is. `entry` is the data of
    // kEntryFormat, and null when something else was dropped.
    void dropped(const QPoint& point, const QByteArray& entry);

    // A context menu of the chosen date is wanted, at a place on the screen. A date under the
    // pointer has been chosen before.
    void menuWanted(const QPoint& place);

  protected:
    [[nodiscard]] QRect arrowRect(int direction) const override;
    void turnPage(int direction) override;
    void showChosen() override;
    [[nodiscard]] QString arrowName(int direction) const override;

    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    [[nodiscard]] int headHeight() const;
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] QRect cellRect(int cell) const;
    void showMonth(std::chrono::year_month month);
    void setTarget(std::optional<std::chrono::year_month_day> date);
    void setDragOverArrow(int arrow);
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString fittingCaption() const;
    [[nodiscard]] QRect captionRoom() const;
    void paintCaption(QPainter& painter) const;
    void paintHeads(QPainter& painter) const;
    void paintCell(QPainter& painter, int cell) const;

    MonthGrid grid_;
    int captionReserve_ = 0;
    bool small_ = false;
    std::optional<std::chrono::year_month_day> target_;
    int dragOverArrow_ = 0;
    QBasicTimer leafTimer_;
};

}  // namespace velmora
