// The key lists of dynasets: which rows, in which order, chosen once when a dynaset opens;
// and the sets of rows that meet a Find criterion.

#include "platform/store_internal.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <sqlite3.h>

namespace mk::store {

// ---- reading values ---------------------------------------------------------------------

QVariant columnValue(sqlite3_stmt* stmt, int column)
{
    switch (sqlite3_column_type(stmt, column)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return QVariant(qlonglong(sqlite3_column_int64(stmt, column)));
    case SQLITE_FLOAT: return QVariant(sqlite3_column_double(stmt, column));
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char*>(sqlite3_column_blob(stmt, column)),
                          sqlite3_column_bytes(stmt, column));
    default:
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, column)),
                                 sqlite3_column_bytes(stmt, column));
    }
}

void RowCopy::take(sqlite3_stmt* stmt, int columns)
{
    bytes.clear();
    cells.resize(std::size_t(columns));
    for (int i = 0; i < columns; ++i) {
        Cell& cell = cells[std::size_t(i)];
        cell.type = sqlite3_column_type(stmt, i);
        cell.offset = std::uint32_t(bytes.size());
        switch (cell.type) {
        case SQLITE_INTEGER: {
            const sqlite3_int64 n = sqlite3_column_int64(stmt, i);
            bytes.append(reinterpret_cast<const char*>(&n), sizeof n);
            break;
        }
        case SQLITE_FLOAT: {
            const double x = sqlite3_column_double(stmt, i);
            bytes.append(reinterpret_cast<const char*>(&x), sizeof x);
            break;
        }
        case SQLITE_TEXT:
            bytes.append(reinterpret_cast<const char*>(sqlite3_column_text(stmt, i)),
                         std::size_t(sqlite3_column_bytes(stmt, i)));
            break;
        case SQLITE_BLOB:
            if (const int n = sqlite3_column_bytes(stmt, i))
                bytes.append(static_cast<const char*>(sqlite3_column_blob(stmt, i)), std::size_t(n));
            break;
        default: break;
        }
        cell.length = std::uint32_t(bytes.size() - cell.offset);
    }
}

QVariant RowCopy::value(std::size_t column) const
{
    const Cell& cell = cells[column];
    const char* data = bytes.data() + cell.offset;
    switch (cell.type) {
    case SQLITE_INTEGER: {
        sqlite3_int64 n;
        std::memcpy(&n, data, sizeof n);
        return QVariant(qlonglong(n));
    }
    case SQLITE_FLOAT: {
        double x;
        std::memcpy(&x, data, sizeof x);
        return QVariant(x);
    }
    case SQLITE_TEXT: return QString::fromUtf8(data, cell.length);
    case SQLITE_BLOB: return QByteArray(data, cell.length);
    default: return {};
    }
}

bool RowBlock::holds(long index, std::chrono::steady_clock::time_point now, std::uint64_t writes) const
{
    return index >= first && index < first + count && serial == writes && now - taken < FreshFor;
}

void runToEnd(Connection& conn, sqlite3_stmt* stmt)
{
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    }
    sqlite3_reset(stmt);
    if (rc != SQLITE_DONE)
        conn.fail(rc);
}

void appendSql(jet::Sql& a, const jet::Sql& b)
{
    a.text += b.text;
    a.params.insert(a.params.end(), b.params.begin(), b.params.end());
}

// ---- one-off statements -----------------------------------------------------------------

namespace {

class Query {
public:
    Query(Connection& conn, const jet::Sql& sql) : conn_(conn)
    {
        const int rc = sqlite3_prepare_v2(conn.handle(), sql.text.c_str(), int(sql.text.size()), &stmt_, nullptr);
        if (rc != SQLITE_OK)
            conn.fail(rc);
        jet::bindParameters(stmt_, sql.params);
    }
    ~Query() { sqlite3_finalize(stmt_); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    bool next()
    {
        const int rc = sqlite3_step(stmt_);
        if (rc == SQLITE_ROW)
            return true;
        if (rc != SQLITE_DONE)
            conn_.fail(rc);
        return false;
    }
    sqlite3_stmt* stmt() const { return stmt_; }

private:
    Connection& conn_;
    sqlite3_stmt* stmt_ = nullptr;
};

std::vector<std::int64_t> rowids(Connection& conn, const jet::Sql& sql)
{
    std::vector<std::int64_t> keys;
    Query q(conn, sql);
    while (q.next())
        keys.push_back(sqlite3_column_int64(q.stmt(), 0));
    return keys;
}

// "SELECT <what> FROM t WHERE (f1) AND (f2)", the filters translated afresh.
jet::Sql selectFrom(const Source& source, const std::string& what)
{
    jet::Sql sql{"SELECT " + what + " FROM " + source.table->quotedName, {}};
    const auto resolve = source.table->resolver();
    const auto integer = source.table->integerColumn();
    for (std::size_t i = 0; i < source.filters.size(); ++i) {
        sql.text += i == 0 ? " WHERE (" : " AND (";
        appendSql(sql, jet::toSql(*source.filters[i], resolve, integer, nextParam(sql)));
        sql.text += ')';
    }
    return sql;
}

[[noreturn]] void unknownColumn(const QString& name)
{
    raise(err::TooFewParameters, QStringLiteral("1 Parameter wurden erwartet, aber es wurden zu wenig "
                                                "Parameter übergeben. (%1)").arg(name));
}

// Sorting by a text column: the General order's byte keys are built here and sorted in
// memory, which is much faster than an SQL collation on many rows.
struct SortEntry {
    std::uint64_t prefix;  // the first eight key bytes, big-endian, for quick comparison
    std::uint32_t offset;
    std::uint32_t length;  // NullLength for a Null value
    std::int64_t rowid;
};
constexpr std::uint32_t NullLength = 0xffffffffu;

std::optional<std::vector<std::int64_t>> textSortedKeys(Connection& conn, const Source& source,
                                                        const QString& column, bool descending)
{
    std::vector<SortEntry> entries;
    std::string bytes;
    {
        jet::Sql sql = selectFrom(source, "rowid, " + quoteName(column));
        sql.text += " ORDER BY rowid";
        Query q(conn, sql);
        while (q.next()) {
            SortEntry e{0, std::uint32_t(bytes.size()), NullLength, sqlite3_column_int64(q.stmt(), 0)};
            if (sqlite3_column_type(q.stmt(), 1) != SQLITE_NULL) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(q.stmt(), 1));
                const std::size_t start = bytes.size();
                jet::appendSortKeyUtf8(text, sqlite3_column_bytes(q.stmt(), 1), bytes);
                if (bytes.size() >= NullLength)
                    return std::nullopt;  // keys too long to be held: the SQL order takes over
                unsigned char head[8] = {};
                std::memcpy(head, bytes.data() + start, std::min<std::size_t>(8, bytes.size() - start));
                e.prefix = qFromBigEndian<std::uint64_t>(head);
                e.length = std::uint32_t(bytes.size() - start);
            }
            entries.push_back(e);
        }
    }
    const char* base = bytes.data();
    // Compares keys whose prefixes are equal.
    const auto tail = [base](const SortEntry& a, const SortEntry& b) {
        const std::uint32_t n = std::min(a.length, b.length);
        if (n > 8) {
            if (const int c = std::memcmp(base + a.offset + 8, base + b.offset + 8, n - 8))
                return c;
        }
        return a.length < b.length ? -1 : (a.length > b.length ? 1 : 0);
    };
    if (!descending) {
        std::sort(entries.begin(), entries.end(), [&](const SortEntry& a, const SortEntry& b) {
            const bool an = a.length == NullLength, bn = b.length == NullLength;
            if (an != bn)
                return an;  // Null first
            if (!an) {
                if (a.prefix != b.prefix)
                    return a.prefix < b.prefix;
                if (const int c = tail(a, b))
                    return c < 0;
            }
            return a.rowid < b.rowid;
        });
    } else {
        std::sort(entries.begin(), entries.end(), [&](const SortEntry& a, const SortEntry& b) {
            const bool an = a.length == NullLength, bn = b.length == NullLength;
            if (an != bn)
                return bn;  // Null last
            if (!an) {
                if (a.prefix != b.prefix)
                    return a.prefix > b.prefix;
                if (const int c = tail(a, b))
                    return c > 0;
            }
            return a.rowid < b.rowid;
        });
    }
    std::vector<std::int64_t> keys;
    keys.reserve(entries.size());
    for (const SortEntry& e : entries)
        keys.push_back(e.rowid);
    return keys;
}

}  // namespace

std::vector<std::int64_t> selectKeys(Connection& conn, const Source& source)
{
    const TableInfo& table = *source.table;
    if (source.sort.empty()) {
        jet::Sql sql = selectFrom(source, "rowid");
        sql.text += " ORDER BY rowid";
        return rowids(conn, sql);
    }
    if (source.sort.size() == 1) {
        const jet::SortTerm& term = source.sort.front();
        if (const auto name = jet::plainColumn(*term.expr)) {
            const auto column = table.column(*name);
            if (!column)
                unknownColumn(*name);
            const FieldDef& field = table.fields[*column];
            if (field.Type != FieldType::Text && field.Type != FieldType::Memo) {
                jet::Sql sql = selectFrom(source, "rowid");
                sql.text += " ORDER BY " + quoteName(field.Name) + (term.descending ? " DESC" : "") + ", rowid";
                return rowids(conn, sql);
            }
            if (auto keys = textSortedKeys(conn, source, field.Name, term.descending))
                return std::move(*keys);
        }
    }
    jet::Sql sql = selectFrom(source, "rowid");
    sql.text += " ORDER BY ";
    appendSql(sql, jet::toSql(source.sort, table.resolver(), nextParam(sql)));
    sql.text += ", rowid";
    return rowids(conn, sql);
}

// ---- the key list -------------------------------------------------------------------------

std::shared_ptr<KeySet> newKeySet(std::vector<std::int64_t> keys)
{
    static std::uint64_t lastId = 0;
    auto set = std::make_shared<KeySet>();
    set->id = ++lastId;  // bookmarks carry it, so a foreign bookmark is known
    set->keys = std::move(keys);
    return set;
}

bool KeySet::isHole(std::size_t i) const
{
    return !holes.empty() && std::binary_search(holes.begin(), holes.end(), i);
}

void KeySet::markHole(std::size_t i)
{
    const auto at = std::lower_bound(holes.begin(), holes.end(), i);
    if (at == holes.end() || *at != i)
        holes.insert(at, i);
}

long KeySet::liveBefore(std::size_t i) const
{
    return long(i) - long(std::lower_bound(holes.begin(), holes.end(), i) - holes.begin());
}

// ---- Find ------------------------------------------------------------------------------------

namespace {

constexpr std::size_t RecentCriteria = 4;
// Below this many keys (and far fewer than the table's rows) each row is asked by itself.
constexpr std::size_t PerRowLimit = 4096;

bool contains(const MatchSet& set, std::int64_t rowid)
{
    if (!set.bits.empty() || set.sorted.empty()) {
        const auto word = std::uint64_t(rowid) >> 6;
        return rowid >= 0 && word < set.bits.size() && (set.bits[word] >> (rowid & 63)) & 1u;
    }
    return std::binary_search(set.sorted.begin(), set.sorted.end(), rowid);
}

std::int64_t highestRowid(Connection& conn, const TableInfo& table)
{
    Query q(conn, {"SELECT max(rowid) FROM " + table.quotedName, {}});
    return q.next() ? sqlite3_column_int64(q.stmt(), 0) : 0;
}

void fillWholeTable(Connection& conn, const TableInfo& table, MatchSet& set)
{
    jet::Sql sql{"SELECT rowid FROM " + table.quotedName + " WHERE (" + set.sql.text + ")", set.sql.params};
    std::vector<std::int64_t> found = rowids(conn, sql);
    std::sort(found.begin(), found.end());
    const std::int64_t top = found.empty() ? 0 : found.back();
    if (!found.empty() && found.front() >= 0 && top / 64 <= std::int64_t(found.size()) + (1 << 16)) {
        set.bits.assign(std::size_t(top / 64) + 1, 0);
        for (std::int64_t r : found)
            set.bits[std::size_t(r) >> 6] |= std::uint64_t(1) << (r & 63);
    } else {
        set.sorted = std::move(found);
    }
}

}  // namespace

// True while nothing has written since the set was taken.
bool stillValid(Connection& conn, MatchSet& set)
{
    if (set.serial != conn.writeSerial())
        return false;
    const auto now = std::chrono::steady_clock::now();
    if (now - set.checked < FreshFor)
        return true;
    if (conn.dataVersion() != set.dataVersion)
        return false;
    set.checked = now;
    return true;
}

MatchSet& matchSetFor(Connection& conn, const Source& source, KeySet& keys, const QString& criteria)
{
    for (auto it = keys.matches.begin(); it != keys.matches.end(); ++it) {
        if (it->criteria == criteria && stillValid(conn, *it)) {
            if (it != keys.matches.begin()) {
                MatchSet moved = std::move(*it);
                keys.matches.erase(it);
                keys.matches.push_front(std::move(moved));
            }
            return keys.matches.front();
        }
    }
    MatchSet set;
    set.criteria = criteria;
    set.serial = conn.writeSerial();
    set.dataVersion = conn.dataVersion();
    set.checked = std::chrono::steady_clock::now();
    set.sql = jet::toSql(*jet::parseExpression(criteria), source.table->resolver(),
                         source.table->integerColumn());
    set.perRow = keys.keys.size() < PerRowLimit
        && std::int64_t(keys.keys.size()) * 8 < highestRowid(conn, *source.table);
    if (set.perRow)
        set.answers.assign(keys.keys.size(), -1);
    else
        fillWholeTable(conn, *source.table, set);

    for (auto it = keys.matches.begin(); it != keys.matches.end();) {
        if (it->criteria == criteria)
            it = keys.matches.erase(it);
        else
            ++it;
    }
    keys.matches.push_front(std::move(set));
    if (keys.matches.size() > RecentCriteria)
        keys.matches.pop_back();
    return keys.matches.front();
}

bool matches(Connection& conn, const Source& source, KeySet& keys, MatchSet& set, std::size_t i)
{
    if (!set.perRow)
        return contains(set, keys.keys[i]);
    if (i >= set.answers.size())
        set.answers.resize(keys.keys.size(), -1);
    if (set.answers[i] < 0) {
        const std::string text = "SELECT 1 FROM " + source.table->quotedName + " WHERE rowid = ?"
            + std::to_string(set.sql.params.size() + 1) + " AND (" + set.sql.text + ")";
        sqlite3_stmt* stmt = conn.statement(text);
        jet::bindParameters(stmt, set.sql.params);
        sqlite3_bind_int64(stmt, int(set.sql.params.size() + 1), keys.keys[i]);
        const int rc = sqlite3_step(stmt);
        sqlite3_reset(stmt);
        if (rc != SQLITE_ROW && rc != SQLITE_DONE)
            conn.fail(rc);
        set.answers[i] = rc == SQLITE_ROW ? 1 : 0;
    }
    return set.answers[i] == 1;
}

}  // namespace mk::store
