#include "printing/serial_letter_list.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/text_files.h"
#include "printing/label_printing.h"
#include "printing/print_preview.h"
#include "search/type_marks.h"
#include "search/type_naming.h"
#include "settings/form_places.h"

#include <optional>
#include <vector>

namespace mk {

namespace {

using M = Merkkartelle;

struct Listenoption {
    const char* spalte;
    const char* layout;
    // The columns of the line: column names joined by "+" read as one text joined by a blank.
    const char* teile[4];
};

// Four-part layouts give their last two parts to the third column.
const Listenoption kOptionen[29] = {
    {"Telex", "Imagen / Vorname-Nachname /  Firma", {"Telex", "Vorname+Nachname", "Firma"}},
    {"Schluessel", "Schluessel / Vorname-Nachname / Firma", {"Schluessel", "Vorname+Nachname", "Firma"}},
    {"Titel", "Titel / Vorname-Nachname / Firma", {"Titel", "Vorname+Nachname", "Firma"}},
    {"Firma", "Firma / Abteilung / Telefon", {"Firma", "Departament", "Telefon"}},
    {"Departament", "Abteilung / Firma / Telefon", {"Departament", "Firma", "Telefon"}},
    {"Nachname", "Nachname / Vorname / Telefax / Strasse", {"Nachname", "Vorname", "Telefax", "Strasse"}},
    {"Vorname", "Vorname-Nachname / Firma / Telefon / Strasse", {"Vorname+Nachname", "Firma", "Telefon", "Strasse"}},
    {"Strasse", "Strasse / Firma / Abteilung / Vorname-Nachname", {"Strasse", "Firma", "Departament", "Vorname+Nachname"}},
    {"Staat", "Staat / Land / Vorname-Nachname", {"Staat", "Land", "Vorname+Nachname"}},
    {"Stadteil", "Stadteil / Stadt / Vorname-Nachname", {"Stadteil", "Stadt", "Vorname+Nachname"}},
    {"PLZ", "PLZ / Stadt / Firma", {"PLZ", "Stadt", "Firma"}},
    {"Stadt", "Stadt / Vorname-Nachname / Telefon", {"Stadt", "Vorname+Nachname", "Telefon"}},
    {"Landescod", "Landescod / Land / Telefon / Vorname-Nachname", {"Landescod", "Land", "Telefon", "Vorname+Nachname"}},
    {"Land", "Land / Vorname-Sobrenme / Landescod-Telefon", {"Land", "Vorname+Nachname", "Landescod+Telefon"}},
    {"Geburtstag", "Geburtstag / Vorname-Nachname / Titel", {"Geburtstag", "Vorname+Nachname", "Titel"}},
    {"Telefon", "Telefon / Vorname-Nachname / Stadt", {"Telefon", "Vorname+Nachname", "Stadt"}},
    {"Telefax", "Telefax / Vorname-Nachname / Stadt", {"Telefax", "Vorname+Nachname", "Stadt"}},
    {"Celphone", "Celphone / Vorname-Nachname / Staat", {"Celphone", "Vorname+Nachname", "Staat"}},
    {"", "", {"Vorname", "Nachname", "Firma"}},
    {"Chamada", "", {"Vorname", "Nachname", "Firma"}},  // sorts, with the design layout
    {"Typ", "Typ / Vorname-Nachname / Firma", {"Typ", "Vorname+Nachname", "Firma"}},
    {"Laufendenummer", "Laufendenummer / Vorname-Nachname / Firma", {"Laufendenummer", "Vorname+Nachname", "Firma"}},
    {"BankLeitZahl", "BankLeitZahl / Vorname-Nachname / Firma", {"BankLeitZahl", "Vorname+Nachname", "Firma"}},
    {"Kontonummer", "Kontonummer / Vorname-Nachname / Firma", {"Kontonummer", "Vorname+Nachname", "Firma"}},
    {"Bank", "Bank / Vorname-Nachname / Firma", {"Bank", "Vorname+Nachname", "Firma"}},
    {"Staatsregister", "Inscrição estadual / Firma / Telefon", {"Staatsregister", "Firma", "Telefon"}},
    {"Firmenregisternummer", "Firmenregisternummer / Firma / Telefon", {"Firmenregisternummer", "Firma", "Telefon"}},
    {"Passportnummer", "Passportnummer / Vorname-Nachname  / Telefon", {"Passportnummer", "Vorname+Nachname", "Telefon"}},
    {"Postfach", "Postfach / Vorname-Nachname  / Telefon", {"Postfach", "Vorname+Nachname", "Telefon"}},
};

const Formplatz kListenplatz{52, 53, 54, 55};

int gewaehlteOption(const M& app)
{
    for (const auto& [i, option] : app.mala.Option3D1)
        if (option.Value)
            return i;
    return -1;
}

// The fields of one part of a line ("Vorname+Nachname" is two), looked up once per build;
// a column the table lacks reads as empty.
using Teilfelder = std::vector<std::optional<Field>>;
Teilfelder teilfelder(Recordset& satz, const QString& teil)
{
    Teilfelder felder;
    for (const QString& name : teil.split(QLatin1Char('+'), Qt::SkipEmptyParts)) {
        std::optional<Field> feld;
        underIgnoredErrors([&] { feld = satz.Fields(name); });
        felder.push_back(feld);
    }
    return felder;
}

QString spaltenwert(const Teilfelder& felder)
{
    QString wert;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        if (i)
            wert += QLatin1Char(' ');
        if (felder[i])
            underIgnoredErrors([&] { wert += felder[i]->text(); });
    }
    return wert;
}

void meldungZeigen(M& app, const QString& text, long farbe)
{
    loadForm(app, app.Message);
    app.Message.Label1.Caption = text;
    app.Message.Label1.ForeColor = farbe;
    app.Message.Timer1.Enabled = false;
    app.Message.Label3.Visible = true;
    showForm(app, app.Message);
}

// The count in Message: every row at first, then every 100th, so long builds stay quick.
void zaehlerZeigen(M& app, long n)
{
    if (n < 500 || n % 100 == 0)
        app.Message.Label3.Caption = QString::number(n);
}

}  // namespace

QString listenSortierspalte(int option)
{
    return option >= 0 && option <= 28 ? QString::fromLatin1(kOptionen[option].spalte) : QString();
}

QString listenLayout(int option)
{
    return option >= 0 && option <= 28 ? QString::fromUtf8(kOptionen[option].layout) : QString();
}

QString spaltenText(const QString& text, int breite, const QString& fuell)
{
    if (text.size() >= breite)
        return text.left(breite);
    if (fuell.isEmpty())
        return text;
    return text + QString(breite - text.size(), fuell[0]);
}

int spaltenbreite(M& app, int spalte)
{
    const TextBox* boxen[] = {&app.config.Text12, &app.config.Text13, &app.config.Text14};
    const int breite = int(Val(boxen[spalte]->Text));
    return breite == 0 ? 20 : breite;
}

QString fuellzeichen(M& app) { return app.config.Text8.Text; }

void ListeAufbauen(M& app)
{
    auto& f = app.mala;
    auto& liste = f.Schnelleauswahlliste;
    if (!app.Kartendatenbank || !app.Kartensatz) {
        app.ui.MsgBox(QStringLiteral("Keine Datenbank geladen"));
        return;
    }
    // No option chosen yet: the design layout, in the order the cursor has (as option 18).
    const int option = gewaehlteOption(app) < 0 ? 18 : gewaehlteOption(app);
    const QString spalte = listenSortierspalte(option);
    const bool absteigend = f.AZCHECK.Value;
    QString sortierung = spalte.isEmpty() ? QString()
                                          : QLatin1Char('[') + spalte + QLatin1Char(']') + (absteigend ? QStringLiteral(" DESC") : QString());
    if (option == 13)
        sortierung = absteigend ? QStringLiteral("[Land] DESC") : QStringLiteral("[Pais]");

    const QString selektion = app.Hauptmaske.Selektiert.Caption;
    const bool ohneSelektion = selektion == QLatin1String("Keine Selektion") || selektion == QLatin1String("Selektierung deaktiviert");
    RecordsetPtr klon;
    underIgnoredErrors([&] { klon = kartensatz(app).clone(); });
    if (!klon)
        return;
    if (!sortierung.isEmpty())
        klon->Sort = sortierung;
    QString typ;
    if (ohneSelektion) {
        klon->Filter = TypwahlFilter(app);
        typ = f.ComboTypenliste.ListIndex >= 0 ? f.ComboTypenliste.List(f.ComboTypenliste.ListIndex) : QString();
        f.ComboTypenliste.Enabled = true;
        f.Command2.Enabled = true;
    } else {
        f.Label12.Caption = app.Selektionsfilter.isEmpty() ? QStringLiteral("Multiselektierung") : app.Selektionsfilter;
        f.Label12.ForeColor = colour::Red;
        f.Frame3D2.Caption = kSelektierungAktiv;
        f.ComboTypenliste.Enabled = false;
        f.Command2.Enabled = false;
    }
    RecordsetPtr satz;
    underIgnoredErrors([&] { satz = klon->createDynaset(); });
    if (!satz)
        underIgnoredErrors([&] {  // a sort on a column the table lacks: the clone's order
            klon->Sort.clear();
            satz = klon->createDynaset();
        });

    const QString richtung = absteigend ? QStringLiteral(" Z - A") : QStringLiteral(" A - Z");
    const QString kopf = ohneSelektion ? QStringLiteral("Serienbrief wird vorbereitet ")
                                       : QStringLiteral("Serienbrief mit Filter wird vorbereitet: ") + selektion;
    meldungZeigen(app, kopf + QStringLiteral("\r\nSortierung: ") + spalte + richtung + QStringLiteral("\r\nTyp: ") + typ
                           + QStringLiteral("\r\nAguarde..."),
                  rgb(196, 0, 0));

    liste.Clear();
    const Listenoption& art = kOptionen[option];
    const QString fuell = fuellzeichen(app);
    const int breite[3] = {spaltenbreite(app, 0), spaltenbreite(app, 1), spaltenbreite(app, 2)};
    QString teile[3];
    long n = 0;
    if (satz && satz->RecordCount() > 0) {
        std::vector<Teilfelder> spalten;
        for (const char* teil : art.teile)
            spalten.push_back(teil ? teilfelder(*satz, QString::fromLatin1(teil)) : Teilfelder{});
        const Teilfelder firma = teilfelder(*satz, QStringLiteral("Firma"));
        const Teilfelder nummerFeld = teilfelder(*satz, QStringLiteral("Laufendenummer"));
        for (satz->MoveFirst(); !satz->IsEOF(); satz->MoveNext()) {
            zaehlerZeigen(app, ++n);
            long nummer = 0;
            bool ohneFirma = false;
            underIgnoredErrors([&] {
                nummer = long(Val(spaltenwert(nummerFeld)));
                ohneFirma = firma[0] && firma[0]->isNull();
            });
            QString zeile;
            if (ohneFirma) {
                // A card without a company keeps the columns of the row before, and a marker.
                zeile = teile[0] + QLatin1Char('\t') + teile[1] + QLatin1Char('\t') + teile[2] + QStringLiteral(" <<<  >>>");
            } else {
                QString roh[3];
                for (int i = 0; i < 3; ++i)
                    roh[i] = spaltenwert(spalten[std::size_t(i)]);
                if (art.teile[3])
                    roh[2] += QLatin1Char(' ') + spaltenwert(spalten[3]);
                for (int i = 0; i < 3; ++i)
                    teile[i] = spaltenText(roh[i], breite[i], fuell);
                zeile = teile[0] + QLatin1Char('\t') + teile[1] + QLatin1Char('\t') + teile[2];
            }
            const int index = liste.AddItem(zeile);
            liste.setItemData(index, nummer);
        }
        satz->close();
    }
    f.Label3.Caption = QString::number(liste.ListCount());
    f.Panel3D1.Visible = false;
    f.Label14.Caption = kListeAktuell;
    if (f.Visible) {
        long aktuell = 0;
        underIgnoredErrors([&] { aktuell = long(Val(kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text())); });
        for (int i = 0; i < liste.ListCount(); ++i)
            if (liste.ItemData(i) == aktuell)
                liste.ListIndex = i;
    }
    unloadForm(app, app.Message);
}

ListBox& druckliste(M& app) { return app.malasp.Visible ? app.malasp.Schnelleauswahlliste : app.mala.Schnelleauswahlliste; }

namespace {

bool teilmodus(const M& app) { return app.malaview.Visible && app.malaview.Label7.Caption == QLatin1String("Teile"); }

// A click on a line: the card comes up, on the mask or, in print mode, into DruckFelder.
void Listenzeile_Click(M& app, ListBox& liste, Label& modus)
{
    if (liste.ListIndex < 0)
        return;
    if (teilmodus(app))
        app.malaview.Label6.Caption = QString::number(liste.ListIndex + 1 - long(Val(app.malaview.Text1.Text)));
    app.mala.Label4.Caption = QString::number(liste.ListIndex + 1);
    app.mala.noat1.Caption = QString::number(liste.ItemData(liste.ListIndex));
    underIgnoredErrors([&] {
        kartensatz(app).FindFirst(QStringLiteral("[Laufendenummer] LIKE ") + QString::number(liste.ItemData(liste.ListIndex)));
    });
    if (modus.Caption == QLatin1String("DRUCK")) {
        DruckFelderLaden(app);
    } else {
        app.Hauptmaske.Label9.Caption = kReplayOn;
        DatenInMaske(app);
    }
}

void Listenzeile_DblClick(M& app, ListBox& liste, const QString& erste)
{
    if (!teilmodus(app))
        return;
    app.malaview.Text1.Text = QString::number(liste.ListIndex);
    app.ui.MsgBox(erste + QStringLiteral("\rKlicken Sie auf den letzten zu druckenden Eintrag"));
}

void knoepfeFreigeben(M& app, bool frei)
{
    auto& v = app.malaview;
    for (Button* b : {&v.Command1, &v.Command3, &v.Command4, &v.Command5, &v.Command6})
        b->Enabled = frei;
    if (frei) {
        v.Command5.Enabled = v.Label7.Caption == QLatin1String("Teile");
        v.Command6.Enabled = !v.Command5.Enabled;
    }
    v.Command2.Enabled = !frei;
    auto& m = app.mala;
    for (Button* b : {&m.SSCommand1, &m.Command1, &m.Command3, &m.Command4, &m.Command3D1, &m.Command3D3, &m.AZCHECK})
        b->Enabled = frei;
    m.ComboTypenliste.Enabled = frei;
    m.Command3D2.Visible = !frei;
    for (Label* l : {&m.Label18, &m.Label5, &m.Label19, &m.Label17})
        l->Visible = !frei;
}

}  // namespace

void ListenetikettenDrucken(M& app, bool vorschau)
{
    auto& v = app.malaview;
    ListBox& liste = druckliste(app);
    Label& modus = app.malasp.Visible ? app.malasp.Label9 : app.mala.Label9;
    DruckFelderLaden(app);
    RecordingSurface* flaeche = nullptr;
    if (vorschau) {
        flaeche = &app.printing.form(QStringLiteral("malaview"));
        flaeche->beginDrawing(QStringLiteral("malaview"));
        flaeche->Cls();
    }
    Surface& s = vorschau ? static_cast<Surface&>(*flaeche) : app.printing.printer();
    knoepfeFreigeben(app, false);
    v.Label3.Caption.clear();

    const Etikettenmasse m = EtikettenmasseLesen(app.etiquet);
    app.BogenHoehe = Bogenhoehe(app.etiquet);
    app.BogenHoeheKopie = app.BogenHoehe;
    const long S = long(std::nearbyint(567 * app.BogenHoehe));
    Rollenstand stand;
    v.Label1.Caption = QString::number(stand.seite);
    const long anfang = long(Val(v.Text1.Text));
    const long anzahl = long(Val(v.Text2.Text));
    const double seiteHoch = Val(app.etiquet.Text11.Text) * 567;
    const double seiteBreit = Val(app.etiquet.Text14.Text) * 567;
    const bool druckmodusVorher = modus.Caption == QLatin1String("DRUCK");
    modus.Caption = QStringLiteral("DRUCK");  // the clicks fill DruckFelder, not the mask
    for (long n = 1;; ++n) {
        app.ui.DoEvents();
        if (v.Label3.Caption == QLatin1String("STOP"))
            break;
        if (n > liste.ListCount() - anfang)
            break;
        if (anzahl != 0 && n > anzahl)
            break;
        liste.ListIndex = int(anfang + n - 1);
        Listenzeile_Click(app, liste, modus);
        const Etikettenplatz p = naechsterPlatz(stand, m, app.BogenHoeheKopie, S, n);
        if (p.neueSeite) {
            if (vorschau)
                s.Cls();
            else
                s.NewPage();
            v.Label1.Caption = QString::number(stand.seite);
        }
        if (p.neueReihe)
            app.mala.Label5.Caption = QString::number(stand.r);
        if (vorschau) {
            s.ForeColor = rgb(255, 0, 0);
            s.Line(0, 0, 0, seiteHoch);
            s.Line(seiteBreit, 0, 0, seiteHoch);
            s.Line(0, 0, seiteBreit, 0);
            s.Line(0, seiteHoch, seiteBreit, 0);
        }
        EtikettZeichnen(app, s, m, p.x, p.y, Etikettenart::Liste);
    }
    if (!vorschau)
        s.EndDoc();
    if (!druckmodusVorher)
        modus.Caption.clear();
    knoepfeFreigeben(app, true);
    if (vorschau && app.printing.formChanged)
        app.printing.formChanged(QStringLiteral("malaview"));
}

namespace {

// ---- mala ----------------------------------------------------------------------------------

void mala_Load(M& app)
{
    auto& f = app.mala;
    const auto slot = [&](int n) { return app.Einstellungsliste[std::size_t(n)]; };
    FormplatzNehmen(app, f, kListenplatz);
    f.Label7.Caption = slot(83).isEmpty() ? f.Label7.Caption : slot(83);
    for (auto& [i, option] : f.Option3D1) {
        option.Caption = listenSortierspalte(i);
        option.Visible = !option.Caption.isEmpty();
        option.Value = !f.Label7.Caption.isEmpty() && option.Caption == f.Label7.Caption;
    }
    if (gewaehlteOption(app) >= 0)
        f.Label20.Caption = listenLayout(gewaehlteOption(app));
    // The types can be chosen before they were ever named; no stored choice means no filter.
    if (f.ComboTypenliste.ListCount() == 0) {
        typenlisteFuellen(app);
        if (app.Einstellungsliste[190].isEmpty())
            f.ComboTypenliste.ListIndex = -1;
    }
}

void mala_Activate(M& app)
{
    auto& f = app.mala;
    if (f.Width < 500 && f.Height < 500) {
        f.Width = 5796;
        f.Height = 7200;
    }
    auto& liste = f.Schnelleauswahlliste;
    if (liste.BackColor == liste.ForeColor) {
        liste.BackColor = colour::White;
        liste.ForeColor = colour::Black;
    }
    if (f.Label14.Caption == kListeVeraltet || f.Label14.Caption == kListeErst)
        ListeAufbauen(app);
}

void Option3D1_Click(M& app, int index)
{
    auto& f = app.mala;
    for (auto& [i, option] : f.Option3D1)
        option.Value = i == index;
    if (f.Label14.Caption == kListeErst)
        return;
    f.Label7.Caption = listenSortierspalte(index);
    if (!listenLayout(index).isEmpty())
        f.Label20.Caption = listenLayout(index);
    ListeAufbauen(app);
}

void ComboTypenliste_Click(M& app)
{
    if (app.mala.Label14.Caption != kListeErst)
        ListeAufbauen(app);
}

void SSCommand1_Click(M& app)  // the plain print of the list
{
    auto& f = app.mala;
    auto& liste = f.Schnelleauswahlliste;
    Surface& s = app.printing.printer();
    const int anzahl = liste.ListCount();
    if (app.ui.MsgBox(QStringLiteral("Sollen ") + QString::number(anzahl) + QStringLiteral(" Eintrage gedruckt werden ?\r \r"),
                      vbYesNo, QStringLiteral("Aktuelle Liste drucken")) != vbYes) {
        s.EndDoc();
        return;
    }
    s.FontName = QStringLiteral("Arial");
    s.FontSize = 8;
    s.Print();
    s.ForeColor = f.Check1.checked() ? liste.ForeColor : colour::Black;
    s.FontName = liste.Font.Name;
    s.FontSize = liste.Font.Size;
    s.FontBold = liste.Font.Bold;
    s.FontItalic = liste.Font.Italic;
    s.Print();
    for (int i = 0; i < anzahl; ++i) {
        liste.ListIndex = i;
        Listenzeile_Click(app, liste, f.Label9);
        s.Print(liste.List(i));
        // The form's own CurrentY is asked, not the printer's: page ends are the printer's.
    }
    s.EndDoc();
}

void Command3D1_Click(M& app)  // close
{
    auto& f = app.mala;
    auto& e = app.Einstellungsliste;
    FormplatzMerken(app, f, kListenplatz);
    e[83] = f.Label7.Caption;
    e[190] = QString::number(f.ComboTypenliste.ListIndex);
    hideForm(app, f);
    showForm(app, app.Hauptmaske);
}

void druckmodusBeginnen(M& app, Label& modus)
{
    modus.Caption = QStringLiteral("DRUCK");
    showForm(app, app.malaview);
    hideForm(app, app.Hauptmaske);
}

void druckmodusBeenden(M& app, Label& modus, const QString& form)
{
    unloadForm(app, app.malaview);
    modus.Caption.clear();
    DatenInMaske(app);
    if (app.form4.Loaded)
        showForm(app, app.form4);
    showForm(app, form);
}

const QString kMalaF1 = QStringLiteral(
    " \rTastaturbelegung\r \rF2 = Schrift und Farbe der Liste wählen \rF3 = Serienbrief drucken \r"
    "F4 = Etiketten Einstellung \rF6 = Mala de imagens \rF7 = Dialer \rF9 = Atualizar lista \r"
    "F5 = SerienListe schliessen");

void schriftDerListe(M& app)
{
    auto& liste = app.mala.Schnelleauswahlliste;
    const FontChoice choice = app.ui.ShowFont({false, liste.Font.Name, liste.Font.Size, liste.Font.Bold, liste.Font.Italic});
    if (choice.cancelled)
        return;
    liste.Font = FontSpec{choice.Name, choice.Size, choice.Bold, choice.Italic};
    app.mala.Label11.Caption = choice.Name;
    app.mala.Label10.Caption = QString::number(choice.Size);
}

void farbeDerListe(M& app, bool hintergrund)
{
    auto& liste = app.mala.Schnelleauswahlliste;
    const ColorChoice choice = app.ui.ShowColor(hintergrund ? liste.BackColor : liste.ForeColor);
    if (choice.cancelled)
        return;
    (hintergrund ? liste.BackColor : liste.ForeColor) = choice.Color;
    for (Control* c : std::initializer_list<Control*>{&app.mala.Command1, &app.mala.Command3, &app.mala.Command4, &app.mala.Check1})
        c->Visible = false;
}

void mala_KeyDown(M& app, EventArgs& args)
{
    switch (args.KeyCode) {
    case vbKeyF1: app.ui.MsgBox(kMalaF1); break;
    case vbKeyF2: schriftDerListe(app); break;
    case vbKeyF3: SSCommand1_Click(app); break;
    case vbKeyF4: EtikettenKonfigurieren(app); break;
    case vbKeyF5: Command3D1_Click(app); break;
    case vbKeyF9: ListeAufbauen(app); break;
    default: break;
    }
}

// ---- malaview ------------------------------------------------------------------------------

QString listenanzahl(M& app) { return app.malasp.Visible ? app.malasp.Label3.Caption : app.mala.Label3.Caption; }

void malaview_Command1_Click(M& app)  // preview
{
    if (teilmodus(app))
        app.malaview.Text2.Text = app.malaview.Label6.Caption;
    ListenetikettenDrucken(app, true);
}

void malaview_Command4_Click(M& app)  // print
{
    auto& v = app.malaview;
    if (Val(v.Text2.Text) <= 0) {
        const QString frage = QStringLiteral("Drucken ") + listenanzahl(app)
                              + QStringLiteral(" Einträge \r \r            \rJeden Eintrag einmal drucken ?.\r");
        if (app.ui.MsgBox(frage, vbYesNo, QStringLiteral("Drucken")) != vbYes)
            return;
    }
    v.Label1.Visible = v.Label2.Visible = false;
    if (teilmodus(app))
        v.Text2.Text = v.Label6.Caption;
    ListenetikettenDrucken(app, false);
    v.Label1.Visible = v.Label2.Visible = true;
}

void malaview_Command3_Click(M& app)  // close
{
    auto& v = app.malaview;
    v.Label3.Caption.clear();
    v.Text1.Text = QStringLiteral("0");
    v.Text2.Text.clear();
    showForm(app, app.Hauptmaske);
    const bool geburtstag = app.malasp.Visible;
    unloadForm(app, v);
    Label& modus = geburtstag ? app.malasp.Label9 : app.mala.Label9;
    modus.Caption.clear();
    showForm(app, geburtstag ? QStringLiteral("malasp") : QStringLiteral("mala"));
}

void malaview_Command5_Click(M& app)  // the whole list
{
    auto& v = app.malaview;
    v.Text1.Text = QStringLiteral("0");
    v.Text2.Text.clear();
    v.Label7.Caption.clear();
    v.Command5.Enabled = false;
    v.Command6.Enabled = true;
}

void malaview_Command6_Click(M& app)  // part of the list
{
    auto& v = app.malaview;
    v.Label7.Caption = QStringLiteral("Teile");
    v.Text1.Text = QStringLiteral("0");
    v.Text2.Text.clear();
    v.Command5.Enabled = true;
    v.Command6.Enabled = false;
    showForm(app, app.malasp.Visible ? QStringLiteral("malasp") : QStringLiteral("mala"));
}

void stop(M& app) { app.malaview.Label3.Caption = QStringLiteral("STOP"); }

}  // namespace

void registerSerialLetterHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("mala");
    const QString click = QStringLiteral("Click");
    table.onForm(f, QStringLiteral("Load"), [](M& app, EventArgs&) { mala_Load(app); });
    table.onForm(f, QStringLiteral("Activate"), [](M& app, EventArgs&) { mala_Activate(app); });
    table.onForm(f, QStringLiteral("KeyDown"), mala_KeyDown);
    table.on(f, QStringLiteral("Option3D1"), click, Option3D1_Click);
    table.on(f, QStringLiteral("AZCHECK"), click, [](M& app, EventArgs&) { ListeAufbauen(app); });
    table.on(f, QStringLiteral("ComboTypenliste"), click, ComboTypenliste_Click);
    table.on(f, QStringLiteral("Schnelleauswahlliste"), click, [](M& app, EventArgs&) {
        Listenzeile_Click(app, app.mala.Schnelleauswahlliste, app.mala.Label9);
    });
    table.on(f, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("DblClick"), [](M& app, EventArgs&) {
        Listenzeile_DblClick(app, app.mala.Schnelleauswahlliste, QStringLiteral("Der Anfang der zu druckenden Liste wurde definiert"));
    });
    table.on(f, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("MouseMove"), [](M& app, EventArgs&) {
        if (app.malaview.Visible)
            app.malaview.Panel3D1.Caption = QStringLiteral("Clique da mala direta para determinar o fim da impressão");
    });
    table.on(f, QStringLiteral("SSCommand1"), click, SSCommand1_Click);
    table.on(f, QStringLiteral("Command3D1"), click, Command3D1_Click);
    table.on(f, QStringLiteral("Command3D2"), click, stop);
    table.on(f, QStringLiteral("Command3D3"), click, [](M& app, EventArgs&) { druckmodusBeenden(app, app.mala.Label9, QStringLiteral("mala")); });
    table.on(f, QStringLiteral("Command3d4"), click, [](M& app, EventArgs&) { druckmodusBeginnen(app, app.mala.Label9); });
    table.on(f, QStringLiteral("Command1"), click, schriftDerListe);
    table.on(f, QStringLiteral("Command3"), click, [](M& app, EventArgs&) { farbeDerListe(app, true); });
    table.on(f, QStringLiteral("Command4"), click, [](M& app, EventArgs&) { farbeDerListe(app, false); });
    table.on(f, QStringLiteral("Command2"), click, [](M& app, EventArgs&) { app.mala.Panel3D1.Visible = !app.mala.Panel3D1.Visible; });

    const QString v = QStringLiteral("malaview");
    table.on(v, QStringLiteral("Command1"), click, malaview_Command1_Click);
    table.on(v, QStringLiteral("Command2"), click, [](M& app, EventArgs&) {
        stop(app);
        app.malaview.Command2.Enabled = false;
    });
    table.on(v, QStringLiteral("Command3"), click, malaview_Command3_Click);
    table.on(v, QStringLiteral("Command4"), click, malaview_Command4_Click);
    table.on(v, QStringLiteral("Command5"), click, malaview_Command5_Click);
    table.on(v, QStringLiteral("Command6"), click, malaview_Command6_Click);
    table.onForm(v, QStringLiteral("KeyDown"), [](M& app, EventArgs& a) {
        if (a.KeyCode == vbKeyF1)
            app.ui.MsgBox(QStringLiteral(" \rFunções do teclado para a previsão\r \rEscape para sair \r"));
        else if (a.KeyCode == vbKeyEscape)
            malaview_Command3_Click(app);
    });
    table.on(v, QStringLiteral("Command1"), QStringLiteral("MouseMove"), [](M& app, EventArgs&) {
        app.malaview.Panel3D1.Caption = teilmodus(app) ? QStringLiteral("Druckvorschau Teile") : QStringLiteral("Druckvorschau alle Einträge");
    });
    table.on(v, QStringLiteral("Command2"), QStringLiteral("MouseMove"), [](M& app, EventArgs&) {
        if (teilmodus(app))
            app.malaview.Panel3D1.Caption = QStringLiteral("Vorschau abbrechen");
    });
    table.on(v, QStringLiteral("Command4"), QStringLiteral("MouseMove"), [](M& app, EventArgs&) {
        app.malaview.Panel3D1.Caption = teilmodus(app) ? QStringLiteral("Ausschnitt der Liste drucken") : QStringLiteral("Gesammte Liste drucken");
    });
}

}  // namespace mk
