#include "history/global_view.h"

#include "card/app_state.h"
#include "card/card_editing.h"
#include "platform/paths.h"

namespace mk {

namespace {

using M = Merkkartelle;

const QString kNullPath = QStringLiteral("------------------------");


QString currentPath(M& app)
{
    return joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei).trimmed();
}

QString selectedPath(M& app)
{
    const ListBox& list = app.malaglobalview.Schnelleauswahlliste;
    return list.ListIndex >= 0 ? list.List(list.ListIndex) : QString();
}

void showHint(M& app, Control& control, const QString& hint)
{
    control.ToolTipText = hint;
    app.malaglobalview.Panel3D1.Caption = hint;
}

void malaglobalview_Load(M& app)
{
    malaglobalview& f = app.malaglobalview;
    const Hauptmaske& h = app.Hauptmaske;
    f.Left = h.Left + (h.Width - f.Width) / 2;
    f.Top = h.Top + (h.Height - f.Height) / 2;
    globalViewListeFuellen(app);
}

void malaglobalview_Resize(M& app)
{
    malaglobalview& f = app.malaglobalview;
    if (f.WindowState == vbMinimized)
        return;
    ListBox& list = f.Schnelleauswahlliste;
    list.Width = std::max(0, f.Width - 2 * list.Left - 120);
    list.Height = std::max(0, f.Height - list.Top - 1440);
    for (Button* b : {&f.SSCommand1, &f.SSCommand2, &f.Command1, &f.Command3D1})
        b->Top = list.Top + list.Height + 120;
    f.Command3D1.Left = std::max(0, list.Left + list.Width - f.Command3D1.Width);
    f.Panel3D1.Top = f.Command3D1.Top + f.Command3D1.Height + 120;
    f.Panel3D1.Width = f.Width;
}

void Schnelleauswahlliste_Click(M& app)
{
    ListBox& list = app.malaglobalview.Schnelleauswahlliste;
    if (list.ListIndex < 0 || !app.Gesamtsatz)
        return;
    const long number = list.ItemData(list.ListIndex);
    underIgnoredErrors([&] { app.Gesamtsatz->FindFirst(QStringLiteral("[Numeroatual] LIKE ") + QString::number(number)); });
    underIgnoredErrors([&] { app.malaglobalview.Label3.Caption = app.Gesamtsatz->Fields(QStringLiteral("FullPathName")).text(); });
}

void SSCommand2_Click(M& app)  // "Öffnen"
{
    app.malaglobalview.Label1.Caption = selectedPath(app);
    hideForm(app, QStringLiteral("malaglobalview"));
}

void Schnelleauswahlliste_MouseMove(M& app)
{
    const QString path = selectedPath(app);
    showHint(app, app.malaglobalview.Schnelleauswahlliste,
             app.malaglobalview.Schnelleauswahlliste.ListIndex >= 0 ? QStringLiteral("Ausgewählte Datenbank: ") + path
                                                                     : QStringLiteral("Datenbank aus der Liste auswählen"));
}

void SSCommand2_MouseMove(M& app)
{
    showHint(app, app.malaglobalview.SSCommand2, QStringLiteral("Datenbank öffnen: ") + selectedPath(app));
}

void Command1_MouseMove(M& app)
{
    showHint(app, app.malaglobalview.Command1,
             QStringLiteral("Aus der liste entfernen: ") + selectedPath(app) + QStringLiteral(" ?"));
}

void Command1_Click(M& app)  // "Entfernen"
{
    if (!app.Gesamtsatz)
        return;
    RecordsetPtr rs = app.Gesamtsatz;
    underIgnoredErrors([&] { rs->Delete(); });
    underIgnoredErrors([&] { rs->MovePrevious(); });
    underIgnoredErrors([&] {
        if (rs->RecordCount() != 0)
            rs->MoveLast();
    });
    globalViewListeFuellen(app);
}

void Command3D1_Click(M& app)
{
    app.malaglobalview.Label1.Caption.clear();
    hideForm(app, QStringLiteral("malaglobalview"));
}

void Command9_Click(M& app)
{
    globalViewEintragen(app);
}

void Command10_Click(M& app)
{
    globalViewAbschliessen(app);
}

}  // namespace

bool hasGlobalViewRows(Merkkartelle& app)
{
    bool rows = false;
    if (app.Gesamtsatz)
        underIgnoredErrors([&] { rows = app.Gesamtsatz->RecordCount() != 0; });
    return rows;
}

GlobalViewChoice malaglobalviewZeigen(Merkkartelle& app)
{
    if (!hasGlobalViewRows(app))
        return {};
    app.malaglobalview.Label1.Caption.clear();
    showForm(app, QStringLiteral("malaglobalview"), true);
    const QString path = app.malaglobalview.Label1.Caption;
    if (path.isEmpty())
        return {};
    return {true, DateiPfad(path), DateiName(path)};
}

void globalViewListeFuellen(Merkkartelle& app)
{
    ListBox& list = app.malaglobalview.Schnelleauswahlliste;
    list.Clear();
    RecordsetPtr rs = app.Gesamtsatz;
    if (!rs)
        return;
    underIgnoredErrors([&] { rs->MoveFirst(); });
    bool atEnd = true;
    underIgnoredErrors([&] { atEnd = rs->IsEOF(); });
    while (!atEnd) {
        underIgnoredErrors([&] {
            const Field path = rs->Fields(QStringLiteral("FullPathName"));
            const int index = list.AddItem(path.isNull() ? kNullPath : path.text());
            list.setItemData(index, rs->Fields(QStringLiteral("Numeroatual")).Value().toLongLong());
        });
        atEnd = true;
        underIgnoredErrors([&] {
            rs->MoveNext();
            atEnd = rs->IsEOF();
        });
    }
}

void globalViewEintragen(Merkkartelle& app)
{
    RecordsetPtr rs = app.Gesamtsatz;
    if (!rs)
        return;
    const QString path = currentPath(app);
    // A path stands once in the table: an earlier row of it goes, the new one joins the end.
    underIgnoredErrors([&] {
        if (rs->RecordCount() == 0)
            return;
        rs->MoveLast();
        rs->MoveFirst();
        while (!rs->IsEOF()) {
            if (rs->Fields(QStringLiteral("FullPathName")).text().trimmed() == path)
                rs->Delete();
            rs->MoveNext();
        }
    });
    underIgnoredErrors([&] {
        rs->AddNew();
        rs->Fields(QStringLiteral("FullPathName")).setValue(path);
        rs->Fields(QStringLiteral("Datainicial")).setValue(DatumText(app));
        rs->Fields(QStringLiteral("Horainicial")).setValue(ZeitText(app));
        rs->Update();
    });
}

void globalViewAbschliessen(Merkkartelle& app)
{
    RecordsetPtr rs = app.Gesamtsatz;
    if (!rs)
        return;
    const QString path = currentPath(app);
    underIgnoredErrors([&] {
        rs->MoveFirst();
        while (!rs->IsEOF() && rs->Fields(QStringLiteral("FullPathName")).text().trimmed() != path)
            rs->MoveNext();
        if (rs->IsEOF())
            return;
        rs->Edit();
        rs->Fields(QStringLiteral("FullPathName")).setValue(path);
        rs->Fields(QStringLiteral("Datafinal")).setValue(DatumText(app));
        rs->Fields(QStringLiteral("Horafinal")).setValue(ZeitText(app));
        rs->Update();
    });
}

void registerGlobalViewHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("malaglobalview");
    const QString click = QStringLiteral("Click");
    const QString move = QStringLiteral("MouseMove");
    table.onForm(form, QStringLiteral("Load"), [](M& app, EventArgs&) { malaglobalview_Load(app); });
    table.onForm(form, QStringLiteral("Resize"), [](M& app, EventArgs&) { malaglobalview_Resize(app); });
    table.on(form, QStringLiteral("SSCommand1"), click, globalViewListeFuellen);
    table.on(form, QStringLiteral("Schnelleauswahlliste"), click, Schnelleauswahlliste_Click);
    table.on(form, QStringLiteral("Schnelleauswahlliste"), QStringLiteral("DblClick"), SSCommand2_Click);
    table.on(form, QStringLiteral("Schnelleauswahlliste"), move, Schnelleauswahlliste_MouseMove);
    table.on(form, QStringLiteral("SSCommand2"), click, SSCommand2_Click);
    table.on(form, QStringLiteral("SSCommand2"), move, SSCommand2_MouseMove);
    table.on(form, QStringLiteral("Command1"), click, Command1_Click);
    table.on(form, QStringLiteral("Command1"), move, Command1_MouseMove);
    table.on(form, QStringLiteral("Command3D1"), click, Command3D1_Click);

    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("Command9"), click, Command9_Click);
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("Command10"), click, Command10_Click);
}

}  // namespace mk
