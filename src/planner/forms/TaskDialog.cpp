#include "planner/forms/TaskDialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/controls/CodePageGuard.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/EntryList.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kMargin = 16;

}  // namespace

TaskDialog::TaskDialog(const char* name, const char* title, const CodePage& codePage,
                       QWidget* parent)
    : QDialog(parent),
      List1(new EntryList(codePage, nullptr, this)),
      Text1(new QLineEdit(this)),
      codePage_(codePage) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QString::fromLatin1(title));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setDragEnabled(false);
    Text1->setObjectName(QStringLiteral("Text1"));
    connect(new CodePageGuard(*Text1, codePage), &CodePageGuard::replaced, this,
            &TaskDialog::characterReplaced);
    // The guard has put the text right before this is called.
    connect(Text1, &QLineEdit::textEdited, this,
            [this] { textTyped(fromQt(Text1->text(), codePage_)); });
}

void TaskDialog::present() {
    if (!isVisible()) {
        beginAnew();
        firstField()->setFocus();
    }
    show();
    raise();
    activateWindow();
}

QLabel* TaskDialog::makeLabel(const char* caption, QWidget* buddy) {
    auto* label = new QLabel(QString::fromLatin1(caption), this);
    label->setProperty("role", QStringLiteral("label"));
    label->setBuddy(buddy);
    return label;
}

void TaskDialog::layOut(QBoxLayout* body, DialogFooter* footer) {
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layOutDialog(*this, body, footer);
}

void TaskDialog::setBoxText(const std::string& text) {
    Text1->setText(toQt(text, codePage_));
}

}  // namespace velmora
