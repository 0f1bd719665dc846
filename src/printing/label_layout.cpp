#include "printing/label_layout.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text_files.h"
#include "printing/label_printing.h"
#include "printing/print_preview.h"

#include <cmath>

namespace mk {

namespace {

using M = Merkkartelle;

// The nine boxes that hold a length in centimetres.
const char* const kLaengenfelder[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "tabh", "dishor", "disver"};

TextBox& laengenfeld(M& app, const QString& name)
{
    auto& e = app.etiquet;
    for (TextBox* box : {&e.Text1, &e.Text2, &e.Text3, &e.Text4, &e.Text5, &e.Text6, &e.tabh, &e.dishor, &e.disver})
        if (box->Name == name)
            return *box;
    return e.Text1;
}

bool istZiffernfremd(QChar c)
{
    return Val(QString(c)) == 0 && c != QLatin1Char('0');
}

QString zahlText(double value) { return QString::number(value, 'g', 15); }

int alsInteger(double value, int min, int max)
{
    return int(std::clamp(std::nearbyint(value), double(min), double(max)));
}

}  // namespace

long cmInTwips(const QString& text) { return long(std::nearbyint(Val(text) * 567)); }

long zeilenabstandInTwips(const QString& tabh) { return long(std::nearbyint(Val(tabh) * (567 / (3.1415927 * 3)))); }

Etikettenmasse EtikettenmasseLesen(const etiquet& e)
{
    Etikettenmasse m;
    m.W = cmInTwips(e.Text1.Text);
    m.H = cmInTwips(e.Text2.Text);
    m.L = cmInTwips(e.Text5.Text);
    m.T = cmInTwips(e.Text6.Text);
    m.TX = cmInTwips(e.Text3.Text);
    m.TY = cmInTwips(e.Text4.Text);
    m.GX = cmInTwips(e.disver.Text);
    m.GY = cmInTwips(e.dishor.Text);
    m.P = zeilenabstandInTwips(e.tabh.Text);
    m.spalten = int(Val(e.Quantidade.Text));
    m.zeilen = int(Val(e.colunas.Text));
    return m;
}

double Bogenhoehe(const etiquet& e)
{
    const double zeilen = Val(e.colunas.Text);
    return Val(e.Text6.Text) + zeilen * Val(e.Text2.Text) + Val(e.dishor.Text) * (zeilen - 1);
}

// ---- decimal rules ---------------------------------------------------------------------------

void decimalconvertor(QString& text)
{
    QString zellen;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i >= 10)
            throw RuntimeError(9, QStringLiteral("Subscript out of range"));
        const QChar c = text[i];
        zellen += (istZiffernfremd(c) && c != QLatin1Char('.')) ? QLatin1Char('.') : c;
    }
    text = zellen;
}

void ConverterTexto(M& app)
{
    for (const char* name : kLaengenfelder) {
        TextBox& box = laengenfeld(app, QString::fromLatin1(name));
        QString text = box.Text;
        decimalconvertor(text);
        box.Text = text;
    }
}

void Laengenfeld_Change(M& app, const QString& control)
{
    TextBox& box = laengenfeld(app, control);
    if (box.Text.isEmpty())
        box.Text = QStringLiteral("0");
    QString zellen;
    int fremde = 0;
    bool abgeschnitten = false;
    for (const QChar c : box.Text) {
        if (istZiffernfremd(c)) {
            if (++fremde == 2) {
                // A second decimal sign cannot be typed: the box loses its last character.
                box.Text.chop(1);
                abgeschnitten = true;
                break;
            }
            zellen += QLatin1Char('.');
        } else {
            zellen += c;
        }
    }
    if (!abgeschnitten)
        box.Text = zellen;
    box.SelStart = int(box.Text.size());
    box.SelLength = 0;
    VorschauAuffrischen(app);
}

QString seitenmass(double cm)
{
    QString text = QString::number(std::round(cm * 100) / 100, 'f', 2);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    if (text.startsWith(QLatin1String("0.")))
        text.remove(0, 1);
    return text;
}

// ---- the page -------------------------------------------------------------------------------

void DruckflaecheLesen(M& app)
{
    auto& e = app.etiquet;
    underIgnoredErrors([&] {
        Surface& printer = app.printing.printer();
        QString hoehe = seitenmass(double(long(std::nearbyint(printer.Height()))) / 567);
        QString breite = seitenmass(double(long(std::nearbyint(printer.Width()))) / 567);
        decimalconvertor(hoehe);
        decimalconvertor(breite);
        e.Text11.Text = hoehe;
        e.Text14.Text = breite;
    });
}

void SeiteEinpassen(M& app)
{
    auto& e = app.etiquet;
    for (;;) {
        QString bogen = zahlText(Bogenhoehe(e));
        underIgnoredErrors([&] { decimalconvertor(bogen); });
        e.Text9.Text = bogen;
        if (Val(e.impborda.Text) > 10)
            e.impborda.Text = QStringLiteral("10");
        if (Val(e.Text9.Text) == 0 || Val(e.Text11.Text) <= 2)
            return;
        if (Val(e.Text11.Text) - Val(e.impborda.Text) >= Val(e.Text9.Text))
            return;
        // One row fewer, until the sheet fits; a single row that does not fit stays.
        const int zeilen = int(Val(e.colunas.Text));
        if (zeilen <= 1)
            return;
        e.colunas.Text = QString::number(zeilen - 1);
        e.Text12.Text = zahlText(Val(e.Quantidade.Text) * Val(e.colunas.Text));
        e.HScroll1.Value = alsInteger(zeilen - 1, e.HScroll1.Min, e.HScroll1.Max);
    }
}

void EtikettenFormAbgleichen(M& app)
{
    auto& e = app.etiquet;
    e.Text12.Text = zahlText(Val(e.Quantidade.Text) * Val(e.colunas.Text));
    e.Text8.Font.Name = e.Text8.Text;
    e.Text8.ForeColor = e.Campoforecolor.BackColor;
    e.InfoFontname.Font.Name = e.InfoFontname.Text;
    e.InfoFontname.ForeColor = e.Infoforecolor.BackColor;
    const bool bemerkung = e.Check5.checked();
    for (Control* c : std::initializer_list<Control*>{&e.InfoFontname, &e.InfoFontsize, &e.Infoforecolor, &e.Text13, &e.Label22, &e.Check6})
        c->Enabled = bemerkung;
    e.Label40.Visible = e.bordercolor.Visible = e.Check4.checked();
    const bool bild = e.Check7.checked();
    for (Control* c : std::initializer_list<Control*>{&e.Label32, &e.HScroll3, &e.Label33, &e.HScroll4, &e.Label34, &e.HScroll5, &e.Label41, &e.Label36, &e.Label37})
        c->Visible = bild;
    SeiteEinpassen(app);
    DruckflaecheLesen(app);
}

void Mengenfeld_Change(M& app, bool quer)
{
    auto& e = app.etiquet;
    TextBox& box = quer ? e.Quantidade : e.colunas;
    ScrollBar& bar = quer ? e.HScroll2 : e.HScroll1;
    e.Text12.Text = zahlText(Val(e.Quantidade.Text) * Val(e.colunas.Text));
    if (Val(box.Text) == 0)
        box.Text = QStringLiteral("1");
    bar.Value = alsInteger(Val(box.Text), bar.Min, bar.Max);
    SeiteEinpassen(app);
    VorschauAuffrischen(app);
}

// ---- the sample card -------------------------------------------------------------------------

void LfnrAnzeigen(M& app)
{
    underIgnoredErrors([&] { app.etiquet.Label38.Caption = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });
}

bool NummernpraefixFinden(M& app, const QString& nummer)
{
    const QString kriterium = QStringLiteral("LEFT([Laufendenummer],") + QString::number(nummer.size()) + QStringLiteral(") = '") + nummer + QLatin1Char('\'');
    bool gefunden = false;
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        satz.FindFirst(kriterium);
        gefunden = !satz.NoMatch();
    });
    return gefunden;
}

void changer(M& app)
{
    if (!NummernpraefixFinden(app, app.etiquet.Label38.Caption)) {
        app.ui.MsgBox(QStringLiteral("Eintrag exsistiert nicht !"));
        return;
    }
    DatenInMaske(app);
    VorschauAuffrischen(app);
}

namespace {

void eintragWaehlen(M& app, const QString& frage)
{
    QString aktuell;
    underIgnoredErrors([&] { aktuell = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });
    const QString wert = app.ui.InputBox(frage, QStringLiteral("Eintrag auswählen"), aktuell);
    if (Val(wert) == 0)
        return;
    app.etiquet.Label38.Caption = wert;
    changer(app);
}

void Command3D12_Click(M& app) { eintragWaehlen(app, QStringLiteral("Geben Sie eine Registriernummer ein")); }
void Label39_Click(M& app) { eintragWaehlen(app, QStringLiteral("Laufendenummer eingeben")); }
void Label38_Click(M& app) { changer(app); }

}  // namespace

// ---- the .ecf file -----------------------------------------------------------------------------

void EtikettendateiSchreiben(M& app, const QString& path)
{
    auto& e = app.etiquet;
    const auto zahl = [](const CheckBox& c) { return WriteValue(c.Value); };
    const auto farbe = [](const Label& l) { return WriteValue(qint32(l.BackColor)); };
    const std::vector<WriteValue> werte = {
        e.Text5.Text, e.Text6.Text, e.Text3.Text, e.Text4.Text, e.tabh.Text, e.Text1.Text, e.Text2.Text,
        e.Text7.Text, e.Text8.Text, e.dishor.Text, e.disver.Text, e.Quantidade.Text, e.colunas.Text,
        WriteValue(e.HScroll1.Value), WriteValue(e.HScroll2.Value),
        zahl(e.Check3), zahl(e.Check1), zahl(e.Check2), zahl(e.Check4), zahl(e.Check5),
        e.Text10.Text, e.InfoFontname.Text, e.InfoFontsize.Text, farbe(e.Infoforecolor), farbe(e.Campoforecolor),
        zahl(e.Check10), zahl(e.Check20), e.impbordavertical.Text, e.impborda.Text, e.Text15.Text, zahl(e.Check5),
        e.Combo1[0].Text, e.Combo1[1].Text, e.Combo1[2].Text, e.Combo1[3].Text, e.Combo1[4].Text,
        e.Text10.Text, e.paginas.Text, zahl(e.Check6), e.Label38.Caption, e.Text13.Text, farbe(e.bordercolor),
        e.Label32.Caption, e.Label33.Caption, e.Label34.Caption,
    };
    writePositionalFile(path, werte);
}

void EtikettendateiLesen(M& app, const QString& path)
{
    std::array<QString, 46> zelle;  // 1 to 45
    {
        TextReader reader(path);
        for (int i = 1; i <= 45; ++i)
            if (!underIgnoredErrors([&] { zelle[std::size_t(i)] = reader.next(); }))
                break;
    }
    auto& e = app.etiquet;
    const auto z = [&](int i) -> const QString& { return zelle[std::size_t(i)]; };
    const auto check = [&](CheckBox& c, int i) { c.Value = int(Val(z(i))); };
    const auto farbe = [&](Label& l, int i) { l.BackColor = long(quint32(qint32(Val(z(i))))); };
    const auto bar = [&](ScrollBar& s, int i) { s.Value = alsInteger(Val(z(i)), s.Min, s.Max); };
    e.Text7.Text = z(8);
    e.Text8.Font.Size = float(Val(z(8)));
    e.Text8.Text = z(9);
    e.Text8.Font.Name = z(9);
    e.InfoFontname.Text = z(22);
    e.InfoFontsize.Text = z(23);
    e.Text5.Text = z(1);
    e.Text6.Text = z(2);
    e.Text3.Text = z(3);
    e.Text4.Text = z(4);
    e.tabh.Text = z(5);
    e.Text1.Text = z(6);
    e.Text2.Text = z(7);
    e.dishor.Text = z(10);
    e.disver.Text = z(11);
    e.Quantidade.Text = z(12);
    e.colunas.Text = z(13);
    bar(e.HScroll1, 14);
    bar(e.HScroll2, 15);
    check(e.Check3, 16);
    check(e.Check1, 17);
    check(e.Check2, 18);
    check(e.Check4, 19);
    check(e.Check5, 20);
    e.Text10.Text = z(21);
    farbe(e.Infoforecolor, 24);
    farbe(e.Campoforecolor, 25);
    check(e.Check10, 26);
    check(e.Check20, 27);
    e.impbordavertical.Text = z(28);
    e.impborda.Text = z(29);
    e.Text15.Text = z(30);
    check(e.Check5, 31);
    for (int i = 0; i < 5; ++i)
        e.Combo1[i].Text = z(32 + i);
    e.Text10.Text = z(37);
    e.paginas.Text = z(38);
    check(e.Check6, 39);
    e.Label38.Caption = z(40);
    e.Text13.Text = z(41);
    farbe(e.bordercolor, 42);
    e.Label32.Caption = z(43);
    e.Label33.Caption = z(44);
    e.Label34.Caption = z(45);
    bar(e.HScroll3, 43);
    bar(e.HScroll4, 44);
    bar(e.HScroll5, 45);
    // The boxes' own change handlers: an empty length is "0", an empty count "1".
    for (const char* name : kLaengenfelder)
        if (laengenfeld(app, QString::fromLatin1(name)).Text.isEmpty())
            laengenfeld(app, QString::fromLatin1(name)).Text = QStringLiteral("0");
    for (TextBox* anzahl : {&e.Quantidade, &e.colunas})
        if (Val(anzahl->Text) == 0)
            anzahl->Text = QStringLiteral("1");
    e.Text12.Text = zahlText(Val(e.Quantidade.Text) * Val(e.colunas.Text));
    underIgnoredErrors([&] { ConverterTexto(app); });
    VorschauAuffrischen(app);
}

namespace {

FileDialog& etikettenDialog(M& app)
{
    FileDialog& d = app.etiquet.CMDialog1;
    d.Filter = QStringLiteral("Arquivos etiqueta (*.ecf)|*.ecf|");
    d.InitDir = DateiPfad(app.Kartendatenbank ? app.Kartendatenbank->path() : app.Arbeitsverzeichnis);
    return d;
}

void zumDatenbankordner(M& app)
{
    underIgnoredErrors([&] { ChDir(etikettenDialog(app).InitDir); });
}

void Command1_Click(M& app)  // load
{
    FileDialog& d = etikettenDialog(app);
    d.DialogTitle = QStringLiteral("Etiketteneinstellung laden");
    const FileChoice choice = app.ui.ShowOpen(d);
    if (choice.cancelled)
        return;
    d.FileName = choice.FileName;
    if (!underIgnoredErrors([&] { EtikettendateiLesen(app, choice.FileName); }))
        app.ui.MsgBox(QStringLiteral("Die Datei ") + choice.FileName + QStringLiteral(" kann nicht gelesen werden."),
                      vbExclamation, QStringLiteral("Etiketteneinstellung laden"));
}

void Command2_Click(M& app)  // save
{
    FileDialog& d = etikettenDialog(app);
    d.DialogTitle = QStringLiteral("Etiketteneinstellung speichern");
    d.Flags = cdlOFNOverwritePrompt | cdlOFNHideReadOnly;
    zumDatenbankordner(app);
    const FileChoice choice = app.ui.ShowSave(d);
    if (choice.cancelled)
        return;
    d.FileName = choice.FileName;
    bool vorhanden = false;
    underIgnoredErrors([&] { vorhanden = !Dir(choice.FileName).isEmpty(); });
    if (vorhanden
        && app.ui.MsgBox(QStringLiteral("Bestehende Datei überschreiben ") + DateiName(choice.FileName) + QStringLiteral(" ?"),
                         vbYesNo + vbQuestion, QStringLiteral("Speichern unter")) != vbYes)
        return;
    LfnrAnzeigen(app);
    if (!underIgnoredErrors([&] { EtikettendateiSchreiben(app, choice.FileName); }))
        app.ui.MsgBox(QStringLiteral("Die Datei ") + choice.FileName + QStringLiteral(" kann nicht geschrieben werden."),
                      vbExclamation, QStringLiteral("Speichern unter"));
    zumDatenbankordner(app);
}

void Command4_Click(M& app)  // "Drucker Einstellen"
{
    PrinterDialog d;
    d.DialogTitle = QStringLiteral("Drucker einstellen");
    const PrinterChoice choice = app.ui.ShowPrinter(d);
    if (choice.cancelled)
        return;
    DruckereinrichtungUebernehmen(app, choice);
    DruckflaecheLesen(app);
    SeiteEinpassen(app);
    VorschauAuffrischen(app);
}

void Command3D2_Click(M& app)  // close
{
    hideForm(app, app.etiquet);
    if (!app.Hauptmaske.Visible)
        showForm(app, app.Hauptmaske);
    VorschauSchliessen(app);
    LfnrAnzeigen(app);
}

void farbeWaehlen(M& app, Label& swatch)
{
    const ColorChoice choice = app.ui.ShowColor(swatch.BackColor);
    if (choice.cancelled)
        return;
    swatch.BackColor = choice.Color;
    EtikettenFormAbgleichen(app);
    VorschauAuffrischen(app);
}

void schriftWaehlen(M& app, bool bemerkung)
{
    auto& e = app.etiquet;
    TextBox& name = bemerkung ? e.InfoFontname : e.Text8;
    TextBox& groesse = bemerkung ? e.InfoFontsize : e.Text7;
    CheckBox& fett = bemerkung ? e.Check10 : e.Check1;
    CheckBox& kursiv = bemerkung ? e.Check20 : e.Check2;
    FontChoice start;
    start.Name = name.Text.isEmpty() ? QStringLiteral("ARIAL") : name.Text;
    start.Size = Val(groesse.Text) == 0 ? (bemerkung ? 10 : 8) : Val(groesse.Text);
    start.Bold = fett.checked();
    start.Italic = kursiv.checked();
    const FontChoice choice = app.ui.ShowFont(start);
    if (choice.cancelled)
        return;
    name.Text = choice.Name;
    name.Font.Name = choice.Name;
    groesse.Text = zahlText(choice.Size);
    fett.Value = choice.Bold ? 1 : 0;
    kursiv.Value = choice.Italic ? 1 : 0;
    VorschauAuffrischen(app);
}

void etiquet_Load(M& app)
{
    DruckflaecheLesen(app);
    auto& e = app.etiquet;
    e.Left = 0;
    e.Top = 0;
    const QStringList items = {"Vorname", "Vorname + Nachname", "Nachname", "Firma", "Stadt", "PLZ + Stadt",
                               "PLZ + Stadt + Stadteil", "PLZ + Stadt + Staat", "Stadteil", "PLZ", "Strasse",
                               "Strasse + Stadteil", "Telefon", "Celphone", "Land", "Titel", "Leer"};
    for (auto& [i, combo] : e.Combo1)
        for (const QString& item : items)
            combo.AddItem(item);
}

void etiquet_Activate(M& app)
{
    EtikettenFormAbgleichen(app);
    const QString zeichen = GetProfileString(QStringLiteral("Intl"), QStringLiteral("sDecimal"), QString());
    app.Hauptmaske.Label6.Caption = zeichen;
    app.DezimalZeichen = zeichen;
}

const QString kF1Text = QStringLiteral(
    " \rFunktions Tasten Belegung\r \rF2 = Etiketten Einstellung laden \rF3 = Etiketten Einstellung speichern \r"
    "F5 = Serienbriefliste aufrufen \rF6 = Drucken von einer Etikettenseite des aktuellen Eintrags\r"
    "F7 = Drucker einrichten \rF8 = Etiketten verlassen\r");

void etiquet_KeyDown(M& app, EventArgs& args)
{
    switch (args.KeyCode) {
    case vbKeyF1: app.ui.MsgBox(kF1Text); break;
    case vbKeyF2: Command1_Click(app); break;
    case vbKeyF3: Command2_Click(app); break;
    // F5 stands in the help text and does nothing.
    case vbKeyF6: EinzelseiteDrucken_Click(app); break;
    case vbKeyF7: Command4_Click(app); break;
    case vbKeyF8: Command3D2_Click(app); break;
    default: break;
    }
}

void hinweisZeigen(M& app, const Control& c) { app.etiquet.Panel3D2.Caption = c.Hint; }

}  // namespace

void VorschauAuffrischen(M& app)
{
    if (app.form4.Visible && app.etiquet.Label31.Caption != QLatin1String("MOVENDO"))
        VorschauZeichnen(app);
}

void registerLabelLayoutHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("etiquet");
    const QString click = QStringLiteral("Click");
    const QString change = QStringLiteral("Change");
    table.onForm(f, QStringLiteral("Load"), [](M& app, EventArgs&) { etiquet_Load(app); });
    table.onForm(f, QStringLiteral("Activate"), [](M& app, EventArgs&) { etiquet_Activate(app); });
    table.onForm(f, QStringLiteral("KeyDown"), etiquet_KeyDown);
    for (const char* name : kLaengenfelder) {
        const QString control = QString::fromLatin1(name);
        table.on(f, control, change, [control](M& app, EventArgs&) { Laengenfeld_Change(app, control); });
    }
    table.on(f, QStringLiteral("Quantidade"), change, [](M& app, EventArgs&) { Mengenfeld_Change(app, true); });
    table.on(f, QStringLiteral("colunas"), change, [](M& app, EventArgs&) { Mengenfeld_Change(app, false); });
    // The count bars write their value back into their box in both of their events.
    for (const char* event : {"Change", "Scroll"}) {
        const QString e = QString::fromLatin1(event);
        table.on(f, QStringLiteral("HScroll2"), e, [](M& app, EventArgs&) {
            app.etiquet.Quantidade.Text = QString::number(app.etiquet.HScroll2.Value);
            Mengenfeld_Change(app, true);
        });
        table.on(f, QStringLiteral("HScroll1"), e, [](M& app, EventArgs&) {
            app.etiquet.colunas.Text = QString::number(app.etiquet.HScroll1.Value);
            Mengenfeld_Change(app, false);
        });
        table.on(f, QStringLiteral("HScroll3"), e, [](M& app, EventArgs&) {
            app.etiquet.Label32.Caption = QString::number(app.etiquet.HScroll3.Value);
            VorschauAuffrischen(app);
        });
        table.on(f, QStringLiteral("HScroll4"), e, [](M& app, EventArgs&) {
            app.etiquet.Label33.Caption = QString::number(app.etiquet.HScroll4.Value);
            VorschauAuffrischen(app);
        });
        table.on(f, QStringLiteral("HScroll5"), e, [](M& app, EventArgs&) {
            app.etiquet.Label34.Caption = QString::number(app.etiquet.HScroll5.Value);
            VorschauAuffrischen(app);
        });
    }
    for (const char* name : {"Check1", "Check2", "Check3", "Check4", "Check5", "Check6", "Check7", "Check10", "Check20"})
        table.on(f, QString::fromLatin1(name), click, [](M& app, EventArgs&) {
            EtikettenFormAbgleichen(app);
            VorschauAuffrischen(app);
        });
    for (const char* name : {"Combo1", "Text7", "Text8", "InfoFontname", "InfoFontsize", "Text10", "Text15", "Text13", "paginas", "impborda", "impbordavertical"}) {
        const QString control = QString::fromLatin1(name);
        const QString event = control == QLatin1String("Combo1") ? click : change;
        table.on(f, control, event, [control](M& app, EventArgs&) {
            if (control == QLatin1String("impborda"))
                SeiteEinpassen(app);
            VorschauAuffrischen(app);
        });
    }
    table.on(f, QStringLiteral("Text8"), click, [](M& app, EventArgs&) { schriftWaehlen(app, false); });
    table.on(f, QStringLiteral("Text7"), click, [](M& app, EventArgs&) { schriftWaehlen(app, false); });
    table.on(f, QStringLiteral("InfoFontname"), click, [](M& app, EventArgs&) { schriftWaehlen(app, true); });
    table.on(f, QStringLiteral("InfoFontsize"), click, [](M& app, EventArgs&) { schriftWaehlen(app, true); });
    table.on(f, QStringLiteral("Campoforecolor"), click, [](M& app, EventArgs&) { farbeWaehlen(app, app.etiquet.Campoforecolor); });
    table.on(f, QStringLiteral("Infoforecolor"), click, [](M& app, EventArgs&) { farbeWaehlen(app, app.etiquet.Infoforecolor); });
    table.on(f, QStringLiteral("bordercolor"), click, [](M& app, EventArgs&) { farbeWaehlen(app, app.etiquet.bordercolor); });
    table.on(f, QStringLiteral("Command1"), click, Command1_Click);
    table.on(f, QStringLiteral("Command2"), click, Command2_Click);
    table.on(f, QStringLiteral("Command3"), click, EinzelseiteDrucken_Click);
    table.on(f, QStringLiteral("Command4"), click, Command4_Click);
    table.on(f, QStringLiteral("Command3D2"), click, Command3D2_Click);
    table.on(f, QStringLiteral("Command3D12"), click, Command3D12_Click);
    table.on(f, QStringLiteral("Label39"), click, Label39_Click);
    table.on(f, QStringLiteral("Label38"), click, Label38_Click);
    table.on(f, QStringLiteral("SSPanel1"), click, [](M& app, EventArgs&) { VorschauAuffrischen(app); });
    // The hints go to the status panel; Panel3D1 clears it.
    for (const char* name : {"Command1", "Command2", "Command4", "Command3D2", "Command3D12", "Text1", "Text2", "Text3", "Text4",
                             "Text5", "Text6", "tabh", "dishor", "disver", "Quantidade", "colunas", "Text7", "Text8",
                             "InfoFontname", "Infoforecolor", "Campoforecolor", "bordercolor", "Text13", "Text9",
                             "SSPanel1", "Label17", "Check1", "Check2"}) {
        const QString control = QString::fromLatin1(name);
        table.on(f, control, QStringLiteral("MouseMove"), [control](M& app, EventArgs&) {
            hinweisZeigen(app, *app.forms.control(QStringLiteral("etiquet.") + control).control);
        });
    }
    table.on(f, QStringLiteral("Combo1"), QStringLiteral("MouseMove"), [](M& app, EventArgs& a) {
        app.etiquet.Panel3D2.Caption = app.etiquet.Combo1[std::max(0, a.Index)].Hint;
    });
    // The form moves by dragging its body; meanwhile Label31 says so and the preview rests.
    table.onForm(f, QStringLiteral("MouseDown"), [](M& app, EventArgs& a) {
        app.etiquet.Label31.Caption = QStringLiteral("MOVENDO");
        app.etiquet.Label31.Tag = QStringLiteral("%1 %2").arg(a.X).arg(a.Y);
    });
    table.onForm(f, QStringLiteral("MouseMove"), [](M& app, EventArgs& a) {
        auto& e = app.etiquet;
        const QStringList start = e.Label31.Tag.split(QLatin1Char(' '));
        if (e.Label31.Caption != QLatin1String("MOVENDO") || start.size() != 2)
            return;
        e.Left += int(a.X - start[0].toDouble());
        e.Top += int(a.Y - start[1].toDouble());
    });
    table.onForm(f, QStringLiteral("MouseUp"), [](M& app, EventArgs&) {
        app.etiquet.Label31.Caption.clear();
        app.etiquet.Label31.Tag.clear();
        VorschauAuffrischen(app);
    });
    table.on(f, QStringLiteral("Panel3D1"), QStringLiteral("MouseMove"), [](M& app, EventArgs&) {
        app.etiquet.Panel3D2.Caption = QStringLiteral(" ");
    });
}

}  // namespace mk
