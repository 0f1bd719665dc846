// Order and navigation where the driver cannot reach: the criterion of KarteFinden, the
// position among live cards, what Form3 keeps in the settings, the rebuild after a save,
// the serial-letter list's mark.

#include "card_home.h"

#include "card/card_cursor.h"
#include "card/mask_transfer.h"

namespace mk::test {
namespace {

class NavigationTest : public CardHome {
protected:
    void SetUp() override
    {
        CardHome::SetUp();
        for (const char* name : {"Zeller", "Adler", "Müller", "Becker", "Ohm"})
            addCard({{"Nachname", name}, {"Typ", "1000000"}});
        start();
    }
    QString current() { return app().Kartensatz->Fields("Nachname").text(); }
};

TEST_F(NavigationTest, KarteFindenFindsExactlyTheNumber)
{
    EXPECT_EQ(KarteFindenKriterium("123"), "LEFT([Laufendenummer], 4) = '123 '");
    {
        RecordsetPtr rs = Database::open(defaultDatabase())->createDynaset("Adressenstamm");
        for (int i = 6; i <= 123; ++i) {
            rs->AddNew();
            rs->Fields("Nachname").setValue(QStringLiteral("Karte %1").arg(i));
            rs->Update();
        }
    }
    restart();
    start();
    ASSERT_TRUE(KarteFinden(app(), "123"));
    EXPECT_EQ(current(), "Karte 123");
    ASSERT_TRUE(KarteFinden(app(), "12"));  // not 123, not 120
    EXPECT_EQ(current(), "Karte 12");
    for (const char* none : {"1234", "", "x'y"})
        EXPECT_FALSE(KarteFinden(app(), none)) << none;
    EXPECT_EQ(current(), "Karte 12");  // no match leaves the cursor
}

TEST_F(NavigationTest, ThePositionCountsLiveCardsAndFollowsTheEditStates)
{
    app().Sortierfeld = "Nachname";
    ReihenfolgeAnwenden(app());
    ASSERT_TRUE(KarteFinden(app(), "3"));  // Müller, third by name
    DatenInMaske(app());
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 3 von 5 ");
    EXPECT_EQ(mask().Label8.ForeColor, rgb(0, 0, 96));

    RecordsetPtr probe = app().Kartensatz->clone();
    probe->MoveFirst();
    probe->Delete();  // a card before the current one no longer counts
    PositionAnzeigen(app());
    EXPECT_EQ(mask().Label8.Caption, "Eintrag 2 von 4 ");

    mask().AdresseÄndern.Caption = "OK";
    PositionAnzeigen(app());
    EXPECT_EQ(mask().Label8.Caption, "Ändern 2 von 4 ");
    mask().AdresseÄndern.Caption = "&Bearbeiten";
    mask().NeueAdresse.Caption = "Speichern";
    PositionAnzeigen(app());
    EXPECT_EQ(mask().Label8.Caption, "Neuer Eintrag 5 ");
}

TEST_F(NavigationTest, Form3KeepsItsChoiceInTheSettingsBuffer)
{
    click("Form3.Option3D1(3)");
    click("Form3.AZCHECK");
    EXPECT_EQ(app().Einstellungsliste[66], "True");
    showForm(app(), app().Form3);
    app().Form3.Top = 1200;
    app().Form3.Left = 2400;
    click("Form3.Command3D1");
    EXPECT_FALSE(app().Form3.Visible);
    EXPECT_EQ(app().Einstellungsliste[65], "3");
    EXPECT_EQ(app().Einstellungsliste[67], "1200");
    EXPECT_EQ(app().Einstellungsliste[68], "2400");
    EXPECT_EQ(app().SortierfeldAlt, "Firma");
}

TEST_F(NavigationTest, TheRebuildAfterASaveAscendsAndKeepsTheTypeFilter)
{
    click("Form3.Option3D1(5)");
    click("Form3.AZCHECK");
    ASSERT_EQ(current(), "Zeller");

    ASSERT_TRUE(KartensatzNachSpeichern(app(), "4"));
    EXPECT_EQ(current(), "Becker");
    app().Kartensatz->MoveNext();
    EXPECT_EQ(current(), "Müller");  // ascending again, though Label5 says otherwise
    EXPECT_EQ(mask().Label5.Caption, "Z - A");
    EXPECT_FALSE(KartensatzNachSpeichern(app(), "99"));

    {
        RecordsetPtr rs = Database::open(defaultDatabase())->createDynaset("Adressenstamm");
        rs->MoveLast();
        rs->Edit();
        rs->Fields("Typ").setValue("0100000");
        rs->Update();
    }
    mask().InfoTipo.Caption = "Typ 2";
    app().Typmaske = "?1?????";
    ASSERT_TRUE(KartensatzNachSpeichern(app(), "5"));
    EXPECT_EQ(app().Typfilter, "[Typ] like '?1?????'");
    EXPECT_EQ(app().Kartensatz->RecordCount(), 1);
    EXPECT_FALSE(KartensatzNachSpeichern(app(), "1"));  // outside the type filter
}

TEST_F(NavigationTest, TheSerialLetterButtonMarksTheListAndSelectsTheCard)
{
    auto& liste = app().mala.Schnelleauswahlliste;
    for (int n : {4, 1, 2})
        liste.setItemData(liste.AddItem(QStringLiteral("Zeile %1").arg(n)), n);
    click("Hauptmaske.EinznachHinten");  // card 2
    app().mala.WindowState = vbMinimized;
    click("Hauptmaske.Command3D8");
    // Marked as not up to date, the list is built afresh as it shows; the card's line is chosen.
    EXPECT_EQ(app().mala.Label14.Caption, "UPDATED");
    EXPECT_EQ(app().mala.WindowState, vbNormal);
    ASSERT_GE(liste.ListIndex, 0);
    EXPECT_EQ(liste.ItemData(liste.ListIndex), 2);
    EXPECT_TRUE(app().mala.Visible);

    click("Hauptmaske.Command3D15");  // the shown list follows the card
    click("Hauptmaske.EinzNachvorne");
    ASSERT_GE(liste.ListIndex, 0);
    EXPECT_EQ(QString::number(liste.ItemData(liste.ListIndex)), mask().LaufendeNummer.Caption);
    click("Hauptmaske.Command3D8");
    EXPECT_EQ(app().mala.Label14.Caption, "UPDATED");
}

}  // namespace
}  // namespace mk::test
