#include "bench_support.h"

#include "card/app_state.h"
#include "platform/paths.h"
#include "sample_cards.h"

#include <QFile>
#include <cstdio>
#include <map>
#include <sqlite3.h>
#include <string>

namespace mk::bench {

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void openSortedBySurname(Merkkartelle& app, const QString& path)
{
    app.Arbeitsverzeichnis = DateiPfad(path);
    app.Datenbankdatei = DateiName(path);
    app.Tabellenname = QStringLiteral("Adressenstamm");
    app.Sortierfeld = QStringLiteral("Nachname");
    app.Kartendatenbank = Database::open(path);
    auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
    base->Sort = QStringLiteral("[Nachname]");
    app.Kartensatz = base->createDynaset();
}

Session& session(int count)
{
    static auto* sessions = new std::map<int, Session>;  // kept open to the end of the process
    auto it = sessions->find(count);
    if (it != sessions->end())
        return it->second;
    Session s;
    s.path = sampleCardFile(count);
    s.db = Database::open(s.path);
    timeSql(s.db, {"SELECT max(length(Nachname)), max(length(Bemerkung)), count(*) FROM Adressenstamm", {}});
    return sessions->emplace(count, std::move(s)).first->second;
}

namespace {

void bind(sqlite3_stmt* stmt, const std::vector<QVariant>& params)
{
    for (std::size_t i = 0; i < params.size(); ++i) {
        const QVariant& v = params[i];
        const int index = int(i + 1);
        if (!v.isValid())
            sqlite3_bind_null(stmt, index);
        else if (v.typeId() == QMetaType::Int || v.typeId() == QMetaType::LongLong)
            sqlite3_bind_int64(stmt, index, v.toLongLong());
        else if (v.typeId() == QMetaType::Double)
            sqlite3_bind_double(stmt, index, v.toDouble());
        else {
            const QByteArray text = v.toString().toUtf8();
            sqlite3_bind_text(stmt, index, text.constData(), int(text.size()), SQLITE_TRANSIENT);
        }
    }
}

struct Line {
    std::string name;
    long long size;
    Timings per;
};
std::vector<Line>& lines()
{
    static std::vector<Line> all;
    return all;
}

}  // namespace

double timeSql(const DatabasePtr& db, const jet::Sql& sql, bool readText)
{
    const Clock::time_point start = Clock::now();
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db->handle(), sql.text.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "SQL refused: %s: %s\n", sql.text.c_str(), sqlite3_errmsg(db->handle()));
        std::abort();
    }
    bind(stmt, sql.params);
    std::size_t bytes = 0;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        if (readText) {
            benchmark::DoNotOptimize(sqlite3_column_text(stmt, 0));
            bytes += std::size_t(sqlite3_column_bytes(stmt, 0));
        }
    }
    sqlite3_finalize(stmt);
    benchmark::DoNotOptimize(bytes);
    return secondsSince(start);
}

jet::Sql translatedWhere(const DatabasePtr& db, const QString& criterion)
{
    const auto defs = db->tableDef(QStringLiteral("Adressenstamm"));
    const jet::ColumnResolver resolve = [&defs](const QString& name) -> std::optional<QString> {
        for (const FieldDef& f : defs)
            if (f.Name.compare(name, Qt::CaseInsensitive) == 0)
                return f.Name;
        return std::nullopt;
    };
    jet::Sql where = jet::toSql(*jet::parseExpression(criterion), resolve);
    where.text = "SELECT rowid FROM Adressenstamm WHERE (" + where.text + ")";
    return where;
}

void report(benchmark::State& state, const char* what, const Timings& t)
{
    const double n = double(state.iterations());
    state.counters["sql_ms"] = t.sql * 1000 / n;
    state.counters["ratio"] = t.sql > 0 ? t.store / t.sql : 0;
    if (t.native > 0) {
        state.counters["native_ms"] = t.native * 1000 / n;
        state.counters["ratio_native"] = t.store / t.native;
    }
    lines().push_back({what, state.range(0), {t.store / n, t.sql / n, t.native / n}});
}

void printSummary()
{
    std::printf("\nStore against plain SQL (time per run, ratio = store / SQL):\n");
    std::printf("%-52s %9s %11s %11s %7s %13s\n", "", "cards", "store ms", "SQL ms", "ratio", "ratio native");
    for (const Line& l : lines()) {
        std::printf("%-52s %9lld %11.1f %11.1f %7.2f", l.name.c_str(), l.size, l.per.store * 1000, l.per.sql * 1000,
                    l.per.store / l.per.sql);
        if (l.per.native > 0)
            std::printf(" %13.2f", l.per.store / l.per.native);
        std::printf("\n");
    }
}

namespace {
std::vector<Registration>& registrations()
{
    static auto* all = new std::vector<Registration>;
    return *all;
}
}  // namespace

bool forEachSize(Registration registration)
{
    registrations().push_back(registration);
    return true;
}

void registerAll(const std::vector<int>& sizes)
{
    for (Registration r : registrations())
        r(sizes);
}

int iterationsFor(int size)
{
    if (size <= 20000)
        return 10;
    return size <= 200000 ? 3 : 1;
}

}  // namespace mk::bench
