#include "telephony/dialer.h"

#include "card/app_state.h"
#include "card/session.h"
#include "card/card_editing.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "telephony/modem_config.h"

#include <QStringList>
#include <cmath>

namespace mk {

namespace {

using M = Merkkartelle;

constexpr int kSndAsync = 1;
const QString kCR = QStringLiteral("\r");
const QString kWeiter = QStringLiteral("WEITER");
const QString kStop = QStringLiteral("STOP");

constexpr long kGruen = rgb(0, 255, 0);
constexpr long kBlau = rgb(0, 0, 255);
constexpr long kRot = rgb(255, 0, 0);
constexpr long kSchwarz = rgb(0, 0, 0);
constexpr long kWeiss = rgb(255, 255, 255);
constexpr long kMagenta = rgb(255, 0, 255);
constexpr long kOliv = rgb(128, 128, 0);

const char* const kNummernarten[] = {"Telefone",      "Telefax",      "Celphone",    "Residencial 1",
                                     "Residencial 2", "Comerziell 1", "Comerziell 2"};
const QString kTastensymbole = QStringLiteral("0123456789*#");

// What a wait loop waits for.
enum class Warten { Verbindung, Anruf, Reset };

void Status(M& app, const char* text, long hinten, long schrift)
{
    Panel& l = app.DIALER.Label1;
    l.Caption = QString::fromUtf8(text);
    l.BackColor = hinten;
    l.ForeColor = schrift;
}

bool zeigt(const Button& knopf, const Image& bild)
{
    return knopf.Picture == bild.Picture;
}

// Writing to a closed port is ignored, as the old control's error was.
void senden(M& app, const QString& zeile)
{
    underIgnoredErrors([&] { app.DIALER.Comm1.Output(zeile); });
}

void portSchliessen(M& app)
{
    app.DIALER.Comm1.setPortOpen(*app.serialPorts, false);
}

void klingen(M& app, const char* datei)
{
    app.ui.playSound(joinPath(app.Arbeitsverzeichnis, QString::fromLatin1(datei)), kSndAsync);
}

void programmklang(M& app, const char* datei)
{
    if (app.config.SSCheck7.checked())
        klingen(app, datei);
}

// Opens Comm1 as Form10 sets it up; a port that cannot be opened gives the dialer's message.
bool portOeffnen(M& app)
{
    PortEinrichten(app);
    MSComm& comm = app.DIALER.Comm1;
    if (underIgnoredErrors([&] { comm.setPortOpen(*app.serialPorts, true); }))
        return true;
    app.ui.MsgBox(QStringLiteral("COM") + QString::number(comm.CommPort)
                      + QStringLiteral(": exsitiert nicht, bitte COM-PORT wechseln. "),
                  vbOKOnly, QStringLiteral("Modem"));
    return false;
}

void falscherPort(M& app)
{
    DIALER& d = app.DIALER;
    Status(app, "Falscher PORT", kSchwarz, kWeiss);
    d.Command3D3.Enabled = true;
    d.Abrir.Picture = d.Image1.Picture;
    d.Abrir.Enabled = true;
    d.Beenden = true;
    portSchliessen(app);
}

// The start of a call as the status shows it: the times, and the state words.
void Zeitstempel(M& app)
{
    app.DIALER.Label5.Caption.clear();
    app.DIALER.Label4.Caption = ZeitText(app);
}

// The reply words of a call being set up. True when the loop is to end (the user is asked
// to hang up and the hang-up follows).
bool Waehlantwort(M& app)
{
    DIALER& d = app.DIALER;
    if (d.Antwort.contains(QLatin1String("OK"))) {
        d.Antwort.clear();
        Zeitstempel(app);
        Status(app, "Verbindung offen...", kRot, kWeiss);
        raiseEvent(app, QStringLiteral("DIALER.Command1"), QStringLiteral("Click"));
        d.Command3D3.Enabled = false;
        d.Abrir.Picture = d.Image2.Picture;
        if (app.Form10.Check3D5.checked()) {
            app.ui.MsgBox(QStringLiteral("Mit ENTER die Modemverbindung trennen"), vbOKOnly, QStringLiteral("Modem"));
            d.VomAbrir = true;
            return true;
        }
        senden(app, app.Form10.Text21.Text + Lautsprecherbefehl(app) + app.Form10.Text9.Text + kCR);
    } else if (d.Antwort.contains(QLatin1String("NO DIALTONE"))) {
        d.Antwort.clear();
        Zeitstempel(app);
        Status(app, "Verbindung ohne Freizeichen", kSchwarz, kWeiss);
        d.Command3D3.Enabled = true;
        d.Abrir.Picture = d.Image2.Picture;
    } else if (d.Antwort.contains(QLatin1String("ERROR"))) {
        d.Antwort.clear();
        Zeitstempel(app);
        Status(app, "Konfigurationsfehler", kSchwarz, kWeiss);
        d.Command3D3.Enabled = true;
        d.Abrir.Picture = d.Image1.Picture;
    }
    return false;
}

void Klingelantwort(M& app)
{
    DIALER& d = app.DIALER;
    if (!d.Antwort.contains(QLatin1String("RING")))
        return;
    // Each ring once: the buffer starts again after it, so the next ring sounds again.
    d.Antwort.clear();
    Status(app, "Anruf", kOliv, kWeiss);
    klingen(app, "phonerng.wav");
}

// The wait loop: turns through DoEvents until the stop word, the Beenden flag, or the reply
// it waits for; sleeps on the port between passes when nothing has arrived.
void Warteschleife(M& app, Warten art)
{
    DIALER& d = app.DIALER;
    d.Antwort.clear();
    d.VomAbrir = false;
    ++d.Schleifen;
    for (;;) {
        app.ui.DoEvents();
        if (d.Label7.Caption == kStop)
            break;
        d.Label3.Caption = QString::number(qint64(Val(d.Label3.Caption)) + 1);
        int wartend = 0;
        underIgnoredErrors([&] { wartend = d.Comm1.InBufferCount(); });
        // Once the call stands, the modem's further answers (its OK to the speaker command
        // above all) are shown on Form1 only: they must not open the call a second time. In
        // the same way the OK to the ring-detect command leaves "Warten auf Anruf...".
        const bool verbunden = art == Warten::Verbindung && !zeigt(d.Abrir, d.Image4);
        if (wartend != 0) {
            underIgnoredErrors([&] { d.Antwort += d.Comm1.Input(); });
            if (app.Form10.Check3D4.checked())
                AntwortZeigen(app, d.Antwort);
            if (verbunden)
                d.Antwort.clear();
            else if (art != Warten::Anruf)
                Status(app, "Bitte warten...", kBlau, kWeiss);
        }
        if (art == Warten::Verbindung && !verbunden && Waehlantwort(app))
            break;
        if (art == Warten::Anruf)
            Klingelantwort(app);
        if (art == Warten::Reset
            && (d.Antwort.contains(QLatin1String("OK")) || d.Antwort.contains(QLatin1String("ERROR"))))
            break;
        if (d.Beenden) {
            d.Beenden = false;
            d.Endzeit = app.clock.Timer();
            break;
        }
        if (wartend == 0)
            d.Comm1.waitForInput(kPortWarteMs);
    }
    // An unload during the wait has given the form a fresh count already.
    if (d.Schleifen > 0)
        --d.Schleifen;
}

// The hang-up, after a click on Abrir (vomAbrir) or at the end of a wait loop.
void Auflegen(M& app, bool vomAbrir)
{
    DIALER& d = app.DIALER;
    const Form10& k = app.Form10;
    d.Label7.Caption = kStop;
    Status(app, "OFF LINE", kGruen, kSchwarz);
    underIgnoredErrors([&] { d.Comm1.clearInBuffer(); });
    d.Label3.Caption = QStringLiteral("0");
    QString zeile = k.Text21.Text + k.Text7.Text + kCR;
    if (vomAbrir)
        zeile = k.Text21.Text + (d.Command3D8.Enabled ? k.Text7.Text : k.Text8.Text) + k.Text9.Text + kCR;
    senden(app, zeile);
    d.Antwort = QStringLiteral("ERROR");
    const double jetzt = app.clock.Timer();
    d.Label5.Caption = QString::number(qint64(std::floor(jetzt)) - qint64(std::floor(d.Startzeit)));
    d.Abrir.Picture = d.Image1.Picture;
    d.Abrir.Enabled = true;
    senden(app, kCR);
    d.Label3.Caption.clear();
    portSchliessen(app);
    d.Command3D3.Enabled = true;
    raiseEvent(app, QStringLiteral("DIALER.Command2"), QStringLiteral("Click"));
}

void Waehlen(M& app)
{
    DIALER& d = app.DIALER;
    const Form10& k = app.Form10;
    d.Beenden = false;
    d.Label7.Caption = kWeiter;
    d.Startzeit = app.clock.Timer();
    d.Abrir.Picture = d.Image4.Picture;
    d.Abrir.Enabled = false;
    const QString zeile = k.Text21.Text + Wahlpraefix(app) + Lautsprecherbefehl(app) + d.Text6.Text + k.Text9.Text + kCR;
    if (d.Label1.BackColor != kRot && !portOeffnen(app)) {
        falscherPort(app);
        return;
    }
    underIgnoredErrors([&] { d.Comm1.clearInBuffer(); });
    senden(app, zeile);
    d.Label3.Caption = QStringLiteral("0");
    // Set-up is done: from now on a click on Abrir hangs up.
    d.Abrir.Enabled = true;
    Warteschleife(app, Warten::Verbindung);
    Auflegen(app, d.VomAbrir);
}

void anhaengen(M& app, const QString& zeichen)
{
    app.DIALER.Text6.Text += zeichen;
}

void Tastatursperre(M& app, bool gesperrt)
{
    for (auto& [i, knopf] : app.DIALER.number)
        knopf.Enabled = !gesperrt;
}

}  // namespace

QString OhneVorwahl(const QString& nummer, const QString& vorwahl)
{
    if (!vorwahl.isEmpty() && nummer.startsWith(vorwahl))
        return nummer.mid(vorwahl.size());
    return nummer;
}

void KartennummernInDialer(M& app)
{
    const Hauptmaske& m = app.Hauptmaske;
    const QString nummern[] = {m.feld[14].Text, m.feld[15].Text, m.feld[17].Text, m.tel1.Text,
                               m.tel2.Text,     m.tel3.Text,     m.tel4.Text};
    for (int i = 0; i < 7; ++i)
        app.DIALER.Dialnumber[i].Caption = OhneVorwahl(nummern[i], app.config.Text2.Text);
}

void DialerOeffnen(M& app)
{
    DIALER& d = app.DIALER;
    if (d.Visible)
        return;
    // Loading reads dialer.cfg, whose last number and name the card then replaces.
    loadForm(app, d);
    const Hauptmaske& m = app.Hauptmaske;
    d.Text2.Text = m.LaufendeNummer.Caption;
    DIALER_Text2_Change(app);
    programmklang(app, "mapa.wav");
    KartennummernInDialer(app);
    showForm(app, d);
}

void NummerAusFeld(M& app, const QString& nummer)
{
    DialerOeffnen(app);
    const Hauptmaske& m = app.Hauptmaske;
    app.DIALER.Text6.Text = nummer;
    app.DIALER.Text1.Text = m.feld[5].Text + QLatin1Char(' ') + m.feld[4].Text;
}

void DIALER_Load(M& app)
{
    ArbeitsverzeichnisSetzen(app);
    DialerKonfigurationLesen(app);
}

void DIALER_Unload(M& app)
{
    app.DIALER.Beenden = true;
    portSchliessen(app);
    unloadForm(app, app.Form1);
    unloadForm(app, app.Form10);
}

void DIALER_Text2_Change(M& app)
{
    DIALER& d = app.DIALER;
    const Hauptmaske& m = app.Hauptmaske;
    d.Text6.Text = m.feld[14].Text;
    d.Text1.Text = m.feld[5].Text + QLatin1Char(' ') + m.feld[4].Text;
    if (d.Text1.Text == QLatin1String(" "))
        d.Text1.Text = m.feld[2].Text;
}

void DIALER_Text6_Change(M& app)
{
    const Hauptmaske& m = app.Hauptmaske;
    app.DIALER.Caption = m.feld[5].Text + QLatin1Char(' ') + m.feld[4].Text + QLatin1Char(' ') + app.DIALER.Text6.Text;
}

void Dialnumber_Click(M& app, int index)
{
    app.DIALER.Text6.Text = app.DIALER.Dialnumber[index].Caption;
}

void Dialnumber_MouseMove(M& app, int index)
{
    if (index >= 0 && index <= 6 && !app.DIALER.Dialnumber[index].Caption.isEmpty())
        app.DIALER.SSPanel1.Caption = QString::fromUtf8(kNummernarten[index]);
}

void number_Click(M& app, int index)
{
    DIALER& d = app.DIALER;
    if (index < 0 || index >= kTastensymbole.size())
        return;
    const QString zeichen = kTastensymbole.mid(index, 1);
    anhaengen(app, zeichen);
    if (!zeigt(d.Abrir, d.Image2))
        return;
    d.Label7.Caption = kWeiter;
    if (d.Label1.BackColor == kMagenta || d.Label1.BackColor == kGruen)
        return;
    // Tone dialling inside the call.
    const Form10& k = app.Form10;
    Tastatursperre(app, true);
    senden(app, k.Text21.Text + Wahlpraefix(app) + Lautsprecherbefehl(app) + zeichen + k.Text9.Text + kCR);
    Tastatursperre(app, false);
}

void Abrir_Click(M& app)
{
    DIALER& d = app.DIALER;
    // A click while a wait runs ends it; the loop then hangs up.
    if (d.Schleifen > 0) {
        d.Label7.Caption = kStop;
        d.VomAbrir = true;
        return;
    }
    if (zeigt(d.Abrir, d.Image2))
        Auflegen(app, true);
    else
        Waehlen(app);
}

void DIALER_Command3D2_Click(M& app)
{
    showForm(app, app.Form10);
}

void DIALER_Command3D3_Click(M& app)
{
    DIALER& d = app.DIALER;
    programmklang(app, "mapaexit.wav");
    d.Beenden = true;
    d.Label3.Caption = QStringLiteral("0");
    ArbeitsverzeichnisSetzen(app);
    DialerKonfigurationSchreiben(app);
    hideForm(app, app.Form1);
    hideForm(app, app.Form10);
    hideForm(app, d);
}

void DIALER_Command3D8_Click(M& app)
{
    DIALER& d = app.DIALER;
    // Nothing while a call is set up or open, nor while another wait runs.
    if (d.Schleifen > 0 || d.Label1.BackColor == kRot || d.Label1.BackColor == kBlau || zeigt(d.Abrir, d.Image4))
        return;
    d.Text6.Text.clear();
    hideForm(app, app.Form10);
    d.Command3D2.Visible = false;
    d.Command3D8.Enabled = false;
    if (!portOeffnen(app)) {
        falscherPort(app);
        d.Command3D2.Visible = true;
        d.Command3D8.Enabled = true;
        return;
    }
    d.Beenden = false;
    d.Label7.Caption = kWeiter;
    d.Startzeit = app.clock.Timer();
    underIgnoredErrors([&] { d.Comm1.clearInBuffer(); });
    senden(app, app.Form10.Text16.Text + kCR);
    d.Abrir.Picture = d.Image2.Picture;
    d.loopoff.Caption = QStringLiteral("DETECTION MODE");
    Status(app, "Warten auf Anruf...", kMagenta, kWeiss);
    Warteschleife(app, Warten::Anruf);
    d.loopoff.Caption = QStringLiteral("DETECTION OFF");
    Auflegen(app, d.VomAbrir);
    d.Command3D2.Visible = true;
    d.Command3D8.Enabled = true;
}

void DIALER_Command3D9_Click(M& app)
{
    DIALER& d = app.DIALER;
    if (d.Schleifen > 0)
        return;
    d.Beenden = false;
    d.Label7.Caption = kWeiter;
    d.loopoff.Caption = QStringLiteral("TERMINAR");
    d.Command3D9.Picture = QStringLiteral("reseting");
    d.Command3D9.Enabled = false;
    if (portOeffnen(app)) {
        underIgnoredErrors([&] { d.Comm1.clearInBuffer(); });
        senden(app, app.Form10.Text7.Text + kCR);
        Warteschleife(app, Warten::Reset);
        d.Label3.Caption = QStringLiteral("0");
        Status(app, "OFF LINE", kGruen, kSchwarz);
    } else {
        Status(app, "Falscher PORT", kSchwarz, kWeiss);
    }
    portSchliessen(app);
    d.Command3D9.Picture = QStringLiteral("reset1");
    d.Command3D9.Enabled = true;
    d.Label7.Caption = kStop;
}

void DIALER_SSCommand_Click(M& app, int which)
{
    DIALER& d = app.DIALER;
    switch (which) {
    case 1:
        d.Text6.Text.chop(1);
        break;
    case 2:
        app.ui.setClipboardText(d.Text6.Text);
        break;
    case 3:
        d.Text6.Text.clear();
        d.Text1.Text.clear();
        d.Text2.Text.clear();
        d.Label4.Caption = QStringLiteral("00:00:00");
        d.Label5.Caption = QStringLiteral("00:00:00");
        break;
    case 4:
        anhaengen(app, app.ui.clipboardText().trimmed());
        break;
    default:
        break;
    }
}

void DIALER_Timer1_Timer(M& app)
{
    app.DIALER.Label2.Caption = ZeitText(app);
}

QString DialerTastenbelegung()
{
    const QStringList zeilen = {
        QString(),
        QStringLiteral("Tastenbelegung "),
        QString(),
        QStringLiteral("BACK\t= Nummern löschen "),
        QStringLiteral("F3 / ESC\t= Sair "),
        QStringLiteral("F4\t= Modem einstellungen"),
        QStringLiteral("F5\t= Ausschalten "),
        QStringLiteral("F9\t= Nummer wählen "),
        QStringLiteral("F10\t= Modem reset "),
        QStringLiteral("F11\t= Anruf abwarten "),
    };
    return zeilen.join(kCR);
}

void DIALER_KeyDown(M& app, EventArgs& args)
{
    constexpr int vbKeyNumpad0 = 96;
    constexpr int vbKeyNumpad9 = 105;
    constexpr int vbKeyMultiply = 106;
    const auto druecken = [&app](const char* control) {
        raiseEvent(app, QStringLiteral("DIALER.") + QLatin1String(control), QStringLiteral("Click"));
    };
    const int taste = args.KeyCode;
    if (taste >= vbKeyNumpad0 && taste <= vbKeyNumpad9)
        anhaengen(app, QString::number(taste - vbKeyNumpad0));
    else if (taste == vbKeyMultiply)
        anhaengen(app, QStringLiteral("*"));
    else if (taste == vbKeyF1)
        app.ui.MsgBox(DialerTastenbelegung());
    else if (taste == vbKeyBack)
        app.DIALER.Text6.Text.chop(1);
    else if (taste == vbKeyF3 || taste == vbKeyEscape)
        druecken("Command3D3");
    else if (taste == vbKeyF4)
        druecken("Command3D2");
    else if (taste == vbKeyF5 || taste == vbKeyF9)
        druecken("Abrir");
    else if (taste == vbKeyF10)
        druecken("Command3D9");
    else if (taste == vbKeyF11)
        druecken("Command3D8");
    else
        return;
    args.KeyCode = 0;  // the form took the key; the focused control does not see it
}

void DIALER_MouseDown(M& app, EventArgs& args)
{
    DIALER& d = app.DIALER;
    d.Ziehen = true;
    d.ZiehenX = args.X;
    d.ZiehenY = args.Y;
}

void DIALER_MouseMove(M& app, EventArgs& args)
{
    DIALER& d = app.DIALER;
    if (!d.Ziehen)
        return;
    d.Left += int(args.X - d.ZiehenX);
    d.Top += int(args.Y - d.ZiehenY);
}

void DIALER_MouseUp(M& app, EventArgs&)
{
    app.DIALER.Ziehen = false;
}

}  // namespace mk
