#include "accessories/forms/Calculator.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "accessories/CalculatorKeys.h"
#include "accessories/forms/CalculatorReadout.h"
#include "platform/Failure.h"
#include "platform/controls/DialogButton.h"

namespace velmora {
namespace {

constexpr QSize kSize(288, 422);
constexpr int kKeyGap = 7;

using Kind = CalculatorKey::Kind;

}  // namespace

Calculator::Calculator(Messages& messages, std::function<void(const std::string&)> endProgram,
                       QWidget* parent)
    : Dialog("Calculator", QString::fromLatin1(kCalculatorTitle), parent),
      machine_(messages),
      endProgram_(std::move(endProgram)),
      Readout(new CalculatorReadout(this)),
      Command1(makeDialogButton("Command1", "Close", this)) {
    setWindowFlag(Qt::WindowMinimizeButtonHint);
    Readout->setObjectName(QStringLiteral("Readout"));
    // A click leaves the focus where the digits are typed.
    Command1->setFocusPolicy(Qt::TabFocus);
    makeDigits();
    makeOperators();
    makeOthers();

    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addWidget(Readout);
    body->addLayout(arrangeKeys());
    body->addStretch();
    layOut(body, {.right = {Command1}}, {.first = kSize, .grows = {}});

    connect(Command1, &QPushButton::clicked, this, &QDialog::close);
}

CalculatorKey* Calculator::addKey(char character, const QString& name, const QString& caption,
                                  const QString& spoken, CalculatorKey::Kind kind) {
    auto* key = new CalculatorKey(caption, kind, this);
    key->setObjectName(name);
    key->setAccessibleName(spoken);
    connect(key, &QAbstractButton::clicked, this, [this, character] { press(character); });
    keys_.emplace(character, key);
    return key;
}

void Calculator::makeDigits() {
    for (std::size_t i = 0; i < Number.size(); ++i) {
        const QString digit = QString::number(i);
        Number[i] = addKey(static_cast<char>('0' + i), QStringLiteral("Number_") + digit, digit,
                           digit, Kind::Digit);
    }
}

void Calculator::makeOperators() {
    const std::array<QString, kOperatorCount> spoken = {tr("Divide"), tr("Plus"), tr("Times"),
                                                        tr("Minus"), tr("Equals")};
    for (std::size_t i = 0; i < Operator.size(); ++i) {
        const auto which = static_cast<CalculatorOperator>(i);
        const char* caption = captionOf(which);
        Operator[i] =
            addKey(*caption, QStringLiteral("Operator_%1").arg(i), QString::fromLatin1(caption),
                   spoken[i], which == CalculatorOperator::Equals ? Kind::Equals : Kind::Operator);
    }
}

void Calculator::makeOthers() {
    Decimal = addKey('.', QStringLiteral("Decimal"), QStringLiteral("."), tr("Decimal point"),
                     Kind::Digit);
    Percent =
        addKey('%', QStringLiteral("Percent"), QStringLiteral("%"), tr("Percent"), Kind::Clear);
    Cancel = addKey('C', QStringLiteral("Cancel"), QStringLiteral("C"), tr("Clear"), Kind::Clear);
    CancelEntry = addKey('E', QStringLiteral("CancelEntry"), QStringLiteral("CE"),
                         tr("Clear entry"), Kind::Clear);
}

QLayout* Calculator::arrangeKeys() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kKeyGap);
    const std::array<std::array<CalculatorKey*, 4>, 4> rows = {{
        {Cancel, CancelEntry, Percent, Operator[0]},
        {Number[7], Number[8], Number[9], Operator[2]},
        {Number[4], Number[5], Number[6], Operator[3]},
        {Number[1], Number[2], Number[3], Operator[1]},
    }};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            grid->addWidget(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)],
                            row, column);
    grid->addWidget(Number[0], 4, 0, 1, 2);
    grid->addWidget(Decimal, 4, 2);
    grid->addWidget(Operator[4], 4, 3);
    return grid;
}

void Calculator::beginAnew() {
    machine_.Load();
    Readout->setText(QString::fromStdString(machine_.Readout()));
}

QWidget* Calculator::firstField() const {
    return Readout;
}

void Calculator::press(char key) {
    try {
        pressKey(machine_, key);
    } catch (const Failure& failure) {
        endProgram_(failure.what());
    }
    Readout->setText(QString::fromStdString(machine_.Readout()));
}

// Enter and Escape do nothing here, unlike in other dialogs: who calculates types fast.
void Calculator::keyPressEvent(QKeyEvent* event) {
    const bool plain =
        (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const QString text = event->text();
    if (!plain || text.size() != 1)
        return;
    if (const char key = calculatorKey(text.front().toLatin1()); key != '\0') {
        keys_.at(key)->flash();
        press(key);
    }
}

}  // namespace velmora
