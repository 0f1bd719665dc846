// The global view: the table of known databases kept by the two buttons of the main mask,
// and the pick list that opening another database offers.

#include "history/global_view.h"

#include "card/app_state.h"
#include "platform/store.h"
#include "support/scripted_system.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mk {
namespace {

class GlobalViewTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        const QString file = dir.filePath(QStringLiteral("GlobalView.mdb"));
        createEmptyDatabase(DatabaseKind::GlobalView, file);
        app.Gesamtdatenbank = Database::open(file);
        app.Gesamtsatz = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
    }
    void TearDown() override
    {
        app.Gesamtsatz->close();
        app.Gesamtdatenbank->close();
    }

    void enter(const QString& directory, const QString& file = QStringLiteral("karten.mdb"))
    {
        app.Arbeitsverzeichnis = directory;
        app.Datenbankdatei = file;
        raiseEvent(app, "Hauptmaske.Command9", "Click");
    }

    QStringList paths()
    {
        QStringList out;
        RecordsetPtr rs = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
        if (rs->RecordCount() == 0)
            return out;
        for (rs->MoveFirst(); !rs->IsEOF(); rs->MoveNext())
            out << rs->Fields("FullPathName").text();
        return out;
    }

    // The user's part while the form is up modally.
    void whileShown(std::function<void()> act)
    {
        ui.modalLoop = [act](const QString&, const std::function<bool()>& stillShown) {
            act();
            ASSERT_FALSE(stillShown());
        };
    }

    QTemporaryDir dir;
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
};

TEST_F(GlobalViewTest, APathStandsOnceAndMovesToTheEnd)
{
    enter("/daten/a");
    enter("/daten/b");
    enter("/daten/a");
    EXPECT_EQ(paths(), QStringList({"/daten/b/karten.mdb", "/daten/a/karten.mdb"}));

    RecordsetPtr rs = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
    rs->MoveLast();
    EXPECT_EQ(rs->Fields("Datainicial").text(), "17.05.2024");
    EXPECT_EQ(rs->Fields("Horainicial").text(), "10:00:00");
    EXPECT_TRUE(rs->Fields("Datafinal").isNull());

    system.clock.advance(3600 * 1000);
    raiseEvent(app, "Hauptmaske.Command10", "Click");
    rs = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
    rs->MoveLast();
    EXPECT_EQ(rs->Fields("Horafinal").text(), "11:00:00");
    rs->MoveFirst();
    EXPECT_TRUE(rs->Fields("Horafinal").isNull());
}

TEST_F(GlobalViewTest, AnEmptyTableNeverShowsTheForm)
{
    EXPECT_FALSE(hasGlobalViewRows(app));
    const GlobalViewChoice choice = malaglobalviewZeigen(app);
    EXPECT_FALSE(choice.chosen);
    EXPECT_TRUE(ui.formsShown.empty());

    app.Gesamtsatz.reset();  // no GlobalView.mdb at all
    EXPECT_FALSE(malaglobalviewZeigen(app).chosen);
    app.Gesamtsatz = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
}

TEST_F(GlobalViewTest, OpeningHandsBackDirectoryAndFile)
{
    enter("/daten/a", "erste.mdb");
    enter("/daten/b", "zweite.mdb");
    app.Gesamtsatz = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));

    whileShown([this] {
        ListBox& list = app.malaglobalview.Schnelleauswahlliste;
        ASSERT_EQ(list.ListCount(), 2);
        EXPECT_EQ(list.List(1), "/daten/b/zweite.mdb");
        list.ListIndex = 1;
        raiseEvent(app, "malaglobalview.Schnelleauswahlliste", "Click");
        EXPECT_EQ(app.malaglobalview.Label3.Caption, "/daten/b/zweite.mdb");
        raiseEvent(app, "malaglobalview.SSCommand2", "MouseMove");
        EXPECT_EQ(app.malaglobalview.SSCommand2.ToolTipText, "Datenbank öffnen: /daten/b/zweite.mdb");
        raiseEvent(app, "malaglobalview.Schnelleauswahlliste", "DblClick");
    });
    const GlobalViewChoice choice = malaglobalviewZeigen(app);
    EXPECT_TRUE(choice.chosen);
    EXPECT_EQ(choice.directory, "/daten/b");
    EXPECT_EQ(choice.file, "zweite.mdb");
    ASSERT_FALSE(ui.formsShown.empty());
    EXPECT_EQ(ui.formsShown[0], std::make_pair(QStringLiteral("malaglobalview"), true));
    EXPECT_EQ(app.malaglobalview.Caption, "Merkkartelle - Global Manager");

    whileShown([this] { raiseEvent(app, "malaglobalview.Command3D1", "Click"); });
    EXPECT_FALSE(malaglobalviewZeigen(app).chosen);
}

TEST_F(GlobalViewTest, RemovingTheLastEntryLeavesNothingToOpen)
{
    enter("/daten/a");
    app.Gesamtsatz = app.Gesamtdatenbank->createDynaset(QStringLiteral("GlobalView"));
    whileShown([this] {
        ListBox& list = app.malaglobalview.Schnelleauswahlliste;
        list.ListIndex = 0;
        raiseEvent(app, "malaglobalview.Schnelleauswahlliste", "Click");
        raiseEvent(app, "malaglobalview.Command1", "MouseMove");
        EXPECT_EQ(app.malaglobalview.Command1.ToolTipText, "Aus der liste entfernen: /daten/a/karten.mdb ?");
        raiseEvent(app, "malaglobalview.Command1", "Click");
        EXPECT_EQ(list.ListCount(), 0);
        raiseEvent(app, "malaglobalview.Schnelleauswahlliste", "MouseMove");
        EXPECT_EQ(list.ToolTipText, "Datenbank aus der Liste auswählen");
        raiseEvent(app, "malaglobalview.SSCommand2", "Click");
    });
    EXPECT_FALSE(malaglobalviewZeigen(app).chosen);
    EXPECT_TRUE(paths().isEmpty());
}

TEST_F(GlobalViewTest, ARowWithoutAPathShowsDashes)
{
    app.Gesamtsatz->AddNew();
    app.Gesamtsatz->Update();
    globalViewListeFuellen(app);
    ASSERT_EQ(app.malaglobalview.Schnelleauswahlliste.ListCount(), 1);
    EXPECT_EQ(app.malaglobalview.Schnelleauswahlliste.List(0), "------------------------");
    EXPECT_GT(app.malaglobalview.Schnelleauswahlliste.ItemData(0), 0);
}

}  // namespace
}  // namespace mk
