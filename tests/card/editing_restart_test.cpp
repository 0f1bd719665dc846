// A card saved through the mask is in the database after the orderly end and a new start.

#include "card/app_state.h"
#include "card/session.h"
#include "platform/profile.h"
#include "support/scripted_system.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace mk::test {
namespace {

TEST(SavedCard, IsThereAfterTheEndAndANewStart)
{
    QTemporaryDir home;
    ASSERT_TRUE(home.isValid());
    const QByteArray vorher = qgetenv("MERKKARTELLE_HOME");
    qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
    setProfileLocale(QLocale(QLocale::German, QLocale::Germany));

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
        EXPECT_THROW(raiseEvent(s.app, QStringLiteral("Hauptmaske.SSCommand1"), QStringLiteral("Click")), ProgramEnded);
    }
    {
        ScriptedSystem s;
        auto& m = s.app.Hauptmaske;
        Start(s.app);
        EXPECT_EQ(m.LaufendeNummer.Caption, nummer);
        EXPECT_EQ(m.feld[4].Text, QStringLiteral("Bleibend"));
        EXPECT_EQ(m.feld[10].Text, QStringLiteral("Weimar"));
        EXPECT_EQ(m.Typenliste[4].Value, 1);
        EXPECT_EQ(m.recdate.Caption, QStringLiteral("17.05.2024"));
    }
    if (vorher.isNull())
        qunsetenv("MERKKARTELLE_HOME");
    else
        qputenv("MERKKARTELLE_HOME", vorher);
}

}  // namespace
}  // namespace mk::test
