// What the user left is there after the orderly end and a new start: a saved card, the order
// and its direction, the type names.

#include "card/app_state.h"
#include "card/session.h"
#include "platform/profile.h"
#include "support/scripted_system.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace mk::test {
namespace {

class Restart : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        vorher = qgetenv("MERKKARTELLE_HOME");
        qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
    }
    void TearDown() override
    {
        if (vorher.isNull())
            qunsetenv("MERKKARTELLE_HOME");
        else
            qputenv("MERKKARTELLE_HOME", vorher);
    }
    static void click(ScriptedSystem& s, const QString& path)
    {
        applyClick(s.app.forms, s.app.forms.control(path));
        raiseEvent(s.app, path, QStringLiteral("Click"));
    }
    static void saveCard(ScriptedSystem& s, const char* nachname)
    {
        auto& m = s.app.Hauptmaske;
        raiseEvent(s.app, QStringLiteral("Hauptmaske.NeueAdresse"), QStringLiteral("Click"));
        m.feld[4].Text = QString::fromUtf8(nachname);
        m.Typenliste[0].Value = 1;
        raiseEvent(s.app, QStringLiteral("Hauptmaske.NeueAdresse"), QStringLiteral("Click"));
    }
    static void end(ScriptedSystem& s)
    {
        EXPECT_THROW(raiseEvent(s.app, QStringLiteral("Hauptmaske.SSCommand1"), QStringLiteral("Click")), ProgramEnded);
    }

    QTemporaryDir home;
    QByteArray vorher;
};

TEST_F(Restart, ASavedCardIsThere)
{
    QString nummer;
    {
        ScriptedSystem s;
        auto& m = s.app.Hauptmaske;
        Start(s.app);
        raiseEvent(s.app, QStringLiteral("Hauptmaske.NeueAdresse"), QStringLiteral("Click"));
        m.feld[4].Text = QStringLiteral("Bleibend");
        m.feld[10].Text = QStringLiteral("Weimar");
        m.Typenliste[4].Value = 1;
        raiseEvent(s.app, QStringLiteral("Hauptmaske.NeueAdresse"), QStringLiteral("Click"));
        nummer = m.LaufendeNummer.Caption;
        ASSERT_FALSE(nummer.isEmpty());
        end(s);
    }
    ScriptedSystem s;
    auto& m = s.app.Hauptmaske;
    Start(s.app);
    EXPECT_EQ(m.LaufendeNummer.Caption, nummer);
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Bleibend"));
    EXPECT_EQ(m.feld[10].Text, QStringLiteral("Weimar"));
    EXPECT_EQ(m.Typenliste[4].Value, 1);
    EXPECT_EQ(m.recdate.Caption, QStringLiteral("17.05.2024"));
}

TEST_F(Restart, TheDescendingOrderAndThePlaceOfTheOrderFormAreKept)
{
    {
        ScriptedSystem s;
        Start(s.app);
        for (const char* name : {"Adler", "Zander", "Meier"})
            saveCard(s, name);
        click(s, QStringLiteral("Hauptmaske.Command3D24"));
        s.app.Form3.Top = 1234;
        s.app.Form3.Left = 2345;
        click(s, QStringLiteral("Form3.Option3D1(5)"));
        click(s, QStringLiteral("Hauptmaske.Command3D24"));
        click(s, QStringLiteral("Form3.AZCHECK"));
        ASSERT_EQ(s.app.Hauptmaske.feld[4].Text, QStringLiteral("Zander"));
        click(s, QStringLiteral("Hauptmaske.Command3D24"));
        click(s, QStringLiteral("Form3.Command3D1"));
        end(s);
    }
    {
        ScriptedSystem s;
        auto& m = s.app.Hauptmaske;
        Start(s.app);
        EXPECT_EQ(m.Label5.Caption, QStringLiteral("Z - A"));
        EXPECT_EQ(m.SortiertNach.Caption, QStringLiteral("Nachname"));

        // The form comes back pressed for Z - A where it was left, so the next choice of a
        // slot keeps the direction the mask shows.
        click(s, QStringLiteral("Hauptmaske.Command3D24"));
        EXPECT_TRUE(s.app.Form3.AZCHECK.Value);
        EXPECT_TRUE(s.app.Form3.Option3D1[5].Value);
        EXPECT_EQ(s.app.Form3.Top, 1234);
        EXPECT_EQ(s.app.Form3.Left, 2345);
        click(s, QStringLiteral("Form3.Option3D1(5)"));
        EXPECT_EQ(m.feld[4].Text, QStringLiteral("Zander"));
        EXPECT_EQ(m.Label5.Caption, QStringLiteral("Z - A"));
        click(s, QStringLiteral("Hauptmaske.Command3D24"));
        click(s, QStringLiteral("Form3.Command3D1"));
        end(s);
    }
    ScriptedSystem s;
    Start(s.app);
    EXPECT_EQ(s.app.Hauptmaske.Label5.Caption, QStringLiteral("Z - A"));
    EXPECT_EQ(s.app.Einstellungsliste[66], QStringLiteral("True"));
}

TEST_F(Restart, TheVisitedCardsComeBackInTheHistoryWhenItIsKept)
{
    {
        ScriptedSystem s;
        Start(s.app);
        for (const char* name : {"Adler", "Zander"})
            saveCard(s, name);
        s.app.config.Check3D5.Value = 1;
        click(s, QStringLiteral("Hauptmaske.EinznachHinten"));
        click(s, QStringLiteral("Hauptmaske.EinzNachvorne"));
        ASSERT_EQ(s.app.replay.Schnelleauswahlliste.ListCount(), 2);
        end(s);
    }
    ScriptedSystem s;
    Start(s.app);
    EXPECT_EQ(s.app.replay.Schnelleauswahlliste.ListCount(), 2);
}

TEST_F(Restart, TheTypeNamesOfAFirstStartComeBackAndNamingStartsFromThem)
{
    {
        ScriptedSystem s;
        Start(s.app);
        EXPECT_EQ(s.app.Hauptmaske.Text2.Text, QStringLiteral("Typ 1"));
        end(s);
    }
    ScriptedSystem s;
    auto& m = s.app.Hauptmaske;
    Start(s.app);
    EXPECT_EQ(m.Typenliste[0].Caption, QStringLiteral("Typ 1"));
    EXPECT_EQ(m.Typenliste[6].Caption, QStringLiteral("Typ 7"));
    EXPECT_EQ(s.app.Typenbenennung[7], QStringLiteral("Typ 7"));

    // Naming one type and confirming keeps the other six.
    raiseEvent(s.app, QStringLiteral("Hauptmaske.menutipo"), QStringLiteral("Click"));
    EXPECT_EQ(m.Text8.Text, QStringLiteral("Typ 7"));
    m.Text3.Text = QStringLiteral("Kunden");
    raiseEvent(s.app, QStringLiteral("Hauptmaske.Command6"), QStringLiteral("Click"));
    EXPECT_EQ(m.Typenliste[1].Caption, QStringLiteral("Kunden"));
    EXPECT_EQ(m.Typenliste[2].Caption, QStringLiteral("Typ 3"));
}

}  // namespace
}  // namespace mk::test
