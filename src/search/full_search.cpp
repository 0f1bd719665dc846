#include "search/full_search.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/focus.h"
#include "card/notice.h"
#include "platform/jet_expression.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "search/grid_search.h"
#include "search/quick_search.h"
#include "search/search_fields.h"
#include "settings/form_places.h"

#include <QStringList>
#include <vector>

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");
const QString kTrenner = QStringLiteral("   ");
const QString kLeerwert = QStringLiteral("_____");
constexpr int kHinweisdauer = 2000;

QString wertOderStriche(Recordset& satz, const QString& spalte)
{
    QString text = kLeerwert;
    underIgnoredErrors([&] {
        const QVariant v = satz.Fields(spalte).Value();
        if (v.isValid())
            text = v.toString();
    });
    return text;
}

long nummerVon(Recordset& satz)
{
    long nummer = 0;
    underIgnoredErrors([&] { nummer = long(Val(satz.Fields(QStringLiteral("Laufendenummer")).text())); });
    return nummer;
}

// The line of a hit in field k: column, the mask's label, the value found, and the person.
QString trefferzeile(Merkkartelle& app, Recordset& satz, int feld)
{
    const auto w = [&](const char* spalte) { return wertOderStriche(satz, QString::fromLatin1(spalte)); };
    QStringList teile{Volltextspalte(feld), Volltextbeschriftung(app, feld),
                      wertOderStriche(satz, Volltextwert(feld))};
    if (feld == 3)
        teile << w("Nachname") << w("Firma") << w("Telefon");
    else
        teile << w("Vorname") << w("Nachname") << w("Telefon");
    return teile.join(kTrenner);
}

// The line of a card when the text is empty: the person, the firm, the street, the phone.
QString kartenzeile(Recordset& satz)
{
    QStringList teile;
    for (const char* spalte : {"Vorname", "Nachname", "Firma", "Strasse", "Telefon"})
        teile << wertOderStriche(satz, QString::fromLatin1(spalte));
    return teile.join(kTrenner);
}

void zeileAnhaengen(ListBox& liste, const QString& text, long nummer)
{
    liste.Items.push_back(ListItem{text, nummer});
}

// An empty text lists each card once, in the order of the cursor.
void alleKartenListen(Merkkartelle& app, ListBox& liste)
{
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        if (satz.RecordCount() == 0)
            return;
        for (satz.MoveFirst(); !satz.IsEOF(); satz.MoveNext())
            zeileAnhaengen(liste, kartenzeile(satz), nummerVon(satz));
    });
}

// LEFT(value, n) = text as the store compares it: Null never, a number as its text.
bool beginntMit(const QVariant& wert, const QString& text)
{
    if (!wert.isValid())
        return false;
    const QString w = wert.typeId() == QMetaType::LongLong || wert.typeId() == QMetaType::Int
        ? jet::numberAsText(wert.toLongLong())
        : wert.toString();
    return jet::compareText(w.left(text.size()), text) == 0;
}

// A card that begins with the text in some field: its number and the line of each field
// that matches (empty for the others), read once.
struct Kandidat {
    long nummer = 0;
    QStringList zeilen;
};

// Field after field, the cards whose field begins with the text, in the order of the cursor.
// One find over every field gives the cards that match anywhere; each of them is read once,
// and the lines are laid out field by field as separate finds per field would give them.
void felderDurchsuchen(Merkkartelle& app, ListBox& liste, const QString& text)
{
    if (kartenzahl(app) == 0)
        return;
    QStringList bedingungen;
    for (int k = 1; k <= kSuchfelder; ++k)
        bedingungen << Praefixbedingung(Volltextspalte(k), text);
    const QString irgendwo = bedingungen.join(QStringLiteral(" OR "));

    std::vector<Kandidat> kandidaten;
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        satz.FindFirst(irgendwo);
        while (!satz.NoMatch()) {
            Kandidat c;
            c.nummer = nummerVon(satz);
            for (int k = 1; k <= kSuchfelder; ++k) {
                QVariant wert;
                underIgnoredErrors([&] { wert = satz.Fields(ohneKlammern(Volltextspalte(k))).Value(); });
                c.zeilen << (beginntMit(wert, text) ? trefferzeile(app, satz, k) : QString());
            }
            kandidaten.push_back(std::move(c));
            satz.FindNext(irgendwo);
        }
    });
    for (int k = 1; k <= kSuchfelder; ++k) {
        app.Suchfeld = k;
        app.Suchtext = text;
        app.Suchkriterium = bedingungen[k - 1];
        for (const Kandidat& c : kandidaten)
            if (!c.zeilen[k - 1].isEmpty())
                zeileAnhaengen(liste, c.zeilen[k - 1], c.nummer);
    }
}

constexpr Formplatz kProcurarPlatz{92, 93, 97, 96};

void procurarPositionMerken(Merkkartelle& app) { FormplatzMerken(app, app.Procurar, kProcurarPlatz); }

void suchhinweisZeigen(Merkkartelle& app, const QString& text)
{
    loadForm(app, app.Message);
    app.Message.Label1.Caption = text;
    app.Message.Label1.ForeColor = kSuchfarbe;
    app.Message.Timer1.Enabled = false;  // it stays until the list is ready
    showForm(app, app.Message, false);
}

}  // namespace

QString SuchknopfHinweis(const Merkkartelle& app)
{
    if (app.config.SSCheck11.checked())
        return QStringLiteral("indexnummer Nachname Vorname Firma PLZ Stadt Strasse Telefon ");
    const QString& text = app.Hauptmaske.Text1.Text;
    return text.isEmpty() ? QStringLiteral("In allen Felden suchen")
                          : QStringLiteral("In allen Felden nach ") + text + QStringLiteral(" suchen");
}

void Volltextsuche(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (bildschutzSichtbar(app))
        return;
    if (app.config.SSCheck11.checked())
        return Gittersuche(app);
    m.Command5.Caption.clear();
    const auto ende = [&] { m.Command5.Caption = QStringLiteral("Suchen"); };
    if (kartenzahl(app) == 0)
        return ende();

    app.SuchErgebnis = 0;
    underIgnoredErrors([&] { app.Suchbookmark = kartensatz(app).Bookmark(); });
    m.Label9.Caption = kReplayOn;
    m.Text1.SelStart = 0;
    m.Text1.SelLength = int(m.Text1.Text.size());
    underIgnoredErrors([&] { SetFocus(app, QStringLiteral("Hauptmaske.Text1")); });

    const QString text = m.Text1.Text;
    suchhinweisZeigen(app, QStringLiteral("Suche...  ") + text.toUpper() + kZeilenumbruch + QStringLiteral("Bitte warten..."));

    loadForm(app, app.Procurar);
    auto& f = app.Procurar;
    auto& liste = f.Suchergebnisliste;
    liste.Clear();
    if (text.isEmpty()) {
        app.Suchfeld = 1;
        app.Suchtext = text;
        alleKartenListen(app, liste);
        zeileAnhaengen(liste, kAlleDatensaetze, 0);
    } else {
        felderDurchsuchen(app, liste, text);
    }
    f.Label1.Caption = QString::number(liste.ListCount());
    f.Label3.Caption = text;
    f.Caption = QStringLiteral("Ergebniss der Suche nach:  ") + text.toUpper() + QStringLiteral("...  in allen Feldern");

    if (liste.ListCount() > 0) {
        hideForm(app, app.Message);
        unloadForm(app, app.Message);
        showForm(app, f, true);
        if (app.SuchErgebnis != 0)
            GewaehlteKarteZeigen(app);
        else
            ZurueckZumSuchbookmark(app);
        return ende();
    }
    unloadForm(app, app.Message);
    ShowMessage(app, QStringLiteral("Suchtext  ") + text.toUpper() + kZeilenumbruch + QStringLiteral(" nicht gefunden"),
                kSuchfarbe, kHinweisdauer);
    ZurueckZumSuchbookmark(app);
    ende();
}

// ---- Procurar ----------------------------------------------------------------------------------

void Procurar_Load(Merkkartelle& app)
{
    auto& f = app.Procurar;
    FormplatzNehmen(app, f, kProcurarPlatz);
    f.Suchergebnisliste.Font = app.Hauptmaske.feld[0].Font;
}

void Procurar_Activate(Merkkartelle& app)
{
    app.Procurar.Command1.Enabled = false;
    app.Procurar.Label2.Caption.clear();
}

void Procurar_Liste_Click(Merkkartelle& app)
{
    auto& f = app.Procurar;
    const auto& liste = f.Suchergebnisliste;
    if (liste.ListIndex < 0)
        return;
    app.GewaehlteNummer = QString::number(liste.ItemData(liste.ListIndex));
    f.Label2.Caption = app.GewaehlteNummer;
    f.Command1.Enabled = true;
}

void Procurar_Command1_Click(Merkkartelle& app)
{
    auto& f = app.Procurar;
    const auto& liste = f.Suchergebnisliste;
    if (liste.ListIndex < 0)
        return;
    app.GewaehlteNummer = QString::number(liste.ItemData(liste.ListIndex));
    procurarPositionMerken(app);
    app.SuchErgebnis = 1;
    hideForm(app, f);
}

void Procurar_Command2_Click(Merkkartelle& app)
{
    procurarPositionMerken(app);
    app.SuchErgebnis = 0;
    hideForm(app, app.Procurar);
    app.Hauptmaske.Label9.Caption = kZweiundzwanzigLeer;
}

void Procurar_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        Procurar_Command2_Click(app);
    else if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral(" \r\nFunções do teclado\r\n \r\nESC = Sair "));
}

void Procurar_Liste_KeyPress(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyAscii != vbKeyReturn)
        return;
    args.KeyAscii = 0;
    Procurar_Command1_Click(app);
}

void Text1_KeyPress(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyAscii != vbKeyReturn)
        return;
    args.KeyAscii = 0;
    Volltextsuche(app);
}

void Text1_GotFocus(Merkkartelle& app)
{
    auto& box = app.Hauptmaske.Text1;
    box.SelStart = 0;
    box.SelLength = int(box.Text.size());
}

void registerFullSearchHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("Command5"), QStringLiteral("Click"), &Volltextsuche);
    table.on(haupt, QStringLiteral("Command5"), QStringLiteral("MouseMove"), [](Merkkartelle& app, EventArgs&) {
        app.Hauptmaske.Command5.Hint = SuchknopfHinweis(app);
        app.Hauptmaske.Panel3D3.Caption = app.Hauptmaske.Command5.Hint;
    });
    table.on(haupt, QStringLiteral("Text1"), QStringLiteral("KeyPress"), &Text1_KeyPress);
    table.on(haupt, QStringLiteral("Text1"), QStringLiteral("MouseMove"), [](Merkkartelle& app, EventArgs&) {
        // With the grid search the box says which pair of fields it searches.
        if (!app.config.SSCheck11.checked())
            return;
        app.Hauptmaske.Text1.Hint = GittersuchHinweis(app);
        app.Hauptmaske.Panel3D3.Caption = app.Hauptmaske.Text1.Hint;
    });
    table.on(haupt, QStringLiteral("Text1"), QStringLiteral("GotFocus"), &Text1_GotFocus);

    const QString form = QStringLiteral("Procurar");
    table.onForm(form, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { Procurar_Load(app); });
    table.onForm(form, QStringLiteral("Activate"), [](Merkkartelle& app, EventArgs&) { Procurar_Activate(app); });
    table.onForm(form, QStringLiteral("KeyDown"), &Procurar_KeyDown);
    table.on(form, QStringLiteral("Suchergebnisliste"), QStringLiteral("Click"), &Procurar_Liste_Click);
    table.on(form, QStringLiteral("Suchergebnisliste"), QStringLiteral("DblClick"), &Procurar_Command1_Click);
    table.on(form, QStringLiteral("Suchergebnisliste"), QStringLiteral("KeyPress"), &Procurar_Liste_KeyPress);
    table.on(form, QStringLiteral("Command1"), QStringLiteral("Click"), &Procurar_Command1_Click);
    table.on(form, QStringLiteral("Command2"), QStringLiteral("Click"), &Procurar_Command2_Click);
}

}  // namespace mk
