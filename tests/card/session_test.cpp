// The database session: start on the INI file's database or on the defaults, the order
// restored at start, the orderly end and the end by the frame, another database opened
// and the database closed.

#include "card_home.h"

#include "card/card_cursor.h"
#include "card/mask_transfer.h"

namespace mk::test {
namespace {

class SessionTest : public CardHome {
protected:
    void threeCards()
    {
        addCard({{"Nachname", "Zeller"}, {"Vorname", "Anna"}, {"Departament", "B"}, {"Typ", "1000000"}});
        addCard({{"Nachname", "Adler"}, {"Vorname", "Bert"}, {"Departament", "C"}, {"Typ", "0100000"}});
        addCard({{"Nachname", "Müller"}, {"Vorname", "Carl"}, {"Departament", "A"}, {"Typ", "0010000"}});
    }
    QStringList namesInCursorOrder()
    {
        QStringList names;
        RecordsetPtr probe = app().Kartensatz->clone();
        for (probe->MoveFirst(); !probe->IsEOF(); probe->MoveNext())
            names << probe->Fields("Nachname").text();
        return names;
    }
};

TEST_F(SessionTest, StartsOnTheDatabaseTheIniNamesAndShowsItsFirstCard)
{
    const QString other = makeDatabase("Karten");
    addCardTo(other, {{"Nachname", "Ohm"}, {"Vorname", "Georg"}});
    addCardTo(other, {{"Nachname", "Volta"}});
    ini("Workdir", DateiPfad(other));
    ini("Filename", "karten.mdb");

    start();

    EXPECT_TRUE(ui().messageBoxes().empty());
    EXPECT_EQ(app().Arbeitsverzeichnis, DateiPfad(other));
    EXPECT_EQ(app().NurLesen, "0");
    EXPECT_TRUE(mask().Visible);
    EXPECT_FALSE(app().AboutBox.Loaded);  // the splash is gone
    EXPECT_EQ(mask().feld[4].Text, "Ohm");
    EXPECT_EQ(mask().feld[5].Text, "Georg");
    EXPECT_EQ(mask().LaufendeNummer.Caption, "1");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 1 von 2 ");
    EXPECT_EQ(mask().Caption, DateiPfad(other) + "  -  karten.mdb  -  Adressenstamm");
    EXPECT_EQ(mask().currentindex.Caption, "21");
    EXPECT_EQ(mask().SortiertNach.Caption, "Laufendenummer");
    ASSERT_TRUE(app().Zweitsatz);
    EXPECT_EQ(app().Zweitsatz->RecordCount(), 2);
    EXPECT_FALSE(app().Anrufsatz);  // the call log lives beside the card database
    ASSERT_TRUE(app().Gesamtsatz);  // the global view in the program's own folder
    EXPECT_EQ(CurDir(), QDir(DateiPfad(other)).canonicalPath());
}

TEST_F(SessionTest, AWorkdirThatCannotBeLookedIntoStartsOnTheDefaults)
{
    addCard({{"Nachname", "Heim"}});
    ini("Workdir", homeFile("gibt/es/nicht"));
    ini("Filename", "karten.mdb");
    ini("Dbmerkkartelle", "Andere");
    ini("ReadOnly", "1");

    start();

    EXPECT_EQ(prompts(), QStringList{"Das verzeichniss ist üngültig !"});
    EXPECT_FALSE(QFile::exists(iniFilePath()));
    EXPECT_EQ(app().Arbeitsverzeichnis, home);
    EXPECT_EQ(app().Datenbankdatei, "merkkartelle.mdb");
    EXPECT_EQ(app().Tabellenname, "Adressenstamm");
    EXPECT_EQ(app().NurLesen, "0");
    EXPECT_EQ(mask().feld[4].Text, "Heim");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 1 von 1 ");
    ASSERT_TRUE(app().Anrufsatz);
    EXPECT_EQ(app().Anrufsatz->RecordCount(), 0);
}

TEST_F(SessionTest, AMissingDatabaseStartsOnTheDefaultsAndKeepsReadOnly)
{
    addCard({{"Nachname", "Heim"}});
    QDir().mkpath(homeFile("leer"));
    ini("Workdir", homeFile("leer"));
    ini("ReadOnly", "1");

    start();

    EXPECT_EQ(prompts(), QStringList{"Die Ursprüngliche Datenbank konnte nicht gefunden werden"});
    EXPECT_FALSE(QFile::exists(iniFilePath()));
    EXPECT_EQ(app().Arbeitsverzeichnis, home);
    EXPECT_EQ(app().NurLesen, "1");  // only the recovery step resets it
    EXPECT_EQ(mask().feld[4].Text, "Heim");
}

TEST_F(SessionTest, WithoutAnyDatabaseTheMaskComesUpEmpty)
{
    QFile::remove(homeFile("merkkartelle.mdb"));

    start();

    EXPECT_EQ(prompts(), QStringList{"Die Ursprüngliche Datenbank konnte nicht gefunden werden"});
    EXPECT_TRUE(mask().Visible);
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 0 von 0 ");
    EXPECT_EQ(mask().feld[4].Text, "");
}

TEST_F(SessionTest, ReadOnlyOpensBothCardSessionsReadOnly)
{
    threeCards();
    ini("ReadOnly", "1");

    start();

    ASSERT_TRUE(app().Kartendatenbank && app().Zweitdatenbank);
    EXPECT_TRUE(app().Kartendatenbank->readOnly());
    EXPECT_TRUE(app().Zweitdatenbank->readOnly());
    EXPECT_EQ(app().Kartensatz->RecordCount(), 3);
    EXPECT_THROW(app().Kartensatz->AddNew(), RuntimeError);
}

TEST_F(SessionTest, TheSavedSortSlotOrdersAscendingWhateverTheDirection)
{
    threeCards();
    settingsFile(home, {{65, "5"}, {66, "True"}});

    start();

    EXPECT_EQ(namesInCursorOrder(), (QStringList{"Adler", "Müller", "Zeller"}));
    EXPECT_EQ(mask().feld[4].Text, "Adler");
    EXPECT_EQ(mask().SortiertNach.Caption, "Nachname");
    EXPECT_EQ(mask().Label5.Caption, "Z - A");
    EXPECT_EQ(app().Sortierfeld, "Nachname");
}

TEST_F(SessionTest, ASavedSlotZeroStartsByRunningNumber)
{
    threeCards();
    settingsFile(home, {{65, "0"}});

    start();

    EXPECT_EQ(mask().currentindex.Caption, "21");
    EXPECT_EQ(namesInCursorOrder(), (QStringList{"Zeller", "Adler", "Müller"}));
    EXPECT_EQ(mask().SortiertNach.Caption, "Laufendenummer");
}

TEST_F(SessionTest, SlotFourSortsByDepartamentOnlyAtStart)
{
    threeCards();
    settingsFile(home, {{65, "4"}});

    start();

    EXPECT_EQ(namesInCursorOrder(), (QStringList{"Müller", "Zeller", "Adler"}));
    EXPECT_EQ(mask().SortiertNach.Caption, "Departament");
}

TEST_F(SessionTest, TheCardOfTheLastSessionIsShownAgainAfterARestart)
{
    threeCards();
    start();
    click("Hauptmaske.EinznachHinten");
    click("Hauptmaske.EinznachHinten");
    ASSERT_EQ(mask().feld[4].Text, "Müller");

    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_TRUE(ui().ended);
    EXPECT_EQ(mask().Label36.Caption, "3");
    EXPECT_EQ(mask().Label5.Caption, "Programm wird geschossen...");
    EXPECT_EQ(mask().Label5.ForeColor, colour::Red);
    EXPECT_EQ(fileBytes(homeFile("session.txt")), "1\r\n");
    EXPECT_TRUE(QFile::exists(homeFile("merkkartelle.cfg")));
    EXPECT_TRUE(QFile::exists(homeFile("standart.den")));
    EXPECT_FALSE(app().Kartendatenbank->isOpen());

    restart();
    start();

    EXPECT_EQ(mask().feld[4].Text, "Müller");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 3 von 3 ");
    EXPECT_EQ(mask().dataold.Caption, "2");  // kept with the settings

    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_EQ(fileBytes(homeFile("session.txt")), "2\r\n");
}

TEST_F(SessionTest, ALastCardOutsideTheCursorLeavesTheFirstCard)
{
    threeCards();
    settingsFile(home, {{29, "77"}});
    start();
    EXPECT_EQ(mask().feld[4].Text, "Zeller");
}

TEST_F(SessionTest, EndingDuringAnEditAsksFirstAndKeepsTheCardUnwritten)
{
    threeCards();
    start();
    app().Lesezeichen = app().Kartensatz->Bookmark();
    app().Kartensatz->Edit();
    mask().AdresseÄndern.Caption = "OK";
    mask().feld[4].Text = "Geändert";

    ui().answerMsgBox(vbNo);
    click("Hauptmaske.SSCommand1");
    EXPECT_FALSE(ui().ended);
    EXPECT_EQ(prompts().last(), "Editierung des Eintrags abbrechen ?\r\nProgramm beenden ?");

    ui().answerMsgBox(vbYes);
    EXPECT_THROW(click("Hauptmaske.SSCommand1"), ProgramEnded);
    EXPECT_FALSE(QFile::exists(homeFile("standart.den")));  // not written with an edit open
    EXPECT_TRUE(QFile::exists(homeFile("merkkartelle.cfg")));

    DatabasePtr db = Database::open(homeFile("merkkartelle.mdb"));
    RecordsetPtr rs = db->createDynaset("Adressenstamm");
    EXPECT_EQ(rs->Fields("Nachname").text(), "Zeller");
}

TEST_F(SessionTest, ANewCardOpenAtTheEndAsksAboutTheNewCard)
{
    threeCards();
    start();
    mask().NeueAdresse.Caption = "Speichern";
    ui().answerMsgBox(vbNo);
    click("Hauptmaske.SSCommand1");
    EXPECT_EQ(prompts().last(), "Neuen Eintrag abbrechen ?\r\nProgramm beenden ?");
}

TEST_F(SessionTest, ClosingTheFrameCountsTheSessionWithoutSavingSettings)
{
    threeCards();
    start();
    EXPECT_THROW(unloadForm(app(), "Hauptmaske", 0), ProgramEnded);
    EXPECT_EQ(fileBytes(homeFile("session.txt")), "1\r\n");
    EXPECT_FALSE(QFile::exists(homeFile("merkkartelle.cfg")));
    EXPECT_FALSE(app().Kartendatenbank->isOpen());
    EXPECT_FALSE(app().Zweitdatenbank->isOpen());
}

TEST_F(SessionTest, SessionCountStartsAtOneAndReadsGarbageAsNone)
{
    app().Arbeitsverzeichnis = home;
    SitzungZaehlen(app());
    EXPECT_EQ(fileBytes(homeFile("session.txt")), "1\r\n");
    SitzungZaehlen(app());
    SitzungZaehlen(app());
    EXPECT_EQ(SitzungenLesen(app()), 3);
    QFile f(homeFile("session.txt"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("kaputt\r\n");
    f.close();
    SitzungZaehlen(app());
    EXPECT_EQ(fileBytes(homeFile("session.txt")), "1\r\n");
}

TEST_F(SessionTest, TheCaptionCutsADriveLetterAndKeepsAPathWithout)
{
    app().Arbeitsverzeichnis = "C:\\Karten\\Privat";
    app().Datenbankdatei = "merkkartelle.mdb";
    app().Tabellenname = "Adressenstamm";
    EXPECT_EQ(HauptmaskeTitel(app()), "C  -  Karten\\Privat  -  merkkartelle.mdb  -  Adressenstamm");
    app().Arbeitsverzeichnis = "/home/anna/Karten";
    EXPECT_EQ(HauptmaskeTitel(app()), "/home/anna/Karten  -  merkkartelle.mdb  -  Adressenstamm");
}

TEST_F(SessionTest, AnotherDatabaseOpensReadOnlyFromTheDialogAndIsRemembered)
{
    threeCards();
    const QString other = makeDatabase("Zweite");
    addCardTo(other, {{"Nachname", "Ohm"}});
    start();

    ui().answerOpen(other, true);
    click("Hauptmaske.abrirdmb");

    ASSERT_EQ(ui().boxes.back().kind, "open");
    EXPECT_EQ(ui().boxes.back().prompt, "Datenbank öffnen...");
    EXPECT_EQ(ui().boxes.back().filter, "Datenbank (*.mdb)|*.mdb|");
    EXPECT_EQ(app().NurLesen, "1");
    EXPECT_TRUE(app().Kartendatenbank->readOnly());
    EXPECT_TRUE(app().Zweitdatenbank->readOnly());
    EXPECT_EQ(mask().feld[4].Text, "Ohm");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 1 von 1 ");
    EXPECT_EQ(mask().Caption, DateiPfad(other) + "  -  karten.mdb  -  Adressenstamm");
    EXPECT_EQ(iniValue("Workdir"), DateiPfad(other));
    EXPECT_EQ(iniValue("Filename"), "karten.mdb");
    EXPECT_EQ(iniValue("Dbmerkkartelle"), "Adressenstamm");
    EXPECT_EQ(iniValue("ReadOnly"), "1");
    EXPECT_TRUE(QFile::exists(homeFile("standart.den")));  // written for the database left
    EXPECT_FALSE(app().AboutBox.Loaded);

    ui().answerOpen(homeFile("merkkartelle.mdb"));
    click("Hauptmaske.abrirdmb");
    EXPECT_EQ(app().NurLesen, "0");
    EXPECT_EQ(iniValue("ReadOnly"), "0");
    EXPECT_EQ(app().Kartensatz->RecordCount(), 3);
}

TEST_F(SessionTest, OpeningIsRefusedDuringAnEditAndACancelledDialogKeepsTheDatabase)
{
    threeCards();
    start();
    mask().AdresseÄndern.Caption = "OK";
    click("Hauptmaske.abrirdmb");
    EXPECT_TRUE(ui().boxes.empty());

    mask().AdresseÄndern.Caption = "&Bearbeiten";
    ui().answerOpenCancel();
    click("Hauptmaske.abrirdmb");
    EXPECT_TRUE(app().Kartendatenbank->isOpen());
    EXPECT_EQ(app().Kartensatz->RecordCount(), 3);
    EXPECT_EQ(iniValue("Workdir"), "<none>");
}

TEST_F(SessionTest, ClosingTheDatabaseClearsTheMaskAndSwitchesTheCardButtonsOff)
{
    threeCards();
    start();
    click("Hauptmaske.fechardb");

    EXPECT_FALSE(app().Kartendatenbank->isOpen());
    EXPECT_FALSE(app().Zweitdatenbank->isOpen());
    EXPECT_EQ(mask().feld[4].Text, "");
    EXPECT_EQ(mask().LaufendeNummer.Caption, "");
    for (const char* name : {"Command3D15", "Command3D16", "EinzNachvorne", "EinznachHinten", "NeueAdresse",
                             "AdresseLöschen", "NachAdresseSuchen", "Command3D8", "Command5", "AdresseÄndern",
                             "menumaladata", "menuauto", "menusilabas", "Text1"})
        EXPECT_FALSE(app().forms.control(QStringLiteral("Hauptmaske.") + QString::fromUtf8(name)).control->Enabled)
            << name;

    // The moves find no cursor and stay quiet.
    raiseEvent(app(), "Hauptmaske.EinznachHinten", "Click");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 0 von 0 ");
    EXPECT_TRUE(ui().messageBoxes().empty());
}

}  // namespace
}  // namespace mk::test
