// Field naming: the .den file, the labels that a file may or may not rename, and the
// renaming of a label by a double click.

#include "settings/field_naming.h"

#include "card/app_state.h"
#include "support/file_bytes.h"
#include "support/scripted_system.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mk {
namespace {

using test::readBytes;
using test::writeBytes;

// A .den file whose line k names label k-1 "Name k-1:".
QByteArray namingFile(int lines = 25)
{
    QByteArray out;
    for (int i = 0; i < lines; ++i)
        out += "\"Name " + QByteArray::number(i) + ":\"\r\n";
    return out;
}

class FieldNamingTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        app.Arbeitsverzeichnis = dir.path();
    }
    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }
    QString caption(int i) { return app.Hauptmaske.beschreibung[i].Caption; }

    QTemporaryDir dir;
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
};

TEST_F(FieldNamingTest, WrittenAsTwentyFiveQuotedLines)
{
    app.Hauptmaske.beschreibung[18].Caption = QStringLiteral("Wert, in Euro:");
    StandardBenennungSchreiben(app);
    const QByteArray bytes = readBytes(path("standart.den"));
    EXPECT_TRUE(bytes.startsWith("\"Schluessel:\"\r\n\"Titel:\"\r\n"));
    EXPECT_TRUE(bytes.contains("\r\n\"Notizen\"\r\n"));
    EXPECT_TRUE(bytes.endsWith("\"Bild:\"\r\n\"Partei:\"\r\n"));
    EXPECT_EQ(bytes.count("\r\n"), 25);

    // Read and written again: the same bytes.
    test::ScriptedSystem other;
    other.app.Arbeitsverzeichnis = dir.path();
    StandardBenennungEinlesen(other.app, NamingReset::AfterLoad);
    EXPECT_EQ(other.app.Hauptmaske.beschreibung[18].Caption, "Wert, in Euro:");
    FeldbenennungSchreiben(other.app, path("wieder.den"));
    EXPECT_EQ(readBytes(path("wieder.den")), bytes);
}

TEST_F(FieldNamingTest, AFileNamesOnlyTheFreeLabels)
{
    writeBytes(path("namen.den"), namingFile());
    FeldbenennungEinlesen(app, path("namen.den"), NamingReset::AfterLoad);
    EXPECT_EQ(caption(2), "Firma:");
    EXPECT_EQ(caption(0), "Schluessel:");
    EXPECT_EQ(caption(15), "Telefax:");
    EXPECT_EQ(caption(3), "Name 3:");
    EXPECT_EQ(caption(13), "Name 13:");  // through the menu Geburtstag takes the file's name …
    EXPECT_EQ(caption(16), "Name 16:");
    EXPECT_EQ(caption(24), "Name 24:");
    EXPECT_EQ(app.Feldbenennung[2], "Name 2:");

    FeldbenennungEinlesen(app, path("namen.den"), NamingReset::AtStart);
    EXPECT_EQ(caption(13), "Geburtstag:");  // … the start does not
    EXPECT_EQ(caption(23), "Name 23:");
}

TEST_F(FieldNamingTest, MissingAndShortFiles)
{
    app.Hauptmaske.beschreibung[1].Caption = QStringLiteral("Anrede:");
    app.Hauptmaske.beschreibung[20].Caption = QStringLiteral("Steuernummer:");
    StandardBenennungEinlesen(app, NamingReset::AfterLoad);  // there is none
    EXPECT_EQ(caption(20), "Steuernummer:");
    EXPECT_EQ(caption(1), "Titel:");  // the resets still run

    writeBytes(path("kurz.den"), namingFile(19));
    FeldbenennungEinlesen(app, path("kurz.den"), NamingReset::AfterLoad);
    EXPECT_EQ(caption(18), "Name 18:");
    EXPECT_EQ(caption(20), "");  // a failed input leaves the empty slot of a fresh run
    EXPECT_EQ(caption(24), "");

    BenennungenZuruecksetzen(app);
    EXPECT_EQ(caption(20), "Staatsregister:");
    EXPECT_EQ(caption(16), "Notizen");
}

TEST_F(FieldNamingTest, DoubleClickRenamesThroughTheInputBox)
{
    ui.answerInput(QStringLiteral("Steuer-Nr."));
    raiseEvent(app, "Hauptmaske.beschreibung(20)", "DblClick");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].kind, "input");
    EXPECT_EQ(ui.boxes[0].prompt, "Benennung eingeben");
    EXPECT_EQ(ui.boxes[0].title, "Benennung");
    EXPECT_EQ(ui.boxes[0].fileName, "Staatsregister:");  // the preset: the caption as it is
    EXPECT_EQ(caption(20), "Steuer-Nr.");  // no colon added

    ui.answerInputCancel();
    raiseEvent(app, "Hauptmaske.beschreibung(20)", "DblClick");
    EXPECT_EQ(caption(20), "Steuer-Nr.");
    ui.answerInput(QString());
    raiseEvent(app, "Hauptmaske.beschreibung(23)", "DblClick");
    EXPECT_EQ(caption(23), "Bild:");

    raiseEvent(app, "Hauptmaske.beschreibung(2)", "DblClick");  // Firma is not free
    raiseEvent(app, "Hauptmaske.beschreibung(16)", "DblClick");
    EXPECT_EQ(ui.boxes.size(), 3u);

    ui.answerInput(QStringLiteral("Privat:"));
    raiseEvent(app, "Hauptmaske.beschreibungnum(0)", "DblClick");
    EXPECT_EQ(app.Hauptmaske.beschreibungnum[0].Caption, "Privat:");
}

TEST_F(FieldNamingTest, HintOnlyWhileBrowsing)
{
    raiseEvent(app, "Hauptmaske.beschreibung(21)", "MouseMove");
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, "Benennung: Passport:");
    app.Hauptmaske.Panel3D3.Caption.clear();
    app.Hauptmaske.AdresseÄndern.Caption = QStringLiteral("OK");
    raiseEvent(app, "Hauptmaske.beschreibung(21)", "MouseMove");
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, "");
}

TEST_F(FieldNamingTest, MenuDialogs)
{
    writeBytes(path("andere.den"), namingFile());
    ui.answerOpen(path("andere.den"));
    raiseEvent(app, "Hauptmaske.abrirdenominacao", "Click");
    EXPECT_EQ(ui.boxes[0].prompt, "Benennungs einstellung laden...");
    EXPECT_EQ(ui.boxes[0].filter, "Benennung (*.den)|*.den|");
    EXPECT_EQ(ui.boxes[0].fileName, "standart.den");
    EXPECT_EQ(ui.boxes[0].initDir, dir.path());
    EXPECT_EQ(caption(13), "Name 13:");

    ui.answerSave(path("andere.den"));
    ui.answerMsgBox(vbNo);
    app.Hauptmaske.beschreibung[22].Caption = QStringLiteral("Fach:");
    raiseEvent(app, "Hauptmaske.salvarden", "Click");
    EXPECT_EQ(ui.boxes[1].prompt, "Benennungseinstellung speichern...");
    const ShownBox* question = ui.checkNextMsgBox();
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->prompt, "Bestehende Datei: " + path("andere.den") + "überschreiben ?");
    EXPECT_EQ(question->title, "Salvar como");
    EXPECT_EQ(readBytes(path("andere.den")), namingFile());

    ui.answerSave(path("andere.den"));
    ui.answerMsgBox(vbYes);
    raiseEvent(app, "Hauptmaske.salvarden", "Click");
    ui.checkNextMsgBox();
    EXPECT_TRUE(readBytes(path("andere.den")).contains("\"Fach:\"\r\n"));
}

}  // namespace
}  // namespace mk
