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

    long karten = 0;
    long treffer = 0;
    // A clone of the cursor is walked, so that the card on the mask keeps its place.
    underIgnoredErrors([&] {
        const RecordsetPtr klon = kartensatz(app).clone();
        Recordset& satz = *klon;
        if (satz.RecordCount() == 0)
            return;
        for (satz.MoveFirst(); !satz.IsEOF(); satz.MoveNext()) {
            app.ui.DoEvents();
            const QString nummer = textOderStern(satz, QStringLiteral("Laufendenummer"));
            const QString feld = spalte.isEmpty() ? QStringLiteral("*") : textOderStern(satz, spalte);
            if (SilbeEnthalten(feld, teil)) {
                f.Label1.Caption = QStringLiteral("Füge Eintag zur Liste hinzu...");
                const QString gepolstert = nummer + kNummerFuellung.left(std::max(0, int(kNummerFuellung.size() - nummer.size())));
                f.List1.Items.push_back(ListItem{gepolstert + QLatin1Char(' ') + person(satz) + feld, long(Val(nummer))});
                f.Label3.Caption = QString::number(++treffer);
            }
            f.Label2.Caption = QString::number(++karten);
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
