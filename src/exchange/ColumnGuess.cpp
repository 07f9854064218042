#include "exchange/ColumnGuess.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "exchange/ExportColumns.h"

namespace velmora {
namespace {

struct Names {
    ImportField field;
    std::string_view names;  // the most likely one first, each between bars
};

// Without accents and without anything but letters and digits.
constexpr std::array kNames{
    Names{ImportField::Title,
          "|title|nameprefix|prefix|honorific|honorificprefix|salutation|anrede|titre|civilite|"
          "titulo|tratamiento|titel|mrmrs|"},
    Names{ImportField::First,
          "|firstname|givenname|first|forename|christianname|vorname|prenom|nombre|nombredepila|"
          "primernombre|"},
    Names{ImportField::Last,
          "|lastname|familyname|surname|last|nachname|familienname|nom|nomdefamille|apellidos|"
          "apellido|name|"},
    Names{ImportField::Position,
          "|jobtitle|position|occupation|organizationtitle|organization1title|profession|role|"
          "beruf|funktion|stellung|fonction|poste|puesto|cargo|profesion|"},
    Names{ImportField::Company,
          "|company|companyname|organization|organisation|organizationname|organization1name|firm|"
          "employer|firma|unternehmen|firmenname|societe|entreprise|organisme|empresa|compania|"
          "organizacion|"},
    Names{
        ImportField::Street,
        "|street|streetaddress|address|address1|addressline1|homestreet|homeaddress|"
        "homestreetaddress|address1street|businessstreet|workaddress|workstreet|mailingaddress|"
        "strasse|strae|anschrift|adresse|strasseprivat|straeprivat|strassegeschaeftlich|"
        "straegeschaftlich|strassegeschaftlich|rue|adresse1|ruedomicile|ruebureau|calle|direccion|"
        "domicilio|callecasa|calledeltrabajo|callepersonal|"},
    Names{ImportField::City,
          "|city|town|homecity|address1city|businesscity|workcity|locality|ort|stadt|wohnort|"
          "ortprivat|ortgeschaftlich|ville|villedomicile|villebureau|ciudad|localidad|poblacion|"
          "ciudaddeltrabajo|ciudadpersonal|"},
    Names{ImportField::State,
          "|state|region|province|county|homestate|stateprovince|stateregion|address1region|"
          "businessstate|workstate|bundesland|land|regionprivat|regiongeschaftlich|departement|"
          "depregion|depregiondomicile|depregionbureau|provincia|estado|provinciaoestado|"
          "estadoprovincia|"},
    Names{ImportField::Zip,
          "|zip|zipcode|postalcode|postcode|homepostalcode|homezipcode|homezip|address1postalcode|"
          "businesspostalcode|workzipcode|postleitzahl|plz|postleitzahlprivat|"
          "postleitzahlgeschaftlich|codepostal|codepostaldomicile|codepostalbureau|codigopostal|cp|"
          "codigopostaldeltrabajo|"},
    Names{ImportField::CityStateZip,
          "|citystatezip|citystatezipcode|citystateandzip|citystateandzipcode|cityandzip|zipcity|"
          "plzort|plzundort|postleitzahlort|codepostalville|cpville|ciudadestadocp|cpciudad|"
          "cppoblacion|address2|addressline2|"},
    Names{ImportField::Country,
          "|country|nation|countryregion|homecountry|homecountryregion|address1country|"
          "businesscountry|businesscountryregion|workcountry|staat|landregion|landregionprivat|"
          "landregiongeschaftlich|pays|paysregion|paysregiondomicile|paysregionbureau|pais|"
          "paisregion|paisoregion|"},
    Names{ImportField::AdditionalAddress,
          "|building|buildingname|additionaladdress|extendedaddress|address1extendedaddress|"
          "homestreet2|homeaddress2|businessstreet2|addressline2|address2|adresszusatz|zusatz|"
          "strasse2|gebaude|batiment|complement|complementadresse|complementdadresse|adresse2|"
          "edificio|direccion2|calle2|"},
    Names{
        ImportField::Home,
        "|homephone|homephonenumber|homenumber|phonehome|primaryphone|phone|phonenumber|telephone|"
        "phone1value|hometelephone|telefonprivat|telefon|telefonnummer|privattelefon|"
        "telephonedomicile|teldomicile|telephone1|tel|telefono|telefonoparticular|telefonodecasa|"
        "telefonopersonal|"},
    Names{ImportField::Work,
          "|workphone|businessphone|workphonenumber|worknumber|officephone|companymainphone|"
          "phonework|businesstelephone|telefongeschaftlich|telefonarbeit|telefonburo|telefonfirma|"
          "telephonebureau|telbureau|telephoneprofessionnel|telefonodeltrabajo|telefonotrabajo|"
          "telefonooficina|telefonodeltrabajo1|"},
    Names{ImportField::Pager,
          "|pager|pagernumber|pagerphone|beeper|funkruf|recepteurderadiomessagerie|bip|tatoo|"
          "buscapersonas|localizador|"},
    Names{ImportField::Fax,
          "|fax|faxnumber|homefax|businessfax|workfax|faxphone|telefax|faxprivat|faxgeschaftlich|"
          "faxnummer|telecopie|telecopiedomicile|telecopiebureau|faxdeltrabajo|faxparticular|"
          "numerodefax|"},
    Names{ImportField::Other,
          "|otherphone|otherphonenumber|mobilephone|mobile|mobilenumber|cellphone|cell|cellular|"
          "alternatephone|phone2value|mobiltelefon|handy|mobil|mobilnummer|weiterestelefon|"
          "telmobile|telephonemobile|portable|autretelephone|telephoneautre|movil|telefonomovil|"
          "celular|otrotelefono|"},
    Names{ImportField::EMail,
          "|email|emailaddress|email1value|primaryemail|email1|email1address|emailadresse|mail|"
          "mailadresse|adressedemessagerie|adressemail|adresseemail|courriel|messagerie|"
          "correoelectronico|direcciondecorreoelectronico|correo|"},
    Names{ImportField::Memo,
          "|note|notes|memo|comment|comments|remarks|notizen|notiz|bemerkung|bemerkungen|"
          "anmerkungen|remarques|commentaires|notas|comentarios|observaciones|"},
    Names{
        ImportField::Salutation,
        "|salutation|greeting|briefanrede|anredeform|grussformel|formuledepolitesse|salut|saludo|"},
    Names{ImportField::Class,
          "|class|category|categories|group|groups|groupmembership|labels|kategorie|kategorien|"
          "gruppe|categorie|groupe|categoria|categorias|grupo|clase|"},
    Names{ImportField::DateReference, "|datereference|referencedate|datum|dateref|date|fecha|"},
    Names{ImportField::Custom1,
          "|custom1|customfield1|user1|userfield1|benutzer1|benutzerdefiniert1|utilisateur1|"
          "personnalise1|usuario1|personalizado1|birthday|birthdate|birthdates|geburtstag|"
          "anniversaire|cumpleanos|"},
    Names{ImportField::Custom2,
          "|custom2|customfield2|user2|userfield2|benutzer2|benutzerdefiniert2|utilisateur2|"
          "personnalise2|usuario2|personalizado2|"},
    Names{ImportField::Spouse,
          "|spouse|spousename|spousesname|partner|relation1value|partnerin|ehepartner|"
          "ehegatte|conjoint|conjointe|nomduconjoint|conyuge|nombredelconyuge|"},
    Names{ImportField::WebPage,
          "|webpage|website|homepage|web|url|webpage1|website1value|personalwebpage|webseite|"
          "internetseite|pageweb|siteweb|siteinternet|paginaweb|sitioweb|pagina|"},
};
static_assert(kNames.size() == kImportFieldCount);

// A letter without its accent, for the letters of Western languages.
char plainLetter(char32_t character) {
    constexpr std::string_view kPlain =
        "aaaaaaaceeeeiiiidnooooo ouuuuypsaaaaaaaceeeeiiiidnooooo ouuuuypy";
    if (character >= U'A' && character <= U'Z')
        return static_cast<char>(character + 32);
    if ((character >= U'a' && character <= U'z') || (character >= U'0' && character <= U'9'))
        return static_cast<char>(character);
    return character >= 0xC0 && character <= 0xFF ? kPlain[character - 0xC0] : ' ';
}

std::string plainName(std::string_view name, const CodePage& codePage) {
    std::string plain;
    for (const char byte : name) {
        const char32_t character = codePage.toUnicode(byte);
        if (character == 0xDF)
            plain += "ss";
        else if (const char letter = plainLetter(character); letter != ' ')
            plain += letter;
    }
    return plain;
}

// What an export calls the field that an answer goes to.
Field exportFieldOf(ImportField field) {
    switch (field) {
        case ImportField::Title:
            return Field::Title;
        case ImportField::First:
            return Field::First;
        case ImportField::Last:
            return Field::Last;
        case ImportField::Position:
            return Field::Position;
        case ImportField::Company:
            return Field::Company;
        case ImportField::Street:
            return Field::Address1;
        case ImportField::CityStateZip:
            return Field::Address2;
        case ImportField::AdditionalAddress:
            return Field::Address3;
        case ImportField::Country:
            return Field::Country;
        case ImportField::Home:
            return Field::Phone;
        case ImportField::Work:
            return Field::WorkPhone;
        case ImportField::Pager:
            return Field::Pager;
        case ImportField::Fax:
            return Field::Fax;
        case ImportField::Other:
            return Field::OtherPhone;
        case ImportField::EMail:
            return Field::EMail;
        case ImportField::Memo:
            return Field::Memo;
        case ImportField::Salutation:
            return Field::Salutation;
        case ImportField::Class:
            return Field::Class;
        case ImportField::DateReference:
            return Field::DateReference;
        case ImportField::Custom1:
            return Field::Custom1;
        case ImportField::Custom2:
            return Field::Custom2;
        case ImportField::Spouse:
            return Field::Spouse;
        case ImportField::WebPage:
            return Field::WebPage;
        default:
            return Field::FileAttachment;  // never exported, as a city by itself is not
    }
}

bool areExportColumns(const std::vector<std::string>& columns) {
    return columns.size() == kExportColumns.size() &&
           std::equal(columns.begin(), columns.end(), kExportColumns.begin(),
                      [](const std::string& name, const ExportColumn& column) {
                          return column.header.empty() || name == column.header;
                      });
}

}  // namespace

ColumnGuess::ColumnGuess(const std::vector<std::string>& columns, const CodePage& codePage)
    : isExport_(areExportColumns(columns)) {
    for (const std::string& column : columns)
        names_.push_back(plainName(column, codePage));
}

std::optional<std::size_t> ColumnGuess::columnFor(ImportField field) const {
    if (isExport_) {
        const auto* const found =
            std::find_if(kExportColumns.begin(), kExportColumns.end(),
                         [wanted = exportFieldOf(field)](const ExportColumn& column) {
                             return column.field == wanted;
                         });
        if (found == kExportColumns.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - kExportColumns.begin());
    }
    std::string_view names;
    for (const Names& row : kNames)
        if (row.field == field)
            names = row.names;
    std::size_t best = names.size();
    std::optional<std::size_t> column;
    for (std::size_t i = 0; i < names_.size(); ++i) {
        if (names_[i].empty())
            continue;
        const std::size_t at = names.find("|" + names_[i] + "|");
        if (at < best) {
            best = at;
            column = i;
        }
    }
    return column;
}

bool ColumnGuess::cityStateZipSeparate() const {
    return columnFor(ImportField::City).has_value() || columnFor(ImportField::Zip).has_value() ||
           !columnFor(ImportField::CityStateZip).has_value();
}

}  // namespace velmora
