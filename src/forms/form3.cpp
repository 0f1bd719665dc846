#include "forms/form3.h"

#include <map>

namespace mk {

namespace {
const std::map<int, QString>& slotCaptions()
{
    static const std::map<int, QString> captions = {
        {1, QStringLiteral("Schluessel")},     {2, QStringLiteral("Titel")},
        {3, QStringLiteral("Firma")},          {4, QStringLiteral("Departament")},
        {5, QStringLiteral("Nachname")},       {6, QStringLiteral("Vorname")},
        {7, QStringLiteral("Strasse")},        {8, QStringLiteral("Staat")},
        {9, QStringLiteral("Stadteil")},       {10, QStringLiteral("PLZ")},
        {11, QStringLiteral("Stadt")},         {12, QStringLiteral("Landescod")},
        {13, QStringLiteral("Land")},          {14, QStringLiteral("Geburtstag")},
        {15, QStringLiteral("Telefon")},       {16, QStringLiteral("Telefax")},
        {17, QStringLiteral("Celphone")},      {20, QStringLiteral("Typ")},
        {21, QStringLiteral("Laufendenummer")}, {22, QStringLiteral("BankLeitZahl")},
        {23, QStringLiteral("Kontonummer")},   {24, QStringLiteral("Bank")},
        {25, QStringLiteral("Imagem")},
    };
    return captions;
}
}  // namespace

QString sortSlotCaption(int slot)
{
    auto it = slotCaptions().find(slot);
    return it == slotCaptions().end() ? QString() : it->second;
}

Form3::Form3()
{
    Caption = QStringLiteral("Datenbanksortierung");
    Width = 4800;
    Height = 5400;
    KeyPreview = true;

    int row = 0;
    for (const auto& [slot, caption] : slotCaptions()) {
        OptionButton& option = Option3D1.add(slot);
        option.Caption = caption;
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
