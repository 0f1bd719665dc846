#pragma once
// The card record: every column of the card table, its declared size, how it travels, the
// slot of the mask that shows it and the label beside that slot; the field catalogue of the
// labels beschreibung(0..24); the sort slots; the column orders of the copy buffer and the
// deleted-card file. This is the one place that spells the card's columns out: the template
// schema, the mask transfer, the length checks, the pick lists, the copy buffer, the
// deleted-card file and the sort slots all ask it.
//
// Plain data with no dependency but QString, so that the forms' design captions and the store's template
// schema can read it as well as the subsystems.

#include <QString>
#include <array>
#include <cstddef>
#include <string_view>

namespace mk::karte {

// A name of this record as the store and the forms take it.
inline QString text(std::string_view name) { return QString::fromLatin1(name.data(), qsizetype(name.size())); }

// How a column travels between card and mask.
enum class Art : unsigned char {
    Text,            // a text slot, both ways
    Langtext,        // a long text (no size limit), both ways
    Geburtstag,      // written only when filled; a failure skips ahead to Typ
    Stempel,         // a label caption, written under its own guard
    Typ,             // the seven type boxes
    Zaehler,         // the running number: the database's counter, never written
    Vorlage,         // in the template only: no slot shows it and no save writes it
};

// The control family of the slot that shows a column; the index picks the element.
enum class Ort : unsigned char {
    keiner,
    feld,            // Hauptmaske.feld(i)
    Bemerkung,       // Hauptmaske.Bemerkung, the notes
    FeldA,           // Aform.FeldA(i), the connections' first column
    feldB,           // Aform.feldB(i), their second column
    feldnum,         // Hauptmaske.feldnum(i)
    prog,            // Hauptmaske.prog(i), the linked files
    Datum,           // the labels of the save and creation stamps
    Zeit,
    recdate,
    rectime,
    Partido,
    Ramal,
    tel,             // Hauptmaske.tel1 to tel4
    feldbank,        // Hauptmaske.feldbank(i)
    Typenliste,      // the seven type boxes
    Text,            // Hauptmaske.Text9 to Text15, by number
    LaufendeNummer,  // the label of the running number
};

struct Spalte {
    std::string_view name;  // as the template declares it; matched without regard to case
    int groesse;            // declared size of a text column; 0 for long text and the counter
    Art art;
    Ort ort;
    int index;              // element of the slot's family: feld(4) is 4, Text12 is 12
    int katalog;            // the label beschreibung(k) beside the slot; -1 when none
};

// The columns in the order a card is written from the mask, then the template's own column.
inline constexpr std::array<Spalte, 91> kSpalten = {{
    {"Schluessel", 50, Art::Text, Ort::feld, 0, 0},
    {"Titel", 50, Art::Text, Ort::feld, 1, 1},
    {"Firma", 100, Art::Text, Ort::feld, 2, 2},
    {"Departament", 50, Art::Text, Ort::feld, 3, 3},
    {"Nachname", 50, Art::Text, Ort::feld, 4, 4},
    {"Vorname", 50, Art::Text, Ort::feld, 5, 5},
    {"Strasse", 50, Art::Text, Ort::feld, 6, 6},
    {"Staat", 50, Art::Text, Ort::feld, 7, 7},
    {"Stadteil", 50, Art::Text, Ort::feld, 8, 8},
    {"PLZ", 10, Art::Text, Ort::feld, 9, 9},
    {"Stadt", 50, Art::Text, Ort::feld, 10, 10},
    {"Landescod", 10, Art::Text, Ort::feld, 11, 11},
    {"Land", 50, Art::Text, Ort::feld, 12, 12},
    {"Geburtstag", 10, Art::Geburtstag, Ort::feld, 13, 13},
    {"Telefon", 50, Art::Text, Ort::feld, 14, 14},
    {"Telefax", 50, Art::Text, Ort::feld, 15, 15},
    // The picture's path keeps the column's old name; its label is "Bild:", number 23.
    {"Telex", 255, Art::Text, Ort::feld, 16, 23},
    {"Celphone", 50, Art::Text, Ort::feld, 17, 17},
    {"Bemerkung", 0, Art::Langtext, Ort::Bemerkung, 0, 16},
    {"Texto", 50, Art::Text, Ort::feld, 18, 18},
    {"Firmenregisternummer", 50, Art::Text, Ort::feld, 19, 19},
    {"Staatsregister", 50, Art::Text, Ort::feld, 20, 20},
    {"Passportnummer", 50, Art::Text, Ort::feld, 21, 21},
    {"Postfach", 50, Art::Text, Ort::feld, 22, 22},
    {"A1", 60, Art::Text, Ort::FeldA, 1, -1},
    {"A2", 60, Art::Text, Ort::FeldA, 2, -1},
    {"A3", 60, Art::Text, Ort::FeldA, 3, -1},
    {"A4", 60, Art::Text, Ort::FeldA, 4, -1},
    {"A5", 60, Art::Text, Ort::FeldA, 5, -1},
    {"A6", 60, Art::Text, Ort::FeldA, 6, -1},
    {"A7", 60, Art::Text, Ort::FeldA, 7, -1},
    {"A8", 60, Art::Text, Ort::FeldA, 8, -1},
    {"A9", 60, Art::Text, Ort::FeldA, 9, -1},
    {"A10", 60, Art::Text, Ort::FeldA, 10, -1},
    {"B1", 10, Art::Text, Ort::feldB, 1, -1},
    {"B2", 10, Art::Text, Ort::feldB, 2, -1},
    {"B3", 10, Art::Text, Ort::feldB, 3, -1},
    {"B4", 10, Art::Text, Ort::feldB, 4, -1},
    {"B5", 10, Art::Text, Ort::feldB, 5, -1},
    {"B6", 10, Art::Text, Ort::feldB, 6, -1},
    {"B7", 10, Art::Text, Ort::feldB, 7, -1},
    {"B8", 10, Art::Text, Ort::feldB, 8, -1},
    {"B9", 10, Art::Text, Ort::feldB, 9, -1},
    {"B10", 10, Art::Text, Ort::feldB, 10, -1},
    {"C1", 100, Art::Text, Ort::feldnum, 0, -1},
    {"C2", 100, Art::Text, Ort::feldnum, 1, -1},
    {"C3", 100, Art::Text, Ort::feldnum, 2, -1},
    {"C4", 100, Art::Text, Ort::feldnum, 3, -1},
    {"PROG1", 255, Art::Text, Ort::prog, 1, -1},
    {"PROG2", 255, Art::Text, Ort::prog, 2, -1},
    {"PROG3", 255, Art::Text, Ort::prog, 3, -1},
    {"PROG4", 255, Art::Text, Ort::prog, 4, -1},
    {"PROG5", 255, Art::Text, Ort::prog, 5, -1},
    {"PROG6", 255, Art::Text, Ort::prog, 6, -1},
    {"PROG7", 255, Art::Text, Ort::prog, 7, -1},
    {"PROG8", 255, Art::Text, Ort::prog, 8, -1},
    {"PROG9", 255, Art::Text, Ort::prog, 9, -1},
    {"PROG10", 255, Art::Text, Ort::prog, 10, -1},
    {"PROG11", 255, Art::Text, Ort::prog, 11, -1},
    {"PROG12", 255, Art::Text, Ort::prog, 12, -1},
    {"PROG13", 255, Art::Text, Ort::prog, 13, -1},
    {"PROG14", 255, Art::Text, Ort::prog, 14, -1},
    {"PROG15", 255, Art::Text, Ort::prog, 15, -1},
    {"PROG16", 255, Art::Text, Ort::prog, 16, -1},
    {"PROG17", 255, Art::Text, Ort::prog, 17, -1},
    {"PROG18", 255, Art::Text, Ort::prog, 18, -1},
    {"PROG19", 255, Art::Text, Ort::prog, 19, -1},
    {"PROG20", 255, Art::Text, Ort::prog, 20, -1},
    {"Datum", 20, Art::Stempel, Ort::Datum, 0, -1},
    {"Zeit", 20, Art::Stempel, Ort::Zeit, 0, -1},
    {"Partei", 50, Art::Text, Ort::Partido, 0, 24},
    {"vorwahl", 10, Art::Text, Ort::Ramal, 0, -1},
    {"recdate", 20, Art::Stempel, Ort::recdate, 0, -1},
    {"rectime", 20, Art::Stempel, Ort::rectime, 0, -1},
    {"TEL1", 50, Art::Text, Ort::tel, 1, -1},
    {"TEL2", 50, Art::Text, Ort::tel, 2, -1},
    {"TEL3", 50, Art::Text, Ort::tel, 3, -1},
    {"TEL4", 50, Art::Text, Ort::tel, 4, -1},
    {"Bank", 50, Art::Text, Ort::feldbank, 2, -1},
    {"BankLeitZahl", 20, Art::Text, Ort::feldbank, 0, -1},
    {"Kontonummer", 40, Art::Text, Ort::feldbank, 1, -1},
    {"Typ", 7, Art::Typ, Ort::Typenliste, 0, -1},
    {"Som", 255, Art::Text, Ort::Text, 9, -1},
    {"Video", 255, Art::Text, Ort::Text, 10, -1},
    {"imagem", 255, Art::Text, Ort::Text, 11, -1},
    {"Campo1", 50, Art::Text, Ort::Text, 12, -1},
    {"Campo2", 50, Art::Text, Ort::Text, 13, -1},
    {"CampoM1", 50, Art::Text, Ort::Text, 14, -1},
    {"CampoM2", 0, Art::Langtext, Ort::Text, 15, -1},
    {"Laufendenummer", 0, Art::Zaehler, Ort::LaufendeNummer, 0, -1},
    {"Chamada", 50, Art::Vorlage, Ort::keiner, 0, -1},
}};

// The columns a save writes from the mask: all but the template's own.
inline constexpr std::size_t kMaskenSpalten = kSpalten.size() - 1;

// The column shown in a slot; nullptr when the family has no such element.
constexpr const Spalte* spalteAn(Ort ort, int index)
{
    for (const Spalte& s : kSpalten)
        if (s.ort == ort && s.index == index)
            return &s;
    return nullptr;
}

constexpr bool gleicherName(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    const auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    for (std::size_t i = 0; i < a.size(); ++i)
        if (klein(a[i]) != klein(b[i]))
            return false;
    return true;
}

// The column of a name, matched without regard to case as the store does ("Vorwahl" is
// vorwahl); nullptr for a name that is none.
constexpr const Spalte* spalteNamens(std::string_view name)
{
    for (const Spalte& s : kSpalten)
        if (gleicherName(s.name, name))
            return &s;
    return nullptr;
}

// The typing slots feld(0) to feld(22).
inline constexpr int kFelder = 23;

// ---- the field catalogue --------------------------------------------------------------------
// The 25 indices of the labels beschreibung that other forms repeat in the same order, each
// form by its own control array: the label's design caption and the column it names. Label 16
// belongs to the notes and label 23 to the picture path feld(16): the typing slots and the
// labels are numbered alike except for these two.

struct Katalogeintrag {
    std::string_view beschriftung;
    std::string_view spalte;
};

inline constexpr std::array<Katalogeintrag, 25> kKatalog = {{
    {"Schluessel:", "Schluessel"},
    {"Titel:", "Titel"},
    {"Firma:", "Firma"},
    {"Departament:", "Departament"},
    {"Nachname:", "Nachname"},
    {"Vorname:", "Vorname"},
    {"Strasse:", "Strasse"},
    {"Staat:", "Staat"},
    {"Stadteil:", "Stadteil"},
    {"PLZ:", "PLZ"},
    {"Stadt:", "Stadt"},
    {"Landescod:", "Landescod"},
    {"Land:", "Land"},
    {"Geburtstag:", "Geburtstag"},
    {"Telefon:", "Telefon"},
    {"Telefax:", "Telefax"},
    {"Notizen", "Bemerkung"},
    {"Celphone:", "Celphone"},
    {"Texto:", "Texto"},
    {"Firmenreg.-nr:", "Firmenregisternummer"},
    {"Staatsregister:", "Staatsregister"},
    {"Passport:", "Passportnummer"},
    {"Postfach:", "Postfach"},
    {"Bild:", "Telex"},
    {"Partei:", "Partei"},
}};

// The label beside feld(i).
constexpr int feldLabel(int feld) { return feld == 16 ? 23 : feld; }

// ---- sort slots -----------------------------------------------------------------------------
// The options of the order form: slot number, caption, the column the option sets, the column
// the settings set at start, and what the mask shows as the order's name. Slot 4's option sets
// "Abteilung", no column at all, so the cursor keeps its old order until the next start;
// slots 18 and 19 do not exist.

struct Sortierplatz {
    int platz;
    std::string_view beschriftung;
    std::string_view optionsSpalte;
    std::string_view ladeSpalte;
    std::string_view anzeige;
};

inline constexpr std::array<Sortierplatz, 23> kSortierplaetze = {{
    {1, "Schluessel", "Schluessel", "Schluessel", "Schluessel"},
    {2, "Titel", "Titel", "Titel", "Titel"},
    {3, "Firma", "Firma", "Firma", "Firma"},
    {4, "Departament", "Abteilung", "Departament", "Departament"},
    {5, "Nachname", "Nachname", "Nachname", "Nachname"},
    {6, "Vorname", "Vorname", "Vorname", "Vorname"},
    {7, "Strasse", "Strasse", "Strasse", "Strasse"},
    {8, "Staat", "Staat", "Staat", "Staat"},
    {9, "Stadteil", "Stadteil", "Stadteil", "Stadteil"},
    {10, "PLZ", "PLZ", "PLZ", "PLZ"},
    {11, "Stadt", "Stadt", "Stadt", "Stadt"},
    {12, "Landescod", "Landescod", "Landescod", "Landescod"},
    {13, "Land", "Land", "Land", "Land"},
    {14, "Geburtstag", "Geburtstag", "Geburtstag", "Geburtstag"},
    {15, "Telefon", "Telefon", "Telefon", "Telefon"},
    {16, "Telefax", "Telefax", "Telefax", "Telefax"},
    {17, "Celphone", "Celphone", "Celphone", "Celphone"},
    {20, "Typ", "Typ", "Typ", "Typ"},
    {21, "Laufendenummer", "Laufendenummer", "Laufendenummer", "Laufendenummer"},
    {22, "BankLeitZahl", "BankLeitZahl", "BankLeitZahl", "BankLeitZahl"},
    {23, "Kontonummer", "Kontonummer", "Kontonummer", "Kontonummer"},
    {24, "Bank", "Bank", "Bank", "Bank"},
    {25, "Imagem", "Telex", "Telex", "Bild"},
}};

constexpr const Sortierplatz* sortierplatz(int platz)
{
    for (const Sortierplatz& s : kSortierplaetze)
        if (s.platz == platz)
            return &s;
    return nullptr;
}

// The 29 sort positions of the serial-letter list, on a clone of the cursor; position 18
// leaves the order as it is. Positions 13 and 19 name template columns of their own.
inline constexpr std::array<std::string_view, 29> kListensortierung = {
    "Telex", "Schluessel", "Titel", "Firma", "Departament", "Nachname", "Vorname", "Strasse",
    "Staat", "Stadteil", "PLZ", "Stadt", "Landescod", "Pais", "Geburtstag", "Telefon",
    "Telefax", "Celphone", "", "Chamada", "Typ", "Laufendenummer", "BankLeitZahl",
    "Kontonummer", "Bank", "Staatsregister", "Firmenregisternummer", "Passportnummer", "Postfach",
};

// ---- column orders of the files and buffers ---------------------------------------------------
// "Typ" stands for its seven boxes, one value each.

// The card copied by menucopy, up to the columns read from the record itself.
inline constexpr auto kKartenpufferMaske = std::to_array<std::string_view>({
    "Schluessel", "Titel", "Firma", "Departament", "Nachname", "Vorname", "Strasse", "Staat",
    "Stadteil", "PLZ", "Stadt", "Landescod", "Land", "Geburtstag", "Telefon", "Telefax", "Telex",
    "Celphone", "Texto", "Firmenregisternummer", "Staatsregister", "Passportnummer", "Postfach",
    "Bemerkung", "BankLeitZahl", "Kontonummer", "Bank", "Typ",
    "A1", "A2", "A3", "A4", "A5", "A6", "A7", "A8", "A9", "A10",
    "B1", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9", "B10",
    "C1", "C2", "C3", "C4",
    "PROG1", "PROG2", "PROG3", "PROG4", "PROG5", "PROG6", "PROG7", "PROG8", "PROG9", "PROG10",
    "PROG11", "PROG12", "PROG13", "PROG14", "PROG15", "PROG16", "PROG17",
    "TEL1", "TEL2", "TEL3", "TEL4",
});
// ... and the eight columns behind them, read from the current record, spelled as the copy
// reads them.
inline constexpr auto kKartenpufferSatz = std::to_array<std::string_view>({
    "Vorwahl", "Partei", "Video", "Imagem", "Som", "Campo1", "Campo2", "CampoM1",
});

// The 94 values of the file of a deleted card. The date of the last save is not kept: the
// time stands in its place.
inline constexpr auto kGeloeschteKarte = std::to_array<std::string_view>({
    "Schluessel", "Titel", "Firma", "Departament", "Nachname", "Vorname", "Strasse", "Staat",
    "Stadteil", "PLZ", "Stadt", "Landescod", "Land", "Geburtstag", "Telefon", "Telefax", "Telex",
    "Celphone", "Texto", "Firmenregisternummer", "Staatsregister", "Passportnummer", "Postfach",
    "Bemerkung",
    "A1", "A2", "A3", "A4", "A5", "A6", "A7", "A8", "A9", "A10",
    "B1", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9", "B10",
    "C1", "C2", "C3", "C4",
    "PROG1", "PROG2", "PROG3", "PROG4", "PROG5", "PROG6", "PROG7", "PROG8", "PROG9", "PROG10",
    "PROG11", "PROG12", "PROG13", "PROG14", "PROG15", "PROG16", "PROG17", "PROG18", "PROG19",
    "PROG20",
    "Zeit", "Partei", "vorwahl", "recdate", "rectime", "TEL1", "TEL2", "TEL3", "TEL4", "Typ",
    "Som", "imagem", "Video", "Campo1", "Campo2", "CampoM1", "CampoM2",
    "BankLeitZahl", "Bank", "Kontonummer",
});

}  // namespace mk::karte
