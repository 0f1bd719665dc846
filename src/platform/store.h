#pragma once
// The card store: databases and record sets with the meaning the card file was built on
// (dynasets of row keys, live values, Sort/Filter applied on the next open, bookmarks,
// Find with NoMatch), kept in SQLite files.
//
// A Null value is an invalid QVariant; an empty text is a valid, empty QString.

#include "platform/runtime_error.h"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

struct sqlite3;

namespace mk {

class Database;
class Recordset;
using DatabasePtr = std::shared_ptr<Database>;
using RecordsetPtr = std::shared_ptr<Recordset>;

enum class FieldType { Counter, Long, Double, Boolean, Text, Memo };

struct FieldDef {
    QString Name;
    FieldType Type = FieldType::Text;
    int Size = 0;  // declared length of a text column; 0 for long text and non-text columns
};

// The kinds of database file the system makes from its one schema source.
enum class DatabaseKind { Cards, Telephone, GlobalView };

// Creates an empty database of a kind at path (a file that exists is an error).
void createEmptyDatabase(DatabaseKind kind, const QString& path);
// The table definitions of the schema source, for tests and the benchmarks.
const std::vector<FieldDef>& schemaOf(DatabaseKind kind);
QString tableNameOf(DatabaseKind kind);

class Database : public std::enable_shared_from_this<Database> {
public:
    // OpenDatabase(path, exclusive, readOnly). Errors: err::FileNotFoundDb, err::FileInUse,
    // err::UnrecognizedFormat, err::JetFormat.
    static DatabasePtr open(const QString& path, bool exclusive = false, bool readOnly = false);
    // CompactDatabase: writes a compacted copy of src to dst. Refuses a src open in this
    // process (err::FileInUse) and an existing dst.
    static void compact(const QString& src, const QString& dst);

    ~Database();
    RecordsetPtr createDynaset(const QString& table);
    // BeginTrans, CommitTrans and Rollback of the workspace, for this database: the writes
    // between them reach the file together, or not at all when the program dies half way.
    void BeginTrans();
    void CommitTrans();
    void Rollback();
    std::vector<FieldDef> tableDef(const QString& table);
    void close();
    bool isOpen() const;
    bool readOnly() const;
    QString path() const;
    sqlite3* handle();  // for benchmarks that time the plain SQL a routine stands for

    struct Impl;
    std::unique_ptr<Impl> d;
private:
    Database();
};

class Recordset;

// Fields(name): a handle on one column of the current record.
class Field {
public:
    QVariant Value() const;
    void setValue(const QVariant& value);
    int Size() const;
    QString Name() const;
    bool isNull() const { return !Value().isValid(); }
    // The value as the mask shows it: Null reads as the empty text.
    QString text() const;

private:
    friend class Recordset;
    Field(Recordset* rs, int column) : rs_(rs), column_(column) {}
    Recordset* rs_;
    int column_;
};

enum class EditMode { None, Edit, AddNew };

class Recordset : public std::enable_shared_from_this<Recordset> {
public:
    ~Recordset();

    // Applied only to a record set opened afterwards from this one (createDynaset).
    QString Sort;
    QString Filter;

    RecordsetPtr createDynaset();
    RecordsetPtr clone();
    void close();

    long RecordCount() const;
    bool IsBOF() const;
    bool IsEOF() const;
    // 0-based position of the current record among the live keys; -1 without one.
    long AbsolutePosition() const;

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    QByteArray Bookmark() const;
    void setBookmark(const QByteArray& bookmark);

    void FindFirst(const QString& criteria);
    void FindNext(const QString& criteria);
    void FindPrevious(const QString& criteria);
    void FindLast(const QString& criteria);
    bool NoMatch() const;

    Field Fields(const QString& name);  // err::ItemNotFound for a column the table lacks
    std::vector<FieldDef> fieldDefs() const;

    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();
    EditMode editMode() const;

    struct Impl;
    std::unique_ptr<Impl> d;
private:
    friend class Database;
    friend class Field;
    Recordset();
};

}  // namespace mk
