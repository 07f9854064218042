#pragma once

#include "core/PrinterSetup.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QPushButton;
class QRadioButton;

namespace velmora {

class EntryList;

// "Printer Setup": one of the printers by name, and how its sheets lie.
class PrinterDialog final : public Dialog {
    Q_OBJECT

  public:
    // `codePage` must outlive the dialog.
    PrinterDialog(const std::vector<std::string>& printers, const PrinterChoice& now,
                  const CodePage& codePage, QWidget* parent = nullptr);

    // What is chosen at the moment; the printer is empty while none is.
    [[nodiscard]] PrinterChoice chosen() const;

  private:
    void fillPrinters(const std::vector<std::string>& names, const std::string& now);
    void arrange();

    EntryList* printers_;
    QRadioButton* portrait_;
    QRadioButton* landscape_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

// The dialog over the window that is in front.
class QtPrinterQuestion final : public PrinterQuestion {
  public:
    explicit QtPrinterQuestion(const CodePage& codePage) : codePage_(codePage) {}

    [[nodiscard]] std::optional<PrinterChoice> choose(const std::vector<std::string>& printers,
                                                      const PrinterChoice& now) override;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
