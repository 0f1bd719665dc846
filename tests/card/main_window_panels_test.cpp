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

TEST_F(MainWindow, ScreenGuardComesUpOnlyWhenAskedForAndOnlyWhileBrowsing)
{
    auto& m = mask();
    click("Command3d4");
    Timer2_Timer(app());
    EXPECT_FALSE(m.Bildschutz.Visible);

    app().config.SSCheck8.Value = 1;
    m.AdresseÄndern.Caption = kOKCaption;
    Timer2_Timer(app());
    EXPECT_FALSE(m.Bildschutz.Visible);

    m.AdresseÄndern.Caption = kBearbeitenCaption;
    m.Text1.Text = QStringLiteral("Meier");
    Timer2_Timer(app());
    EXPECT_TRUE(m.Bildschutz.Visible);
    EXPECT_FALSE(m.Morephones.Visible);
    EXPECT_EQ(m.Command3d4.BackColor, panelKnopfNeutral());
    EXPECT_TRUE(m.Bemerkung.Visible);
    EXPECT_EQ(m.Text1.SelStart, 0);
    EXPECT_EQ(m.Text1.SelLength, 5);
    EXPECT_FALSE(m.Image12.Visible);

    // While it shows, the panel buttons do nothing; a movement over it takes it away.
    click("Command1");
    EXPECT_FALSE(m.Bankverbindung.Visible);
    hover(QStringLiteral("Hauptmaske.Bildschutz"));
    EXPECT_FALSE(m.Bildschutz.Visible);
    click("Command1");
    EXPECT_TRUE(m.Bankverbindung.Visible);
}

TEST_F(MainWindow, ScreenGuardFollowsItsTimer)
{
    auto& m = mask();
    m.Loaded = true;  // the timers run from the load step on
    app().config.SSCheck8.Value = 1;
    app().config.Check3D11.Value = 1;
    app().timers.sync(app().forms, app().clock);
    advanceClock(app(), m.Timer2.Interval - 1);
    EXPECT_FALSE(m.Bildschutz.Visible);
    advanceClock(app(), 1);
    EXPECT_TRUE(m.Bildschutz.Visible);
    EXPECT_TRUE(m.Image12.Visible);
    click("Image12");
    EXPECT_FALSE(m.Bildschutz.Visible);
}

TEST_F(MainWindow, ClockPanelsShowWeekdayDateAndTime)
{
    const char* days[] = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
    for (int i = 1; i <= 7; ++i)
        EXPECT_EQ(Wochentag(i), QString::fromUtf8(days[i - 1]));
    EXPECT_EQ(Wochentag(0), QString());
    EXPECT_EQ(WochentagNummer(QDate(2024, 5, 19)), 1);  // a Sunday
    EXPECT_EQ(WochentagNummer(QDate(2024, 5, 18)), 7);

    auto& m = mask();
    m.Loaded = true;
    m.Label3.Caption = QStringLiteral("dd.MM.yyyy");
    app().timers.sync(app().forms, app().clock);
    advanceClock(app(), 1000);
    EXPECT_EQ(m.panel3d7.Caption, QStringLiteral("Freitag, 17.05.2024"));
    EXPECT_EQ(m.Panel3d5.Caption, QStringLiteral("10:00:01"));
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

TEST_F(MainWindow, HintsGoToTheStatusLineAndTheFormClearsIt)
{
    auto& m = mask();
    const std::pair<const char*, const char*> hints[] = {
        {"Datum", "Datum der letzten änderung"},       {"rectime", "Erstellungsuhrzeit des Eintrags"},
        {"currentindex", "Ordem - valor numérico"},    {"Panel3d5", "Systemzeit"},
        {"Label33", "Altura da Imagen em pixel"},      {"tel3", "Zusatz Telefonnummer 3"},
        {"Text14", "Zusatz 3"},                        {"feldnum(3)", "KFZ-nummer"},
        {"Command3d4", "zusätzliche Telefone"},        {"Command3", "Verknüpfte Adressen"},
        {"Command3D2", "Verknüpfte Dokumente"},        {"Bemerkung", "Rechter Mouseknopf"},
    };
    for (const auto& [control, hint] : hints) {
        hover(QStringLiteral("Hauptmaske.") + QString::fromUtf8(control));
        EXPECT_EQ(m.Panel3D3.Caption, QString::fromUtf8(hint)) << control;
    }
    m.LaufendeNummer.Caption = QStringLiteral("42");
    hover(QStringLiteral("Hauptmaske.LaufendeNummer"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("Laufende Nummer 42  (Datenbankregistriernummer)"));
    m.beschreibungnum[3].Caption = QStringLiteral("Kennzeichen:");
    hover(QStringLiteral("Hauptmaske.Command4"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("E-Mail 1 - E-Mail 2 - Homepage - Kennzeichen"));
    hover(QStringLiteral("Hauptmaske"));
    EXPECT_EQ(m.Panel3D3.Caption, QString());
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
