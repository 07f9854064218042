#pragma once

#include <array>
#include <utility>

#include "phonebook/DatabaseSearch.h"
#include "phonebook/HitListPrint.h"
#include "phonebook/SearchView.h"
#include "platform/CodePage.h"
#include "platform/StatusLine.h"
#include "platform/controls/Dialog.h"

class QCheckBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace velmora {

class EntryList;
class StatusLight;

// "Search V.L.M. Database": searches the books for a text and lists the hits, while the user goes
// on working in the main window. The form is made once; it must outlive a search under way.
class Form4 final : public Dialog, public SearchView {
    Q_OBJECT

  public:
    // All must outlive the form.
    Form4(const DatabaseSearchParts& parts, HitListPrint& printing, const CodePage& codePage,
          QWidget* parent = nullptr);

    // Shows the form, in front and ready for typing. One that was closed begins anew: empty, with
    // all fields ticked.
    void present() override;

    void done(int result) override;

    void showLight(SearchLight light) override;
    void showHitList(bool shown) override;
    void setHits(std::vector<std::string> lines) override;

  protected:
    void beginAnew() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct FieldBox {
        QCheckBox* Form4::*box;
        const char* name;
    };
    static const std::array<FieldBox, kFieldCount> kFieldBoxes;

    void makeControls();
    void makeButtons();
    QLayout* questionRow();
    QWidget* fieldCard();
    QWidget* hitCard();
    void arrange();
    void setTabOrders();
    void connectControls();

    void tickAllFields(bool ticked);
    void nameCustomFields();
    [[nodiscard]] SearchCriteria criteria() const;
    void goToSelected();

    const CodePage& codePage_;
    StatusLine& statusLine_;
    DatabaseSearch search_;
    HitListPrint& printing_;

    QLabel* Label1 = nullptr;         // "Search for:"
    QLineEdit* Text1 = nullptr;       // the text to search for
    QCheckBox* Check1 = nullptr;      // "&Both Books"
    QLabel* Label2 = nullptr;         // "Fields to Search:"
    QCheckBox* Check11 = nullptr;     // "Search All Fields"
    QCheckBox* Check7 = nullptr;      // "Title"
    QCheckBox* Check2 = nullptr;      // "First Name"
    QCheckBox* Check3 = nullptr;      // "Last Name"
    QCheckBox* Check5 = nullptr;      // "Job Title"
    QCheckBox* Check6 = nullptr;      // "Company"
    QCheckBox* Check13 = nullptr;     // "Address 1"
    QCheckBox* Check14 = nullptr;     // "Address 2"
    QCheckBox* Check21 = nullptr;     // "Address 3"
    QCheckBox* Check22 = nullptr;     // "Address 4"
    QCheckBox* Check23 = nullptr;     // "Address 5", the postal code
    QCheckBox* Check15 = nullptr;     // "Country"
    QCheckBox* Check9 = nullptr;      // "Salutation"
    QCheckBox* Check4 = nullptr;      // "Home Phn"
    QCheckBox* Check16 = nullptr;     // "Work Phn"
    QCheckBox* Check8 = nullptr;      // "Fax"
    QCheckBox* Check18 = nullptr;     // "Pager"
    QCheckBox* Check17 = nullptr;     // "Other Phn"
    QCheckBox* Check24 = nullptr;     // "E-Mail"
    QCheckBox* Check26 = nullptr;     // "Web Page"
    QCheckBox* Check10 = nullptr;     // "Note"
    QCheckBox* Check12 = nullptr;     // "Class"
    QCheckBox* Check25 = nullptr;     // "Date"
    QCheckBox* Check19 = nullptr;     // the first custom field
    QCheckBox* Check20 = nullptr;     // the second custom field
    QCheckBox* Check27 = nullptr;     // "Spouse"
    QCheckBox* Check28 = nullptr;     // "File Attach"
    StatusLight* Label4 = nullptr;    // red while searching, green when done
    QLabel* Label3 = nullptr;         // "Matching Entries:"
    EntryList* List1 = nullptr;       // the hits
    QLabel* Label5 = nullptr;         // what a double-click does
    QPushButton* Command1 = nullptr;  // "&Search"
    QPushButton* Command2 = nullptr;  // "&Clear List"
    QPushButton* Command3 = nullptr;  // "Clos&e"
    QPushButton* Command4 = nullptr;  // "&Print List"
    QPushButton* Command5 = nullptr;  // "&Help"
};

}  // namespace velmora
