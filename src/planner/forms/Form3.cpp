#include "planner/forms/Form3.h"

#include <QFontInfo>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(620, 406);

}  // namespace

Form3::Form3(ToDoList& list, const CodePage& codePage, QWidget* parent)
    : TaskDialog("Form3", "Task Manager - To Do", codePage, parent),
      list_(list),
      codePage_(codePage),
      Command1(makeDialogButton("Command1", "&Add Task", this)),
      Command2(makeDialogButton("Command2", "&Remove Task", this)),
      Command3(makeDialogButton("Command3", "&Print Tasks", this)),
      Command4(makeDialogButton("Command4", "&Close", this)),
      Command5(makeDialogButton("Command5", "&Monthly", this)),
      Command6(makeDialogButton("Command6", "&Weekly", this)) {
    List1->setDragFormat(kTaskFormat);
    List1->setAccessibleName(QStringLiteral("Tasks"));
    List1->setEmptyText(QStringLiteral("No tasks."));
    auto* body = new QVBoxLayout;
    body->setSpacing(5);
    body->addWidget(makeLabel(QStringLiteral("Enter new task below:"), Text1));
    body->addWidget(Text1);
    body->addSpacing(7);
    body->addWidget(makeListFrame(List1, this), 1);
    layOut(body,
           {.left = {Command3, Command5, Command6},
            .right = {Command1, Command2, Command4},
            .primary = Command1},
           {.first = kFormSize});
    setTabStops({Text1, List1});
    connectControls();
}

void Form3::connectControls() {
    connect(List1, &EntryList::lineClicked, this, [this] {
        list_.Pick(List1->selectedLine());
        setBoxText(list_.text());
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        list_.AddTask();
        showAll();
    });
    connect(Command2, &QPushButton::clicked, this, [this] {
        list_.RemoveTask(List1->selectedLine());
        showAll();
    });
    connect(Command3, &QPushButton::clicked, this,
            [this] { emit printWanted(fromQt(QFontInfo(List1->font()).family(), codePage_)); });
    connect(Command4, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command5, &QPushButton::clicked, this, [this] {
        emit monthlyWanted();
        reject();
    });
    connect(Command6, &QPushButton::clicked, this, [this] {
        emit weeklyWanted();
        reject();
    });
}

void Form3::beginAnew() {
    list_.Open();
    showAll();
    Text1->selectAll();
}

QWidget* Form3::firstField() const {
    return Text1;
}

void Form3::showAll() {
    if (List1->lines() != list_.lines())
        List1->setLines(list_.lines());
    setBoxText(list_.text());
}

}  // namespace velmora
