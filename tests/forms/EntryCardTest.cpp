#include "platform/controls/EntryCard.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include "forms/Widgets.h"
#include "platform/controls/CardText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr const char* kPerson =
    "Mr. Adrian Bellweather    Spouse: Nora Bellweather\r\n"
    "Purchasing Manager Northgate Instruments\r\n"
    "418 Kiln Street , Suite 12\r\n"
    "Millbrook, IL 60555\r\n"
    "United States\r\n"
    "H: (312) 555-0187    W: (312) 555-0121    F: \r\n"
    "P:     O: (312) 555-0168    Em: adrian@northgate.example\r\n"
    "Account 20417          Prefers mornings\r\n"
    "Customer\r\n"
    "Met at the fair.\r\nW: no number";

CardLine plain(const char* text) {
    return {false, false, {{{}, QString::fromUtf8(text)}}};
}

CardPart part(const char* label, const char* value) {
    return {QString::fromUtf8(label), QString::fromUtf8(value)};
}

TEST(CardText, PartsAPersonsTextAsItIsLaidOut) {
    const std::vector<CardLine> lines = partsOfCard(QString::fromUtf8(kPerson));
    ASSERT_EQ(12U, lines.size());
    EXPECT_EQ((CardLine{true, false, {part("", "Mr. Adrian Bellweather")}}), lines[0]);
    EXPECT_EQ((CardLine{false, false, {part("Spouse:", "Nora Bellweather")}}), lines[1]);
    EXPECT_EQ(plain("Purchasing Manager Northgate Instruments"), lines[2]);
    EXPECT_EQ(plain("United States"), lines[5]);
    EXPECT_EQ(
        (CardLine{false,
                  true,
                  {part("H:", "(312) 555-0187"), part("W:", "(312) 555-0121"), part("F:", "")}}),
        lines[6]);
    EXPECT_EQ((CardLine{false,
                        false,
                        {part("P:", ""), part("O:", "(312) 555-0168"),
                         part("Em:", "adrian@northgate.example")}}),
              lines[7]);
    EXPECT_EQ((CardLine{false, true, {part("", "Account 20417"), part("", "Prefers mornings")}}),
              lines[8]);
    EXPECT_EQ(plain("W: no number"), lines[11]);
}

TEST(CardText, ShowsTheSpouseLabelWithoutASpouse) {
    const auto lines = partsOfCard(QStringLiteral(" Jane Doe    Spouse: \r\n"));
    ASSERT_EQ(3U, lines.size());
    EXPECT_EQ((CardLine{true, false, {part("", "Jane Doe")}}), lines[0]);
    EXPECT_EQ((CardLine{false, false, {part("Spouse:", "")}}), lines[1]);
}

TEST(CardText, TakesBlankLinesAsTheSpaceAroundTheNumbers) {
    const auto lines =
        partsOfCard(QStringLiteral("Acme\r\n\r\nH: 1    W:     F: \r\n          \r\nBusiness\r\n"));
    ASSERT_EQ(6U, lines.size());
    for (const CardLine& line : lines)
        EXPECT_FALSE(line.spaceBefore);
    EXPECT_TRUE(lines[3].parts.empty());
}

TEST(CardText, IsEmptyForNoText) {
    EXPECT_TRUE(partsOfCard({}).empty());
}

class EntryCardTest : public testing::Test {
  protected:
    EntryCardTest() { card.resize(450, 558); }

    bool scrolls() { return card.findChild<QScrollBar*>()->isVisible(); }

    EntryCard card{CodePage::western()};
};

TEST_F(EntryCardTest, KeepsTheTextAsItWasGivenAndNamesItToReaders) {
    card.setText("M\xFCller\r\nA + B & C");
    EXPECT_EQ("M\xFCller\r\nA + B & C", card.text());
    EXPECT_EQ(QString::fromUtf8("Müller\nA + B & C"), card.accessibleName());
    card.setText("");
    EXPECT_EQ("", card.text());
    EXPECT_EQ(QString(), card.accessibleName());
}

TEST_F(EntryCardTest, CopiesThePlainText) {
    card.setText(kPerson);
    test::showActive(card);
    card.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&card, Qt::Key_C, Qt::ControlModifier);
    QString expected = QString::fromUtf8(kPerson);
    expected.remove(QLatin1Char('\r'));
    EXPECT_EQ(expected, QGuiApplication::clipboard()->text());
}

TEST_F(EntryCardTest, ScrollsOnlyWhenTheTextIsLongerThanTheCard) {
    card.setText(kPerson);
    test::showActive(card);
    EXPECT_FALSE(scrolls());
    std::string memo = kPerson;
    for (int i = 0; i < 30; ++i)
        memo += "\r\nline " + std::to_string(i);
    card.setText(memo);
    EXPECT_TRUE(scrolls());
    auto* bar = card.findChild<QScrollBar*>();
    card.setFocus();
    QTest::keyClick(&card, Qt::Key_End);
    EXPECT_EQ(bar->maximum(), bar->value());
    QTest::keyClick(&card, Qt::Key_Up);
    EXPECT_LT(bar->value(), bar->maximum());
    card.setText(memo);
    EXPECT_EQ(0, bar->value());
    card.setText(kPerson);
    EXPECT_FALSE(scrolls());
}

TEST_F(EntryCardTest, ScrollsByTheWheelToItsEndAndNoFurther) {
    std::string memo = kPerson;
    for (int i = 0; i < 30; ++i)
        memo += "\r\nline " + std::to_string(i);
    card.setText(memo);
    test::showActive(card);
    auto* bar = card.findChild<QScrollBar*>();
    for (int i = 0; i < 40; ++i) {
        QWheelEvent down({100, 100}, card.mapToGlobal(QPoint(100, 100)), {}, {0, -120},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&card, &down);
    }
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->maximum(), bar->value());
}

TEST_F(EntryCardTest, ShowsTheBookByItsEdge) {
    const Theme& theme = Theme::of(card);
    EXPECT_EQ(theme.amber.rgb(), test::pixelOf(card, {2, 100}).rgb());
    card.setWhitePages(true);
    EXPECT_EQ(theme.wbook.rgb(), test::pixelOf(card, {2, 100}).rgb());
    EXPECT_EQ(theme.surface.rgb(), test::pixelOf(card, {10, 100}).rgb());
}

TEST(CardLayout, WrapsBetweenPartsAndOnlyLongPartsWithin) {
    CardLayout layout;
    const QString text = QStringLiteral("Doe\nH: (312) 555-0187    W: (312) 555-0121    F: 1");
    layout.setText(text, QFont(), Theme::light());
    const qreal wide = layout.layOut(2000);
    const qreal narrow = layout.layOut(
        1.6 * QFontMetricsF(QFont()).horizontalAdvance(QStringLiteral("H: (312) 555-0187")));
    EXPECT_EQ(wide + layout.lineHeight(), narrow);  // "F: 1" fits behind the second number
    layout.setText(QStringLiteral("Doe\n") + QString(60, QLatin1Char('w')), QFont(),
                   Theme::light());
    const qreal one = layout.layOut(5000);
    EXPECT_GT(layout.layOut(100), one + 3 * layout.lineHeight());
}

TEST(EntryCard, ATextGivenOutOfSightIsLaidOutWhenTheCardIsShown) {
    std::string text;
    for (int i = 0; i < 100; ++i)
        text += "line\r\n";
    EntryCard card(CodePage::western());
    card.resize(300, 200);
    card.setText(text);
    const auto* bar = card.findChild<QScrollBar*>();
    card.show();
    EXPECT_TRUE(bar->isVisible());
    card.hide();
    card.setText("short");
    card.show();
    EXPECT_FALSE(bar->isVisible());
}

}  // namespace
}  // namespace velmora
