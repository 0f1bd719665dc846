// Record sets: position over a shared key list, live values of the current row, the edit
// buffer, bookmarks and Find.

#include "platform/store.h"
#include "platform/store_internal.h"

#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <sqlite3.h>

namespace mk {

using store::raise;

namespace {

[[noreturn]] void noCurrentRecord() { raise(err::NoCurrentRecord, QStringLiteral("Kein aktueller Datensatz.")); }

[[noreturn]] void objectClosed()
{
    raise(err::ObjectClosed, QStringLiteral("Objekt ist ungültig oder nicht mehr festgelegt."));
}

store::Connection& connectionOf(const Recordset::Impl& d)
{
    if (d.closed || !d.conn || !d.conn->db)
        objectClosed();
    return *d.conn;
}

bool nowhere(const Recordset::Impl& d) { return d.index < 0 && !d.bof && !d.eof; }

bool hasCurrent(const Recordset::Impl& d)
{
    return !d.bof && !d.eof && d.index >= 0 && std::size_t(d.index) < d.keys->keys.size()
        && !d.keys->isHole(std::size_t(d.index));
}

void dropEdit(Recordset::Impl& d)
{
    d.mode = EditMode::None;
    d.buffer.clear();
    d.touched.clear();
    d.original.clear();
}

// The current row read from the file itself, past every block kept in memory.
std::vector<QVariant> freshRow(Recordset::Impl& d, store::Connection& conn)
{
    const store::TableInfo& table = *d.source.table;
    sqlite3_stmt* stmt = conn.statement("SELECT " + table.columnList + " FROM " + table.quotedName + " WHERE rowid = ?1");
    sqlite3_bind_int64(stmt, 1, d.keys->keys[std::size_t(d.index)]);
    const int rc = sqlite3_step(stmt);
    std::vector<QVariant> values;
    if (rc == SQLITE_ROW) {
        store::RowCopy row;
        row.take(stmt, int(table.fields.size()));
        for (std::size_t i = 0; i < table.fields.size(); ++i)
            values.push_back(row.value(i));
    }
    sqlite3_reset(stmt);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        conn.fail(rc);
    if (values.empty())
        noCurrentRecord();  // deleted meanwhile
    return values;
}

void placeAt(Recordset::Impl& d, long index)
{
    dropEdit(d);
    d.index = index;
    d.bof = d.eof = false;
}

// The first live index at or after from, or -1.
long liveFrom(const store::KeySet& keys, long from)
{
    for (long i = std::max(from, 0L); i < long(keys.keys.size()); ++i)
        if (!keys.isHole(std::size_t(i)))
            return i;
    return -1;
}

// The last live index at or before from, or -1.
long liveUpTo(const store::KeySet& keys, long from)
{
    for (long i = std::min(from, long(keys.keys.size()) - 1); i >= 0; --i)
        if (!keys.isHole(std::size_t(i)))
            return i;
    return -1;
}

constexpr long LongestBlock = 64;

std::string blockSql(const store::TableInfo& table, long count)
{
    std::string sql = "SELECT " + table.columnList + ", rowid FROM " + table.quotedName;
    if (count == 1)
        return sql + " WHERE rowid = ?1";
    sql += " WHERE rowid IN (";
    for (long i = 1; i <= count; ++i)
        sql += (i > 1 ? ", ?" : "?") + std::to_string(i);
    return sql + ")";
}

// Reads the rows of the key list from index first on into the block.
void fetchBlock(Recordset::Impl& d, store::Connection& conn, long first, long count)
{
    const store::TableInfo& table = *d.source.table;
    const int columns = int(table.fields.size());
    // Few statement shapes: the list is filled up to 8, 16, 32 or 64 with its last key.
    long places = 1;
    while (places < count)
        places = std::max(places * 2, 8L);
    std::vector<std::pair<std::int64_t, long>> slots;
    sqlite3_stmt* stmt = conn.statement(blockSql(table, places));
    for (long i = 0; i < places; ++i) {
        const std::int64_t key = d.keys->keys[std::size_t(first + std::min(i, count - 1))];
        sqlite3_bind_int64(stmt, int(i + 1), key);
        if (i < count)
            slots.emplace_back(key, i);
    }
    std::sort(slots.begin(), slots.end());
    store::RowBlock& block = d.block;
    block.count = 0;  // nothing holds if reading fails half way
    block.rows.resize(std::size_t(count));
    block.present.assign(std::size_t(count), 0);
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        const std::int64_t rowid = sqlite3_column_int64(stmt, columns);
        const auto at = std::lower_bound(slots.begin(), slots.end(), std::make_pair(rowid, 0L));
        if (at == slots.end() || at->first != rowid)
            continue;
        block.rows[std::size_t(at->second)].take(stmt, columns);
        block.present[std::size_t(at->second)] = 1;
    }
    sqlite3_reset(stmt);
    if (rc != SQLITE_DONE)
        conn.fail(rc);
    block.first = first;
    block.count = count;
    block.serial = conn.writeSerial();
    block.taken = std::chrono::steady_clock::now();
}

const store::RowCopy& currentRow(Recordset::Impl& d)
{
    store::Connection& conn = connectionOf(d);
    if (!hasCurrent(d))
        noCurrentRecord();
    const long i = d.index;
    store::RowBlock& block = d.block;
    if (!block.holds(i, std::chrono::steady_clock::now(), conn.writeSerial())) {
        long first = i;
        long count = 1;
        if (d.lastRead >= 0 && i != d.lastRead && std::abs(i - d.lastRead) <= 2) {  // a walk
            count = std::clamp(block.count * 2, 8L, LongestBlock);
            if (i < d.lastRead)
                first = std::max(0L, i - count + 1);
            count = std::min(count, long(d.keys->keys.size()) - first);
        }
        fetchBlock(d, conn, first, count);
    }
    d.lastRead = i;
    const std::size_t slot = std::size_t(i - block.first);
    if (!block.present[slot])
        noCurrentRecord();  // deleted through another cursor
    return block.rows[slot];
}

[[noreturn]] void conversionError()
{
    raise(store::ConversionError, QStringLiteral("Datentypkonvertierungsfehler."));
}

QVariant numberFor(const FieldDef& field, const QVariant& value)
{
    bool ok = true;
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        if (field.Type == FieldType::Double) {
            const double d = text.toDouble(&ok);
            if (!ok)
                conversionError();
            return d;
        }
        const qlonglong n = text.toLongLong(&ok);
        if (!ok)
            conversionError();
        return n;
    }
    if (field.Type == FieldType::Double) {
        const double d = value.toDouble(&ok);
        if (!ok)
            conversionError();
        return d;
    }
    if (field.Type == FieldType::Boolean)
        return qlonglong(value.toBool() ? -1 : 0);
    const qlonglong n = value.toLongLong(&ok);
    if (!ok)
        conversionError();
    return n;
}

// The value as the column keeps it: text as text, numbers as numbers.
QVariant storedValue(const FieldDef& field, const QVariant& value)
{
    if (field.Type == FieldType::Counter)
        raise(store::FieldNotUpdatable, QStringLiteral("Das Feld '%1' kann nicht aktualisiert werden.").arg(field.Name));
    if (!value.isValid() || value.isNull())
        return {};
    if (field.Type == FieldType::Text || field.Type == FieldType::Memo) {
        const QString text = value.toString();
        if (field.Type == FieldType::Text && text.size() > field.Size)
            raise(err::FieldTooSmall,
                  QStringLiteral("Das Feld ist zu klein für die Datenmenge, die Sie hinzufügen wollten."));
        return text;
    }
    return numberFor(field, value);
}

void insertRow(Recordset::Impl& d)
{
    store::Connection& conn = connectionOf(d);
    const store::TableInfo& table = *d.source.table;
    std::vector<QVariant> params;
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        if (d.touched[i])
            params.push_back(d.buffer[i]);
    }
    if (d.insertSql.empty() || d.insertColumns != d.touched) {
        std::string columns, places;
        int n = 0;
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            if (!d.touched[i])
                continue;
            columns += (columns.empty() ? "" : ", ") + store::quoteName(table.fields[i].Name);
            places += (places.empty() ? "?" : ", ?") + std::to_string(++n);
        }
        d.insertSql = params.empty()
            ? "INSERT INTO " + table.quotedName + " DEFAULT VALUES"
            : "INSERT INTO " + table.quotedName + " (" + columns + ") VALUES (" + places + ")";
        d.insertColumns = d.touched;
    }
    sqlite3_stmt* stmt = conn.statement(d.insertSql);
    jet::bindParameters(stmt, params);
    store::runToEnd(conn, stmt);
    d.keys->keys.push_back(sqlite3_last_insert_rowid(conn.db));
}

void updateRow(Recordset::Impl& d)
{
    store::Connection& conn = connectionOf(d);
    if (!hasCurrent(d))
        noCurrentRecord();
    const store::TableInfo& table = *d.source.table;
    // Another program that changed the row since Edit would lose its change to this one.
    if (!d.original.empty() && freshRow(d, conn) != d.original)
        raise(err::ChangedMeanwhile,
              QStringLiteral("Der Eintrag wurde inzwischen von einem anderen Programm geändert; "
                             "diese Änderung wurde nicht gespeichert."));
    std::string assignments;
    std::vector<QVariant> params;
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        if (!d.touched[i])
            continue;
        params.push_back(d.buffer[i]);
        assignments += (assignments.empty() ? "" : ", ") + store::quoteName(table.fields[i].Name) + " = ?"
            + std::to_string(params.size());
    }
    if (params.empty())
        return;
    params.push_back(qlonglong(d.keys->keys[std::size_t(d.index)]));
    sqlite3_stmt* stmt = conn.statement("UPDATE " + table.quotedName + " SET " + assignments
                                        + " WHERE rowid = ?" + std::to_string(params.size()));
    jet::bindParameters(stmt, params);
    store::runToEnd(conn, stmt);
    if (sqlite3_changes(conn.db) == 0)
        noCurrentRecord();
}

enum class Direction { Forward, Backward };

void find(Recordset::Impl& d, const QString& criteria, long start, Direction direction)
{
    store::Connection& conn = connectionOf(d);
    store::KeySet& keys = *d.keys;
    store::MatchSet& set = store::matchSetFor(conn, d.source, keys, criteria);
    const long n = long(keys.keys.size());
    const long step = direction == Direction::Forward ? 1 : -1;
    for (long i = start; i >= 0 && i < n; i += step) {
        if (keys.isHole(std::size_t(i)) || !store::matches(conn, d.source, keys, set, std::size_t(i)))
            continue;
        placeAt(d, i);
        d.noMatch = false;
        return;
    }
    d.noMatch = true;
}

}  // namespace

void Recordset::Impl::placeAtFirst()
{
    noMatch = false;
    const long first = liveFrom(*keys, 0);
    index = first;
    bof = eof = first < 0;
}

Recordset::Recordset() : d(std::make_unique<Impl>()) {}
Recordset::~Recordset() = default;

RecordsetPtr Recordset::createDynaset()
{
    store::Connection& conn = connectionOf(*d);
    store::Source source = d->source;
    if (!Filter.trimmed().isEmpty())
        source.filters.push_back(jet::parseExpression(Filter));
    if (!Sort.trimmed().isEmpty())
        source.sort = jet::parseSort(Sort);
    RecordsetPtr rs(new Recordset());
    rs->d->keys = store::newKeySet(store::selectKeys(conn, source));
    rs->d->conn = d->conn;
    rs->d->source = std::move(source);
    rs->d->placeAtFirst();
    return rs;
}

RecordsetPtr Recordset::clone()
{
    connectionOf(*d);
    RecordsetPtr rs(new Recordset());
    rs->d->conn = d->conn;
    rs->d->source = d->source;
    rs->d->keys = d->keys;
    rs->d->index = -1;
    rs->d->bof = rs->d->eof = d->keys->live() == 0;  // otherwise no current record until moved
    return rs;
}

void Recordset::close()
{
    dropEdit(*d);
    d->closed = true;
    d->block = {};
}

long Recordset::RecordCount() const
{
    connectionOf(*d);
    return d->keys->live();
}

bool Recordset::IsBOF() const
{
    connectionOf(*d);
    return d->bof;
}

bool Recordset::IsEOF() const
{
    connectionOf(*d);
    return d->eof;
}

long Recordset::AbsolutePosition() const
{
    connectionOf(*d);
    return hasCurrent(*d) ? d->keys->liveBefore(std::size_t(d->index)) : -1;
}

void Recordset::MoveFirst()
{
    connectionOf(*d);
    const long first = liveFrom(*d->keys, 0);
    if (first < 0) {
        placeAt(*d, -1);
        d->bof = d->eof = true;
        noCurrentRecord();
    }
    placeAt(*d, first);
}

void Recordset::MoveLast()
{
    connectionOf(*d);
    const long last = liveUpTo(*d->keys, long(d->keys->keys.size()) - 1);
    if (last < 0) {
        placeAt(*d, -1);
        d->bof = d->eof = true;
        noCurrentRecord();
    }
    placeAt(*d, last);
}

void Recordset::MoveNext()
{
    connectionOf(*d);
    if (d->eof)
        noCurrentRecord();
    const long next = liveFrom(*d->keys, d->bof || nowhere(*d) ? 0 : d->index + 1);
    if (next >= 0) {
        placeAt(*d, next);
        return;
    }
    placeAt(*d, long(d->keys->keys.size()));
    d->eof = true;
    d->bof = d->keys->live() == 0;
}

void Recordset::MovePrevious()
{
    connectionOf(*d);
    if (d->bof)
        noCurrentRecord();
    const long size = long(d->keys->keys.size());
    const long previous = liveUpTo(*d->keys, d->eof || nowhere(*d) ? size - 1 : d->index - 1);
    if (previous >= 0) {
        placeAt(*d, previous);
        return;
    }
    placeAt(*d, -1);
    d->bof = true;
    d->eof = d->keys->live() == 0;
}

QByteArray Recordset::Bookmark() const
{
    connectionOf(*d);
    if (!hasCurrent(*d))
        noCurrentRecord();
    QByteArray mark(16, '\0');
    qToBigEndian<quint64>(d->keys->id, mark.data());
    qToBigEndian<quint64>(quint64(d->index), mark.data() + 8);
    return mark;
}

void Recordset::setBookmark(const QByteArray& bookmark)
{
    connectionOf(*d);
    const auto invalid = [] { raise(err::InvalidBookmark, QStringLiteral("Ungültige Textmarke.")); };
    if (bookmark.size() != 16)
        invalid();
    const quint64 id = qFromBigEndian<quint64>(bookmark.constData());
    const quint64 index = qFromBigEndian<quint64>(bookmark.constData() + 8);
    if (id != d->keys->id || index >= d->keys->keys.size())
        invalid();
    placeAt(*d, long(index));  // a row deleted since stays current but unusable
}

void Recordset::FindFirst(const QString& criteria) { find(*d, criteria, 0, Direction::Forward); }

void Recordset::FindLast(const QString& criteria)
{
    find(*d, criteria, long(d->keys->keys.size()) - 1, Direction::Backward);
}

void Recordset::FindNext(const QString& criteria)
{
    const long start = d->eof ? long(d->keys->keys.size()) : (d->bof || nowhere(*d) ? 0 : d->index + 1);
    find(*d, criteria, start, Direction::Forward);
}

void Recordset::FindPrevious(const QString& criteria)
{
    const long start = d->bof ? -1 : (d->eof || nowhere(*d) ? long(d->keys->keys.size()) - 1 : d->index - 1);
    find(*d, criteria, start, Direction::Backward);
}

bool Recordset::NoMatch() const
{
    connectionOf(*d);
    return d->noMatch;
}

Field Recordset::Fields(const QString& name)
{
    connectionOf(*d);
    const auto column = d->source.table->column(name);
    if (!column)
        raise(err::ItemNotFound, QStringLiteral("Element wurde in dieser Auflistung nicht gefunden."));
    return Field(this, *column);
}

std::vector<FieldDef> Recordset::fieldDefs() const
{
    connectionOf(*d);
    return d->source.table->fields;
}

void Recordset::AddNew()
{
    connectionOf(*d).requireWritable();
    dropEdit(*d);
    const std::size_t n = d->source.table->fields.size();
    d->buffer.assign(n, QVariant());
    d->touched.assign(n, false);
    d->mode = EditMode::AddNew;
}

void Recordset::Edit()
{
    connectionOf(*d).requireWritable();
    dropEdit(*d);
    if (!hasCurrent(*d))
        noCurrentRecord();
    d->buffer = freshRow(*d, connectionOf(*d));
    d->original = d->buffer;
    d->touched.assign(d->buffer.size(), false);
    d->mode = EditMode::Edit;
}

void Recordset::Update()
{
    store::Connection& conn = connectionOf(*d);
    conn.requireWritable();
    if (d->mode == EditMode::None)
        raise(err::UpdateWithoutEdit, QStringLiteral("Aktualisieren oder Abbrechen ohne AddNew oder Edit."));
    if (d->mode == EditMode::AddNew)
        insertRow(*d);  // joins the end of the key list; the current record stays
    else
        updateRow(*d);
    conn.noteWrite();
    dropEdit(*d);
}

void Recordset::CancelUpdate()
{
    connectionOf(*d);
    if (d->mode == EditMode::None)
        raise(err::UpdateWithoutEdit, QStringLiteral("Aktualisieren oder Abbrechen ohne AddNew oder Edit."));
    dropEdit(*d);
}

void Recordset::Delete()
{
    store::Connection& conn = connectionOf(*d);
    conn.requireWritable();
    dropEdit(*d);
    if (!hasCurrent(*d))
        noCurrentRecord();
    sqlite3_stmt* stmt = conn.statement("DELETE FROM " + d->source.table->quotedName + " WHERE rowid = ?1");
    sqlite3_bind_int64(stmt, 1, d->keys->keys[std::size_t(d->index)]);
    store::runToEnd(conn, stmt);
    conn.noteWrite();
    d->keys->markHole(std::size_t(d->index));
}

EditMode Recordset::editMode() const { return d->mode; }

// ---- Field ------------------------------------------------------------------------------

QVariant Field::Value() const
{
    Recordset::Impl& d = *rs_->d;
    connectionOf(d);
    if (d.mode != EditMode::None)
        return d.buffer[std::size_t(column_)];
    return currentRow(d).value(std::size_t(column_));
}

void Field::setValue(const QVariant& value)
{
    Recordset::Impl& d = *rs_->d;
    connectionOf(d);
    if (d.mode == EditMode::None)
        raise(err::UpdateWithoutEdit, QStringLiteral("Aktualisieren oder Abbrechen ohne AddNew oder Edit."));
    d.buffer[std::size_t(column_)] = storedValue(d.source.table->fields[std::size_t(column_)], value);
    d.touched[std::size_t(column_)] = true;
}

int Field::Size() const { return rs_->d->source.table->fields[std::size_t(column_)].Size; }

QString Field::Name() const { return rs_->d->source.table->fields[std::size_t(column_)].Name; }

QString Field::text() const
{
    const QVariant value = Value();
    return value.isValid() ? value.toString() : QString();
}

}  // namespace mk
