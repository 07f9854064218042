#pragma once

#include "platform/controls/Dialog.h"

class QLabel;
class QPushButton;

namespace velmora {

// "About Velmora": name and version, and two links.
class frmAbout final : public Dialog {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);

    // Links that are not enabled are plain text. They are enabled at first.
    void setLinksEnabled(bool enabled);

    // Shows the form; the main window waits until it is closed.
    void present() override;

  signals:
    // The home page, or a letter to the makers, is wanted.
    void webChosen();
    void mailChosen();

  private:
    QLabel* Label1;         // name
    QLabel* Label2;         // version
    QLabel* Label3;         // link to the home page
    QLabel* Label4;         // link to the mail address
    QPushButton* Command1;  // "Close"
};

}  // namespace velmora
