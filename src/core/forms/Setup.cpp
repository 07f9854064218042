#include "core/forms/Setup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethod>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include "core/forms/PreferenceControls.h"
#include "platform/controls/DialogBody.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/FolderChooser.h"
#include "platform/controls/Stepper.h"
#include "platform/qt/BoxOwner.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(700, 562);
constexpr int kAboveTabs = 8;
constexpr QSize kLeftFree(16, 40);  // of the screen
constexpr int kLeastPage = 80;
constexpr int kHours = 6;  // a large step
constexpr int kOneWeek = 7;

}  // namespace

Setup::Setup(Preferences& preferences, const CodePage& codePage, QWidget* parent)
    : Dialog("Setup", QStringLiteral("Preferences..."), parent),
      preferences_(preferences),
      codePage_(codePage),
      TabStrip1(new QTabWidget(this)),
      Command1(makeDialogButton("Command1", "&Apply", this)),
      Command2(makeDialogButton("Command2", "Cancel", this)),
      Command3(makeHelpButton("Command3")) {
    setWindowModality(Qt::WindowModal);
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    makeControls();
    makePages();
    auto* body = new QVBoxLayout;
    body->addWidget(TabStrip1);
    layOut(body, {.left = {Command3}, .right = {Command1, Command2}, .primary = Command1},
           {.first = kFormSize});
    body->setContentsMargins(0, kAboveTabs, 0, 0);  // the line below the tabs runs to the edges
    controls_ = std::make_unique<PreferenceControls>(*this, codePage_);
    controls_->forEachBox([this](QLineEdit& box) { guard(box, codePage_); });
    orderTabs();
    connectControls();
    connectFolders();
    connectNumbers();
}

Setup::~Setup() = default;

void Setup::addPage(std::size_t place, const QString& caption, QBoxLayout* layout) {
    auto* page = new DialogBody(layout, this);
    page->setObjectName(QStringLiteral("Picture%1").arg(place + 1));
    pages_.at(place) = page;
    TabStrip1->addTab(page, caption);
}

void Setup::makePages() {
    addPage(0, QStringLiteral("Phone/Modem Settings"), phonePage());
    addPage(1, QStringLiteral("Network Settings"), networkPage());
    addPage(2, QStringLiteral("Planner Settings"), plannerPage());
    addPage(3, QStringLiteral("Phonebook Settings"), phonebookPage());
    addPage(4, QStringLiteral("Internet"), internetPage());
}

// In reading order, page by page.
void Setup::orderTabs() {
    std::vector<QWidget*> stops{TabStrip1->tabBar()};
    stops.insert(stops.end(), ports_.begin(), ports_.end());
    for (QWidget* stop : std::initializer_list<QWidget*>{Option9,
                                                         Option10,
                                                         Text5,
                                                         Text9,
                                                         Text1,
                                                         Text14,
                                                         chooseDialer,
                                                         Check3,
                                                         Check5,
                                                         folders_->places(),
                                                         folders_->tree(),
                                                         Text4,
                                                         setFolder_[0],
                                                         clear_[0],
                                                         Text7,
                                                         setFolder_[1],
                                                         clear_[1],
                                                         Text15,
                                                         setFolder_[2],
                                                         clear_[2],
                                                         start_->arrows(),
                                                         end_->arrows(),
                                                         Text10,
                                                         chooseSound,
                                                         playNow,
                                                         Check2,
                                                         days_->arrows(),
                                                         Check8,
                                                         Check7,
                                                         Check10,
                                                         Option11,
                                                         Option12,
                                                         Option13,
                                                         Check9,
                                                         Check1,
                                                         Check4,
                                                         Text6,
                                                         Text3,
                                                         Text2,
                                                         Check6,
                                                         Text8,
                                                         Command8,
                                                         Text11,
                                                         Command13,
                                                         Text12})
        stops.push_back(stop);
    setTabStops(stops);
}

void Setup::connectControls() {
    connect(Command1, &QPushButton::clicked, this, &Setup::apply);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    // Here, since a combo box that has the keys would keep them.
    for (const auto& [keys, step] :
         {std::pair(Qt::CTRL | Qt::Key_Tab, 1), std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1)})
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
                [this, step = step] {
                    const int count = TabStrip1->count();
                    TabStrip1->setCurrentIndex((TabStrip1->currentIndex() + step + count) % count);
                });
    connect(playNow, &QPushButton::clicked, this,
            [this] { preferences_.playNow(fromQt(Text10->text(), codePage_)); });
    connect(chooseSound, &QPushButton::clicked, this,
            [this] { choose(*Text10, &Preferences::chooseSound); });
    for (const auto& [button, box] : {std::pair(chooseDialer, Text14), std::pair(Command8, Text8),
                                      std::pair(Command13, Text11)})
        connect(button, &QPushButton::clicked, this,
                [this, box = box] { choose(*box, &Preferences::chooseProgram); });
    connect(Check6, &QCheckBox::toggled, this, [this](bool desktops) {
        for (QWidget* own : std::initializer_list<QWidget*>{Command8, Command13, Text12})
            own->setEnabled(!desktops);
    });
}

void Setup::connectFolders() {
    const std::array boxes{Text4, Text7, Text15};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        QLineEdit* box = boxes[i];
        connect(setFolder_[i], &QPushButton::clicked, this, [this, box] { takeFolder(*box); });
        connect(clear_[i], &QPushButton::clicked, box, &QLineEdit::clear);
    }
}

void Setup::connectNumbers() {
    for (const PreferenceRow& row : preferenceRows())
        for (Stepper* stepper : {start_, end_, days_}) {
            if (stepper->arrows()->objectName().toStdString() != row.controls[0])
                continue;
            stepper->arrows()->setPageStep(row.hour ? kHours : kOneWeek);
            const auto write = [&row, stepper](int number) {
                stepper->label()->setText(QString::fromStdString(numberShown(row, number)));
            };
            connect(stepper, &Stepper::valueChanged, stepper, write);
            write(stepper->value());
        }
}

void Setup::choose(QLineEdit& box, std::optional<std::string> (Preferences::*question)()) {
    if (const auto path = (preferences_.*question)())
        box.setText(toQt(*path, codePage_));
    box.setFocus();
}

void Setup::takeFolder(QLineEdit& box) {
    const QString folder = folders_->folder();
    if (keepToCodePage(folder, codePage_) != folder)
        emit folderRefused();
    else if (!folder.isEmpty())
        box.setText(folder);
}

void Setup::beginAnew() {
    TabStrip1->setCurrentIndex(0);
    controls_->show(preferences_.shown());
}

QWidget* Setup::firstField() const {
    for (QRadioButton* port : ports_)
        if (port->isChecked())
            return port;
    return ports_.front();
}

// What a page needs beyond the room on the screen is scrolled, and the tabs stay where they are.
void Setup::limitPages() {
    const QWidget* owner = parentWidget() ? parentWidget() : boxOwner();
    const QRect room = (owner ? owner->screen() : screen())->availableGeometry();
    const QSize most = (room.size() - kLeftFree).boundedTo(largestInside(room, *this));
    const int around =
        kAboveTabs + TabStrip1->tabBar()->sizeHint().height() + footer().sizeHint().height() + 1;
    for (DialogBody* page : pages_)
        page->setRoom({most.width(), std::max(most.height() - around, kLeastPage)});
}

void Setup::setVisible(bool visible) {
    if (visible && !isVisible()) {
        ensurePolished();
        limitPages();
    }
    Dialog::setVisible(visible);
}

void Setup::apply() {
    QGuiApplication::inputMethod()->commit();  // what is still being composed counts
    if (!preferences_.apply(controls_->values()))
        return;
    accept();
    emit applied();
}

}  // namespace velmora
