#include "telephony/telephony_handlers.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "telephony/call_log.h"
#include "telephony/dialer.h"
#include "telephony/modem_config.h"

#include <QStringList>

namespace mk {

namespace {

using M = Merkkartelle;

// ---- the main mask: the dial button and the telephone slots --------------------------------

void Hauptmaske_Command3D3_Click(M& app)
{
    DialerOeffnen(app);
}

// A key in a telephone slot in browse state dials that slot's number; the key itself is
// not typed.
void Telefonfeld(M& app, const TextBox& feld, EventArgs& args)
{
    if (bearbeitungOffen(app))
        return;
    NummerAusFeld(app, feld.Text);
    args.KeyAscii = 0;
}

void feld_KeyPress(M& app, EventArgs& args)
{
    if (args.Index == 14 || args.Index == 15 || args.Index == 17)
        Telefonfeld(app, app.Hauptmaske.feld[args.Index], args);
}

void menutelefon_Click(M& app)
{
    showForm(app, app.malatelephone);
}

// ---- the list of calls ------------------------------------------------------------------

void malatelephone_KeyDown(M& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyF1) {
        const QStringList zeilen = {QStringLiteral("Funções do teclado"), QStringLiteral("F2 = Enderecos "),
                                    QStringLiteral("ESC = Sair ")};
        app.ui.MsgBox(zeilen.join(QStringLiteral("\r\n")));
    } else if (args.KeyCode == vbKeyF2 || args.KeyCode == vbKeyEscape) {
        // F2 goes back to the addresses, Esc leaves: both close the list.
        hideForm(app, app.malatelephone);
    } else {
        return;
    }
    args.KeyCode = 0;
}

}  // namespace

void registerTelephonyHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("Command3D3"), QStringLiteral("Click"), &Hauptmaske_Command3D3_Click);
    table.on(haupt, QStringLiteral("feld"), QStringLiteral("KeyPress"), &feld_KeyPress);
    for (const char* tel : {"tel1", "tel2", "tel3", "tel4"}) {
        const QString name = QString::fromLatin1(tel);
        table.on(haupt, name, QStringLiteral("KeyPress"), [name](M& app, EventArgs& args) {
            const ControlRef ref = app.forms.control(QStringLiteral("Hauptmaske.") + name);
            Telefonfeld(app, ref.as<TextBox>(), args);
        });
    }
    table.on(haupt, QStringLiteral("menutelefon"), QStringLiteral("Click"), &menutelefon_Click);

    const QString d = QStringLiteral("DIALER");
    table.onForm(d, QStringLiteral("Load"), [](M& app, EventArgs&) { DIALER_Load(app); });
    table.onForm(d, QStringLiteral("Unload"), [](M& app, EventArgs&) { DIALER_Unload(app); });
    table.onForm(d, QStringLiteral("KeyDown"), &DIALER_KeyDown);
    table.on(d, QStringLiteral("Text2"), QStringLiteral("Change"), &DIALER_Text2_Change);
    table.on(d, QStringLiteral("Text6"), QStringLiteral("Change"), &DIALER_Text6_Change);
    table.on(d, QStringLiteral("Dialnumber"), QStringLiteral("Click"), &Dialnumber_Click);
    table.on(d, QStringLiteral("Dialnumber"), QStringLiteral("MouseMove"), &Dialnumber_MouseMove);
    table.on(d, QStringLiteral("number"), QStringLiteral("Click"), &number_Click);
    table.on(d, QStringLiteral("Abrir"), QStringLiteral("Click"), &Abrir_Click);
    table.on(d, QStringLiteral("Command3D2"), QStringLiteral("Click"), &DIALER_Command3D2_Click);
    table.on(d, QStringLiteral("Command3D3"), QStringLiteral("Click"), &DIALER_Command3D3_Click);
    table.on(d, QStringLiteral("Command3D8"), QStringLiteral("Click"), &DIALER_Command3D8_Click);
    table.on(d, QStringLiteral("Command3D9"), QStringLiteral("Click"), &DIALER_Command3D9_Click);
    table.on(d, QStringLiteral("Command1"), QStringLiteral("Click"), &AnrufBeginnen);
    table.on(d, QStringLiteral("Command2"), QStringLiteral("Click"), &AnrufBeenden);
    for (int i = 1; i <= 4; ++i)
        table.on(d, QStringLiteral("SSCommand%1").arg(i), QStringLiteral("Click"),
                 [i](M& app, EventArgs&) { DIALER_SSCommand_Click(app, i); });
    table.on(d, QStringLiteral("Timer1"), QStringLiteral("Timer"), &DIALER_Timer1_Timer);
    for (const QString& flaeche : {QString(), QStringLiteral("Panel3D1"), QStringLiteral("Panel3d5")}) {
        const auto ziehen = [&](const char* event, Handler h) {
            if (flaeche.isEmpty())
                table.onForm(d, QLatin1String(event), h);
            else
                table.on(d, flaeche, QLatin1String(event), h);
        };
        ziehen("MouseDown", &DIALER_MouseDown);
        ziehen("MouseMove", &DIALER_MouseMove);
        ziehen("MouseUp", &DIALER_MouseUp);
    }

    const QString k = QStringLiteral("Form10");
    table.on(k, QStringLiteral("Command1"), QStringLiteral("Click"), &Form10_Command1_Click);
    table.on(k, QStringLiteral("Command2"), QStringLiteral("Click"), &Form10_Command2_Click);
    table.on(k, QStringLiteral("Command3"), QStringLiteral("Click"), &Form10_Command3_Click);
    table.on(k, QStringLiteral("Command7"), QStringLiteral("Click"), &Form10_Command7_Click);
    table.on(k, QStringLiteral("Check3D1"), QStringLiteral("Click"), &Form10_Check3D1_Click);
    table.on(k, QStringLiteral("Check3D2"), QStringLiteral("Click"), &Form10_Check3D2_Click);
    table.on(k, QStringLiteral("Check3D4"), QStringLiteral("Click"), &Form10_Check3D4_Click);

    const QString liste = QStringLiteral("malatelephone");
    table.onForm(liste, QStringLiteral("Load"), [](M& app, EventArgs&) { malatelephone_Load(app); });
    table.onForm(liste, QStringLiteral("KeyDown"), &malatelephone_KeyDown);
    table.on(liste, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("Click"), &Schnelleauswahlliste_Click);
    table.on(liste, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("DblClick"), &Schnelleauswahlliste_DblClick);
    table.on(liste, QStringLiteral("Command1"), QStringLiteral("Click"), &Schnelleauswahlliste_DblClick);
    table.on(liste, QStringLiteral("Command2"), QStringLiteral("Click"),
             [](M& app, EventArgs&) { hideForm(app, app.malatelephone); });

    const QString tel = QStringLiteral("Formtel");
    table.onForm(tel, QStringLiteral("Load"), [](M& app, EventArgs&) { Formtel_Load(app); });
    table.on(tel, QStringLiteral("Command1"), QStringLiteral("Click"), &Formtel_Command1_Click);
    table.on(tel, QStringLiteral("Command2"), QStringLiteral("Click"), &Formtel_Command2_Click);
    table.on(tel, QStringLiteral("Command3"), QStringLiteral("Click"), [](M& app, EventArgs&) { hideForm(app, app.Formtel); });
    table.on(tel, QStringLiteral("Command4"), QStringLiteral("Click"), &menutelefon_Click);
    table.on(tel, QStringLiteral("Command5"), QStringLiteral("Click"), &Formtel_Command5_Click);
}

}  // namespace mk
