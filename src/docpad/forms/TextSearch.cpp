#include "docpad/forms/TextSearch.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/CodePageGuard.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kWidth = 380;

}  // namespace

TextSearch::TextSearch(PadSearch& search, const CodePage& codePage, QWidget* parent)
    : QDialog(parent),
      search_(search),
      codePage_(codePage),
      Text1(new QLineEdit(this)),
      Check1(new QCheckBox(tr("&Match Case"), this)),
      Command1(makeDialogButton("Command1", "&Find", this)),
      Command2(makeDialogButton("Command2", "&Find Next", this)),
      Command3(makeDialogButton("Command3", "&Cancel", this)) {
    setObjectName(QStringLiteral("TextSearch"));
    setWindowTitle(tr("Search..."));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setPlaceholderText(tr("Text to find"));
    Text1->setAccessibleName(tr("Text to find"));
    new CodePageGuard(*Text1, codePage_);
    Check1->setObjectName(QStringLiteral("Check1"));
    makePrimary(*Command1);

    auto* fields = new QVBoxLayout;
    fields->setContentsMargins(16, 16, 16, 16);
    fields->setSpacing(12);
    fields->addWidget(Text1);
    fields->addWidget(Check1);
    auto* footer = new DialogFooter(this);
    footer->addRight(Command1);
    footer->addRight(Command2);
    footer->addRight(Command3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addWidget(footer);
    setMinimumWidth(kWidth);

    connect(Command1, &QPushButton::clicked, this, [this] { find(false); });
    connect(Command2, &QPushButton::clicked, this, [this] { find(true); });
    connect(Command3, &QPushButton::clicked, this, &TextSearch::reject);
}

void TextSearch::present() {
    show();
    raise();
    activateWindow();
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
