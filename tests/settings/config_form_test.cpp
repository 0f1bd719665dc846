// The form config: colour schemes, colour and font buttons, opening and saving settings
// files through the dialog, and the options that act on the form itself.

#include "settings/settings_file.h"

#include "card/app_state.h"
#include "support/scripted_system.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mk {
namespace {

class ConfigFormTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        app.Arbeitsverzeichnis = dir.path();
    }
    void click(const QString& path)
    {
        applyClick(app.forms, app.forms.control(path));
        raiseEvent(app, path, QStringLiteral("Click"));
    }
    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }

    QTemporaryDir dir;
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
};

TEST_F(ConfigFormTest, DesignValues)
{
    EXPECT_EQ(app.config.Caption, "Einstellungen");
    EXPECT_EQ(app.config.Text2.Text, "02132");
    EXPECT_EQ(app.config.Check3D13.Caption, "Einstellungen speichern");
    EXPECT_EQ(app.config.Label34.Caption, "Benennung Focusfarbe");
    EXPECT_EQ(app.forms.read("config.SSCheck7.Value"), "False");
    EXPECT_EQ(app.forms.read("config.Check3D13.Value"), "False");
    EXPECT_EQ(app.forms.read("config.Command9.Caption"), "Standart Schwarz");
    EXPECT_EQ(app.forms.read("config.Command3d1.Caption"), "Schliessen");
    EXPECT_FALSE(app.config.Check3D9.Visible);
    for (const ControlRef& ref : app.forms.controls("config"))
        if (ref.is(ControlKind::CheckBox))
            EXPECT_EQ(ref.as<CheckBox>().Value, 0) << ref.path().toStdString();
}

TEST_F(ConfigFormTest, StandardGreyAndStandardBlack)
{
    click("config.Command9");
    Hauptmaske& h = app.Hauptmaske;
    EXPECT_EQ(h.BackColor, colour::Black);
    EXPECT_EQ(h.SSPanel2.BackColor, colour::Black);
    EXPECT_EQ(h.Panel3D2.BackColor, colour::Black);
    EXPECT_EQ(h.beschreibung[7].ForeColor, rgb(0, 255, 255));
    EXPECT_EQ(h.beschreibung[7].BackColor, rgb(24, 24, 24));
    EXPECT_EQ(app.Einstellungsliste[30], QString::number(rgb(24, 24, 24)));
    EXPECT_EQ(app.config.Label34.BackColor, rgb(178, 178, 178));
    EXPECT_EQ(app.config.Label34.ForeColor, rgb(255, 255, 0));
    EXPECT_EQ(h.feld[22].BackColor, colour::Black);
    EXPECT_EQ(h.feld[22].ForeColor, rgb(0, 255, 0));
    EXPECT_EQ(h.Bemerkung.BackColor, colour::Black);
    EXPECT_EQ(h.Partido.ForeColor, rgb(0, 255, 255));
    EXPECT_EQ(h.Ramal.BackColor, colour::Black);
    EXPECT_EQ(h.Bildschutz.BackColor, colour::Black);
    EXPECT_EQ(h.feld[0].Font.Name, "MS Sans Serif");
    EXPECT_EQ(h.feld[0].Font.Size, 8);
    EXPECT_EQ(h.feld[0].Height, 256);

    h.feld[3].Font.Bold = true;
    click("config.Command8");
    EXPECT_EQ(h.BackColor, rgb(192, 192, 192));
    EXPECT_EQ(h.beschreibung[7].ForeColor, colour::Black);
    EXPECT_EQ(h.beschreibung[7].BackColor, rgb(192, 192, 192));
    EXPECT_EQ(app.Einstellungsliste[30], "12632256");
    EXPECT_EQ(app.config.Label34.BackColor, colour::Black);
    EXPECT_EQ(app.config.Label34.ForeColor, rgb(255, 0, 0));
    EXPECT_EQ(h.feld[3].BackColor, colour::White);
    EXPECT_EQ(h.feld[3].ForeColor, rgb(0, 0, 128));
    EXPECT_FALSE(h.feld[3].Font.Bold);
    EXPECT_EQ(h.Partido.ForeColor, colour::Black);
    EXPECT_EQ(h.Partido.BackColor, colour::White);
    EXPECT_EQ(h.Bildschutz.BackColor, colour::White);
}

TEST_F(ConfigFormTest, ColourButtons)
{
    ui.answerColor(rgb(10, 20, 30));
    click("config.Command1");
    EXPECT_EQ(app.Hauptmaske.feld[12].BackColor, rgb(10, 20, 30));
    EXPECT_EQ(app.Hauptmaske.Bemerkung.BackColor, rgb(10, 20, 30));
    EXPECT_EQ(app.Hauptmaske.Ramal.BackColor, rgb(10, 20, 30));

    ui.answerColor(rgb(1, 1, 1));
    click("config.Command2");
    EXPECT_EQ(app.Hauptmaske.Partido.ForeColor, rgb(1, 1, 1));
    EXPECT_EQ(app.Hauptmaske.Bemerkung.ForeColor, colour::Black);

    ui.answerColorCancel();
    click("config.Command6");
    EXPECT_EQ(app.Hauptmaske.BackColor, colour::Grey);

    ui.answerColor(rgb(0, 0, 255));
    ui.answerColor(rgb(0, 255, 0));
    raiseEvent(app, "config.Label34", "MouseDown");
    EXPECT_EQ(app.config.Label34.BackColor, rgb(0, 0, 255));
    EXPECT_EQ(app.config.Label34.ForeColor, rgb(0, 255, 0));

    click("config.Command3d1");
    EXPECT_EQ(app.Hauptmaske.beschreibung[11].ForeColor, rgb(0, 0, 255));
    EXPECT_FALSE(app.config.Visible);
}

TEST_F(ConfigFormTest, FontButtonFallsBackToTheFixedFontOnCancel)
{
    app.Hauptmaske.feld[0].Font = FontSpec{QStringLiteral("Arial"), 12, true, false};
    ui.answerFontCancel();
    click("config.Command3");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].kind, "font");
    EXPECT_EQ(app.Hauptmaske.feld[0].Font.Name, "MS Sans Serif");
    EXPECT_EQ(app.Hauptmaske.feld[0].Font.Size, 8);
    EXPECT_EQ(app.Hauptmaske.Partido.Height, 256);

    ui.answerFont(QStringLiteral("Courier"), 10, false, true);
    click("config.Command3");
    EXPECT_EQ(app.Hauptmaske.feld[22].Font.Name, "Courier");
    EXPECT_EQ(app.Hauptmaske.Ramal.Font.Size, 10);
    EXPECT_TRUE(app.Hauptmaske.Ramal.Font.Italic);
}

TEST_F(ConfigFormTest, GridSearchOptions)
{
    click("config.Check3D9");
    EXPECT_EQ(app.config.Check3D9.Caption, "Gittersuch Nachname Vorname");
    click("config.Check3D9");
    EXPECT_EQ(app.config.Check3D9.Caption, "Gittersuch Schluessel Strasse");
    click("config.SSCheck11");
    EXPECT_TRUE(app.config.Check3D9.Visible);
    click("config.SSCheck11");
    EXPECT_FALSE(app.config.Check3D9.Visible);
}

TEST_F(ConfigFormTest, SaveAsksBeforeOverwriting)
{
    const QString target = path("andere.cfg");
    ui.answerSave(target);
    click("config.Command5");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].kind, "save");
    EXPECT_EQ(ui.boxes[0].prompt, "Einstellungsnamen auswählen zum speichern");
    EXPECT_EQ(ui.boxes[0].filter, "Einstellung (*.cfg)|*.cfg|");
    EXPECT_EQ(ui.boxes[0].fileName, "merkkartelle.cfg");
    EXPECT_EQ(ui.boxes[0].initDir, dir.path());
    ASSERT_TRUE(QFile::exists(target));

    app.config.Text2.Text = QStringLiteral("089");
    ui.answerSave(target);
    ui.answerMsgBox(vbNo);
    click("config.Command5");
    const ShownBox* question = ui.checkNextMsgBox();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->prompt, "Bestehende Datei überschreiben " + target + " ?");
    EXPECT_EQ(question->title, "Speichern unter");
    EinstellungenEinlesen(app, target);
    EXPECT_EQ(app.Einstellungsliste[176], "02132");

    ui.answerSave(target);
    ui.answerMsgBox(vbYes);
    click("config.Command5");
    ui.checkNextMsgBox();
    EinstellungenEinlesen(app, target);
    EXPECT_EQ(app.Einstellungsliste[176], "089");
}

TEST_F(ConfigFormTest, OpenReadsAndLoadsButLeavesTheStreetPresets)
{
    app.config.Text2.Text = QStringLiteral("030");
    app.config.Text20.Text = QStringLiteral("Alte Strasse");
    app.config.Text21.Text = QStringLiteral("Altes Viertel");
    EinstellungenSchreiben(app, path("gespeichert.cfg"));
    app.config.Text2.Text = QStringLiteral("040");
    app.config.Text20.Text = QStringLiteral("Neue Strasse");
    app.config.Text21.Text.clear();

    ui.answerOpenCancel();
    click("config.Command4");
    EXPECT_EQ(app.config.Text2.Text, "040");

    ui.answerOpen(path("gespeichert.cfg"));
    click("config.Command4");
    const ShownBox& open = ui.boxes.back();
    EXPECT_EQ(open.prompt, "Einstellungsdatei öffnen");
    EXPECT_EQ(open.filter, "Einstellungen (*.cfg)|*.cfg|");
    EXPECT_EQ(open.fileName, "merkkartelle.cfg");
    EXPECT_EQ(app.config.Text2.Text, "030");
    EXPECT_EQ(app.config.Text20.Text, "Neue Strasse");
    EXPECT_EQ(app.config.Text21.Text, "");
    EXPECT_FALSE(app.AboutBox.Loaded);
    EXPECT_TRUE(ui.allMsgBoxesChecked());
}

TEST_F(ConfigFormTest, ProgramPathThroughTheDialog)
{
    app.config.Text18.Text = QStringLiteral("alt.exe");
    ui.answerOpen(path("rechner.exe"));
    raiseEvent(app, "config.Text18", "DblClick");
    EXPECT_EQ(ui.boxes.back().prompt, "Programm auswählen ");
    EXPECT_EQ(ui.boxes.back().filter, "Programme (*.exe)|*.exe|");
    EXPECT_EQ(ui.boxes.back().fileName, "alt.exe");
    EXPECT_EQ(app.config.Text18.Text, path("rechner.exe"));
}

TEST_F(ConfigFormTest, KeysAndMenu)
{
    raiseEvent(app, "Hauptmaske.menuconfig", "Click");
    EXPECT_TRUE(app.config.Visible);
    EXPECT_EQ(app.config.Left, app.Hauptmaske.Left + (app.Hauptmaske.Width - app.config.Width) / 2);

    EventArgs f1;
    f1.KeyCode = vbKeyF1;
    raiseEvent(app, "config", "KeyDown", f1);
    const ShownBox* help = ui.checkNextMsgBox();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->prompt, "\r\nFunções do teclado \r\n\r\nESC = Beenden\r\n");

    app.config.Label34.BackColor = rgb(9, 9, 9);
    EventArgs esc;
    esc.KeyCode = vbKeyEscape;
    raiseEvent(app, "config", "KeyDown", esc);
    EXPECT_FALSE(app.config.Visible);
    EXPECT_NE(app.Hauptmaske.beschreibung[0].ForeColor, rgb(9, 9, 9));  // Esc skips the labels
}

}  // namespace
}  // namespace mk
