#include "core/forms/Rail.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/controls/PaneButton.h"
#include "platform/controls/TrashCan.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kRailWidth = 88;
constexpr int kSmallRailWidth = 76;
constexpr QSize kCancelSize(56, 44);
constexpr QSize kSmallCancelSize(48, 40);

struct PaneLook {
    Pane pane;
    const char* symbol;
    const char* caption;
    const char* label;
};

constexpr std::array<PaneLook, kPaneCount> kPanes{{
    {Pane::Planner, "Planner", "Planner", "Label9"},
    {Pane::Phonebook, "Phonebook", "Phonebook", "Label14"},
    {Pane::Dialer, "Dialer", "Dialer", "Label13"},
}};

}  // namespace

Rail::Rail(QWidget* parent) : QWidget(parent), Image8(new QToolButton(this)) {
    setObjectName(QStringLiteral("Rail"));
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(this);
    for (const PaneLook& look : kPanes) {
        const auto index = static_cast<std::size_t>(look.pane);
        auto* button = new PaneButton(QString::fromLatin1(look.symbol),
                                      QString::fromLatin1(look.caption), this);
        button->setObjectName(QStringLiteral("Picture1_%1").arg(index));
        button->caption()->setObjectName(QString::fromLatin1(look.label));
        connect(button, &PaneButton::clicked, this, [this, &look] { emit paneChosen(look.pane); });
        connect(button, &PaneButton::hovered, this, [this, &look] { emit paneHovered(look.pane); });
        Picture1[index] = button;
        layout->addWidget(button, 0, Qt::AlignHCenter);
    }
    layout->addStretch();

    const Theme& theme = Theme::of(*this);
    Image8->setObjectName(QStringLiteral("Image8"));
    Image8->setIcon(
        symbolIcon(QStringLiteral("Image8"), IconColours{theme.danger, theme.dis, theme.danger}));
    Image8->setIconSize({32, 32});
    Image8->setAccessibleName(tr("Cancel Print Job"));
    Image8->setToolTip(tr("Cancel Print Job"));
    Image8->hide();
    Image8->installEventFilter(this);
    connect(Image8, &QToolButton::clicked, this, &Rail::cancelChosen);
    layout->addWidget(Image8, 0, Qt::AlignHCenter);

    Image2 = new TrashCan(this);
    Image2->setObjectName(QStringLiteral("Image2"));
    layout->addWidget(Image2, 0, Qt::AlignHCenter);
    raiseButton(Pane::Planner);
    setSmall(false);
}

void Rail::setSmall(bool small) {
    setFixedWidth(small ? kSmallRailWidth : kRailWidth);
    layout()->setContentsMargins(small ? 4 : 6, small ? 8 : 10, small ? 3 : 5, small ? 8 : 10);
    layout()->setSpacing(small ? 4 : 6);
    Image8->setFixedSize(small ? kSmallCancelSize : kCancelSize);
    for (PaneButton* button : Picture1)
        button->setSmall(small);
    Image2->setSmall(small);
}

void Rail::showCancelIcon(bool shown) {
    Image8->setVisible(shown);
}

bool Rail::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Image8 && event->type() == QEvent::Enter)
        emit cancelHovered();
    return QWidget::eventFilter(watched, event);
}

void Rail::raiseButton(Pane pane) const {
    for (const PaneLook& look : kPanes)
        paneButton(look.pane)->setRaised(look.pane == pane);
}

}  // namespace velmora
