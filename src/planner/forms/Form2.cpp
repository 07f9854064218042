#include "planner/forms/Form2.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "platform/controls/DialogButton.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(480, 202);
constexpr QSize kIconSize(34, 34);
constexpr int kGap = 14;

}  // namespace

Form2::Form2(std::function<bool()> import, std::function<void()> cancel, QWidget* parent)
    : Dialog("Form2", QStringLiteral("Planner Importer"), parent),
      import_(std::move(import)),
      cancel_(std::move(cancel)),
      icon_(new QLabel(this)),
      Command1(makeDialogButton("Command1", "&Import", this)) {
    auto* text = new QLabel(
        QStringLiteral("Use the Planner Importer to Import Version 6.x and earlier Planner Data "
                       "into the VLM. Click the Import button below to get started. After you "
                       "click the button, you will be prompted for the folder the old version of "
                       "the planner was installed in. In order to import old data, the main "
                       "cfile.dat file is utilized."),
        this);
    text->setObjectName(QStringLiteral("Label1"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    icon_->setFixedWidth(kIconSize.width());
    icon_->setAlignment(Qt::AlignTop);
    auto* body = new QHBoxLayout;
    body->setSpacing(kGap);
    body->addWidget(icon_);
    body->addWidget(text, 1);
    layOut(body, {.right = {Command1}, .primary = Command1}, {.first = kFormSize, .grows = {}});
    paintIcon();
    connect(Command1, &QPushButton::clicked, this, &Form2::run);
}

QWidget* Form2::firstField() const {
    return Command1;
}

void Form2::paintIcon() {
    icon_->setPixmap(symbolPixmap(QStringLiteral("Planner"), kIconSize, devicePixelRatioF(),
                                  Theme::of(*this).accent));
}

bool Form2::event(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::Show)
        paintIcon();
    return Dialog::event(event);
}

void Form2::run() {
    running_ = true;
    Command1->setEnabled(false);
    setCursor(Qt::BusyCursor);
    const bool done = import_();
    running_ = false;
    unsetCursor();
    Command1->setEnabled(true);
    Command1->setFocus();
    if (done)
        accept();
}

void Form2::reject() {
    if (running_)
        cancel_();
    else
        Dialog::reject();
}

}  // namespace velmora
