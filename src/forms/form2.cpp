#include "forms/form2.h"

namespace mk {

namespace {

const char* const kDesignNames[] = {"Vorname:", "Nachname:", "Strasse:", "PLZ:", "Stadt:", "Telefon:", "E-Mail 1:"};

}  // namespace

Form2::Form2()
{
    Caption = QStringLiteral("Schnelleingabe");
    Width = 5400;
    Height = 3900;

    constexpr int kRow = 400;
    beschreibung = ControlArray<Label>(0, 6, [](Label& l, int i) {
        l.Caption = QString::fromUtf8(kDesignNames[i]);
        l.Left = 120;
        l.Top = 150 + i * kRow;
        l.Width = 1300;
    });
    Text1 = ControlArray<TextBox>(0, 6, [](TextBox& t, int i) {
        t.Left = 1500;
        t.Top = 120 + i * kRow;
        t.Width = 3600;
        t.MaxLength = 256;
        t.TabIndex = i;
    });

    SSCommand1.Caption = QStringLiteral("OK");
    SSCommand1.Left = 1500;
    SSCommand1.Top = 3000;
    SSCommand1.TabIndex = 7;
    SSCommand2.Caption = QStringLiteral("Abrechen");
    SSCommand2.Left = 2900;
    SSCommand2.Top = 3000;
    SSCommand2.TabIndex = 8;

    nameControls(*this, "Form2");
}

}  // namespace mk
