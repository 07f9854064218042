#pragma once

#include <array>
#include <memory>

#include "core/Preferences.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QBoxLayout;
class QCheckBox;
class QRadioButton;
class QTabWidget;

namespace velmora {

class DialogBody;
class FolderChooser;
class PreferenceControls;
class Stepper;

// "Preferences...": five pages of settings. The main window waits for it.
class Setup final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the form.
    Setup(Preferences& preferences, const CodePage& codePage, QWidget* parent = nullptr);
    ~Setup() override;

    void setVisible(bool visible) override;

  signals:
    // All settings have been stored.
    void applied();

    // A folder has characters that the code page lacks, and was not taken over.
    void folderRefused();

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;

  private:
    static constexpr std::size_t kPages = 5;

    void makeControls();
    void makePages();
    void addPage(std::size_t place, const QString& caption, QBoxLayout* layout);
    [[nodiscard]] QBoxLayout* phonePage();
    [[nodiscard]] QBoxLayout* networkPage();
    [[nodiscard]] QBoxLayout* plannerPage();
    [[nodiscard]] QBoxLayout* phonebookPage();
    [[nodiscard]] QBoxLayout* internetPage();
    [[nodiscard]] QLayout* hours();
    void orderTabs();
    void connectControls();
    void connectFolders();
    void connectNumbers();
    void choose(QLineEdit& box, std::optional<std::string> (Preferences::*question)());
    void takeFolder(QLineEdit& box);
    void limitPages();
    void apply();

    Preferences& preferences_;
    const CodePage& codePage_;
    std::unique_ptr<PreferenceControls> controls_;
    std::array<DialogBody*, kPages> pages_{};  // Picture1 to Picture5

    QTabWidget* TabStrip1;  // the pages
    QPushButton* Command1;  // "&Apply"
    QPushButton* Command2;  // "Cancel"
    QPushButton* Command3;  // "&Help"

    std::array<QRadioButton*, 8> ports_{};  // Option1 to Option8: "COM 1" to "COM 8"
    QRadioButton* Option9;                  // "&Tone"
    QRadioButton* Option10;                 // "&Pulse"
    QLineEdit* Text5;                       // dialing prefix
    QLineEdit* Text1;                       // modem initialization
    QLineEdit* Text9;                       // local area code
    QLineEdit* Text14;                      // external dialer
    QPushButton* chooseDialer;              // "..."
    QCheckBox* Check3;                      // "&Log Phone Calls"
    QCheckBox* Check5;                      // "&Use Caller ID"

    FolderChooser* folders_;                   // Drive1 and Dir1
    QLineEdit* Text4;                          // White Pages path
    QLineEdit* Text7;                          // Yellow Pages path
    QLineEdit* Text15;                         // calendar path
    std::array<QPushButton*, 3> setFolder_{};  // setWhite, setYellow, setCalendar
    std::array<QPushButton*, 3> clear_{};      // clearWhite, clearYellow, clearCalendar

    Stepper* start_;           // VScroll1 and Label27
    Stepper* end_;             // VScroll2 and Label28
    QLineEdit* Text10;         // sound of an alarm
    QPushButton* chooseSound;  // "..."
    QPushButton* playNow;      // "&Play Now"
    QCheckBox* Check2;         // "&Show Events of The Day at Startup"
    Stepper* days_;            // VScroll3 and Label11
    QCheckBox* Check8;         // "&Keep Current DocPad Document Active"
    QCheckBox* Check7;         // "&Auto WordWrap DocPad Print Jobs..."
    QCheckBox* Check10;        // "Print &Header"

    QRadioButton* Option11;  // "&Left"
    QRadioButton* Option12;  // "&Right"
    QRadioButton* Option13;  // "&Center"
    QCheckBox* Check9;       // "Print the Envelope:"
    QCheckBox* Check1;       // "Include &Phone Numbers and E-Mail"
    QCheckBox* Check4;       // "&Tab Before Salutation"
    QLineEdit* Text6;        // default salutation
    QLineEdit* Text3;        // name of the first custom field
    QLineEdit* Text2;        // name of the second custom field

    QCheckBox* Check6;       // "&Use Internet Settings from Control Panel..."
    QLineEdit* Text8;        // web browser
    QPushButton* Command8;   // "..."
    QLineEdit* Text11;       // mail program
    QPushButton* Command13;  // "..."
    QLineEdit* Text12;       // arguments of the mail program
};

}  // namespace velmora
