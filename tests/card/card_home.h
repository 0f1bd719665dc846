#pragma once
// An application home in a temporary folder under the system object: cards go into the
// default database (or another one), the INI and settings files are written, then the
// start routine runs with scripted answers.

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
    QString defaultDatabase() const { return homeFile(QString::fromLatin1(DefaultDatabaseName)); }

    static void addCardTo(const QString& path, CardValues values)
    {
        RecordsetPtr rs = Database::open(path)->createDynaset(QStringLiteral("Adressenstamm"));
        rs->AddNew();
        for (const auto& [name, value] : values)
            rs->Fields(QString::fromUtf8(name)).setValue(value);
        rs->Update();
    }
    void addCard(CardValues values) { addCardTo(defaultDatabase(), values); }
    // The stored cards, read afresh.
    RecordsetPtr stored() const { return Database::open(defaultDatabase())->createDynaset(QStringLiteral("Adressenstamm")); }

    // An empty card database karten.mdb in a folder of the home.
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
    // merkkartelle.cfg in the home with the given records (numbered from 1), the others empty.
    void settingsFile(std::initializer_list<std::pair<int, QString>> records)
    {
        std::vector<WriteValue> values(196, WriteValue(QString()));
        for (const auto& [n, text] : records)
            values[std::size_t(n - 1)] = WriteValue(text);
        writePositionalFile(homeFile(QStringLiteral("merkkartelle.cfg")), values);
    }
    QByteArray fileBytes(const QString& name) const
    {
        QFile f(homeFile(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }

    void start() { Start(app()); }
    void restart() { system = std::make_unique<ScriptedSystem>(); }  // a new run of the program

    Merkkartelle& app() { return system->app; }
    ScriptedUserInterface& ui() { return system->ui; }
    Hauptmaske& mask() { return system->app.Hauptmaske; }
    QString shown() { return mask().feld[4].Text; }
    void click(const QString& path)
    {
        applyClick(app().forms, app().forms.control(path));
        raiseEvent(app(), path, QStringLiteral("Click"));
    }
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
