#pragma once
// A card database in a temporary directory, and small helpers to fill and read it.

#include "platform/store.h"

#include <QStringList>
#include <sqlite3.h>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace mk::testing {

using Values = std::initializer_list<std::pair<const char*, QVariant>>;

class CardStore : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        file = dir.filePath(QStringLiteral("karten.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, file);
        db = Database::open(file);
        cards = db->createDynaset(QStringLiteral("Adressenstamm"));
    }

    // Runs step in one transaction: many cards are written without a disk sync each.
    template <class Step>
    void inOneTransaction(Step&& step)
    {
        sqlite3_exec(db->handle(), "BEGIN", nullptr, nullptr, nullptr);
        step();
        sqlite3_exec(db->handle(), "COMMIT", nullptr, nullptr, nullptr);
    }

    // Adds a card through rs and returns its Laufendenummer.
    static qlonglong add(const RecordsetPtr& rs, Values values)
    {
        rs->AddNew();
        for (const auto& [name, value] : values)
            rs->Fields(QString::fromUtf8(name)).setValue(value);
        rs->Update();
        auto probe = rs->clone();
        probe->MoveLast();
        return probe->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong();
    }
    qlonglong add(Values values) { return add(cards, values); }

    // The values of one column from the current record to the end.
    static QStringList walk(const RecordsetPtr& rs, const char* column = "Nachname")
    {
        QStringList seen;
        while (!rs->IsEOF()) {
            const QVariant v = rs->Fields(QString::fromUtf8(column)).Value();
            seen << (v.isValid() ? v.toString() : QStringLiteral("<Null>"));
            rs->MoveNext();
        }
        return seen;
    }
    static QStringList all(const RecordsetPtr& rs, const char* column = "Nachname")
    {
        if (rs->RecordCount() == 0)
            return {};
        rs->MoveFirst();
        return walk(rs, column);
    }
    static QString current(const RecordsetPtr& rs, const char* column = "Nachname")
    {
        return rs->Fields(QString::fromUtf8(column)).text();
    }
    // A dynaset opened from the table with this sort and filter.
    RecordsetPtr opened(const QString& sort, const QString& filter = {})
    {
        auto base = db->createDynaset(QStringLiteral("Adressenstamm"));
        base->Sort = sort;
        base->Filter = filter;
        return base->createDynaset();
    }

    QTemporaryDir dir;
    QString file;
    DatabasePtr db;
    RecordsetPtr cards;
};

// Runs step and returns the error number it raised, 0 when it raised none.
template <class Step>
int errorOf(Step&& step)
{
    try {
        step();
    } catch (const RuntimeError& e) {
        return e.Number;
    }
    return 0;
}

}  // namespace mk::testing
