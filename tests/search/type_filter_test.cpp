// The type filter of the main mask: the Selector buttons narrow the cursor to one mark, the
// InfoTipo button shows the filter and releases it; the conditions on the column Typ.

#include "search/type_marks.h"

#include "card/card_cursor.h"
#include "card_session.h"

namespace mk {
namespace {

using test::CardSession;

class TypeFilter : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        card({{"Nachname", "Adler"}, {"Typ", "1000000"}});
        card({{"Nachname", "Zander"}, {"Typ", "1100000"}});
        card({{"Nachname", "Meier"}, {"Typ", "0100000"}});
        card({{"Nachname", "Braun"}, {"Typ", "0000001"}});
        card({{"Nachname", "Null"}, {"Typ", QVariant()}});
        card({{"Nachname", "Leer"}, {"Typ", "0000000"}});
        card({{"Nachname", "Kurz"}, {"Typ", "1"}});
        reopen();
        for (int k = 0; k < 7; ++k)
            app.Hauptmaske.Typenliste[k].Caption = QStringLiteral("Typ %1").arg(k + 1);
        app.Hauptmaske.Typenliste[0].Caption = QStringLiteral("Kunde");
        app.Hauptmaske.Typenliste[1].Caption = QStringLiteral("Lieferant");
    }
    Button& info() { return app.Hauptmaske.InfoTipo; }
};

TEST_F(TypeFilter, SelectorShowsOnlyTheMarkedCardsAndInfoTipoShowsAllAgain)
{
    app.mala.Label14.Caption = QStringLiteral("UPDATED");
    raiseEvent(app, QStringLiteral("Hauptmaske.Selector(1)"), QStringLiteral("Click"));

    EXPECT_EQ(column(), QStringList({"Meier", "Zander"}));
    EXPECT_EQ(app.Typmaske, QStringLiteral("?1?????"));
    EXPECT_EQ(app.Typfilter, QStringLiteral("[Typ] like '?1?????\'"));
    EXPECT_EQ(info().Caption, QStringLiteral("Lieferant"));
    EXPECT_EQ(info().ForeColor, colour::Red);
    EXPECT_EQ(app.Hauptmaske.feld[4].Text, QStringLiteral("Meier"));  // the first card of the set
    EXPECT_EQ(app.Hauptmaske.Label8.Caption, QStringLiteral("Eintrag 1 von 2 "));
    EXPECT_EQ(app.mala.Label14.Caption, QStringLiteral("NOT UPDATED"));

    app.mala.Label14.Caption = QStringLiteral("UPDATED");
    raiseEvent(app, QStringLiteral("Hauptmaske.InfoTipo"), QStringLiteral("Click"));

    EXPECT_EQ(column(), QStringList({"Adler", "Braun", "Kurz", "Leer", "Meier", "Null", "Zander"}));
    EXPECT_TRUE(app.Typmaske.isEmpty());
    EXPECT_TRUE(app.Typfilter.isEmpty());
    EXPECT_EQ(info().Caption, QStringLiteral("Alle Einträge"));
    EXPECT_EQ(info().ForeColor, colour::Black);
    EXPECT_EQ(app.mala.Label14.Caption, QStringLiteral("NOT UPDATED"));
}

TEST_F(TypeFilter, ClickingTheActiveTypeAgainKeepsItAndAnotherTypeReplacesIt)
{
    Selector_Click(app, 0);
    Selector_Click(app, 0);
    EXPECT_EQ(column(), QStringList({"Adler", "Zander"}));
    Selector_Click(app, 6);
    EXPECT_EQ(column(), QStringList({"Braun"}));
    EXPECT_EQ(info().Caption, QStringLiteral("Typ 7"));
}

TEST_F(TypeFilter, NullShortAndZeroMarksNeverPassAOneTypeFilter)
{
    for (int i = 0; i < 7; ++i) {
        Selector_Click(app, i);
        const QStringList shown = column();
        EXPECT_FALSE(shown.contains(QStringLiteral("Null"))) << "type " << i + 1;
        EXPECT_FALSE(shown.contains(QStringLiteral("Leer"))) << "type " << i + 1;
        EXPECT_FALSE(shown.contains(QStringLiteral("Kurz"))) << "type " << i + 1;
    }
}

TEST_F(TypeFilter, TheAllMarksConditionSkipsNullAndShortButTakesSevenZeros)
{
    EXPECT_EQ(selected(Typbedingung(kAlleTypen)), QStringList({"Adler", "Braun", "Leer", "Meier", "Zander"}));
}

TEST_F(TypeFilter, ATypeNoCardHasGivesAnEmptyCursorWithTheLabelInRed)
{
    Selector_Click(app, 3);
    EXPECT_EQ(app.Kartensatz->RecordCount(), 0);
    EXPECT_EQ(info().Caption, QStringLiteral("Typ 4"));
    EXPECT_EQ(info().ForeColor, colour::Red);
    EXPECT_EQ(app.Hauptmaske.Label8.Caption, QStringLiteral("Eintrag 0 von 0 "));
    EXPECT_TRUE(app.Hauptmaske.feld[4].Text.isEmpty());
}

TEST_F(TypeFilter, TheFilterSortsAscendingEvenAfterADescendingOrder)
{
    app.Form3.AZCHECK.Value = true;
    ReihenfolgeAnwenden(app);
    EXPECT_EQ(column(), QStringList({"Zander", "Null", "Meier", "Leer", "Kurz", "Braun", "Adler"}));

    Selector_Click(app, 0);
    EXPECT_EQ(column(), QStringList({"Adler", "Zander"}));
    InfoTipo_Click(app);
    EXPECT_EQ(column().first(), QStringLiteral("Adler"));
}

TEST_F(TypeFilter, NothingHappensWhileACardIsEdited)
{
    app.Kartensatz->Edit();
    app.Hauptmaske.AdresseÄndern.Caption = QStringLiteral("OK");
    Selector_Click(app, 1);
    InfoTipo_Click(app);
    EXPECT_EQ(app.Kartensatz->editMode(), EditMode::Edit);
    EXPECT_TRUE(app.Typmaske.isEmpty());

    app.Hauptmaske.AdresseÄndern.Caption = QStringLiteral("&Bearbeiten");
    app.Hauptmaske.NeueAdresse.Caption = QStringLiteral("Speichern");
    Selector_Click(app, 1);
    EXPECT_TRUE(app.Typmaske.isEmpty());
}

TEST_F(TypeFilter, NothingHappensWhileTheScreenGuardShows)
{
    app.Hauptmaske.Bildschutz.Visible = true;
    auto before = app.Kartensatz;
    Selector_Click(app, 1);
    EXPECT_EQ(app.Kartensatz, before);
    EXPECT_TRUE(app.Typmaske.isEmpty());

    app.Hauptmaske.Bildschutz.Visible = false;
    Selector_Click(app, 1);
    app.Hauptmaske.Bildschutz.Visible = true;
    InfoTipo_Click(app);
    EXPECT_EQ(app.Typmaske, QStringLiteral("?1?????"));
    EXPECT_EQ(column(), QStringList({"Meier", "Zander"}));
}

TEST_F(TypeFilter, ReleasingTheFilterLeavesTheFieldSelectionAsItIs)
{
    app.Hauptmaske.Selektiert.Caption = QStringLiteral("Selektierung aktiv");
    Selector_Click(app, 0);
    InfoTipo_Click(app);
    EXPECT_EQ(app.Hauptmaske.Selektiert.Caption, QStringLiteral("Selektierung aktiv"));
}

TEST_F(TypeFilter, TwoTypesOfTheSameNameAreToldApartByTheirMask)
{
    app.Hauptmaske.Typenliste[0].Caption = QStringLiteral("Privat");
    app.Hauptmaske.Typenliste[6].Caption = QStringLiteral("Privat");
    Selector_Click(app, 6);
    EXPECT_EQ(info().Caption, QStringLiteral("Privat"));
    EXPECT_EQ(column(), QStringList({"Braun"}));
}

TEST_F(TypeFilter, TheDisplayNamesATypeByItsFixedFormAsWellAsByItsMask)
{
    app.Typmaske = QStringLiteral("0100000");
    TypenfilterAnzeigen(app);
    EXPECT_EQ(info().Caption, QStringLiteral("Lieferant"));
    EXPECT_EQ(info().ForeColor, colour::Red);

    // A form of several marks names no type: the caption stays, the colour says a filter.
    app.Typmaske = QStringLiteral("1100000");
    TypenfilterAnzeigen(app);
    EXPECT_EQ(info().Caption, QStringLiteral("Lieferant"));
    app.Typmaske = QStringLiteral("0000001");
    TypenfilterAnzeigen(app);
    EXPECT_EQ(info().Caption, QStringLiteral("Typ 7"));
}

TEST_F(TypeFilter, AFilterOnAColumnTheTableLacksLeavesTheWholeTable)
{
    // Slot 4 of the sort options names "Abteilung", which is no column.
    app.Sortierfeld = QStringLiteral("Abteilung");
    Selector_Click(app, 1);
    EXPECT_EQ(app.Kartensatz->RecordCount(), 7);
    EXPECT_EQ(info().Caption, QStringLiteral("Lieferant"));
}

TEST(TypeConditions, MasksAndConditionsAreBuiltFromThePositions)
{
    EXPECT_EQ(Typmaske(1), QStringLiteral("1??????"));
    EXPECT_EQ(Typmaske(4), QStringLiteral("???1???"));
    EXPECT_EQ(Typmaske(7), QStringLiteral("??????1"));
    EXPECT_EQ(Typbedingung(Typmaske(3)), QStringLiteral("[Typ] like '??1????\'"));

    Typauswahl zwei{};
    zwei[1] = zwei[5] = true;
    EXPECT_EQ(TypbedingungEinzeln(zwei), QStringLiteral("[Typ] like '?1?????\' OR [Typ] like '?????1?'"));
    EXPECT_EQ(TypbedingungMulti(zwei), QStringLiteral("[Typ] like '?1???1?'"));
    EXPECT_EQ(TypbedingungEinzeln(Typauswahl{}), QString());
    EXPECT_EQ(TypbedingungMulti(Typauswahl{}), QStringLiteral("[Typ] like '???????\'"));
}

TEST_F(TypeFilter, AnyOfSeveralMarksAgainstAllOfThem)
{
    Typauswahl erste{};
    erste[0] = erste[1] = true;
    EXPECT_EQ(selected(TypbedingungEinzeln(erste)), QStringList({"Adler", "Meier", "Zander"}));
    EXPECT_EQ(selected(TypbedingungMulti(erste)), QStringList({"Zander"}));

    card({{"Nachname", "Voll"}, {"Typ", "1111111"}});
    Typauswahl alle;
    alle.fill(true);
    EXPECT_EQ(selected(TypbedingungMulti(alle)), QStringList({"Voll"}));
}

TEST_F(TypeFilter, HintsFollowTheStateOfTheControls)
{
    EXPECT_EQ(SelectorHinweis(2), QStringLiteral("Nur Einträge mit dieser Markierung freigeben  3"));
    EXPECT_EQ(InfoTipoHinweis(app), QStringLiteral("Alle Einträge freigeben"));

    raiseEvent(app, QStringLiteral("Hauptmaske.Typenliste(1)"), QStringLiteral("MouseMove"));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, QStringLiteral("Markieren als Typ: Lieferant"));
    app.Hauptmaske.Typenliste[1].Value = 1;
    raiseEvent(app, QStringLiteral("Hauptmaske.Typenliste(1)"), QStringLiteral("MouseMove"));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, QStringLiteral("Markierung aufhenen Typ: Lieferant"));

    Selector_Click(app, 0);
    raiseEvent(app, QStringLiteral("Hauptmaske.InfoTipo"), QStringLiteral("MouseMove"));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, QStringLiteral("Aktiver Filter: Kunde"));
    raiseEvent(app, QStringLiteral("Hauptmaske.Selector(6)"), QStringLiteral("MouseMove"));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, QStringLiteral("Nur Einträge mit dieser Markierung freigeben  7"));
}

TEST_F(TypeFilter, ATypeBoxShowsTheFocusColourWhileFocused)
{
    app.config.Label34.ForeColor = rgb(0, 128, 255);
    raiseEvent(app, QStringLiteral("Hauptmaske.Typenliste(3)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(app.Hauptmaske.Typenliste[3].ForeColor, rgb(0, 128, 255));
    raiseEvent(app, QStringLiteral("Hauptmaske.Typenliste(3)"), QStringLiteral("LostFocus"));
    EXPECT_EQ(app.Hauptmaske.Typenliste[3].ForeColor, colour::Black);
}

}  // namespace
}  // namespace mk
