#include "exchange/EarlierPhonebooks.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "phonebook/Entry.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

constexpr const char* kReady =
    "ask|Import|Ready to Import? If an entry already exists, it will be overwritten by the newly "
    "imported data.";

struct NotedCopies final : CopiesBeforeImport {
    std::string copyBook(const std::string& bookFile, const std::function<bool()>&) override {
        copied.push_back(bookFile);
        if (fails)
            throw Failure("The disk is full.");
        return "/copy" + std::to_string(copied.size());
    }
    std::vector<std::string> copied;
    bool fails = false;
};

class EarlierPhonebooksTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    void import() {
        desk.messages.willAnswer(true);
        importer.import();
    }

    std::string& file(const std::string& name) { return files["/velmora\\" + name]; }

    // The files of the letter "A" with an entry of this name and these lines.
    void giveA(const std::string& name, const std::string& lines, const char* ending = ".DAT") {
        file(std::string("ANAMES") + ending) =
            "[Number]\r\nANu=1\r\n[AName]\r\n" + name + "=1\r\n[" + name + "]\r\n" + lines;
    }

    static PhonebookRecord person(std::string_view first, std::string_view last) {
        std::uint64_t cut = 0;
        return earlierEntry(
            ProfileFile("[x]\nFirst=" + std::string(first) + "\nLast=" + std::string(last),
                        CodePage::western()),
            "x", cut);
    }

    test::PrintDesk desk;
    NotedCopies copies;
    int changes = 0;
    EarlierPhonebooks importer{{desk.jobs, desk.messages, store, locations, files, copies,
                                desk.printing.state(), [this] { ++changes; }}};
};

TEST_F(EarlierPhonebooksTest, AsksAndStopsOnNo) {
    giveA("Adams", "First=Ann\n");
    desk.messages.willAnswer(false);
    importer.import();
    EXPECT_EQ(desk.messages.takeShown(), (std::vector<std::string>{kReady}));
    EXPECT_EQ(yellow(), "");
    EXPECT_EQ(changes, 0);
}

TEST_F(EarlierPhonebooksTest, EachKeyFillsItsField) {
    giveA("Adams, Ann",
          "Title=t\r\nFirst=f\r\nLast=l\r\nOS=o\r\nCompany=c\r\nStreet=s\r\nStreet2=s2\r\n"
          "Country=cy\r\nPhone=p\r\nWork=w\r\nFax=x\r\nNote=n\r\nClass=k\r\nPSal=ps\r\n");
    import();
    const PhonebookRecord record(yellow());
    const std::vector<std::pair<Field, std::string>> fields{
        {Field::Title, "t"},     {Field::First, "f"},      {Field::Last, "l"},
        {Field::Position, "o"},  {Field::Company, "c"},    {Field::Address1, "s"},
        {Field::Address2, "s2"}, {Field::Country, "cy"},   {Field::Phone, "p"},
        {Field::WorkPhone, "w"}, {Field::Fax, "x"},        {Field::Memo, "n"},
        {Field::Class, "k"},     {Field::Salutation, "ps"}};
    for (const auto& [field, text] : fields)
        EXPECT_EQ(record.text(field), text);
    for (const Field empty :
         {Field::Address3, Field::Address4, Field::PostalCode, Field::Pager, Field::OtherPhone,
          Field::EMail, Field::DateReference, Field::Custom1, Field::Custom2})
        EXPECT_EQ(record.raw(empty), std::string(placeOf(empty).width, ' '));
    for (const Field never : {Field::WebPage, Field::FileAttachment, Field::Spouse})
        EXPECT_EQ(record.raw(never), std::string(placeOf(never).width, '\0'));
}

TEST_F(EarlierPhonebooksTest, TheEndingTellsTheBook) {
    giveA("Adams", "First=Ann\nLast=Adams\n", ".DAT");
    giveA("Abel", "First=Al\nLast=Abel\n", ".DAB");
    import();
    EXPECT_EQ(yellow(), test::bytesOf(person("Ann", "Adams")));
    EXPECT_EQ(white(), test::bytesOf(person("Al", "Abel")));
    EXPECT_EQ(copies.copied, (std::vector<std::string>{kYellowPagesFile, kWhitePagesFile}));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(desk.status.text,
              "Velmora  2 entries added, 0 replaced. As it was before: /copy1, /copy2");
}

TEST_F(EarlierPhonebooksTest, NamesOfOtherSignsHaveAGroupOfTheirOwn) {
    file("SYNAMES.DAT") = "[Number]\nSyNu=1\n[SYName]\n1a=1\n[1a]\nLast=1a\n";
    import();
    EXPECT_EQ(yellow(), test::bytesOf(person("", "1a")));
}

TEST_F(EarlierPhonebooksTest, ACountAboveZeroIsNeededAndBoundsNothing) {
    file("BNAMES.DAT") = "[Number]\nBNu=1\n[BName]\na=\nb=\n[a]\nLast=Ba\n[b]\nLast=Bb\n";
    file("CNAMES.DAT") = "[Number]\nCNu=0\n[CName]\nc=\n[c]\nLast=C\n";
    file("DNAMES.DAT") = "[DName]\nd=\n[d]\nLast=D\n";
    import();
    EXPECT_EQ(yellow(), test::bytesOf(person("", "Ba")) + test::bytesOf(person("", "Bb")));
}

TEST_F(EarlierPhonebooksTest, AnEntryOfTheSameNameIsOverwrittenAndItsOtherFieldsCleared) {
    PhonebookRecord old = test::personRecord("ADAMS", "ANN", "memo");
    old.assign(Field::EMail, "ann@example.com");
    yellow() = test::bytesOf(old);
    giveA("Adams", "First=Ann\nLast=Adams\n");
    import();
    EXPECT_EQ(yellow(), test::bytesOf(person("Ann", "Adams")));
    EXPECT_TRUE(desk.status.text.starts_with("Velmora  0 entries added, 1 replaced."));
}

TEST_F(EarlierPhonebooksTest, ANameWithAClosingBracketReadsEmptyFields) {
    giveA("Adams [x] y", "First=Ann\nLast=Adams\n");
    import();
    EXPECT_EQ(yellow(), test::bytesOf(person("", "")));
}

TEST_F(EarlierPhonebooksTest, ValuesAreReadUpTo511CharactersAndCutCounted) {
    giveA("Adams", "First=" + std::string(600, 'f') + "\nLast=Adams\n");
    import();
    EXPECT_EQ(PhonebookRecord(yellow()).text(Field::First), std::string(15, 'f'));
    EXPECT_NE(desk.status.text.find("1 value was too long and cut."), std::string::npos);
}

TEST_F(EarlierPhonebooksTest, TheStateOfReportsComesBack) {
    desk.printing.state().ReportBook = 7;
    giveA("Adams", "Last=Adams\n");
    std::vector<std::int16_t> seen;
    desk.loop.onYield = [&] { seen.push_back(desk.printing.state().ReportBook); };
    import();
    EXPECT_EQ(desk.printing.state().ReportBook, 7);
    for (const std::int16_t book : seen)
        EXPECT_THAT(book, testing::AnyOf(1, 2));
}

TEST_F(EarlierPhonebooksTest, WithoutACopyNothingIsImportedAndItIsTold) {
    copies.fails = true;
    giveA("Adams", "Last=Adams\n");
    import();
    EXPECT_EQ(yellow(), "");
    EXPECT_NE(desk.status.text.find("Not all could be imported: The disk is full."),
              std::string::npos);
}

TEST_F(EarlierPhonebooksTest, WithoutAnyFileNothingIsCopiedAndNothingAdded) {
    import();
    EXPECT_TRUE(copies.copied.empty());
    EXPECT_EQ(desk.status.text, "Velmora  0 entries added, 0 replaced.");
}

TEST_F(EarlierPhonebooksTest, CanBeCalledOff) {
    std::string text = "[Number]\nANu=500\n[AName]\n";
    for (int i = 0; i < 500; ++i)
        text += "n" + std::to_string(i) + "=\n";
    for (int i = 0; i < 500; ++i)
        text += "[n" + std::to_string(i) + "]\nLast=n" + std::to_string(i) + "\n";
    file("ANAMES.DAT") = text;
    desk.cancelInYield(3);
    import();
    EXPECT_GT(yellow().size(), 0U);
    EXPECT_LT(yellow().size(), 500 * kRecordSize);
    EXPECT_NE(desk.status.text.find("The import was called off."), std::string::npos);
}

TEST_F(EarlierPhonebooksTest, DoesNothingWhileAnotherJobRuns) {
    desk.jobs.run([&](LongJob&) { importer.import(); });
    EXPECT_TRUE(desk.messages.takeShown().empty());
}

}  // namespace
}  // namespace velmora
