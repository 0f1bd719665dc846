#include "platform/schema.h"

#include "card/card_record.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <sqlite3.h>

namespace mk {

namespace {

FieldDef text(const char* name, int size) { return {QString::fromUtf8(name), FieldType::Text, size}; }
FieldDef counter(const char* name) { return {QString::fromUtf8(name), FieldType::Counter, 0}; }

// The card's columns as the card record declares them, in the order a card is written.
std::vector<FieldDef> cardFields()
{
    std::vector<FieldDef> f;
    for (const karte::Spalte& s : karte::kSpalten) {
        const QString name = karte::text(s.name);
        if (s.art == karte::Art::Zaehler)
            f.push_back({name, FieldType::Counter, 0});
        else if (s.art == karte::Art::Langtext)
            f.push_back({name, FieldType::Memo, 0});
        else
            f.push_back({name, FieldType::Text, s.groesse});
    }
    return f;
}

std::vector<FieldDef> telephoneFields()
{
    return {counter("Numeroatual"), text("PhoneNumber", 50), text("Name", 100),
            text("Datainicial", 20), text("Horainicial", 20), text("Datafinal", 20),
            text("Horafinal", 20)};
}

std::vector<FieldDef> globalViewFields()
{
    return {counter("Numeroatual"), text("FullPathName", 255), text("Datainicial", 20),
            text("Horainicial", 20), text("Datafinal", 20), text("Horafinal", 20)};
}

QString quoted(const QString& name) { return QLatin1Char('"') + name + QLatin1Char('"'); }

}  // namespace

const std::vector<FieldDef>& schemaOf(DatabaseKind kind)
{
    static const std::vector<FieldDef> cards = cardFields();
    static const std::vector<FieldDef> telephone = telephoneFields();
    static const std::vector<FieldDef> globalView = globalViewFields();
    switch (kind) {
    case DatabaseKind::Cards: return cards;
    case DatabaseKind::Telephone: return telephone;
    case DatabaseKind::GlobalView: return globalView;
    }
    return cards;
}

QString tableNameOf(DatabaseKind kind)
{
    switch (kind) {
    case DatabaseKind::Cards: return QStringLiteral("Adressenstamm");
    case DatabaseKind::Telephone: return QStringLiteral("Telephone");
    case DatabaseKind::GlobalView: return QStringLiteral("GlobalView");
    }
    return {};
}

QString declaredType(const FieldDef& field)
{
    switch (field.Type) {
    case FieldType::Counter: return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
    case FieldType::Long: return QStringLiteral("INTEGER");
    case FieldType::Double: return QStringLiteral("DOUBLE");
    case FieldType::Boolean: return QStringLiteral("BOOLEAN");
    case FieldType::Text: return QStringLiteral("TEXT(%1)").arg(field.Size);
    case FieldType::Memo: return QStringLiteral("LONGTEXT");
    }
    return {};
}

std::string createTableSql(DatabaseKind kind)
{
    QStringList columns;
    for (const FieldDef& field : schemaOf(kind))
        columns << quoted(field.Name) + QLatin1Char(' ') + declaredType(field);
    return (QStringLiteral("CREATE TABLE ") + quoted(tableNameOf(kind)) + QStringLiteral(" (")
            + columns.join(QStringLiteral(", ")) + QStringLiteral(")"))
        .toStdString();
}

std::string createKeyIndexSql(DatabaseKind kind)
{
    const QString table = tableNameOf(kind);
    for (const FieldDef& field : schemaOf(kind)) {
        if (field.Type == FieldType::Counter)
            return (QStringLiteral("CREATE INDEX IF NOT EXISTS ") + quoted(table + QLatin1Char('_') + field.Name)
                    + QStringLiteral(" ON ") + quoted(table) + QStringLiteral(" (") + quoted(field.Name)
                    + QStringLiteral(")"))
                .toStdString();
    }
    return {};
}

FieldDef fieldFromDeclaration(const QString& name, const QString& declared, bool primaryKey)
{
    static const QRegularExpression sized(QStringLiteral("^\\s*(?:VAR)?(?:TEXT|CHAR)\\s*\\(\\s*(\\d+)\\s*\\)"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QString type = declared.trimmed().toUpper();
    FieldDef field{name, FieldType::Memo, 0};
    if (type.startsWith(QLatin1String("INT")) && primaryKey) {
        field.Type = FieldType::Counter;
    } else if (const auto m = sized.match(declared); m.hasMatch()) {
        field.Type = FieldType::Text;
        field.Size = m.captured(1).toInt();
    } else if (type.contains(QLatin1String("TEXT")) || type.contains(QLatin1String("CHAR"))
               || type.contains(QLatin1String("CLOB")) || type.contains(QLatin1String("MEMO"))) {
        field.Type = FieldType::Memo;
    } else if (type.startsWith(QLatin1String("BOOL")) || type == QLatin1String("BIT")) {
        field.Type = FieldType::Boolean;
    } else if (type.contains(QLatin1String("INT")) || type == QLatin1String("LONG")) {
        field.Type = FieldType::Long;
    } else if (type.contains(QLatin1String("REAL")) || type.contains(QLatin1String("DOUB"))
               || type.contains(QLatin1String("FLOA"))) {
        field.Type = FieldType::Double;
    }
    return field;
}

void createEmptyDatabase(DatabaseKind kind, const QString& path)
{
    if (QFileInfo::exists(path))
        throw RuntimeError(err::FileAlreadyExists,
                           QStringLiteral("Die Datei %1 existiert bereits.").arg(path));
    // Made under a name of its own and renamed when whole: a crash half way never leaves a
    // database without its table under the real name.
    const QString partial = path + QStringLiteral(".entsteht");
    QFile::remove(partial);
    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(partial).constData(), &db,
                             SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_exec(db, createTableSql(kind).c_str(), nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK && !createKeyIndexSql(kind).empty())
        rc = sqlite3_exec(db, createKeyIndexSql(kind).c_str(), nullptr, nullptr, nullptr);
    const QString message = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString();
    sqlite3_close_v2(db);
    if (rc != SQLITE_OK || !QFile::rename(partial, path)) {
        QFile::remove(partial);
        throw RuntimeError(err::PathNotFound,
                           QStringLiteral("Die Datenbank %1 konnte nicht angelegt werden (%2).")
                               .arg(path, message));
    }
}

}  // namespace mk
