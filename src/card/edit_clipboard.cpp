#include "card/edit_clipboard.h"

#include "card/app_state.h"
#include "printing/label_printing.h"
#include "search/field_selection.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "maintenance/export.h"

#include <algorithm>

namespace mk {

namespace {

constexpr int kBildfeld = 16;  // feld(16) holds the path of the card's picture

// The text and selection of the focused slot; null text when no slot had the focus.
struct Fokus {
    QString path;
    QString* text = nullptr;
    TextSelection* sel = nullptr;
    int maxLength = 0;
};

Fokus fokus(Merkkartelle& app)
{
    Fokus f;
    if (app.Fokusfeld.isEmpty())
        return f;
    const ControlRef ref = app.forms.control(app.Fokusfeld);
    f.path = app.Fokusfeld;
    if (ref.is(ControlKind::TextBox)) {
        auto& box = ref.as<TextBox>();
        f.text = &box.Text;
        f.sel = &box;
        f.maxLength = box.MaxLength;
    } else if (ref.is(ControlKind::RichText)) {
        auto& box = ref.as<RichText>();
        f.text = &box.Text;
        f.sel = &box;
        f.maxLength = box.MaxLength;
    }
    return f;
}

// The selection of the focused slot, when there is a slot and a selection.
bool auswahlKopieren(Merkkartelle& app, Fokus& f)
{
    if (!bearbeitungOffen(app))
        return false;
    f = fokus(app);
    if (!f.text)
        return false;
    const QString auswahl = selectedText(*f.text, *f.sel);
    if (auswahl.isEmpty())
        return false;
    app.ui.setClipboardText(auswahl);
    return true;
}

}  // namespace

void Kopieren(Merkkartelle& app)
{
    Fokus f;
    auswahlKopieren(app, f);
}

void Ausschneiden(Merkkartelle& app)
{
    Fokus f;
    if (!auswahlKopieren(app, f))
        return;
    replaceSelection(*f.text, *f.sel, QString());
    // Cutting changes the text as typing does.
    raiseEvent(app, f.path, QStringLiteral("Change"));
}

void Einfuegen(Merkkartelle& app)
{
    if (!bearbeitungOffen(app))
        return;
    Fokus f = fokus(app);
    if (!f.text)
        return;
    QString neu = app.ui.clipboardText();
    if (f.maxLength > 0) {
        // What a user puts in stops at MaxLength; the rest of the text stays.
        const int auswahl = int(selectedText(*f.text, *f.sel).size());
        const int platz = std::max(f.maxLength - (int(f.text->size()) - auswahl), 0);
        neu = neu.left(platz);
    }
    if (neu.isEmpty())
        return;
    replaceSelection(*f.text, *f.sel, neu);
    raiseEvent(app, f.path, QStringLiteral("Change"));
}

void BildAussuchen(Merkkartelle& app)
{
    if (!bearbeitungOffen(app))
        return;
    FileDialog dialog;
    dialog.DialogTitle = QStringLiteral("Bild aussuchen");
    dialog.Filter = QStringLiteral("Bilder (*.bmp;*.jpg;*.gif;*.png)|*.bmp;*.jpg;*.jpeg;*.gif;*.png|"
                                   "Alle Dateien (*.*)|*.*|");
    dialog.FileName = app.Hauptmaske.feld[kBildfeld].Text;
    dialog.Flags = cdlOFNFileMustExist;
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    TextBox& bildfeld = app.Hauptmaske.feld[kBildfeld];
    bildfeld.Text = wahl.FileName;
    bildfeld.SelStart = int(bildfeld.Text.size());
    bildfeld.SelLength = 0;
    // The path passes the slot's own check of its column, then the picture shows.
    raiseEvent(app, QStringLiteral("Hauptmaske.feld(%1)").arg(kBildfeld), QStringLiteral("Change"));
    KartenbildZeigen(app);
}

// While browsing, these buttons belong to subsystems of their own (the selection, the export,
// the labels); until those answer here a click in browse state does nothing. The export
// answers.
void Command3D23_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        Ausschneiden(app);
    else if (!bildschutzSichtbar(app))
        SelektionBearbeiten(app);
}

void Command3D25_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        Einfuegen(app);
    else
        frmExport_Show(app);
}

void Command3D13_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        BildAussuchen(app);
    else
        EtikettenKonfigurieren(app);
}

void registerEditClipboardHandlers(HandlerTable& table)
{
    const QString main = QStringLiteral("Hauptmaske");
    const QString click = QStringLiteral("Click");
    table.on(main, QStringLiteral("Command3D23"), click, Command3D23_Click);
    table.on(main, QStringLiteral("Command3D25"), click, Command3D25_Click);
    table.on(main, QStringLiteral("Command3D13"), click, Command3D13_Click);
}

}  // namespace mk
