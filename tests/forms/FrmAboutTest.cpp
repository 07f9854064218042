#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include "core/ProductVersion.h"
#include "core/forms/frmAbout.h"
#include "forms/Widgets.h"

namespace velmora {
namespace {

class FrmAboutTest : public ::testing::Test {
  protected:
    void SetUp() override {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    QLabel& label(const char* name) { return test::named<QLabel>(form, name); }

    frmAbout form;
};

TEST_F(FrmAboutTest, ShowsNameVersionAndIcon) {
    EXPECT_EQ("Velmora", label("Label1").text().toStdString());
    EXPECT_EQ(std::string("Version ") + productVersion(), label("Label2").text().toStdString());
    EXPECT_FALSE(label("Image1").pixmap(Qt::ReturnByValue).isNull());
    EXPECT_TRUE(form.isModal());
}

TEST(ProductVersion, IsThreeNumbers) {
    int parts = 0;
    for (const QString& part : QString::fromLatin1(productVersion()).split(QLatin1Char('.'))) {
        bool number = false;
        EXPECT_GE(part.toInt(&number), 0);
        EXPECT_TRUE(number) << productVersion();
        ++parts;
    }
    EXPECT_EQ(3, parts);
}

TEST_F(FrmAboutTest, ALinkOnlyTellsThatItWasChosen) {
    QSignalSpy web(&form, &frmAbout::webChosen);
    QSignalSpy mail(&form, &frmAbout::mailChosen);
    emit label("Label3").linkActivated(QStringLiteral("#"));
    EXPECT_EQ(1, web.count());
    EXPECT_EQ(0, mail.count());
    emit label("Label4").linkActivated(QStringLiteral("#"));
    EXPECT_EQ(1, web.count());
    EXPECT_EQ(1, mail.count());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(FrmAboutTest, LinksAreFollowedByTheMouse) {
    QSignalSpy web(&form, &frmAbout::webChosen);
    QLabel& link = label("Label3");
    QTest::mouseMove(&link, QPoint(10, link.height() / 2));
    QTest::mouseClick(&link, Qt::LeftButton, {}, QPoint(10, link.height() / 2));
    EXPECT_EQ(1, web.count());
}

TEST_F(FrmAboutTest, DisabledLinksArePlainText) {
    QSignalSpy web(&form, &frmAbout::webChosen);
    QLabel& link = label("Label3");
    EXPECT_TRUE(link.text().contains(QStringLiteral("<a ")));
    form.setLinksEnabled(false);
    EXPECT_FALSE(link.text().contains(QStringLiteral("<a ")));
    EXPECT_FALSE(link.isEnabled());
    QTest::mouseClick(&link, Qt::LeftButton, {}, QPoint(10, link.height() / 2));
    EXPECT_EQ(0, web.count());
    form.setLinksEnabled(true);
    EXPECT_TRUE(link.text().contains(QStringLiteral("<a ")));
}

TEST_F(FrmAboutTest, CloseHasTheFocusAndEscapeClosesToo) {
    auto& close = test::named<QPushButton>(form, "Command1");
    EXPECT_TRUE(close.hasFocus());
    QTest::keyClick(&close, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    form.present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace velmora
