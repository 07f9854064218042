#include "planner/forms/Alarm.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "planner/forms/TimeSteppers.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Stepper.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kListWidth = 132;
constexpr QSize kFormSize(500, 316);
constexpr QSize kNoteIcon(20, 20);

}  // namespace

Alarm::Alarm(AlarmEditor& editor, const CodePage& codePage, QWidget* parent)
    : TaskDialog("Alarm", "Alarms...", codePage, parent),
      editor_(editor),
      time_(new TimeSteppers({"Label1", "Label3", "Label2"}, this)),
      Command2(makeDialogButton("Command2", "&Add/Change", this)),
      Command1(makeDialogButton("Command1", "&Remove", this)),
      Command3(makeDialogButton("Command3", "&Close", this)) {
    List1->setAccessibleName(QStringLiteral("Alarms"));

    auto* fields = new QVBoxLayout;
    fields->setSpacing(5);
    fields->addWidget(makeLabel(QStringLiteral("Time to set:"), time_->hours()->arrows()));
    fields->addWidget(time_);
    fields->addSpacing(7);
    fields->addWidget(makeLabel(QStringLiteral("Message:"), Text1));
    fields->addWidget(Text1);
    fields->addSpacing(9);
    fields->addWidget(makeNote(), 1);
    QFrame* list = makeListFrame(List1, this);
    list->setMinimumWidth(kListWidth);
    auto* body = new QHBoxLayout;
    body->setSpacing(20);
    body->addLayout(fields, 5);
    body->addWidget(list, 2);

    layOut(body, {.right = {Command2, Command1, Command3}, .primary = Command2},
           {.first = kFormSize});
    setTabStops({time_->hours()->arrows(), time_->minutes()->arrows(), Text1, List1});
    connectControls();
}

QWidget* Alarm::makeNote() {
    auto* note = new QFrame(this);
    note->setProperty("role", QStringLiteral("note"));
    auto* icon = new QLabel(note);
    icon->setPixmap(symbolPixmap(QStringLiteral("Note"), kNoteIcon, devicePixelRatioF(),
                                 Theme::of(*this).accent));
    auto* head = new QLabel(QStringLiteral("Note:"), note);
    QFont bold = head->font();
    bold.setWeight(QFont::DemiBold);
    head->setFont(bold);
    auto* text = new QLabel(
        QStringLiteral("Alarms set will be set for the day shown on the daily planner."), note);
    text->setProperty("role", QStringLiteral("label"));
    text->setWordWrap(true);
    auto* grid = new QGridLayout(note);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    grid->addWidget(icon, 0, 0);
    grid->addWidget(head, 0, 1);
    grid->addWidget(text, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    return note;
}

void Alarm::connectControls() {
    connect(time_, &TimeSteppers::hourChanged, this, [this](int hour) { editor_.setHour(hour); });
    connect(time_, &TimeSteppers::minuteChanged, this,
            [this](int minute) { editor_.setMinute(minute); });
    connect(List1, &EntryList::lineClicked, this, [this] {
        editor_.Pick(List1->selectedLine());
        showFields();
    });
    connect(Command2, &QPushButton::clicked, this, [this] {
        editor_.AddOrChange();
        showFields();
        showList();
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        editor_.Remove(List1->selectedLine());
        showFields();
        if (List1->hasSelection())
            showList();
    });
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
}

void Alarm::beginAnew() {
    editor_.Open();
    showFields();
    showList();
}

QWidget* Alarm::firstField() const {
    return time_->hours()->arrows();
}

void Alarm::showFields() {
    time_->setTime(editor_.time());
    setBoxText(editor_.message());
}

void Alarm::showList() {
    List1->setLines(editor_.times());
}

}  // namespace velmora
