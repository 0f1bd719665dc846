#include "search/grid_search.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/store.h"
#include "search/search_fields.h"

#include <array>

namespace mk {

namespace {

// The header texts as the old grid had them, padded so that each column is as wide as its
// header on screen.
const std::array<const char*, 8> kKoepfe = {
    "LFNR", "Nachname                   ", "Vorname                     ",
    "Firma                           ", "PLZ      ", "Stadt                                ",
    "Strasse                           ", "Telefon                            ",
};
const std::array<const char*, 8> kSpalten = {
    "Laufendenummer", "NachName", "Vorname", "Firma", "PLZ", "Stadt", "Strasse", "Telefon",
};
constexpr int kTwipsProZeichen = 90;  // the width of one character of the grid's font

bool gestoppt(const Merkkartelle& app) { return app.Gitter.Label1.Caption == kStop; }

// The hit counter is redrawn at each hit up to 100, then at each hundred.
void zaehlerZeigen(Merkkartelle& app, int zeilen)
{
    if (zeilen <= 100 || zeilen % 100 == 0)
        app.Gitter.Label8.Caption = QString::number(zeilen);
}

// One pass over the clone: the cards whose column holds the text, each written to a row.
void durchgang(Merkkartelle& app, Recordset& klon, const QString& spalte, int& zeilen)
{
    auto& grid = app.Gitter.grid1;
    app.Suchkriterium = spalte + QStringLiteral(" like '*") + app.Suchtext + QStringLiteral("*'");
    underIgnoredErrors([&] {
        klon.FindFirst(app.Suchkriterium);
        while (!klon.NoMatch()) {
            app.ui.DoEvents();
            if (gestoppt(app))
                break;
            const int zeile = zeilen + 1;
            if (zeile >= grid.rows())
                grid.setRows(zeile + 1);
            for (int c = 0; c < 8; ++c) {
                QString wert = kGitterStriche;
                underIgnoredErrors([&] {
                    const QVariant v = klon.Fields(QString::fromLatin1(kSpalten[std::size_t(c)])).Value();
                    if (v.isValid())
                        wert = v.toString();
                });
                grid.setTextMatrix(zeile, c, wert);
            }
            klon.FindNext(app.Suchkriterium);
            ++zeilen;
            zaehlerZeigen(app, zeilen);
        }
    });
}

}  // namespace

QString GittersuchHinweis(const Merkkartelle& app)
{
    return app.config.Check3D9.checked() ? QStringLiteral("Suchtext eingeben Nachname oder Vorname")
                                         : QStringLiteral("Suchtext eingeben Schluessel oder Strasse");
}

void gitterbeschriftung1(Merkkartelle& app)
{
    auto& grid = app.Gitter.grid1;
    if (grid.cols() != 8)
        grid.setCols(8);
    for (int c = 0; c < 8; ++c) {
        const QString kopf = QString::fromLatin1(kKoepfe[std::size_t(c)]);
        grid.setTextMatrix(0, c, kopf);
        grid.setColWidth(c, int(kopf.size()) * kTwipsProZeichen);
    }
}

void Gittersuche(Merkkartelle& app)
{
    loadForm(app, app.Gitter);
    auto& f = app.Gitter;
    f.Command3.Visible = true;
    f.Label1.Caption.clear();
    f.Label5.Caption = QStringLiteral("0");
    f.Label8.Caption = QStringLiteral("0");
    f.Label8.Visible = true;

    // The clone is what is searched: the card on the mask stays where it is.
    RecordsetPtr klon;
    underIgnoredErrors([&] {
        klon = kartensatz(app).clone();
        klon->MoveFirst();
    });
    long anzahl = 0;
    underIgnoredErrors([&] { anzahl = klon ? klon->RecordCount() : 0; });
    f.grid1.setRows(int(anzahl) + 1);
    gitterbeschriftung1(app);

    int zeilen = 0;
    int pass = 0;
    const bool namen = app.config.Check3D9.checked();
    for (pass = 1; pass <= 2 && klon; ++pass) {
        app.Suchfeld = pass;
        app.Suchtext = app.Hauptmaske.Text1.Text;
        const QString spalte = namen ? (pass == 1 ? QStringLiteral("[Nachname]") : QStringLiteral("[Vorname]"))
                                     : (pass == 1 ? QStringLiteral("[Schluessel]") : QStringLiteral("[Strasse]"));
        durchgang(app, *klon, spalte, zeilen);
        // The second field is searched only while the second type label has a text.
        if (pass == 1 && app.Hauptmaske.Text3.Text.isEmpty()) {
            f.Command3.Visible = false;
            f.Label1.Caption.clear();
            break;
        }
    }
    f.Label8.Caption = QString::number(zeilen);
    f.Label5.Caption = QString::number(std::min(pass, 2));
    f.grid1.setRows(zeilen + 1);
    if (zeilen > 0) {
        f.grid1.Row = 1;
        f.grid1.Col = 0;
    }
    showForm(app, f, true);
    underIgnoredErrors([&] {
        if (klon)
            klon->close();
    });
    f.Command3.Visible = false;
}

void Gitter_grid1_Click(Merkkartelle& app)
{
    auto& f = app.Gitter;
    auto& m = app.Hauptmaske;
    if (f.grid1.Row < 1 || f.grid1.Row >= f.grid1.rows())
        return;
    const QString nummer = f.grid1.TextMatrix(f.grid1.Row, 0);
    m.Label9.Caption = kReplayOn;
    underIgnoredErrors([&] { kartensatz(app).FindFirst(Praefixbedingung(QStringLiteral("Laufendenummer"), nummer + QLatin1Char(' '))); });
    if (m.LaufendeNummer.Caption != m.Label13.Caption)
        m.dataold.Caption = m.datalabel.Caption;
    DatenInMaske(app);
    PositionAnzeigen(app);
    hideForm(app, f);
}

void Gitter_Command1_Click(Merkkartelle& app)
{
    app.Hauptmaske.Text1.Text = app.Gitter.Text1.Text;
    // The running search is left first; the new one comes up afresh.
    hideForm(app, app.Gitter);
    Gittersuche(app);
}

void Gitter_Command2_Click(Merkkartelle& app) { hideForm(app, app.Gitter); }

void Gitter_Command3_Click(Merkkartelle& app) { app.Gitter.Label1.Caption = kStop; }

void registerGridSearchHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("Gitter");
    const QString click = QStringLiteral("Click");
    table.on(form, QStringLiteral("grid1"), click, &Gitter_grid1_Click);
    table.on(form, QStringLiteral("grid1"), QStringLiteral("DblClick"), &Gitter_grid1_Click);
    table.on(form, QStringLiteral("Command1"), click, &Gitter_Command1_Click);
    table.on(form, QStringLiteral("Command2"), click, &Gitter_Command2_Click);
    table.on(form, QStringLiteral("Command3"), click, &Gitter_Command3_Click);
    table.on(form, QStringLiteral("Text1"), QStringLiteral("KeyPress"), [](Merkkartelle& app, EventArgs& args) {
        if (args.KeyAscii != vbKeyReturn)
            return;
        args.KeyAscii = 0;
        Gitter_Command1_Click(app);
    });
    table.onForm(form, QStringLiteral("KeyDown"), [](Merkkartelle& app, EventArgs& args) {
        if (args.KeyCode == vbKeyEscape)
            Gitter_Command2_Click(app);
    });
}

}  // namespace mk
