#include "forms/schnellsuchen.h"

#include <array>

namespace mk {

namespace {
const std::array<const char*, 29> kCaptions = {
    "&Firma", "&Schlüssel", "&Vorname", "&Telefon", "PLZ", "C&od.Pais", "&Land", "&Strasse",
    "&Stadt", "&Titel", "&Nachname", "&Geburtstag", "&Staat", "&Stadtteil", "Telefa&x", "Bild",
    "D&epart.", "Celphone", "Bemerkung", "&Wert", "Bank", "BLZ", "Kontonr.", "Firm.reg.",
    "Staats.reg.", "Passportnr.", "Postfach", "&Lfnd.Nr.", "&Email1",
};
}  // namespace

QString searchFieldCaption(int field)
{
    return field >= 1 && field <= 29 ? QString::fromUtf8(kCaptions[std::size_t(field - 1)]) : QString();
}

Schnellsuchen::Schnellsuchen()
{
    Width = 6600;
    Height = 4800;
    KeyPreview = true;
    Frame3D1.Caption = QStringLiteral("Specifische Suche:");
    Label1.Caption = QStringLiteral("Suchtext:");
    abbruch.Caption = QStringLiteral("Abbrechen");
    Command1 = ControlArray<Button>(1, 29, [](Button& b, int i) {
        b.Caption = searchFieldCaption(i);
        b.Left = 120 + ((i - 1) % 4) * 1560;
        b.Top = 960 + ((i - 1) / 4) * 420;
        b.Width = 1500;
    });
    nameControls(*this, "Schnellsuchen");
}

}  // namespace mk
