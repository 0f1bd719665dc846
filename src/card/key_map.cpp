#include "card/key_map.h"

#include "card/app_state.h"
#include "card/card_cursor.h"

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");

// A key of the browse state and the control it presses. A press runs the control's click
// through the handler table, as a click of the user would; a control whose action is not
// built yet does nothing.
struct Tastenbelegung {
    int taste;
    const char* control;
};

constexpr Tastenbelegung kBlaettern[] = {
    {vbKeyEscape, "Command3D1"},       // ask and leave
    {vbKeyPageUp, "EinzNachvorne"},
    {vbKeyPageDown, "EinznachHinten"},
    {vbKeyEnd, "Command3D15"},
    {vbKeyHome, "Command3D16"},
    {vbKeyF2, "NeueAdresse"},
    {vbKeyF3, "AdresseÄndern"},
    {vbKeyF5, "Command3D8"},
    {vbKeyF6, "NachAdresseSuchen"},
    {vbKeyF7, "Command3D3"},           // dial
    {vbKeyF8, "menuetqconf"},
    {vbKeyF9, "menumaladata"},
    {vbKeyF10, "menusenha"},
    {vbKeyF11, "Command1"},            // only while it is enabled
    {vbKeyF12, "menutipo"},
};

void druecken(Merkkartelle& app, const QString& control)
{
    raiseEvent(app, QStringLiteral("Hauptmaske.") + control, QStringLiteral("Click"));
}

// The dialer has the line while its form is open: F5 and F9 then work the modem.
bool dialerAktiv(const Merkkartelle& app) { return app.DIALER.Visible; }

void tasteBeimBlaettern(Merkkartelle& app, int taste)
{
    if (taste == vbKeyF1) {
        app.ui.MsgBox(TastaturbelegungBlaettern(app), vbOKOnly, kTastaturbelegung);
        return;
    }
    for (const Tastenbelegung& t : kBlaettern) {
        if (t.taste != taste)
            continue;
        if (taste == vbKeyF11 && !app.Hauptmaske.Command1.Enabled)
            return;
        druecken(app, QString::fromUtf8(t.control));
        return;
    }
}

void tasteBeimBearbeiten(Merkkartelle& app, int taste)
{
    const bool neu = neuerEintragOffen(app);
    switch (taste) {
    case vbKeyEscape:
        if (neu) {
            if (TasteFragen(app, QStringLiteral("Neuen Eintrag abbrechen ?"), QStringLiteral("Neuen Eintrag abbrechen")))
                druecken(app, QStringLiteral("NeueAdresseAbbruch"));
        } else if (TasteFragen(app, QStringLiteral("Bearbeitung abbrechen ?"), QStringLiteral("Bearbeitung abbrechen"))) {
            druecken(app, QStringLiteral("AdresseÄndernAbbruch"));
        }
        break;
    case vbKeyF1:
        app.ui.MsgBox(TastaturbelegungBearbeiten(app));
        break;
    case vbKeyF2:
        if (neu && TasteFragen(app, QStringLiteral("Neuen Eintrag speichern ?"), QStringLiteral("Neuen Eintrag speichern")))
            druecken(app, QStringLiteral("NeueAdresse"));
        break;
    case vbKeyF3:
        if (aenderungOffen(app)
            && TasteFragen(app, QStringLiteral("Eintrag aktualizieren ?"), QStringLiteral("Eintrag aktualizieren")))
            druecken(app, QStringLiteral("AdresseÄndern"));
        break;
    case vbKeyF7:
        druecken(app, QStringLiteral("Command3D3"));
        break;
    default:
        break;
    }
}

}  // namespace

QString TastaturbelegungBlaettern(const Merkkartelle& app)
{
    const bool dialer = dialerAktiv(app);
    const QStringList zeilen = {
        QStringLiteral("F2 = Neuer Eintrag "),
        QStringLiteral("F3 = Eintrag ändern"),
        dialer ? QStringLiteral("F5 = Modem abschalten") : QStringLiteral("F5 = Serienbriefliste"),
        QStringLiteral("F6 = Suchen "),
        QStringLiteral("F7 = Nummer wählen"),
        QStringLiteral("F8 = Etiquetten konfigurieren "),
        dialer ? QStringLiteral("F9 = Nummer wählen ") : QStringLiteral("F9 = Geburtstagsserienbrief"),
        QStringLiteral("F10 = Passwort ändern "),
        QStringLiteral("F11 = Bank "),
        QStringLiteral("F12 = Typ benennen"),
    };
    return zeilen.join(kZeilenumbruch);
}

QString TastaturbelegungBearbeiten(const Merkkartelle& app)
{
    const QStringList zeilen = {
        QStringLiteral(" Tastaturbelegung"),
        QStringLiteral(" Esc = Abbrechen "),
        neuerEintragOffen(app) ? QStringLiteral(" F2 = Neuen Eintrag speichern")
                               : QStringLiteral(" F3 = Änderungen übernehmen"),
        QStringLiteral(" F7 = Nummer wählen"),
    };
    return zeilen.join(kZeilenumbruch);
}

bool TasteFragen(Merkkartelle& app, const QString& frage, const QString& titel)
{
    const QString prompt = frage + kZeilenumbruch + QString(12, u' ');
    return app.ui.MsgBox(prompt, vbYesNo + vbCritical, titel) == vbYes;
}

void Hauptmaske_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (bearbeitungOffen(app))
        tasteBeimBearbeiten(app, args.KeyCode);
    else
        tasteBeimBlaettern(app, args.KeyCode);
}

}  // namespace mk
