#include "forms/about_box.h"

namespace mk {

namespace {
void place(Label& label, int left, int top, int width, const QString& caption = QString())
{
    label.Left = left;
    label.Top = top;
    label.Width = width;
    label.Caption = caption;
}
}  // namespace

AboutBox::AboutBox()
{
    Caption = QStringLiteral("Merkkartelle");
    Width = 7500;
    Height = 4200;
    BackColor = colour::Grey;

    place(Label1, 240, 120, 7000, QStringLiteral("Merkkartelle"));
    Label1.Font = FontSpec{QStringLiteral("Arial"), 18, true, false};
    Label1.Height = 480;
    place(Label2, 240, 1560, 1800, QStringLiteral("Datenbank:"));
    place(Label3, 240, 1920, 1800, QStringLiteral("Verzeichnis:"));
    place(Label4, 240, 2280, 1800, QStringLiteral("Tabelle:"));
    place(Label8, 240, 720, 7000, QStringLiteral("Adressenverwaltung"));

    place(Label5, 240, 3000, 0);
    Label5.BackColor = colour::Blue;
    Label5.Height = 195;
    place(Label6, 240, 3300, 7000);

    place(Label7, 2160, 1560, 5100);
    place(Label10, 2160, 1920, 5100);
    place(Label9, 2160, 2280, 5100);

    Image3.Left = 5400;
    Image3.Top = 120;
    Image3.Width = 1800;
    Image3.Height = 1200;
    Image3.Stretch = true;

    nameControls(*this, "AboutBox");
}

}  // namespace mk
