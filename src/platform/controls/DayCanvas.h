#pragma once

#include <QFont>
#include <QWidget>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/calendar/DaySession.h"
#include "platform/controls/BlockStamps.h"
#include "platform/controls/DayGeometry.h"
#include "platform/controls/DayHit.h"
#include "platform/controls/DayMeasures.h"
#include "platform/controls/DayPainter.h"
#include "platform/controls/DayScene.h"
#include "platform/controls/DayScrollBar.h"

namespace velmora {

// Where a day view stands on the screen: it lays out and paints a session, and scrolls. What keys
// and pointer do to the session is the business of SSDay.
class DayCanvas : public QWidget, protected DaySessionView {
    Q_OBJECT

  public:
    ~DayCanvas() override;

    // First and last time of the column; see TimeColumn. Blocks outside widen it.
    void setFirstTime(std::string_view time);
    void setLastTime(std::string_view time);

    // Lays out and paints anew when the event loop comes to it.
    void Refresh();

    // The colour of block texts; an invalid one stands for the theme's. Font: setFont().
    void setTextColor(const QColor& color);
    [[nodiscard]] QColor textColor() const { return textColor_; }

    // Where the line of the present time goes; none on other days than today.
    void setNow(std::optional<std::chrono::minutes> timeOfDay);

    // What an empty day says, in the second slot in view; nothing while it is empty.
    void setEmptyText(const QString& text);

    // What is said on the paper of the day as a whole, in code-page text; nothing while it is
    // empty.
    void setNotice(std::string_view notice);

    // A caption above the column, in code-page text; none while it is empty.
    void setCaption(std::string_view caption);
    void setCaptionFont(const QFont& font);

    // Scrolls to one slot before the first block, else to 7:30 AM. Happens by itself when the view
    // shows for the first time.
    void scrollToStart();

    // The same, as if the first block began at `begin`; without one as if there were no blocks.
    void scrollToTask(std::optional<std::chrono::minutes> begin);

    // When the first block by time begins; nothing without blocks.
    [[nodiscard]] std::optional<std::chrono::minutes> firstBegin() const;

    // Places for tests and drops: empty while out of sight.
    [[nodiscard]] QRect blockRect(int index) const;
    [[nodiscard]] QRect slotRect(std::chrono::minutes slot) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    // The view has been scrolled, or is laid out otherwise.
    void moved();

  protected:
    DayCanvas(const CodePage& codePage, QWidget* parent);

    [[nodiscard]] DaySession& session() { return session_; }
    [[nodiscard]] const DaySession& session() const { return session_; }
    [[nodiscard]] const CodePage& codePage() const { return codePage_; }
    [[nodiscard]] DayMeasures measures() const;
    [[nodiscard]] DayGeometry geometry() const;
    [[nodiscard]] DayScrollBar& scroll() const { return *scroll_; }
    [[nodiscard]] DayHit hitAt(QPoint point) const;
    // The block under the pointer looks so, and the pointer says what a drag would do.
    void showPointer(QPoint point);
    // To be called when the view has become one to look at, or no longer is.
    void lookChanged();

    void blockChanged(int index) override;
    void slotChanged(std::chrono::minutes slot) override;
    void dayChanged() override;
    void dragChanged(TimeSpan span) override;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void layOut() const;
    void placeScrollBar();
    void setHovered(int index);
    void tellEmptiness();
    [[nodiscard]] DayScene scene() const;

    CodePage codePage_;
    DaySession session_;
    std::string caption_;
    std::optional<QFont> captionFont_;
    QString emptyText_;
    QString notice_;
    QColor textColor_;
    std::optional<std::chrono::minutes> now_;
    int hovered_ = -1;
    bool started_ = false;

    // Laid out when first asked for after a change.
    mutable bool stale_ = true;
    mutable TimeSpan shown_{std::chrono::minutes(0), kDay};
    mutable std::vector<ShownBlock> blocks_;
    BlockStamps stamps_;
    DayScrollBar* scroll_;
};

}  // namespace velmora
