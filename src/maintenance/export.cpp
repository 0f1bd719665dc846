#include "maintenance/export.h"

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "platform/files.h"
#include "platform/text_files.h"

#include <QFileInfo>
#include <QSaveFile>
#include <optional>

namespace mk {

namespace {

constexpr int kLetzterFeldindex = 54;  // the form lists at most the fields 0 to 54
const QString kZeilenende = QStringLiteral("\r\n");
const QString kBlank = QStringLiteral(" ");

frmExport& form(Merkkartelle& app) { return app.frmExport; }

bool horizontal(Merkkartelle& app) { return form(app).Check3D1.checked(); }

QStringList gewaehlteSpalten(Merkkartelle& app)
{
    QStringList spalten;
    for (const ListItem& item : form(app).DatenfelderExport.Items)
        spalten << item.Text;
    return spalten;
}

// Writes through a buffer that is handed to the file in large pieces.
class Ausgabe {
public:
    explicit Ausgabe(const QString& path) : file_(resolvePath(path))
    {
        if (!file_.open(QIODevice::WriteOnly))
            raiseFileError(QFileInfo(DateiPfad(file_.fileName())).isDir() ? err::PermissionDenied : err::PathNotFound);
        text_.reserve(kStueck + 4096);
    }
    void operator<<(const QString& text)
    {
        text_ += text;
        if (text_.size() >= kStueck)
            leeren();
    }
    void schliessen()
    {
        leeren();
        if (!file_.commit())
            raiseFileError(err::DiskFull);
    }

private:
    void leeren()
    {
        buffer_ = text_.toUtf8();
        text_.resize(0);
        if (!buffer_.isEmpty() && file_.write(buffer_) != buffer_.size()) {
            file_.cancelWriting();
            raiseFileError(err::DiskFull);
        }
        buffer_.clear();
    }
    static constexpr qsizetype kStueck = 1 << 20;
    QSaveFile file_;
    QString text_;
    QByteArray buffer_;
};

// One item: a blank, the text, a blank; after every item but the last a line end when the
// layout is one line per column.
void zeileSchreiben(Ausgabe& aus, const QStringList& texte, bool waagerecht)
{
    for (qsizetype i = 0; i < texte.size(); ++i) {
        aus << kBlank;
        aus << texte.at(i);
        aus << kBlank;
        if (i + 1 < texte.size() && !waagerecht)
            aus << kZeilenende;
    }
}

void listenKnoepfe(Merkkartelle& app)
{
    auto& f = form(app);
    f.Export.Enabled = f.DatenfelderExport.ListCount() > 0;
}

}  // namespace

void ExportSchreiben(Merkkartelle& app, const QString& path, const QStringList& columns, bool waagerecht)
{
    auto& f = form(app);
    Recordset& satz = *app.Kartensatz;
    const QByteArray zurueck = satz.IsEOF() || satz.IsBOF() ? QByteArray() : satz.Bookmark();

    Ausgabe aus(path);
    f.Infozeile.Caption = QStringLiteral("Escrevendo Inicio");
    zeileSchreiben(aus, columns, waagerecht);
    aus << QStringLiteral("\r\r");

    // The columns are found once; the third field of the table is the progress.
    std::vector<Field> felder;
    for (const QString& spalte : columns)
        felder.push_back(satz.Fields(spalte));
    const std::vector<FieldDef> definitionen = satz.fieldDefs();
    std::optional<Field> dritte;
    if (definitionen.size() > 2)
        dritte = satz.Fields(definitionen[2].Name);
    QStringList werte;
    if (satz.RecordCount() > 0)
        satz.MoveFirst();
    while (!satz.IsEOF()) {
        if (dritte) {
            const QVariant wert = dritte->Value();
            if (wert.isValid())
                f.Infozeile.Caption = wert.toString();
        }
        werte.clear();
        for (const Field& feld : felder) {
            const QVariant wert = feld.Value();
            werte << (wert.isValid() ? wert.toString() : QStringLiteral("*"));
        }
        zeileSchreiben(aus, werte, waagerecht);
        aus << kZeilenende;
        satz.MoveNext();
    }
    aus.schliessen();
    if (!zurueck.isEmpty())
        underIgnoredErrors([&] { satz.setBookmark(zurueck); });
}

// ---- the form ------------------------------------------------------------------------------

void frmExport_Show(Merkkartelle& app)
{
    showForm(app, app.frmExport, true);
}

namespace {

void frmExport_Load(Merkkartelle& app)
{
    auto& f = form(app);
    const QString eintrag = app.Einstellungsliste[kExportLayoutEntry];
    if (!eintrag.isEmpty())
        underIgnoredErrors([&] { f.Check3D1.Value = toBoolean(eintrag) ? 1 : 0; });
    f.Export.Enabled = false;
    f.Übernehmen.Enabled = false;
    f.Rückgängig.Enabled = false;
    // A table with fewer fields simply ends the list.
    underIgnoredErrors([&] {
        if (!app.Kartendatenbank)
            return;
        const std::vector<FieldDef> felder = app.Kartendatenbank->tableDef(app.Tabellenname);
        for (int i = 0; i <= kLetzterFeldindex && i < int(felder.size()); ++i)
            f.Datenfelder.AddItem(felder[std::size_t(i)].Name);
    });
    if (f.Datenfelder.ListCount() > 0)
        f.Datenfelder.ListIndex = 0;
}

void Uebernehmen_Click(Merkkartelle& app)
{
    auto& f = form(app);
    if (f.Datenfelder.ListIndex < 0)
        return;
    f.DatenfelderExport.AddItem(f.Datenfelder.Text());
    f.Export.Enabled = true;
}

void Rueckgaengig_Click(Merkkartelle& app)
{
    auto& f = form(app);
    ListBox& liste = f.DatenfelderExport;
    if (liste.ListIndex >= 0)
        liste.RemoveItem(liste.ListIndex);
    listenKnoepfe(app);
    if (liste.ListIndex < 0)
        f.Rückgängig.Enabled = false;
}

void alleHinzufuegen_Click(Merkkartelle& app)
{
    auto& f = form(app);
    f.DatenfelderExport.Clear();
    for (const ListItem& item : f.Datenfelder.Items)
        f.DatenfelderExport.AddItem(item.Text);
    listenKnoepfe(app);
}

// With the list empty the export is off, so that no empty file can come about.
void alleLoeschen_Click(Merkkartelle& app)
{
    form(app).DatenfelderExport.Clear();
    form(app).Rückgängig.Enabled = false;
    listenKnoepfe(app);
}

void Export_Click(Merkkartelle& app)
{
    auto& f = form(app);
    if (f.DatenfelderExport.ListCount() == 0 || !app.Kartensatz)
        return;
    FileDialog dialog;
    dialog.DefaultExt = QStringLiteral("TXT");
    dialog.DialogTitle = QStringLiteral("Arquivo para WINWORD");
    dialog.Filter = QStringLiteral("Word para Windows ASC (*.DOC)|*.DOC|Windows ASCII (*.TXT)|*.TXT");
    dialog.FilterIndex = 2;
    const FileChoice wahl = app.ui.ShowSave(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    f.Infozeile.Caption = QStringLiteral("Convertendo para:") + wahl.FileName;
    // No box: the status line says that the file could not be written.
    try {
        ExportSchreiben(app, wahl.FileName, gewaehlteSpalten(app), horizontal(app));
    } catch (const RuntimeError& fehler) {
        f.Infozeile.Caption = QStringLiteral("Fehler: ") + wahl.FileName + QStringLiteral(" - ") + fehler.Description;
    }
}

void Schliessen_Click(Merkkartelle& app)
{
    app.Einstellungsliste[kExportLayoutEntry] = horizontal(app) ? QStringLiteral("True") : QStringLiteral("False");
    unloadForm(app, app.frmExport);
    DatenInMaske(app);
}

void frmExport_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral("Tastaturbelegung") + kZeilenende + QStringLiteral("ESC = Schliessen "));
    else if (args.KeyCode == vbKeyEscape)
        Schliessen_Click(app);
}

void hinweis(Merkkartelle& app, const QString& text) { form(app).Infozeile.Caption = text; }

}  // namespace

void registerExportHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("frmExport");
    const QString click = QStringLiteral("Click");
    const QString dbl = QStringLiteral("DblClick");
    const QString move = QStringLiteral("MouseMove");
    table.onForm(f, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { frmExport_Load(app); });
    table.onForm(f, QStringLiteral("KeyDown"), frmExport_KeyDown);
    table.on(f, QStringLiteral("Übernehmen"), click, Uebernehmen_Click);
    table.on(f, QStringLiteral("Rückgängig"), click, Rueckgaengig_Click);
    table.on(f, QStringLiteral("Command1"), click, alleHinzufuegen_Click);
    table.on(f, QStringLiteral("Command2"), click, alleLoeschen_Click);
    table.on(f, QStringLiteral("Export"), click, Export_Click);
    table.on(f, QStringLiteral("Command3D1"), click, Schliessen_Click);
    table.on(f, QStringLiteral("Datenfelder"), click, [](Merkkartelle& app) { form(app).Übernehmen.Enabled = true; });
    table.on(f, QStringLiteral("Datenfelder"), dbl, Uebernehmen_Click);
    table.on(f, QStringLiteral("DatenfelderExport"), click, [](Merkkartelle& app) { form(app).Rückgängig.Enabled = true; });
    table.on(f, QStringLiteral("DatenfelderExport"), dbl, Rueckgaengig_Click);
    table.on(f, QStringLiteral("Datenfelder"), move, [](Merkkartelle& app) { hinweis(app, QStringLiteral("Feld für den export auswählen")); });
    table.on(f, QStringLiteral("DatenfelderExport"), move, [](Merkkartelle& app) { hinweis(app, QStringLiteral("Zielfelder")); });
    table.on(f, QStringLiteral("Export"), move, [](Merkkartelle& app) { hinweis(app, QStringLiteral("Exportdatei erzeugen")); });
    table.on(f, QStringLiteral("Check3D1"), move, [](Merkkartelle& app) {
        hinweis(app, horizontal(app) ? QStringLiteral("Daten Horizontal in einer Linie ausgeben")
                                     : QStringLiteral("Daten untereinander anordnen"));
    });
}

}  // namespace mk
