// The settings file: its line forms, the round trip of every record, the quiet handling of
// missing, short and damaged files, and what loading does with the records.

#include "settings/settings_file.h"

#include "card/app_state.h"
#include "platform/text_files.h"
#include "support/file_bytes.h"
#include "support/scripted_system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mk {
namespace {

using test::readBytes;
using test::writeBytes;

QList<QByteArray> linesOf(const QByteArray& bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    for (QByteArray& line : lines)
        line.chop(1);  // the CR
    return lines;
}

QByteArray joinLines(const QList<QByteArray>& lines)
{
    QByteArray out;
    for (const QByteArray& line : lines)
        out += line + "\r\n";
    return out;
}

class SettingsFileTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        app.Arbeitsverzeichnis = dir.path();
    }
    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }

    // The file a design system writes, line by line.
    QList<QByteArray> designLines()
    {
        test::ScriptedSystem fresh;
        fresh.app.Arbeitsverzeichnis = dir.path();
        EinstellungenSchreiben(fresh.app, path("design.cfg"));
        return linesOf(readBytes(path("design.cfg")));
    }

    QTemporaryDir dir;
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
};

TEST_F(SettingsFileTest, WriterPutsEachTypeInItsLineForm)
{
    app.Hauptmaske.Top = 1234;
    app.Hauptmaske.feld[0].Font.Size = 9.75;
    app.Hauptmaske.BackColor = rgb(1, 2, 3);
    app.config.Label34.ForeColor = -2147483633;  // a system colour: top bit set
    app.config.SSCheck4.Value = 1;
    app.config.Text9.Text = QStringLiteral("Betreff, mit Komma");
    app.etiquet.Check3.Value = 2;
    app.Hauptmaske.beschreibungnum[0].Caption = QStringLiteral("Privat:");
    app.Einstellungsliste[28] = QStringLiteral("mitgetragen");

    EinstellungenSchreiben(app);
    const QByteArray bytes = readBytes(path("merkkartelle.cfg"));
    ASSERT_TRUE(bytes.endsWith("\r\n"));
    const QList<QByteArray> lines = linesOf(bytes);
    ASSERT_EQ(lines.size(), 196);
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));

    EXPECT_EQ(lines[0], "\"0\"");                           // 1: etiquet.Text5, text
    EXPECT_EQ(lines[11], "\"1\"");                          // 12: Quantidade
    EXPECT_EQ(lines[27], "\"mitgetragen\"");                // 28: carried along
    EXPECT_EQ(lines[31], "#TRUE#");                         // 32: SSCheck4
    EXPECT_EQ(lines[32], "#FALSE#");                        // 33: SSCheck5
    EXPECT_EQ(lines[37], "2");                              // 38: etiquet.Check3, integer
    EXPECT_EQ(lines[55], "1234");                           // 56: Hauptmaske.Top, single
    EXPECT_EQ(lines[74], "16711680");                       // 75: etiquet.Infoforecolor, blue
    EXPECT_EQ(lines[80], QByteArray::number(qlonglong(rgb(1, 2, 3))));  // 81
    EXPECT_EQ(lines[89], "16777215");                       // 90: feld(0) background, white
    EXPECT_EQ(lines[120], "\"MS Sans Serif\"");             // 121
    EXPECT_EQ(lines[121], "9.75");                          // 122: font size, single
    EXPECT_EQ(lines[139], "\"Betreff, mit Komma\"");        // 140
    EXPECT_EQ(lines[165], "\"E-Mail 1:\"");                 // 166: fixed whatever the caption
    EXPECT_EQ(lines[167], "\"Homepage:\"");
    EXPECT_EQ(lines[168], "\"KFZ-Nr.:\"");                  // 169: beschreibungnum(3)
    EXPECT_EQ(lines[175], "\"02132\"");                     // 176: config.Text2
    for (int n = 177; n <= 189; ++n)
        EXPECT_EQ(lines[n - 1], "\"\"") << "record " << n;
    EXPECT_EQ(lines[193], "-2147483633");                   // 194
}

// Everything read is written back as it came: the records of controls through their
// controls, the carried ones from the table, commas inside texts included.
TEST_F(SettingsFileTest, ReadLoadWriteKeepsTheBytes)
{
    QList<QByteArray> lines = designLines();
    const std::vector<int> carried = {14, 15, 28, 30, 41, 42, 43, 50, 51, 52, 53, 54, 55, 58, 59, 60, 61,
                                      66, 67, 68, 70, 84, 85, 86, 87, 88, 89, 92, 93, 94, 95, 96, 97, 99,
                                      100, 104, 105, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 119,
                                      120, 126, 127, 128, 129, 130, 131, 141, 142, 143, 144, 145, 146, 147,
                                      148, 149, 150, 160, 161, 190};
    for (int n : carried)
        lines[n - 1] = "\"Satz " + QByteArray::number(n) + ", unbenutzt äöü\"";
    lines[41 - 1] = lines[62 - 1] = "\"D\"";  // the backup form starts from entry 41
    lines[42 - 1] = lines[63 - 1] = "\"\\Sicherung\"";
    lines[1 - 1] = "\"1.5\"";
    lines[12 - 1] = "\"3\"";
    lines[16 - 1] = "\"PLZ + Stadt\"";
    lines[21 - 1] = "\"Kunde\"";
    lines[29 - 1] = "\"117\"";
    lines[32 - 1] = "#TRUE#";
    lines[39 - 1] = "1";
    lines[45 - 1] = "\"12\"";
    lines[56 - 1] = "1500";
    lines[65 - 1] = "\"5\"";
    lines[75 - 1] = "255";
    lines[79 - 1] = "\"Hauptstrasse\"";
    lines[80 - 1] = "\"Mitte\"";
    lines[81 - 1] = "0";
    lines[82 - 1] = "65535";
    lines[90 - 1] = "0";
    lines[91 - 1] = "65280";
    lines[121 - 1] = "\"Arial\"";
    lines[122 - 1] = "10.5";
    lines[123 - 1] = "#TRUE#";
    lines[125 - 1] = "\"bild.bmp\"";
    lines[136 - 1] = "\"25\"";
    lines[137 - 1] = "\"15\"";
    lines[138 - 1] = "\"30\"";
    lines[156 - 1] = "\"prog.exe\"";
    lines[162 - 1] = "#TRUE#";
    lines[164 - 1] = "#TRUE#";
    lines[170 - 1] = "\"Feld A:\"";
    lines[174 - 1] = "\"12\"";
    lines[175 - 1] = "#TRUE#";
    lines[176 - 1] = "\"040\"";
    lines[191 - 1] = "\"-500\"";
    lines[194 - 1] = "255";
    const QByteArray original = joinLines(lines);
    writeBytes(path("merkkartelle.cfg"), original);

    EinstellungenEinlesen(app);
    EinstellungenBeimStart(app, {});
    EinstellungenSchreiben(app, path("wieder.cfg"));
    const QList<QByteArray> again = linesOf(readBytes(path("wieder.cfg")));
    ASSERT_EQ(again.size(), 196);
    for (int n = 1; n <= 196; ++n)
        EXPECT_EQ(again[n - 1], lines[n - 1]) << "record " << n;
    EXPECT_EQ(readBytes(path("wieder.cfg")), original);
}

TEST_F(SettingsFileTest, MissingOrEmptyFileKeepsTheDesign)
{
    for (const char* name : {"fehlt.cfg", "leer.cfg"}) {
        test::ScriptedSystem fresh;
        Merkkartelle& a = fresh.app;
        a.Arbeitsverzeichnis = dir.path();
        if (QByteArray(name) == "leer.cfg")
            writeBytes(path(name), QByteArray());
        EinstellungenEinlesen(a, path(name));
        EinstellungenLaden(a);
        SCOPED_TRACE(name);
        EXPECT_EQ(a.config.Text2.Text, "02132");
        EXPECT_EQ(a.config.SSCheck4.Value, 0);
        EXPECT_EQ(a.config.Check3D13.Value, 0);
        EXPECT_EQ(a.etiquet.Quantidade.Text, "1");
        EXPECT_EQ(a.etiquet.colunas.Text, "1");
        EXPECT_EQ(a.etiquet.Text10.Text, "Tel.:");
        EXPECT_EQ(a.Hauptmaske.currentindex.Caption, "21");
        EXPECT_EQ(a.config.Text12.Text, "20");
        EXPECT_EQ(a.config.Text13.Text, "20");
        EXPECT_EQ(a.config.Text14.Text, "20");
        EXPECT_EQ(a.Hauptmaske.feld[3].BackColor, colour::White);
        EXPECT_EQ(a.Hauptmaske.feld[3].ForeColor, colour::Black);
        EXPECT_EQ(a.Hauptmaske.Typenliste[0].Caption, "Typ 1");
        EXPECT_EQ(a.Hauptmaske.Label5.Caption, "A - Z");
        EXPECT_TRUE(a.Einstellungsliste[40].isNull());
    }
}

TEST_F(SettingsFileTest, ShortFileLeavesTheLaterRecordsAlone)
{
    QList<QByteArray> lines = designLines();
    lines[32 - 1] = "#TRUE#";
    lines = lines.mid(0, 100);
    writeBytes(path("merkkartelle.cfg"), joinLines(lines));
    app.config.Text2.Text = QStringLiteral("0211");

    EinstellungenEinlesen(app);
    EinstellungenLaden(app);
    EXPECT_EQ(app.config.SSCheck4.Value, 1);
    EXPECT_EQ(app.config.Text2.Text, "0211");  // record 176 was never read
    EXPECT_TRUE(app.Einstellungsliste[101].isNull());
}

TEST_F(SettingsFileTest, DoubleQuoteInsideATextShiftsTheLaterRecords)
{
    QList<QByteArray> lines = designLines();
    lines[45 - 1] = "\"ab\"c\"";
    lines[46 - 1] = "\"Cel.:\"";
    lines[47 - 1] = "#TRUE#";
    writeBytes(path("merkkartelle.cfg"), joinLines(lines));

    EinstellungenEinlesen(app);
    EXPECT_EQ(app.Einstellungsliste[45], "ab");
    EXPECT_EQ(app.Einstellungsliste[46], "c\"");
    EXPECT_EQ(app.Einstellungsliste[47], "Cel.:");
    EXPECT_EQ(app.Einstellungsliste[48], "#TRUE#");
    EXPECT_EQ(app.Einstellungsliste[196], QString::fromLatin1(lines[195 - 1]).remove('"'));
    EinstellungenLaden(app);  // no error, no message
    EXPECT_EQ(app.config.Text1.Text, "ab");
    EXPECT_EQ(app.config.SSCheck9.Value, 0);  // "Cel.:" is no boolean: the box stays
    EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(SettingsFileTest, OnlyRecordsOneTo196AreRead)
{
    QList<QByteArray> lines = designLines();
    lines.append("\"197\"");
    lines.append("\"198\"");
    writeBytes(path("merkkartelle.cfg"), joinLines(lines));
    app.Einstellungsliste[0] = QStringLiteral("null");
    EinstellungenEinlesen(app);
    EXPECT_EQ(app.Einstellungsliste[0], "null");
    EXPECT_TRUE(app.Einstellungsliste[197].isNull());
    EXPECT_EQ(app.Einstellungsliste[196], "");
}

TEST_F(SettingsFileTest, UnreadableColoursComeUpWhite)
{
    for (bool start : {false, true}) {
        test::ScriptedSystem fresh;
        Merkkartelle& a = fresh.app;
        a.Einstellungsliste[90] = QStringLiteral("255");
        a.Einstellungsliste[91] = QStringLiteral("255");
        a.Hauptmaske.Bemerkung.BackColor = colour::Grey;
        if (start)
            EinstellungenBeimStart(a, {});
        else
            EinstellungenLaden(a);
        SCOPED_TRACE(start ? "start" : "session");
        EXPECT_EQ(a.Hauptmaske.feld[0].BackColor, colour::White);
        EXPECT_EQ(a.Hauptmaske.feld[22].ForeColor, colour::Black);
        EXPECT_EQ(a.Hauptmaske.Partido.BackColor, 255);  // the font step paints it again
        EXPECT_EQ(a.Hauptmaske.Bildschutz.BackColor, 255);
        EXPECT_EQ(a.Hauptmaske.Bemerkung.BackColor, start ? colour::White : colour::Grey);
        EXPECT_EQ(a.Einstellungsliste[90], "255");  // the file keeps the bad values
    }
}

TEST_F(SettingsFileTest, StartDiffersFromALoadDuringTheSession)
{
    for (bool start : {false, true}) {
        test::ScriptedSystem fresh;
        Merkkartelle& a = fresh.app;
        a.Einstellungsliste[79] = QStringLiteral("Ring 1");
        a.Einstellungsliste[80] = QStringLiteral("Altstadt");
        a.Einstellungsliste[65] = QStringLiteral("5");
        a.Einstellungsliste[66] = QStringLiteral("True");
        a.Einstellungsliste[90] = QStringLiteral("65535");
        a.Einstellungsliste[121] = QStringLiteral("Arial");
        int restored = 0;
        QString slotSeen;
        auto restore = [&] {
            ++restored;
            slotSeen = a.Hauptmaske.currentindex.Caption;
        };
        if (start)
            EinstellungenBeimStart(a, restore);
        else
            EinstellungenLaden(a);
        SCOPED_TRACE(start ? "start" : "session");
        EXPECT_EQ(a.config.Text20.Text, start ? "Ring 1" : "");
        EXPECT_EQ(a.config.Text21.Text, start ? "Altstadt" : "");
        EXPECT_EQ(restored, start ? 1 : 0);
        EXPECT_EQ(slotSeen, start ? "5" : "");
        EXPECT_EQ(a.Hauptmaske.Label5.Caption, "Z - A");
        EXPECT_EQ(a.Hauptmaske.prog[7].BackColor, start ? 65535 : colour::White);
        EXPECT_EQ(a.Hauptmaske.Bemerkung.Font.Name, start ? "Arial" : "MS Sans Serif");
        EXPECT_EQ(a.Hauptmaske.feld[5].Font.Name, "Arial");
        EXPECT_EQ(a.Hauptmaske.Ramal.Height, 256);
        EXPECT_EQ(a.AboutBox.Label5.Width, start ? 6500 : 7000);
        EXPECT_EQ(a.AboutBox.Label6.Caption,
                  start ? "Alle Einstellungen wurden geladen." : "Alle Einstellungen sind geladen");
    }
}

TEST_F(SettingsFileTest, LoadSpreadsTheRecordsOverTheForms)
{
    app.Einstellungsliste[21] = QStringLiteral("Kunde");
    app.Einstellungsliste[27] = QStringLiteral("Lieferant");
    app.Einstellungsliste[12] = QStringLiteral("0");
    app.Einstellungsliste[13] = QStringLiteral("4");
    app.Einstellungsliste[30] = QStringLiteral("12632256");
    app.Einstellungsliste[82] = QStringLiteral("128");
    app.Einstellungsliste[156] = QStringLiteral("c:\\prog\\rechner.exe");
    app.Einstellungsliste[162] = QStringLiteral("#TRUE#");
    app.Einstellungsliste[175] = QStringLiteral("#TRUE#");
    app.Einstellungsliste[192] = QStringLiteral("7000");
    app.Einstellungsliste[167] = QStringLiteral("Büro:");

    EinstellungenLaden(app);
    EXPECT_EQ(app.Hauptmaske.Typenliste[0].Caption, "Kunde");
    EXPECT_EQ(app.Hauptmaske.Typenliste[6].Caption, "Lieferant");
    EXPECT_EQ(app.Typenbenennung[1], "Kunde");
    EXPECT_EQ(app.Hauptmaske.Text8.Text, "Lieferant");
    EXPECT_EQ(app.etiquet.Quantidade.Text, "1");
    EXPECT_EQ(app.etiquet.HScroll2.Value, 1);
    EXPECT_EQ(app.etiquet.colunas.Text, "4");
    EXPECT_EQ(app.etiquet.HScroll1.Value, 4);
    EXPECT_EQ(app.Hauptmaske.beschreibung[24].BackColor, 12632256);
    EXPECT_EQ(app.Hauptmaske.beschreibung[0].ForeColor, 128);
    EXPECT_EQ(app.config.Label34.BackColor, 128);
    EXPECT_EQ(app.config.Text18.Text, "c:\\prog\\rechner.exe");
    EXPECT_EQ(app.Hauptmaske.progshow.Caption, "Zusatzprogramm: c:\\prog\\rechner.exe");
    EXPECT_EQ(app.config.Check3D9.Caption, "Gittersuch Nachname Vorname");
    EXPECT_TRUE(app.config.Check3D9.Visible);
    EXPECT_EQ(app.etiquet.Label33.Caption, "7000");
    EXPECT_EQ(app.etiquet.HScroll4.Value, 7000);
    EXPECT_EQ(app.Hauptmaske.beschreibungnum[1].Caption, "Büro:");
    EXPECT_EQ(app.config.CMDialog1.FileName, "merkkartelle.cfg");
    EXPECT_FALSE(app.Hauptmaske.AdresseÄndern.Enabled);
}

TEST_F(SettingsFileTest, NamesOfTheFirstThreeNumberLabelsLastUntilTheNextLoad)
{
    app.Hauptmaske.beschreibungnum[1].Caption = QStringLiteral("Privat:");
    app.Hauptmaske.beschreibungnum[4].Caption = QStringLiteral("Hobby:");
    EinstellungenSchreiben(app);
    EinstellungenEinlesen(app);
    EinstellungenLaden(app);
    EXPECT_EQ(app.Hauptmaske.beschreibungnum[1].Caption, "E-Mail 2:");
    EXPECT_EQ(app.Hauptmaske.beschreibungnum[4].Caption, "Hobby:");
}

TEST_F(SettingsFileTest, SortColumnOfTheSavedSlot)
{
    EXPECT_EQ(loadedSortColumn(4), "Departament");
    EXPECT_EQ(loadedSortColumn(21), "Laufendenummer");
    EXPECT_EQ(loadedSortColumn(25), "Telex");
    EXPECT_EQ(loadedSortColumn(18), "");
    EXPECT_EQ(loadedSortColumn(26), "");
}

}  // namespace
}  // namespace mk
