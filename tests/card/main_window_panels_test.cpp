// The panels beside the notes, the dual buttons, the hints, the clock and the screen guard of
// the main window.

#include "card/card_cursor.h"
#include "card/main_window.h"
#include "card/screen_guard.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

class MainWindow : public ::testing::Test {
protected:
    Merkkartelle& app() { return sys.app; }
    Hauptmaske& mask() { return sys.app.Hauptmaske; }
    void click(const char* control) { raiseEvent(app(), QStringLiteral("Hauptmaske.") + QString::fromUtf8(control), QStringLiteral("Click")); }
    void hover(const QString& path) { raiseEvent(app(), path, QStringLiteral("MouseMove")); }

    test::ScriptedSystem sys;
};

TEST_F(MainWindow, OnePanelAtATimeTakesThePlaceOfTheNotes)
{
    auto& m = mask();
    click("Command1");
    EXPECT_TRUE(m.Bankverbindung.Visible);
    EXPECT_FALSE(m.Bemerkung.Visible);
    EXPECT_EQ(m.beschreibung[16].Caption, QStringLiteral("Bankverbindung"));
    EXPECT_EQ(m.Command1.BackColor, panelKnopfAktiv());

    click("Command4");
    EXPECT_FALSE(m.Bankverbindung.Visible);
    EXPECT_EQ(m.Command1.BackColor, panelKnopfNeutral());
    EXPECT_TRUE(m.Numbers.Visible);
    EXPECT_EQ(m.beschreibung[16].Caption, QStringLiteral("E-Mail"));
    EXPECT_EQ(m.Numbers.Width, m.Bemerkung.Width);
    EXPECT_EQ(m.Numbers.Top, m.Bemerkung.Top);

    click("Command4");
    EXPECT_FALSE(m.Numbers.Visible);
    EXPECT_EQ(m.Command4.BackColor, panelKnopfNeutral());
    EXPECT_EQ(m.beschreibung[16].Caption, QStringLiteral("Notizen"));
    EXPECT_TRUE(m.Bemerkung.Visible);

    click("Command3d4");
    click("Command3D2");
    EXPECT_FALSE(m.Morephones.Visible);
    EXPECT_TRUE(m.Conexted.Visible);
    EXPECT_EQ(m.beschreibung[16].Caption, m.Conexted.Caption);
}

TEST_F(MainWindow, ScreenGuardShowsTheUsersPictureWhenAskedTo)
{
    auto& m = mask();
    app().config.SSCheck8.Value = 1;
    m.Width = 15000;
    m.Height = 11000;
    Hauptmaske_Resize(app());
    m.Image2.Picture = QStringLiteral("ich.png");
    m.Image2.PictureWidth = 400;
    m.Image2.PictureHeight = 200;
    Timer2_Timer(app());
    ASSERT_TRUE(m.Bildschutz.Visible);
    EXPECT_FALSE(m.Image12.Visible);
    EXPECT_EQ(m.Bildschutz.Width, m.SSPanel2.Width);

    click("Bildschutz");
    app().config.Check3D11.Value = 1;
    Timer2_Timer(app());
    EXPECT_TRUE(m.Image12.Visible);
    EXPECT_EQ(m.Image12.Picture, QStringLiteral("ich.png"));
    EXPECT_NEAR(m.Image12.Width, 2 * m.Image12.Height, 2);  // the picture keeps its proportions
    EXPECT_LE(m.Image12.Width, m.Bildschutz.Width);
    click("Image12");
    EXPECT_FALSE(m.Bildschutz.Visible);
}

TEST(Wochentag, CountsFromSunday)
{
    const char* days[] = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
    for (int i = 1; i <= 7; ++i)
        EXPECT_EQ(Wochentag(i), QString::fromUtf8(days[i - 1]));
    EXPECT_EQ(Wochentag(0), QString());
    EXPECT_EQ(WochentagNummer(QDate(2024, 5, 19)), 1);  // a Sunday
    EXPECT_EQ(WochentagNummer(QDate(2024, 5, 18)), 7);
}

TEST_F(MainWindow, DualButtonsSwapPicturesAndHints)
{
    auto& m = mask();
    BildsatzSchalten(app());
    EXPECT_EQ(m.Command3D23.Picture, m.bildrecortar.Picture);
    EXPECT_EQ(m.Command3D24.Picture, m.bildcopy.Picture);
    EXPECT_EQ(m.Command3D25.Picture, m.bildpaste.Picture);
    EXPECT_EQ(m.Command3D13.Picture, m.bildbild.Picture);
    EXPECT_EQ(m.Command3D13.Hint, QStringLiteral("Bild aussuchen"));
    BildsatzSchalten(app());
    EXPECT_EQ(m.Command3D23.Picture, m.bildselect.Picture);
    EXPECT_EQ(m.Command3D25.Picture, m.bildwinword.Picture);
    EXPECT_EQ(m.Command3D23.Hint, QStringLiteral(" Eintragsfreigabe nach Feldauswahlstext"));

    // The status line names what the button does in the state at hand.
    hover(QStringLiteral("Hauptmaske.Command3D24"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral(" Datenbanksortierung "));
    m.NeueAdresse.Caption = kSpeichernCaption;
    hover(QStringLiteral("Hauptmaske.Command3D24"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("Kopieren"));
    hover(QStringLiteral("Hauptmaske.Command3D25"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("Einfügen"));
}

TEST_F(MainWindow, TheNumbersButtonIsNamedAfterItsFields)
{
    mask().beschreibungnum[3].Caption = QStringLiteral("Kennzeichen:");
    hover(QStringLiteral("Hauptmaske.Command4"));
    EXPECT_EQ(mask().Panel3D3.Caption, QStringLiteral("E-Mail 1 - E-Mail 2 - Homepage - Kennzeichen"));
}

TEST_F(MainWindow, NotesGrowToTheWholePanelAndBack)
{
    auto& m = mask();
    m.Width = 15000;
    m.Height = 11000;
    Hauptmaske_Resize(app());
    const int normalTop = m.Bemerkung.Top;
    EXPECT_GT(normalTop, 0);
    click("SSCommand3");
    EXPECT_EQ(m.Bemerkung.Top, 0);
    EXPECT_EQ(m.Bemerkung.Width, m.SSPanel2.Width);
    EXPECT_EQ(m.Bemerkung.Height, m.SSPanel2.Height);
    hover(QStringLiteral("Hauptmaske.SSCommand3"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("Notiz verkleinern"));
    click("SSCommand3");
    EXPECT_EQ(m.Bemerkung.Top, normalTop);
    EXPECT_EQ(m.SSCommand3.Hint, QStringLiteral("Notiz vergrössern"));
}

TEST_F(MainWindow, ResizeFollowsTheWindowUnlessMinimised)
{
    auto& m = mask();
    m.Width = 12000;
    m.Height = 9000;
    Hauptmaske_Resize(app());
    const int panel = m.SSPanel2.Width;
    const int slot = m.feld[0].Width;
    m.Width = 16000;
    Hauptmaske_Resize(app());
    EXPECT_EQ(m.SSPanel2.Width, panel + 4000);
    EXPECT_GT(m.feld[0].Width, slot);
    EXPECT_EQ(m.Panel3D4.Width, m.SSPanel2.Width);
    EXPECT_EQ(m.Bankverbindung.Width, m.Bemerkung.Width);
    EXPECT_GT(m.feld[12].Left, m.feld[0].Left + m.feld[0].Width);

    m.WindowState = vbMinimized;
    m.Width = 3000;
    Hauptmaske_Resize(app());
    EXPECT_EQ(m.SSPanel2.Width, panel + 4000);
}

}  // namespace
}  // namespace mk
