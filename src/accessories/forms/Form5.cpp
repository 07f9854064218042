#include "accessories/forms/Form5.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(460, 176);
constexpr int kGap = 8;

}  // namespace

Form5::Form5(RunProgram& program, const CodePage& codePage, QWidget* parent)
    : Dialog("Form5", QStringLiteral("Run..."), parent),
      program_(program),
      codePage_(codePage),
      Text1(new QLineEdit(this)),
      Check1(new QCheckBox(QStringLiteral("Run &Minimizied"), this)),
      Command1(makeDialogButton("Command1", "&Cancel", this)),
      Command2(makeDialogButton("Command2", "&Run", this)),
      Command3(makeDialogButton("Command3", "&Browse", this)) {
    Text1->setObjectName(QStringLiteral("Text1"));
    Check1->setObjectName(QStringLiteral("Check1"));
    guard(*Text1, codePage_);
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    line->addWidget(Text1, 1);
    line->addWidget(Command3);
    auto* body = new QVBoxLayout;
    body->setSpacing(4);
    body->addWidget(makeLabel(QStringLiteral("Command Line:"), Text1));
    body->addLayout(line);
    body->addSpacing(kGap);
    body->addWidget(Check1);
    body->addStretch();
    layOut(body, {.right = {Command2, Command1}, .primary = Command2},
           {.first = kFormSize, .grows = Qt::Horizontal});
    setTabStops({Text1, Command3, Check1});
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command2, &QPushButton::clicked, this, &Form5::run);
    connect(Command3, &QPushButton::clicked, this, &Form5::browse);
}

void Form5::beginAnew() {
    Text1->clear();
    Check1->setChecked(false);
}

QWidget* Form5::firstField() const {
    return Text1;
}

void Form5::browse() {
    const auto path = program_.Browse();
    if (path && !path->empty())
        Text1->setText(toQt(*path, codePage_));
    Text1->setFocus();
}

void Form5::run() {
    const std::string commandLine = fromQt(Text1->text(), codePage_);
    accept();
    program_.Run(commandLine, Check1->isChecked());
}

}  // namespace velmora
