#include "app/Application.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTimer>

#include "platform/Failure.h"
#include "platform/FatalFailure.h"
#include "platform/qt/PrintServiceMain.h"

namespace velmora {
namespace {

Application& application() {
    return *static_cast<Application*>(qApp);
}

// Runs `work` from the event loop, as a handler; closes the error box that follows. Returns its
// text, or nothing when there was none.
QString errorBoxAfter(std::function<void()> work) {
    QString text;
    QTimer::singleShot(0, qApp, std::move(work));
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            EXPECT_EQ(box->windowTitle(), "Velmora");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            text = box->text();
            box->close();
            QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        }
    });
    watch.start(1);
    QTimer::singleShot(5000, &watch, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
    return text;
}

TEST(Application, AFailureThatNobodyCaughtIsShownAndTheProgramGoesOn) {
    EXPECT_EQ(errorBoxAfter([] { throw Failure("The disk is full."); }), "The disk is full.");
    EXPECT_EQ(errorBoxAfter([] { throw Failure("Once more."); }), "Once more.");
}

TEST(Application, AFatalFailureIsShownInItsOwnWordsAndTheProgramEndsInOrder) {
    int ends = 0;
    application().setOrderlyEnd([&] { ++ends; });
    EXPECT_EQ(errorBoxAfter([] { throw FatalFailure("Too many of them."); }), "Too many of them.");
    EXPECT_EQ(ends, 1);
    application().setOrderlyEnd(nullptr);
}

TEST(Application, TheEndOfTheSessionIsLeftToTheProgram) {
    int ends = 0;
    application().setEndOfSession([&] { ++ends; });
    QEvent quit(QEvent::Quit);
    EXPECT_TRUE(QCoreApplication::sendEvent(qApp, &quit));
    EXPECT_EQ(ends, 1);
    application().setEndOfSession({});
}

TEST(Application, AnyOtherErrorIsShownAndTheProgramEndsInOrder) {
    int ends = 0;
    application().setOrderlyEnd([&] { ++ends; });
    const QString text = errorBoxAfter([] { throw std::runtime_error("broken"); });
    EXPECT_TRUE(text.contains("broken")) << text.toStdString();
    EXPECT_TRUE(text.contains("It will close now."));
    EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace velmora

int main(int argc, char** argv) {
    if (velmora::isPrintServiceCall(argc, argv))
        return velmora::printServiceMain(argc, argv);
    velmora::Application application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
