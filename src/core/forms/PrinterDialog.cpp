#include "core/forms/PrinterDialog.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/BoxOwner.h"

namespace velmora {
namespace {

constexpr QSize kSize(420, 320);

QRadioButton* makeChoice(const char* name, const QString& caption, QWidget* parent) {
    auto* button = new QRadioButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

}  // namespace

PrinterDialog::PrinterDialog(const std::vector<std::string>& printers, const PrinterChoice& now,
                             const CodePage& codePage, QWidget* parent)
    : Dialog("PrinterDialog", tr("Printer Setup"), parent),
      printers_(new EntryList(codePage, nullptr, this)),
      portrait_(makeChoice("portrait", tr("P&ortrait"), this)),
      landscape_(makeChoice("landscape", tr("&Landscape"), this)),
      ok_(makeDialogButton("ok", "Ok", this)),
      cancel_(makeDialogButton("cancel", "Cancel", this)) {
    printers_->setObjectName(QStringLiteral("printers"));
    printers_->setAccessibleName(tr("Printer"));  // no assistive tool tells a list by its label
    printers_->setDragEnabled(false);
    const bool lying = now.orientation == PageOrientation::Landscape;
    (lying ? landscape_ : portrait_)->setChecked(true);
    fillPrinters(printers, now.printer);
    arrange();
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(printers_, &EntryList::doubleClicked, this, &QDialog::accept);
    printers_->setFocus();
}

void PrinterDialog::fillPrinters(const std::vector<std::string>& names, const std::string& now) {
    printers_->setLines(names);
    printers_->selectLine(now);
    ok_->setEnabled(printers_->hasSelection());
    connect(printers_, &EntryList::currentLineChanged, ok_,
            [this] { ok_->setEnabled(printers_->hasSelection()); });
}

void PrinterDialog::arrange() {
    auto* sheets = new QHBoxLayout;
    sheets->setSpacing(16);
    sheets->addWidget(portrait_);
    sheets->addWidget(landscape_);
    sheets->addStretch();
    auto* body = new QVBoxLayout;
    body->setSpacing(4);
    body->addWidget(makeLabel(tr("&Printer"), printers_));
    body->addWidget(makeListFrame(printers_, this), 1);
    body->addSpacing(8);
    body->addLayout(sheets);
    layOut(body, {.right = {ok_, cancel_}, .primary = ok_}, {.first = kSize});
    setTabStops({printers_, portrait_, landscape_});
}

PrinterChoice PrinterDialog::chosen() const {
    return {.printer = printers_->selectedLine(),
            .orientation =
                landscape_->isChecked() ? PageOrientation::Landscape : PageOrientation::Portrait};
}

std::optional<PrinterChoice> QtPrinterQuestion::choose(const std::vector<std::string>& printers,
                                                       const PrinterChoice& now) {
    PrinterDialog dialog(printers, now, codePage_, boxOwner());
    if (runOverOwner(dialog) != QDialog::Accepted)
        return std::nullopt;
    return dialog.chosen();
}

}  // namespace velmora
