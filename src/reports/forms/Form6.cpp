#include "reports/forms/Form6.h"

#include <QButtonGroup>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/GroupHead.h"
#include "platform/qt/QtText.h"
#include "reports/forms/ChoiceTile.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(560, 378);
constexpr int kTileGap = 8;
constexpr int kRowGap = 12;

}  // namespace

Form6::Form6(Reports& reports, PrintTargets& targets, const CodePage& codePage, QWidget* parent)
    : Dialog("Form6", QStringLiteral("Print"), parent),
      reports_(reports),
      targets_(targets),
      codePage_(codePage),
      books_(new QButtonGroup(this)),
      sizes_(new QButtonGroup(this)),
      Label1(new QLabel(this)),
      where_(new QLabel(this)),
      Command1(makeDialogButton("Command1", "&Print", this)),
      Command2(makeDialogButton("Command2", "&Cancel", this)) {
    setWindowModality(Qt::WindowModal);
    makeChoices();
    arrange();
    connect(Command1, &QPushButton::clicked, this, &Form6::print);
    connect(Command2, &QPushButton::clicked, this, &Form6::reject);
}

Form6::~Form6() {
    targets_.forget();
}

void Form6::makeChoices() {
    using Look = ChoiceTile::Look;
    Option1 =
        new ChoiceTile("Option1", QStringLiteral("&Yellow Pages Only"), Look::YellowPages, this);
    Option2 =
        new ChoiceTile("Option2", QStringLiteral("&White Pages Only"), Look::WhitePages, this);
    Option3 = new ChoiceTile("Option3", QStringLiteral("&Both"), Look::Plain, this);
    for (ChoiceTile* book : {Option1, Option2, Option3})
        books_->addButton(book);
    Option4 = new ChoiceTile("Option4", QStringLiteral("Normal; 8.5\" X 11\""), Look::Page, this,
                             {8.5, 11});
    Option5 = new ChoiceTile("Option5", QStringLiteral("Pocket; 5.5\" X 8.0\""), Look::Page, this,
                             {5.5, 8});
    Option6 = new ChoiceTile("Option6", QStringLiteral("Mini; 3.2\" X 5.0\""), Look::Page, this,
                             {3.2, 5});
    for (ChoiceTile* size : {Option4, Option5, Option6})
        sizes_->addButton(size);
    Option4->setChecked(true);
}

QLayout* Form6::bookRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kTileGap);
    for (ChoiceTile* book : {Option1, Option2, Option3})
        row->addWidget(book, 1);
    return row;
}

QFrame* Form6::makeStyles() {
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Frame1"));
    const QString head = QStringLiteral("Print Styles:");
    frame->setAccessibleName(head);
    auto* tiles = new QHBoxLayout;
    tiles->setSpacing(kTileGap);
    for (ChoiceTile* size : {Option4, Option5, Option6})
        tiles->addWidget(size, 1);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTileGap);
    column->addLayout(makeGroupHead(head, frame));
    column->addLayout(tiles, 1);
    return frame;
}

void Form6::arrange() {
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setText(QStringLiteral(
        "The formats provided fit most planners and address books. Print them on normal paper, and "
        "simply cut the page at the appropriate length."));
    where_->setObjectName(QStringLiteral("where"));
    for (QLabel* hint : {Label1, where_}) {
        hint->setProperty("role", QStringLiteral("hint"));
        hint->setTextFormat(Qt::PlainText);
        hint->setWordWrap(true);
    }
    Frame1 = makeStyles();
    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addLayout(bookRow());
    body->addWidget(Frame1, 1);
    body->addWidget(Label1);
    body->addWidget(where_);
    layOut(body, {.right = {Command1, Command2}, .primary = Command1}, {.first = kFormSize});
    setTabStops({Option1, Option2, Option3, Option4, Option5, Option6});
}

// No book is chosen for the user.
void Form6::beginAnew() {
    books_->setExclusive(false);
    for (ChoiceTile* book : {Option1, Option2, Option3})
        book->setChecked(false);
    books_->setExclusive(true);
    Option4->setChecked(true);
    askWhere();
}

QWidget* Form6::firstField() const {
    return Option1;
}

void Form6::askWhere() {
    where_->setText(tr("To: ..."));
    targets_.ask(PageOrientation::Portrait, [this](const std::optional<PrintTarget>& target) {
        where_->setText(target ? toQt(target->line(), codePage_)
                               : tr("The print system does not answer."));
    });
}

ReportChoice Form6::choice() const {
    ReportChoice choice;
    if (Option1->isChecked())
        choice.books = ReportBooks::Yellow;
    if (Option2->isChecked())
        choice.books = ReportBooks::White;
    if (Option3->isChecked())
        choice.books = ReportBooks::Both;
    if (Option5->isChecked())
        choice.size = ReportSize::Pocket;
    if (Option6->isChecked())
        choice.size = ReportSize::Mini;
    return choice;
}

// Everything can happen while it prints, the end of the form too.
void Form6::print() {
    const ReportChoice chosen = choice();
    if (chosen.books != ReportBooks::None)
        hide();
    const QPointer<Form6> alive(this);
    const bool finished = reports_.print(chosen);
    if (!alive)
        return;
    if (finished)
        accept();
    else
        show();
}

void Form6::done(int result) {
    targets_.forget();
    reports_.cancel();
    Dialog::done(result);
}

}  // namespace velmora
