// The transfer between card and mask: the columns whose slots are not plainly feld(i), Null
// and short type marks, writing back, the guarded birthday, the structure error box, the
// copy into DIALER, the picture.

#include "card_home.h"

#include "card/card_cursor.h"
#include "card/mask_transfer.h"

#include <QImage>

namespace mk::test {
namespace {

class MaskTransferTest : public CardHome {};

TEST_F(MaskTransferTest, TheIrregularSlotsAndTheDialerTakeTheirColumns)
{
    addCard({{"Nachname", "Müller"}, {"Vorname", "Hans"}, {"Telefon", "0211 1"}, {"Celphone", "0171 3"},
             {"Telex", "/weg/bild.png"}, {"Bemerkung", "Notiz"}, {"A3", "Anna Zeller"}, {"B3", "17"},
             {"C3", "www.x.de"}, {"PROG1", "/x.txt"}, {"Datum", "01.02.2024"}, {"rectime", "08:00:00"},
             {"Partei", "P"}, {"vorwahl", "0211"}, {"TEL4", "444"}, {"Bank", "Sparkasse"}, {"BankLeitZahl", "300"},
             {"Kontonummer", "123"}, {"Typ", "101"}, {"Som", "/s.wav"}, {"CampoM2", "lang"}});
    start();
    DatenInMaske(app());
    auto& m = mask();
    EXPECT_EQ(m.feld[16].Text, "/weg/bild.png");
    EXPECT_EQ(m.Bemerkung.Text, "Notiz");
    EXPECT_EQ(app().Aform.FeldA[3].Text, "Anna Zeller");
    EXPECT_EQ(app().Aform.feldB[3].Text, "17");
    EXPECT_EQ(m.feldnum[2].Text, "www.x.de");
    EXPECT_EQ(m.Datum.Caption, "01.02.2024");
    EXPECT_EQ(m.rectime.Caption, "08:00:00");
    EXPECT_EQ(m.Partido.Text, "P");
    EXPECT_EQ(m.Ramal.Text, "0211");
    EXPECT_EQ((QStringList{m.feldbank[0].Text, m.feldbank[1].Text, m.feldbank[2].Text}),
              (QStringList{"300", "123", "Sparkasse"}));
    EXPECT_EQ(m.Text15.Text, "lang");
    EXPECT_EQ(app().Typzeichen, "101");
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(m.Typenliste[i].Value, i == 0 || i == 2 ? 1 : 0) << i;  // a short Typ: the rest unticked
    EXPECT_EQ(m.LaufendeNummer.Caption, "1");
    EXPECT_EQ(m.datalabel.Caption, "1");
    EXPECT_TRUE(m.SSCommand5.Enabled);   // web button
    EXPECT_FALSE(m.SSCommand2.Enabled);  // no mail
    EXPECT_TRUE(m.SSCommand4.Enabled);   // sound
    EXPECT_EQ(m.Label12.Caption, "Siehe verknüpfte Dateien");
    EXPECT_TRUE(m.AdresseÄndern.Enabled && m.AdresseLöschen.Enabled && m.Command1.Enabled);
    EXPECT_FALSE(m.Image1.Visible);  // a picture that is gone stays away without a word
    EXPECT_TRUE(ui().messageBoxes().empty());

    auto& d = app().DIALER;
    EXPECT_EQ(d.Text6.Text, "0211 1");
    EXPECT_EQ(d.Text1.Text, "Hans Müller");
    EXPECT_EQ(d.Text2.Text, "1");
    EXPECT_EQ(d.Dialnumber[2].Caption, "0171 3");
    EXPECT_EQ(d.Dialnumber[6].Caption, "444");
}

TEST_F(MaskTransferTest, ACardWithAllColumnsNullEmptiesEverySlot)
{
    addCard({{"Nachname", "Voll"}, {"Typ", "1111111"}, {"B10", "9"}, {"PROG7", "/p"}, {"Kontonummer", "1"},
             {"Zeit", "10:00"}, {"CampoM2", "x"}});
    addCard({});
    start();
    click("Hauptmaske.EinznachHinten");
    auto& m = mask();
    EXPECT_EQ(m.feld[4].Text, "");
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(m.Typenliste[i].Value, 0) << i;
    EXPECT_EQ(app().Aform.feldB[10].Text, "");
    EXPECT_EQ(m.prog[7].Text, "");
    EXPECT_EQ(m.feldbank[1].Text, "");
    EXPECT_EQ(m.Zeit.Caption, "");
    EXPECT_EQ(m.Text15.Text, "");
    EXPECT_EQ(m.LaufendeNummer.Caption, "2");
    EXPECT_TRUE(ui().messageBoxes().empty());
}

TEST_F(MaskTransferTest, TheMaskWrittenBackKeepsTheCard)
{
    addCard({{"Nachname", "Alt"}, {"Typ", ""}, {"Geburtstag", "01.02.1990"}, {"Telefon", "alt"}});
    start();
    auto& m = mask();
    m.feld[4].Text = "Neu";
    m.feld[13].Text = "";  // an empty birthday is written as the empty text
    m.feld[14].Text = "";
    m.feldbank[2].Text = "Bank X";
    app().Aform.FeldA[10].Text = "Ziel";
    m.Text15.Text = "lang";
    m.Datum.Caption = "17.05.2024";
    m.LaufendeNummer.Caption = "999";  // a display only: never written

    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();

    EXPECT_TRUE(ui().messageBoxes().empty());
    RecordsetPtr rs = stored();
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Fields("Nachname").text(), "Neu");
    EXPECT_EQ(rs->Fields("Geburtstag").Value(), QVariant(QString()));
    EXPECT_EQ(rs->Fields("Telefon").Value(), QVariant(QString()));
    EXPECT_EQ(rs->Fields("Typ").text(), "0000000");
    EXPECT_EQ(rs->Fields("Bank").text(), "Bank X");
    EXPECT_EQ(rs->Fields("A10").text(), "Ziel");
    EXPECT_EQ(rs->Fields("CampoM2").text(), "lang");
    EXPECT_EQ(rs->Fields("Datum").text(), "17.05.2024");
    EXPECT_EQ(rs->Fields("Laufendenummer").text(), "1");
}

TEST_F(MaskTransferTest, ARefusedBirthdaySkipsToTheTypeAndOtherFailuresStopWithTheBox)
{
    addCard({{"Telefon", "alt"}, {"Kontonummer", "alt"}, {"Stadt", "alt"}});
    start();
    auto& m = mask();
    m.feld[13].Text = "01.02.19900";  // longer than the column holds
    m.feld[14].Text = "neu";
    m.feldbank[1].Text = "neu";
    m.Typenliste[3].Value = 1;
    m.Text9.Text = "/neu.wav";
    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();
    EXPECT_TRUE(ui().messageBoxes().empty());
    RecordsetPtr rs = stored();
    EXPECT_EQ(rs->Fields("Telefon").text(), "alt");      // skipped
    EXPECT_EQ(rs->Fields("Kontonummer").text(), "alt");  // skipped
    EXPECT_EQ(rs->Fields("Typ").text(), "0001000");      // written from here on
    EXPECT_EQ(rs->Fields("Som").text(), "/neu.wav");

    m.feld[13].Text.clear();
    m.feld[4].Text = "Neu";
    m.feld[9].Text = "12345678901";  // PLZ holds ten
    m.feld[10].Text = "neu";
    app().Kartensatz->Edit();
    MaskeInDaten(app());
    app().Kartensatz->Update();
    ASSERT_EQ(prompts().size(), 1);
    EXPECT_TRUE(prompts().front().startsWith("Speicherung abgebrochen - Strukturfehler \r       "));
    EXPECT_TRUE(prompts().front().endsWith("\r"));
    rs = stored();
    EXPECT_EQ(rs->Fields("Nachname").text(), "Neu");  // written before the failure
    EXPECT_EQ(rs->Fields("Stadt").text(), "alt");     // not after it
}

TEST_F(MaskTransferTest, ThePictureShowsItsSizeAndAnEmptyPathClearsIt)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    ASSERT_TRUE(picture.save(homeFile("bild.png")));
    addCard({{"Telex", homeFile("bild.png")}});
    addCard({});
    start();
    auto& m = mask();
    m.Panel3D2.Width = 3240;
    m.Panel3D2.Height = 2640;
    DatenInMaske(app());
    EXPECT_TRUE(m.Image1.Visible);
    EXPECT_EQ(m.Label16.Caption, "40 x 30");
    EXPECT_LE(m.Image1.Width, 3240);
    EXPECT_EQ(m.Image1.Width * 30 / 40, m.Image1.Height);  // proportions kept

    click("Hauptmaske.EinznachHinten");
    EXPECT_FALSE(m.Image1.Visible);
    EXPECT_EQ(m.Image1.Picture, "");
    EXPECT_EQ(m.Label16.Caption, "");
    EXPECT_EQ(m.Label9.Caption, "");  // no picture blanks the history flag the move had set
}

}  // namespace
}  // namespace mk::test
