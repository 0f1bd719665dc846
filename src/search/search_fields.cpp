#include "search/search_fields.h"

#include "card/app_state.h"

#include <array>

namespace mk {

namespace {

struct Suchfeld {
    const char* spalte;
    const char* ueberschrift;
};

const std::array<Suchfeld, kSuchfelder> kTabelle = {{
    {"Firma", "Firma:"},
    {"Schluessel", "Schluessel:"},
    {"Vorname", "Name:"},
    {"Telefon", "Telefon:"},
    {"PLZ", "PLZ:"},
    {"Landescod", "Landescod:"},
    {"Land", "Land:"},
    {"Strasse", "Strasse:"},
    {"Stadt", "Stadt:"},
    {"Titel", "Titel:"},
    {"Nachname", "Nachname:"},
    {"Geburtstag", "Geburtstag:"},
    {"Staat", "Staat:"},
    {"Stadteil", "Stadteil:"},
    {"Telefax", "Telefax:"},
    {"Telex", "telex:"},
    {"Departament", "Departament:"},
    {"Celphone", "Celphone:"},
    {"Bemerkung", "Bemerkung:"},
    {"Texto", "Valor:"},
    {"Bank", "Bank:"},
    {"BankLeitZahl", "BankLeitZahl:"},
    {"Kontonummer", "Kontonummer:"},
    {"Firmenregisternummer", "Firmenregisternummer:"},
    {"Staatsregister", "Staatsregister:"},
    {"Passportnummer", "Passportnummer:"},
    {"Postfach", "Postfach:"},
    {"Laufendenummer", "Laufendenummer:"},
    {"C1", "Email1:"},
}};

bool gueltig(int feld) { return feld >= 1 && feld <= kSuchfelder; }

QString spaltenname(int feld)
{
    return gueltig(feld) ? QString::fromLatin1(kTabelle[std::size_t(feld - 1)].spalte) : QString();
}

QString geklammert(const QString& name) { return QLatin1Char('[') + name + QLatin1Char(']'); }

}  // namespace

QString Suchfeldspalte(int feld) { return gueltig(feld) ? geklammert(spaltenname(feld)) : QString(); }

QString Suchfeldueberschrift(int feld)
{
    return gueltig(feld) ? QString::fromLatin1(kTabelle[std::size_t(feld - 1)].ueberschrift) : QString();
}

QString Volltextspalte(int feld)
{
    // The full search tests the two register numbers the other way round.
    if (feld == 24)
        return geklammert(QStringLiteral("Staatsregister"));
    if (feld == 25)
        return geklammert(QStringLiteral("Firmenregisternummer"));
    return Suchfeldspalte(feld);
}

QString Volltextwert(int feld)
{
    switch (feld) {
    case 16: return QStringLiteral("Bemerkung");  // not the picture path it tested
    case 24: return QStringLiteral("Firmenregisternummer");
    case 25: return QStringLiteral("Staatsregister");
    default: return spaltenname(feld);
    }
}

QString Volltextbeschriftung(const Merkkartelle& app, int feld)
{
    const auto& m = app.Hauptmaske;
    // The mask's label of each field; 19 and 20 name the notes and the free text line.
    static const std::array<int, kSuchfelder> beschreibungen = {
        2, 0, 5, 14, 9, 11, 12, 6, 10, 1, 4, 13, 7, 8, 15, 23, 3, 17, 16, 18, -1, -1, -1, 20, 19, 21, 22, -1, -1,
    };
    switch (feld) {
    // The bank labels as the old lines named them, Bank under the account's label.
    case 21: return m.beschreibungbank[1].Caption;
    case 22: return m.beschreibungbank[0].Caption;
    case 23: return m.beschreibungbank[2].Caption;
    case 28: return m.LaufendeNummer.Caption;
    case 29: return m.beschreibungnum[0].Caption;
    default: break;
    }
    if (!gueltig(feld))
        return QString();
    return m.beschreibung[beschreibungen[std::size_t(feld - 1)]].Caption;
}

QString Praefixbedingung(const QString& spalte, const QString& text)
{
    // Str() of a positive number: a leading blank.
    return QStringLiteral("LEFT(") + spalte + QStringLiteral(", ") + QString::number(text.size())
        + QStringLiteral(") = '") + text + QLatin1Char('\'');
}

QString ohneKlammern(const QString& spalte)
{
    QString name = spalte;
    name.remove(QLatin1Char('['));
    name.remove(QLatin1Char(']'));
    return name;
}

}  // namespace mk
