#include "core/forms/PrinterDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/qt/BoxOwner.h"
#include "platform/qt/QtText.h"

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
    : QDialog(parent),
      codePage_(codePage),
      printers_(new QListWidget(this)),
      portrait_(makeChoice("portrait", tr("P&ortrait"), this)),
      landscape_(makeChoice("landscape", tr("&Landscape"), this)),
      ok_(makeDialogButton("ok", "Ok", this)),
      cancel_(makeDialogButton("cancel", "Cancel", this)) {
    setObjectName(QStringLiteral("PrinterDialog"));
    setWindowTitle(tr("Printer Setup"));
    printers_->setObjectName(QStringLiteral("printers"));
    printers_->setAccessibleName(tr("Printer"));  // no assistive tool tells a list by its label
    makePrimary(*ok_);
    const bool lying = now.orientation == PageOrientation::Landscape;
    (lying ? landscape_ : portrait_)->setChecked(true);
    fillPrinters(printers, now.printer);
    layOut();
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(printers_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    printers_->setFocus();
}

void PrinterDialog::fillPrinters(const std::vector<std::string>& names, const std::string& now) {
    for (const std::string& name : names) {
        printers_->addItem(toQt(name, codePage_));
        if (name == now)
            printers_->setCurrentRow(printers_->count() - 1);
    }
    ok_->setEnabled(printers_->currentRow() >= 0);
    connect(printers_, &QListWidget::currentRowChanged, ok_,
            [this](int row) { ok_->setEnabled(row >= 0); });
}

void PrinterDialog::layOut() {
    auto* label = new QLabel(tr("&Printer"), this);
    label->setProperty("role", "label");
    label->setBuddy(printers_);
    auto* sheets = new QHBoxLayout;
    sheets->setSpacing(16);
    sheets->addWidget(portrait_);
    sheets->addWidget(landscape_);
    sheets->addStretch();
    auto* body = new QVBoxLayout;
    body->setContentsMargins(16, 16, 16, 16);
    body->setSpacing(4);
    body->addWidget(label);
    body->addWidget(printers_, 1);
    body->addSpacing(8);
    body->addLayout(sheets);
    auto* footer = new DialogFooter(this);
    footer->addRight(ok_);
    footer->addRight(cancel_);
    layOutDialog(*this, body, footer);
    resize(kSize);
}

PrinterChoice PrinterDialog::chosen() const {
    const QListWidgetItem* item = printers_->currentItem();
    return {.printer = item ? fromQt(item->text(), codePage_) : std::string(),
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
