#include "planner/forms/WeekataGlance.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimerEvent>
#include <optional>

#include "platform/controls/DialogButton.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kGap = 8;
constexpr int kBetweenTries = 2000;  // milliseconds
constexpr QSize kFormSize(1180, 626);
constexpr QSize kLeastDay(96, 120);

}  // namespace

WeekataGlance::WeekataGlance(const WeekLoad& load, const CodePage& codePage, QWidget* parent)
    : Dialog("WeekataGlance", QStringLiteral("Week at a Glance"), parent),
      load_(load),
      codePage_(codePage),
      Command1(makeDialogButton("Command1", "&Close", this)) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    const QFont captionFont(QStringLiteral("Arial"), 8, QFont::Normal);
    for (int day = 1; day <= kWeekDays; ++day) {
        auto* column = new SSDay(codePage, this);
        column->setObjectName(QStringLiteral("SSDay%1").arg(day));
        column->setReadOnly(true);
        column->setCaptionFont(captionFont);
        days_[static_cast<std::size_t>(day - 1)] = column;
    }
    arrange();
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
}

void WeekataGlance::arrange() {
    auto* body = new QHBoxLayout;
    body->setSpacing(kGap);
    for (SSDay* day : days_) {
        day->setMinimumSize(kLeastDay);
        body->addWidget(day, 1);
    }
    layOut(body, {.right = {Command1}, .primary = Command1}, {.first = kFormSize});
}

void WeekataGlance::present() {
    const bool opening = !isVisible();
    if (opening || isActiveWindow())
        load();
    show();
    if (opening)
        scrollToFirstTask();
    bringToFront();
    Command1->setFocus();
}

void WeekataGlance::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible())
        load();
}

void WeekataGlance::load() {
    if (isVisible())
        place();
    if (!load_.Load(*this))
        again_.start(kBetweenTries, this);
}

void WeekataGlance::timerEvent(QTimerEvent* event) {
    if (event->timerId() != again_.timerId())
        return Dialog::timerEvent(event);
    if (!isVisible() || load_.Load(*this, WeekLoad::Locks::PassBy))
        again_.stop();
}

// All six days begin at the same time, so that they can be compared.
void WeekataGlance::scrollToFirstTask() {
    std::optional<std::chrono::minutes> first;
    for (const SSDay* day : days_)
        if (const auto begin = day->firstBegin(); begin && (!first || *begin < *first))
            first = begin;
    for (SSDay* day : days_)
        day->scrollToTask(first);
}

SSDay& WeekataGlance::view(int day) {
    return *days_.at(static_cast<std::size_t>(day - 1));
}

void WeekataGlance::SetTitle(const std::string& text) {
    setWindowTitle(toQt(text, codePage_));
}

void WeekataGlance::RemoveAllTasks() {
    for (SSDay* day : days_)
        day->Tasks().RemoveAll();
}

void WeekataGlance::AddTask(int day, const std::string& beginTime, const std::string& endTime,
                            const std::string& text) {
    view(day).Tasks().Add(beginTime, endTime, text);
}

void WeekataGlance::SetTaskTag(int day, int index, const std::string& tag) {
    view(day).Tasks().setTagVariant(index, tag);
}

void WeekataGlance::RemoveTasksOf(int day) {
    view(day).Tasks().RemoveAll();
}

void WeekataGlance::SetDayNotice(int day, const std::string& text) {
    view(day).setNotice(text);
}

void WeekataGlance::SetDayCaption(int day, const std::string& text) {
    view(day).setCaption(text);
    view(day).setAccessibleName(toQt(text, codePage_));
}

}  // namespace velmora
