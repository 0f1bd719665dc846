#pragma once
// A system object with an open card database in a temporary working directory: the session
// as the start leaves it (Kartendatenbank, Kartensatz on the card table, Sortierfeld), for
// tests that drive handlers over real cards.

#include "card/app_state.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "support/scripted_system.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace mk::test {

using CardValues = std::initializer_list<std::pair<const char*, QVariant>>;

class CardSession : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        app.Arbeitsverzeichnis = dir.path();
        app.Datenbankdatei = QStringLiteral("karten.mdb");
        app.Tabellenname = QStringLiteral("Adressenstamm");
        app.Sortierfeld = QStringLiteral("Nachname");
        app.SortierfeldAlt = app.Sortierfeld;
        createEmptyDatabase(DatabaseKind::Cards, joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei));
        reopen();
    }

    // Opens the database and a cursor on the whole table, sorted by Sortierfeld.
    void reopen()
    {
        app.Kartendatenbank = Database::open(joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei));
        auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
        base->Sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']');
        app.Kartensatz = base->createDynaset();
    }

    // Adds a card through a cursor of its own; the session's cursor sees it after reopen().
    void card(CardValues values)
    {
        auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->AddNew();
        for (const auto& [name, value] : values)
            rs->Fields(QString::fromUtf8(name)).setValue(value);
        rs->Update();
    }

    // One column of every card of Kartensatz, in its order; Null as "<Null>".
    QStringList column(const char* name = "Nachname")
    {
        QStringList seen;
        auto rs = app.Kartensatz->clone();
        if (rs->RecordCount() == 0)
            return seen;
        for (rs->MoveFirst(); !rs->IsEOF(); rs->MoveNext()) {
            const QVariant v = rs->Fields(QString::fromUtf8(name)).Value();
            seen << (v.isValid() ? v.toString() : QStringLiteral("<Null>"));
        }
        return seen;
    }

    // The surnames of the cards a criterion selects from the table, in Nachname order.
    QStringList selected(const QString& filter)
    {
        auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
        base->Sort = QStringLiteral("[Nachname]");
        base->Filter = filter;
        auto rs = base->createDynaset();
        QStringList seen;
        if (rs->RecordCount() == 0)
            return seen;
        for (rs->MoveFirst(); !rs->IsEOF(); rs->MoveNext())
            seen << rs->Fields(QStringLiteral("Nachname")).text();
        return seen;
    }

    QTemporaryDir dir;
    ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
};

}  // namespace mk::test
