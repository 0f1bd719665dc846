// The desktop program: Qt with its German texts, the system clock, the Qt user interface,
// the system object with a window for each form, the start routine, the event loop.

#include "card/app_state.h"
#include "card/session.h"
#include "platform/clock.h"
#include "platform/printer.h"
#include "screens/desktop.h"
#include "screens/qt_user_interface.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Merkkartelle"));
    // The forms decide when the program ends, not the last window that closes.
    QApplication::setQuitOnLastWindowClosed(false);
    mk::installGermanTranslations(qt);

    mk::Clock clock;
    mk::QtUserInterface ui;
    mk::Merkkartelle app(ui, clock);
    app.printing.makePrinter = [&ui] { return std::make_unique<mk::QtPrinterSurface>(ui); };
    mk::Desktop desktop(app, ui);
    mk::Binder& binder = desktop.binder();
    ui.onEnded = [] { QCoreApplication::exit(0); };
    binder.lastWindowClosed = [] { QCoreApplication::exit(0); };
    binder.setTimersRunning(true);

    // End, wherever it happens, unwinds to the binder's guard and stops the loops; after
    // the start the program runs until then.
    try {
        binder.run([&app] { mk::Start(app); });
        if (app.ended)
            return 0;
        return qt.exec();
    } catch (const mk::ProgramEnded&) {
        return 0;
    }
}
