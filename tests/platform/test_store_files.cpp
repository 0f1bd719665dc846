// The store's files: what opens and what is refused, the lock between processes, read-only
// sessions, the schema source, compaction.

#include "platform/schema.h"
#include "platform/store.h"
#include "store_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdlib>
#include <sqlite3.h>

namespace mk {
namespace {

using testing::CardStore;
using testing::errorOf;

QString jetSample(const char* name) { return QStringLiteral(MK_SHARED_TESTDATA "/jet/") + QLatin1String(name); }

int openError(const QString& path, bool exclusive = false, bool readOnly = false)
{
    return errorOf([&] { Database::open(path, exclusive, readOnly); });
}

TEST(StoreFiles, RefusesWhatIsNoCardDatabase)
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("fehlt.mdb"));
    try {
        Database::open(missing);
        FAIL() << "a missing file opened";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number, err::FileNotFoundDb);
        EXPECT_EQ(e.Description, QStringLiteral("Die Datei %1 wurde nicht gefunden.").arg(missing));
    }

    for (const char* sample : {"jet3-sample.mdb", "jet4-sample.mdb"}) {
        try {
            Database::open(jetSample(sample), false, true);
            ADD_FAILURE() << sample << " opened";
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number, err::JetFormat) << sample;
            EXPECT_TRUE(e.Description.contains(QStringLiteral("Jet-Datenbank"))) << qPrintable(e.Description);
            EXPECT_TRUE(e.Description.contains(QStringLiteral("umgewandelt"))) << qPrintable(e.Description);
        }
    }

    const QString garbage = dir.filePath(QStringLiteral("notizen.mdb"));
    QFile out(garbage);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(QByteArray(4096, 'x'));
    out.close();
    EXPECT_EQ(openError(garbage), err::UnrecognizedFormat);

    const QString empty = dir.filePath(QStringLiteral("leer.mdb"));
    QFile(empty).open(QIODevice::WriteOnly);
    EXPECT_EQ(openError(empty), err::UnrecognizedFormat);
    EXPECT_EQ(QFileInfo(empty).size(), 0) << "a refused file is left as it was";
}

TEST_F(CardStore, UnknownTableCannotBeOpened)
{
    EXPECT_EQ(errorOf([&] { db->createDynaset(QStringLiteral("Adressen")); }), err::CannotOpenTable);
    EXPECT_EQ(errorOf([&] { db->tableDef(QStringLiteral("Adressen")); }), err::CannotOpenTable);
    EXPECT_NO_THROW(db->createDynaset(QStringLiteral("adressenSTAMM")));
}

TEST(StoreFiles, SchemaSizesAreReadBackFromTheFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("EMPTYMDB.KDB"));
    createEmptyDatabase(DatabaseKind::Cards, path);
    EXPECT_EQ(errorOf([&] { createEmptyDatabase(DatabaseKind::Cards, path); }), err::FileAlreadyExists);

    auto db = Database::open(path);
    const auto defs = db->tableDef(QStringLiteral("Adressenstamm"));
    ASSERT_EQ(defs.size(), schemaOf(DatabaseKind::Cards).size());
    auto rs = db->createDynaset(QStringLiteral("Adressenstamm"));
    const auto size = [&](const char* name) { return rs->Fields(QString::fromUtf8(name)).Size(); };
    EXPECT_EQ(size("Typ"), 7);
    for (const char* c : {"PLZ", "Landescod", "Geburtstag", "Vorwahl", "B1", "B10"})
        EXPECT_EQ(size(c), 10) << c;
    for (const char* c : {"Datum", "Zeit", "Recdate", "rectime", "BankLeitZahl"})
        EXPECT_EQ(size(c), 20) << c;
    EXPECT_EQ(size("Kontonummer"), 40);
    for (const char* c : {"A1", "A10"})
        EXPECT_EQ(size(c), 60) << c;
    for (const char* c : {"FIRMA", "C1", "C4"})
        EXPECT_EQ(size(c), 100) << c;
    for (const char* c : {"telex", "Som", "Video", "imagem", "PROG1", "PROG20"})
        EXPECT_EQ(size(c), 255) << c;
    for (const char* c : {"Bemerkung", "CampoM2"})
        EXPECT_EQ(size(c), 0) << c;
    for (const char* c : {"NachName", "Chamada", "campo1", "CampoM1", "TEL4", "Partei", "Postfach"})
        EXPECT_EQ(size(c), 50) << c;
    EXPECT_EQ(errorOf([&] { rs->Fields(QStringLiteral("Pais")); }), err::ItemNotFound);

    bool counterFound = false;
    for (const FieldDef& f : defs)
        if (f.Name == QLatin1String("Laufendenummer"))
            counterFound = f.Type == FieldType::Counter;
    EXPECT_TRUE(counterFound);
}

// The narrow key index: in every new file; added to an older file by a writable open only;
// a dynaset in the table's order still walks the rows by their keys.
TEST(StoreFiles, TheKeyIndexIsMadeWhereMissingAndKeepsTheTableOrder)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("karten.mdb"));
    createEmptyDatabase(DatabaseKind::Cards, path);
    const auto indexes = [&] {
        sqlite3* raw = nullptr;
        sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(raw, "SELECT count(*) FROM sqlite_master WHERE type = 'index' AND tbl_name = 'Adressenstamm'",
                           -1, &st, nullptr);
        sqlite3_step(st);
        const int n = sqlite3_column_int(st, 0);
        sqlite3_finalize(st);
        sqlite3_close(raw);
        return n;
    };
    const auto dropIndexes = [&] {
        sqlite3* raw = nullptr;
        sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(raw, "DROP INDEX \"Adressenstamm_Laufendenummer\"", nullptr, nullptr, nullptr);
        sqlite3_close(raw);
    };
    EXPECT_EQ(indexes(), 1);
    dropIndexes();
    ASSERT_EQ(indexes(), 0);
    Database::open(path, false, true)->close();
    EXPECT_EQ(indexes(), 0) << "a read-only open writes nothing";
    {
        auto db = Database::open(path);
        EXPECT_EQ(indexes(), 1);
        auto rs = db->createDynaset(QStringLiteral("Adressenstamm"));
        for (int i = 0; i < 20; ++i) {
            rs->AddNew();
            rs->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Karte %1").arg(20 - i));
            rs->Update();
        }
        rs->MoveFirst();
        rs->Delete();
        auto again = db->createDynaset(QStringLiteral("Adressenstamm"));
        QList<qlonglong> numbers;
        for (again->MoveFirst(); !again->IsEOF(); again->MoveNext())
            numbers << again->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong();
        QList<qlonglong> expected;
        for (qlonglong n = 2; n <= 20; ++n)
            expected << n;
        EXPECT_EQ(numbers, expected);
        db->close();
    }
    Database::open(path)->close();
    EXPECT_EQ(indexes(), 1) << "made once";
}

TEST(StoreFiles, CallLogAndGlobalViewCountTheirRows)
{
    QTemporaryDir dir;
    for (DatabaseKind kind : {DatabaseKind::Telephone, DatabaseKind::GlobalView}) {
        const QString path = dir.filePath(tableNameOf(kind) + QStringLiteral(".mdb"));
        createEmptyDatabase(kind, path);
        auto rs = Database::open(path)->createDynaset(tableNameOf(kind));
        EXPECT_EQ(rs->RecordCount(), 0);
        EXPECT_TRUE(rs->IsBOF() && rs->IsEOF());
        const QString column = kind == DatabaseKind::Telephone ? QStringLiteral("phonenumber")
                                                               : QStringLiteral("FullPathName");
        for (int i = 0; i < 2; ++i) {
            rs->AddNew();
            rs->Fields(column).setValue(QStringLiteral("Zeile %1").arg(i));
            rs->Fields(QStringLiteral("Datainicial")).setValue(QStringLiteral("01.02.2003"));
            rs->Update();
        }
        rs->MoveLast();
        EXPECT_EQ(rs->Fields(QStringLiteral("Numeroatual")).Value().toLongLong(), 2);
        rs->Delete();
        rs->AddNew();
        rs->Update();
        rs->MoveLast();
        EXPECT_EQ(rs->Fields(QStringLiteral("Numeroatual")).Value().toLongLong(), 3);
    }
}

TEST_F(CardStore, ReadOnlySessionRefusesEveryWrite)
{
    add({{"Nachname", QStringLiteral("Meier")}});
    db->close();
    auto ro = Database::open(file, true, true);
    EXPECT_TRUE(ro->readOnly());
    auto rs = ro->createDynaset(QStringLiteral("Adressenstamm"));
    EXPECT_EQ(current(rs), QStringLiteral("Meier"));
    EXPECT_EQ(errorOf([&] { rs->Edit(); }), err::ReadOnlyDatabase);
    EXPECT_EQ(errorOf([&] { rs->AddNew(); }), err::ReadOnlyDatabase);
    EXPECT_EQ(errorOf([&] { rs->Delete(); }), err::ReadOnlyDatabase);
    EXPECT_EQ(rs->RecordCount(), 1);

    // The card database is opened twice; with ReadOnly both opens are exclusive.
    auto second = Database::open(file, true, true);
    EXPECT_EQ(second->createDynaset(QStringLiteral("Adressenstamm"))->RecordCount(), 1);
}

TEST_F(CardStore, ClosedDatabaseClosesItsRecordsets)
{
    add({{"Nachname", QStringLiteral("Meier")}});
    auto clone = cards->clone();
    db->close();
    EXPECT_FALSE(db->isOpen());
    EXPECT_EQ(errorOf([&] { cards->MoveFirst(); }), err::ObjectClosed);
    EXPECT_EQ(errorOf([&] { clone->RecordCount(); }), err::ObjectClosed);
    EXPECT_NO_THROW(db->close());
}

// ---- the lock between processes ---------------------------------------------------------

constexpr const char* ProbeVariable = "MK_STORE_LOCK_PROBE";

// Run in a second process by the tests below: opens the file named in the environment and
// leaves with 0 when it opened, 1 when the file was in use, 2 on anything else.
TEST(StoreLockProbe, OpenFromAnotherProcess)
{
    const QString path = qEnvironmentVariable(ProbeVariable);
    if (path.isEmpty())
        GTEST_SKIP() << "only run as the second process of the lock tests";
    const bool exclusive = qEnvironmentVariable("MK_STORE_LOCK_EXCLUSIVE") == QLatin1String("1");
    const int error = openError(path, exclusive, false);
    std::_Exit(error == 0 ? 0 : (error == err::FileInUse ? 1 : 2));
}

int openInOtherProcess(const QString& path, bool exclusive)
{
    QProcess probe;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QString::fromLatin1(ProbeVariable), path);
    env.insert(QStringLiteral("MK_STORE_LOCK_EXCLUSIVE"), exclusive ? QStringLiteral("1") : QStringLiteral("0"));
    probe.setProcessEnvironment(env);
    probe.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=StoreLockProbe.OpenFromAnotherProcess")});
    if (!probe.waitForFinished(60000))
        return -1;
    return probe.exitCode();
}

TEST_F(CardStore, ExclusiveOpenKeepsOtherProcessesOut)
{
    EXPECT_EQ(openInOtherProcess(file, false), 0) << "a plain open lets others in";
    EXPECT_EQ(openInOtherProcess(file, true), 1) << "but refuses them exclusive use";

    auto mine = Database::open(file, true, false);  // inside this process opens stack
    EXPECT_EQ(openInOtherProcess(file, false), 1);
    mine->close();
    EXPECT_EQ(openInOtherProcess(file, false), 0) << "the plain open still holds, shared";
    db->close();
    cards.reset();
    EXPECT_EQ(openInOtherProcess(file, true), 0) << "nothing holds the file any more";
}

// ---- compaction ----------------------------------------------------------------------------

TEST_F(CardStore, CompactionExchangesTheFilesOfAClosedDatabase)
{
    inOneTransaction([&] {
        for (int i = 0; i < 200; ++i)
            add({{"Nachname", QStringLiteral("Karte %1").arg(i)}, {"Bemerkung", QString(2000, QLatin1Char('n'))}});
    });
    cards = db->createDynaset(QStringLiteral("Adressenstamm"));
    inOneTransaction([&] {
        for (int i = 0; i < 199; ++i) {
            cards->Delete();
            cards->MoveNext();
        }
    });
    const QString base = file.left(file.size() - 4);
    const QString compacted = base + QStringLiteral("1.mdb");

    EXPECT_EQ(errorOf([&] { Database::compact(file, compacted); }), err::FileInUse) << "open in this process";
    EXPECT_FALSE(QFile::exists(compacted));

    const qint64 before = QFileInfo(file).size();
    db->close();
    Database::compact(file, compacted);
    ASSERT_TRUE(QFile::rename(file, base + QStringLiteral(".bak")));
    ASSERT_TRUE(QFile::rename(compacted, file));
    EXPECT_LT(QFileInfo(file).size(), before);

    QDir folder(dir.path());
    EXPECT_EQ(folder.entryList(QDir::Files, QDir::Name),
              QStringList({QStringLiteral("karten.bak"), QStringLiteral("karten.mdb")}));
    auto rs = Database::open(file)->createDynaset(QStringLiteral("Adressenstamm"));
    EXPECT_EQ(all(rs), QStringList{QStringLiteral("Karte 199")});

    QFile(compacted).open(QIODevice::WriteOnly);
    rs.reset();
    EXPECT_EQ(errorOf([&] { Database::compact(base + QStringLiteral(".bak"), compacted); }), err::FileAlreadyExists);
}

TEST_F(CardStore, TextIsStoredAsTextAndTheNumberAsInteger)
{
    add({{"Nachname", 4711}, {"PLZ", QStringLiteral("01234")}});
    sqlite3_stmt* stmt = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(db->handle(),
                                 "SELECT typeof(Nachname), typeof(PLZ), typeof(Laufendenummer), PLZ "
                                 "FROM Adressenstamm",
                                 -1, &stmt, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_step(stmt), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)), "text");
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1)), "text");
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 2)), "integer");
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 3)), "01234");
    sqlite3_finalize(stmt);
}

}  // namespace
}  // namespace mk
