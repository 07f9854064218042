#include "planner/forms/Form2.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "forms/Widgets.h"

namespace velmora {
namespace {

class Form2Test : public testing::Test {
  protected:
    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    int imports = 0;
    int cancels = 0;
    bool done = true;
    std::function<void()> whileImporting;
    Form2 form{[this] {
                   ++imports;
                   if (whileImporting)
                       whileImporting();
                   return done;
               },
               [this] { ++cancels; }};
    QPushButton& button = test::named<QPushButton>(form, "Command1");
};

TEST_F(Form2Test, SaysWhatItIsFor) {
    open();
    EXPECT_EQ(form.windowTitle(), "Planner Importer");
    EXPECT_EQ(test::named<QLabel>(form, "Label1").text(),
              "Use the Planner Importer to Import Version 6.x and earlier Planner Data into the "
              "VLM. Click the Import button below to get started. After you click the button, you "
              "will be prompted for the folder the old version of the planner was installed in. In "
              "order to import old data, the main cfile.dat file is utilized.");
    EXPECT_EQ(button.text(), "&Import");
    EXPECT_TRUE(button.isDefault());
    EXPECT_TRUE(button.hasFocus());
    EXPECT_EQ(form.width(), 480);
}

TEST_F(Form2Test, ImportsAndCloses) {
    open();
    whileImporting = [this] { EXPECT_FALSE(button.isEnabled()); };
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(imports, 1);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form2Test, StaysOpenWhereNothingWasImported) {
    open();
    done = false;
    button.click();
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(button.isEnabled());
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(Form2Test, EscapeClosesItButCallsOffAnImportThatRuns) {
    open();
    whileImporting = [this] {
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
    };
    button.click();
    EXPECT_EQ(cancels, 1);
    EXPECT_FALSE(form.isVisible());
    open();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(imports, 1);
}

}  // namespace
}  // namespace velmora
