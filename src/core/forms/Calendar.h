#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <string_view>

#include "core/MainForm.h"
#include "core/forms/CalendarPlace.h"
#include "core/forms/CalendarTextFonts.h"
#include "platform/CodePage.h"
#include "platform/Format.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTimer;

namespace velmora {

class ClockLabel;
class CommandMenus;
class Desk;
class DocPadColumn;
class LeftColumn;
class PadEdit;
class PhonebookPage;
class PlannerPage;
class Rail;
class SSDay;
class StatusBar;
class ToolStrip;

// The main window. It shows what it is told and reports what the user does; what that means is
// decided elsewhere.
class Calendar final : public QMainWindow, public MainForm {
    Q_OBJECT

  public:
    // What the window has to know of the Dialer pane.
    struct Dialer {
        QWidget* page;
        QLabel* number;                            // Label16
        QWidget* keypad;                           // Picture3
        QPushButton* send;                         // Command24
        QPushButton* hangUp;                       // Command22
        QPushButton* back;                         // Command20
        QPushButton* clear;                        // Command21
        QPushButton* externalOne;                  // Command2
        std::function<void(bool small)> setSmall;  // the measures for a small window
    };

    // The parts of the window that are made outside it. It becomes their owner.
    struct Parts {
        SSDay* day;     // SSDay1
        PadEdit* text;  // Text4
        Dialer dialer;
    };

    // `codePage` must outlive the window.
    Calendar(const CodePage& codePage, const LocaleFormats& locale,
             std::chrono::year_month_day today, Parts parts);

    [[nodiscard]] CommandMenus& menus() const { return *menus_; }
    [[nodiscard]] ToolStrip& mainKeys() const { return *mainKeys_; }
    [[nodiscard]] Rail& rail() const { return *rail_; }
    [[nodiscard]] LeftColumn& leftColumn() const { return *leftColumn_; }
    [[nodiscard]] PlannerPage& plannerPage() const { return *plannerPage_; }
    [[nodiscard]] PhonebookPage& phonebookPage() const { return *phonebookPage_; }
    [[nodiscard]] DocPadColumn& docPad() const { return *docPad_; }
    [[nodiscard]] StatusBar& status() const { return *statusBar_; }
    [[nodiscard]] SSDay& day() const { return *parts_.day; }
    [[nodiscard]] PadEdit& text() const { return *parts_.text; }

    [[nodiscard]] const Dialer& dialer() const { return parts_.dialer; }
    [[nodiscard]] ClockLabel& clock() const { return *Label8; }
    [[nodiscard]] Desk& desk() const { return *desk_; }
    [[nodiscard]] CalendarTextFonts& textFonts() override { return fonts_; }
    [[nodiscard]] CalendarPlace& place() override { return place_; }

    // Asked when the window is to close; false keeps it open. Without it the window just closes.
    void onCloseRequest(std::function<bool()> mayClose) { mayClose_ = std::move(mayClose); }

    // Flips the hidden check box; flipped() follows before this returns.
    void flipCheck1();

    // True while the window is too small for the usual measures of its parts.
    [[nodiscard]] bool isSmall() const { return small_; }

    // True while the day view is on show.
    [[nodiscard]] bool dayViewShown() const;

    // The number on the dialer's display.
    [[nodiscard]] std::string number() const;

    void setControlState(PaneControl control, ControlState state) override;
    void raisePaneButton(Pane pane) override;
    void setDateLine(const std::string& text) override;
    void setLastNumber(const std::string& text) override;
    void setCaption(const std::string& text) override;
    void setDocPadCaption(const std::string& text) override;
    [[nodiscard]] std::string docPadCaption() const override;
    [[nodiscard]] SharedState::Box docPadBox() const override;
    void fillWithDocPad() override;
    void putDocPadBack(const SharedState::Box& box) override;
    void setMaximiseButtonShown(bool shown) override;
    void setRestoreButtonShown(bool shown) override;
    void setYearButtonEnabled(bool enabled) override;

  signals:
    void check1Flipped();
    void clockTicked();

    // Two or three times a minute: time to look whether an alarm rings.
    void alarmsDue();

    // The window has been allowed to close.
    void closing();

    // The window has taken its small form, or its usual one again.
    void smallChanged(bool small);

    // The window has been painted for the first time.
    void firstPainted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    const CodePage& codePage_;
    Parts parts_;
    CommandMenus* menus_;
    ToolStrip* mainKeys_;
    ClockLabel* Label8;
    Rail* rail_;
    LeftColumn* leftColumn_;
    PlannerPage* plannerPage_;
    PhonebookPage* phonebookPage_;
    DocPadColumn* docPad_;
    Desk* desk_;
    StatusBar* statusBar_;
    QCheckBox* Check1;  // "Don't Delete -- Required", never shown
    QTimer* Timer1;     // the clock, 500 ms
    QTimer* Timer3;     // alarms, 25000 ms
    std::map<PaneControl, QWidget*> controls_;
    std::function<bool()> mayClose_;
    CalendarTextFonts fonts_;
    CalendarPlace place_;
    bool small_ = false;
    bool painted_ = false;
};

}  // namespace velmora
