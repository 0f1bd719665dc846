#pragma once
// An application home in a temporary folder with the system object on top of it: cards are
// put into the default database, the INI file and companion files written, then the start
// routine runs through the handlers with scripted answers.

#include "card/app_state.h"
#include "card/session.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "support/scripted_system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <utility>

namespace mk::test {

using CardValues = std::initializer_list<std::pair<const char*, QVariant>>;

class CardHome : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        home = dir.path();
        qputenv("MERKKARTELLE_HOME", home.toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
        layoutApplicationHome();
        ChDir(home);
    }
    void TearDown() override { qunsetenv("MERKKARTELLE_HOME"); }

    QString homeFile(const QString& name) const { return joinPath(home, name); }

    // Adds a card to the database at path (the default database without one); its number.
    static qlonglong addCardTo(const QString& path, CardValues values)
    {
        DatabasePtr db = Database::open(path);
        RecordsetPtr rs = db->createDynaset(QStringLiteral("Adressenstamm"));
        rs->AddNew();
        for (const auto& [name, value] : values)
            rs->Fields(QString::fromUtf8(name)).setValue(value);
        rs->Update();
        rs->MoveLast();
        const qlonglong number = rs->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong();
        db->close();
        return number;
    }
    qlonglong addCard(CardValues values) { return addCardTo(homeFile(QString::fromLatin1(DefaultDatabaseName)), values); }

    // A further card database in a folder of its own.
    QString makeDatabase(const QString& folder)
    {
        QDir().mkpath(homeFile(folder));
        const QString path = joinPath(homeFile(folder), QStringLiteral("karten.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, path);
        return path;
    }

    void ini(const char* key, const QString& value)
    {
        WritePrivateProfileString(QStringLiteral("Databases"), QString::fromLatin1(key), value, iniFilePath());
    }
    QString iniValue(const char* key)
    {
        return GetPrivateProfileString(QStringLiteral("Databases"), QString::fromLatin1(key), QStringLiteral("<none>"),
                                       iniFilePath());
    }

    // merkkartelle.cfg with the given records (1-based); the others empty.
    void settingsFile(const QString& folder, std::initializer_list<std::pair<int, QString>> records)
    {
        std::vector<WriteValue> values(196, WriteValue(QString()));
        for (const auto& [n, text] : records)
            values[std::size_t(n - 1)] = WriteValue(text);
        writePositionalFile(joinPath(folder, QStringLiteral("merkkartelle.cfg")), values);
    }

    static QByteArray fileBytes(const QString& path)
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }

    // The start routine; true when it returned (no End on the way).
    void start() { Start(app()); }

    // A new system object, as a new run of the program.
    void restart() { system = std::make_unique<ScriptedSystem>(); }

    Merkkartelle& app() { return system->app; }
    ScriptedUserInterface& ui() { return system->ui; }
    Hauptmaske& mask() { return system->app.Hauptmaske; }
    void click(const QString& path)
    {
        ControlRef ref = app().forms.control(path);
        applyClick(app().forms, ref);
        raiseEvent(app(), path, QStringLiteral("Click"));
    }
    // The prompts of the message boxes shown so far.
    QStringList prompts() const
    {
        QStringList out;
        for (const ShownBox& box : system->ui.messageBoxes())
            out << box.prompt;
        return out;
    }

    QTemporaryDir dir;
    QString home;
    std::unique_ptr<ScriptedSystem> system = std::make_unique<ScriptedSystem>();
};

}  // namespace mk::test
