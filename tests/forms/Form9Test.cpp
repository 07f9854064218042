#include "docpad/forms/Form9.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "forms/Widgets.h"

namespace velmora {
namespace {

class Form9Test : public ::testing::Test {
  protected:
    QPlainTextEdit& box() { return test::named<QPlainTextEdit>(form, "Text1"); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }

    Form9 form{CodePage::western()};
};

TEST_F(Form9Test, ExplainsWhatASignatureIs) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Signature..."));
    EXPECT_EQ(test::named<QLabel>(form, "Label1").text(),
              QStringLiteral("A Signature is the conclusion of a letter which usually includes a "
                             "closing statement, (i.e. Sincerely), a name, and possibly a cc: or "
                             "other marks."));
    EXPECT_EQ(button("Command1").text(), QStringLiteral("&Ok"));
    EXPECT_EQ(button("Command2").text(), QStringLiteral("&Cancel"));
    test::showActive(form);
    EXPECT_EQ(form.size(), QSize(480, 340));
    EXPECT_EQ(form.minimumSize(), QSize(400, 260));
}

TEST_F(Form9Test, BeginsInTheBoxBehindTheTextWhereEnterTypesALine) {
    form.setText("With kind regards,\r\n\r\nHelen M\xFCller");
    test::showActive(form);
    EXPECT_TRUE(box().hasFocus());
    QTest::keyClick(&box(), Qt::Key_Return);
    QTest::keyClicks(&box(), QStringLiteral("cc"));
    EXPECT_EQ(form.text(), "With kind regards,\r\n\r\nHelen M\xFCller\r\ncc");
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&box(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form9Test, EscapeTheFrameAndCancelAreCancel) {
    for (const auto& end : std::initializer_list<std::function<void()>>{
             [this] { QTest::keyClick(&form, Qt::Key_Escape); }, [this] { form.close(); },
             [this] { button("Command2").click(); }}) {
        form.setResult(QDialog::Accepted);
        test::showActive(form);
        end();
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(form.result(), QDialog::Rejected);
    }
}

TEST_F(Form9Test, TheAnswerIsTheTextOrNothing) {
    QWidget window;
    Form9Question question(CodePage::western(), window, [] {});
    for (const bool accepted : {true, false}) {
        QTimer::singleShot(0, &window, [&] {
            auto* open = window.findChild<Form9*>();
            ASSERT_TRUE(open);
            if (accepted)
                open->accept();
            else
                open->reject();
        });
        EXPECT_EQ(question.ask("Helen"),
                  accepted ? std::optional<std::string>("Helen") : std::nullopt);
        EXPECT_EQ(window.findChild<Form9*>(), nullptr);
    }
}

}  // namespace
}  // namespace velmora
