#pragma once
// A card session for the editing tests: a card database in a temporary working directory,
// opened the way the start opens it, cards put in through the store, and the mask showing
// the first card in the order of running numbers.

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/store.h"
#include "support/scripted_system.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace mk::test {

using Werte = std::initializer_list<std::pair<const char*, QString>>;

class EditingTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        pfad = dir.filePath(QStringLiteral("merkkartelle.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, pfad);
        app.Arbeitsverzeichnis = dir.path();
        app.Kartendatenbank = Database::open(pfad);
        app.Zweitdatenbank = Database::open(pfad);
        app.Zweitsatz = app.Zweitdatenbank->createDynaset(app.Tabellenname);
        app.Sortierfeld = app.SortierfeldAlt = QStringLiteral("Laufendenummer");
        app.Hauptmaske.Label3.Caption = QStringLiteral("dd.MM.yyyy");
        app.config.Label34.BackColor = colour::Black;
        oeffnen();
    }

    // A new cursor in the order of running numbers, on its first card, shown in the mask.
    void oeffnen()
    {
        auto basis = app.Kartendatenbank->createDynaset(app.Tabellenname);
        basis->Sort = QStringLiteral("[Laufendenummer]");
        app.Kartensatz = basis->createDynaset();
        underIgnoredErrors([&] { app.Kartensatz->MoveFirst(); });
        DatenInMaske(app);
    }

    // Stores a card with one type mark and the given columns; its running number.
    QString karte(Werte werte, const QString& typ = QStringLiteral("1000000"))
    {
        auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->AddNew();
        rs->Fields(QStringLiteral("Typ")).setValue(typ);
        for (const auto& [spalte, wert] : werte)
            rs->Fields(QString::fromUtf8(spalte)).setValue(wert);
        rs->Update();
        rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->MoveLast();
        return rs->Fields(QStringLiteral("Laufendenummer")).text();
    }

    // A column of the stored card with that number, read from a cursor of its own.
    QString gespeichert(const QString& nummer, const char* spalte)
    {
        auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->FindFirst(KarteFindenKriterium(nummer));
        if (rs->NoMatch())
            return QStringLiteral("<keine Karte>");
        return rs->Fields(QString::fromUtf8(spalte)).text();
    }

    long anzahl() { return app.Kartendatenbank->createDynaset(app.Tabellenname)->RecordCount(); }

    void klick(const char* pfad) { raiseEvent(app, QString::fromUtf8(pfad), QStringLiteral("Click")); }

    // The prompts of the message boxes shown so far.
    QStringList meldungen() const
    {
        QStringList texte;
        for (const ShownBox& box : ui.messageBoxes())
            texte << box.prompt;
        return texte;
    }

    ScriptedSystem system;
    Merkkartelle& app = system.app;
    ScriptedUserInterface& ui = system.ui;
    Hauptmaske& m = app.Hauptmaske;
    QTemporaryDir dir;
    QString pfad;
};

}  // namespace mk::test
