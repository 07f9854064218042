#pragma once

#include <QBasicTimer>
#include <array>

#include "planner/WeekLoad.h"
#include "platform/controls/Dialog.h"

class QPushButton;

namespace velmora {

class SSDay;

// "Week at a Glance": six days side by side, to look at while the user goes on working in the main
// window. The days are loaded anew whenever the form becomes the active window, and again and again
// while one of them can not be read.
class WeekataGlance final : public Dialog, public WeekView {
    Q_OBJECT

  public:
    // `load` and `codePage` must outlive the form.
    WeekataGlance(const WeekLoad& load, const CodePage& codePage, QWidget* parent = nullptr);

    // Shows the form, in front. One that was closed shows its days from their first appointment on.
    void present() override;

    void SetTitle(const std::string& text) override;
    void RemoveAllTasks() override;
    void RemoveTasksOf(int day) override;
    void AddTask(int day, const std::string& beginTime, const std::string& endTime,
                 const std::string& text) override;
    void SetTaskTag(int day, int index, const std::string& tag) override;
    void SetDayCaption(int day, const std::string& text) override;
    void SetDayNotice(int day, const std::string& text) override;

  protected:
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    void arrange();
    [[nodiscard]] SSDay& view(int day);
    void load();
    void scrollToFirstTask();

    const WeekLoad& load_;
    const CodePage& codePage_;
    std::array<SSDay*, kWeekDays> days_{};  // SSDay1 to SSDay6
    QBasicTimer again_;
    QPushButton* Command1;  // "&Close"
};

}  // namespace velmora
