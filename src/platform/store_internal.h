#pragma once
// Inside the store: the SQLite connection shared by a database and its record sets, the
// key lists of dynasets, and the helpers that build them. Nothing outside store*.cpp,
// recordset.cpp and dynaset_keys.cpp includes this.

#include "platform/jet_expression.h"
#include "platform/store.h"

#include <QHash>
#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3_stmt;

namespace mk::store {

// Error numbers of the store that the rest of the system does not test for.
constexpr int EngineError = 3000;
constexpr int FieldNotUpdatable = 3164;
constexpr int ConversionError = 3421;

[[noreturn]] void raise(int number, const QString& description);

// Counts the writes of this process to one file, through any of its connections; cached
// row values and Find matches are valid only for the count they were taken at. Writes to
// another file leave them valid.
std::shared_ptr<std::uint64_t> writeCounter(const QString& canonicalPath);
// How long a cache is trusted against writes of other processes before it is checked, as
// the old engine refreshed its pages after a while.
constexpr auto FreshFor = std::chrono::milliseconds(100);

struct TableInfo {
    QString name;  // as the file spells it
    std::vector<FieldDef> fields;
    QHash<QString, int> byFoldedName;
    QHash<QString, int> byName;  // as declared: most callers spell a column so, and skip the folding
    std::string quotedName;
    std::string columnList;  // every column, quoted, in the table's order

    std::optional<int> column(const QString& name) const;
    jet::ColumnResolver resolver() const;
    // True for the INTEGER PRIMARY KEY (the counter), whose values are always integers.
    jet::IntegerColumn integerColumn() const;
};

struct Connection {
    sqlite3* db = nullptr;
    QString path;  // canonical
    bool readOnly = false;
    bool exclusive = false;
    bool held = false;  // holds the file against other processes until destroyed
    std::unordered_map<std::string, sqlite3_stmt*> statements;
    std::map<QString, std::shared_ptr<const TableInfo>> tables;
    std::shared_ptr<std::uint64_t> writes = std::make_shared<std::uint64_t>(1);  // shared per file
    std::uint64_t writeSerial() const { return *writes; }
    void noteWrite() { ++*writes; }

    ~Connection();
    void close();
    sqlite3* handle() const;  // raises ObjectClosed on a closed connection
    // A prepared statement kept for the connection's lifetime, reset and unbound.
    sqlite3_stmt* statement(const std::string& sql);
    std::shared_ptr<const TableInfo> table(const QString& name);
    [[noreturn]] void fail(int rc) const;
    void requireWritable() const;
    // Changes when another connection (of any process) has written to the file.
    std::int64_t dataVersion();
};

std::string quoteName(const QString& name);
// Runs a statement to its end, raising on an error.
void runToEnd(Connection& conn, sqlite3_stmt* stmt);
QVariant columnValue(sqlite3_stmt* stmt, int column);
// Appends b, translated to number its placeholders from nextParam(a), to a.
void appendSql(jet::Sql& a, const jet::Sql& b);
inline int nextParam(const jet::Sql& sql) { return int(sql.params.size()) + 1; }

// One row as SQLite gave it; a value becomes a QVariant only when its field is read.
struct RowCopy {
    struct Cell {
        std::uint32_t offset;
        std::uint32_t length;
        int type;
    };
    std::string bytes;
    std::vector<Cell> cells;

    void take(sqlite3_stmt* stmt, int columns);
    QVariant value(std::size_t column) const;
};

// Rows near the current one, read in one go. A walk reads rows in blocks that grow while
// it goes on; a block holds until the next write in this process, and for FreshFor only
// against writes of other processes.
struct RowBlock {
    long first = 0;
    long count = 0;
    std::vector<RowCopy> rows;
    std::vector<char> present;
    std::uint64_t serial = 0;
    std::chrono::steady_clock::time_point taken;

    bool holds(long index, std::chrono::steady_clock::time_point now, std::uint64_t writes) const;
};

// Where a dynaset's rows come from: a table, the filters in force, and the order.
struct Source {
    std::shared_ptr<const TableInfo> table;
    std::vector<jet::NodePtr> filters;
    std::vector<jet::SortTerm> sort;  // empty: the table's own order
};

// The rows that meet one Find criterion, taken at one write count.
struct MatchSet {
    QString criteria;
    std::uint64_t serial = 0;
    bool perRow = false;  // small key lists: each row is asked when the walk reaches it
    jet::Sql sql;         // perRow: the criterion for "SELECT 1 ... WHERE rowid = ?"
    std::vector<std::uint64_t> bits;
    std::vector<std::int64_t> sorted;
    std::vector<std::int8_t> answers;  // perRow: -1 not asked, 0 no, 1 yes; by key index
    std::int64_t dataVersion = 0;      // of the file, when the set was taken
    std::chrono::steady_clock::time_point checked;
};

// The ordered row keys of a dynaset, shared by the dynaset and its clones.
struct KeySet {
    std::uint64_t id = 0;
    std::vector<std::int64_t> keys;
    std::vector<std::size_t> holes;  // indexes of rows deleted through this key list, sorted
    std::deque<MatchSet> matches;    // the latest Find criteria

    bool isHole(std::size_t i) const;
    void markHole(std::size_t i);
    long live() const { return long(keys.size() - holes.size()); }
    // Count of live rows before index i.
    long liveBefore(std::size_t i) const;
};

std::shared_ptr<KeySet> newKeySet(std::vector<std::int64_t> keys);
std::vector<std::int64_t> selectKeys(Connection& conn, const Source& source);
// True when the row at index i of the key list meets the criterion.
bool matches(Connection& conn, const Source& source, KeySet& keys, MatchSet& set, std::size_t i);
MatchSet& matchSetFor(Connection& conn, const Source& source, KeySet& keys, const QString& criteria);

}  // namespace mk::store

namespace mk {

struct Database::Impl {
    std::shared_ptr<store::Connection> conn;
};

struct Recordset::Impl {
    std::shared_ptr<store::Connection> conn;
    store::Source source;
    std::shared_ptr<store::KeySet> keys;
    bool closed = false;

    // Position: an index into the key list, or one of the edges.
    long index = -1;
    bool bof = true;
    bool eof = true;
    bool noMatch = false;

    // Values of the current row and its neighbours.
    store::RowBlock block;
    long lastRead = -1;

    EditMode mode = EditMode::None;
    std::vector<QVariant> buffer;
    std::vector<bool> touched;
    // The row as it was read when Edit began: Update refuses to write over a change another
    // program made since.
    std::vector<QVariant> original;
    // The INSERT of the last AddNew and the columns it wrote: a run of cards that fill the
    // same columns builds it once.
    std::vector<bool> insertColumns;
    std::string insertSql;

    void placeAtFirst();
};

}  // namespace mk
