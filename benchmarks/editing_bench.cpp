// Saving a changed card through the handlers: the press of "OK" until the mask shows the
// card again (the record written, the second cursor reopened, the cursor rebuilt in the
// user's order and the card found again, the card shown), against the plain sorted SELECT
// that the rebuild of the cursor stands for.
//
// Runs on a copy of the sample file, since it writes. Choose it with
// --benchmark_filter=editing.

#include "bench_support.h"
#include "sample_cards.h"

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "platform/store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

namespace mk::bench {

namespace {

const QString Table = QStringLiteral("Adressenstamm");

// The sample file copied once per size into a file the benchmark may change.
QString beschreibbareKopie(int count)
{
    const QString quelle = sampleCardFile(count);
    const QString ziel = QDir(benchDataFolder()).filePath(QStringLiteral("editing-%1.mdb").arg(count));
    if (!QFile::exists(ziel) && !QFile::copy(quelle, ziel)) {
        std::fprintf(stderr, "cannot copy %s\n", qPrintable(quelle));
        std::abort();
    }
    return ziel;
}

// The orders measured: by surname, a text sorted in the General order, and by running
// number, the order of the first start.
const char* const kOrdnungen[] = {"Nachname", "Laufendenummer"};

// A session as the start leaves it: both cursors open, the given order, a card some way into
// the file on the mask.
struct Sitzung {
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};

    Sitzung(const QString& pfad, const QString& ordnung)
    {
        app.Arbeitsverzeichnis = QFileInfo(pfad).absolutePath();
        app.Datenbankdatei = QFileInfo(pfad).fileName();
        app.Kartendatenbank = Database::open(pfad);
        app.Zweitdatenbank = Database::open(pfad);
        app.Zweitsatz = app.Zweitdatenbank->createDynaset(Table);
        app.Sortierfeld = app.SortierfeldAlt = ordnung;
        app.Hauptmaske.Label3.Caption = QStringLiteral("dd.MM.yyyy");
        auto basis = app.Kartendatenbank->createDynaset(Table);
        basis->Sort = QLatin1Char('[') + ordnung + QLatin1Char(']');
        app.Kartensatz = basis->createDynaset();
        app.Kartensatz->MoveFirst();
        const long mitte = app.Kartensatz->RecordCount() / 2;
        for (long i = 0; i < mitte && i < 500; ++i)
            app.Kartensatz->MoveNext();
        DatenInMaske(app);
    }
};

void aenderungSpeichern(benchmark::State& state)
{
    const int count = int(state.range(0));
    const QString ordnung = QString::fromLatin1(kOrdnungen[state.range(1)]);
    const QString pfad = beschreibbareKopie(count);
    Sitzung s(pfad, ordnung);
    Merkkartelle& app = s.app;
    const DatabasePtr roh = Database::open(pfad);
    const QString nummer = app.Hauptmaske.LaufendeNummer.Caption;

    Timings t;
    int runde = 0;
    for (auto _ : state) {
        raiseEvent(app, QStringLiteral("Hauptmaske.AdresseÄndern"), QStringLiteral("Click"));
        app.Hauptmaske.feld[10].Text = (runde++ % 2) ? QStringLiteral("Köln") : QStringLiteral("Bonn");
        app.Hauptmaske.Typenliste[0].Value = 1;  // some sample cards carry no type yet

        const Clock::time_point start = Clock::now();
        raiseEvent(app, QStringLiteral("Hauptmaske.AdresseÄndern"), QStringLiteral("Click"));
        const double sekunden = secondsSince(start);
        t.store += sekunden;
        state.SetIterationTime(sekunden);

        if (app.Hauptmaske.LaufendeNummer.Caption != nummer || !s.ui.messageBoxes().empty()) {
            state.SkipWithError("the saved card was not shown again");
            break;
        }
        t.sql += timeSql(roh, {state.range(1) == 0
                                   ? "SELECT Laufendenummer FROM Adressenstamm ORDER BY Nachname COLLATE NOCASE"
                                   : "SELECT Laufendenummer FROM Adressenstamm ORDER BY Laufendenummer",
                               {}});
    }
    report(state, state.range(1) == 0 ? "save a changed card, order Nachname" : "save a changed card, order Laufendenummer", t);
}

void registrieren(const std::vector<int>& sizes)
{
    for (const int n : sizes)
        benchmark::RegisterBenchmark("editing/save_changed_card", aenderungSpeichern)
            ->ArgsProduct({{n}, {0, 1}})
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(iterationsFor(n) * 3);
}

const bool registriert = forEachSize(registrieren);

}  // namespace

}  // namespace mk::bench
