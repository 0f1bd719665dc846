// The views of the search forms: every control has its widget, the forms fit the screen, the
// result lists carry a million lines through the model without one widget item per line, a
// chosen line reaches the list box, and the forms are grabbed with results to be looked at.

#include "screens_fixture.h"

#include "screens/long_list.h"
#include "screens/widgets.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>

namespace mk::test {
namespace {

const QStringList kSearchForms{"Schnellsuchen", "Suchergebnis", "Procurar", "Gitter", "Selektierung", "search"};

class SearchViewsTest : public ScreensTest {
protected:
    void save(const QString& form)
    {
        ASSERT_TRUE(savePicture(binder.window(form), form + QStringLiteral("-filled")));
    }
};

TEST_F(SearchViewsTest, EveryControlHasItsWidgetAndEachFormFits)
{
    for (const QString& form : kSearchForms) {
        QWidget* window = binder.window(form);
        ASSERT_NE(window, nullptr) << form.toStdString();
        EXPECT_FALSE(window->property("mkGenericView").toBool()) << form.toStdString();
        // The lists' print buttons come with the printing; until then they have no widget.
        for (const ControlRef& ref : app.forms.controls(form))
            if (ref.kind != ControlKind::Timer && ref.kind != ControlKind::MenuItem && ref.name != QLatin1String("SSCommand1"))
                EXPECT_NE(binder.widget(form + u'.' + widgetName(ref)), nullptr)
                    << form.toStdString() << "." << widgetName(ref).toStdString();
        const QSize least = window->minimumSizeHint();
        EXPECT_LE(least.width(), 1280) << form.toStdString();
        EXPECT_LE(least.height(), 770) << form.toStdString();
    }
}

TEST_F(SearchViewsTest, AMillionLinesGoThroughTheModelAndAChosenLineReachesTheList)
{
    auto& liste = app.Procurar.Suchergebnisliste;
    liste.Items.reserve(1000000);
    for (int i = 0; i < 1000000; ++i)
        liste.Items.push_back(ListItem{QStringLiteral("Vorname%1   Nachname   _____   Strasse   0211").arg(i), i + 1});
    QElapsedTimer took;
    took.start();
    show(QStringLiteral("Procurar"));
    auto* view = widget<LongListView>(QStringLiteral("Procurar.Suchergebnisliste"));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->model()->rowCount(), 1000000);
    EXPECT_EQ(view->model()->index(999999, 0).data().toString(), liste.List(999999));
    // A refresh with the same lines only compares them.
    took.restart();
    binder.refresh();
    EXPECT_LT(took.elapsed(), 2000);

    int clicked = -1;
    app.handlers.on(QStringLiteral("Procurar"), QStringLiteral("Suchergebnisliste"), QStringLiteral("Click"),
                    [&](Merkkartelle& a, EventArgs&) { clicked = a.Procurar.Suchergebnisliste.ListIndex; });
    view->setCurrentIndex(view->model()->index(424242, 0));
    EXPECT_EQ(clicked, 424242);
    EXPECT_EQ(liste.ListIndex, 424242);

    binder.run([&] { liste.Clear(); liste.AddItem(QStringLiteral("Alle Datensätze")); });
    EXPECT_EQ(view->model()->rowCount(), 1);
    EXPECT_EQ(view->currentRow(), -1);
}

TEST_F(SearchViewsTest, TheFormsAreGrabbedWithResults)
{
    binder.run([&] {
        auto& s = app.Suchergebnis;
        s.Caption = QStringLiteral("Ergebniss der Suche:  MÜL...  im Feld  NACHNAME");
        s.Label1.Caption = QStringLiteral("Gefundener Text | Firma | Vorname-Nachname | Telefon");
        s.Suchergebnisliste.AddItem(QStringLiteral("Müller\tMüller & Söhne GmbH\tHans Müller\tTel.: 0211 123456"));
        s.Suchergebnisliste.AddItem(QStringLiteral("Müllenbach\tBau AG\tPetra Müllenbach\tTel.: 0221 555"));
        s.Label6.Caption = QStringLiteral("2");
        auto& p = app.Procurar;
        p.Caption = QStringLiteral("Ergebniss der Suche nach:  AN...  in allen Feldern");
        p.Label3.Caption = QStringLiteral("an");
        p.Label1.Caption = QStringLiteral("2");
        p.Suchergebnisliste.AddItem(QStringLiteral("[Firma]   Firma:   Anker AG   Anna   Adler   111"));
        p.Suchergebnisliste.AddItem(QStringLiteral("[Vorname]   Vorname:   Anna   Adler   Anker AG   111"));
        auto& g = app.Gitter;
        g.grid1.setRows(3);
        const char* heads[] = {"LFNR", "Nachname", "Vorname", "Firma", "PLZ", "Stadt", "Strasse", "Telefon"};
        for (int c = 0; c < 8; ++c) {
            g.grid1.setTextMatrix(0, c, QString::fromLatin1(heads[c]));
            g.grid1.setColWidth(c, 1300);
            g.grid1.setTextMatrix(1, c, c == 0 ? QStringLiteral("12") : QStringLiteral("Weinberg"));
            g.grid1.setTextMatrix(2, c, c == 0 ? QStringLiteral("40") : QStringLiteral("-------"));
        }
        g.Label8.Caption = QStringLiteral("2");
        g.Label5.Caption = QStringLiteral("2");
        app.Selektierung.Datenfelder.AddItem(QStringLiteral("Stadt"));
        app.Selektierung.Abfragetexte.AddItem(QStringLiteral("[Stadt] LIKE 'Köln'"));
        app.Selektierung.Label4.Caption = QStringLiteral("Stadt");
        app.Selektierung.Label5.Caption = QStringLiteral("[Stadt] LIKE 'Köln'");
        app.search.Label1.Caption = QStringLiteral("Suche beendet.");
        app.search.Label4.Caption = QStringLiteral("FIM");
        app.search.List1.AddItem(QStringLiteral("12    Willi (Weinberg ) Weinberg"));
    });
    for (const QString& form : kSearchForms) {
        show(form);
        save(form);
    }
}

}  // namespace
}  // namespace mk::test
