// The form config: the colour and font buttons, the two colour schemes, opening and saving
// a settings file, and the few options that act on the form itself.

#include "settings/field_naming.h"
#include "settings/settings_file.h"

#include "card/app_state.h"
#include "card/session.h"
#include "platform/files.h"

namespace mk {

namespace {

using M = Merkkartelle;

// The fields that share the colours and the font of the mask: feld(0..22), Partido, Ramal.
template <class Each>
void eachMaskField(M& app, Each each)
{
    for (auto& [index, field] : app.Hauptmaske.feld)
        each(static_cast<Control&>(field));
    each(static_cast<Control&>(app.Hauptmaske.Partido));
    each(static_cast<Control&>(app.Hauptmaske.Ramal));
}

// The font the fields fall back to before a chosen one takes effect.
void fixedFont(Control& c)
{
    c.Font.Name = QStringLiteral("MS Sans Serif");
    c.Font.Size = 8;
    c.Height = 256;
}

void formBackground(M& app, long colour)
{
    app.Hauptmaske.BackColor = colour;
    app.Hauptmaske.SSPanel2.BackColor = colour;
    app.Hauptmaske.Panel3D2.BackColor = colour;
}

struct Scheme {
    long form;
    long labelText;
    long labelBack;
    long swatchBack;
    long swatchFore;
    long field;
    long fieldText;
    long partidoText;
};

// "Standart Grau" and "Standart Schwarz".
void applyScheme(M& app, const Scheme& s)
{
    Hauptmaske& h = app.Hauptmaske;
    formBackground(app, s.form);
    for (auto& [index, label] : h.beschreibung) {
        label.ForeColor = s.labelText;
        label.BackColor = s.labelBack;
    }
    app.Einstellungsliste[30] = QString::number(s.labelBack);
    app.config.Label34.BackColor = s.swatchBack;
    app.config.Label34.ForeColor = s.swatchFore;
    eachMaskField(app, [&](Control& c) {
        c.BackColor = s.field;
        c.ForeColor = s.fieldText;
        fixedFont(c);
        c.Font.Bold = false;
        c.Font.Italic = false;
    });
    h.Partido.ForeColor = s.partidoText;
    h.Ramal.ForeColor = s.partidoText;
    h.Bemerkung.BackColor = s.field;
    h.Bildschutz.BackColor = s.field;
}

void Command1_Click(M& app)  // "Felder"
{
    const ColorChoice choice = app.ui.ShowColor(app.Hauptmaske.feld[0].BackColor);
    if (choice.cancelled)
        return;
    eachMaskField(app, [&](Control& c) { c.BackColor = choice.Color; });
    app.Hauptmaske.Bemerkung.BackColor = choice.Color;
}

void Command2_Click(M& app)  // "Text"
{
    const ColorChoice choice = app.ui.ShowColor(app.Hauptmaske.feld[0].ForeColor);
    if (choice.cancelled)
        return;
    eachMaskField(app, [&](Control& c) { c.ForeColor = choice.Color; });
}

void Command3_Click(M& app)  // "Schrift"
{
    const FontSpec& current = app.Hauptmaske.feld[0].Font;
    FontChoice initial;
    initial.Name = current.Name;
    initial.Size = current.Size;
    initial.Bold = current.Bold;
    initial.Italic = current.Italic;
    eachMaskField(app, fixedFont);
    const FontChoice choice = app.ui.ShowFont(initial);
    if (choice.cancelled)
        return;
    eachMaskField(app, [&](Control& c) {
        c.Font.Name = choice.Name;
        c.Font.Size = choice.Size;
        c.Font.Bold = choice.Bold;
        c.Font.Italic = choice.Italic;
    });
}

// The common dialog of config, set up for a settings file in the working directory.
FileDialog& einstellungsDialog(M& app, const QString& filter, const QString& title)
{
    FileDialog& dialog = app.config.CMDialog1;
    dialog.InitDir = app.Arbeitsverzeichnis;
    dialog.FileName = kSettingsFileName;
    dialog.Filter = filter;
    dialog.DialogTitle = title;
    return dialog;
}

void Command4_Click(M& app)  // "Öffnen"
{
    FileDialog& dialog = einstellungsDialog(app, QStringLiteral("Einstellungen (*.cfg)|*.cfg|"),
                                            QStringLiteral("Einstellungsdatei öffnen"));
    const FileChoice choice = app.ui.ShowOpen(dialog);
    if (choice.cancelled)
        return;
    dialog.FileName = choice.FileName;
    EinstellungenEinlesen(app, choice.FileName);
    EinstellungenLaden(app);
    unloadForm(app, QStringLiteral("AboutBox"));
    ArbeitsverzeichnisSetzen(app);
}

void Command5_Click(M& app)  // "Sichern"
{
    FileDialog& dialog = einstellungsDialog(app, QStringLiteral("Einstellung (*.cfg)|*.cfg|"),
                                            QStringLiteral("Einstellungsnamen auswählen zum speichern"));
    const FileChoice choice = app.ui.ShowSave(dialog);
    if (choice.cancelled)
        return;
    dialog.FileName = choice.FileName;
    bool exists = false;
    underIgnoredErrors([&] { exists = !Dir(choice.FileName).isEmpty(); });
    if (exists) {
        const int answer = app.ui.MsgBox(QStringLiteral("Bestehende Datei überschreiben ") + choice.FileName + QStringLiteral(" ?"),
                                         vbYesNo + vbQuestion, QStringLiteral("Speichern unter"));
        if (answer == vbNo)
            return;
    }
    underIgnoredErrors([&] { EinstellungenSchreiben(app, choice.FileName); });
    ArbeitsverzeichnisSetzen(app);
}

void Command6_Click(M& app)  // "Hintergrund"
{
    const ColorChoice choice = app.ui.ShowColor(app.Hauptmaske.BackColor);
    if (choice.cancelled)
        return;
    formBackground(app, choice.Color);
}

void Command8_Click(M& app)  // "Standart Grau"
{
    applyScheme(app, {rgb(192, 192, 192), colour::Black, rgb(192, 192, 192), colour::Black, rgb(255, 0, 0),
                      colour::White, rgb(0, 0, 128), colour::Black});
}

void Command9_Click(M& app)  // "Standart Schwarz"
{
    applyScheme(app, {colour::Black, rgb(0, 255, 255), rgb(24, 24, 24), rgb(178, 178, 178), rgb(255, 255, 0),
                      colour::Black, rgb(0, 255, 0), rgb(0, 255, 255)});
}

void Command3d1_Click(M& app)  // "Schliessen"
{
    for (auto& [index, label] : app.Hauptmaske.beschreibung)
        label.ForeColor = app.config.Label34.BackColor;
    hideForm(app, QStringLiteral("config"));
}

// The swatch: first the colour of the labels, then that of the focused label.
void Label34_MouseDown(M& app)
{
    Label& swatch = app.config.Label34;
    const ColorChoice back = app.ui.ShowColor(swatch.BackColor);
    if (back.cancelled)
        return;
    swatch.BackColor = back.Color;
    const ColorChoice fore = app.ui.ShowColor(swatch.ForeColor);
    if (fore.cancelled)
        return;
    swatch.ForeColor = fore.Color;
}

void Check3D9_Click(M& app)
{
    CheckBox& box = app.config.Check3D9;
    box.Caption = box.Value ? kGittersuchNachname : kGittersuchSchluessel;
}

void SSCheck11_Click(M& app)
{
    app.config.Check3D9.Visible = app.config.SSCheck11.Value != 0;
}

void Text18_DblClick(M& app)
{
    ArbeitsverzeichnisSetzen(app);
    FileDialog& dialog = app.config.CMDialog1;
    dialog.FileName = app.config.Text18.Text;
    dialog.Filter = QStringLiteral("Programme (*.exe)|*.exe|");
    dialog.DialogTitle = QStringLiteral("Programm auswählen ");
    const FileChoice choice = app.ui.ShowOpen(dialog);
    if (choice.cancelled)
        return;
    dialog.FileName = choice.FileName;
    app.config.Text18.Text = choice.FileName;
    ArbeitsverzeichnisSetzen(app);
}

void config_KeyDown(M& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape) {
        hideForm(app, QStringLiteral("config"));
    } else if (args.KeyCode == vbKeyF1) {
        app.ui.MsgBox(QStringLiteral("\r\nFunções do teclado \r\n\r\nESC = Beenden\r\n"));
    }
}

void menuconfig_Click(M& app)
{
    const Hauptmaske& h = app.Hauptmaske;
    config& c = app.config;
    c.Left = h.Left + (h.Width - c.Width) / 2;
    c.Top = h.Top + (h.Height - c.Height) / 2;
    showForm(app, QStringLiteral("config"));
}

}  // namespace

void registerSettingsHandlers(HandlerTable& table)
{
    const QString config = QStringLiteral("config");
    const QString click = QStringLiteral("Click");
    table.on(config, QStringLiteral("Command1"), click, Command1_Click);
    table.on(config, QStringLiteral("Command2"), click, Command2_Click);
    table.on(config, QStringLiteral("Command3"), click, Command3_Click);
    table.on(config, QStringLiteral("Command4"), click, Command4_Click);
    table.on(config, QStringLiteral("Command5"), click, Command5_Click);
    table.on(config, QStringLiteral("Command6"), click, Command6_Click);
    table.on(config, QStringLiteral("Command8"), click, Command8_Click);
    table.on(config, QStringLiteral("Command9"), click, Command9_Click);
    table.on(config, QStringLiteral("Command3d1"), click, Command3d1_Click);
    table.on(config, QStringLiteral("Label34"), QStringLiteral("MouseDown"), Label34_MouseDown);
    table.on(config, QStringLiteral("Check3D9"), click, Check3D9_Click);
    table.on(config, QStringLiteral("SSCheck11"), click, SSCheck11_Click);
    table.on(config, QStringLiteral("Text18"), QStringLiteral("DblClick"), Text18_DblClick);
    table.onForm(config, QStringLiteral("KeyDown"), config_KeyDown);

    const QString main = QStringLiteral("Hauptmaske");
    table.on(main, QStringLiteral("menuconfig"), click, menuconfig_Click);
    table.on(main, QStringLiteral("beschreibung"), QStringLiteral("DblClick"), beschreibung_DblClick);
    table.on(main, QStringLiteral("beschreibungnum"), QStringLiteral("DblClick"), beschreibungnum_DblClick);
    table.on(main, QStringLiteral("beschreibung"), QStringLiteral("MouseMove"), beschreibung_MouseMove);
    table.on(main, QStringLiteral("abrirdenominacao"), click, abrirdenominacao_Click);
    table.on(main, QStringLiteral("salvarden"), click, salvarden_Click);
}

}  // namespace mk
