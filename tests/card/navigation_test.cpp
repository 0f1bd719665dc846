// Order and navigation through the handlers: the four moves with their edges, dataold, the
// position display, finding a card by number, the order chosen on Form3, the rebuild after
// a save.

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
        const char* names[] = {"Zeller", "Adler", "Müller", "Becker", "Ohm"};
        const char* departments[] = {"B", "C", "A", "E", "D"};
        for (int i = 0; i < 5; ++i)
            addCard({{"Nachname", names[i]}, {"Departament", departments[i]}, {"Typ", "1000000"}});
        start();
    }
    QString shown() { return mask().feld[4].Text; }
    QString position() { return mask().Label8.Caption; }
};

TEST_F(NavigationTest, MovesWalkTheCursorAndRememberTheCardLeft)
{
    EXPECT_EQ(shown(), "Zeller");
    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Adler");
    EXPECT_EQ(mask().dataold.Caption, "1");
    EXPECT_EQ(mask().datalabel.Caption, "2");
    EXPECT_EQ(position(), "Eintrag 2 von 5 ");
    EXPECT_TRUE(mask().EinznachHinten.Enabled);

    click("Hauptmaske.Command3D15");
    EXPECT_EQ(shown(), "Ohm");
    EXPECT_EQ(mask().dataold.Caption, "2");
    EXPECT_EQ(position(), "Eintrag 5 von 5 ");

    click("Hauptmaske.EinzNachvorne");
    EXPECT_EQ(shown(), "Becker");
    EXPECT_EQ(mask().dataold.Caption, "5");

    click("Hauptmaske.Command3D16");
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_EQ(mask().dataold.Caption, "4");
    EXPECT_EQ(position(), "Eintrag 1 von 5 ");
}

TEST_F(NavigationTest, TheEdgesStayOnTheirCardAndKeepDataold)
{
    click("Hauptmaske.EinznachHinten");  // dataold 1
    click("Hauptmaske.Command3D15");     // dataold 2, on the last card
    ASSERT_EQ(mask().dataold.Caption, "2");

    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Ohm");
    EXPECT_EQ(mask().dataold.Caption, "2");
    EXPECT_EQ(position(), "Eintrag 5 von 5 ");

    mask().feld[4].Text = "überschrieben";
    click("Hauptmaske.Command3D15");  // nothing changes, but the card is shown again
    EXPECT_EQ(shown(), "Ohm");
    EXPECT_EQ(mask().dataold.Caption, "2");

    click("Hauptmaske.Command3D16");
    ASSERT_EQ(mask().dataold.Caption, "5");
    click("Hauptmaske.EinzNachvorne");
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_EQ(mask().dataold.Caption, "5");
    click("Hauptmaske.Command3D16");
    EXPECT_EQ(mask().dataold.Caption, "5");
    EXPECT_EQ(position(), "Eintrag 1 von 5 ");
}

TEST_F(NavigationTest, NothingMovesUnderTheScreenGuard)
{
    mask().Bildschutz.Visible = true;
    click("Hauptmaske.EinznachHinten");
    click("Hauptmaske.Command3D15");
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_EQ(mask().dataold.Caption, "");
    EXPECT_NE(mask().Label9.Caption, "REPLAY ON");
}

TEST_F(NavigationTest, DataoldGoesBackAndSwapsWithTheCardShown)
{
    click("Hauptmaske.Command3D15");  // Ohm, dataold 1
    click("Hauptmaske.dataold");
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_EQ(mask().dataold.Caption, "5");
    click("Hauptmaske.dataold");
    EXPECT_EQ(shown(), "Ohm");
    EXPECT_EQ(position(), "Eintrag 5 von 5 ");

    // A number that is gone: the cursor stays, nothing is shown anew.
    mask().dataold.Caption = "99";
    mask().feld[4].Text = "unverändert";
    click("Hauptmaske.dataold");
    EXPECT_EQ(shown(), "unverändert");
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), "Ohm");

    // Not while a card is changed.
    mask().dataold.Caption = "1";
    mask().AdresseÄndern.Caption = "OK";
    click("Hauptmaske.dataold");
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), "Ohm");
}

TEST_F(NavigationTest, KarteFindenComparesTheNumberAsText)
{
    EXPECT_EQ(KarteFindenKriterium("123"), "LEFT([Laufendenummer], 4) = '123 '");
    {
        DatabasePtr db = Database::open(homeFile("merkkartelle.mdb"));
        RecordsetPtr rs = db->createDynaset("Adressenstamm");
        for (int i = 6; i <= 123; ++i) {
            rs->AddNew();
            rs->Fields("Nachname").setValue(QStringLiteral("Karte %1").arg(i));
            rs->Update();
        }
    }
    restart();
    start();
    ASSERT_TRUE(KarteFinden(app(), "123"));
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), "Karte 123");
    ASSERT_TRUE(KarteFinden(app(), "12"));
    EXPECT_EQ(app().Kartensatz->Fields("Laufendenummer").text(), "12");
    EXPECT_FALSE(KarteFinden(app(), "1234"));
    EXPECT_FALSE(KarteFinden(app(), ""));
    EXPECT_FALSE(KarteFinden(app(), "x'y"));
    EXPECT_EQ(app().Kartensatz->Fields("Laufendenummer").text(), "12");  // stays on no match
}

TEST_F(NavigationTest, PositionFollowsNewAndChangeStates)
{
    click("Hauptmaske.EinznachHinten");
    mask().NeueAdresse.Caption = "Speichern";
    PositionAnzeigen(app());
    EXPECT_EQ(position(), "Neuer Eintrag 6 ");
    mask().NeueAdresse.Caption = "&Neu";
    mask().AdresseÄndern.Caption = "OK";
    PositionAnzeigen(app());
    EXPECT_EQ(position(), "Ändern 2 von 5 ");
    mask().AdresseÄndern.Caption = "&Bearbeiten";
    PositionAnzeigen(app());
    EXPECT_EQ(position(), "Eintrag 2 von 5 ");
    EXPECT_EQ(mask().Label8.ForeColor, rgb(0, 0, 96));
}

TEST_F(NavigationTest, PositionCountsLiveCardsOfASortedCursor)
{
    app().Sortierfeld = "Nachname";
    ReihenfolgeAnwenden(app());
    DatenInMaske(app());
    EXPECT_EQ(shown(), "Adler");
    click("Hauptmaske.EinznachHinten");
    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Müller");
    EXPECT_EQ(position(), "Eintrag 3 von 5 ");

    // A card deleted before the current one no longer counts.
    RecordsetPtr probe = app().Kartensatz->clone();
    probe->MoveFirst();
    probe->Delete();
    PositionAnzeigen(app());
    EXPECT_EQ(position(), "Eintrag 2 von 4 ");
}

TEST_F(NavigationTest, ChoosingASlotOnForm3SortsAndTellsTheUser)
{
    click("Hauptmaske.EinznachHinten");
    click("Hauptmaske.Command3D24");
    ASSERT_TRUE(app().Form3.Visible);

    click("Form3.Option3D1(5)");

    EXPECT_FALSE(app().Form3.Visible);
    EXPECT_EQ(mask().currentindex.Caption, "5");
    EXPECT_EQ(app().Sortierfeld, "Nachname");
    EXPECT_EQ(app().SortierfeldAlt, "Nachname");
    EXPECT_EQ(mask().SortiertNach.Caption, "Nachname");
    EXPECT_EQ(app().Message.Label1.Caption, "Sortierung der Datenbank:    NACHNAME   A - Z");
    EXPECT_EQ(app().Message.Label1.ForeColor, colour::Red);
    EXPECT_EQ(shown(), "Adler");
    EXPECT_EQ(position(), "Eintrag 1 von 5 ");

    advanceClock(app(), 2000);
    EXPECT_FALSE(app().Message.Visible);

    click("Form3.AZCHECK");
    EXPECT_EQ(mask().Label5.Caption, "Z - A");
    EXPECT_EQ(app().Einstellungsliste[66], "True");
    EXPECT_EQ(app().Message.Label1.Caption, "Sortierung der Datenbank:    NACHNAME   Z - A");
    EXPECT_EQ(shown(), "Zeller");
    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Ohm");

    click("Form3.Option3D1(25)");
    EXPECT_EQ(mask().SortiertNach.Caption, "Bild");
    EXPECT_EQ(app().Sortierfeld, "Telex");
    EXPECT_EQ(app().Message.Label1.Caption, "Sortierung der Datenbank:    IMAGEM   Z - A");
}

TEST_F(NavigationTest, SlotFourOnForm3LeavesTheOrderAsItWas)
{
    click("Form3.Option3D1(5)");
    click("Form3.Option3D1(4)");
    EXPECT_EQ(mask().SortiertNach.Caption, "Departament");
    EXPECT_EQ(app().Sortierfeld, "Abteilung");
    EXPECT_EQ(mask().currentindex.Caption, "4");
    EXPECT_EQ(shown(), "Adler");  // still by Nachname, first card
    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Becker");
}

TEST_F(NavigationTest, Form3StaysShutWhileACardIsEdited)
{
    mask().NeueAdresse.Caption = "Speichern";
    click("Hauptmaske.Command3D24");
    EXPECT_FALSE(app().Form3.Visible);
}

TEST_F(NavigationTest, ClosingForm3KeepsItsChoiceInTheSettings)
{
    click("Form3.Option3D1(3)");
    showForm(app(), app().Form3);
    app().Form3.Top = 1200;
    app().Form3.Left = 2400;
    click("Form3.Command3D1");
    EXPECT_FALSE(app().Form3.Visible);
    EXPECT_EQ(app().Einstellungsliste[65], "3");
    EXPECT_EQ(app().Einstellungsliste[66], "False");
    EXPECT_EQ(app().Einstellungsliste[67], "1200");
    EXPECT_EQ(app().Einstellungsliste[68], "2400");
}

TEST_F(NavigationTest, TheHintsNameTheOrderAndTheStoredDirection)
{
    click("Form3.Option3D1(5)");
    app().Einstellungsliste[66] = "False";
    raiseEvent(app(), "Hauptmaske.EinznachHinten", "MouseMove");
    EXPECT_EQ(mask().Panel3D3.Caption, "Zum nächsten Eintrag wechseln - Sortierung: Nachname A-Z");
    app().Einstellungsliste[66] = "True";
    raiseEvent(app(), "Hauptmaske.Command3D16", "MouseMove");
    EXPECT_EQ(mask().Panel3D3.Caption, "Zum ersten Eintrag wechseln - Sortierung: Nachname Z-A");
    EXPECT_EQ(bewegungsHinweis(app(), "EinzNachvorne"), "Zum vorherigen Eintrag wechseln - Sortierung: Nachname Z-A");
    EXPECT_EQ(bewegungsHinweis(app(), "Command3D15"), "Zum letzten Eintrag wechseln - Sortierung: Nachname Z-A");
}

TEST_F(NavigationTest, TheRebuildAfterASaveAscendsAndFindsTheCard)
{
    click("Form3.Option3D1(5)");
    click("Form3.AZCHECK");  // Z - A
    ASSERT_EQ(shown(), "Zeller");

    ASSERT_TRUE(KartensatzNachSpeichern(app(), "4"));
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), "Becker");
    DatenInMaske(app());
    click("Hauptmaske.EinznachHinten");
    EXPECT_EQ(shown(), "Müller");  // ascending again, though Label5 says otherwise
    EXPECT_EQ(mask().Label5.Caption, "Z - A");

    EXPECT_FALSE(KartensatzNachSpeichern(app(), "99"));
}

TEST_F(NavigationTest, TheRebuildUnderATypeFilterNarrowsTheCursor)
{
    {
        DatabasePtr db = Database::open(homeFile("merkkartelle.mdb"));
        RecordsetPtr rs = db->createDynaset("Adressenstamm");
        rs->MoveLast();
        rs->Edit();
        rs->Fields("Typ").setValue("0100000");
        rs->Update();
    }
    app().SortierfeldAlt = app().Sortierfeld = "Nachname";
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
    for (int n : {4, 1, 2}) {
        const int i = liste.AddItem(QStringLiteral("Zeile %1").arg(n));
        liste.setItemData(i, n);
    }
    click("Hauptmaske.EinznachHinten");  // card 2
    app().mala.WindowState = vbMinimized;
    click("Hauptmaske.Command3D8");
    EXPECT_EQ(app().mala.Label14.Caption, "NOT UPDATED");
    EXPECT_EQ(app().mala.WindowState, vbNormal);
    EXPECT_EQ(liste.ListIndex, 2);
    EXPECT_TRUE(app().mala.Visible);

    app().mala.Label14.Caption = "UPDATED";
    click("Hauptmaske.EinznachHinten");  // card 3 is not in the list; the shown list follows the card
    EXPECT_EQ(liste.ListIndex, 2);
    click("Hauptmaske.EinznachHinten");  // card 4
    EXPECT_EQ(liste.ListIndex, 0);
    click("Hauptmaske.Command3D8");
    EXPECT_EQ(app().mala.Label14.Caption, "UPDATED");
    SerienbriefVeraltet(app());
    EXPECT_EQ(app().mala.Label14.Caption, "NOT UPDATED");
}

}  // namespace
}  // namespace mk::test
