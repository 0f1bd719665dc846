// Printing: every card as a label into a real PDF (labels a second), the serial-letter list
// against the plain sorted SELECT of the columns it shows, and the drawing of one preview page
// (which must stay under 100 ms).

#include "bench_support.h"

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "platform/paths.h"
#include "platform/printer.h"
#include "printing/label_layout.h"
#include "printing/label_printing.h"
#include "printing/print_preview.h"
#include "printing/serial_letter_list.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>

namespace mk::bench {

namespace {

// Fonts for the PDF need a GUI application; the benchmarks run without a screen.
void guiApplication()
{
    if (QGuiApplication::instance())
        return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "merkkartelle-bench";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv);
}

struct PrintSession {
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
};

// A started session with a sheet of three by eight labels and five text lines.
std::unique_ptr<PrintSession> sheetOn(const QString& path)
{
    auto s = std::make_unique<PrintSession>();
    Merkkartelle& app = s->app;
    app.Arbeitsverzeichnis = DateiPfad(path);
    app.Datenbankdatei = DateiName(path);
    app.Kartendatenbank = Database::open(path);
    auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
    base->Sort = QStringLiteral("[Nachname]");
    app.Kartensatz = base->createDynaset();
    app.Kartensatz->MoveFirst();
    DatenInMaske(app);
    app.Hauptmaske.Selektiert.Caption = QStringLiteral("Keine Selektion");
    auto& e = app.etiquet;
    loadForm(app, e);
    e.Text1.Text = QStringLiteral("7");
    e.Text2.Text = QStringLiteral("3.7");
    e.Quantidade.Text = QStringLiteral("3");
    e.colunas.Text = QStringLiteral("8");
    e.Check4.Value = 1;
    const char* items[] = {"Vorname + Nachname", "Firma", "Strasse", "PLZ + Stadt", "Telefon"};
    for (int i = 0; i < 5; ++i)
        e.Combo1[i].Text = QString::fromLatin1(items[i]);
    e.Text11.Text = QStringLiteral("29.7");
    e.Text14.Text = QStringLiteral("21");
    e.Text9.Text = QString::number(Bogenhoehe(e));
    return s;
}

void labelsToPdf(benchmark::State& state)
{
    guiApplication();
    Session& data = session(int(state.range(0)));
    auto s = sheetOn(data.path);
    QTemporaryDir dir;
    double seconds = 0;
    long labels = 0;
    for (auto _ : state) {
        s->app.printing.setPrinter(std::make_unique<QtPrinterSurface>(s->ui, dir.filePath(QStringLiteral("alle.pdf"))));
        const Clock::time_point start = Clock::now();
        EtikettenDrucken(s->app);
        const double run = secondsSince(start);
        state.SetIterationTime(run);
        seconds += run;
        labels += s->app.Kartensatz->RecordCount();
    }
    state.counters["labels_per_s"] = double(labels) / seconds;
}

void serialLetterList(benchmark::State& state)
{
    Session& data = session(int(state.range(0)));
    auto s = sheetOn(data.path);
    s->app.mala.Option3D1[3].Value = true;  // Firma / Abteilung / Telefon
    Timings t;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        ListeAufbauen(s->app);
        const double run = secondsSince(start);
        state.SetIterationTime(run);
        t.store += run;
        t.sql += timeSql(data.db, {"SELECT Firma, Departament, Telefon, Laufendenummer FROM Adressenstamm ORDER BY Firma COLLATE NOCASE", {}},
                         true);
    }
    report(state, "Serial-letter list (Firma)", t);
}

void previewPage(benchmark::State& state)
{
    guiApplication();
    Session& data = session(int(state.range(0)));
    auto s = sheetOn(data.path);
    s->app.form4.Visible = true;
    QImage screen(1280, 800, QImage::Format_RGB32);
    double worst = 0;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        VorschauZeichnen(s->app);
        QPainter painter(&screen);
        painter.scale(1 / 15.0, 1 / 15.0);
        paintOps(painter, s->app.printing.form(QStringLiteral("form4")).ops);
        painter.end();
        const double run = secondsSince(start);
        worst = std::max(worst, run);
        state.SetIterationTime(run);
    }
    state.counters["worst_ms"] = worst * 1000;
}

const bool registered = [] {
    for (const QString& part : qEnvironmentVariable("MK_BENCH_SIZES", QStringLiteral("10000,100000,1000000"))
                                   .split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int size = part.trimmed().toInt();
        if (size <= 0)
            continue;
        benchmark::RegisterBenchmark("printing/labels_to_pdf", labelsToPdf)->Arg(size)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
        benchmark::RegisterBenchmark("printing/serial_letter_list", serialLetterList)
            ->Arg(size)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(std::max(iterationsFor(size), 2));
        benchmark::RegisterBenchmark("printing/preview_page", previewPage)->Arg(size)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
    }
    return true;
}();

}  // namespace

}  // namespace mk::bench
