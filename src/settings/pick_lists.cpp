#include "settings/pick_lists.h"

#include "card/app_state.h"
#include "card/session.h"
#include "card/focus.h"
#include "card/card_cursor.h"
#include "card/card_record.h"
#include "platform/files.h"
#include "settings/form_places.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "platform/text_files.h"

#include <QSet>
#include <array>

namespace mk {

namespace {

constexpr int kListengrenze = 32767;   // records read from one list file at most

const QString kHinzufuegen = QStringLiteral("Hinzufügen");
const QString kOK = QStringLiteral("OK");

// List1 and its shadow List3 hold the same texts, so a selection in one names the same
// text in the other.
void eintragHinzufuegen(Cidadefrm& form, const QString& text)
{
    form.List1.AddItem(text);
    form.List3.AddItem(text);
}

void auswahlknoepfe(Cidadefrm& form, bool aktiv)
{
    form.Command3.Enabled = aktiv;
    form.Command5.Enabled = aktiv;
}

const Formplatz kListenPlatz{160, 161};

// The list closes by hiding and leaves its place in the settings table.
void listeSchliessen(Merkkartelle& app)
{
    FormplatzMerken(app, app.Cidadefrm, kListenPlatz);
    hideForm(app, app.Cidadefrm);
}

// The slot the list was opened for; -1 when none.
int geoeffneterSlot(const Merkkartelle& app)
{
    bool ok = false;
    const int slot = app.Cidadefrm.Tag.toInt(&ok);
    return ok ? slot : -1;
}

}  // namespace

QString FeldSpalte(int slot)
{
    const karte::Spalte* spalte = karte::spalteAn(karte::Ort::feld, slot);
    return spalte ? karte::text(spalte->name) : QString();
}

QString Auswahllistendatei(const Merkkartelle& app, int slot)
{
    const QString& caption = app.Hauptmaske.beschreibung[slot].Caption;
    return joinPath(app.Arbeitsverzeichnis, caption.left(caption.size() - 1) + QStringLiteral(".txt"));
}

void AuswahllisteOeffnen(Merkkartelle& app, int slot)
{
    if (!bearbeitungOffen(app) || slot < 0 || slot >= karte::kFelder)
        return;
    auto& form = app.Cidadefrm;
    form.Tag = QString::number(slot);
    form.Caption = kHinzufuegen + QLatin1Char(' ') + app.Hauptmaske.beschreibung[slot].Caption;
    form.Label2.Caption = Auswahllistendatei(app, slot);
    form.Label3.Caption = FeldSpalte(slot);
    // The entry box shows only after "Hinzufügen"; nothing is chosen yet.
    form.Command1.Caption = kHinzufuegen;
    form.Text1.Text.clear();
    form.Text1.Visible = false;
    form.Label1.Visible = false;
    auswahlknoepfe(form, false);
    AuswahllisteLesen(app);
    showForm(app, form, true);
}

void AuswahllisteLesen(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    form.List1.Clear();
    form.List3.Clear();
    ArbeitsverzeichnisSetzen(app);
    // The end of the file or any error ends the reading; what was read stays in the list.
    underIgnoredErrors([&] {
        TextReader datei(form.Label2.Caption);
        for (int n = 0; n <= kListengrenze && !datei.atEnd(); ++n) {
            const QString text = datei.next();
            if (!text.isEmpty())
                eintragHinzufuegen(form, text);
        }
    });
    ArbeitsverzeichnisSetzen(app);
}

void AuswahllisteSchreiben(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    ArbeitsverzeichnisSetzen(app);
    underIgnoredErrors([&] {
        TextWriter datei(form.Label2.Caption);
        for (int i = 0; i < form.List1.ListCount(); ++i)
            datei.write({form.List1.List(i)});
        datei.close();
    });
}

void AuswahllisteAusKarten(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    const QString spalte = form.Label3.Caption;
    QSet<QString> bekannt;
    for (int i = 0; i < form.List1.ListCount(); ++i)
        bekannt.insert(form.List1.List(i));

    // The walk goes over a clone: moving Kartensatz itself would drop the card that is being
    // entered or changed, and the clone leaves the current card where it is.
    RecordsetPtr satz;
    underIgnoredErrors([&] { satz = kartensatz(app).clone(); });
    if (!satz)
        return;
    underIgnoredErrors([&] {
        satz->MoveFirst();
        while (!satz->IsEOF()) {
            const QVariant wert = satz->Fields(spalte).Value();
            if (wert.isValid()) {
                const QString text = wert.toString();
                if (!bekannt.contains(text)) {
                    bekannt.insert(text);
                    eintragHinzufuegen(form, text);
                }
            }
            satz->MoveNext();
        }
    });
    underIgnoredErrors([&] { satz->close(); });
}

void AuswahlUebernehmen(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    const int gewaehlt = form.List1.ListIndex;
    const int slot = geoeffneterSlot(app);
    if (gewaehlt < 0 || slot < 0)
        return;
    const QString text = form.List1.List(gewaehlt);
    auto& maske = app.Hauptmaske;
    const QString label = maske.beschreibung[slot].Caption;
    for (int i = 0; i < karte::kFelder; ++i) {
        if (maske.beschreibung[i].Caption != label)
            continue;
        // Size 0 is a long text: no limit to cut to.
        int groesse = 0;
        underIgnoredErrors([&] { groesse = kartensatz(app).Fields(FeldSpalte(i)).Size(); });
        maske.feld[i].Text = groesse > 0 ? text.left(groesse) : text;
    }
    listeSchliessen(app);
    // Back to the field the list was opened for, to type on.
    SetFocus(app, QStringLiteral("Hauptmaske.feld(%1)").arg(slot));
}

// ---- handlers ---------------------------------------------------------------------------------

void feld_MouseDown(Merkkartelle& app, EventArgs& args)
{
    if (args.Button == vbRightButton)
        AuswahllisteOeffnen(app, args.Index);
}

void Cidadefrm_Command1_Click(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    if (form.Command1.Caption != kOK) {
        form.Text1.Text.clear();
        form.Text1.Visible = true;
        form.Label1.Visible = true;
        form.Command1.Caption = kOK;
        return;
    }
    if (!form.Text1.Text.isEmpty())
        eintragHinzufuegen(form, form.Text1.Text);
    AuswahllisteSchreiben(app);  // the first "OK" creates a missing file
    form.Text1.Text.clear();
    form.Text1.Visible = false;
    form.Label1.Visible = false;
    form.Command1.Caption = kHinzufuegen;
}

void Cidadefrm_Command2_Click(Merkkartelle& app) { listeSchliessen(app); }

void Cidadefrm_Command3_Click(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    const int gewaehlt = form.List1.ListIndex;
    if (gewaehlt < 0)
        return;
    form.List1.RemoveItem(gewaehlt);
    if (gewaehlt < form.List3.ListCount())
        form.List3.RemoveItem(gewaehlt);
    form.List1.ListIndex = -1;
    form.List3.ListIndex = -1;
    auswahlknoepfe(form, false);
}

void Cidadefrm_Command4_Click(Merkkartelle& app) { AuswahllisteAusKarten(app); }

void Cidadefrm_Command5_Click(Merkkartelle& app) { AuswahlUebernehmen(app); }

void Cidadefrm_List1_Click(Merkkartelle& app)
{
    auto& form = app.Cidadefrm;
    auswahlknoepfe(form, true);
    if (form.List1.ListIndex < form.List3.ListCount())
        form.List3.ListIndex = form.List1.ListIndex;
}

void Cidadefrm_List1_DblClick(Merkkartelle& app) { AuswahlUebernehmen(app); }

void registerPickListHandlers(HandlerTable& table)
{
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("feld"), QStringLiteral("MouseDown"), &feld_MouseDown);
    const QString form = QStringLiteral("Cidadefrm");
    table.onForm(form, QStringLiteral("Load"),
                 [](Merkkartelle& app, EventArgs&) { FormplatzNehmen(app, app.Cidadefrm, kListenPlatz); });
    table.on(form, QStringLiteral("Command1"), QStringLiteral("Click"), &Cidadefrm_Command1_Click);
    table.on(form, QStringLiteral("Command2"), QStringLiteral("Click"), &Cidadefrm_Command2_Click);
    table.on(form, QStringLiteral("Command3"), QStringLiteral("Click"), &Cidadefrm_Command3_Click);
    table.on(form, QStringLiteral("Command4"), QStringLiteral("Click"), &Cidadefrm_Command4_Click);
    table.on(form, QStringLiteral("Command5"), QStringLiteral("Click"), &Cidadefrm_Command5_Click);
    table.on(form, QStringLiteral("List1"), QStringLiteral("Click"), &Cidadefrm_List1_Click);
    table.on(form, QStringLiteral("List1"), QStringLiteral("DblClick"), &Cidadefrm_List1_DblClick);
}

}  // namespace mk
