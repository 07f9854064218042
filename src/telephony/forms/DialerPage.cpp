#include "telephony/forms/DialerPage.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/ElidedLabel.h"
#include "platform/controls/Keypad.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kWidest = 520;
constexpr int kNumberHeight = 76;
constexpr int kSmallNumberHeight = 64;
constexpr int kActionsWidth = 140;
constexpr int kSmallActionsWidth = 132;
constexpr int kGap = 16;
constexpr int kSmallGap = 12;

QPushButton* makeAction(const char* name, const char* caption, const char* role, QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("role", QString::fromLatin1(role));
    button->setProperty("variant", "action");
    button->setAutoDefault(false);
    return button;
}

void setSymbol(QPushButton& button, const char* symbol, const QColor& colour,
               const QColor& disabled) {
    button.setIcon(symbolIcon(QString::fromLatin1(symbol), IconColours{colour, disabled, colour}));
    button.setIconSize({18, 18});
}

}  // namespace

DialerPage::DialerPage(QWidget* parent)
    : QWidget(parent),
      numberCard_(new QFrame(this)),
      Label16(new ElidedLabel(Qt::ElideLeft, this)),
      Picture3(new Keypad(this)) {
    Label16->setObjectName(QStringLiteral("Label16"));
    Label16->setAccessibleName(tr("No number"));
    Label16->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setType(*Label16, 24);
    Picture3->setObjectName(QStringLiteral("Picture3"));

    numberCard_->setProperty("role", "card");
    auto* numberLayout = new QHBoxLayout(numberCard_);
    numberLayout->setContentsMargins(20, 0, 20, 0);
    numberLayout->addWidget(Label16);

    auto* keys = new QHBoxLayout;
    keys_ = keys;
    keys->addWidget(Picture3, 1, Qt::AlignTop);
    keys->addWidget(makeActions());

    auto* block = new QWidget(this);
    block->setMaximumWidth(kWidest);
    auto* blockLayout = new QVBoxLayout(block);
    blockLayout->setContentsMargins(0, 0, 0, 0);
    blockLayout->addWidget(numberCard_);
    blockLayout->addLayout(keys);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(block);
    layout->addStretch();
    setSmall(false);
}

void DialerPage::setSmall(bool small) {
    const int gap = small ? kSmallGap : kGap;
    numberCard_->setFixedHeight(small ? kSmallNumberHeight : kNumberHeight);
    numberCard_->parentWidget()->layout()->setSpacing(gap);
    keys_->setSpacing(gap);
    actions_->setFixedWidth(small ? kSmallActionsWidth : kActionsWidth);
    Picture3->setSmall(small);
}

QWidget* DialerPage::makeActions() {
    auto* actions = new QWidget(this);
    actions_ = actions;
    Command24 = makeAction("Command24", "&Send", "go", actions);
    Command22 = makeAction("Command22", "&Hang Up", "danger", actions);
    Command20 = makeAction("Command20", "&Back", "", actions);
    Command21 = makeAction("Command21", "&Clear All", "", actions);
    Command2 = makeAction("Command2", "&External Dialer", "", actions);
    const Theme& theme = Theme::of(*this);
    setSymbol(*Command24, "Send", theme.onGo, theme.dis);
    setSymbol(*Command22, "HangUp", theme.danger, theme.dis);
    setSymbol(*Command20, "Back", theme.ink, theme.dis);
    auto* layout = new QVBoxLayout(actions);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(Command24);
    layout->addWidget(Command22);
    layout->addSpacing(20);
    layout->addWidget(Command20);
    layout->addWidget(Command21);
    layout->addStretch();
    layout->addWidget(Command2);
    for (QPushButton* button : {Command20, Command21, Command22, Command24})
        button->setEnabled(false);
    return actions;
}

}  // namespace velmora
