#include "telephony/modem_config.h"

#include "card/app_state.h"
#include "card/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "telephony/dialer.h"

#include <functional>
#include <vector>

namespace mk {

namespace {

using M = Merkkartelle;

const QString kDatei = QStringLiteral("dialer.cfg");
const QString kCR = QStringLiteral("\r");
constexpr int kAusfuehrenDurchlaeufe = 150;  // about three seconds on a real port

// One record of dialer.cfg: what is written, and what reading does with it (nothing for the
// records that are written but not read).
struct Satz {
    std::function<WriteValue(M&)> schreiben;
    std::function<void(M&, const QString&)> lesen;
};

using TextRef = QString& (*)(M&);
using BoolRef = bool& (*)(M&);
using ZahlRef = int& (*)(M&);
using CheckRef = CheckBox& (*)(M&);

Satz text(TextRef ref)
{
    return {[ref](M& a) { return WriteValue(ref(a)); }, [ref](M& a, const QString& v) { ref(a) = v; }};
}

Satz option(BoolRef ref)
{
    return {[ref](M& a) { return WriteValue(ref(a)); }, [ref](M& a, const QString& v) { ref(a) = toBoolean(v); }};
}

Satz haken(CheckRef ref)
{
    return {[ref](M& a) { return WriteValue(ref(a).checked()); },
            [ref](M& a, const QString& v) { ref(a).Value = toBoolean(v) ? 1 : 0; }};
}

Satz zahl(ZahlRef ref)
{
    return {[ref](M& a) { return WriteValue(ref(a)); },
            [ref](M& a, const QString& v) {
                bool ok = false;
                const int n = v.trimmed().toInt(&ok);
                if (!ok)
                    raiseFileError(err::TypeMismatch);
                ref(a) = n;
            }};
}

Satz unbenutzt()
{
    return {[](M&) { return WriteValue(QString()); }, {}};
}

#define MK_TEXT(expr) text([](M& a) -> QString& { return a.expr; })
#define MK_OPTION(expr) option([](M& a) -> bool& { return a.expr; })
#define MK_HAKEN(expr) haken([](M& a) -> CheckBox& { return a.expr; })
#define MK_ZAHL(expr) zahl([](M& a) -> int& { return a.expr; })

// The 46 records in their order on disk.
const std::vector<Satz>& saetze()
{
    static const std::vector<Satz> liste = {
        MK_TEXT(DIALER.Text6.Text),                                                      // 1
        MK_TEXT(Form10.Text1.Text),  MK_TEXT(Form10.Text2.Text),  MK_TEXT(Form10.Text3.Text),
        MK_TEXT(Form10.Text4.Text),  MK_TEXT(Form10.Text5.Text),  MK_TEXT(Form10.Text6.Text),   // 2-7
        MK_OPTION(Form10.Option3D1.Value), MK_OPTION(Form10.Option3D2.Value),
        MK_OPTION(Form10.Option3D3.Value), MK_OPTION(Form10.Option3D4.Value),               // 8-11
        MK_HAKEN(Form10.Check3D1), MK_HAKEN(Form10.Check3D2), MK_HAKEN(Form10.Check3D5),     // 12-14
        MK_TEXT(Form10.Text7.Text),  MK_TEXT(Form10.Text8.Text),  MK_TEXT(Form10.Text9.Text),   // 15-17
        MK_HAKEN(Form10.Check3D4),                                                       // 18
        unbenutzt(),                                                                     // 19
        MK_TEXT(Form10.Text10.Text),                                                     // 20
        unbenutzt(),                                                                     // 21
        MK_TEXT(Form10.Text11.Text), MK_TEXT(Form10.Text12.Text), MK_TEXT(Form10.Text13.Text),
        MK_TEXT(Form10.Text14.Text), MK_TEXT(Form10.Text15.Text),                        // 22-26
        MK_TEXT(Form10.Text16.Text),                                                     // 27
        MK_TEXT(Form10.Text17.Text), MK_TEXT(Form10.Text18.Text), MK_TEXT(Form10.Text19.Text),
        MK_TEXT(Form10.Text20.Text),                                                     // 28-31
        MK_TEXT(Form10.Text21.Text),                                                     // 32
        MK_OPTION(Form10.Option1.Value), MK_OPTION(Form10.Option2.Value),
        MK_OPTION(Form10.OPtion3.Value),                                                 // 33-35
        MK_OPTION(Form10.Option3d5.Value),                                               // 36
        unbenutzt(),                                                                     // 37
        MK_ZAHL(DIALER.Left),  MK_ZAHL(DIALER.Top),                                      // 38-39
        MK_ZAHL(Form10.Left),  MK_ZAHL(Form10.Top),                                      // 40-41
        MK_ZAHL(Form1.Left),   MK_ZAHL(Form1.Top),                                       // 42-43
        MK_ZAHL(Form1.Width),  MK_ZAHL(Form1.Height),                                    // 44-45
        MK_TEXT(DIALER.Text1.Text),                                                      // 46
    };
    return liste;
}

#undef MK_TEXT
#undef MK_OPTION
#undef MK_HAKEN
#undef MK_ZAHL

QString dateipfad(M& app)
{
    return joinPath(app.Arbeitsverzeichnis, kDatei);
}

constexpr long kGruen = rgb(0, 255, 0);
constexpr long kRot = rgb(255, 0, 0);
constexpr long kSchwarz = rgb(0, 0, 0);
constexpr long kWeiss = rgb(255, 255, 255);

// The status colour of Form1 for the words of an answer.
void Antwortfarbe(M& app, const QString& antwort)
{
    Panel& l = app.Form1.Label1;
    if (antwort.contains(QLatin1String("OK"))) {
        l.BackColor = kGruen;
        l.ForeColor = kSchwarz;
    } else if (antwort.contains(QLatin1String("ERROR"))) {
        l.BackColor = kRot;
        l.ForeColor = kWeiss;
    } else if (antwort.contains(QLatin1String("NO CARRIER"))) {
        l.BackColor = kSchwarz;
        l.ForeColor = kWeiss;
    } else {
        l.BackColor = kWeiss;
        l.ForeColor = kSchwarz;
    }
}

bool Schlusswort(const QString& antwort)
{
    return antwort.contains(QLatin1String("OK")) || antwort.contains(QLatin1String("ERROR"))
           || antwort.contains(QLatin1String("NO CARRIER"));
}

// An execute button: one command through the port, its answer on Form1. The wait ends at
// the answer's word or after a few seconds, so a silent modem cannot hold the form.
void Ausfuehren(M& app, const QString& befehl)
{
    MSComm& comm = app.DIALER.Comm1;
    if (comm.PortOpen())
        return;  // the dialer holds the line
    PortEinrichten(app);
    if (!underIgnoredErrors([&] { comm.setPortOpen(*app.serialPorts, true); })) {
        app.ui.MsgBox(QStringLiteral("COM") + QString::number(comm.CommPort)
                          + QStringLiteral(": não existe, mude a porta serial do seu modem. "),
                      vbOKOnly, QStringLiteral("Modem"));
        return;
    }
    Panel& anzeige = app.Form1.Label1;
    anzeige.Caption = QStringLiteral("Aguarde...");
    Antwortfarbe(app, QString());
    showForm(app, app.Form1);
    underIgnoredErrors([&] { comm.clearInBuffer(); });
    underIgnoredErrors([&] { comm.Output(befehl + kCR); });
    QString antwort;
    for (int i = 0; i < kAusfuehrenDurchlaeufe && !Schlusswort(antwort); ++i) {
        app.ui.DoEvents();
        int wartend = 0;
        underIgnoredErrors([&] { wartend = comm.InBufferCount(); });
        if (wartend != 0)
            underIgnoredErrors([&] { antwort += comm.Input(); });
        else
            comm.waitForInput(kPortWarteMs);
    }
    anzeige.Caption = antwort;
    Antwortfarbe(app, antwort);
    comm.setPortOpen(*app.serialPorts, false);
}

}  // namespace

void DialerKonfigurationLesen(M& app)
{
    const PositionalFile datei = readPositionalFile(dateipfad(app));
    const auto& liste = saetze();
    // The file is read into a table of 101 entries first; the controls take theirs by
    // position, each record on its own, so that a bad one spoils no other.
    std::vector<QString> tabelle(101);
    for (int i = 0; i < datei.records.size() && i < 101; ++i)
        tabelle[std::size_t(i)] = datei.records[i];
    for (int i = 0; i < int(liste.size()) && i < datei.records.size(); ++i) {
        if (liste[std::size_t(i)].lesen)
            underIgnoredErrors([&] { liste[std::size_t(i)].lesen(app, tabelle[std::size_t(i)]); });
    }
}

void DialerKonfigurationSchreiben(M& app)
{
    std::vector<WriteValue> werte;
    for (const Satz& s : saetze())
        werte.push_back(s.schreiben(app));
    underIgnoredErrors([&] { writePositionalFile(dateipfad(app), werte); });
}

void PortEinrichten(M& app)
{
    const Form10& k = app.Form10;
    MSComm& comm = app.DIALER.Comm1;
    comm.CommPort = k.port();
    comm.Settings = k.Text1.Text + u',' + k.Text2.Text + u',' + k.Text3.Text + u',' + k.Text4.Text;
}

QString Wahlpraefix(const M& app)
{
    const Form10& k = app.Form10;
    if (k.Check3D1.checked())
        return k.Text5.Text;
    if (k.Check3D2.checked())
        return k.Text6.Text;
    return QString();
}

QString Lautsprecherbefehl(const M& app)
{
    const Form10& k = app.Form10;
    if (k.Option1.Value)
        return k.Text13.Text;
    if (k.Option2.Value)
        return k.Text14.Text;
    if (k.OPtion3.Value)
        return k.Text15.Text;
    return k.Text12.Text;
}

void AntwortZeigen(M& app, const QString& antwort)
{
    app.Form1.Label1.Caption = antwort;
    if (!app.Form1.Visible)
        showForm(app, app.Form1);
}

void Form10_Command1_Click(M& app)
{
    Ausfuehren(app, app.Form10.Text10.Text);
}

void Form10_Command2_Click(M& app)
{
    Ausfuehren(app, app.Form10.Text7.Text);
}

void Form10_Command3_Click(M& app)
{
    ArbeitsverzeichnisSetzen(app);
    DialerKonfigurationLesen(app);
}

void Form10_Command7_Click(M& app)
{
    hideForm(app, app.Form10);
}

void Form10_Check3D1_Click(M& app)
{
    app.Form10.Check3D2.Value = 0;
}

void Form10_Check3D2_Click(M& app)
{
    app.Form10.Check3D1.Value = 0;
}

void Form10_Check3D4_Click(M& app)
{
    if (app.Form10.Check3D4.checked())
        showForm(app, app.Form1);
    else
        hideForm(app, app.Form1);
}

}  // namespace mk
