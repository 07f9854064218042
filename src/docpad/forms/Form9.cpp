#include "docpad/forms/Form9.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/Text.h"
#include "platform/controls/DialogButton.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(480, 340);
constexpr QSize kSmallest(400, 260);
constexpr const char* kExplanation =
    "A Signature is the conclusion of a letter which usually includes a closing statement, (i.e. "
    "Sincerely), a name, and possibly a cc: or other marks.";

}  // namespace

Form9::Form9(const CodePage& codePage, QWidget* parent)
    : Dialog("Form9", QStringLiteral("Signature..."), parent),
      codePage_(codePage),
      Label1(new QLabel(QString::fromLatin1(kExplanation), this)),
      Text1(new QPlainTextEdit(this)),
      Command1(makeDialogButton("Command1", "&Ok", this)),
      Command2(makeDialogButton("Command2", "&Cancel", this)) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setProperty("role", QStringLiteral("hint"));
    Label1->setWordWrap(true);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("Signature"));
    guard(*Text1, codePage);
    connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);

    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addWidget(Label1);
    body->addWidget(Text1, 1);
    layOut(body, {.right = {Command1, Command2}, .primary = Command1},
           {.first = kFormSize, .least = kSmallest});
    setTabStops({Text1});
    Text1->setFocus();
}

void Form9::setText(const std::string& text) {
    Text1->setPlainText(toQt(withLf(text), codePage_));
    Text1->moveCursor(QTextCursor::End);
}

std::string Form9::text() const {
    return withCrLf(fromQt(Text1->toPlainText(), codePage_));
}

std::optional<std::string> Form9Question::ask(const std::string& text) {
    const QPointer<Form9> form(new Form9(codePage_, &window_));
    QObject::connect(form, &Form9::characterReplaced, form, replaced_);
    form->setText(text);
    const bool accepted = form->exec() == QDialog::Accepted;
    if (!form)
        return std::nullopt;
    const std::string result = form->text();
    delete form;
    return accepted ? std::optional(result) : std::nullopt;
}

}  // namespace velmora
