#include "phonebook/forms/Form4.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <functional>
#include <string>
#include <vector>

#include "core/PendingWish.h"
#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/StatusLight.h"
#include "support/FakeClock.h"
#include "support/FakePhonebookPane.h"
#include "support/Golden.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

struct BoxOfForm {
    const char* name;
    const char* caption;
    Field field;
};

// Column by column.
constexpr BoxOfForm kBoxes[] = {
    {"Check7", "Title", Field::Title},
    {"Check2", "First Name", Field::First},
    {"Check3", "Last Name", Field::Last},
    {"Check5", "Job Title", Field::Position},
    {"Check6", "Company", Field::Company},
    {"Check13", "Address 1", Field::Address1},
    {"Check14", "Address 2", Field::Address2},
    {"Check21", "Address 3", Field::Address3},
    {"Check22", "Address 4", Field::Address4},
    {"Check23", "Address 5", Field::PostalCode},
    {"Check15", "Country", Field::Country},
    {"Check9", "Salutation", Field::Salutation},
    {"Check4", "Home Phn", Field::Phone},
    {"Check16", "Work Phn", Field::WorkPhone},
    {"Check8", "Fax", Field::Fax},
    {"Check18", "Pager", Field::Pager},
    {"Check17", "Other Phn", Field::OtherPhone},
    {"Check24", "E-Mail", Field::EMail},
    {"Check26", "Web Page", Field::WebPage},
    {"Check10", "Note", Field::Memo},
    {"Check12", "Class", Field::Class},
    {"Check25", "Date", Field::DateReference},
    {"Check19", "Custom 1", Field::Custom1},
    {"Check20", "Custom 2", Field::Custom2},
    {"Check27", "Spouse", Field::Spouse},
    {"Check28", "File Attach", Field::FileAttachment},
};

class Form4Test : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    void open() {
        form.present();
        test::showActive(form);
    }

    QCheckBox& check(const char* name) { return test::named<QCheckBox>(form, name); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }
    QLineEdit& text() { return test::named<QLineEdit>(form, "Text1"); }
    EntryList& list() { return test::named<EntryList>(form, "List1"); }
    StatusLight& light() { return test::named<StatusLight>(form, "Label4"); }

    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }

    void searchFor(const char* what) {
        text().setText(QString::fromLatin1(what));
        click("Command1");
    }

    void doubleClickLine(int row) {
        const QPoint place = list().visualRect(list().model()->index(row, 0)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    }

    test::FakePhonebookPane pane;
    LetterView letters{state, store, pane};
    PendingWish wish{state,
                     [this](int kind) { letters.SelectBook(static_cast<std::int16_t>(kind)); },
                     [this](int index) { letters.LetterClick(index); }};
    test::PrintDesk desk;
    test::FakeMessages& messages = desk.messages;
    test::FakeStatusLine& status = desk.status;
    test::FakeEventLoop& loop = desk.loop;
    test::FakePrintSurface& printer = desk.printer;
    test::FakeClock clock;
    LocaleFormats locale;
    HitListPrint printing{desk.printing, settings, clock, locale};
    Form4 form{
        {state, settings, store, letters, messages, status, loop, [this] { wish.flipped(); }},
        printing,
        codePage};
};

TEST_F(Form4Test, HasItsCaptions) {
    open();
    EXPECT_EQ("Search V.L.M. Database", form.windowTitle().toStdString());
    const auto label = [&](const char* name) {
        return test::named<QLabel>(form, name).text().toStdString();
    };
    EXPECT_EQ("Search for:", label("Label1"));
    EXPECT_EQ("Fields to Search:", label("Label2"));
    EXPECT_EQ("Matching Entries:", label("Label3"));
    EXPECT_EQ("Double Click a match to go to that letter in the phone book.", label("Label5"));
    EXPECT_EQ("&Both Books", check("Check1").text().toStdString());
    EXPECT_EQ("Search All Fields", check("Check11").text().toStdString());
    EXPECT_EQ("&Search", button("Command1").text().toStdString());
    EXPECT_EQ("&Clear List", button("Command2").text().toStdString());
    EXPECT_EQ("Clos&e", button("Command3").text().toStdString());
    EXPECT_EQ("&Print List", button("Command4").text().toStdString());
    EXPECT_EQ("&Help", button("Command5").text().toStdString());
    for (const BoxOfForm& each : kBoxes)
        EXPECT_EQ(each.caption, check(each.name).text().toStdString()) << each.name;
}

TEST_F(Form4Test, LeavesTheMainWindowAliveAndHasTheSizeOfItsDesign) {
    open();
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ(QSize(720, 606), form.size());
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(Form4Test, SetsTheFieldsColumnByColumnInSevenRows) {
    open();
    for (std::size_t i = 1; i < std::size(kBoxes); ++i) {
        const QPoint before = check(kBoxes[i - 1].name).pos();
        const QPoint here = check(kBoxes[i].name).pos();
        if (i % 7 != 0) {
            EXPECT_EQ(before.x(), here.x()) << kBoxes[i].name;
            EXPECT_LT(before.y(), here.y()) << kBoxes[i].name;
        } else {
            EXPECT_LT(before.x(), here.x()) << kBoxes[i].name;
            EXPECT_EQ(check("Check7").y(), here.y()) << kBoxes[i].name;
        }
    }
}

TEST_F(Form4Test, EachBoxTicksItsOwnField) {
    PhonebookRecord record;
    for (const BoxOfForm& each : kBoxes)
        record.assign(each.field, "seek");
    yellow() = test::bytesOf(record);
    open();
    check("Check11").setChecked(false);
    for (const BoxOfForm& each : kBoxes) {
        check(each.name).setChecked(true);
        searchFor("seek");
        const std::string value(placeOf(each.field).width - 4, ' ');
        ASSERT_THAT(list().lines(), SizeIs(1)) << each.name;
        EXPECT_TRUE(list().lines()[0].ends_with("=seek" + value)) << each.name;
        check(each.name).setChecked(false);
    }
}

TEST_F(Form4Test, TicksAndUnticksAllFieldsTogether) {
    open();
    EXPECT_TRUE(check("Check11").isChecked());
    EXPECT_FALSE(check("Check1").isChecked());
    const auto expectAll = [&](bool ticked) {
        for (const BoxOfForm& each : kBoxes)
            EXPECT_EQ(ticked, check(each.name).isChecked()) << each.name;
    };
    expectAll(true);
    QTest::keyClick(&check("Check11"), Qt::Key_Space);
    expectAll(false);
    QTest::keyClick(&check("Check11"), Qt::Key_Space);
    expectAll(true);
    EXPECT_FALSE(check("Check1").isChecked());
}

TEST_F(Form4Test, NamesTheCustomFieldsAsTheSettingsDo) {
    settings.Save("Custom1", " Profit & Loss ");
    open();
    EXPECT_EQ("Profit && Loss", check("Check19").text().toStdString());
    EXPECT_EQ("Custom 2", check("Check20").text().toStdString());
    form.reject();
    settings.Save("Custom1", "Account");
    open();
    EXPECT_EQ("Account", check("Check19").text().toStdString());
}

TEST_F(Form4Test, SearchesByButtonAndByEnterAndKeepsTheOrderOfTheFile) {
    yellow() = test::bytesOf(test::personRecord("Zorn", "Jo")) +
               test::bytesOf(test::personRecord("Abel", "Jo"));
    white() = test::bytesOf(test::personRecord("Bell", "Jo"));
    open();
    QTest::keyClicks(&text(), QStringLiteral("jo"));
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_THAT(list().lines(), ElementsAre(StartsWith("Y: Zorn, Jo\t"), StartsWith("Y: Abel")));
    QTest::keyClick(&check("Check1"), Qt::Key_Space);
    click("Command1");
    EXPECT_THAT(list().lines(), ElementsAre(StartsWith("Y: Zorn, Jo\t"), StartsWith("Y: Abel"),
                                            StartsWith("W: Bell")));
    click("Command2");
    EXPECT_THAT(list().lines(), IsEmpty());
}

TEST_F(Form4Test, ShowsTheLightRedAndHidesTheListWhileItSearches) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo"));
    open();
    const auto pixel = [&] { return test::pixelOf(light(), light().rect().center()); };
    EXPECT_EQ(QColor(0, 255, 0), pixel());
    QColor during;
    bool listShown = true;
    loop.onYield = [&] {
        during = pixel();
        listShown = list().isVisible();
    };
    searchFor("smith");
    EXPECT_EQ(QColor(255, 0, 0), during);
    EXPECT_FALSE(listShown);
    EXPECT_EQ(QColor(0, 255, 0), pixel());
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(QSize(14, 14), light().size());
}

TEST_F(Form4Test, TellsWhenNothingWasFound) {
    open();
    searchFor("smith");
    EXPECT_THAT(messages.takeShown(), ElementsAre("tell|No Entries Found|No entries were found."));
    EXPECT_EQ("No matching entries found.", status.text);
}

TEST_F(Form4Test, SaysThatNothingMatchesOnlyAfterASearchHasEnded) {
    open();
    EXPECT_EQ(QString(), list().emptyText());
    QString during = QStringLiteral("none");
    yellow() = test::bytesOf(test::personRecord("Brown", "Jo"));
    loop.onYield = [&] { during = list().emptyText(); };
    searchFor("smith");
    EXPECT_EQ(QString(), during);
    EXPECT_EQ(QStringLiteral("No matching entries."), list().emptyText());
    click("Command2");
    EXPECT_EQ(QString(), list().emptyText());
}

TEST_F(Form4Test, AnEmptyTextLeavesTheListAsItIs) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo"));
    open();
    searchFor("smith");
    searchFor("");
    EXPECT_THAT(list().lines(), SizeIs(1));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(Form4Test, ADoubleClickGoesToTheHitAndTheFormStaysOpen) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo"));
    white() = test::bytesOf(test::personRecord("Brown", "Jo"));
    open();
    check("Check1").setChecked(true);
    searchFor("jo");
    doubleClickLine(1);
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ("BName", state.BucketName);
    EXPECT_THAT(pane.lines, ElementsAre("Brown, Jo"));
    doubleClickLine(0);
    EXPECT_EQ(kYellowPages, state.BookKind);
    EXPECT_EQ("SName", state.BucketName);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Form4Test, EnterOnAHitGoesThereAndSearchesNothing) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo"));
    open();
    searchFor("jo");
    const int yields = loop.yields;
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ("AName", state.BucketName);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ("SName", state.BucketName);
    EXPECT_EQ(yields, loop.yields);
}

TEST_F(Form4Test, ClosesByButtonEscapeAndFrameAndPutsTheListBackOnce) {
    const std::function<void()> ways[] = {
        [&] { click("Command3"); },
        [&] { QTest::keyClick(&text(), Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& way : ways) {
        open();
        pane.takeCalls();
        way();
        EXPECT_FALSE(form.isVisible());
        EXPECT_THAT(pane.takeCalls(), ElementsAre("clearList", "addLines"));
    }
}

TEST_F(Form4Test, BeginsAnewWhenItIsOpenedAgainButNotWhileItIsOpen) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo"));
    open();
    check("Check7").setChecked(false);
    searchFor("smith");
    form.present();
    EXPECT_EQ("smith", text().text().toStdString());
    EXPECT_THAT(list().lines(), SizeIs(1));
    form.reject();
    open();
    EXPECT_EQ("", text().text().toStdString());
    EXPECT_THAT(list().lines(), IsEmpty());
    EXPECT_TRUE(check("Check7").isChecked());
}

TEST_F(Form4Test, SurvivesBeingClosedAndOpenedInItsOwnScan) {
    for (int i = 0; i < 3; ++i)
        yellow() += test::bytesOf(test::personRecord("Smith", "Jo"));
    open();
    loop.onYield = [&] {
        if (loop.yields == 2)
            QTest::keyClick(&text(), Qt::Key_Escape);
    };
    searchFor("jones");
    EXPECT_EQ(2, loop.yields);
    EXPECT_FALSE(form.isVisible());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    open();
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(QColor(0, 255, 0), light().colour());
    searchFor("smith");
    EXPECT_THAT(list().lines(), SizeIs(3));
}

TEST_F(Form4Test, SearchesAnewWhenAskedInItsOwnScan) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo")) +
               test::bytesOf(test::personRecord("Jones", "Jo"));
    open();
    loop.onYield = [&] {
        if (loop.yields == 1)
            searchFor("jones");
    };
    searchFor("smith");
    EXPECT_THAT(list().lines(), ElementsAre(StartsWith("Y: Jones, Jo\t")));
    EXPECT_TRUE(list().isVisible());
}

TEST_F(Form4Test, MovesByTheTabKeyInReadingOrderOfTheColumns) {
    open();
    QStringList visited;
    for (int i = 0; i < 35; ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        "Text1 Check1 Command1 Check11 Check7 Check2 Check3 Check5 Check6 Check13 Check14 Check21 "
        "Check22 Check23 Check15 Check9 Check4 Check16 Check8 Check18 Check17 Check24 Check26 "
        "Check10 Check12 Check25 Check19 Check20 Check27 Check28 List1 Command5 Command4 Command2 "
        "Command3",
        visited.join(QLatin1Char(' ')).toStdString());
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(Form4Test, PrintsTheListAsItStands) {
    yellow() = test::bytesOf(test::personRecord("Zorn", "Jo")) +
               test::bytesOf(test::personRecord("Abel", "Jo"));
    open();
    text().setText("jo");
    check("Check11").setChecked(false);
    check("Check2").setChecked(true);
    click("Command1");
    ASSERT_THAT(list().lines(), SizeIs(2));
    click("Command4");
    test::expectGolden(printer.takeDump(), "search-results-of-the-form.txt");
    EXPECT_THAT(list().lines(), SizeIs(2));
}

TEST_F(Form4Test, AsksForItsHelpPage) {
    open();
    QSignalSpy wanted(&form, &Form4::helpWanted);
    click("Command5");
    ASSERT_EQ(1, wanted.size());
    EXPECT_EQ("Form4", wanted[0][0].toString().toStdString());
}

TEST_F(Form4Test, MarksOnePrimaryButton) {
    open();
    EXPECT_TRUE(button("Command1").isDefault());
    EXPECT_EQ("primary", button("Command1").property("role").toString().toStdString());
    for (const char* name : {"Command2", "Command3", "Command4", "Command5"})
        EXPECT_FALSE(button(name).autoDefault()) << name;
}

TEST_F(Form4Test, ReplacesWhatCanNotBeStoredAndSaysSo) {
    open();
    text().insert(QString::fromUtf8("ZoëΩ"));
    EXPECT_EQ(QString::fromUtf8("Zoë?"), text().text());
    EXPECT_EQ("Characters that the phonebook can not store were replaced by \"?\".", status.text);
}

TEST_F(Form4Test, ItsHitsCanNotBeDraggedAway) {
    open();
    EXPECT_FALSE(list().dragEnabled());
}

// Dark points in a column of the list mean that text is drawn there.
TEST_F(Form4Test, DrawsTheMatchesBehindTheTabStop) {
    yellow() = test::bytesOf(test::companyRecord("Li"));
    open();
    searchFor("li");
    const QRect line = list().visualRect(list().model()->index(0, 0));
    const QImage image = list().viewport()->grab().toImage();
    const auto inkBetween = [&](int from, int to) {
        for (int x = from; x < to; ++x)
            for (int y = line.top(); y < line.bottom(); ++y)
                if (image.pixelColor(QPoint(x, y) * image.devicePixelRatio()).lightness() < 128)
                    return true;
        return false;
    };
    EXPECT_TRUE(inkBetween(line.left(), line.left() + 60));
    EXPECT_FALSE(inkBetween(line.left() + 60, line.left() + 225));
    EXPECT_TRUE(inkBetween(line.left() + 225, line.left() + 290));
    EXPECT_FALSE(inkBetween(line.right() - 100, line.right()));
}

}  // namespace
}  // namespace velmora
