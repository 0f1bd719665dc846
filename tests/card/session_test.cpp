// The database session where the driver cannot reach: a second run of the program, saved
// sort slots, the read-only mode, a second database from the open dialog, the end during
// an edit and by the window's frame.

#include "card_home.h"

namespace mk::test {
namespace {

class SessionTest : public CardHome {
protected:
    void threeCards()
    {
        addCard({{"Nachname", "Zeller"}, {"Departament", "B"}});
        addCard({{"Nachname", "Adler"}, {"Departament", "C"}});
        addCard({{"Nachname", "Müller"}, {"Departament", "A"}});
    }
    QStringList cursorOrder()
    {
        QStringList names;
        RecordsetPtr probe = app().Kartensatz->clone();
        for (probe->MoveFirst(); !probe->IsEOF(); probe->MoveNext())
            names << probe->Fields("Nachname").text();
        return names;
    }
};

TEST_F(SessionTest, TheNextRunShowsTheCardTheLastOneEndedOn)
{
    threeCards();
    start();
    click("Hauptmaske.EinznachHinten");
    click("Hauptmaske.EinznachHinten");
    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_EQ(mask().Label36.Caption, "3");
    EXPECT_EQ(fileBytes("session.txt"), "1\r\n");
    EXPECT_FALSE(app().Kartendatenbank->isOpen());

    restart();
    start();
    EXPECT_EQ(shown(), "Müller");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 3 von 3 ");
    EXPECT_EQ(mask().dataold.Caption, "2");
    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_EQ(fileBytes("session.txt"), "2\r\n");

    restart();
    settingsFile({{29, "77"}});  // a card that is gone leaves the first one
    start();
    EXPECT_EQ(shown(), "Zeller");
}

TEST_F(SessionTest, TheSavedSlotOrdersAscendingByTheColumnLoadingGives)
{
    threeCards();
    struct Case {
        const char* slot;
        const char* direction;
        QStringList order;
        const char* index;
        const char* caption;
    } cases[] = {
        {"5", "True", {"Adler", "Müller", "Zeller"}, "5", "Nachname"},  // Label5 says Z - A, yet ascending
        {"0", "", {"Zeller", "Adler", "Müller"}, "21", "Laufendenummer"},
        {"4", "", {"Müller", "Zeller", "Adler"}, "4", "Departament"},  // loads the true column
    };
    for (const Case& c : cases) {
        restart();
        settingsFile({{65, c.slot}, {66, c.direction}});
        start();
        EXPECT_EQ(cursorOrder(), c.order) << c.slot;
        EXPECT_EQ(shown(), c.order.front()) << c.slot;
        EXPECT_EQ(mask().currentindex.Caption, c.index);
        EXPECT_EQ(mask().SortiertNach.Caption, c.caption);
    }
    EXPECT_EQ(mask().Label5.Caption, "A - Z");
}

TEST_F(SessionTest, ReadOnlyOpensBothCardSessionsReadOnly)
{
    threeCards();
    ini("ReadOnly", "1");
    start();
    EXPECT_TRUE(app().Kartendatenbank->readOnly());
    EXPECT_TRUE(app().Zweitdatenbank->readOnly());
    EXPECT_EQ(app().Zweitsatz->RecordCount(), 3);
    EXPECT_THROW(app().Kartensatz->AddNew(), RuntimeError);
}

TEST_F(SessionTest, AMissingDatabaseFallsBackQuietlyToTheProgramsOwn)
{
    const QString other = makeDatabase("Karten");
    addCard({{"Nachname", "Heim"}});
    ini("Workdir", DateiPfad(other));
    ini("Filename", "fehlt.mdb");
    ini("ReadOnly", "1");
    start();
    EXPECT_EQ(prompts(), QStringList{"Die Ursprüngliche Datenbank konnte nicht gefunden werden"});
    EXPECT_FALSE(QFile::exists(iniFilePath()));
    EXPECT_EQ(app().Arbeitsverzeichnis, home);
    EXPECT_EQ(app().NurLesen, "1");  // only the recovery step of an invalid folder resets it
    EXPECT_EQ(shown(), "Heim");
    ASSERT_TRUE(app().Anrufsatz && app().Gesamtsatz);

    // Without even that one, the mask comes up empty and nothing stops.
    restart();
    QFile::remove(defaultDatabase());
    start();
    EXPECT_TRUE(mask().Visible);
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 0 von 0 ");
}

TEST_F(SessionTest, AnotherDatabaseComesFromTheDialogReadOnlyAndIsRemembered)
{
    threeCards();
    const QString other = makeDatabase("Zweite");
    addCardTo(other, {{"Nachname", "Ohm"}});
    start();

    ui().answerOpenCancel();
    click("Hauptmaske.abrirdmb");
    EXPECT_EQ(app().Kartensatz->RecordCount(), 3);  // a cancelled dialog keeps the session
    EXPECT_EQ(iniValue("Workdir"), "<none>");
    // Without "Einstellungen speichern" opening writes neither the settings nor the names.
    EXPECT_EQ(fileBytes("standart.den"), "<missing>");
    EXPECT_EQ(fileBytes("merkkartelle.cfg"), "<missing>");

    app().config.Check3D13.Value = 1;
    ui().answerOpen(other, true);
    click("Hauptmaske.abrirdmb");
    const ShownBox& dialog = ui().boxes.back();
    EXPECT_EQ(dialog.prompt, "Datenbank öffnen...");
    EXPECT_EQ(dialog.filter, "Datenbank (*.mdb)|*.mdb|");
    EXPECT_EQ(app().NurLesen, "1");
    EXPECT_TRUE(app().Kartendatenbank->readOnly());
    EXPECT_TRUE(app().Zweitdatenbank->readOnly());
    EXPECT_EQ(shown(), "Ohm");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 1 von 1 ");
    EXPECT_EQ(mask().Caption, DateiPfad(other) + "  -  karten.mdb  -  Adressenstamm");
    EXPECT_EQ(iniValue("Workdir"), DateiPfad(other));
    EXPECT_EQ(iniValue("Filename"), "karten.mdb");
    EXPECT_EQ(iniValue("Dbmerkkartelle"), "Adressenstamm");
    EXPECT_EQ(iniValue("ReadOnly"), "1");
    // With it, both files of the database left are written before the switch.
    EXPECT_NE(fileBytes("standart.den"), "<missing>");
    EXPECT_NE(fileBytes("merkkartelle.cfg"), "<missing>");

    ui().answerOpen(defaultDatabase());
    click("Hauptmaske.abrirdmb");
    EXPECT_EQ(iniValue("ReadOnly"), "0");
    EXPECT_FALSE(app().Kartendatenbank->readOnly());

    mask().AdresseÄndern.Caption = "OK";
    const auto shownBefore = ui().boxes.size();
    click("Hauptmaske.abrirdmb");
    EXPECT_EQ(ui().boxes.size(), shownBefore);  // not during an edit
}

TEST_F(SessionTest, EndingDuringAnEditAsksAndDropsTheEdit)
{
    threeCards();
    start();
    app().Lesezeichen = app().Kartensatz->Bookmark();
    app().Kartensatz->Edit();
    app().Kartensatz->Fields("Nachname").setValue("Geändert");
    mask().AdresseÄndern.Caption = "OK";

    ui().answerMsgBox(vbNo);
    click("Hauptmaske.SSCommand1");
    EXPECT_FALSE(ui().ended);
    EXPECT_EQ(prompts().last(), "Editierung des Eintrags abbrechen ?\r\nProgramm beenden ?");
    mask().AdresseÄndern.Caption = "&Bearbeiten";
    mask().NeueAdresse.Caption = "Speichern";
    ui().answerMsgBox(vbNo);
    click("Hauptmaske.SSCommand1");
    EXPECT_EQ(prompts().last(), "Neuen Eintrag abbrechen ?\r\nProgramm beenden ?");

    ui().answerMsgBox(vbYes);
    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_EQ(stored()->Fields("Nachname").text(), "Zeller");
    EXPECT_EQ(fileBytes("standart.den"), "<missing>");  // not written with an edit open
    EXPECT_NE(fileBytes("merkkartelle.cfg"), "<missing>");
}

TEST_F(SessionTest, TheFrameEndsCountingTheSessionWithoutSavingSettings)
{
    threeCards();
    start();
    EXPECT_THROW(unloadForm(app(), "Hauptmaske", 0), ProgramEnded);
    EXPECT_EQ(fileBytes("session.txt"), "1\r\n");
    EXPECT_EQ(fileBytes("merkkartelle.cfg"), "<missing>");
    EXPECT_FALSE(app().Zweitdatenbank->isOpen());
}

TEST_F(SessionTest, TheCaptionCutsADriveLetterAndKeepsAPathWithout)
{
    app().Arbeitsverzeichnis = "C:\\Karten\\Privat";
    EXPECT_EQ(HauptmaskeTitel(app()), "C  -  Karten\\Privat  -  merkkartelle.mdb  -  Adressenstamm");
    app().Arbeitsverzeichnis = "/home/anna/Karten";
    EXPECT_EQ(HauptmaskeTitel(app()), "/home/anna/Karten  -  merkkartelle.mdb  -  Adressenstamm");
}

TEST_F(SessionTest, AJetFileIsRefusedWithAWordAndTheMaskStaysEmpty)
{
    QFile::remove(defaultDatabase());
    ASSERT_TRUE(QFile::copy(QStringLiteral(MK_SHARED_TESTDATA "/jet/jet4-sample.mdb"), defaultDatabase()));
    start();
    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    EXPECT_TRUE(ui().messageBoxes()[0].prompt.contains(QStringLiteral("Jet-Datenbank")));
    EXPECT_EQ(ui().messageBoxes()[0].title, "Datenbank öffnen");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 0 von 0 ");
}

TEST_F(SessionTest, ADamagedEmptyOrForeignDatabaseIsToldAndTheProgramWorksOn)
{
    threeCards();
    QFile original(defaultDatabase());
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray whole = original.readAll();
    original.close();
    const QByteArray broken[] = {QByteArray(), "Name;Stadt\r\nAdler;Köln\r\n", whole.left(60), whole.left(whole.size() / 2)};
    for (const QByteArray& bytes : broken) {
        restart();
        QFile f(defaultDatabase());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
        f.close();
        start();
        const auto boxes = ui().messageBoxes();
        ASSERT_EQ(boxes.size(), 1u) << bytes.size();
        EXPECT_TRUE(boxes[0].prompt.contains(defaultDatabase())) << boxes[0].prompt.toStdString();
        EXPECT_EQ(boxes[0].title, "Datenbank öffnen");
        EXPECT_TRUE(mask().Visible);
        // The mask works: the user can open another database.
        ui().answerOpenCancel();
        click("Hauptmaske.abrirdmb");
        EXPECT_FALSE(ui().ended);
    }
}

}  // namespace
}  // namespace mk::test
