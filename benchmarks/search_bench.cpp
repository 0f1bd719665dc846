// The searches through the handler table, each against the plain SQL it stands for: the field
// search to its result list, the search over all fields to Procurar (a word, and the empty
// text that lists every card), the grid and the syllable search with their DoEvents, and a
// field selection. Each run times the handlers up to the moment the result form shows.
//
// Registered for the card counts of MK_BENCH_SIZES (default 10,000, 100,000 and 1,000,000);
// its lines join the summary of the store benchmarks.

#include "bench_support.h"

#include "card/app_state.h"
#include "platform/user_interface.h"
#include "search/field_selection.h"
#include "search/full_search.h"
#include "search/grid_search.h"

#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <functional>
#include <memory>

namespace mk::bench {

namespace {

struct SearchSession {
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
    Clock::time_point shown;  // when the result form came up
};

std::unique_ptr<SearchSession> sortedBySurname(const QString& path)
{
    auto s = std::make_unique<SearchSession>();
    openSortedBySurname(s->app, path);
    // The user's part in the modal forms: the field search asks for the surname, and a result
    // form is left at once; the clock stops as it shows.
    SearchSession* raw = s.get();
    s->ui.modalLoop = [raw](const QString& form, const std::function<bool()>&) {
        Merkkartelle& a = raw->app;
        if (form == QLatin1String("Schnellsuchen")) {
            a.Schnellsuchen.Suchbegriff.Text = QStringLiteral("Schm");
            raiseEvent(a, QStringLiteral("Schnellsuchen.Command1(11)"), QStringLiteral("Click"));
            return;
        }
        raw->shown = Clock::now();
        if (form == QLatin1String("Procurar"))
            raiseEvent(a, QStringLiteral("Procurar.Command2"), QStringLiteral("Click"));
        else if (form == QLatin1String("Suchergebnis"))
            raiseEvent(a, QStringLiteral("Suchergebnis.Command1"), QStringLiteral("Click"));
        else if (form == QLatin1String("Gitter"))
            raiseEvent(a, QStringLiteral("Gitter.Command2"), QStringLiteral("Click"));
    };
    return s;
}

// Resident memory in bytes, from the kernel's view of this process.
double residentBytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> parts = statm.readAll().split(' ');
    return parts.size() > 1 ? parts[1].toDouble() * 4096 : 0;
}

using Action = std::function<void(Merkkartelle&)>;

// Times action up to the result form (or its end when none shows) against the plain SQL.
void timed(benchmark::State& state, const char* what, const Action& action, const jet::Sql& plain,
           bool untilShown = true)
{
    Session& data = session(int(state.range(0)));
    auto s = sortedBySurname(data.path);
    Timings t;
    double peak = 0;
    for (auto _ : state) {
        const double before = residentBytes();
        s->shown = {};
        const Clock::time_point start = Clock::now();
        action(s->app);
        const Clock::time_point end = untilShown && s->shown != Clock::time_point{} ? s->shown : Clock::now();
        const double seconds = std::chrono::duration<double>(end - start).count();
        peak = std::max(peak, residentBytes() - before);
        t.store += seconds;
        state.SetIterationTime(seconds);
        t.sql += timeSql(data.db, plain, true);
    }
    state.counters["added_MB"] = peak / 1e6;
    report(state, what, t);
}

jet::Sql sql(const char* text) { return {text, {}}; }

void fieldSearch(benchmark::State& state)
{
    timed(state, "Field search, surname prefix, to Suchergebnis",
          [](Merkkartelle& app) { raiseEvent(app, QStringLiteral("Hauptmaske.NachAdresseSuchen"), QStringLiteral("Click")); },
          sql("SELECT Nachname, Firma, Vorname, Telefon, Laufendenummer FROM Adressenstamm "
              "WHERE Nachname LIKE 'Schm%' ORDER BY Nachname COLLATE NOCASE"));
}

void fullSearch(benchmark::State& state)
{
    // The plain statement: the cards whose fields begin with the word, one pass per field.
    QStringList parts;
    for (const char* column : {"Firma", "Schluessel", "Vorname", "Telefon", "PLZ", "Landescod", "Land", "Strasse",
                               "Stadt", "Titel", "Nachname", "Geburtstag", "Staat", "Stadteil", "Telefax", "Telex",
                               "Departament", "Celphone", "Bemerkung", "Texto", "Bank", "BankLeitZahl",
                               "Kontonummer", "Staatsregister", "Firmenregisternummer", "Passportnummer",
                               "Postfach", "Laufendenummer", "C1"})
        parts << QStringLiteral("SELECT %1, Vorname, Nachname, Telefon, Laufendenummer FROM Adressenstamm WHERE %1 LIKE 'Schm%'")
                     .arg(QString::fromLatin1(column));
    const std::string plain = parts.join(QStringLiteral(" UNION ALL ")).toStdString();
    timed(state, "Full search of a word, to Procurar",
          [](Merkkartelle& app) {
              app.Hauptmaske.Text1.Text = QStringLiteral("Schm");
              raiseEvent(app, QStringLiteral("Hauptmaske.Command5"), QStringLiteral("Click"));
          },
          {plain, {}});
}

void fullSearchEmpty(benchmark::State& state)
{
    timed(state, "Full search, empty text, every card to Procurar",
          [](Merkkartelle& app) {
              app.Hauptmaske.Text1.Text.clear();
              raiseEvent(app, QStringLiteral("Hauptmaske.Command5"), QStringLiteral("Click"));
          },
          sql("SELECT Vorname, Nachname, Firma, Strasse, Telefon, Laufendenummer FROM Adressenstamm "
              "ORDER BY Nachname COLLATE NOCASE"));
}

void gridSearch(benchmark::State& state)
{
    timed(state, "Grid search, one pass, with DoEvents",
          [](Merkkartelle& app) {
              app.config.Check3D9.Value = 1;
              app.Hauptmaske.Text3.Text.clear();
              app.Hauptmaske.Text1.Text = QStringLiteral("mid");
              Gittersuche(app);
          },
          sql("SELECT Laufendenummer, Nachname, Vorname, Firma, PLZ, Stadt, Strasse, Telefon FROM Adressenstamm "
              "WHERE Nachname LIKE '%mid%' ORDER BY Nachname COLLATE NOCASE"));
}

void syllableSearch(benchmark::State& state)
{
    timed(state, "Syllable search in the surname, with DoEvents",
          [](Merkkartelle& app) {
              app.search.Option3D1[3].Value = true;
              app.search.Text2.Text = QStringLiteral("mid");
              raiseEvent(app, QStringLiteral("search.Command6"), QStringLiteral("Click"));
          },
          sql("SELECT Laufendenummer, Vorname, Nachname FROM Adressenstamm WHERE Nachname LIKE '%mid%' "
              "ORDER BY Nachname COLLATE NOCASE"),
          false);
}

void fieldSelection(benchmark::State& state)
{
    timed(state, "Field selection of a city, sorted",
          [](Merkkartelle& app) {
              app.Hauptmaske.Selektiert.Caption = kKeineSelektion;
              SelektionAnwenden(app, QStringLiteral("[Stadt] LIKE 'Berlin'"));
          },
          sql("SELECT rowid FROM Adressenstamm WHERE Stadt LIKE 'Berlin' ORDER BY Nachname COLLATE NOCASE"), false);
}

void registerSearches(const std::vector<int>& sizes)
{
    const std::pair<const char*, void (*)(benchmark::State&)> runs[] = {
        {"search/field", fieldSearch},          {"search/full_word", fullSearch},
        {"search/full_empty", fullSearchEmpty}, {"search/grid", gridSearch},
        {"search/syllables", syllableSearch},   {"search/selection", fieldSelection},
    };
    for (const int size : sizes)
        for (const auto& [name, run] : runs)
            benchmark::RegisterBenchmark(name, run)
                ->Arg(size)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(std::max(iterationsFor(size), 3));
}

const bool registered = forEachSize(registerSearches);

}  // namespace

}  // namespace mk::bench
