// Databases: opening a file (format check, the lock between processes), the connection
// shared with the record sets, compaction.

#include "platform/schema.h"
#include "platform/store.h"
#include "platform/store_internal.h"

#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <unistd.h>

namespace mk {

namespace store {

void raise(int number, const QString& description) { throw RuntimeError(number, description); }

std::shared_ptr<std::uint64_t> writeCounter(const QString& canonicalPath)
{
    static std::map<QString, std::weak_ptr<std::uint64_t>> counters;
    std::shared_ptr<std::uint64_t> counter = counters[canonicalPath].lock();
    if (!counter) {
        // A file opened afresh starts past every count a cache of an earlier opening took.
        static std::uint64_t next = 1;
        next += 1u << 20;
        counter = std::make_shared<std::uint64_t>(next);
        counters[canonicalPath] = counter;
    }
    return counter;
}

// ---- the lock between processes -------------------------------------------------------
//
// One advisory lock per file and process: shared while only plain opens hold the file,
// exclusive while an exclusive open holds it. Opens inside this process never refuse each
// other; another process's opens meet the lock.

namespace {

struct FileHold {
    int fd = -1;
    int opens = 0;
    int exclusiveOpens = 0;
};

// Never destroyed: databases kept in statics close after other statics are gone.
std::map<QString, FileHold>& holds()
{
    static auto* map = new std::map<QString, FileHold>;
    return *map;
}

[[noreturn]] void fileInUse(const QString& path)
{
    raise(err::FileInUse,
          QStringLiteral("Die Datei %1 wird bereits verwendet oder ist exklusiv geöffnet.").arg(path));
}

void holdFile(const QString& canonical, bool exclusive)
{
    FileHold& hold = holds()[canonical];
    if (hold.opens == 0) {
        hold.fd = ::open(QFile::encodeName(canonical).constData(), O_RDONLY | O_CLOEXEC);
        if (hold.fd < 0 || ::flock(hold.fd, (exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) != 0) {
            if (hold.fd >= 0)
                ::close(hold.fd);
            holds().erase(canonical);
            fileInUse(canonical);
        }
    } else if (exclusive && hold.exclusiveOpens == 0) {
        if (::flock(hold.fd, LOCK_EX | LOCK_NB) != 0) {
            ::flock(hold.fd, LOCK_SH | LOCK_NB);  // a failed conversion may have dropped it
            fileInUse(canonical);
        }
    }
    ++hold.opens;
    if (exclusive)
        ++hold.exclusiveOpens;
}

void releaseFile(const QString& canonical, bool exclusive)
{
    auto it = holds().find(canonical);
    if (it == holds().end())
        return;
    FileHold& hold = it->second;
    --hold.opens;
    if (exclusive)
        --hold.exclusiveOpens;
    if (hold.opens == 0) {
        ::close(hold.fd);
        holds().erase(it);
    } else if (exclusive && hold.exclusiveOpens == 0) {
        ::flock(hold.fd, LOCK_SH | LOCK_NB);
    }
}

bool heldHere(const QString& canonical) { return holds().count(canonical) > 0; }

// ---- the file's format --------------------------------------------------------------

void requireExisting(const QString& path)
{
    QFileInfo info(path);
    if (!info.exists() || info.isDir())
        raise(err::FileNotFoundDb, QStringLiteral("Die Datei %1 wurde nicht gefunden.").arg(path));
}

void requireOwnFormat(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        raise(err::PermissionDenied, QStringLiteral("Die Datei %1 kann nicht gelesen werden.").arg(path));
    const QByteArray head = file.read(100);
    const QByteArray signature = head.mid(4, 15);
    if (signature == "Standard Jet DB" || signature == "Standard ACE DB")
        raise(err::JetFormat,
              QStringLiteral("Die Datei %1 ist eine Jet-Datenbank. Sie muss zuerst in das "
                             "Datenbankformat von Merkkartelle umgewandelt werden.")
                  .arg(path));
    if (head.size() < 100 || !head.startsWith(QByteArray("SQLite format 3", 16)))
        raise(err::UnrecognizedFormat,
              QStringLiteral("Die Datei %1 ist keine Datenbank oder hat ein unbekanntes Format.").arg(path));
}

// A file made before the key index existed gets it on its first writable open, so that a
// dynaset in the table's order reads its keys from the narrow index. A file that cannot take
// it now (busy, full) stays usable: the index only saves time, so a failure is passed over.
void addMissingKeyIndexes(sqlite3* db)
{
    for (const DatabaseKind kind : {DatabaseKind::Cards, DatabaseKind::Telephone, DatabaseKind::GlobalView}) {
        const std::string create = createKeyIndexSql(kind);
        QString counter;
        for (const FieldDef& field : schemaOf(kind))
            if (field.Type == FieldType::Counter)
                counter = field.Name;
        if (create.empty() || counter.isEmpty())
            continue;
        // Only a read unless the table has its counter as key and no index leads with it.
        sqlite3_stmt* check = nullptr;
        const char* sql =
            "SELECT EXISTS (SELECT 1 FROM pragma_table_info(?1) WHERE name = ?2 COLLATE NOCASE AND pk = 1) "
            "AND NOT EXISTS (SELECT 1 FROM pragma_index_list(?1) AS l, pragma_index_info(l.name) AS i "
            "WHERE i.seqno = 0 AND i.name = ?2 COLLATE NOCASE)";
        if (sqlite3_prepare_v2(db, sql, -1, &check, nullptr) != SQLITE_OK) {
            sqlite3_finalize(check);
            return;
        }
        const QByteArray table = tableNameOf(kind).toUtf8();
        const QByteArray column = counter.toUtf8();
        sqlite3_bind_text(check, 1, table.constData(), int(table.size()), SQLITE_TRANSIENT);
        sqlite3_bind_text(check, 2, column.constData(), int(column.size()), SQLITE_TRANSIENT);
        const bool missing = sqlite3_step(check) == SQLITE_ROW && sqlite3_column_int(check, 0) == 1;
        sqlite3_finalize(check);
        if (missing)
            sqlite3_exec(db, create.c_str(), nullptr, nullptr, nullptr);
    }
}

}  // namespace

// ---- the connection -------------------------------------------------------------------

void Connection::close()
{
    for (auto& [sql, stmt] : statements)
        sqlite3_finalize(stmt);
    statements.clear();
    if (db)
        sqlite3_close_v2(db);
    db = nullptr;
    if (held)
        releaseFile(path, exclusive);
    held = false;
}

Connection::~Connection() { close(); }

sqlite3* Connection::handle() const
{
    if (!db)
        raise(err::ObjectClosed, QStringLiteral("Objekt ist ungültig oder nicht mehr festgelegt."));
    return db;
}

sqlite3_stmt* Connection::statement(const std::string& sql)
{
    sqlite3* h = handle();
    if (auto it = statements.find(sql); it != statements.end()) {
        sqlite3_reset(it->second);
        sqlite3_clear_bindings(it->second);
        return it->second;
    }
    sqlite3_stmt* stmt = nullptr;
    const int rc = sqlite3_prepare_v3(h, sql.c_str(), int(sql.size()), SQLITE_PREPARE_PERSISTENT, &stmt, nullptr);
    if (rc != SQLITE_OK)
        fail(rc);
    statements.emplace(sql, stmt);
    return stmt;
}

void Connection::fail(int rc) const
{
    const QString message = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString();
    switch (rc & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED: fileInUse(path);
    case SQLITE_READONLY:
        raise(err::ReadOnlyDatabase,
              QStringLiteral("Aktualisieren nicht möglich; Datenbank oder Objekt ist schreibgeschützt."));
    case SQLITE_NOTADB:
        raise(err::UnrecognizedFormat,
              QStringLiteral("Die Datei %1 ist keine Datenbank oder hat ein unbekanntes Format.").arg(path));
    case SQLITE_CORRUPT:
        raise(err::DatabaseDamaged,
              QStringLiteral("Die Datenbank %1 ist beschädigt und kann nicht gelesen werden (%2). "
                             "Bitte eine Sicherungskopie verwenden.").arg(path, message));
    default: raise(EngineError, QStringLiteral("Datenbankfehler: %1").arg(message));
    }
}

void Connection::requireWritable() const
{
    handle();
    if (readOnly)
        raise(err::ReadOnlyDatabase,
              QStringLiteral("Aktualisieren nicht möglich; Datenbank oder Objekt ist schreibgeschützt."));
}

std::int64_t Connection::dataVersion()
{
    sqlite3_stmt* stmt = statement("PRAGMA data_version");
    const int rc = sqlite3_step(stmt);
    const std::int64_t version = rc == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : 0;
    sqlite3_reset(stmt);
    if (rc != SQLITE_ROW)
        fail(rc);
    return version;
}

std::optional<int> TableInfo::column(const QString& name) const
{
    if (auto exact = byName.constFind(name); exact != byName.constEnd())
        return *exact;
    auto it = byFoldedName.constFind(name.toCaseFolded());
    if (it == byFoldedName.constEnd())
        return std::nullopt;
    return *it;
}

jet::ColumnResolver TableInfo::resolver() const
{
    return [this](const QString& name) -> std::optional<QString> {
        if (auto c = column(name))
            return fields[*c].Name;
        return std::nullopt;
    };
}

jet::IntegerColumn TableInfo::integerColumn() const
{
    return [this](const QString& name) {
        const auto c = column(name);
        return c && fields[*c].Type == FieldType::Counter;
    };
}

std::string quoteName(const QString& name)
{
    QString q = name;
    q.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return (QLatin1Char('"') + q + QLatin1Char('"')).toStdString();
}

std::shared_ptr<const TableInfo> Connection::table(const QString& name)
{
    handle();
    const QString folded = name.toCaseFolded();
    if (auto it = tables.find(folded); it != tables.end())
        return it->second;

    sqlite3_stmt* find = statement("SELECT name FROM sqlite_master WHERE type IN ('table','view') "
                                   "AND name = ?1 COLLATE NOCASE");
    jet::bindValue(find, 1, name);
    const int rc = sqlite3_step(find);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        fail(rc);
    if (rc == SQLITE_DONE || name.isEmpty())
        raise(err::CannotOpenTable,
              QStringLiteral("Die Tabelle oder Abfrage '%1' wurde nicht gefunden.").arg(name));
    auto info = std::make_shared<TableInfo>();
    info->name = columnValue(find, 0).toString();
    sqlite3_reset(find);
    info->quotedName = quoteName(info->name);

    sqlite3_stmt* columns = statement("SELECT name, type, pk FROM pragma_table_info(?1)");
    jet::bindValue(columns, 1, info->name);
    std::string list;
    while (sqlite3_step(columns) == SQLITE_ROW) {
        const QString column = columnValue(columns, 0).toString();
        info->fields.push_back(fieldFromDeclaration(column, columnValue(columns, 1).toString(),
                                                    sqlite3_column_int(columns, 2) != 0));
        info->byFoldedName.insert(column.toCaseFolded(), int(info->fields.size() - 1));
        info->byName.insert(column, int(info->fields.size() - 1));
        list += (list.empty() ? "" : ", ") + quoteName(column);
    }
    sqlite3_reset(columns);
    info->columnList = list;
    tables.emplace(folded, info);
    return info;
}

}  // namespace store

// ---- Database -------------------------------------------------------------------------

using store::Connection;

Database::Database() : d(std::make_unique<Impl>()) {}

Database::~Database() = default;  // the connection closes with its last record set

DatabasePtr Database::open(const QString& path, bool exclusive, bool readOnly)
{
    store::requireExisting(path);
    store::requireOwnFormat(path);
    auto conn = std::make_shared<Connection>();
    conn->path = QFileInfo(path).canonicalFilePath();
    conn->writes = store::writeCounter(conn->path);
    store::holdFile(conn->path, exclusive);
    conn->exclusive = exclusive;
    conn->held = true;  // from here on the connection releases the hold

    const int flags = (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX;
    int rc = sqlite3_open_v2(QFile::encodeName(conn->path).constData(), &conn->db, flags, nullptr);
    if (rc != SQLITE_OK) {
        const QString message = conn->db ? QString::fromUtf8(sqlite3_errmsg(conn->db)) : QString();
        store::raise(store::EngineError,
                     QStringLiteral("Die Datei %1 konnte nicht geöffnet werden (%2).").arg(path, message));
    }
    sqlite3_busy_timeout(conn->db, 3000);
    sqlite3_extended_result_codes(conn->db, 1);
    jet::registerFunctions(conn->db);
    rc = sqlite3_exec(conn->db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        conn->fail(rc);
    conn->readOnly = readOnly || sqlite3_db_readonly(conn->db, "main") == 1;
    if (!conn->readOnly) {
        // A rollback journal, synced in full at every commit: a card whose save returned is on
        // the disk, and a write cut by a crash is rolled back at the next open. The database
        // stays one file, which the backup copies whole.
        sqlite3_exec(conn->db, "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
        store::addMissingKeyIndexes(conn->db);
    }

    DatabasePtr db(new Database());
    db->d->conn = std::move(conn);
    return db;
}

void Database::compact(const QString& src, const QString& dst)
{
    store::requireExisting(src);
    store::requireOwnFormat(src);
    const QString canonical = QFileInfo(src).canonicalFilePath();
    if (store::heldHere(canonical))
        store::fileInUse(src);
    if (QFileInfo::exists(dst))
        store::raise(err::FileAlreadyExists, QStringLiteral("Die Datei %1 existiert bereits.").arg(dst));

    // Held exclusively while compacting, so no other process opens it half way.
    store::holdFile(canonical, true);
    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(canonical).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* stmt = nullptr;
    if (rc == SQLITE_OK)
        rc = sqlite3_prepare_v2(db, "VACUUM INTO ?1", -1, &stmt, nullptr);
    if (rc == SQLITE_OK) {
        const QByteArray target = QFile::encodeName(dst);
        sqlite3_bind_text(stmt, 1, target.constData(), int(target.size()), SQLITE_TRANSIENT);
        rc = sqlite3_step(stmt);
        if (rc == SQLITE_DONE)
            rc = SQLITE_OK;
    }
    const QString message = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString();
    sqlite3_finalize(stmt);
    sqlite3_close_v2(db);
    store::releaseFile(canonical, true);
    if (rc != SQLITE_OK)
        store::raise(store::EngineError,
                     QStringLiteral("Die Datei %1 konnte nicht komprimiert werden (%2).").arg(src, message));
}

RecordsetPtr Database::createDynaset(const QString& table)
{
    auto& conn = d->conn;
    if (!conn)
        store::raise(err::ObjectClosed, QStringLiteral("Objekt ist ungültig oder nicht mehr festgelegt."));
    store::Source source;
    source.table = conn->table(table);
    RecordsetPtr rs(new Recordset());
    rs->d->conn = conn;
    rs->d->source = std::move(source);
    rs->d->keys = store::newKeySet(store::selectKeys(*conn, rs->d->source));
    rs->d->placeAtFirst();
    return rs;
}

namespace {

void transactionStep(const std::shared_ptr<store::Connection>& conn, const char* sql)
{
    if (!conn)
        store::raise(err::ObjectClosed, QStringLiteral("Objekt ist ungültig oder nicht mehr festgelegt."));
    const int rc = sqlite3_exec(conn->handle(), sql, nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        conn->fail(rc);
}

}  // namespace

void Database::BeginTrans() { transactionStep(d->conn, "BEGIN IMMEDIATE"); }
void Database::CommitTrans() { transactionStep(d->conn, "COMMIT"); }
void Database::Rollback()
{
    transactionStep(d->conn, "ROLLBACK");
    d->conn->noteWrite();  // what was read inside the transaction is gone
}

std::vector<FieldDef> Database::tableDef(const QString& table)
{
    if (!d->conn)
        store::raise(err::ObjectClosed, QStringLiteral("Objekt ist ungültig oder nicht mehr festgelegt."));
    return d->conn->table(table)->fields;
}

void Database::close()
{
    if (d->conn)
        d->conn->close();
}

bool Database::isOpen() const { return d->conn && d->conn->db; }
bool Database::readOnly() const { return d->conn && d->conn->readOnly; }
QString Database::path() const { return d->conn ? d->conn->path : QString(); }
sqlite3* Database::handle() { return d->conn ? d->conn->handle() : nullptr; }

}  // namespace mk
