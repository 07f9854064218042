#pragma once

#include <vector>

#include "platform/calendar/MonthGrid.h"
#include "platform/controls/CalendarControl.h"
#include "platform/controls/RoundedStamps.h"

namespace velmora {

// A year on one sheet: a caption with an arrow at either end, and twelve months in three rows. The
// year on show follows the date; the arrows and the wheel only leaf. It paints no frame.
//
// Its dates reach from 1 January 101 to 31 December 9998.
class SSYear final : public CalendarControl {
    Q_OBJECT

  public:
    SSYear(const LocaleFormats& locale, const CodePage& codePage, std::chrono::year_month_day today,
           QWidget* parent = nullptr);

    [[nodiscard]] std::chrono::year yearOnShow() const { return year_; }

    [[nodiscard]] std::optional<std::chrono::year_month_day> dateAt(QPoint point) const override;
    [[nodiscard]] QRect dateRect(std::chrono::year_month_day date) const override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    // The lower rows and narrower gaps of a small window.
    void setSmall(bool small);

    // The days of the year in order, then the two arrows.
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] AccessiblePart part(int index) const override;
    [[nodiscard]] QString describePart(int index) const override;
    void pressPart(int index) override;

  signals:
    // A date was double-clicked, or Enter pressed; it is chosen already.
    void doubleClicked();
    // The caption was clicked beside its arrows, or Escape pressed.
    void captionClicked();

  protected:
    [[nodiscard]] QRect arrowRect(int direction) const override;
    void turnPage(int direction) override;
    void showChosen() override;
    [[nodiscard]] QString arrowName(int direction) const override;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Month {
        MonthGrid grid;
        QRect rect;  // head, weekdays and weeks
    };

    [[nodiscard]] int captionHeight() const;
    [[nodiscard]] int headHeight() const;
    [[nodiscard]] int naturalRowHeight() const;
    [[nodiscard]] int naturalHeight(int weekRows) const;
    [[nodiscard]] bool onCaption(QPoint point) const;
    [[nodiscard]] QRect cellRect(const Month& month, int cell) const;
    void showYear(std::chrono::year year);
    [[nodiscard]] const std::vector<Month>& months() const;  // lays them out when they are not
    void layOut() const;
    void announceChosen();
    void paintCaption(QPainter& painter) const;
    void paintMonth(QPainter& painter, const Month& month, const QRegion& region) const;
    void paintDay(QPainter& painter, const QRect& rect, std::chrono::year_month_day date) const;

    std::chrono::year year_;
    bool small_ = false;
    mutable std::vector<Month> months_;  // empty until they are laid out
    mutable int rowHeight_ = 0;
    mutable RoundedStamps stamps_;
};

}  // namespace velmora
