// The transfer between card and mask: every column into its slot and back, Null and short
// type marks, the guarded columns and the error box of a failed write, the mask cleared,
// the copy into DIALER, the card's picture, the print copy.

#include "card_home.h"

#include "card/card_cursor.h"
#include "card/mask_transfer.h"

#include <QImage>
#include <sqlite3.h>

namespace mk::test {
namespace {

class MaskTransferTest : public CardHome {
protected:
    // Something in every slot, so that a transfer that skips a slot shows.
    void scribble()
    {
        auto& m = mask();
        for (auto& [i, f] : m.feld)
            f.Text = "alt";
        for (auto& [i, f] : m.feldbank)
            f.Text = "alt";
        for (auto& [i, f] : m.feldnum)
            f.Text = "alt";
        for (auto& [i, f] : m.prog)
            f.Text = "alt";
        for (auto& [i, f] : app().Aform.FeldA)
            f.Text = "alt";
        for (auto& [i, f] : app().Aform.feldB)
            f.Text = "alt";
        for (auto& [i, b] : m.Typenliste)
            b.Value = 1;
        for (TextBox* t : {&m.tel1, &m.tel2, &m.tel3, &m.tel4, &m.Partido, &m.Ramal, &m.Text9, &m.Text10, &m.Text11,
                           &m.Text12, &m.Text13, &m.Text14})
            t->Text = "alt";
        m.Bemerkung.Text = m.Text15.Text = "alt";
        for (Label* l : {&m.Datum, &m.Zeit, &m.recdate, &m.rectime})
            l->Caption = "alt";
    }
};

TEST_F(MaskTransferTest, EveryColumnReachesItsSlot)
{
    addCard({{"Schluessel", "S"}, {"Nachname", "Müller"}, {"Vorname", "Hans"}, {"Telefon", "0211 1"},
             {"Telefax", "0211 2"}, {"Celphone", "0171 3"}, {"Postfach", "PF 9"}, {"Bemerkung", "Notiz\r\nzwei"},
             {"A3", "Anna Zeller"}, {"B3", "17"}, {"C1", "a@b.de"}, {"C4", "D-AB 1"}, {"PROG20", "/x/y.txt"},
             {"Datum", "01.02.2024"}, {"Zeit", "10:11:12"}, {"Partei", "P"}, {"vorwahl", "0211"},
             {"recdate", "01.01.2020"}, {"rectime", "08:00:00"}, {"TEL1", "111"}, {"TEL4", "444"}, {"Bank", "Sparkasse"},
             {"BankLeitZahl", "30050110"}, {"Kontonummer", "123456"}, {"Typ", "0100001"}, {"Som", "/s.wav"},
             {"Video", "/v.avi"}, {"imagem", "/i.txt"}, {"Campo1", "c1"}, {"Campo2", "c2"}, {"CampoM1", "m1"},
             {"CampoM2", "lang"}});
    start();
    auto& m = mask();
    EXPECT_EQ(m.feld[0].Text, "S");
    EXPECT_EQ(m.feld[4].Text, "Müller");
    EXPECT_EQ(m.feld[22].Text, "PF 9");
    EXPECT_EQ(m.Bemerkung.Text, "Notiz\r\nzwei");
    EXPECT_EQ(app().Aform.FeldA[3].Text, "Anna Zeller");
    EXPECT_EQ(app().Aform.feldB[3].Text, "17");
    EXPECT_EQ(m.feldnum[0].Text, "a@b.de");
    EXPECT_EQ(m.feldnum[3].Text, "D-AB 1");
    EXPECT_EQ(m.prog[20].Text, "/x/y.txt");
    EXPECT_EQ(m.Datum.Caption, "01.02.2024");
    EXPECT_EQ(m.Zeit.Caption, "10:11:12");
    EXPECT_EQ(m.recdate.Caption, "01.01.2020");
    EXPECT_EQ(m.rectime.Caption, "08:00:00");
    EXPECT_EQ(m.Partido.Text, "P");
    EXPECT_EQ(m.Ramal.Text, "0211");
    EXPECT_EQ(m.tel1.Text, "111");
    EXPECT_EQ(m.tel4.Text, "444");
    EXPECT_EQ(m.feldbank[0].Text, "30050110");
    EXPECT_EQ(m.feldbank[1].Text, "123456");
    EXPECT_EQ(m.feldbank[2].Text, "Sparkasse");
    EXPECT_EQ(app().Typzeichen, "0100001");
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(m.Typenliste[i].Value, (i == 1 || i == 6) ? 1 : 0) << i;
    EXPECT_EQ(m.Text9.Text, "/s.wav");
    EXPECT_EQ(m.Text10.Text, "/v.avi");
    EXPECT_EQ(m.Text11.Text, "/i.txt");
    EXPECT_EQ(m.Text12.Text, "c1");
    EXPECT_EQ(m.Text14.Text, "m1");
    EXPECT_EQ(m.Text15.Text, "lang");
    EXPECT_EQ(m.LaufendeNummer.Caption, "1");
    EXPECT_EQ(m.datalabel.Caption, "1");

    // What the card drives beyond its slots. The settings leave "&Bearbeiten" off at start;
    // the next card shown switches it on.
    m.AdresseÄndern.Enabled = m.AdresseLöschen.Enabled = m.Command1.Enabled = false;
    DatenInMaske(app());
    EXPECT_TRUE(m.SSCommand2.Enabled);   // mail 1
    EXPECT_FALSE(m.SSCommand7.Enabled);  // mail 2 empty
    EXPECT_EQ(m.SSCommand7.Picture, m.Leerbild.Picture);
    EXPECT_EQ(m.SSCommand2.Picture, m.Image11.Picture);
    EXPECT_TRUE(m.SSCommand4.Enabled);
    EXPECT_TRUE(m.SSCommand6.Enabled);
    EXPECT_TRUE(m.AdresseÄndern.Enabled);
    EXPECT_TRUE(m.AdresseLöschen.Enabled);
    EXPECT_TRUE(m.Command1.Enabled);

    // The dialer holds the card's dial data.
    auto& d = app().DIALER;
    EXPECT_EQ(d.Text6.Text, "0211 1");
    EXPECT_EQ(d.Text1.Text, "Hans Müller");
    EXPECT_EQ(d.Text2.Text, "1");
    EXPECT_EQ(d.Dialnumber[1].Caption, "0211 2");
    EXPECT_EQ(d.Dialnumber[2].Caption, "0171 3");
    EXPECT_EQ(d.Dialnumber[3].Caption, "111");
    EXPECT_EQ(d.Dialnumber[6].Caption, "444");
}

TEST_F(MaskTransferTest, ACardWithAllColumnsNullShowsAnEmptyMask)
{
    addCard({});
    start();
    scribble();
    DatenInMaske(app());
    auto& m = mask();
    for (auto& [i, f] : m.feld)
        EXPECT_EQ(f.Text, "") << i;
    for (auto& [i, b] : m.Typenliste)
        EXPECT_EQ(b.Value, 0) << i;
    for (auto& [i, f] : app().Aform.feldB)
        EXPECT_EQ(f.Text, "") << i;
    EXPECT_EQ(m.feldbank[1].Text, "");
    EXPECT_EQ(m.prog[7].Text, "");
    EXPECT_EQ(m.Datum.Caption, "");
    EXPECT_EQ(m.Bemerkung.Text, "");
    EXPECT_EQ(m.Text15.Text, "");
    EXPECT_EQ(m.LaufendeNummer.Caption, "1");
    EXPECT_EQ(m.Label12.Caption, "");
    EXPECT_FALSE(m.SSCommand5.Enabled);
    EXPECT_TRUE(ui().messageBoxes().empty());
}

TEST_F(MaskTransferTest, ShortAndEmptyTypeMarksTickOnlyTheirOnes)
{
    addCard({{"Typ", "101"}});
    addCard({{"Typ", ""}});
    start();
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(mask().Typenliste[i].Value, (i == 0 || i == 2) ? 1 : 0) << i;
    click("Hauptmaske.EinznachHinten");
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(mask().Typenliste[i].Value, 0) << i;
    EXPECT_EQ(TypAusMaske(app()), "0000000");
}

TEST_F(MaskTransferTest, TheMaskWrittenBackGivesTheSameCard)
{
    addCard({{"Nachname", "Alt"}, {"Typ", ""}, {"Geburtstag", "01.02.1990"}});
    start();
    auto& m = mask();
    m.feld[4].Text = "Neu";
    m.feld[13].Text = "";
    m.feldbank[2].Text = "Bank X";
    app().Aform.FeldA[10].Text = "Ziel";
    m.Text15.Text = "lang";
    m.Datum.Caption = "17.05.2024";
    m.LaufendeNummer.Caption = "999";  // a display only

    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();

    EXPECT_TRUE(ui().messageBoxes().empty());
    DatabasePtr db = Database::open(homeFile("merkkartelle.mdb"));
    RecordsetPtr rs = db->createDynaset("Adressenstamm");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Fields("Nachname").text(), "Neu");
    EXPECT_EQ(rs->Fields("Geburtstag").Value(), QVariant(QString()));  // empty, not Null
    EXPECT_EQ(rs->Fields("Typ").text(), "0000000");
    EXPECT_EQ(rs->Fields("Bank").text(), "Bank X");
    EXPECT_EQ(rs->Fields("A10").text(), "Ziel");
    EXPECT_EQ(rs->Fields("CampoM2").text(), "lang");
    EXPECT_EQ(rs->Fields("Datum").text(), "17.05.2024");
    EXPECT_EQ(rs->Fields("Laufendenummer").text(), "1");
    EXPECT_EQ(rs->Fields("Telefon").Value(), QVariant(QString()));  // an empty slot writes the empty text
}

TEST_F(MaskTransferTest, ABirthdayTheColumnRefusesSkipsAheadToTheTypeMark)
{
    addCard({{"Nachname", "Alt"}, {"Telefon", "alt"}, {"Kontonummer", "alt"}, {"Typ", "0000000"}});
    start();
    mask().feld[13].Text = "01.02.19900";  // longer than the column holds
    mask().feld[14].Text = "neu";
    mask().feldbank[1].Text = "neu";
    mask().Typenliste[3].Value = 1;
    mask().Text9.Text = "/neu.wav";

    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();

    EXPECT_TRUE(ui().messageBoxes().empty());
    RecordsetPtr rs = Database::open(homeFile("merkkartelle.mdb"))->createDynaset("Adressenstamm");
    EXPECT_EQ(rs->Fields("Telefon").text(), "alt");      // skipped
    EXPECT_EQ(rs->Fields("Kontonummer").text(), "alt");  // skipped
    EXPECT_EQ(rs->Fields("Typ").text(), "0001000");      // written from here on
    EXPECT_EQ(rs->Fields("Som").text(), "/neu.wav");
}

TEST_F(MaskTransferTest, AFailureOutsideTheGuardsStopsWithTheStructureBox)
{
    addCard({{"Nachname", "Alt"}, {"Stadt", "alt"}});
    start();
    mask().feld[4].Text = "Neu";
    mask().feld[9].Text = "12345678901";  // PLZ holds ten
    mask().feld[10].Text = "neu";

    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();

    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    const QString prompt = ui().messageBoxes().front().prompt;
    EXPECT_TRUE(prompt.startsWith("Speicherung abgebrochen - Strukturfehler \r       ")) << prompt.toStdString();
    EXPECT_TRUE(prompt.endsWith("\r"));
    RecordsetPtr rs = Database::open(homeFile("merkkartelle.mdb"))->createDynaset("Adressenstamm");
    EXPECT_EQ(rs->Fields("Nachname").text(), "Neu");  // written before the failure
    EXPECT_EQ(rs->Fields("Stadt").text(), "alt");     // not after it
}

TEST_F(MaskTransferTest, ATableWithoutSomeColumnsLeavesTheirSlots)
{
    {
        DatabasePtr db = Database::open(homeFile("merkkartelle.mdb"));
        ASSERT_EQ(sqlite3_exec(db->handle(),
                               "CREATE TABLE Kurz (Laufendenummer INTEGER PRIMARY KEY AUTOINCREMENT, "
                               "Nachname TEXT(50), Typ TEXT(7)); INSERT INTO Kurz (Nachname, Typ) VALUES ('Kurz', '1')",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
    }
    ini("Dbmerkkartelle", "Kurz");
    start();
    scribble();
    DatenInMaske(app());
    EXPECT_EQ(mask().feld[4].Text, "Kurz");
    EXPECT_EQ(mask().feld[5].Text, "alt");
    EXPECT_EQ(mask().Typenliste[0].Value, 1);
    EXPECT_TRUE(ui().messageBoxes().empty());

    app().Kartensatz->Edit();
    MaskeInDaten(app());
    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    EXPECT_TRUE(ui().messageBoxes().front().prompt.startsWith("Speicherung abgebrochen - Strukturfehler "));
}

TEST_F(MaskTransferTest, AnEmptyDatabaseClearsTheMaskButKeepsTheHistoryPair)
{
    start();
    scribble();
    mask().dataold.Caption = "3";
    mask().datalabel.Caption = "4";
    mask().LaufendeNummer.Caption = "4";
    DatenInMaske(app());
    EXPECT_EQ(mask().feld[0].Text, "");
    EXPECT_EQ(mask().Typenliste[6].Value, 0);
    EXPECT_EQ(app().Aform.FeldA[1].Text, "");
    EXPECT_EQ(mask().rectime.Caption, "");
    EXPECT_EQ(mask().Text14.Text, "");
    EXPECT_EQ(mask().LaufendeNummer.Caption, "");
    EXPECT_EQ(mask().dataold.Caption, "3");
    EXPECT_EQ(mask().datalabel.Caption, "4");
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 0 von 0 ");
}

TEST_F(MaskTransferTest, ThePictureShowsWithItsSizeOrStaysAway)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    ASSERT_TRUE(picture.save(homeFile("bild.png")));
    addCard({{"Telex", homeFile("bild.png")}});
    addCard({{"Telex", homeFile("weg.png")}});
    addCard({});
    start();
    auto& m = mask();
    m.Panel3D2.Width = 3240;
    m.Panel3D2.Height = 2640;
    DatenInMaske(app());
    EXPECT_TRUE(m.Image1.Visible);
    EXPECT_EQ(m.Label16.Caption, "40 x 30");
    EXPECT_EQ(m.Image1.PictureWidth, 40);
    EXPECT_LE(m.Image1.Width, 3240);
    EXPECT_LE(m.Image1.Height, 2640);
    EXPECT_EQ(m.Image1.Width * 30 / 40, m.Image1.Height);  // proportions kept

    click("Hauptmaske.EinznachHinten");
    EXPECT_FALSE(m.Image1.Visible);
    EXPECT_EQ(m.Label9.Caption, "REPLAY ON");
    EXPECT_TRUE(ui().messageBoxes().empty());

    click("Hauptmaske.EinznachHinten");
    EXPECT_FALSE(m.Image1.Visible);
    EXPECT_EQ(m.Image1.Picture, "");
    EXPECT_EQ(m.Label16.Caption, "");
    EXPECT_EQ(m.Label9.Caption, "");  // no picture blanks the history flag
}

TEST_F(MaskTransferTest, ThePrintCopyReadsItsColumnsOnlyWithCards)
{
    Druckpuffer puffer;
    puffer.Firma = "vorher";
    start();
    DatenInDruckpuffer(app(), puffer);
    EXPECT_EQ(puffer.Firma, "vorher");

    addCard({{"Firma", "ACME"}, {"Nachname", "Roth"}, {"Bemerkung", "Text"}});
    restart();
    start();
    DatenInDruckpuffer(app(), puffer);
    EXPECT_EQ(puffer.Firma, "ACME");
    EXPECT_EQ(puffer.Nachname, "Roth");
    EXPECT_EQ(puffer.Bemerkung, "Text");
    EXPECT_EQ(puffer.Stadt, "");
}

}  // namespace
}  // namespace mk::test
