#include "planner/forms/TaskDialog.h"

#include <QLineEdit>
#include <QPushButton>

#include "platform/controls/EntryList.h"
#include "platform/qt/QtText.h"

namespace velmora {

TaskDialog::TaskDialog(const char* name, const char* title, const CodePage& codePage,
                       QWidget* parent)
    : Dialog(name, QString::fromLatin1(title), parent),
      List1(new EntryList(codePage, nullptr, this)),
      Text1(new QLineEdit(this)),
      codePage_(codePage) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setDragEnabled(false);
    Text1->setObjectName(QStringLiteral("Text1"));
    guard(*Text1, codePage);
    // The guard has put the text right before this is called.
    connect(Text1, &QLineEdit::textEdited, this,
            [this] { textTyped(fromQt(Text1->text(), codePage_)); });
}

void TaskDialog::setBoxText(const std::string& text) {
    Text1->setText(toQt(text, codePage_));
}

void TaskDialog::connectTasks(QPushButton* add, QPushButton* remove, QPushButton* close,
                              const TaskActions& actions) {
    connect(List1, &EntryList::lineClicked, this,
            [this, pick = actions.pick] { pick(List1->selectedLine()); });
    connect(add, &QPushButton::clicked, this, actions.add);
    connect(remove, &QPushButton::clicked, this, [this, removeLine = actions.remove] {
        if (List1->hasSelection())
            removeLine(List1->selectedLine());
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

}  // namespace velmora
