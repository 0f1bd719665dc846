#include "printing/birthday_list.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/text_files.h"
#include "printing/label_printing.h"
#include "printing/serial_letter_list.h"

namespace mk {

namespace {

using M = Merkkartelle;

void musterWaehlen(M& app, const QString& muster)
{
    app.GeburtstagFilter = geburtstagsKriterium(muster);
    GeburtstagslisteAufbauen(app);
}

void ohneMonatFragezeichen(M& app)
{
    if (app.malasp.Text1.Text.isEmpty())
        app.malasp.Text1.Text = QStringLiteral("??");
}

void Monat_Click(M& app)
{
    ohneMonatFragezeichen(app);
    musterWaehlen(app, QStringLiteral("???") + app.malasp.Text1.Text + QStringLiteral("?????"));
}

void Tag_Click(M& app)
{
    ohneMonatFragezeichen(app);
    musterWaehlen(app, app.malasp.Text2.Text + QStringLiteral("????????"));
}

void Jahr_Click(M& app)
{
    ohneMonatFragezeichen(app);
    musterWaehlen(app, QStringLiteral("??????") + app.malasp.Text3.Text);
}

void malasp_Load(M& app)
{
    auto& f = app.malasp;
    const auto& m = app.mala;
    f.Left = m.Left;
    f.Top = m.Top;
    f.Width = m.Width;
    f.Height = m.Height;
    f.Schnelleauswahlliste.Font = m.Schnelleauswahlliste.Font;
    f.Schnelleauswahlliste.BackColor = m.Schnelleauswahlliste.BackColor;
    f.Schnelleauswahlliste.ForeColor = m.Schnelleauswahlliste.ForeColor;
    // The system date in the old month/day/year text.
    const QString datum = app.clock.Now().date().toString(QStringLiteral("MM-dd-yyyy"));
    f.Frame3D2.Caption = QStringLiteral("Systemdatum: ") + datum + QStringLiteral(" (Monat/Tag/Jahr) ");
    f.Text2.Text = datum.mid(3, 2);
    f.Text3.Text = datum.right(4);
}

void Combo1_Click(M& app)
{
    const int index = app.malasp.Combo1.ListIndex;
    if (index >= 0 && index < 12)
        app.malasp.Text1.Text = QStringLiteral("%1").arg(index + 1, 2, 10, QLatin1Char('0'));
}

const QString kF1 = QStringLiteral(" \rFunções do teclado\r \rF3 = Previsão da mala direta \rF5 = Sair da mala direta\rF6 = Configurar etiquetas \r");

}  // namespace

QString geburtstagsKriterium(const QString& muster) { return QStringLiteral("[Geburtstag] like '") + muster + QLatin1Char('\''); }

void GeburtstagslisteAufbauen(M& app)
{
    auto& f = app.malasp;
    auto& liste = f.Schnelleauswahlliste;
    if (!app.Kartendatenbank) {
        app.ui.MsgBox(QStringLiteral("Keine Datenbank geladen"));
        return;
    }
    loadForm(app, app.Message);
    app.Message.Label1.Caption = QStringLiteral("Geburtstagsserienbrief wird vorbereitet \rBitte warten...");
    app.Message.Label1.ForeColor = rgb(0, 0, 196);
    app.Message.Timer1.Enabled = false;
    showForm(app, app.Message);
    f.Label3.Caption = QString::number(liste.ListCount());

    RecordsetPtr satz;
    underIgnoredErrors([&] {
        RecordsetPtr basis = app.Kartendatenbank->createDynaset(app.Tabellenname);
        basis->Sort = f.AZCHECK.Value ? QStringLiteral("[Geburtstag] DESC") : QStringLiteral("[Geburtstag]");
        satz = basis->createDynaset();
    });
    liste.Clear();
    if (satz) {
        const QString fuell = fuellzeichen(app);
        const int breite[3] = {spaltenbreite(app, 0), spaltenbreite(app, 1), spaltenbreite(app, 2)};
        QString teile[3];
        long n = 0;
        const auto text = [&](const char* spalte) {
            QString wert;
            underIgnoredErrors([&] { wert = satz->Fields(QString::fromLatin1(spalte)).text(); });
            return wert;
        };
        bool gefunden = false;
        underIgnoredErrors([&] {
            satz->FindFirst(app.GeburtstagFilter);
            gefunden = !satz->NoMatch();
        });
        while (gefunden) {
            ++n;
            if (n < 500 || n % 100 == 0)
                app.Message.Label3.Caption = QString::number(n);
            bool ohneFirma = false;
            underIgnoredErrors([&] { ohneFirma = satz->Fields(QStringLiteral("Firma")).isNull(); });
            QString zeile;
            if (ohneFirma) {
                zeile = teile[0] + QLatin1Char('\t') + teile[1] + QLatin1Char('\t') + teile[2] + QStringLiteral(" <<< Firma fehlt >>>");
            } else {
                const QString roh[3] = {text("Geburtstag"), text("Vorname") + QLatin1Char(' ') + text("Nachname"),
                                        text("Titel") + QLatin1Char(' ') + text("Schluessel")};
                for (int i = 0; i < 3; ++i)
                    teile[i] = spaltenText(roh[i], breite[i], fuell);
                zeile = teile[0] + QLatin1Char('\t') + teile[1] + QLatin1Char('\t') + teile[2];
            }
            const int index = liste.AddItem(zeile);
            liste.setItemData(index, long(Val(text("Laufendenummer"))));
            gefunden = false;
            underIgnoredErrors([&] {
                satz->FindNext(app.GeburtstagFilter);
                gefunden = !satz->NoMatch();
            });
        }
        underIgnoredErrors([&] { satz->close(); });
    }
    f.Label3.Caption = QString::number(liste.ListCount());
    unloadForm(app, app.Message);
}

void GeburtstagslisteZeigen(M& app)
{
    if (app.malasp.WindowState == vbMinimized)
        app.malasp.WindowState = vbNormal;
    showForm(app, app.malasp);
}

void registerBirthdayHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("malasp");
    const QString click = QStringLiteral("Click");
    table.onForm(f, QStringLiteral("Load"), [](M& app, EventArgs&) { malasp_Load(app); });
    table.onForm(f, QStringLiteral("KeyDown"), [](M& app, EventArgs& a) {
        if (a.KeyCode == vbKeyF1)
            app.ui.MsgBox(kF1);
        else if (a.KeyCode == vbKeyF3)
            raiseEvent(app, QStringLiteral("malasp.Command3d4"), QStringLiteral("Click"));
        else if (a.KeyCode == vbKeyF5)
            raiseEvent(app, QStringLiteral("malasp.Command3D1"), QStringLiteral("Click"));
        else if (a.KeyCode == vbKeyF6)
            EtikettenKonfigurieren(app);
    });
    table.on(f, QStringLiteral("Combo1"), click, Combo1_Click);
    table.on(f, QStringLiteral("Command2"), click, Monat_Click);
    table.on(f, QStringLiteral("Command5"), click, Tag_Click);
    table.on(f, QStringLiteral("Command6"), click, Jahr_Click);
    table.on(f, QStringLiteral("AZCHECK"), click, [](M& app, EventArgs&) { GeburtstagslisteAufbauen(app); });
    table.on(f, QStringLiteral("Command3D1"), click, [](M& app, EventArgs&) {
        hideForm(app, app.malasp);
        showForm(app, app.Hauptmaske);
    });
    table.on(f, QStringLiteral("Command3D2"), click, [](M& app, EventArgs&) { app.malaview.Label3.Caption = QStringLiteral("STOP"); });
    table.on(f, QStringLiteral("Command3d4"), click, [](M& app, EventArgs&) {
        app.malasp.Label9.Caption = QStringLiteral("DRUCK");
        showForm(app, app.malaview);
        hideForm(app, app.Hauptmaske);
    });
    table.on(f, QStringLiteral("Command3D3"), click, [](M& app, EventArgs&) {
        unloadForm(app, app.malaview);
        app.malasp.Label9.Caption.clear();
        DatenInMaske(app);
        showForm(app, app.malasp);
    });
    table.on(f, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("DblClick"), [](M& app, EventArgs&) {
        if (!(app.malaview.Visible && app.malaview.Label7.Caption == QLatin1String("Teile")))
            return;
        app.malaview.Text1.Text = QString::number(app.malasp.Schnelleauswahlliste.ListIndex);
        app.ui.MsgBox(QStringLiteral("Der Anfang der zu Druckenden Liste wurde definiert\rKlicken Sie auf den letzten zu druckenden Eintrag"));
    });
    table.on(f, QStringLiteral("Schnelleauswahlliste"), click, [](M& app, EventArgs&) {
        auto& liste = app.malasp.Schnelleauswahlliste;
        if (liste.ListIndex < 0)
            return;
        if (app.malaview.Visible && app.malaview.Label7.Caption == QLatin1String("Teile"))
            app.malaview.Label6.Caption = QString::number(liste.ListIndex + 1 - long(Val(app.malaview.Text1.Text)));
        underIgnoredErrors([&] {
            kartensatz(app).FindFirst(QStringLiteral("[Laufendenummer] LIKE ") + QString::number(liste.ItemData(liste.ListIndex)));
        });
        if (app.malasp.Label9.Caption == QLatin1String("DRUCK")) {
            DruckFelderLaden(app);
        } else {
            app.Hauptmaske.Label9.Caption = kReplayOn;
            DatenInMaske(app);
        }
    });
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("menumaladata"), click, GeburtstagslisteZeigen);
}

}  // namespace mk
