#pragma once

#include "phonebook/EntryEditor.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"
#include "platform/controls/Dialog.h"
#include "platform/controls/DocumentBytes.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velmora {

// The form that adds an entry or changes one. Checks and writing are the editor's.
class AddForm final : public Dialog {
    Q_OBJECT

  public:
    // All four must outlive the form. The values are loaded here; the editor is told once when the
    // form closes.
    AddForm(EntryEditor& editor, Messages& messages, StatusLine& statusLine,
            const CodePage& codePage, QWidget* parent = nullptr);
    ~AddForm() override;

    void done(int result) override;

    // What stands in the form now.
    [[nodiscard]] Entry values() const;

  signals:
    // A value was changed since the form was filled.
    void edited();

  private:
    void makeControls();
    void setCaptions();
    QLayout* leftColumn();
    QLayout* rightColumn();
    QLayout* memoRow();
    void arrange();
    void connectControls();
    void guardTexts();
    void watchEdits();

    [[nodiscard]] QLineEdit* boxOf(Field field) const;
    void showValues(const Entry& values);
    void showForCompany(bool justCompany);
    void chooseAttachment();
    void apply();
    void tellClosed();

    EntryEditor& editor_;
    Messages& messages_;
    StatusLine& statusLine_;
    const CodePage& codePage_;
    DocumentBytes memoBytes_;  // the memo as a book holds it, each line end as it is
    bool open_ = true;         // the editor has not been told yet that the form closed

    QCheckBox* Check1 = nullptr;       // "Just A Company; No Name Needed"
    QLineEdit* Text1 = nullptr;        // Title
    QLineEdit* Text2 = nullptr;        // First
    QLineEdit* Text3 = nullptr;        // Last
    QLineEdit* Text4 = nullptr;        // Position
    QLineEdit* Text5 = nullptr;        // Company
    QLineEdit* Text6 = nullptr;        // Address1
    QLineEdit* Text7 = nullptr;        // Address2
    QLineEdit* Text8 = nullptr;        // Address3
    QLineEdit* Text17 = nullptr;       // Address4
    QLineEdit* Text18 = nullptr;       // Country
    QLineEdit* Text22 = nullptr;       // PostalCode
    QLineEdit* Text9 = nullptr;        // Phone
    QLineEdit* Text14 = nullptr;       // WorkPhone
    QLineEdit* Text10 = nullptr;       // Fax
    QLineEdit* Text13 = nullptr;       // Pager
    QLineEdit* Text15 = nullptr;       // OtherPhone
    QLineEdit* Text16 = nullptr;       // EMail
    QLineEdit* Text23 = nullptr;       // WebPage
    QLineEdit* Text12 = nullptr;       // Salutation
    QComboBox* Combo1 = nullptr;       // Class
    QPlainTextEdit* Text11 = nullptr;  // Memo
    QLineEdit* Text21 = nullptr;       // DateReference
    QLineEdit* Text20 = nullptr;       // Custom1
    QLineEdit* Text19 = nullptr;       // Custom2
    QLineEdit* Text25 = nullptr;       // FileAttachment
    QLineEdit* Text24 = nullptr;       // Spouse
    QLabel* Label1 = nullptr;          // "Salutation:"
    QLabel* Label2 = nullptr;          // "Title: (ie. Mr.)"
    QLabel* Label3 = nullptr;          // "First Name (+ Middle Initial):"
    QLabel* Label4 = nullptr;          // "Last Name:"
    QLabel* Label5 = nullptr;          // "Company Title/Position:"
    QLabel* Label6 = nullptr;          // "Company Name:"
    QLabel* Label7 = nullptr;          // "Address Information, Attn:, Apt. #, etc.:"
    QLabel* Label8 = nullptr;          // "Telephone Number:"
    QLabel* Label9 = nullptr;          // "Fax Number:"
    QLabel* Label10 = nullptr;         // "Memo:"
    QLabel* Label11 = nullptr;         // "Class (i.e. Business; Personal; etc.):"
    QLabel* Label12 = nullptr;         // "Work Number:"
    QLabel* Label13 = nullptr;         // "Pager Number:"
    QLabel* Label14 = nullptr;         // "Cellular/Other Number:"
    QLabel* Label15 = nullptr;         // "E-Mail Address:"
    QLabel* Label16 = nullptr;         // "Country:"
    QLabel* Label17 = nullptr;         // the first custom field
    QLabel* Label18 = nullptr;         // the second custom field
    QLabel* Label19 = nullptr;         // "Date Reference/ Last Appointment:"
    QLabel* Label20 = nullptr;         // "Web Page:"
    QLabel* Label21 = nullptr;         // "Postal/Zip Code:"
    QLabel* Label22 = nullptr;         // "Spouse's Full Name:"
    QPushButton* Command1 = nullptr;   // "&Add Entry" or "&Keep Changes"
    QPushButton* Command2 = nullptr;   // "&Cancel"
    QPushButton* Command3 = nullptr;   // "...", picks the attachment
};

}  // namespace velmora
