#pragma once

#include <QTimer>

#include "exchange/Backup.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QLabel;
class QPushButton;
class QWidget;

namespace velmora {

class EntryList;

// "Backup Phonebooks": asks for the drive, and is gone while the books are copied.
class Form11 final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the form.
    Form11(Backup& backup, const CodePage& codePage, QWidget* parent = nullptr);

    // Does nothing while another job runs, as the status line says.
    void present() override;

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    [[nodiscard]] QLabel* makeText(const char* name, const char* text);
    [[nodiscard]] QWidget* makeNote();
    void arrange();
    void listDrives();
    void backUp();

    Backup& backup_;
    EntryList* Drive1;      // the roots of the volumes
    QPushButton* Command1;  // "&Backup"
    QPushButton* Command2;  // "&Cancel"
    QTimer look_;           // for volumes that come and go
};

}  // namespace velmora
