#include "phonebook/forms/AddForm.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <memory>

#include "forms/Widgets.h"
#include "platform/Failure.h"
#include "support/FakeEntryEditor.h"
#include "support/FakeMessages.h"
#include "support/FakeStatusLine.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct BoxOfField {
    const char* control;
    Field field;
};

constexpr BoxOfField kBoxes[] = {
    {"Text1", Field::Title},
    {"Text2", Field::First},
    {"Text3", Field::Last},
    {"Text4", Field::Position},
    {"Text5", Field::Company},
    {"Text6", Field::Address1},
    {"Text7", Field::Address2},
    {"Text8", Field::Address3},
    {"Text17", Field::Address4},
    {"Text18", Field::Country},
    {"Text22", Field::PostalCode},
    {"Text9", Field::Phone},
    {"Text14", Field::WorkPhone},
    {"Text10", Field::Fax},
    {"Text13", Field::Pager},
    {"Text15", Field::OtherPhone},
    {"Text16", Field::EMail},
    {"Text23", Field::WebPage},
    {"Text12", Field::Salutation},
    {"Text21", Field::DateReference},
    {"Text20", Field::Custom1},
    {"Text19", Field::Custom2},
    {"Text25", Field::FileAttachment},
    {"Text24", Field::Spouse},
};

class AddFormTest : public testing::Test {
  protected:
    AddForm& open() {
        form = std::make_unique<AddForm>(editor, messages, statusLine, CodePage::western());
        test::showActive(*form);
        return *form;
    }

    QLineEdit& box(const char* name) { return test::named<QLineEdit>(*form, name); }
    QPlainTextEdit& memo() { return test::named<QPlainTextEdit>(*form, "Text11"); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(*form, name); }
    QCheckBox& justCompany() { return test::named<QCheckBox>(*form, "Check1"); }
    QComboBox& classes() { return test::named<QComboBox>(*form, "Combo1"); }

    void click(QAbstractButton& target) { QTest::mouseClick(&target, Qt::LeftButton); }

    test::FakeEntryEditor editor;
    test::FakeMessages messages;
    test::FakeStatusLine statusLine;
    std::unique_ptr<AddForm> form;
};

TEST_F(AddFormTest, ShowsEveryCaptionAboveItsControl) {
    open();
    struct Row {
        const char* label;
        const char* text;
        const char* buddy;
    };
    for (const Row& row : {
             Row{"Label1", "Salutation:", "Text12"},
             Row{"Label2", "Title: (ie. Mr.)", "Text1"},
             Row{"Label3", "First Name (+ Middle Initial):", "Text2"},
             Row{"Label4", "Last Name:", "Text3"},
             Row{"Label5", "Company Title/Position:", "Text4"},
             Row{"Label6", "Company Name:", "Text5"},
             Row{"Label7", "Address Information, Attn:, Apt. #, etc.:", "Text6"},
             Row{"Label8", "Telephone Number:", "Text9"},
             Row{"Label9", "Fax Number:", "Text10"},
             Row{"Label10", "Memo:", "Text11"},
             Row{"Label11", "Class (i.e. Business; Personal; etc.):", "Combo1"},
             Row{"Label12", "Work Number:", "Text14"},
             Row{"Label13", "Pager Number:", "Text13"},
             Row{"Label14", "Cellular/Other Number:", "Text15"},
             Row{"Label15", "E-Mail Address:", "Text16"},
             Row{"Label16", "Country:", "Text18"},
             Row{"Label17", "Custom1:", "Text20"},
             Row{"Label18", "Custom2", "Text19"},
             Row{"Label19", "Date Reference/ Last Appointment:", "Text21"},
             Row{"Label20", "Web Page:", "Text23"},
             Row{"Label21", "Postal/Zip Code:", "Text22"},
             Row{"Label22", "Spouse's Full Name:", "Text24"},
         }) {
        const QLabel& label = test::named<QLabel>(*form, row.label);
        EXPECT_EQ(row.text, label.text().toStdString());
        ASSERT_NE(nullptr, label.buddy()) << row.label;
        EXPECT_EQ(row.buddy, label.buddy()->objectName().toStdString());
        EXPECT_LE(label.sizeHint().width(), label.width()) << row.label << " is clipped";
    }
    EXPECT_EQ("Just A Company; No Name Needed", justCompany().text().toStdString());
    EXPECT_EQ("&Cancel", button("Command2").text().toStdString());
    EXPECT_EQ("...", button("Command3").text().toStdString());
}

TEST_F(AddFormTest, TakesItsOwnCaptionsFromTheEditor) {
    editor.captionText = "Edit Entry";
    editor.applyText = "&Keep Changes";
    editor.custom1Text = "Account:";
    editor.custom2Text = "Rem\xE1rks:";
    open();
    EXPECT_EQ("Edit Entry", form->windowTitle().toStdString());
    EXPECT_EQ("&Keep Changes", button("Command1").text().toStdString());
    EXPECT_EQ("Account:", test::named<QLabel>(*form, "Label17").text().toStdString());
    EXPECT_EQ(QString::fromUtf8("Remárks:"), test::named<QLabel>(*form, "Label18").text());
}

TEST_F(AddFormTest, OffersTheClassesInTheirOrderAndTakesAnyOther) {
    open();
    QStringList names;
    for (int i = 0; i < classes().count(); ++i)
        names << classes().itemText(i);
    EXPECT_EQ(
        "Business|Company|Personal|Colleague|Friend|Relative|Associate|Important|Patron|Customer|"
        "Employer|Employee|PhD|MD|C.P.A.|Doctor|Electrical Company|Credit Card Company|"
        "Water Company|Utility Company|Computer Company|CFO|CEO|CIO|MIS|Manager|"
        "Network Administrator|Official|School Related",
        names.join(QLatin1Char('|')).toStdString());
    EXPECT_EQ(29, classes().count());
    classes().setFocus();
    QTest::keyClicks(classes().lineEdit(), QStringLiteral("comp"));
    EXPECT_EQ("comp", classes().currentText().toStdString());
    QTest::keyClick(classes().lineEdit(), Qt::Key_Return);
    ASSERT_EQ(1U, editor.applied.size());
    EXPECT_EQ("comp", editor.applied[0][Field::Class]);
    EXPECT_EQ(29, classes().count());
}

TEST_F(AddFormTest, LinesUpItsFieldsAndTheCheckBox) {
    open();
    QStyleOptionButton option;
    option.initFrom(&justCompany());
    const QRect indicator = justCompany().style()->subElementRect(QStyle::SE_CheckBoxIndicator,
                                                                  &option, &justCompany());
    const auto left = [&](const QWidget& widget) { return widget.mapTo(form.get(), QPoint()).x(); };
    EXPECT_EQ(left(box("Text1")), left(justCompany()) + indicator.left());
    EXPECT_EQ(left(box("Text1")), left(classes()));
    EXPECT_EQ(left(box("Text1")), left(memo()));
    EXPECT_EQ(box("Text21").height(), classes().height());
    EXPECT_EQ(box("Text21").y(), classes().y());
    EXPECT_EQ(box("Text21").y(), box("Text25").y());
}

TEST_F(AddFormTest, IsEmptyForANewEntryAndStartsAtTheFirstField) {
    open();
    for (const BoxOfField& each : kBoxes)
        EXPECT_EQ("", box(each.control).text().toStdString()) << each.control;
    EXPECT_EQ("", classes().currentText().toStdString());
    EXPECT_EQ("", memo().toPlainText().toStdString());
    EXPECT_FALSE(justCompany().isChecked());
    EXPECT_TRUE(box("Text1").hasFocus());
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(QSize(860, 606), form->size());
}

TEST_F(AddFormTest, ShowsTheLoadedValuesAndGivesThemBackUntouched) {
    for (const BoxOfField& each : kBoxes)
        editor.toLoad[each.field] = std::string(" \xE9 ") + each.control + " ";
    editor.toLoad[Field::Class] = "Neighbour";
    editor.toLoad[Field::Memo] = "first & line\r\nsecond \x80\r\n";
    open();
    for (const BoxOfField& each : kBoxes)
        EXPECT_EQ(QString::fromUtf8(" é ") + QLatin1String(each.control) + QLatin1Char(' '),
                  box(each.control).text());
    EXPECT_EQ("Neighbour", classes().currentText().toStdString());
    EXPECT_EQ(QString::fromUtf8("first & line\nsecond €\n"), memo().toPlainText());
    click(button("Command1"));
    ASSERT_EQ(1U, editor.applied.size());
    EXPECT_EQ(editor.toLoad.fields, editor.applied[0].fields);
    EXPECT_FALSE(editor.applied[0].justCompany);
}

TEST_F(AddFormTest, TakesAsManyBytesInEachFieldAsTheRecordHolds) {
    open();
    const auto expectFull = [&](QLineEdit& line, Field field) {
        const std::size_t width = placeOf(field).width;
        line.clear();
        line.insert(QString(static_cast<int>(width), QLatin1Char('x')));
        statusLine.text.clear();
        QTest::keyClicks(&line, QStringLiteral("y"));
        EXPECT_EQ(std::string(width, 'x'), line.text().toStdString());
        EXPECT_EQ(
            "This field holds " + std::to_string(width) + " characters; the rest was left out.",
            statusLine.text);
    };
    for (const BoxOfField& each : kBoxes)
        expectFull(box(each.control), each.field);
    expectFull(*classes().lineEdit(), Field::Class);
}

TEST_F(AddFormTest, TellsThatAPastedMemoWasCut) {
    open();
    QGuiApplication::clipboard()->setText(QString(251, QLatin1Char('m')));
    memo().setFocus();
    QTest::keyClick(&memo(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(250, memo().toPlainText().size());
    EXPECT_EQ("This field holds 250 characters; the rest was left out.", statusLine.text);
}

TEST_F(AddFormTest, KeepsHardBlanksAndLoneLineEndsOfAFullMemo) {
    const std::string full = "a\xA0 b\nc\rd\r\n" + std::string(238, 'x') + "\ny";
    ASSERT_EQ(250U, full.size());
    editor.toLoad[Field::Memo] = full;
    open();
    QTest::keyClicks(&box("Text9"), QStringLiteral("555"));
    click(button("Command1"));
    ASSERT_EQ(1U, editor.applied.size());
    EXPECT_EQ(full, editor.applied[0][Field::Memo]);
}

TEST_F(AddFormTest, TakesNoCharacterMoreInAFullMemoWithLoneLineFeeds) {
    const std::string full = "a\nb\n" + std::string(246, 'x');
    editor.toLoad[Field::Memo] = full;
    editor.outcome = EntryEditor::Outcome::Refused;
    open();
    memo().moveCursor(QTextCursor::End);
    QTest::keyClicks(&memo(), QStringLiteral("y"));
    click(button("Command1"));
    QTest::keyClick(&memo(), Qt::Key_Backspace);
    QTest::keyClicks(&memo(), QStringLiteral("z"));
    click(button("Command1"));
    ASSERT_EQ(2U, editor.applied.size());
    EXPECT_EQ(full, editor.applied[0][Field::Memo]);
    EXPECT_EQ(full.substr(0, 249) + "z", editor.applied[1][Field::Memo]);
}

TEST_F(AddFormTest, RefusesAnAttachmentWhosePathHasNoRoom) {
    open();
    box("Text25").setText(QStringLiteral("old"));
    messages.willAnswer("/" + std::string(255, 'f'));
    click(button("Command3"));
    EXPECT_EQ("old", box("Text25").text().toStdString());
    EXPECT_THAT(messages.takeShown(),
                testing::Contains("warn|Velmora|The path of this file is longer than the 255 "
                                  "characters that an entry has room for."));
}

TEST_F(AddFormTest, ShowsAnAmpersandOfACustomCaptionAsItIs) {
    editor.custom1Text = "R&D:";
    open();
    const QLabel& label = test::named<QLabel>(*form, "Label17");
    EXPECT_EQ("R&&D:", label.text().toStdString());
    QTest::keyClick(form.get(), Qt::Key_D, Qt::AltModifier);
    EXPECT_FALSE(box("Text20").hasFocus());
}

TEST_F(AddFormTest, GivesBackWhatWasTypedInEachControl) {
    open();
    for (const BoxOfField& each : kBoxes)
        QTest::keyClicks(&box(each.control), QLatin1String(each.control) + QLatin1Char(' '));
    QTest::keyClicks(classes().lineEdit(), QStringLiteral("Friend"));
    QTest::keyClicks(&memo(), QStringLiteral("one"));
    QTest::keyClick(&memo(), Qt::Key_Return);
    QTest::keyClicks(&memo(), QStringLiteral("two"));
    click(button("Command1"));
    ASSERT_EQ(1U, editor.applied.size());
    for (const BoxOfField& each : kBoxes)
        EXPECT_EQ(std::string(each.control) + " ", editor.applied[0][each.field]);
    EXPECT_EQ("Friend", editor.applied[0][Field::Class]);
    EXPECT_EQ("one\r\ntwo", editor.applied[0][Field::Memo]);
}

TEST_F(AddFormTest, DisablesTheNameForACompanyAndHidesItsLabels) {
    open();
    const auto expectNames = [&](bool shown) {
        for (const char* name : {"Text1", "Text2", "Text3", "Text4", "Text24"})
            EXPECT_EQ(shown, box(name).isEnabled()) << name;
        for (const char* name : {"Label2", "Label3", "Label4", "Label5", "Label22"})
            EXPECT_EQ(shown, test::named<QLabel>(*form, name).isVisible()) << name;
        EXPECT_TRUE(box("Text5").isEnabled());
        EXPECT_TRUE(test::named<QLabel>(*form, "Label6").isVisible());
    };
    box("Text3").setText(QStringLiteral("Doe"));
    const QPoint companyBefore = box("Text5").pos();
    expectNames(true);
    QTest::keyClick(&justCompany(), Qt::Key_Space);
    expectNames(false);
    EXPECT_EQ(companyBefore, box("Text5").pos());
    click(button("Command1"));
    ASSERT_EQ(1U, editor.applied.size());
    EXPECT_TRUE(editor.applied[0].justCompany);
    EXPECT_EQ("Doe", editor.applied[0][Field::Last]);
}

TEST_F(AddFormTest, ReturnsTheNameWhenTheBoxIsUnticked) {
    editor.toLoad.justCompany = true;
    editor.toLoad[Field::Company] = "Acme";
    open();
    EXPECT_TRUE(justCompany().isChecked());
    EXPECT_FALSE(box("Text3").isEnabled());
    EXPECT_TRUE(box("Text5").hasFocus());
    QTest::keyClick(&justCompany(), Qt::Key_Space);
    EXPECT_TRUE(box("Text3").isEnabled());
    EXPECT_TRUE(test::named<QLabel>(*form, "Label4").isVisible());
}

TEST_F(AddFormTest, ClosesWhenTheEntryWasWrittenAndTellsTheEditorOnce) {
    open();
    click(button("Command1"));
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(QDialog::Accepted, form->result());
    EXPECT_EQ(1, editor.closedCount);
    form.reset();
    EXPECT_EQ(1, editor.closedCount);
}

TEST_F(AddFormTest, StaysOpenWithAllValuesWhenRefused) {
    editor.outcome = EntryEditor::Outcome::Refused;
    open();
    QTest::keyClicks(&box("Text2"), QStringLiteral("Jane"));
    QTest::keyClicks(&box("Text9"), QStringLiteral("555"));
    click(button("Command1"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ("Jane", box("Text2").text().toStdString());
    EXPECT_EQ("555", box("Text9").text().toStdString());
    EXPECT_EQ(0, editor.closedCount);
}

TEST_F(AddFormTest, EmptiesTheNameWhenTheEditorAsksForIt) {
    editor.outcome = EntryEditor::Outcome::RefusedNamesCleared;
    open();
    for (const char* name : {"Text1", "Text2", "Text3", "Text5"})
        QTest::keyClicks(&box(name), QStringLiteral("x"));
    click(button("Command1"));
    EXPECT_TRUE(form->isVisible());
    for (const char* name : {"Text1", "Text2", "Text3"})
        EXPECT_EQ("", box(name).text().toStdString());
    EXPECT_EQ("x", box("Text5").text().toStdString());
}

TEST_F(AddFormTest, ShowsAFailedWriteAndStaysOpen) {
    editor.onApply = [] { throw Failure("The disk is full."); };
    open();
    QTest::keyClicks(&box("Text2"), QStringLiteral("Jane"));
    click(button("Command1"));
    EXPECT_THAT(messages.takeShown(), ElementsAre("error|Velmora|The disk is full."));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ("Jane", box("Text2").text().toStdString());
    EXPECT_EQ(0, editor.closedCount);
}

TEST_F(AddFormTest, ShowsAFailedLoadAndOpens) {
    editor.onLoad = [] { throw Failure("The book can not be read."); };
    open();
    EXPECT_THAT(messages.takeShown(), ElementsAre("error|Velmora|The book can not be read."));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ("", box("Text2").text().toStdString());
}

TEST_F(AddFormTest, ClosesWithoutACheckByCancelEscapeAndTheFrame) {
    const std::function<void()> ways[] = {
        [&] { click(button("Command2")); },
        [&] { QTest::keyClick(&box("Text2"), Qt::Key_Escape); },
        [&] { form->close(); },
    };
    for (const auto& way : ways) {
        open();
        editor.closedCount = 0;
        QTest::keyClicks(&box("Text2"), QStringLiteral("a,b"));
        way();
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(1, editor.closedCount);
    }
    EXPECT_THAT(editor.applied, IsEmpty());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(AddFormTest, TellsTheEditorWhenItIsDestroyedWhileOpen) {
    open();
    form.reset();
    EXPECT_EQ(1, editor.closedCount);
}

TEST_F(AddFormTest, AppliesByEnterInAFieldAndByCtrlEnterInTheMemo) {
    editor.outcome = EntryEditor::Outcome::Refused;
    open();
    QTest::keyClick(&box("Text2"), Qt::Key_Return);
    EXPECT_EQ(1U, editor.applied.size());
    QTest::keyClick(&memo(), Qt::Key_Return);
    EXPECT_EQ(1U, editor.applied.size());
    EXPECT_EQ("\n", memo().toPlainText().toStdString());
    QTest::keyClick(&memo(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(2U, editor.applied.size());
    EXPECT_TRUE(button("Command1").isDefault());
    EXPECT_FALSE(button("Command2").autoDefault());
    EXPECT_FALSE(button("Command3").autoDefault());
}

TEST_F(AddFormTest, MovesByTheTabKeyInReadingOrderOfTheColumns) {
    open();
    justCompany().setFocus();
    QStringList visited;
    for (int i = 0; i < 30; ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        "Check1 Text1 Text2 Text3 Text4 Text5 Text6 Text7 Text8 Text17 Text18 Text22 Text24 Text12 "
        "Combo1 Text21 Text9 Text14 Text10 Text13 Text15 Text16 Text23 Text20 Text19 Text25 "
        "Command3 Text11 Command1 Command2",
        visited.join(QLatin1Char(' ')).toStdString());
    EXPECT_TRUE(justCompany().hasFocus());
}

TEST_F(AddFormTest, PicksAnAttachment) {
    open();
    messages.willAnswer(std::optional<std::string>("/home/jo/Bl\xFCte.txt"));
    click(button("Command3"));
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("open|Select Contact Attachment|.exe|Program Files (*.exe)|*.exe|"
                            "Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt|"
                            "All Files (*.*)|*.*"));
    EXPECT_EQ(QString::fromUtf8("/home/jo/Blüte.txt"), box("Text25").text());
    messages.willAnswer(std::optional<std::string>());
    click(button("Command3"));
    EXPECT_EQ(QString::fromUtf8("/home/jo/Blüte.txt"), box("Text25").text());
}

TEST_F(AddFormTest, HoldsTheMemoTo250Characters) {
    open();
    memo().setPlainText(QString(300, QLatin1Char('m')));
    EXPECT_EQ(250, memo().toPlainText().size());
}

TEST_F(AddFormTest, ReplacesWhatCanNotBeStoredAndSaysSo) {
    open();
    box("Text2").insert(QString::fromUtf8("Zoë"));
    EXPECT_EQ("", statusLine.text);
    box("Text2").insert(QString::fromUtf8("Ω"));
    EXPECT_EQ(QString::fromUtf8("Zoë?"), box("Text2").text());
    EXPECT_EQ("Characters that the phonebook can not store were replaced by \"?\".",
              statusLine.text);
    statusLine.text.clear();
    memo().insertPlainText(QString::fromUtf8("Ω"));
    EXPECT_EQ("?", memo().toPlainText().toStdString());
    EXPECT_NE("", statusLine.text);
    classes().lineEdit()->insert(QString::fromUtf8("Ω"));
    EXPECT_EQ("?", classes().currentText().toStdString());
}

}  // namespace
}  // namespace velmora
