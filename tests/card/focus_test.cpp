// Handlers that move the keyboard focus: the request for the screens, and the GotFocus and
// LostFocus that the move raises at once, so that the focus colours follow.

#include "editing_fixture.h"

#include "card/focus.h"

namespace mk::test {
namespace {

class FocusMove : public EditingTest {
protected:
    void fokus(const char* pfad, const char* ereignis)
    {
        raiseEvent(app, QString::fromUtf8(pfad), QString::fromUtf8(ereignis));
    }
    static constexpr long kFokusfarbe = rgb(0, 128, 0);
};

TEST_F(FocusMove, NewCardAsksForTheFirstSlotAndItsGotFocusRuns)
{
    app.config.Label34.ForeColor = kFokusfarbe;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(app.FokusAnfrage, QStringLiteral("Hauptmaske.feld(0)"));
    EXPECT_EQ(app.Fokus, QStringLiteral("Hauptmaske.feld(0)"));
    EXPECT_EQ(app.Fokusfeld, QStringLiteral("Hauptmaske.feld(0)"));
    // The card is open for typing by then: the slot's label takes the focus colour.
    EXPECT_EQ(m.beschreibung[0].ForeColor, kFokusfarbe);
}

TEST_F(FocusMove, ChangingACardAsksForTheFirstSlot)
{
    karte({{"Nachname", QStringLiteral("Alt")}});
    oeffnen();
    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("OK"));
    EXPECT_EQ(app.FokusAnfrage, QStringLiteral("Hauptmaske.feld(0)"));
}

TEST_F(FocusMove, CancellingANewCardReturnsToTheNewButtonAndTheSlotLosesItsColour)
{
    app.config.Label34.ForeColor = kFokusfarbe;
    klick("Hauptmaske.NeueAdresse");
    ASSERT_EQ(m.beschreibung[0].ForeColor, kFokusfarbe);
    klick("Hauptmaske.NeueAdresseAbbruch");
    EXPECT_EQ(app.FokusAnfrage, QStringLiteral("Hauptmaske.NeueAdresse"));
    EXPECT_EQ(app.Fokus, QStringLiteral("Hauptmaske.NeueAdresse"));
    EXPECT_NE(m.beschreibung[0].ForeColor, kFokusfarbe);
}

TEST_F(FocusMove, OnlyTheSeventhTypeBoxSendsTheFocusOnToTheFirstSlot)
{
    fokus("Hauptmaske.Typenliste(5)", "GotFocus");
    fokus("Hauptmaske.Typenliste(5)", "LostFocus");
    EXPECT_TRUE(app.FokusAnfrage.isEmpty());
    EXPECT_TRUE(app.Fokus.isEmpty());

    fokus("Hauptmaske.Typenliste(6)", "GotFocus");
    fokus("Hauptmaske.Typenliste(6)", "LostFocus");
    EXPECT_EQ(app.FokusAnfrage, QStringLiteral("Hauptmaske.feld(0)"));
    EXPECT_EQ(app.Fokus, QStringLiteral("Hauptmaske.feld(0)"));
    EXPECT_EQ(m.Typenliste[6].ForeColor, colour::Black);
}

TEST_F(FocusMove, TheControlThatHasTheFocusAlreadyGetsNoSecondGotFocus)
{
    int got = 0;
    int lost = 0;
    app.handlers.on("Hauptmaske", "Text1", "GotFocus", [&](Merkkartelle&, EventArgs&) { ++got; });
    app.handlers.on("Hauptmaske", "Text1", "LostFocus", [&](Merkkartelle&, EventArgs&) { ++lost; });
    SetFocus(app, QStringLiteral("hauptmaske.text1"));
    SetFocus(app, QStringLiteral("Hauptmaske.Text1"));
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
    SetFocus(app, QStringLiteral("Hauptmaske.feld(3)"));
    EXPECT_EQ(lost, 1);
    EXPECT_EQ(app.Fokusfeld, QStringLiteral("Hauptmaske.feld(3)"));
    EXPECT_THROW(SetFocus(app, QStringLiteral("Hauptmaske")), FormsError);
}

}  // namespace
}  // namespace mk::test
