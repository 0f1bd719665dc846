#pragma once
// A system object with a call log in a temporary working directory, and a simulated Hayes
// modem on a pseudo-terminal that MERKKARTELLE.INI maps to COM1. The modem is pumped from
// inside DoEvents; a test may add its own step there (a click after so many passes).

#include "card/app_state.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/store.h"
#include "support/pty_modem.h"
#include "support/scripted_system.h"
#include "telephony/dialer.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace mk::test {

class TelephonyTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        ASSERT_TRUE(modem.valid());
        qputenv("MERKKARTELLE_HOME", dir.path().toUtf8());
        WritePrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM1"), modem.device(),
                                  QStringLiteral("MERKKARTELLE.INI"));
        app.Arbeitsverzeichnis = dir.path();
        const QString log = joinPath(dir.path(), QStringLiteral("Telephone.mdb"));
        createEmptyDatabase(DatabaseKind::Telephone, log);
        app.Anrufdatenbank = Database::open(log);
        app.Anrufsatz = app.Anrufdatenbank->createDynaset(QStringLiteral("Telephone"));
        sys.ui.onDoEvents = [this] {
            ++passes;
            modem.pump();
            if (duringWait)
                duringWait(passes);
        };
    }

    void TearDown() override
    {
        sys.ui.onDoEvents = nullptr;
        qunsetenv("MERKKARTELLE_HOME");
    }

    // The card on the mask as the dialer takes it.
    void card(const QString& vorname, const QString& nachname, const QString& telefon)
    {
        app.Hauptmaske.feld[5].Text = vorname;
        app.Hauptmaske.feld[4].Text = nachname;
        app.Hauptmaske.feld[14].Text = telefon;
        app.Hauptmaske.LaufendeNummer.Caption = QStringLiteral("7");
    }

    void click(const char* path) { raiseEvent(app, QString::fromUtf8(path), QStringLiteral("Click")); }

    // Clicks Abrir from inside the wait once it has turned the given number of passes.
    void hangUpAfter(int pass)
    {
        duringWait = [this, pass](int n) {
            if (n == pass)
                click("DIALER.Abrir");
        };
    }

    // What the program wrote to the modem, its last lines included.
    QByteArray sent()
    {
        modem.pump();
        return modem.written;
    }

    int rows()
    {
        auto rs = app.Anrufdatenbank->createDynaset(QStringLiteral("Telephone"));
        return int(rs->RecordCount());
    }

    QTemporaryDir dir;
    PtyModem modem;
    ScriptedSystem sys;
    Merkkartelle& app = sys.app;
    int passes = 0;
    std::function<void(int)> duringWait;
};

}  // namespace mk::test
