// The yardstick of the start: a window with the menus, tool keys and list lines that Velmora has,
// made of the toolkit's own widgets with nothing behind them. With VELMORA_QUIT_AFTER_FIRST_PAINT=1
// in the environment it ends as soon as it has been painted.

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <array>

namespace {

struct Head {
    const char* caption;
    int items;
};
constexpr std::array<Head, 10> kHeads{{{"&File", 11},
                                       {"&Edit", 5},
                                       {"F&ont", 3},
                                       {"&Planner", 5},
                                       {"P&honebook", 16},
                                       {"&Dialer", 0},
                                       {"&Calculator", 0},
                                       {"&Alarm", 1},
                                       {"&Task List", 3},
                                       {"&Help", 2}}};
constexpr int kToolKeys = 24;
constexpr int kLines = 12;

class BareWindow final : public QMainWindow {
  public:
    explicit BareWindow(bool quitWhenPainted) : quitWhenPainted_(quitWhenPainted) {
        setWindowTitle(QStringLiteral("Bare window"));
        resize(1280, 766);
        makeMenus();
        QToolBar* keys = addToolBar(QStringLiteral("Keys"));
        for (int i = 0; i < kToolKeys; ++i)
            keys->addAction(QString::number(i));
        auto* middle = new QWidget;
        auto* row = new QHBoxLayout(middle);
        auto* list = new QListWidget;
        for (int i = 0; i < kLines; ++i)
            list->addItem(QStringLiteral("Abernathy %1, Joan").arg(i));
        row->addWidget(list);
        row->addWidget(new QLabel(QStringLiteral("Details")), 1);
        row->addWidget(new QPlainTextEdit, 1);
        setCentralWidget(middle);
        statusBar()->showMessage(QStringLiteral("Ready"));
    }

  protected:
    bool event(QEvent* event) override {
        const bool result = QMainWindow::event(event);
        if (quitWhenPainted_ && event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        return result;
    }

  private:
    void makeMenus() {
        for (const Head& head : kHeads) {
            QMenu* menu = menuBar()->addMenu(QString::fromLatin1(head.caption));
            for (int i = 0; i < head.items; ++i)
                menu->addAction(QStringLiteral("Item &%1").arg(i));
        }
    }

    bool quitWhenPainted_;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    BareWindow window(qEnvironmentVariable("VELMORA_QUIT_AFTER_FIRST_PAINT") == QLatin1String("1"));
    window.show();
    return QApplication::exec();
}
