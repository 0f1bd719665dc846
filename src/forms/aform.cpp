#include "forms/aform.h"

namespace mk {

namespace {

// The captions of the options, in the order of the columns they choose.
const char* const kSuchCaptions[Aform::kSuchfelder] = {
    "Laufende Nr.", "Schlüssel", "Titel", "Vorname", "Nachname", "Firma", "Abteilung", "Strasse",
    "Stadtteil", "PLZ", "Stadt", "Staat", "Land", "Landescode", "Telefon",
};

// The names beside the Infolabel fields, in their order.
const char* const kInfoTitel[Aform::kInfofelder] = {
    "Schlüssel:", "Titel:", "Vorname:", "Nachname:", "Firma:", "Strasse:", "Stadtteil:", "PLZ:",
    "Stadt:", "Staat:", "Abteilung:", "Land:", "Landescode:", "Telefon:", "Laufende Nr.:",
};

}  // namespace

Aform::Aform()
{
    Caption = QStringLiteral("Conections");
    Width = 7800;
    Height = 5400;
    FeldA = ControlArray<TextBox>(1, 10, [](TextBox& t, int i) {
        t.Hint = QStringLiteral("Feld %1. Conected").arg(i);
        t.MaxLength = 60;
        t.Locked = true;
    });
    feldB = ControlArray<TextBox>(1, 10, [](TextBox& t, int) { t.Locked = true; });
    Suchtext = ControlArray<TextBox>(0, 9, [](TextBox& t, int) {
        t.Hint = QStringLiteral("Laufende Eintragsnummer eingeben");
        t.Locked = true;
    });
    SuchOption = ControlArray<OptionButton>(0, kSuchfelder - 1, [](OptionButton& o, int i) {
        o.Caption = QString::fromUtf8(kSuchCaptions[i]);
        o.Value = i == 0;
    });
    Infolabel = ControlArray<Label>(0, kInfofelder - 1, [](Label& l, int) { l.BackColor = colour::White; });
    Infotitel = ControlArray<Label>(0, kInfofelder - 1,
                                    [](Label& l, int i) { l.Caption = QString::fromUtf8(kInfoTitel[i]); });
    Image1.Width = 1800;
    Image1.Height = 1800;
    Image1.Stretch = true;
    Command2.Caption = QStringLiteral("Suchen");
    Command3.Caption = QStringLiteral("Weiter");
    Command4.Caption = QStringLiteral("Zurück");
    Command5.Caption = QStringLiteral("Letzter");
    Command3.Hint = QStringLiteral("Nächsten Eintrag finden; ");
    Command4.Hint = QStringLiteral("Vorherigen Eintrag finden: ");
    Command5.Hint = QStringLiteral("Letzten Eintrag finden: ");
    Command9.Caption = QStringLiteral("|<");
    Command10.Caption = QStringLiteral("<");
    Command11.Caption = QStringLiteral(">");
    Command12.Caption = QStringLiteral(">|");
    Command6.Caption = QStringLiteral("Conected");
    Command6.Hint = QStringLiteral("Zum Aktuellen Eintrag wechseln");
    Command7.Caption = QStringLiteral("grösser...");
    Command8.Caption = QStringLiteral("Eintrag aktivieren");
    Frame1.Caption = QStringLiteral("Eintrag suchen");
    Frame1.Visible = false;  // the browser shows when the form is enlarged
    Label5.Visible = false;
    Label5.Caption = QStringLiteral("1");
    Label6.Visible = false;
    nameControls(*this, "Aform");
}

}  // namespace mk
