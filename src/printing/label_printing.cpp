#include "printing/label_printing.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "platform/profile.h"
#include "platform/text_files.h"
#include "printing/birthday_list.h"
#include "printing/card_printing.h"
#include "printing/print_preview.h"
#include "printing/serial_letter_list.h"

namespace mk {

namespace {

using M = Merkkartelle;

// The print copy and the mask number the fields alike, but not the telephone and the
// country: the run over all cards reads the mask's numbers from the copy.
QString feldtext(M& app, int index, Etikettenart art)
{
    if (art == Etikettenart::Liste)
        return app.DruckFelder[std::size_t(index)];
    return app.Hauptmaske.feld.exists(index) ? app.Hauptmaske.feld[index].Text : QString();
}

QString kartenbild(M& app)
{
    QString pfad;
    underIgnoredErrors([&] { pfad = kartensatz(app).Fields(QStringLiteral("telex")).text(); });
    return pfad;
}

}  // namespace

void DruckFelderLaden(M& app)
{
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        if (satz.RecordCount() == 0 || satz.IsEOF() || satz.IsBOF())
            return;
        static const std::pair<int, const char*> spalten[] = {
            {0, "Schluessel"}, {1, "Titel"}, {2, "Firma"}, {4, "Nachname"}, {5, "Vorname"}, {6, "Strasse"}, {7, "Staat"},
            {8, "Stadteil"}, {9, "PLZ"}, {10, "Stadt"}, {12, "Telefon"}, {13, "Land"}, {17, "Celphone"}, {18, "Bemerkung"}};
        for (const auto& [index, spalte] : spalten)
            app.DruckFelder[std::size_t(index)] = satz.Fields(QString::fromLatin1(spalte)).text();
    });
}

QString Etikettenzeile(M& app, const QString& item, Etikettenart art)
{
    const auto f = [&](int i) { return feldtext(app, i, art); };
    const QString blank = QStringLiteral(" ");
    if (item == QLatin1String("Vorname")) return f(5);
    if (item == QLatin1String("Vorname + Nachname")) return f(5) + blank + f(4);
    if (item == QLatin1String("Nachname")) return f(4);
    if (item == QLatin1String("Firma")) return f(2);
    if (item == QLatin1String("Stadt")) return f(10);
    if (item == QLatin1String("Stadteil")) return f(8);
    if (item == QLatin1String("PLZ + Stadt")) return f(9) + blank + f(10);
    if (item == QLatin1String("PLZ + Stadt + Stadteil")) return f(9) + blank + f(10) + blank + f(8);
    if (item == QLatin1String("PLZ")) return f(9);
    if (item == QLatin1String("Strasse")) return f(6);
    if (item == QLatin1String("Telefon")) return app.etiquet.Text10.Text + f(14);
    if (item == QLatin1String("Celphone")) return app.etiquet.Text15.Text + f(17);
    if (item == QLatin1String("Land")) return f(12);
    if (item == QLatin1String("Titel")) return f(1);
    if (item == QLatin1String("Leer")) return art == Etikettenart::Vorschau ? blank : QString();
    if (item == QLatin1String("PLZ + Stadt + Staat")) return f(9) + blank + f(10) + blank + f(7);
    if (item == QLatin1String("Strasse + Stadteil")) return f(6) + blank + f(8);
    return QString();
}

void FeldschriftSetzen(M& app, Surface& s)
{
    const auto& e = app.etiquet;
    s.ForeColor = e.Campoforecolor.BackColor;
    s.FontName = e.Text8.Text;
    s.FontSize = float(Val(e.Text7.Text));
    s.FontItalic = e.Check2.Value != 0;
    s.FontBold = e.Check1.Value != 0;
}

void EtikettInhalt(M& app, Surface& s, const Etikettenmasse& m, long x, long y, Etikettenart art)
{
    const auto& e = app.etiquet;
    FeldschriftSetzen(app, s);
    for (int i = 0; i <= 4; ++i) {
        // Every line has its own height, so a long line runs over the edge and moves nothing.
        s.CurrentX = x + m.TX;
        s.CurrentY = y + m.TY + i * m.P;
        const ComboBox& combo = e.Combo1[i];
        s.Print(Etikettenzeile(app, combo.Text, art));
    }
    if (e.Check7.checked()) {
        underIgnoredErrors([&] {
            s.CurrentX = x + m.TX;
            s.CurrentY = y + m.TY;
            const double groesse = Val(e.Label33.Caption) - 200;
            s.PaintPicture(kartenbild(app), s.CurrentX + m.W - Val(e.Label32.Caption), s.CurrentY + Val(e.Label34.Caption),
                           groesse, groesse);
        });
    }
    if (e.Check5.checked()) {
        s.CurrentX = x + m.TX;
        s.CurrentY = y + 5 * m.P + m.TY + Val(e.Text13.Text);
        s.ForeColor = e.Infoforecolor.BackColor;
        s.FontItalic = e.Check20.Value != 0;
        s.FontBold = e.Check10.Value != 0;
        s.FontName = e.InfoFontname.Text;
        s.FontSize = float(Val(e.InfoFontsize.Text));
        s.Print(art == Etikettenart::Liste ? app.DruckFelder[18] : app.Hauptmaske.Bemerkung.Text);
        if (e.Check6.checked())
            s.Line(x, y + 5 * m.P + m.TY + 50, m.W, 0);
    }
}

void EtikettZeichnen(M& app, Surface& s, const Etikettenmasse& m, long x, long y, Etikettenart art)
{
    const auto& e = app.etiquet;
    const double schnittlinie = m.W + 19.1 * 567;
    s.ForeColor = e.bordercolor.BackColor;
    if (art == Etikettenart::Liste) {
        if (e.Check4.checked()) {
            s.Line(x, y, 0, m.H);
            s.Line(x + m.W, y, 0, m.H);
            s.Line(x, y, m.W, 0);
            s.Line(x, y + m.H, m.W, 0);
        }
        if (e.Check3.checked())
            s.Line(x, y + m.H, schnittlinie, 0);
    } else if (e.Check4.checked()) {
        s.Line(x, y, 0, m.H);
        s.Line(x + m.W, y, 0, m.H);
        s.Line(x, y, m.W, 0);
        s.Line(x, y + m.H, e.Check3.checked() ? schnittlinie : double(m.W), 0);
    }
    EtikettInhalt(app, s, m, x, y, art);
}

Etikettenplatz naechsterPlatz(Rollenstand& st, const Etikettenmasse& m, double bogen, long S, long n)
{
    Etikettenplatz p;
    p.x = m.W * st.c + m.L + m.GX * st.c;
    p.y = m.T * st.r + m.H * (n - 1) + m.GY * (n - st.r);
    if (bogen * st.e - 0.9 <= p.y / 567.0) {
        if (p.y / 567.0 >= bogen * st.r - 0.9) {
            ++st.c;
            if (st.c >= m.spalten) {
                p.neueSeite = true;
                ++st.seite;
                st.c = 0;
            }
            st.e = st.r;
        }
        if (st.e == st.d + 1)
            ++st.d;
        if (st.d == st.r) {
            p.neueReihe = true;
            ++st.r;
        }
        p.x = m.W * st.c + m.L + m.GX * st.c;
        p.y = m.T + m.H * (n - 1) + m.GY * (n - st.r) - S * st.d + m.T * st.d;
    }
    return p;
}

namespace {

int fortschrittsschritt(long anzahl)
{
    int q = 0;  // exactly 100 cards: no test fires and the bar stays still
    if (anzahl < 100) q = 1;
    if (anzahl > 100) q = 10;
    if (anzahl > 500) q = 50;
    if (anzahl > 1000) q = 100;
    return q;
}

void dezimalzeichenLesen(M& app)
{
    const QString zeichen = GetProfileString(QStringLiteral("Intl"), QStringLiteral("sDecimal"), QString());
    app.Hauptmaske.Label6.Caption = zeichen;
    app.DezimalZeichen = zeichen;
}

void druckmeldungZeigen(M& app, long anzahl)
{
    loadForm(app, app.Message);
    auto& msg = app.Message;
    msg.Label1.Caption = QStringLiteral("Imprimindo cadastros... ");
    msg.Label1.ForeColor = rgb(0, 0, 128);
    msg.Timer1.Enabled = false;
    QString pfad = app.Kartendatenbank ? app.Kartendatenbank->path() : QString();
    const QString laufwerk = pfad.left(2).toUpper().toLower();
    const bool diskette = laufwerk == QLatin1String("a:") || laufwerk == QLatin1String("b:");
    msg.Image2.Visible = diskette;
    msg.Image1.Visible = !diskette;
    msg.picAusgabe.Visible = true;
    msg.picAusgabe.Min = 0;
    msg.picAusgabe.Max = int(std::min<long>(anzahl, 32767 * 65536L));
    msg.picAusgabe.Value = 0;
    msg.picAusgabe.ForeColor = rgb(0, 0, 196);
    showForm(app, app.Message);
}

}  // namespace

void EtikettenDrucken(M& app)
{
    dezimalzeichenLesen(app);
    const long anzahl = kartenzahl(app);
    if (anzahl == 0) {
        unloadForm(app, app.Message);
        return;
    }
    const Etikettenmasse m = EtikettenmasseLesen(app.etiquet);
    app.BogenHoehe = Bogenhoehe(app.etiquet);
    app.BogenHoeheKopie = app.BogenHoehe;
    const long S = long(std::nearbyint(567 * app.BogenHoehe));
    const double bogen = Val(app.etiquet.Text9.Text);
    Rollenstand stand;
    druckmeldungZeigen(app, anzahl);
    Surface& drucker = app.printing.printer();
    drucker.Print();
    underIgnoredErrors([&] { kartensatz(app).MoveFirst(); });
    DruckFelderLaden(app);
    const int q = fortschrittsschritt(anzahl);
    for (long n = 1;; ++n) {
        app.ui.DoEvents();
        if (q != 0 && n % q == 0)
            app.Message.picAusgabe.Value = int(std::min<long>(n, app.Message.picAusgabe.Max));
        if (n > anzahl)
            break;
        const Etikettenplatz p = naechsterPlatz(stand, m, bogen, S, n);
        if (p.neueSeite) {
            drucker.NewPage();
            drucker.Print();
        }
        if (p.neueReihe)
            app.mala.Label5.Caption = QString::number(stand.r);
        EtikettZeichnen(app, drucker, m, p.x, p.y, Etikettenart::Liste);
        underIgnoredErrors([&] { kartensatz(app).MoveNext(); });
        DruckFelderLaden(app);
    }
    drucker.EndDoc();
    unloadForm(app, app.Message);
}

void EtikettenseiteDrucken(M& app)
{
    const Etikettenmasse m = EtikettenmasseLesen(app.etiquet);
    Surface& s = app.printing.printer();
    const int seiten = int(Val(app.etiquet.paginas.Text));
    for (int seite = 1; seite <= seiten; ++seite) {
        FeldschriftSetzen(app, s);
        s.FontSize = 8;
        for (int zeile = 1; zeile <= m.zeilen; ++zeile) {
            for (int c = 0; c < m.spalten; ++c) {
                const long x = m.W * c + m.L + m.GX * c;
                const long y = m.T + m.H * (zeile - 1) + m.GY * (zeile - 1);
                EtikettZeichnen(app, s, m, x, y, Etikettenart::Seite);
                s.ForeColor = colour::Black;
                FeldschriftSetzen(app, s);
            }
        }
        // Each page is a print job of its own.
        s.EndDoc();
    }
}

void EinzelseiteDrucken_Click(M& app)
{
    const QString seiten = app.etiquet.paginas.Text;
    const QString frage = Val(seiten) == 1
        ? QStringLiteral("Soll ") + seiten + QStringLiteral(" Seite dieser Etiketten gedruck werden ?")
        : QStringLiteral("Sollen ") + seiten + QStringLiteral(" Seiten dieser Etiketten gedruck werden ?");
    const QString prompt = frage + QStringLiteral("\r            \r");
    if (app.ui.MsgBox(prompt, vbYesNo + vbQuestion, QStringLiteral("Drucken")) == vbYes)
        EtikettenseiteDrucken(app);
}

void DruckereinrichtungUebernehmen(M& app, const PrinterChoice& choice)
{
    if (choice.PrinterName.isEmpty())
        return;
    if (auto* drucker = dynamic_cast<QtPrinterSurface*>(&app.printing.printer()))
        drucker->setPrinterName(choice.PrinterName);
}

void EtikettenKonfigurieren(M& app)
{
    app.Hauptmaske.Panel3D3.Caption = QString();
    LfnrAnzeigen(app);
    showForm(app, app.form4);
    showForm(app, app.etiquet);
    VorschauAuffrischen(app);
}

namespace {

void malaprint_Click(M& app)
{
    if (app.ui.MsgBox(QStringLiteral("Aktuelle Einträge drucken ?"), vbYesNo + vbQuestion,
                      QStringLiteral("Impressão da Mala direta")) == vbYes)
        EtikettenDrucken(app);
}

}  // namespace

void registerLabelPrintingHandlers(HandlerTable& table)
{
    const QString main = QStringLiteral("Hauptmaske");
    const QString click = QStringLiteral("Click");
    table.on(main, QStringLiteral("malaprint"), click, malaprint_Click);
    table.on(main, QStringLiteral("menuetqconf"), click, EtikettenKonfigurieren);
}

void registerPrintingHandlers(HandlerTable& table)
{
    registerLabelLayoutHandlers(table);
    registerLabelPrintingHandlers(table);
    registerPreviewHandlers(table);
    registerSerialLetterHandlers(table);
    registerBirthdayHandlers(table);
    registerCardPrintingHandlers(table);
}

}  // namespace mk
