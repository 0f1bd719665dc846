#include "forms/selektierung.h"

namespace mk {

Selektierung::Selektierung()
{
    Caption = QStringLiteral("Selektierung gleicher Felder");
    Width = 9000;
    Height = 6600;
    KeyPreview = true;
    for (const char* op : {"LIKE", ">", "<", ">=", "<=", "BETWEEN", "NOT LIKE"})
        Operatoren.AddItem(QString::fromLatin1(op));
    Operatoren.ListIndex = 0;
    Datenfelder.Hint = QStringLiteral("Clique para selecionar campo");
    Datenfelder.ToolTipText = Datenfelder.Hint;
    Check1.Caption = QStringLiteral("Multi filter");
    Command1.Caption = QStringLiteral("Deaktivieren");
    Löschen.Caption = QStringLiteral("Löschen");
    ok.Caption = QStringLiteral("OK");
    abbruch.Caption = QStringLiteral("Abbrechen");
    Command2.Caption = QStringLiteral("Hinzufügen");
    SSPanel1.Caption = QStringLiteral("Info");
    Label1.Caption = QStringLiteral("Felder");
    Label2.Caption = QStringLiteral("Filterbeschreibung");
    Label3.Caption = QString();
    Label6.Caption = QStringLiteral("Filter:");
    nameControls(*this, "Selektierung");
}

}  // namespace mk
