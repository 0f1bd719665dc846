#include "forms/senha.h"

namespace mk {

QString teclaCaption(int index, bool grossbuchstaben)
{
    if (index < senha::kBuchstaben) {
        const QChar buchstabe(u'A' + index);
        return grossbuchstaben ? QString(buchstabe) : QString(buchstabe.toLower());
    }
    static const QString zeichen = QStringLiteral("0123456789,.- ");
    return QString(zeichen.at(index - senha::kBuchstaben));
}

senha::senha()
    : tecla(0, kTasten - 1, [](Button& key, int i) {
          key.Caption = teclaCaption(i, true);
          key.Width = 420;
      })
{
    Caption = QStringLiteral("Senha");
    Width = 7800;
    Height = 4200;
    Label1.Visible = false;
    Label3.Visible = false;
    Label6.Visible = false;
    Label5.Caption = QStringLiteral("Passwort:");
    Label4.Caption = QStringLiteral("Neues Passwort:");
    Label4.Visible = false;
    MhState1.Caption = QStringLiteral("Caps");
    MhState1.Value = 1;
    Command1.Caption = QStringLiteral("Speichern");
    Command1.Hint = QStringLiteral("Neues Passwort speichern");
    Command1.ToolTipText = Command1.Hint;
    Command1.Visible = false;
    Command2.Caption = QStringLiteral("Cancel");
    Command2.Visible = false;
    Command3.Caption = QStringLiteral("Löschen");
    Command3.Hint = QStringLiteral("Aktuelles Passwort löschen");
    Command3.ToolTipText = Command3.Hint;
    Command3.Visible = false;
    SSCommand1.Caption = QStringLiteral("<-");
    SSCommand2.Caption = QStringLiteral("Programm beenden");
    nameControls(*this, "senha");
}

}  // namespace mk
