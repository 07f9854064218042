// The controls of Preferences and where they stand.

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "core/forms/Setup.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/FolderChooser.h"
#include "platform/controls/GroupHead.h"
#include "platform/controls/Stepper.h"

namespace velmora {
namespace {

constexpr int kPageMargin = 24;
constexpr int kPageTop = 18;
constexpr int kGroupGap = 18;
constexpr int kRowGap = 8;
constexpr int kLabelGap = 4;
constexpr int kColumnGap = 24;
constexpr int kShortBox = 150;

template <typename Control>
Control* make(const char* name, QWidget* parent) {
    auto* control = new Control(parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

template <typename Button>
Button* make(const char* name, const char* caption, QWidget* parent) {
    auto* button = make<Button>(name, parent);
    button->setText(QString::fromLatin1(caption));
    return button;
}

QPushButton* makeBrowse(const char* name, const char* what, QWidget* parent) {
    QPushButton* button = makeDialogButton(name, "...", parent);
    button->setProperty("role", QStringLiteral("browse"));
    button->setAccessibleName(QString::fromLatin1(what));
    button->setToolTip(QString::fromLatin1(what));
    return button;
}

QLabel* makeHint(const char* text, QWidget* parent) {
    auto* hint = new QLabel(QString::fromLatin1(text), parent);
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    return hint;
}

// A label of the size of its field, beside it.
QLabel* makeCaption(const char* text, QWidget* buddy) {
    auto* label = new QLabel(QString::fromLatin1(text), buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

Stepper* makeNumber(const char* arrows, const char* label, QWidget* parent) {
    auto* stepper = new Stepper(QString::fromLatin1(arrows), QString::fromLatin1(label), parent);
    stepper->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return stepper;
}

QBoxLayout* makePage() {
    auto* page = new QVBoxLayout;
    page->setContentsMargins(kPageMargin, kPageTop, kPageMargin, kPageTop);
    page->setSpacing(kRowGap);
    return page;
}

QBoxLayout* makeRow(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kRowGap);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    return row;
}

// The same with nothing to the right of them.
QBoxLayout* makeShortRow(std::initializer_list<QWidget*> widgets) {
    QBoxLayout* row = makeRow(widgets);
    row->addStretch();
    return row;
}

}  // namespace

void Setup::makeControls() {
    auto* ports = new QButtonGroup(this);
    for (std::size_t i = 0; i < ports_.size(); ++i) {
        const QString number = QString::number(i + 1);
        ports_.at(i) = new QRadioButton(QStringLiteral("COM ") + number, this);
        ports_.at(i)->setObjectName(QStringLiteral("Option") + number);
        ports->addButton(ports_.at(i));
    }
    Option9 = make<QRadioButton>("Option9", "&Tone", this);
    Option10 = make<QRadioButton>("Option10", "&Pulse", this);
    auto* modes = new QButtonGroup(this);
    for (QRadioButton* mode : {Option9, Option10})
        modes->addButton(mode);
    Option11 = make<QRadioButton>("Option11", "&Left", this);
    Option12 = make<QRadioButton>("Option12", "&Right", this);
    Option13 = make<QRadioButton>("Option13", "&Center", this);
    auto* positions = new QButtonGroup(this);
    for (QRadioButton* position : {Option11, Option12, Option13})
        positions->addButton(position);

    Check1 = make<QCheckBox>("Check1", "Include &Phone Numbers and E-Mail", this);
    Check2 = make<QCheckBox>("Check2", "&Show Events of The Day at Startup", this);
    Check3 = make<QCheckBox>("Check3", "&Log Phone Calls", this);
    Check4 = make<QCheckBox>("Check4", "&Tab Before Salutation", this);
    Check5 = make<QCheckBox>("Check5", "&Use Caller ID", this);
    Check6 = make<QCheckBox>("Check6",
                             "&Use Internet Settings from Control Panel (Optimize for Internet "
                             "Explorer)",
                             this);
    Check7 = make<QCheckBox>("Check7",
                             "&Auto WordWrap DocPad Print Jobs. (Adds carriage returns at set "
                             "intervals to prevent printer run off).",
                             this);
    Check8 = make<QCheckBox>("Check8", "&Keep Current DocPad Document Active", this);
    Check9 = make<QCheckBox>("Check9", "Print the Envelope:", this);
    Check10 = make<QCheckBox>("Check10", "Print &Header", this);

    for (const auto& [box, name] :
         {std::pair(&Text1, "Text1"), std::pair(&Text2, "Text2"), std::pair(&Text3, "Text3"),
          std::pair(&Text4, "Text4"), std::pair(&Text5, "Text5"), std::pair(&Text6, "Text6"),
          std::pair(&Text7, "Text7"), std::pair(&Text8, "Text8"), std::pair(&Text9, "Text9"),
          std::pair(&Text10, "Text10"), std::pair(&Text11, "Text11"), std::pair(&Text12, "Text12"),
          std::pair(&Text14, "Text14"), std::pair(&Text15, "Text15")})
        *box = make<QLineEdit>(name, this);
}

QBoxLayout* Setup::phonePage() {
    auto* ports = new QHBoxLayout;
    for (QRadioButton* port : ports_)
        ports->addWidget(port, 1);
    chooseDialer = makeBrowse("chooseDialer", "Select the external dialer", this);

    auto* numbers = new QGridLayout;
    numbers->setHorizontalSpacing(kColumnGap);
    numbers->setVerticalSpacing(kLabelGap);
    numbers->addWidget(makeLabel(QStringLiteral("Dialing Prefix:"), Text5), 0, 0);
    numbers->addWidget(makeLabel(QStringLiteral("Local Area Code:"), Text9), 0, 1);
    numbers->addWidget(Text5, 1, 0);
    numbers->addWidget(Text9, 1, 1);
    numbers->addWidget(makeHint("Area codes in phone numbers will be removed prior to dialing if "
                                "within the first 4 digits.",
                                this),
                       2, 1);

    QBoxLayout* page = makePage();
    page->addLayout(makeGroupHead(QStringLiteral("COM Port:"), this));
    page->addLayout(ports);
    page->addSpacing(kRowGap);
    page->addLayout(makeGroupHead(QStringLiteral("Phone Type:"), this));
    page->addLayout(makeShortRow({Option9, Option10}));
    page->addSpacing(kRowGap);
    page->addWidget(makeHairline(this));
    page->addLayout(numbers);
    page->addWidget(
        makeLabel(QStringLiteral("Modem Initialization String (If Necessary) (Used to Reset the "
                                 "Modem):"),
                  Text1));
    page->addWidget(Text1);
    page->addWidget(makeLabel(QStringLiteral("External Dialer:"), Text14));
    page->addLayout(makeRow({Text14, chooseDialer}));
    page->addSpacing(kLabelGap);
    page->addLayout(makeShortRow({Check3, makeHint("in PHONELOG.TXT.", this)}));
    page->addWidget(Check5);
    page->addStretch();
    return page;
}

QBoxLayout* Setup::networkPage() {
    struct Folder {
        const char* caption;
        QLineEdit* box;
        const char* set;
        const char* setName;
        const char* clearName;
    };
    const std::array rows{
        Folder{"White Pages Path", Text4, "Set White Pages Path", "setWhite", "clearWhite"},
        Folder{"Yellow Pages Path", Text7, "Set Yellow Pages Path", "setYellow", "clearYellow"},
        Folder{"Calendar Path", Text15, "Set Calendar Path", "setCalendar", "clearCalendar"}};
    folders_ = make<FolderChooser>("folders", this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kRowGap);
    grid->setVerticalSpacing(kLabelGap);
    grid->setColumnStretch(0, 1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Folder& row = rows.at(i);
        const int line = static_cast<int>(i) * 2;
        setFolder_.at(i) = makeDialogButton(row.setName, row.set, this);
        clear_.at(i) = makeDialogButton(row.clearName, "&Clear", this);
        grid->addWidget(makeLabel(QString::fromLatin1(row.caption), row.box), line, 0);
        grid->addWidget(row.box, line + 1, 0);
        grid->addWidget(setFolder_.at(i), line + 1, 1);
        grid->addWidget(clear_.at(i), line + 1, 2);
    }
    QBoxLayout* page = makePage();
    page->addWidget(folders_, 1);
    page->addLayout(grid);
    return page;
}

QLayout* Setup::hours() {
    start_ = makeNumber("VScroll1", "Label27", this);
    end_ = makeNumber("VScroll2", "Label28", this);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(makeCaption("Start:", start_->arrows()));
    row->addWidget(start_);
    row->addSpacing(32);
    row->addWidget(makeCaption("End:", end_->arrows()));
    row->addWidget(end_);
    row->addStretch();
    return row;
}

QBoxLayout* Setup::plannerPage() {
    days_ = makeNumber("VScroll3", "Label11", this);
    chooseSound = makeBrowse("chooseSound", "Select Sound File", this);
    playNow = makeDialogButton("playNow", "&Play Now", this);
    auto* days = new QHBoxLayout;
    days->setSpacing(12);
    days->addWidget(
        makeCaption("Number of days before event you should be reminded:", days_->arrows()));
    days->addWidget(days_);
    days->addStretch();

    QBoxLayout* page = makePage();
    page->addLayout(makeGroupHead(QStringLiteral("Planner Hours Shown:"), this));
    page->addLayout(hours());
    page->addSpacing(kGroupGap - kRowGap);
    page->addLayout(makeGroupHead(QStringLiteral("Alarm Options"), this));
    page->addLayout(
        makeRow({makeCaption("Play Sound on Alarm:", Text10), Text10, chooseSound, playNow}));
    page->addSpacing(kGroupGap - kRowGap);
    page->addLayout(makeGroupHead(QStringLiteral("Datewarden Options"), this));
    page->addWidget(Check2);
    page->addLayout(days);
    page->addSpacing(kRowGap);
    page->addWidget(makeHairline(this));
    page->addSpacing(kRowGap);
    for (QCheckBox* box : {Check8, Check7, Check10})
        page->addWidget(box);
    page->addStretch();
    return page;
}

QBoxLayout* Setup::phonebookPage() {
    auto* names = new QGridLayout;
    names->setHorizontalSpacing(kColumnGap);
    names->setVerticalSpacing(kLabelGap);
    Text3->setAccessibleName(tr("Name of the first custom field"));
    Text2->setAccessibleName(tr("Name of the second custom field"));
    names->addWidget(Text3, 0, 0);
    names->addWidget(Text2, 0, 1);

    QBoxLayout* page = makePage();
    page->addLayout(makeGroupHead(QStringLiteral("Envelope Printing:"), this));
    page->addLayout(makeShortRow({Option11, Option12, Option13}));
    page->addWidget(Check9);
    page->addSpacing(kGroupGap - kRowGap);
    page->addWidget(makeHairline(this));
    page->addLayout(makeShortRow({Check1, makeHint("With Reports.", this)}));
    page->addWidget(Check4);
    page->addSpacing(kLabelGap);
    page->addWidget(makeLabel(QStringLiteral("Default Salutation:"), Text6));
    page->addWidget(Text6);
    page->addSpacing(kGroupGap - kRowGap);
    page->addLayout(makeGroupHead(QStringLiteral("Names of custom phonebook fields:"), this));
    page->addLayout(names);
    page->addStretch();
    return page;
}

QBoxLayout* Setup::internetPage() {
    Command8 = makeBrowse("Command8", "Select the web browser", this);
    Command13 = makeBrowse("Command13", "Select the e-mail reader", this);
    QBoxLayout* page = makePage();
    page->addWidget(Check6);
    page->addWidget(
        makeHint("By selecting this option you don't need to specify any of the other "
                 "options listed below.",
                 this));
    page->addSpacing(kRowGap);
    page->addWidget(makeHairline(this));
    page->addSpacing(kLabelGap);
    page->addWidget(makeHint("Click the button to the right of each box to select...", this));
    page->addWidget(makeLabel(QStringLiteral("Your Web Browser:"), Text8));
    page->addLayout(makeRow({Text8, Command8}));
    page->addWidget(makeLabel(QStringLiteral("Your E-Mail Reader"), Text11));
    page->addLayout(makeRow({Text11, Command13}));
    page->addSpacing(kRowGap);
    page->addWidget(makeLabel(
        QStringLiteral("Command Line Options for E-mail Reader to create new messages:"), Text12));
    Text12->setMinimumWidth(kShortBox);
    page->addLayout(makeRow({Text12, new QLabel(QStringLiteral("+ recipient you click"), this)}));
    page->addWidget(makeHint("Not needed for Eudora or Exchange", this));
    page->addStretch();
    return page;
}

}  // namespace velmora
