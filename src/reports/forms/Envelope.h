#pragma once

#include <array>
#include <functional>

#include "core/SettingsStore.h"
#include "platform/CodePage.h"
#include "platform/PrintDevice.h"
#include "platform/PrintTarget.h"
#include "platform/StatusLine.h"
#include "platform/controls/Dialog.h"
#include "reports/EnvelopeEditor.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace velmora {

class EnvelopeSheet;

// "Create Envelope": the return address, the address, a font for each line, a barcode, and a
// picture that shows at each keystroke what will be printed where. The user goes on working in the
// main window meanwhile.
class Envelope final : public Dialog {
    Q_OBJECT

  public:
    struct Parts {
        EnvelopeEditor& editor;
        const SettingsStore& settings;
        const PrintMetrics& metrics;
        PrintTargets& targets;
        StatusLine& status;
        const CodePage& codePage;
    };

    // All parts must outlive the form. The editor has been loaded.
    explicit Envelope(const Parts& parts, QWidget* parent = nullptr);

    // Shows the selected entry's envelope, in front. Throws Failure when the book can not be read;
    // the form is in view then, with an empty address.
    void present() override;

    // Shows anew what will be printed where, after a change of the settings.
    void showPicture();

  signals:
    void preferencesWanted();

    // Cancelled or closed: what was typed is not wanted any more.
    void unloaded();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    struct Row {
        QLineEdit* text;
        QToolButton* font;
    };

    void makeRows();
    [[nodiscard]] QWidget* makeRow(std::size_t line, int width);
    [[nodiscard]] QWidget* makePaper();
    void connectControls();
    void setTabs();
    void showContent();
    void showFont(std::size_t line);
    void print();
    void askWhere();

    Parts parts_;
    std::array<Row, kEnvelopeLines> rows_{};
    QLabel* Label1;         // the barcode that will be printed
    EnvelopeSheet* sheet_;  // the picture
    QLabel* where_;         // printer and paper
    QPushButton* Command1;  // "&Barcode Zipcode"
    QPushButton* Command2;  // "&Cancel"
    QPushButton* Command3;  // "&Save Return Address as Default"
    QPushButton* Command4;  // "&Preferences"
    QPushButton* Command5;  // "Print"
    std::optional<PrintTarget> target_;
    QString targetLine_;
};

}  // namespace velmora
