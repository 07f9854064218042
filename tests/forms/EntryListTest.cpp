#include "platform/controls/EntryList.h"

#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <memory>

#include "forms/Widgets.h"
#include "platform/controls/DragFormats.h"
#include "platform/qt/ContextKey.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using testing::ElementsAre;

class EntryListTest : public testing::Test {
  protected:
    EntryListTest() {
        list.setObjectName(QStringLiteral("List1"));
        list.resize(246, 300);
    }

    void show() { test::showActive(list); }

    void clickRow(int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(row));
    }

    QPoint middleOf(int row) { return list.visualRect(list.model()->index(row, 0)).center(); }

    EntryList list{CodePage::western()};
};

TEST_F(EntryListTest, SortsByUpperCasedBytesWithSymbolsAndAccentsBehindTheLetters) {
    list.setLines({"Smith, Jo", "adams, Al", "\xC9mile, A", "_under", "Smith Jones", "[bracket",
                   "Adams, Al", "24 Hour Plumbing", "\xE9mile, B"});
    EXPECT_THAT(list.lines(),
                ElementsAre("24 Hour Plumbing", "adams, Al", "Adams, Al", "Smith Jones",
                            "Smith, Jo", "[bracket", "_under", "\xC9mile, A", "\xE9mile, B"));
}

TEST_F(EntryListTest, SortsByTheOrderHandedIn) {
    EntryList longestFirst(CodePage::western(), [](std::string_view a, std::string_view b) {
        return a.size() > b.size();
    });
    longestFirst.setLines({"a", "ccc", "b", "dd"});
    EXPECT_THAT(longestFirst.lines(), ElementsAre("ccc", "dd", "a", "b"));
}

TEST_F(EntryListTest, AddsLinesBehindEqualOnesAndKeepsTheSelection) {
    list.setLines({"Doe, Jane", "Miller, Max"});
    ASSERT_TRUE(list.selectLine("Miller, Max"));
    QSignalSpy changed(&list, &EntryList::currentLineChanged);
    list.addLines({"Zoe, A", "DOE, JANE", "miller, max", "Adams, Al"});
    EXPECT_THAT(list.lines(), ElementsAre("Adams, Al", "Doe, Jane", "DOE, JANE", "Miller, Max",
                                          "miller, max", "Zoe, A"));
    EXPECT_EQ("Miller, Max", list.selectedLine());
    EXPECT_EQ(0, changed.count());
}

TEST_F(EntryListTest, HasNoSelectionAfterNewLines) {
    list.setLines({"Doe, Jane"});
    EXPECT_FALSE(list.hasSelection());
    ASSERT_TRUE(list.selectLine("Doe, Jane"));
    QSignalSpy changed(&list, &EntryList::currentLineChanged);
    list.setLines({"Doe, Jane"});
    EXPECT_FALSE(list.hasSelection());
    EXPECT_EQ("", list.selectedLine());
    EXPECT_EQ(1, changed.count());
}

TEST_F(EntryListTest, SelectsALineOfExactlyTheseBytes) {
    list.setLines({"Doe, Jane", "doe, jane"});
    EXPECT_TRUE(list.selectLine("doe, jane"));
    EXPECT_EQ("doe, jane", list.selectedLine());
    EXPECT_FALSE(list.selectLine("DOE, JANE"));
    EXPECT_FALSE(list.hasSelection());
}

TEST_F(EntryListTest, TellsOneChoicePerPressOnTheSelectedLineToo) {
    list.setLines({"Adams, Al", "Baker, Bo"});
    show();
    QSignalSpy clicked(&list, &EntryList::lineClicked);
    QSignalSpy changed(&list, &EntryList::currentLineChanged);
    clickRow(1);
    EXPECT_EQ("Baker, Bo", list.selectedLine());
    EXPECT_EQ(1, clicked.count());
    EXPECT_EQ(1, changed.count());
    clickRow(1);
    EXPECT_EQ(2, clicked.count());
    EXPECT_EQ(1, changed.count());
}

TEST_F(EntryListTest, TellsNoChoiceWhenTheProgramSelectsOrThePressHitsNoLine) {
    list.setLines({"Adams, Al"});
    show();
    QSignalSpy clicked(&list, &EntryList::lineClicked);
    list.selectLine("Adams, Al");
    list.clearLineSelection();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, {40, 200});
    EXPECT_EQ(0, clicked.count());
}

TEST_F(EntryListTest, SelectsAtThePressAlready) {
    list.setLines({"Adams, Al", "Baker, Bo"});
    show();
    QTest::mousePress(list.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(1));
    EXPECT_EQ("Baker, Bo", list.selectedLine());
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(1));
}

TEST_F(EntryListTest, IsDrivenByTheKeyboard) {
    list.setLines({"Adams, Al", "Baker, Bo", "Barlow, Edith", "Cole, Nat"});
    show();
    list.setFocus(Qt::TabFocusReason);
    QSignalSpy clicked(&list, &EntryList::lineClicked);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ("Adams, Al", list.selectedLine());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ("Baker, Bo", list.selectedLine());
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ("Cole, Nat", list.selectedLine());
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ("Adams, Al", list.selectedLine());
    QTest::keyClicks(&list, QStringLiteral("bar"));
    EXPECT_EQ("Barlow, Edith", list.selectedLine());
    EXPECT_EQ(6, clicked.count());  // "b" finds Baker, "ba" stays there, "bar" finds Barlow
}

TEST_F(EntryListTest, ShowsCodePageTextInRowsOfTwentySix) {
    list.setLines({"M\xFCller & Co \x80", "Doe"});
    const QModelIndex muller = list.model()->index(1, 0);
    EXPECT_EQ(QString::fromUtf8("Müller & Co €"), muller.data().toString());
    EXPECT_EQ(list.fontMetrics().height() + 10, list.visualRect(muller).height());
    QFont large = list.font();
    large.setPointSizeF(20);
    list.setFont(large);
    EXPECT_EQ(list.fontMetrics().height() + 10, list.visualRect(muller).height());
}

TEST_F(EntryListTest, DragsTheBytesOfTheSelectedLineOnly) {
    list.setLines({"M\xFCller, Jo"});
    const QModelIndex index = list.model()->index(0, 0);
    const std::unique_ptr<QMimeData> data(list.model()->mimeData({index}));
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(QStringList{QStringLiteral("application/x-velmora-entry")}, data->formats());
    EXPECT_EQ("M\xFCller, Jo", data->data(QLatin1String(kEntryFormat)).toStdString());
    EXPECT_EQ(nullptr, list.model()->mimeData({}));
    EXPECT_TRUE(list.dragEnabled());
    EXPECT_EQ(Qt::CopyAction, list.model()->supportedDragActions());
}

TEST_F(EntryListTest, DrawsTheDraggedLineAsASmallCard) {
    const QPixmap pixmap = list.dragPixmap(QStringLiteral("Doe, Jane"));
    EXPECT_EQ(26, qRound(pixmap.height() / pixmap.devicePixelRatio()));
    EXPECT_GT(pixmap.width(), list.fontMetrics().horizontalAdvance(QStringLiteral("Doe, Jane")));
    const QColor edge = pixmap.toImage().pixelColor(pixmap.width() / 2, 0);
    EXPECT_NEAR(0.9 * 255, edge.alpha(), 3);
}

TEST_F(EntryListTest, ShowsTheSelectionQuietlyWhileDisabled) {
    list.setLines({"Adams, Al"});
    list.selectLine("Adams, Al");
    const Theme& theme = Theme::of(list);
    const QPoint inRow(200, 3 + 4);
    EXPECT_EQ(theme.accentfill.rgb(), test::pixelOf(list, inRow).rgb());
    list.setEnabled(false);
    EXPECT_EQ(theme.hover.rgb(), test::pixelOf(list, inRow).rgb());
    EXPECT_EQ("Adams, Al", list.selectedLine());
}

TEST_F(EntryListTest, GoesBackToTheTopWithNewLines) {
    std::vector<std::string> many;
    many.reserve(3000);
    for (int i = 0; i < 3000; ++i)
        many.push_back("Entry " + std::to_string(10000 + i));
    list.setLines(many);
    show();
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ("Entry 12999", list.selectedLine());
    EXPECT_GT(list.verticalScrollBar()->value(), 0);
    list.setLines(many);
    EXPECT_EQ(0, list.verticalScrollBar()->value());
}

TEST_F(EntryListTest, EnterAndADoubleClickActivateTheSelectedLineOnce) {
    list.setLines({"Adams, Al", "Baker, Bo"});
    show();
    QSignalSpy activated(&list, &EntryList::lineActivated);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(0, activated.count()) << "it may become a drag";
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(1, activated.count());
    EXPECT_EQ("Baker, Bo", list.selectedLine());
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(3, activated.count());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, {40, 200});
    QTest::keyClick(&list, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(3, activated.count());
}

TEST_F(EntryListTest, ShiftF10OpensItsMenuAsTheMenuKeyDoes) {
    list.setLines({"Adams, Al"});
    show();
    ASSERT_TRUE(list.selectLine("Adams, Al"));
    QSignalSpy wanted(&list, &EntryList::menuWanted);
    ContextKey key;
    qApp->installEventFilter(&key);
    QTest::keyClick(&list, Qt::Key_F10);
    EXPECT_EQ(0, wanted.count());
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(1, wanted.count());
}

TEST_F(EntryListTest, EnterOnTheLineThatTheFocusFellOnSelectsItFirst) {
    list.setLines({"Adams, Al"});
    show();
    list.setFocus(Qt::TabFocusReason);
    ASSERT_FALSE(list.hasSelection());
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ("Adams, Al", list.selectedLine());
}

TEST_F(EntryListTest, DelAsksToRemoveTheSelectedLineOnly) {
    list.setLines({"Adams, Al"});
    show();
    QSignalSpy removal(&list, &EntryList::removeWanted);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(0, removal.count());
    list.selectLine("Adams, Al");
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(1, removal.count());
}

TEST_F(EntryListTest, ARightPressChoosesTheLineAndAsksForItsMenu) {
    list.setLines({"Adams, Al", "Baker, Bo"});
    show();
    QSignalSpy clicked(&list, &EntryList::lineClicked);
    QSignalSpy wanted(&list, &EntryList::menuWanted);
    QTest::mousePress(list.viewport(), Qt::RightButton, {}, middleOf(1));
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(1),
                            list.viewport()->mapToGlobal(middleOf(1)));
    QCoreApplication::sendEvent(list.viewport(), &event);
    EXPECT_EQ("Baker, Bo", list.selectedLine());
    EXPECT_EQ(1, clicked.count());
    EXPECT_EQ(1, wanted.count());
}

TEST_F(EntryListTest, EmptyGroundHasNoMenu) {
    list.setLines({"Adams, Al"});
    show();
    list.selectLine("Adams, Al");
    QSignalSpy wanted(&list, &EntryList::menuWanted);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {40, 200},
                            list.viewport()->mapToGlobal(QPoint(40, 200)));
    QCoreApplication::sendEvent(list.viewport(), &event);
    EXPECT_EQ(0, wanted.count());
}

TEST_F(EntryListTest, TheMenuKeyOpensAtTheSelectedLine) {
    list.setLines({"Adams, Al", "Baker, Bo"});
    show();
    list.selectLine("Baker, Bo");
    QSignalSpy wanted(&list, &EntryList::menuWanted);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, list.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&list, &event);
    ASSERT_EQ(1, wanted.count());
    const QPoint place = list.viewport()->mapFromGlobal(wanted[0][0].toPoint());
    EXPECT_TRUE(list.visualRect(list.model()->index(1, 0)).contains(place));
}

TEST_F(EntryListTest, SaysInOneLineThatItIsEmptyAndCountsNoItem) {
    show();
    const QImage bare = list.grab().toImage();
    list.setEmptyText(QStringLiteral("No entries under Q."));
    EXPECT_NE(bare, list.grab().toImage());
    EXPECT_EQ(0, list.model()->rowCount());
    EXPECT_EQ(QStringLiteral("No entries under Q."), list.accessibleDescription());
    list.addLines({"Quill, Jo"});
    EXPECT_EQ(QString(), list.accessibleDescription());
    list.clearLines();
    EXPECT_EQ(QStringLiteral("No entries under Q."), list.accessibleDescription());
}

TEST_F(EntryListTest, ALineThatIsCutShortTellsItsWholeInAToolTip) {
    const std::string longName(80, 'm');
    list.setLines({"Adams, Al", longName});
    show();
    const QString shown = test::toolTipAt(*list.viewport(), middleOf(1));
    EXPECT_TRUE(shown.contains(QString::fromStdString(longName)));
    EXPECT_EQ(QString(), test::toolTipAt(*list.viewport(), middleOf(0)));
}

TEST_F(EntryListTest, NothingIsLeftOfTheRingAroundTheListWhenALineIsChosen) {
    const auto isPainted = [this] {
        return QTest::qWaitFor(
            [this] {
                return list.screen()->grabWindow(list.winId()).toImage() == list.grab().toImage();
            },
            2000);
    };
    show();
    for (const bool byMouse : {true, false}) {
        list.clearLines();
        list.clearFocus();
        list.setFocus(Qt::TabFocusReason);
        list.setLines({"Adams, Al", "Doe, Jane"});
        ASSERT_FALSE(list.currentIndex().isValid());
        EXPECT_TRUE(isPainted());
        if (byMouse)
            clickRow(1);
        else
            QTest::keyClick(&list, Qt::Key_Down);
        ASSERT_TRUE(list.hasSelection());
        EXPECT_TRUE(isPainted()) << byMouse;
    }
}

TEST_F(EntryListTest, DrawsStrongLinesSemiboldAndOthersAsBefore) {
    list.setLines({"TODAY - Tea", "Tomorrow - Tea"});
    show();
    const auto row = [this](int number) {
        return list.viewport()->grab(list.visualRect(list.model()->index(number, 0))).toImage();
    };
    const QImage first = row(0), second = row(1);
    list.setStrongLines([](std::string_view line) { return line.substr(0, 5) == "TODAY"; });
    EXPECT_NE(first, row(0));
    EXPECT_EQ(second, row(1));
}

}  // namespace
}  // namespace velmora
