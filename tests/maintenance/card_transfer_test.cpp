// Cards into another database: the copy is what the mask shows under a new number, a Null
// stays Null, a selection limits the run, and a run killed half way loses no card.

#include "maintenance_home.h"

#include "maintenance/card_transfer.h"

#include <csignal>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mk::test {
namespace {

class TransferTest : public MaintenanceHome {
protected:
    void SetUp() override
    {
        MaintenanceHome::SetUp();
        targetPath = makeDatabase("ziel");
        addCardTo(targetPath, {{"Nachname", "Vorhanden"}});
    }
    RecordsetPtr target() { return Database::open(targetPath)->createDynaset("Adressenstamm"); }
    void copy(const char* menu)
    {
        ui().answerOpen(targetPath);
        raiseEvent(app(), QStringLiteral("Hauptmaske.") + QString::fromLatin1(menu), "Click");
    }
    // Many cards at once, in one transaction.
    void addCards(int count)
    {
        DatabasePtr db = Database::open(defaultDatabase());
        RecordsetPtr rs = db->createDynaset("Adressenstamm");
        db->BeginTrans();
        for (int i = 0; i < count; ++i) {
            rs->AddNew();
            rs->Fields("Nachname").setValue(QStringLiteral("Karte %1").arg(i, 5, 10, QLatin1Char('0')));
            rs->Fields("Typ").setValue(QStringLiteral("1000000"));
            rs->Update();
        }
        db->CommitTrans();
    }

    QString targetPath;
};

TEST_F(TransferTest, OneCardGoesAsTheMaskShowsItUnderANewNumber)
{
    addCard({{"Nachname", "Zeller"}, {"Vorname", "Anna"}, {"Typ", "0100000"}, {"Som", "klang.wav"}});
    start();
    copy("copiardb");
    EXPECT_EQ(ui().boxes.at(0).prompt, "Zieldatenbank aussuchen...");
    EXPECT_EQ(app().Message.Label1.Caption, "Daten werden kopiert....");
    EXPECT_FALSE(app().Message.Visible);

    RecordsetPtr rs = target();
    ASSERT_EQ(rs->RecordCount(), 2);
    rs->MoveLast();
    EXPECT_EQ(rs->Fields("Nachname").text(), "Zeller");
    EXPECT_EQ(rs->Fields("Vorname").text(), "Anna");
    EXPECT_EQ(rs->Fields("Typ").text(), "0100000");
    EXPECT_EQ(rs->Fields("Som").text(), "klang.wav");
    EXPECT_TRUE(rs->Fields("Video").isNull());
    EXPECT_TRUE(rs->Fields("CampoM2").isNull());
    EXPECT_EQ(rs->Fields("Laufendenummer").Value().toLongLong(), 2);
    EXPECT_TRUE(ui().messageBoxes().empty());
}

TEST_F(TransferTest, AllCardsOfTheSelectionGoAndTheMaskShowsTheLast)
{
    addCard({{"Nachname", "Zeller"}, {"Typ", "1000000"}});
    addCard({{"Nachname", "Adler"}, {"Typ", "0100000"}});
    addCard({{"Nachname", "Müller"}, {"Typ", "1000000"}});
    start();
    app().Kartensatz->Filter = "[Typ] like '1??????'";
    app().Kartensatz->Sort = "Nachname";
    app().Kartensatz = app().Kartensatz->createDynaset();
    copy("Multicopy");
    EXPECT_EQ(app().Message.Label1.Caption, "Copiando dados....");

    RecordsetPtr rs = target();
    QStringList names;
    for (rs->MoveFirst(); !rs->IsEOF(); rs->MoveNext())
        names << rs->Fields("Nachname").text();
    EXPECT_EQ(names, QStringList({"Vorhanden", "Müller", "Zeller"}));
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_EQ(app().Message.Label2.Caption, "2 / 2");
}

TEST_F(TransferTest, ATargetWithoutTheTableTakesNothingAndSaysNothing)
{
    addCard({{"Nachname", "Zeller"}});
    start();
    const QString other = joinPath(home, "telefon.mdb");
    createEmptyDatabase(DatabaseKind::Telephone, other);
    const QByteArray before = readBytes(other);
    ui().answerOpen(other);
    raiseEvent(app(), "Hauptmaske.Multicopy", "Click");
    EXPECT_EQ(readBytes(other), before);
    EXPECT_TRUE(ui().messageBoxes().empty());
    EXPECT_FALSE(app().Message.Visible);
}

TEST_F(TransferTest, ATargetOfAnotherStructureIsRefusedOnceBeforeAnyCard)
{
    addCard({{"Nachname", "Zeller"}});
    addCard({{"Nachname", "Adler"}});
    start();
    const QString other = joinPath(home, "schmal.mdb");
    {
        sqlite3* db = nullptr;
        sqlite3_open(QFile::encodeName(other).constData(), &db);
        sqlite3_exec(db, "CREATE TABLE Adressenstamm (Laufendenummer INTEGER PRIMARY KEY AUTOINCREMENT, Nachname TEXT(50))",
                     nullptr, nullptr, nullptr);
        sqlite3_close(db);
    }
    ui().answerOpen(other);
    raiseEvent(app(), "Hauptmaske.Multicopy", "Click");
    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    EXPECT_TRUE(ui().messageBoxes().at(0).prompt.startsWith("Der Zieldatenbank fehlen die Felder: Schluessel, Titel"));
    EXPECT_EQ(Database::open(other)->createDynaset("Adressenstamm")->RecordCount(), 0);
    EXPECT_FALSE(app().Message.Visible);
}

TEST_F(TransferTest, ARunKilledHalfWayLeavesBothDatabasesReadableAndTheSourceWhole)
{
    constexpr int kCards = 6000;
    addCards(kCards);
    const QByteArray source = readBytes(defaultDatabase());
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // The child copies and is killed in the middle of the run.
        start();
        ui().onDoEvents = [this] {
            if (ui().doEventsCalls == 60)
                ::kill(::getpid(), SIGKILL);
        };
        copy("Multicopy");
        ::_exit(3);  // the run ended before it was killed
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the copy was not killed";

    EXPECT_EQ(readBytes(defaultDatabase()), source);
    EXPECT_EQ(Database::open(defaultDatabase())->createDynaset("Adressenstamm")->RecordCount(), kCards);
    RecordsetPtr rs = target();
    const long copied = rs->RecordCount() - 1;
    EXPECT_GT(copied, 0);
    EXPECT_LT(copied, kCards);
    // The cards that arrived arrived whole, in the order of the source.
    rs->MoveLast();
    EXPECT_EQ(rs->Fields("Nachname").text(), QStringLiteral("Karte %1").arg(copied - 1, 5, 10, QLatin1Char('0')));
    EXPECT_EQ(rs->Fields("Typ").text(), "1000000");
}

}  // namespace
}  // namespace mk::test
