#include "forms/search.h"

#include <array>

namespace mk {

search::search()
{
    static const std::array<const char*, 31> fields = {
        "Titel", "Firma", "Departament", "Nachname", "Name", "Strasse", "Staat", "Stadtteil",
        "PLZ", "Stadt", "Landescod", "Land", "Schlüssel", "Geburtstag", "Telefon", "Telefax",
        "Bild", "Celphone", "Bemerkung", "Chamada", "Typ", "LaufendeNummer", "BankLeitZahl",
        "Kontonummer", "Bank", "Wert", "Firmenregisternummer", "Staatsregister",
        "Passportnummer", "Postfach", "Zusatzdaten",
    };
    Caption = QStringLiteral("Suchen nach Silben");
    Width = 7800;
    Height = 6000;
    Option3D1 = ControlArray<OptionButton>(0, int(fields.size()) - 1, [](OptionButton& o, int i) {
        o.Caption = QString::fromUtf8(fields[std::size_t(i)]);
    });
    Command3.Caption = QStringLiteral("Abbrechen");
    Command3.Enabled = false;
    Command5.Caption = QStringLiteral("Schliessen");
    Command6.Caption = QStringLiteral("Suchen");
    Label1.Caption = QStringLiteral("Satus");
    nameControls(*this, "search");
}

}  // namespace mk
