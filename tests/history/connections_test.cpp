// Connections where the driver scripts cannot reach: a number that is the start of a longer
// one, and the browser's find buttons at their ends and with a criterion the store refuses.

#include "card/card_cursor.h"
#include "history/connections.h"
#include "platform/paths.h"
#include "search/card_session.h"

namespace mk::test {
namespace {

class Connections : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        app.Sortierfeld = QStringLiteral("Laufendenummer");
    }

    // The second session on the same file, the form opened, a card being changed.
    void openForm()
    {
        app.Zweitdatenbank = Database::open(joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei));
        app.Zweitsatz = app.Zweitdatenbank->createDynaset(app.Tabellenname);
        Command3_Click(app);
        ASSERT_TRUE(app.Aform.Visible);
        app.Hauptmaske.AdresseÄndern.Caption = kOKCaption;
    }

    void typeNumber(int box, const QString& text)
    {
        app.Aform.Suchtext[box].Text = text;
        raiseEvent(app, QStringLiteral("Aform.Suchtext(%1)").arg(box), QStringLiteral("Change"));
    }
};

TEST_F(Connections, ANumberFindsOnlyItsOwnCard)
{
    for (int i = 1; i <= 123; ++i)
        card({{"Nachname", QStringLiteral("N%1").arg(i)}, {"Vorname", QStringLiteral("V%1").arg(i)}});
    auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
    rs->FindFirst(QStringLiteral("[Laufendenummer] = 12"));
    rs->Delete();
    reopen();
    openForm();

    typeNumber(0, QStringLiteral("12"));
    EXPECT_EQ(app.Aform.FeldA[1].Text, "");
    EXPECT_EQ(app.Aform.feldB[1].Text, "");
    typeNumber(0, QStringLiteral("123"));
    EXPECT_EQ(app.Aform.FeldA[1].Text, "V123 N123");
    // The same card may stand in two slots; the first keeps its name whatever comes later.
    typeNumber(1, QStringLiteral("123"));
    EXPECT_EQ(app.Aform.feldB[2].Text, "123");
    typeNumber(0, QStringLiteral("1"));
    EXPECT_EQ(app.Aform.FeldA[1].Text, "V1 N1");
    EXPECT_EQ(app.Aform.FeldA[2].Text, "V123 N123");
}

TEST_F(Connections, TheFindButtonsStayOnTheirCardWhenNothingFollows)
{
    for (const char* name : {"Maier", "Adler", "Meyer", "Zeller"})
        card({{"Nachname", QString::fromLatin1(name)}});
    reopen();
    openForm();
    const QString nachname = QStringLiteral("Aform.SuchOption(4)");
    applyClick(app.forms, app.forms.control(nachname));
    raiseEvent(app, nachname, QStringLiteral("Click"));
    app.Aform.Text1.Text = QStringLiteral("M");
    const auto press = [&](const char* button) {
        raiseEvent(app, QStringLiteral("Aform.") + QString::fromLatin1(button), QStringLiteral("Click"));
        return app.Aform.Infolabel[3].Caption;
    };
    EXPECT_EQ(press("Command2"), "Maier");
    EXPECT_EQ(press("Command3"), "Meyer");
    EXPECT_EQ(press("Command3"), "Meyer");  // no further match: back to the bookmark
    EXPECT_EQ(press("Command4"), "Maier");
    EXPECT_EQ(press("Command4"), "Maier");
    EXPECT_EQ(press("Command5"), "Meyer");
    EXPECT_EQ(app.Aform.Command2.Hint, "Ersten Eintrag finden: LEFT([Nachname],1) = 'M'");

    // A criterion the store refuses leaves the browser where it was.
    app.Aform.Text1.Text = QStringLiteral("O'");
    EXPECT_EQ(press("Command2"), "Meyer");
    EXPECT_EQ(press("Command12"), "Zeller");
    EXPECT_EQ(app.Aform.Command12.Hint, "Letzter Eintrag - Sortierung: Nachname");
}

}  // namespace
}  // namespace mk::test
