#include "reports/ReportProfile.h"

#include <array>
#include <cstddef>

namespace velmora {
namespace {

using Shows = ReportCell::Shows;

ReportCell name(double x) {
    return {.x = x, .shows = Shows::Name};
}

ReportCell value(double x, Field field, const char* label = "") {
    return {.x = x, .field = field, .label = label};
}

ReportCell ofPerson(ReportCell cell) {
    cell.personOnly = true;
    return cell;
}

ReportRow gap(double height) {
    return {.cells = {}, .gap = height};
}

ReportCell home(double x) {
    return value(x, Field::Phone, "Home: ");
}
ReportCell work(double x) {
    return value(x, Field::WorkPhone, "Work: ");
}
ReportCell fax(double x) {
    return value(x, Field::Fax, "Fax: ");
}
ReportCell pager(double x) {
    return value(x, Field::Pager, "Pager: ");
}
ReportCell other(double x) {
    return value(x, Field::OtherPhone, "Other: ");
}
ReportCell mail(double x) {
    return value(x, Field::EMail, "E-Mail: ");
}
ReportCell classOf(double x) {
    return value(x, Field::Class, "Class: ");
}
ReportCell dateReference(double x) {
    return value(x, Field::DateReference, "Date Reference: ");
}

using Rows = std::vector<ReportRow>;

void append(Rows& rows, const Rows& more) {
    rows.insert(rows.end(), more.begin(), more.end());
}

// A complete report differs between its sizes at the top and in the numbers.
Rows completeRows(const Rows& top, double countryX, double countryXOfCompany, const Rows& numbers) {
    ReportCell country = value(countryX, Field::Country, "Country: ");
    country.companyX = countryXOfCompany;
    Rows rows = top;
    append(rows, {gap(0.05),
                  {{ofPerson(value(0, Field::Company))}},
                  {{value(0, Field::Address1)}},
                  {{value(0, Field::Address2)}},
                  {{value(0, Field::Address3)}},
                  {{value(0, Field::Address4)}},
                  {{value(0, Field::PostalCode), country}},
                  gap(0.1)});
    append(rows, numbers);
    append(rows, {{{value(0, Field::WebPage, "Web Page: ")}},
                  {{{.x = 0, .shows = Shows::Custom1, .field = Field::Custom1}}},
                  {{{.x = 0, .shows = Shows::Custom2, .field = Field::Custom2}}},
                  {{value(0, Field::Memo, "Memo: ")}}});
    return rows;
}

constexpr const char* kListing = "Telecommunications Listing: ";
constexpr const char* kComplete = "Complete Report: ";
constexpr const char* kTotal = " Total Entries    ";
constexpr const char* kFour = "    ";
constexpr const char* kFive = "     ";

ReportProfile listingNormal() {
    return {.kind = ReportKind::Listing,
            .inEditorFace = true,
            .needsBook = true,
            .shrinksEditor = false,
            .sizeAtEachEntry = true,
            .entrySize = 0,
            .firstHead = {kListing, kTotal, kFour, 10, 1.0F, 0.5F},
            .laterHead = {kListing, " Entries   ", kFour, 10, 0.5F, 0.5F},
            .bodyTop = 1.0F,
            .linesOfEntry = 2.2,
            .besidesLines = 0.15,
            .pageDepth = 9.9,
            .rows = {{{name(0.01), home(2.01), work(3.8), fax(5.6)}},
                     {{pager(2.01), other(3.8), mail(5.6)}}},
            .ruleEnd = 0,
            .afterEntry = 0.15,
            .fullWithMore = 9.71,
            .fullAtLast = 10.3};
}

ReportProfile listingPocket() {
    return {.kind = ReportKind::Listing,
            .inEditorFace = true,
            .needsBook = false,
            .shrinksEditor = false,
            .sizeAtEachEntry = true,
            .entrySize = 7,
            .firstHead = {"", kTotal, kFour, 7, 0.5F, 0.01F},
            .laterHead = {"", kTotal, kFour, 7, 0.01F, 0.01F},
            .bodyTop = 0.2F,
            .linesOfEntry = 2.9,
            .besidesLines = 0.15,
            .pageDepth = 7.85,
            .rows = {{{name(0.01), home(1.3), work(2.7)}},
                     {{fax(1.3), pager(2.7)}},
                     {{other(1.3), mail(2.7)}}},
            .ruleEnd = 0,
            .afterEntry = 0.15,
            .fullWithMore = 7.51,
            .fullAtLast = 7.89};
}

ReportProfile listingMini() {
    constexpr double kNumbersX = 0.8;
    return {.kind = ReportKind::Listing,
            .inEditorFace = true,
            .needsBook = false,
            .shrinksEditor = true,
            .sizeAtEachEntry = true,
            .entrySize = 7,
            .firstHead = {"", kTotal, kFour, 7, 0.01F, 0.01F},
            .laterHead = {"", kTotal, kFour, 7, 0.01F, 0.01F},
            .bodyTop = 0.2F,
            .linesOfEntry = 4.9,
            .besidesLines = 0.15,
            .pageDepth = 4,
            .rows = {{{name(0.01)}},
                     {{home(kNumbersX)}},
                     {{work(kNumbersX)}},
                     {{fax(kNumbersX)}},
                     {{pager(kNumbersX)}},
                     {{other(kNumbersX)}},
                     {{mail(kNumbersX)}}},
            .ruleEnd = 0,
            .afterEntry = 0.15,
            .fullWithMore = 4.51,
            .fullAtLast = 5.2};
}

ReportProfile completeNormal() {
    return {.kind = ReportKind::Complete,
            .inEditorFace = false,
            .needsBook = false,
            .shrinksEditor = false,
            .sizeAtEachEntry = false,
            .entrySize = 10,
            .firstHead = {kComplete, kTotal, kFour, 10, 1.0F, 0.5F},
            .laterHead = {kComplete, kTotal, kFive, 10, 1.0F, 0.5F},
            .bodyTop = 1.0F,
            .linesOfEntry = 14,
            .besidesLines = 0,
            .pageDepth = 1,
            .entriesOnPage = 4,
            .rows = completeRows(
                {{{name(0), ofPerson(value(2.01, Field::Position)), classOf(4.01),
                   dateReference(6.0)}}},
                4.01, 4.01,
                {{{home(0), work(2.01), fax(4.01), pager(6.01)}}, {{other(0), mail(2.01)}}}),
            .ruleEnd = 7.9F,
            .afterEntry = 0.1,
            .fullWithMore = 9.21,
            .fullAtLast = 9.21};
}

ReportProfile completePocket() {
    return {.kind = ReportKind::Complete,
            .inEditorFace = false,
            .needsBook = false,
            .shrinksEditor = false,
            .sizeAtEachEntry = false,
            .entrySize = 7.75F,
            .firstHead = {"", kTotal, kFour, 7.75F, 0, 0.05F},
            .laterHead = {"", kTotal, kFive, 8.5F, 0, 0.05F},
            .bodyTop = 0.25F,
            .linesOfEntry = 15,
            .besidesLines = 0,
            .pageDepth = 8.2,
            .rows = completeRows(
                {{{name(0), classOf(2.0), dateReference(3.3)}},
                 {{ofPerson(value(0, Field::Position))}}},
                2.0, 2.71, {{{home(0), work(2.0), fax(3.3)}}, {{pager(0), other(2.0), mail(3.3)}}}),
            .ruleEnd = 5.2F,
            .afterEntry = 0.1,
            .fullWithMore = 7.1,
            .fullAtLast = 7.1};
}

ReportProfile completeMini() {
    constexpr double kSecondX = 1.41;
    return {.kind = ReportKind::Complete,
            .inEditorFace = false,
            .needsBook = false,
            .shrinksEditor = false,
            .sizeAtEachEntry = false,
            .entrySize = 6.5F,
            .firstHead = {"", kTotal, kFour, 6.5F, 0, 0.05F},
            .laterHead = {"", kTotal, kFive, 6.5F, 0, 0.05F},
            .bodyTop = 0.25F,
            .linesOfEntry = 16,
            .besidesLines = 0,
            .pageDepth = 3.75,
            .rows = completeRows({{{name(0), ofPerson(value(kSecondX, Field::Position))}},
                                  {{classOf(0), dateReference(kSecondX)}}},
                                 kSecondX, kSecondX,
                                 {{{home(0), work(kSecondX)}},
                                  {{fax(0), pager(kSecondX)}},
                                  {{other(0), mail(kSecondX)}}}),
            .ruleEnd = 2.9F,
            .afterEntry = 0.1,
            .fullWithMore = 3.11,
            .fullAtLast = 3.11};
}

}  // namespace

const ReportProfile& profileOf(ReportKind kind, ReportSize size) {
    static const std::array<ReportProfile, 3> listings{listingNormal(), listingPocket(),
                                                       listingMini()};
    static const std::array<ReportProfile, 3> complete{completeNormal(), completePocket(),
                                                       completeMini()};
    return (kind == ReportKind::Listing ? listings : complete)[static_cast<std::size_t>(size)];
}

std::vector<Field> fieldsOf(const ReportProfile& profile) {
    std::vector<Field> fields;
    for (const ReportRow& row : profile.rows)
        for (const ReportCell& cell : row.cells)
            if (cell.shows != Shows::Name)
                fields.push_back(cell.field);
    return fields;
}

const char* nameOf(ReportKind kind) {
    return kind == ReportKind::Listing ? "Telecommunications Listing" : "Complete Report";
}

}  // namespace velmora
