#include "core/forms/DocPadColumn.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/controls/ElidedLabel.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kNarrowest = 320;
constexpr int kWidestInColumn = 520;
constexpr int kTitleHeight = 40;
constexpr int kSmallTitleHeight = 36;

QToolButton* makeSizeButton(const char* name, const char* toolTip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    const Theme& theme = Theme::of(*parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(
        symbolIcon(QString::fromLatin1(name), IconColours{theme.ink2, theme.dis, theme.ink2}));
    button->setIconSize({18, 18});
    button->setFixedSize(32, 32);
    button->setToolTip(QString::fromLatin1(toolTip));
    button->setAccessibleName(QString::fromLatin1(toolTip));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

DocPadColumn::DocPadColumn(PadEdit* text, QWidget* parent)
    : QWidget(parent),
      header_(new QWidget(this)),
      Image7(new QLabel(this)),
      Label4(new ElidedLabel(Qt::ElideRight, this)),
      Toolbar3(makeSizeButton("Toolbar3", "Maximize DocPad", this)),
      Toolbar5(makeSizeButton("Toolbar5", "Minimize DocPad", this)),
      Text4(text) {
    Image7->setObjectName(QStringLiteral("Image7"));
    const QColor accent = Theme::of(*this).accent;
    Image7->setPixmap(symbolIcon(QStringLiteral("Image7"), IconColours{accent, accent, accent})
                          .pixmap({22, 22}, devicePixelRatioF()));
    Label4->setObjectName(QStringLiteral("Label4"));
    Label4->setText(QStringLiteral("DocPad"));
    setType(*Label4, 10.5, QFont::DemiBold);
    Toolbar5->hide();
    Toolbar3->installEventFilter(this);
    Toolbar5->installEventFilter(this);

    Text4->setObjectName(QStringLiteral("Text4"));
    Text4->setAccessibleName(tr("DocPad"));
    Text4->setProperty("role", "paper");

    auto* header = new QHBoxLayout;
    header->setContentsMargins(2, 0, 2, 0);
    header->setSpacing(9);
    header->addWidget(Image7);
    header->addWidget(Label4, 1);
    header->addWidget(Toolbar3);
    header->addWidget(Toolbar5);
    header_->setLayout(header);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(Text4, 1);
    setWide(false);
    setSmall(false, 0);
}

void DocPadColumn::setSmall(bool small, int narrowest) {
    header_->setFixedHeight(small ? kSmallTitleHeight : kTitleHeight);
    setMinimumWidth(small ? narrowest : kNarrowest);
}

bool DocPadColumn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter && watched == Toolbar3)
        emit growHovered();
    if (event->type() == QEvent::Enter && watched == Toolbar5)
        emit shrinkHovered();
    return QWidget::eventFilter(watched, event);
}

void DocPadColumn::setWide(bool wide) {
    setMaximumWidth(wide ? QWIDGETSIZE_MAX : kWidestInColumn);
}

}  // namespace velmora
