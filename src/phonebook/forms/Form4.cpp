#include "phonebook/forms/Form4.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/StatusLight.h"
#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kRowGap = 12;
constexpr int kFieldRows = 7;
constexpr int kHitTabStop = 220;
constexpr int kLeastHits = 4;  // lines that are in view even in the smallest form
constexpr QSize kFormSize(720, 606);
constexpr const char* kReplacedText =
    "Characters that the phonebook can not store were replaced by \"?\".";

template <typename Control, typename... Parameters>
void make(Control*& control, const char* name, Parameters&&... parameters) {
    control = new Control(std::forward<Parameters>(parameters)...);
    control->setObjectName(QLatin1String(name));
}

// A text of the user's: an "&" in it is no access key.
QString plainCaption(const std::string& text, const CodePage& codePage) {
    return toQt(text, codePage).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

// In the order of kSearchFields.
const std::array<Form4::FieldBox, kFieldCount> Form4::kFieldBoxes{{
    {&Form4::Check7, "Check7"},   {&Form4::Check2, "Check2"},   {&Form4::Check3, "Check3"},
    {&Form4::Check5, "Check5"},   {&Form4::Check6, "Check6"},   {&Form4::Check13, "Check13"},
    {&Form4::Check14, "Check14"}, {&Form4::Check21, "Check21"}, {&Form4::Check22, "Check22"},
    {&Form4::Check23, "Check23"}, {&Form4::Check15, "Check15"}, {&Form4::Check9, "Check9"},
    {&Form4::Check4, "Check4"},   {&Form4::Check16, "Check16"}, {&Form4::Check8, "Check8"},
    {&Form4::Check18, "Check18"}, {&Form4::Check17, "Check17"}, {&Form4::Check24, "Check24"},
    {&Form4::Check26, "Check26"}, {&Form4::Check10, "Check10"}, {&Form4::Check12, "Check12"},
    {&Form4::Check25, "Check25"}, {&Form4::Check19, "Check19"}, {&Form4::Check20, "Check20"},
    {&Form4::Check27, "Check27"}, {&Form4::Check28, "Check28"},
}};

Form4::Form4(const DatabaseSearchParts& parts, HitListPrint& printing, const CodePage& codePage,
             QWidget* parent)
    : Dialog("Form4", QStringLiteral("Search V.L.M. Database"), parent),
      codePage_(codePage),
      statusLine_(parts.statusLine),
      search_(parts, *this),
      printing_(printing) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    makeControls();
    makeButtons();
    arrange();
    setTabOrders();
    connectControls();
}

void Form4::makeControls() {
    make(Label1, "Label1", QStringLiteral("Search for:"), this);
    make(Text1, "Text1", this);
    Label1->setBuddy(Text1);
    make(Check1, "Check1", QStringLiteral("&Both Books"), this);
    make(Label2, "Label2", QStringLiteral("Fields to Search:"), this);
    make(Check11, "Check11", QStringLiteral("Search All Fields"), this);
    for (std::size_t i = 0; i < kFieldCount; ++i)
        make(this->*kFieldBoxes[i].box, kFieldBoxes[i].name,
             QLatin1String(kSearchFields[i].caption), this);
    make(Label4, "Label4", this);
    make(Label3, "Label3", QStringLiteral("Matching Entries:"), this);
    make(List1, "List1", codePage_, nullptr, this);
    List1->setAccessibleName(Label3->text());
    List1->setDragEnabled(false);
    List1->setTabStop(kHitTabStop);
    Label3->setBuddy(List1);
    make(Label5, "Label5",
         QStringLiteral("Double Click a match to go to that letter in the phone book."), this);
    Label5->setProperty("role", QStringLiteral("hint"));
    setType(*Label2, 9.75, QFont::DemiBold);
    setType(*Label3, 9.75, QFont::DemiBold);
}

void Form4::makeButtons() {
    make(Command1, "Command1", QStringLiteral("&Search"), this);
    make(Command2, "Command2", QStringLiteral("&Clear List"), this);
    make(Command3, "Command3", QStringLiteral("Clos&e"), this);
    make(Command4, "Command4", QStringLiteral("&Print List"), this);
    Command5 = makeHelpButton("Command5");
}

QLayout* Form4::questionRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kRowGap);
    row->addWidget(Label1);
    row->addWidget(Text1, 1);
    row->addWidget(Check1);
    row->addWidget(Command1);
    Command1->setMinimumWidth(100);
    return row;
}

QWidget* Form4::fieldCard() {
    auto* card = new QFrame(this);
    card->setProperty("role", QStringLiteral("card"));
    card->setAttribute(Qt::WA_StyledBackground);
    auto* head = new QHBoxLayout;
    head->addWidget(Label2);
    head->addStretch();
    head->addWidget(Check11);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kRowGap);
    grid->setVerticalSpacing(0);
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const int place = static_cast<int>(i);
        QCheckBox* box = this->*kFieldBoxes[i].box;
        box->setMinimumHeight(24);
        grid->addWidget(box, place % kFieldRows, place / kFieldRows);
        grid->setColumnStretch(place / kFieldRows, 1);
    }
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(14, 14, 14, 10);
    column->setSpacing(8);
    column->addLayout(head);
    column->addLayout(grid);
    return card;
}

// The frame stays in view while the list is hidden, so that nothing moves.
QWidget* Form4::hitCard() {
    QFrame* frame = makeListFrame(List1, this);
    frame->setMinimumHeight(kLeastHits * (fontMetrics().height() + 10) + 8);
    return frame;
}

void Form4::arrange() {
    auto* caption = new QHBoxLayout;
    caption->setSpacing(9);
    caption->addWidget(Label4);
    caption->addWidget(Label3);
    caption->addStretch();

    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addLayout(questionRow());
    body->addWidget(fieldCard());
    auto* hits = new QVBoxLayout;
    hits->setSpacing(8);
    hits->addLayout(caption);
    hits->addWidget(hitCard(), 1);
    hits->addWidget(Label5);
    body->addLayout(hits, 1);

    layOut(body, {.left = {Command5}, .right = {Command4, Command2, Command3}, .primary = Command1},
           {.first = kFormSize});
}

void Form4::setTabOrders() {
    std::vector<QWidget*> order{Text1, Check1, Command1, Check11};
    for (const FieldBox& each : kFieldBoxes)
        order.push_back(this->*each.box);
    order.push_back(List1);
    setTabStops(order);
}

void Form4::connectControls() {
    connect(Check11, &QCheckBox::toggled, this, &Form4::tickAllFields);
    connect(Command1, &QPushButton::clicked, this, [this] { search_.search(criteria()); });
    connect(Command2, &QPushButton::clicked, this, [this] {
        search_.clearHits();
        List1->setEmptyText(QString());
    });
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command4, &QPushButton::clicked, this, [this] { printing_.print(List1->lines()); });
    connect(List1, &QAbstractItemView::doubleClicked, this, &Form4::goToSelected);
    List1->installEventFilter(this);
    guard(*Text1, codePage_);
    connect(this, &Dialog::characterReplaced, this, [this] { statusLine_.show(kReplacedText); });
}

void Form4::present() {
    Dialog::present();
    Text1->setFocus();
    Text1->selectAll();
}

void Form4::beginAnew() {
    search_.opened();
    Text1->clear();
    Check1->setChecked(false);
    Check11->setChecked(true);
    tickAllFields(true);
    nameCustomFields();
    setHits({});
    showHitList(true);
    showLight(SearchLight::Done);
    List1->setEmptyText(QString());  // nothing has been searched yet
}

void Form4::tickAllFields(bool ticked) {
    for (const FieldBox& each : kFieldBoxes)
        (this->*each.box)->setChecked(ticked);
}

void Form4::nameCustomFields() {
    const CustomCaptions captions = search_.customCaptions();
    Check19->setText(plainCaption(captions.custom1, codePage_));
    Check20->setText(plainCaption(captions.custom2, codePage_));
}

SearchCriteria Form4::criteria() const {
    SearchCriteria result{fromQt(Text1->text(), codePage_), {}, Check1->isChecked()};
    for (std::size_t i = 0; i < kFieldCount; ++i)
        if ((this->*kFieldBoxes[i].box)->isChecked())
            result.fields.add(kSearchFields[i].field);
    return result;
}

void Form4::goToSelected() {
    search_.goTo(List1->selectedLine());
}

void Form4::showLight(SearchLight light) {
    const bool ended = light == SearchLight::Done;
    List1->setEmptyText(ended ? QStringLiteral("No matching entries.") : QString());
    if (light == SearchLight::Searching)
        Label4->setColour(Qt::red, QStringLiteral("Searching"));
    else
        Label4->setColour(Qt::green, QStringLiteral("Done"));
}

void Form4::showHitList(bool shown) {
    List1->setVisible(shown);
}

void Form4::setHits(std::vector<std::string> lines) {
    List1->setLines(std::move(lines));
}

// Every way to close comes by here.
void Form4::done(int result) {
    const bool open = isVisible();
    QDialog::done(result);
    if (open)
        search_.closed();
}

// On a hit Enter does what a double-click does; elsewhere it searches.
bool Form4::eventFilter(QObject* watched, QEvent* event) {
    if (watched == List1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            goToSelected();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace velmora
