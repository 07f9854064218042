#include "docpad/forms/TextSearch.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(380, 0);  // as high as its parts

}  // namespace

TextSearch::TextSearch(PadSearch& search, const CodePage& codePage, QWidget* parent)
    : Dialog("TextSearch", tr("Search..."), parent),
      search_(search),
      codePage_(codePage),
      Text1(new QLineEdit(this)),
      Check1(new QCheckBox(tr("&Match Case"), this)),
      Command1(makeDialogButton("Command1", "&Find", this)),
      Command2(makeDialogButton("Command2", "&Find Next", this)),
      Command3(makeDialogButton("Command3", "&Cancel", this)) {
    setWindowFlag(Qt::WindowStaysOnTopHint);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setPlaceholderText(tr("Text to find"));
    Text1->setAccessibleName(tr("Text to find"));
    guard(*Text1, codePage_);
    Check1->setObjectName(QStringLiteral("Check1"));

    auto* fields = new QVBoxLayout;
    fields->setSpacing(12);
    fields->addWidget(Text1);
    fields->addWidget(Check1);
    layOut(fields, {.right = {Command1, Command2, Command3}, .primary = Command1},
           {.first = kFormSize, .grows = Qt::Horizontal});
    setTabStops({Text1, Check1});

    connect(Command1, &QPushButton::clicked, this, [this] { find(false); });
    connect(Command2, &QPushButton::clicked, this, [this] { find(true); });
    connect(Command3, &QPushButton::clicked, this, &TextSearch::reject);
}

void TextSearch::present() {
    Dialog::present();
    Text1->setFocus();
    Text1->selectAll();
}

void TextSearch::reject() {
    QDialog::reject();
    Text1->clear();
    Check1->setChecked(false);
}

void TextSearch::find(bool next) {
    const std::string what = fromQt(Text1->text(), codePage_);
    const bool matchCase = Check1->isChecked();
    if (next ? search_.FindNext(what, matchCase) : search_.Find(what, matchCase))
        hide();
}

}  // namespace velmora
