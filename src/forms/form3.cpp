#include "forms/form3.h"

#include "card/card_record.h"

namespace mk {

QString sortSlotCaption(int slot)
{
    const karte::Sortierplatz* platz = karte::sortierplatz(slot);
    return platz ? karte::text(platz->beschriftung) : QString();
}

Form3::Form3()
{
    Caption = QStringLiteral("Datenbanksortierung");
    Width = 4800;
    Height = 5400;
    KeyPreview = true;

    int row = 0;
    for (const karte::Sortierplatz& platz : karte::kSortierplaetze) {
        OptionButton& option = Option3D1.add(platz.platz);
        option.Caption = sortSlotCaption(platz.platz);
        option.Left = row < 12 ? 120 : 2400;
        option.Top = 120 + (row % 12) * 330;
        option.Width = 2200;
        option.Height = 300;
        ++row;
    }

    AZCHECK.Ribbon = true;
    AZCHECK.Caption = QStringLiteral("Z - A");
    AZCHECK.Left = 120;
    AZCHECK.Top = 4200;
    Command3D1.Caption = QStringLiteral("&OK");
    Command3D1.Left = 3360;
    Command3D1.Top = 4200;

    nameControls(*this, "Form3");
}

}  // namespace mk
