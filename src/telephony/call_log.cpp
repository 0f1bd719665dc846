#include "telephony/call_log.h"

#include "card/app_state.h"
#include "card/card_editing.h"
#include "platform/text_files.h"

#include <QStringList>

namespace mk {

namespace {

using M = Merkkartelle;

const QString kLeereNummer = QStringLiteral("------------------------");
constexpr int kListenbreite = 40;

// Every step on the table on its own, under ignored errors.
template <class Step>
void schritt(M& app, Step&& step)
{
    if (app.Anrufsatz)
        underIgnoredErrors([&] { step(*app.Anrufsatz); });
}

QString spalte(Recordset& satz, const char* name)
{
    return satz.Fields(QString::fromLatin1(name)).text();
}

void setzen(Recordset& satz, const char* name, const QString& wert)
{
    satz.Fields(QString::fromLatin1(name)).setValue(wert);
}

}  // namespace

void AnrufBeginnen(M& app)
{
    schritt(app, [](Recordset& s) { s.MoveLast(); });
    schritt(app, [](Recordset& s) { s.AddNew(); });
    schritt(app, [&](Recordset& s) { setzen(s, "PhoneNumber", app.DIALER.Text6.Text); });
    schritt(app, [&](Recordset& s) { setzen(s, "Name", app.DIALER.Text1.Text); });
    schritt(app, [&](Recordset& s) { setzen(s, "Datainicial", DatumText(app)); });
    schritt(app, [&](Recordset& s) { setzen(s, "Horainicial", ZeitText(app)); });
}

void AnrufBeenden(M& app)
{
    schritt(app, [&](Recordset& s) { setzen(s, "Datafinal", DatumText(app)); });
    schritt(app, [&](Recordset& s) { setzen(s, "Horafinal", ZeitText(app)); });
    schritt(app, [](Recordset& s) { s.Update(); });
    schritt(app, [](Recordset& s) { s.MoveLast(); });
    // The list follows the log while it is open.
    if (app.malatelephone.Visible)
        TelefonlisteFuellen(app);
    TelefonsatzAnzeigen(app);
}

void TelefonlisteFuellen(M& app)
{
    ListBox& liste = app.malatelephone.Schnelleauswahlliste;
    liste.Clear();
    if (app.Anrufsatz) {
        // A clone walks the list, so that the row on Formtel stays where it is.
        RecordsetPtr lauf;
        underIgnoredErrors([&] { lauf = app.Anrufsatz->clone(); });
        if (lauf) {
            underIgnoredErrors([&] { lauf->MoveFirst(); });
            while (!lauf->IsEOF()) {
                underIgnoredErrors([&] {
                    const Field nummer = lauf->Fields(QStringLiteral("phonenumber"));
                    const QString eintrag = nummer.isNull()
                                                ? kLeereNummer
                                                : spalte(*lauf, "Name").left(kListenbreite) + u'\t'
                                                      + nummer.text().left(kListenbreite);
                    const int i = liste.AddItem(eintrag);
                    liste.setItemData(i, long(Val(spalte(*lauf, "Numeroatual"))));
                });
                if (!underIgnoredErrors([&] { lauf->MoveNext(); }))
                    break;
            }
        }
    }
    app.malatelephone.Label3.Caption = QString::number(liste.ListCount());
}

void TelefonsatzAnzeigen(M& app)
{
    Formtel& f = app.Formtel;
    TextBox* felder[] = {&f.Text1, &f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7};
    const char* spalten[] = {"Numeroatual", "PhoneNumber", "Datainicial", "Datafinal",
                             "Horainicial", "Horafinal",   "Name"};
    for (int i = 0; i < 7; ++i) {
        QString wert;
        schritt(app, [&](Recordset& s) { wert = spalte(s, spalten[i]); });
        felder[i]->Text = wert;
    }
    ListBox& liste = app.malatelephone.Schnelleauswahlliste;
    const long nummer = long(Val(f.Text1.Text));
    for (int i = 0; i < liste.ListCount(); ++i) {
        if (liste.ItemData(i) == nummer) {
            liste.ListIndex = i;
            break;
        }
    }
}

void malatelephone_Load(M& app)
{
    TelefonlisteFuellen(app);
}

void Schnelleauswahlliste_Click(M& app)
{
    ListBox& liste = app.malatelephone.Schnelleauswahlliste;
    if (liste.ListIndex < 0)
        return;
    const QString nummer = QString::number(liste.ItemData(liste.ListIndex));
    app.malatelephone.Label4.Caption = nummer;
    schritt(app, [&](Recordset& s) { s.FindFirst(QStringLiteral("[Numeroatual] LIKE ") + nummer); });
    TelefonsatzAnzeigen(app);
}

void Schnelleauswahlliste_DblClick(M& app)
{
    Schnelleauswahlliste_Click(app);
    showForm(app, app.Formtel);
}

void Formtel_Load(M& app)
{
    bool zeilen = false;
    schritt(app, [&](Recordset& s) { zeilen = s.RecordCount() > 0; });
    if (zeilen)
        schritt(app, [](Recordset& s) { s.MoveLast(); });
    TelefonsatzAnzeigen(app);
}

void Formtel_Command1_Click(M& app)
{
    schritt(app, [](Recordset& s) {
        if (s.RecordCount() <= 0)
            return;
        s.MoveNext();
        if (s.IsEOF())
            s.MoveLast();
    });
    TelefonsatzAnzeigen(app);
}

void Formtel_Command2_Click(M& app)
{
    schritt(app, [](Recordset& s) {
        s.MovePrevious();
        if (s.IsBOF())
            s.MoveFirst();
    });
    TelefonsatzAnzeigen(app);
}

void Formtel_Command5_Click(M& app)
{
    schritt(app, [](Recordset& s) { s.Delete(); });
    schritt(app, [](Recordset& s) { s.MoveLast(); });
    if (app.malatelephone.Visible)
        TelefonlisteFuellen(app);
    TelefonsatzAnzeigen(app);
}

}  // namespace mk
