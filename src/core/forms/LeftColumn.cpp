#include "core/forms/LeftColumn.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/forms/ToolStrip.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

struct Measures {
    int width;
    int gap;
    QMargins monthMargins;
    int header;
};

constexpr Measures kNormal{248, 12, {8, 9, 8, 6}, 40};
constexpr Measures kSmall{224, 8, {6, 6, 6, 6}, 36};

QLabel* makeBookLabel(const char* name, const char* caption, QWidget* parent) {
    auto* label = new QLabel(QString::fromLatin1(caption), parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    setType(*label, 10.5, QFont::DemiBold);
    label->hide();
    return label;
}

void restyle(QWidget& widget) {
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

}  // namespace

LeftColumn::LeftColumn(const CodePage& codePage, const LocaleFormats& locale,
                       std::chrono::year_month_day today, QWidget* parent)
    : QWidget(parent),
      SSMonth1(new SSMonth(locale, codePage, today, this)),
      Command1(new QPushButton(QStringLiteral("Yea&r"), this)),
      Label18(makeBookLabel("Label18", "Yellow Pages", this)),
      Label19(makeBookLabel("Label19", "White Pages", this)),
      bookKeys_(new ToolStrip(QStringLiteral("PhonebookToolbar"), phonebookToolbar(), this)),
      List1(new EntryList(codePage, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeMonthCard());
    layout->addWidget(makeListCard(), 1);
    showBook(false);
    setSmall(false);
}

void LeftColumn::setSmall(bool small) {
    const Measures& own = small ? kSmall : kNormal;
    setFixedWidth(own.width);
    layout()->setSpacing(own.gap);
    SSMonth1->setSmall(small);
    monthCard_->layout()->setContentsMargins(own.monthMargins);
    listHeader_->setFixedHeight(own.header);
}

QWidget* LeftColumn::makeMonthCard() {
    auto* card = new QFrame(this);
    card->setProperty("role", "card");
    card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    monthCard_ = card;
    SSMonth1->setObjectName(QStringLiteral("SSMonth1"));
    SSMonth1->setAccessibleName(tr("Month"));
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setProperty("variant", "small");
    Command1->setAutoDefault(false);

    auto* layout = new QGridLayout(card);
    layout->addWidget(SSMonth1, 0, 0);
    layout->addWidget(Command1, 0, 0, Qt::AlignTop | Qt::AlignRight);
    return card;
}

QWidget* LeftColumn::makeListCard() {
    auto* card = new QFrame(this);
    card->setProperty("role", "card");
    auto* header = new QWidget(card);
    header->setObjectName(QStringLiteral("ListHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    listHeader_ = header;
    auto* headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(12, 0, 4, 0);
    headerLayout->setSpacing(4);
    headerLayout->addWidget(Label18);
    headerLayout->addWidget(Label19);
    headerLayout->addStretch();
    headerLayout->addWidget(bookKeys_);
    const Theme& theme = Theme::of(*this);
    for (const auto& [key, ink] :
         {std::pair{"Yellow", theme.onamber}, std::pair{"White", theme.ink}}) {
        QToolButton* button = bookKeys_->button(key);
        button->setFixedSize(32, 30);
        button->setIcon(symbolIcon(QString::fromLatin1(key), IconColours{ink, theme.dis, ink}));
    }
    bookKeys_->layout()->setSpacing(4);

    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(tr("Entries"));
    List1->setFrameShape(QFrame::NoFrame);
    List1->setEnabled(false);

    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addWidget(List1, 1);
    return card;
}

void LeftColumn::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    SSMonth1->setCaptionReserve(Command1->sizeHint().width() + 6);
}

void LeftColumn::showBook(bool whitePages) {
    for (const char* key : {"Yellow", "White"}) {
        QToolButton* button = bookKeys_->button(key);
        const bool open = whitePages == (QLatin1String(key) == QLatin1String("White"));
        button->setProperty("open", open);
        restyle(*button);
    }
}

}  // namespace velmora
