// New databases from the template, and the compaction's exchange of files: two files after
// it, the .bak of the last run, and at every failure the original whole and named.

#include "maintenance_home.h"

#include "maintenance/database_tools.h"

namespace mk::test {
namespace {

class ToolsTest : public MaintenanceHome {
protected:
    QStringList files(const QString& folder) const { return QDir(homeFile(folder)).entryList(QDir::Files, QDir::Name); }
    long cards(const QString& path) const
    {
        return Database::open(path)->createDynaset(QStringLiteral("Adressenstamm"))->RecordCount();
    }
    QString compact(const QString& path)
    {
        ui().answerOpen(path);
        raiseEvent(app(), "Hauptmaske.compactar", "Click");
        const auto boxes = ui().messageBoxes();
        return boxes.empty() ? QString() : boxes.back().prompt;
    }
};

TEST(DatabaseName, TheExtensionIsAddedUnlessItIsThereInAnyCase)
{
    EXPECT_EQ(DatenbankName("/k/neu"), "/k/neu.mdb");
    EXPECT_EQ(DatenbankName("/k/NEU.MDB"), "/k/NEU.MDB");
    EXPECT_EQ(DatenbankName("/k/neu.Mdb"), "/k/neu.Mdb");
    EXPECT_EQ(DatenbankName("/k/neu.db"), "/k/neu.db.mdb");
}

TEST_F(ToolsTest, ACompactionLeavesTheCompactedFileAndTheOldOneAsBak)
{
    const QString path = makeDatabase("andere");
    for (int i = 0; i < 50; ++i)
        addCardTo(path, {{"Nachname", QStringLiteral("Name %1").arg(i)}, {"Bemerkung", QString(500, u'n')}});
    {
        RecordsetPtr rs = Database::open(path)->createDynaset("Adressenstamm");
        for (int i = 0; i < 40; ++i) {
            rs->MoveFirst();
            rs->Delete();
        }
    }
    const QByteArray before = readBytes(path);
    start();

    EXPECT_EQ(compact(path), "Die Datenbank " + path + "\r\nwurde compaktiert.");
    EXPECT_EQ(ui().messageBoxes().back().title, "Datenbank Compactieren");
    EXPECT_EQ(files("andere"), QStringList({"karten.bak", "karten.mdb"}));
    EXPECT_EQ(readBytes(homeFile("andere/karten.bak")), before);
    EXPECT_LT(QFileInfo(path).size(), before.size());
    EXPECT_EQ(cards(path), 10);

    // A second run: its own .bak, the first run's is gone.
    const QByteArray compacted = readBytes(path);
    compact(path);
    EXPECT_EQ(files("andere"), QStringList({"karten.bak", "karten.mdb"}));
    EXPECT_EQ(readBytes(homeFile("andere/karten.bak")), compacted);
    EXPECT_EQ(CurDir(), app().Arbeitsverzeichnis);
}

TEST_F(ToolsTest, TheOpenDatabaseIsLeftAsItIsAndTheUserIsToldSo)
{
    addCard({{"Nachname", "Zeller"}});
    start();
    const QByteArray before = readBytes(defaultDatabase());
    const QString said = compact(defaultDatabase());
    EXPECT_TRUE(said.startsWith("Die Datenbank " + defaultDatabase() + "\r\nwurde nicht compaktiert und ist unverändert."))
        << said.toStdString();
    EXPECT_EQ(readBytes(defaultDatabase()), before);
    EXPECT_FALSE(exists(homeFile("merkkartelle1.mdb")));
    EXPECT_EQ(app().Kartensatz->RecordCount(), 1);
}

TEST_F(ToolsTest, AnExchangeThatCannotRenameKeepsTheOriginalUnderItsName)
{
    const QString path = makeDatabase("andere");
    addCardTo(path, {{"Nachname", "Zeller"}});
    const QByteArray before = readBytes(path);
    ASSERT_TRUE(QDir().mkpath(homeFile("andere/karten.bak/inhalt")));  // no file can take that name
    writeBytes(homeFile("andere/karten1.mdb"), "left over");
    start();

    const QString said = compact(path);
    EXPECT_TRUE(said.contains("wurde nicht compaktiert und ist unverändert.")) << said.toStdString();
    EXPECT_EQ(readBytes(path), before);
    EXPECT_EQ(files("andere"), QStringList({"karten.mdb"}));
}

TEST_F(ToolsTest, ANewDatabaseComesFromTheTemplateAndBecomesTheSession)
{
    addCard({{"Nachname", "Zeller"}});
    start();
    ui().answerSave(homeFile("neu"));
    raiseEvent(app(), "Hauptmaske.newdb", "Click");
    EXPECT_EQ(ui().boxes.at(0).fileName, "Leer.mdb");
    EXPECT_EQ(ui().boxes.at(0).prompt, "Bitte den Namen der neuen Datenbank eingeben");
    EXPECT_EQ(readBytes(homeFile("neu.mdb")), readBytes(homeFile("EMPTYMDB.KDB")));
    EXPECT_EQ(app().Datenbankdatei, "neu.mdb");
    EXPECT_EQ(app().Arbeitsverzeichnis, home);
    EXPECT_EQ(app().Kartensatz->RecordCount(), 0);
    EXPECT_EQ(iniValue("Filename"), "neu.mdb");
    EXPECT_EQ(iniValue("ReadOnly"), "0");
    EXPECT_EQ(iniValue("DbTelephone"), "0");
    EXPECT_TRUE(mask().feld[4].Text.isEmpty());

    // An existing file is replaced only on yes.
    addCardTo(homeFile("neu.mdb"), {{"Nachname", "Adler"}});
    const QByteArray filled = readBytes(defaultDatabase());
    ui().answerSave(defaultDatabase());
    ui().answerMsgBox(vbNo);
    raiseEvent(app(), "Hauptmaske.newdb", "Click");
    EXPECT_EQ(ui().messageBoxes().back().prompt, "Exsitierende Datei überschreiben ?");
    EXPECT_EQ(readBytes(defaultDatabase()), filled);
    EXPECT_EQ(app().Datenbankdatei, "neu.mdb");
}

TEST_F(ToolsTest, TheOpenDatabaseIsNeverReplacedByAnEmptyOne)
{
    addCard({{"Nachname", "Zeller"}});
    start();
    const QByteArray before = readBytes(defaultDatabase());
    ui().answerSave(defaultDatabase());
    ui().answerMsgBox(vbYes);
    raiseEvent(app(), "Hauptmaske.newdb", "Click");
    EXPECT_EQ(readBytes(defaultDatabase()), before);
    EXPECT_EQ(app().Kartensatz->RecordCount(), 1);
}

}  // namespace
}  // namespace mk::test
