#include "core/forms/ToolStrip.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

#include "platform/qt/Icons.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kKeySize = 32;
constexpr int kIconSize = 20;
constexpr int kSpace = 5;  // beside a separator

QFrame* makeSeparator(QWidget* parent) {
    auto* separator = new QFrame(parent);
    separator->setProperty("role", "separator");
    separator->setFixedSize(1, kIconSize);
    return separator;
}

}  // namespace

ToolStrip::ToolStrip(const QString& name, std::span<const ToolRow> rows, QWidget* parent)
    : QWidget(parent), rows_(rows) {
    setObjectName(name);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const ToolRow& row : rows_) {
        layout->addWidget(makeButton(row));
        if (row.separatorBehind) {
            addSpace();
            layout->addWidget(makeSeparator(this), 0, Qt::AlignVCenter);
            addSpace();
        }
    }
}

void ToolStrip::addSpace() {
    spaces_.push_back(new QSpacerItem(kSpace, 0, QSizePolicy::Fixed));
    layout()->addItem(spaces_.back());
}

void ToolStrip::setMeasures(int keyWidth, int separatorWidth) {
    for (const auto& [key, button] : buttons_)
        button->setFixedWidth(keyWidth);
    for (QSpacerItem* space : spaces_)
        space->changeSize((separatorWidth - 1) / 2, 0, QSizePolicy::Fixed);
    layout()->invalidate();
}

QToolButton* ToolStrip::makeButton(const ToolRow& row) {
    auto* button = new QToolButton(this);
    button->setObjectName(objectName() + QLatin1Char('_') + latin(row.key));
    button->setIcon(symbolIcon(latin(row.icon.empty() ? row.key : row.icon), Theme::of(*this)));
    button->setIconSize({kIconSize, kIconSize});
    button->setFixedSize(kKeySize, kKeySize);
    button->setToolTip(latin(row.toolTip));
    button->setAccessibleName(latin(row.toolTip));
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, &row] { emit chosen(row); });
    buttons_.emplace(row.key, button);
    return button;
}

QToolButton* ToolStrip::button(std::string_view key) const {
    const auto found = buttons_.find(key);
    return found == buttons_.end() ? nullptr : found->second;
}

void ToolStrip::setKeyEnabled(const std::function<bool(std::string_view command)>& enabled) {
    for (const ToolRow& row : rows_)
        buttons_.at(row.key)->setEnabled(enabled(row.command));
}

bool ToolStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter)
        for (const ToolRow& row : rows_)
            if (buttons_.at(row.key) == watched)
                emit hovered(row);
    return QWidget::eventFilter(watched, event);
}

}  // namespace velmora
