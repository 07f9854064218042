#include "phonebook/forms/AddForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

#include "phonebook/EntryClasses.h"
#include "phonebook/EntryFormTexts.h"
#include "platform/Failure.h"
#include "platform/Text.h"
#include "platform/controls/CodePageGuard.h"
#include "platform/controls/DialogButton.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kRowGap = 12;
constexpr int kFieldGap = 10;
constexpr int kLabelGap = 4;
constexpr QSize kFormSize(860, 606);

// A text of the user's own, in which no "&" marks an access key.
QString literally(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

FileQuestion attachmentQuestion() {
    return {.title = "Select Contact Attachment",
            .defaultExtension = ".exe",
            .filter =
                "Program Files (*.exe)|*.exe|Document Files (*.doc)|*.doc|"
                "Text Files (*.txt)|*.txt|All Files (*.*)|*.*",
            .fileName = {}};
}

template <typename Control>
void make(Control*& control, const char* name, QWidget* parent) {
    control = new Control(parent);
    control->setObjectName(QLatin1String(name));
}

void caption(QLabel* label, const QString& text, QWidget* buddy) {
    label->setText(text);
    label->setBuddy(buddy);
}

// A label above its control.
QLayout* field(QLabel* label, QWidget* control) {
    auto* column = new QVBoxLayout;
    column->setSpacing(kLabelGap);
    label->ensurePolished();
    label->setMinimumHeight(label->fontMetrics().height() + 1);
    column->addWidget(label);
    column->addWidget(control);
    return column;
}

QHBoxLayout* row() {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(kFieldGap);
    return layout;
}

QLayout* halves(QLayout* left, QLayout* right) {
    QHBoxLayout* layout = row();
    layout->addLayout(left, 1);
    layout->addLayout(right, 1);
    return layout;
}

}  // namespace

AddForm::AddForm(EntryEditor& editor, Messages& messages, StatusLine& statusLine,
                 const CodePage& codePage, QWidget* parent)
    : Dialog("AddForm", toQt(editor.caption(), codePage), parent),
      editor_(editor),
      messages_(messages),
      statusLine_(statusLine),
      codePage_(codePage),
      memoBytes_(codePage) {
    setWindowModality(Qt::WindowModal);
    makeControls();
    setCaptions();
    arrange();
    connectControls();
    try {
        showValues(editor_.load());
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
    guardTexts();
    watchEdits();
    (Check1->isChecked() ? Text5 : Text1)->setFocus();
}

AddForm::~AddForm() {
    tellClosed();
}

void AddForm::done(int result) {
    QDialog::done(result);
    tellClosed();
}

void AddForm::tellClosed() {
    if (open_) {
        open_ = false;
        editor_.closed();
    }
}

void AddForm::makeControls() {
    make(Check1, "Check1", this);
    make(Text1, "Text1", this);
    make(Text2, "Text2", this);
    make(Text3, "Text3", this);
    make(Text4, "Text4", this);
    make(Text5, "Text5", this);
    make(Text6, "Text6", this);
    make(Text7, "Text7", this);
    make(Text8, "Text8", this);
    make(Text17, "Text17", this);
    make(Text18, "Text18", this);
    make(Text22, "Text22", this);
    make(Text24, "Text24", this);
    make(Text12, "Text12", this);
    make(Combo1, "Combo1", this);
    make(Text21, "Text21", this);
    make(Text9, "Text9", this);
    make(Text14, "Text14", this);
    make(Text10, "Text10", this);
    make(Text13, "Text13", this);
    make(Text15, "Text15", this);
    make(Text16, "Text16", this);
    make(Text23, "Text23", this);
    make(Text20, "Text20", this);
    make(Text19, "Text19", this);
    make(Text25, "Text25", this);
    make(Command3, "Command3", this);
    make(Text11, "Text11", this);
    make(Command1, "Command1", this);
    make(Command2, "Command2", this);
    QLabel** const labels[] = {&Label1,  &Label2,  &Label3,  &Label4,  &Label5,  &Label6,
                               &Label7,  &Label8,  &Label9,  &Label10, &Label11, &Label12,
                               &Label13, &Label14, &Label15, &Label16, &Label17, &Label18,
                               &Label19, &Label20, &Label21, &Label22};
    int number = 0;
    for (QLabel** label : labels) {
        make(*label, "", this);
        (*label)->setObjectName(QStringLiteral("Label%1").arg(++number));
        (*label)->setProperty("role", QStringLiteral("label"));
        (*label)->setTextFormat(Qt::PlainText);
        QSizePolicy policy = (*label)->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        if (label == &Label17 || label == &Label18)  // the user's own texts, of any length
            policy.setHorizontalPolicy(QSizePolicy::Ignored);
        (*label)->setSizePolicy(policy);
    }
    Combo1->setEditable(true);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Combo1->setCompleter(nullptr);                             // what is typed stays as it is typed
    Combo1->setItemDelegate(new QStyledItemDelegate(Combo1));  // rows as the style sheet has them
    Combo1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    Combo1->setMinimumContentsLength(8);
    Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Text11->setTabChangesFocus(true);
}

void AddForm::setCaptions() {
    Check1->setText(QStringLiteral("Just A Company; No Name Needed"));
    caption(Label1, QStringLiteral("Salutation:"), Text12);
    caption(Label2, QStringLiteral("Title: (ie. Mr.)"), Text1);
    caption(Label3, QStringLiteral("First Name (+ Middle Initial):"), Text2);
    caption(Label4, QStringLiteral("Last Name:"), Text3);
    caption(Label5, QStringLiteral("Company Title/Position:"), Text4);
    caption(Label6, QStringLiteral("Company Name:"), Text5);
    caption(Label7, QStringLiteral("Address Information, Attn:, Apt. #, etc.:"), Text6);
    caption(Label8, QStringLiteral("Telephone Number:"), Text9);
    caption(Label9, QStringLiteral("Fax Number:"), Text10);
    caption(Label10, QStringLiteral("Memo:"), Text11);
    caption(Label11, QStringLiteral("Class (i.e. Business; Personal; etc.):"), Combo1);
    caption(Label12, QStringLiteral("Work Number:"), Text14);
    caption(Label13, QStringLiteral("Pager Number:"), Text13);
    caption(Label14, QStringLiteral("Cellular/Other Number:"), Text15);
    caption(Label15, QStringLiteral("E-Mail Address:"), Text16);
    caption(Label16, QStringLiteral("Country:"), Text18);
    caption(Label17, literally(toQt(editor_.custom1Caption(), codePage_)), Text20);
    caption(Label18, literally(toQt(editor_.custom2Caption(), codePage_)), Text19);
    caption(Label19, QStringLiteral("Date Reference/ Last Appointment:"), Text21);
    caption(Label20, QStringLiteral("Web Page:"), Text23);
    caption(Label21, QStringLiteral("Postal/Zip Code:"), Text22);
    caption(Label22, QStringLiteral("Spouse's Full Name:"), Text24);
    Text7->setAccessibleName(QStringLiteral("Address 2"));
    Text8->setAccessibleName(QStringLiteral("Address 3"));
    Text17->setAccessibleName(QStringLiteral("Address 4"));
    Text25->setAccessibleName(QStringLiteral("File Attachment"));
    Text25->setPlaceholderText(QStringLiteral("File Attachment"));
    Command1->setText(toQt(editor_.applyCaption(), codePage_));
    Command2->setText(QStringLiteral("&Cancel"));
    Command3->setText(QStringLiteral("..."));
    Command3->setAccessibleName(QStringLiteral("Select Contact Attachment"));
    for (const char* name : kEntryClasses)
        Combo1->addItem(QLatin1String(name));
    Combo1->setCurrentIndex(-1);
}

QLayout* AddForm::leftColumn() {
    auto* names = row();
    names->addLayout(field(Label2, Text1));
    names->addLayout(field(Label3, Text2), 1);
    names->addLayout(field(Label4, Text3), 1);
    Text1->setFixedWidth(92);

    auto* address = new QGridLayout;
    address->setHorizontalSpacing(kFieldGap);
    address->setVerticalSpacing(kFieldGap);
    address->addLayout(field(Label7, Text6), 0, 0);
    address->addWidget(Text7, 0, 1, Qt::AlignBottom);
    address->addWidget(Text8, 1, 0);
    address->addWidget(Text17, 1, 1);
    address->setColumnStretch(0, 1);
    address->setColumnStretch(1, 1);

    auto* country = row();
    country->addLayout(field(Label16, Text18), 1);
    country->addLayout(field(Label21, Text22));
    Text22->setFixedWidth(150);

    auto* column = new QVBoxLayout;
    column->setSpacing(kFieldGap);
    column->addLayout(names);
    column->addLayout(halves(field(Label5, Text4), field(Label6, Text5)));
    column->addLayout(address);
    column->addLayout(country);
    column->addLayout(halves(field(Label22, Text24), field(Label1, Text12)));
    column->addLayout(halves(field(Label11, Combo1), field(Label19, Text21)));
    return column;
}

QLayout* AddForm::rightColumn() {
    auto* attachment = new QHBoxLayout;
    attachment->setSpacing(8);
    attachment->addWidget(Text25, 1);
    attachment->addWidget(Command3);
    Command3->setProperty("role", QStringLiteral("browse"));

    auto* column = new QVBoxLayout;
    column->setSpacing(kFieldGap);
    column->addLayout(halves(field(Label8, Text9), field(Label12, Text14)));
    column->addLayout(halves(field(Label9, Text10), field(Label13, Text13)));
    column->addLayout(field(Label14, Text15));
    column->addLayout(field(Label15, Text16));
    column->addLayout(field(Label20, Text23));
    column->addLayout(halves(field(Label17, Text20), field(Label18, Text19)));
    column->addLayout(attachment);
    return column;
}

QLayout* AddForm::memoRow() {
    QLayout* column = field(Label10, Text11);
    Text11->document()->setDocumentMargin(10);
    Text11->setMinimumHeight(2 * Text11->fontMetrics().height() + 22);
    return column;
}

void AddForm::arrange() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(leftColumn(), 135);
    columns->addLayout(rightColumn(), 100);

    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    Check1->setMinimumHeight(24);
    body->addWidget(Check1, 0, Qt::AlignLeft);
    body->addLayout(columns);
    body->addLayout(memoRow(), 1);

    layOut(body, {.right = {Command1, Command2}, .primary = Command1}, {.first = kFormSize});
    setTabStops({Check1, Text1,  Text2,  Text3,  Text4,  Text5,  Text6,    Text7,  Text8,  Text17,
                 Text18, Text22, Text24, Text12, Combo1, Text21, Text9,    Text14, Text10, Text13,
                 Text15, Text16, Text23, Text20, Text19, Text25, Command3, Text11});
}

void AddForm::connectControls() {
    connect(Check1, &QCheckBox::toggled, this, &AddForm::showForCompany);
    connect(Command1, &QPushButton::clicked, this, &AddForm::apply);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command3, &QPushButton::clicked, this, &AddForm::chooseAttachment);
}

// Begins after the values are shown: what a book holds is taken as it is.
void AddForm::guardTexts() {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        const std::size_t width = placeOf(field).width;
        const int most = static_cast<int>(width);
        QLineEdit* box = boxOf(field);
        const auto* guard = box ? new CodePageGuard(*box, codePage_, most)
                                : new CodePageGuard(*Text11, codePage_, most);
        connect(guard, &CodePageGuard::replaced, this, [this] { statusLine_.show(kReplacedText); });
        connect(guard, &CodePageGuard::cut, this,
                [this, width] { statusLine_.show(cutText(width)); });
    }
}

void AddForm::watchEdits() {
    for (std::size_t i = 0; i < kFieldCount; ++i)
        if (QLineEdit* box = boxOf(static_cast<Field>(i)))
            connect(box, &QLineEdit::textChanged, this, &AddForm::edited);
    connect(Text11, &QPlainTextEdit::textChanged, this, &AddForm::edited);
    connect(Check1, &QCheckBox::toggled, this, &AddForm::edited);
}

// Nothing for the memo.
QLineEdit* AddForm::boxOf(Field field) const {
    QLineEdit* const boxes[kFieldCount] = {
        Text2,   Text3,  Text1,  Text5,  Text4,  Text6,  Text7,  Text8,  Text17, Text18,
        Text22,  Text9,  Text14, Text10, Text13, Text15, Text16, Text23, Text12, Combo1->lineEdit(),
        nullptr, Text21, Text20, Text19, Text25, Text24};
    return boxes[static_cast<std::size_t>(field)];
}

void AddForm::showValues(const Entry& values) {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        const std::string& value = values[field];
        if (QLineEdit* box = boxOf(field)) {
            box->setText(toQt(value, codePage_));
            box->setCursorPosition(0);
        } else {
            QTextCursor cursor(Text11->document());
            memoBytes_.insert(cursor, value);
            Text11->document()->clearUndoRedoStacks();
            Text11->moveCursor(QTextCursor::Start);
        }
    }
    Check1->setChecked(values.justCompany);
}

Entry AddForm::values() const {
    Entry result;
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        const QLineEdit* box = boxOf(field);
        result[field] = box ? fromQt(box->text(), codePage_) : memoBytes_.all(*Text11->document());
    }
    result.justCompany = Check1->isChecked();
    return result;
}

void AddForm::showForCompany(bool justCompany) {
    for (QLineEdit* box : {Text1, Text2, Text3, Text4, Text24})
        box->setEnabled(!justCompany);
    for (QLabel* label : {Label2, Label3, Label4, Label5, Label22})
        label->setVisible(!justCompany);
}

void AddForm::chooseAttachment() {
    const auto path = messages_.chooseFileToOpen(attachmentQuestion());
    if (!path || path->empty())
        return;
    if (path->size() > placeOf(Field::FileAttachment).width)
        messages_.warn(kApplicationTitle, tooLongPathText());
    else
        Text25->setText(toQt(*path, codePage_));
}

void AddForm::apply() {
    try {
        switch (editor_.apply(values())) {
            case EntryEditor::Outcome::Written:
                accept();
                break;
            case EntryEditor::Outcome::RefusedNamesCleared:
                for (QLineEdit* box : {Text1, Text2, Text3})
                    box->clear();
                break;
            case EntryEditor::Outcome::Refused:
                break;
        }
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
}

}  // namespace velmora
