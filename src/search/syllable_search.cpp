#include "search/syllable_search.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/focus.h"
#include "card/mask_transfer.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "search/grid_search.h"
#include "search/search_fields.h"

#include <array>

namespace mk {

namespace {

// The columns of the options, in the order of their captions.
const std::array<const char*, 31> kSpalten = {
    "Titel", "Firma", "Departament", "Nachname", "Vorname", "Strasse", "Staat", "Stadteil",
    "PLZ", "Stadt", "Landescod", "Land", "Schluessel", "Geburtstag", "Telefon", "Telefax",
    "Telex", "Celphone", "Bemerkung", "Chamada", "Typ", "Laufendenummer", "BankLeitZahl",
    "Kontonummer", "Bank", "Texto", "Firmenregisternummer", "Staatsregister",
    "Passportnummer", "Postfach", "CampoM2",
};
const QString kNummerFuellung = QStringLiteral("     ");

int gewaehlteOption(const Merkkartelle& app)
{
    for (const auto& [index, option] : app.search.Option3D1)
        if (option.Value)
            return index;
    return -1;
}

QString textOderStern(Recordset& satz, const QString& spalte)
{
    QString text = QStringLiteral("*");
    underIgnoredErrors([&] {
        const QVariant v = satz.Fields(spalte).Value();
        if (v.isValid())
            text = v.toString();
    });
    return text;
}

// "Vorname (Nachname )": the person as the list shows it, "*" for a missing part.
QString person(Recordset& satz)
{
    return textOderStern(satz, QStringLiteral("Vorname")) + QStringLiteral(" (")
        + textOderStern(satz, QStringLiteral("Nachname")) + QStringLiteral(" ) ");
}

void hinweisErneuern(Merkkartelle& app, const QString& suche, const QString& liste, const QString& textWort)
{
    auto& f = app.search;
    f.Label7.Caption = suche + f.Label32.Caption;
    f.Text2.Hint = liste + f.Label32.Caption + textWort + f.Text2.Text;
    f.Text2.ToolTipText = f.Text2.Hint;
}

}  // namespace

QString Silbenspalte(int option)
{
    return option >= 0 && option < int(kSpalten.size()) ? QString::fromLatin1(kSpalten[std::size_t(option)]) : QString();
}

QString Silbenbedingung(const QString& spalte, const QString& teil)
{
    // The text stands for itself: the wildcards of LIKE are bracketed, quotes doubled.
    QString muster;
    for (const QChar c : teil) {
        if (c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('#') || c == QLatin1Char('['))
            muster += QLatin1Char('[') + c + QLatin1Char(']');
        else if (c == QLatin1Char('\''))
            muster += QStringLiteral("''");
        else
            muster += c;
    }
    QString bedingung = QLatin1Char('[') + spalte + QStringLiteral("] LIKE '*") + muster + QStringLiteral("*'");
    // A Null field reads as "*", which holds the text "*".
    if (SilbeEnthalten(QStringLiteral("*"), teil))
        bedingung += QStringLiteral(" OR [") + spalte + QStringLiteral("] IS NULL");
    return bedingung;
}

bool SilbeEnthalten(const QString& text, const QString& teil)
{
    // Mid(text, i, n) compared at each place: a part longer than the text never hits.
    if (teil.isEmpty() || teil.size() > text.size())
        return false;
    return text.contains(teil, Qt::CaseInsensitive);
}

void menusilabas_Click(Merkkartelle& app) { showForm(app, app.search); }

void search_Load(Merkkartelle& app)
{
    // The surname is searched until another field is chosen.
    auto& f = app.search;
    f.Option3D1[3].Value = true;
    f.Label32.Caption = f.Option3D1[3].Caption;
    f.Label7.Caption = QStringLiteral("Suche Text in Feld: ") + f.Label32.Caption;
}

void search_Command6_Click(Merkkartelle& app)
{
    auto& f = app.search;
    const QString teil = f.Text2.Text;
    if (teil.isEmpty() || f.Command3.Enabled)
        return;
    const QString spalte = Silbenspalte(gewaehlteOption(app));
    f.Label4.Caption = QStringLiteral("ANFANG");
    f.Command3.Enabled = true;
    f.Label1.Caption = QStringLiteral("Suche...");
    f.Label2.Caption = QStringLiteral("0");
    f.Label3.Caption = QStringLiteral("0");
    f.List1.Clear();

    // The walk counts every card and lets other events in at each; the store finds the
    // cards that hold the text, so that only those are read.
    long treffer = 0;
    underIgnoredErrors([&] {
        const RecordsetPtr karten = kartensatz(app).clone();
        const RecordsetPtr fund = kartensatz(app).clone();
        const long anzahl = karten->RecordCount();
        long naechster = -1;
        const QString kriterium = spalte.isEmpty() ? QString() : Silbenbedingung(spalte, teil);
        if (!kriterium.isEmpty() && anzahl > 0)
            underIgnoredErrors([&] {
                fund->FindFirst(kriterium);
                naechster = fund->NoMatch() ? -1 : fund->AbsolutePosition();
            });
        for (long karte = 0; karte < anzahl; ++karte) {
            app.ui.DoEvents();
            if (karte == naechster) {
                f.Label1.Caption = QStringLiteral("Füge Eintag zur Liste hinzu...");
                const QString nummer = textOderStern(*fund, QStringLiteral("Laufendenummer"));
                const QString gepolstert = nummer + kNummerFuellung.left(std::max(0, int(kNummerFuellung.size() - nummer.size())));
                f.List1.Items.push_back(ListItem{gepolstert + QLatin1Char(' ') + person(*fund) + textOderStern(*fund, spalte),
                                                 long(Val(nummer))});
                f.Label3.Caption = QString::number(++treffer);
                naechster = -1;
                underIgnoredErrors([&] {
                    fund->FindNext(kriterium);
                    naechster = fund->NoMatch() ? -1 : fund->AbsolutePosition();
                });
            }
            f.Label2.Caption = QString::number(karte + 1);
            if (f.Label4.Caption == kStop)
                break;
        }
    });
    f.Label4.Caption = QStringLiteral("FIM");
    f.Label1.Caption = QStringLiteral("Suche beendet.");
    f.Command3.Enabled = false;
    underIgnoredErrors([&] { SetFocus(app, QStringLiteral("search.List1")); });
}

void search_Command3_Click(Merkkartelle& app) { app.search.Label4.Caption = kStop; }

void search_List1_Click(Merkkartelle& app)
{
    auto& f = app.search;
    if (bearbeitungOffen(app) || f.List1.ListIndex < 0)
        return;
    f.Text1.Text = f.List1.List(f.List1.ListIndex);
    const long nummer = long(Val(f.Text1.Text.left(6)));
    app.Hauptmaske.Label9.Caption = kReplayOn;
    if (KarteFinden(app, QString::number(nummer)))
        DatenInMaske(app);
    PositionAnzeigen(app);
}

void search_Option3D1_Click(Merkkartelle& app, int index)
{
    auto& f = app.search;
    f.Label32.Caption = f.Option3D1[index].Caption;
    hinweisErneuern(app, QStringLiteral("Suche Text in Feld: "), QStringLiteral("Liste '"), QStringLiteral("' Suchtext: "));
    underIgnoredErrors([&] { SetFocus(app, QStringLiteral("search.Text2")); });
}

void search_Text2_Change(Merkkartelle& app)
{
    hinweisErneuern(app, QStringLiteral("Suche text in Feld: "), QStringLiteral("List von: '"), QStringLiteral("' Text: "));
}

void registerSyllableSearchHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("search");
    const QString click = QStringLiteral("Click");
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("menusilabas"), click, &menusilabas_Click);
    table.onForm(form, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { search_Load(app); });
    table.on(form, QStringLiteral("Command6"), click, &search_Command6_Click);
    table.on(form, QStringLiteral("Command3"), click, &search_Command3_Click);
    table.on(form, QStringLiteral("Command5"), click, [](Merkkartelle& app, EventArgs&) { hideForm(app, app.search); });
    table.on(form, QStringLiteral("List1"), click, &search_List1_Click);
    table.on(form, QStringLiteral("Option3D1"), click, &search_Option3D1_Click);
    table.on(form, QStringLiteral("Text2"), QStringLiteral("Change"), [](Merkkartelle& app, EventArgs&) { search_Text2_Change(app); });
}

}  // namespace mk
