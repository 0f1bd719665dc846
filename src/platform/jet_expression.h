#pragma once
// The expression language of Sort, Filter and Find criteria: parsed into a tree by our own
// parser and translated into SQL with bound parameters. No user text ever becomes SQL text.

#include "platform/runtime_error.h"

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace mk::jet {

struct Node;
using NodePtr = std::shared_ptr<const Node>;

// Parses a filter or criteria text. Raises RuntimeError(err::SyntaxInExpression, …) on a
// text it refuses; nothing is half applied. A blank text is refused too: "no filter" is the
// caller's test. Text literals, numbers, True/False and Null are values of the tree and
// become bound parameters; "a & b" is Null only when every part is Null.
NodePtr parseExpression(const QString& text);

struct SortTerm {
    NodePtr expr;  // usually a bare column
    bool descending = false;
};
// Parses a sort text: "[Nachname]", "[Numeroatual] ASC", "[A], B DESC". A blank text gives
// no terms.
std::vector<SortTerm> parseSort(const QString& text);

// If the expression is a plain column reference, its name as written (brackets removed).
std::optional<QString> plainColumn(const Node& node);

// Maps a name as written to the table's real column name, case-blind; nullopt if none.
using ColumnResolver = std::function<std::optional<QString>(const QString&)>;

struct Sql {
    std::string text;              // uses ?NNN placeholders only
    std::vector<QVariant> params;  // bound in order; an invalid QVariant binds Null
};
// Translates a tree into an SQL expression. Raises RuntimeError(err::TooFewParameters, …)
// for a name that is no column. Placeholders are numbered from firstParam, so that pieces
// can be joined into one statement: params[i] belongs to ?(firstParam + i).
Sql toSql(const Node& node, const ColumnResolver& resolve, int firstParam = 1);
// Tells, for a real column name, whether every value of the column is an integer (never
// Null, never text): an INTEGER PRIMARY KEY. With it, LEFT(col, n) = '<integer text>'
// becomes "col" = <integer>, which SQLite answers through the key.
using IntegerColumn = std::function<bool(const QString&)>;
Sql toSql(const Node& node, const ColumnResolver& resolve, const IntegerColumn& integerColumn, int firstParam = 1);
// An ORDER BY list (without the keywords) for sort terms; text orders by "JETTEXT".
Sql toSql(const std::vector<SortTerm>& sort, const ColumnResolver& resolve, int firstParam = 1);

// Binds params to ?firstParam, ?firstParam+1, …: invalid QVariant as Null, bool as 1/0,
// integers as integers, double as real, QByteArray as blob, everything else as text.
// Binds one value (an invalid QVariant binds Null), and a list of them from firstParam on.
void bindValue(sqlite3_stmt* stmt, int index, const QVariant& value);
void bindParameters(sqlite3_stmt* stmt, const std::vector<QVariant>& params, int firstParam = 1);

// Registers on a connection what the translated SQL calls: the collation "JETTEXT" and the
// functions for LIKE, LEFT, RIGHT, MID, LEN, UCASE, LCASE, TRIM and number-as-text.
void registerFunctions(sqlite3* db);

// Text semantics, also used directly by the store.
// The General order: case ignored, digits before letters, umlauts beside their base letter
// with the accent only breaking ties, ß as ss; trailing blanks ignored.
int compareText(const QString& a, const QString& b);
// A byte key whose memcmp order is compareText's order (for sorting many rows in C++);
// equal keys mean compareText gives 0.
QByteArray sortKey(const QString& text);
// The same key appended to key, for callers that reuse one buffer.
void appendSortKey(QStringView text, QByteArray& key);
// The same key for UTF-8 text as SQLite hands it out (no QString on the way).
void appendSortKeyUtf8(const char* utf8, qsizetype length, std::string& key);
// LIKE with *, ?, #, […], [!…], blind to case. The whole text must match. A range [a-z]
// goes by base letters in the General order (so it holds ä); single characters match
// ignoring case only.
bool like(const QString& text, const QString& pattern);

// A number as the expression language reads it as text: no leading blank ("123", "1.5").
QString numberAsText(double value);
QString numberAsText(qlonglong value);

}  // namespace mk::jet
