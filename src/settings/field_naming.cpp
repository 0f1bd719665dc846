#include "settings/field_naming.h"

#include "card/app_state.h"
#include "card/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text_files.h"

#include <optional>
#include <vector>

namespace mk {

namespace {

constexpr int kNamedLabels = 25;

// The labels a .den file may not rename, in the order their design captions are put back.
// The start also puts back Geburtstag (13), so a name for it read through the menu lasts
// only until the next start.
const std::vector<int> kResetAtStart = {0, 1, 5, 4, 2, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
const std::vector<int> kResetAfterLoad = {0, 1, 5, 4, 2, 6, 9, 8, 11, 14, 15, 10, 7, 12};

QString standardFile(Merkkartelle& app)
{
    return joinPath(app.Arbeitsverzeichnis, kStandardNamingFile);
}

bool editing(Merkkartelle& app)
{
    return app.Hauptmaske.AdresseÄndern.Caption == u"OK" || app.Hauptmaske.NeueAdresse.Caption == u"Speichern";
}

// The naming dialog of the main form; only the title differs between loading and saving.
FileDialog namingDialog(Merkkartelle& app, const char* title)
{
    FileDialog dialog;
    dialog.InitDir = app.Arbeitsverzeichnis;
    dialog.FileName = kStandardNamingFile;
    dialog.Filter = QStringLiteral("Benennung (*.den)|*.den|");
    dialog.DialogTitle = QString::fromUtf8(title);
    return dialog;
}

// The input box of a label: an empty answer, as a cancel gives, keeps the caption.
void renameLabel(Merkkartelle& app, Label& label)
{
    const QString before = label.Caption;
    const QString answer = app.ui.InputBox(QStringLiteral("Benennung eingeben"), QStringLiteral("Benennung"), before);
    label.Caption = answer.isEmpty() ? before : answer;
}

}  // namespace

bool isNameableLabel(int index)
{
    return index == 3 || (index >= 17 && index <= 24);
}

void FeldbenennungEinlesen(Merkkartelle& app, const QString& file, NamingReset reset)
{
    std::optional<TextReader> reader;
    underIgnoredErrors([&] { reader.emplace(file); });
    if (reader) {
        for (int i = 0; i < kNamedLabels; ++i) {
            // A failed input keeps what the slot held, and the caption takes that.
            underIgnoredErrors([&] { app.Feldbenennung[std::size_t(i)] = reader->next(); });
            app.Hauptmaske.beschreibung[i].Caption = app.Feldbenennung[std::size_t(i)];
        }
    }
    for (int i : reset == NamingReset::AtStart ? kResetAtStart : kResetAfterLoad)
        app.Hauptmaske.beschreibung[i].Caption = designCaption(i);
}

void StandardBenennungEinlesen(Merkkartelle& app, NamingReset reset)
{
    FeldbenennungEinlesen(app, standardFile(app), reset);
}

void FeldbenennungSchreiben(Merkkartelle& app, const QString& file)
{
    std::vector<WriteValue> captions;
    for (int i = 0; i < kNamedLabels; ++i)
        captions.emplace_back(app.Hauptmaske.beschreibung[i].Caption);
    writePositionalFile(file, captions);
}

void StandardBenennungSchreiben(Merkkartelle& app)
{
    FeldbenennungSchreiben(app, standardFile(app));
}

void BenennungenZuruecksetzen(Merkkartelle& app)
{
    for (int i = 0; i < kNamedLabels; ++i)
        app.Hauptmaske.beschreibung[i].Caption = designCaption(i);
}

void beschreibung_DblClick(Merkkartelle& app, int index)
{
    if (!isNameableLabel(index))
        return;
    renameLabel(app, app.Hauptmaske.beschreibung[index]);
}

void beschreibungnum_DblClick(Merkkartelle& app, int index)
{
    renameLabel(app, app.Hauptmaske.beschreibungnum[index]);
}

void beschreibung_MouseMove(Merkkartelle& app, int index)
{
    if (editing(app))
        return;
    app.Hauptmaske.Panel3D3.Caption = QStringLiteral("Benennung: ") + app.Hauptmaske.beschreibung[index].Caption;
}

void abrirdenominacao_Click(Merkkartelle& app)
{
    ArbeitsverzeichnisSetzen(app);
    const FileChoice choice = app.ui.ShowOpen(namingDialog(app, "Benennungs einstellung laden..."));
    if (choice.cancelled)
        return;
    FeldbenennungEinlesen(app, choice.FileName, NamingReset::AfterLoad);
}

void salvarden_Click(Merkkartelle& app)
{
    ArbeitsverzeichnisSetzen(app);
    const FileChoice choice = app.ui.ShowSave(namingDialog(app, "Benennungseinstellung speichern..."));
    if (choice.cancelled)
        return;
    bool exists = false;
    underIgnoredErrors([&] { exists = !Dir(choice.FileName).isEmpty(); });
    if (exists) {
        const int answer = app.ui.MsgBox(QStringLiteral("Bestehende Datei: ") + choice.FileName + QStringLiteral("überschreiben ?"),
                                         vbYesNo + vbQuestion, QStringLiteral("Salvar como"));
        if (answer != vbYes)
            return;
    }
    underIgnoredErrors([&] { FeldbenennungSchreiben(app, choice.FileName); });
    ArbeitsverzeichnisSetzen(app);
}

}  // namespace mk
