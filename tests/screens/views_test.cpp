// The views: every control of a form has its widget, the main mask fits the screen, and the
// windows are grabbed into pictures under the build folder to be looked at.

#include "screens_fixture.h"

#include "screens/widgets.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QStackedWidget>

namespace mk::test {
namespace {

class ViewsTest : public ScreensTest {
protected:
    // A card as the mask shows it after a start, so that the pictures show a working mask.
    void fillSampleCard()
    {
        Hauptmaske& m = app.Hauptmaske;
        const char* values[] = {"Kunde", "Dr.", "Müller & Söhne GmbH", "Einkauf", "Müller", "Hans",
                                "Lindenstraße 12", "NRW", "Altstadt", "40213", "Düsseldorf", "0049",
                                "Deutschland", "17.05.1961", "0211 123456", "0211 123457",
                                "", "0171 9876543", "Stammkunde seit 1998", "HRB 4711", "",
                                "", "Postfach 10 20 30"};
        for (int i = 0; i <= 22; ++i)
            m.feld[i].Text = QString::fromUtf8(values[i]);
        m.Partido.Text = QStringLiteral("—");
        m.Bemerkung.Text = QStringLiteral("Rückruf erbeten wegen der Lieferung vom 3. Mai.\r\n"
                                          "Ansprechpartner im Einkauf: Frau Schulz, Durchwahl -31.");
        m.LaufendeNummer.Caption = QStringLiteral("123");
        m.datalabel.Caption = QStringLiteral("123");
        m.dataold.Caption = QStringLiteral("87");
        m.Label8.Caption = QStringLiteral("Eintrag 3 von 12 ");
        m.SortiertNach.Caption = QStringLiteral("Nachname");
        m.currentindex.Caption = QStringLiteral("5");
        m.Datum.Caption = QStringLiteral("16.05.2024");
        m.Zeit.Caption = QStringLiteral("14:22:05");
        m.recdate.Caption = QStringLiteral("02.01.2019");
        m.rectime.Caption = QStringLiteral("09:10:44");
        m.Panel3d5.Caption = QStringLiteral("10:00:00");
        m.panel3d7.Caption = QStringLiteral("Freitag, 17.05.2024");
        m.Typenliste[0].Value = 1;
        m.Typenliste[3].Value = 1;
        m.Panel3D3.Caption = QStringLiteral("Aktuellen Eintrag löschen");
        m.Label9.Caption = QStringLiteral("REPLAY ON");
        m.feldbank[0].Text = QStringLiteral("300 500 00");
        m.feldbank[1].Text = QStringLiteral("1234567890");
        m.feldbank[2].Text = QStringLiteral("Stadtsparkasse Düsseldorf");
        m.feldnum[0].Text = QStringLiteral("hans.mueller@example.de");
        m.feldnum[2].Text = QStringLiteral("www.example.de");
        m.SSCommand2.Picture = m.Image11.Picture;
        m.SSCommand5.Picture = m.Image9.Picture;
        for (int i = 1; i <= 3; ++i)
            m.prog[i].Text = QStringLiteral("/home/anna/Briefe/Mueller-%1.odt").arg(i);
    }

    void save(QWidget* window, const QString& name)
    {
        ASSERT_TRUE(savePicture(window, name)) << name.toStdString();
    }
};

TEST_F(ViewsTest, EveryControlOfTheFormsHasItsWidget)
{
    for (const QString form : {"Hauptmaske", "Message", "AboutBox", "Form3"}) {
        QWidget* window = binder.window(form);
        ASSERT_NE(window, nullptr);
        for (const ControlRef& ref : app.forms.controls(form)) {
            const QString name = widgetName(ref);
            if (ref.kind == ControlKind::Timer)
                continue;
            if (ref.kind == ControlKind::MenuItem)
                EXPECT_NE(window->findChild<QAction*>(name), nullptr) << form.toStdString() << "." << name.toStdString();
            else
                EXPECT_NE(binder.widget(form + u'.' + name), nullptr) << form.toStdString() << "." << name.toStdString();
        }
    }
}

TEST_F(ViewsTest, TheMainMaskFitsTheScreenAndShowsTheDesignCaptions)
{
    show(QStringLiteral("Hauptmaske"));
    QWidget* window = binder.window("Hauptmaske");
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), 1280);
    EXPECT_LE(least.height(), 770);  // 800 less a title bar
    EXPECT_EQ(widget<QLabel>(QStringLiteral("Hauptmaske.beschreibung(23)"))->text(), "Bild:");
    EXPECT_EQ(widget<QLabel>(QStringLiteral("Hauptmaske.beschreibung(16)"))->text(), "Notizen");
    EXPECT_EQ(window->findChild<QAction*>("dbaction")->text(), "&Datei");
    EXPECT_EQ(window->findChild<QAction*>("abrirdmb")->text(), "Datenbank öffnen...");
}

TEST_F(ViewsTest, TheWindowsAreGrabbedIntoPictures)
{
    fillSampleCard();
    show(QStringLiteral("Hauptmaske"));
    QWidget* main = binder.window("Hauptmaske");
    main->resize(1180, 760);
    binder.refresh();
    save(main, QStringLiteral("Hauptmaske"));
    main->resize(1280, 800);
    save(main, QStringLiteral("Hauptmaske-1280x800"));

    binder.run([&] { app.Hauptmaske.Conexted.Visible = true; });
    save(main, QStringLiteral("Hauptmaske-Conexted"));
    binder.run([&] {
        app.Hauptmaske.Conexted.Visible = false;
        app.Hauptmaske.Numbers.Visible = true;
    });
    save(main, QStringLiteral("Hauptmaske-Numbers"));
    binder.run([&] {
        app.Hauptmaske.Numbers.Visible = false;
        app.Hauptmaske.Bankverbindung.Visible = true;
    });
    save(main, QStringLiteral("Hauptmaske-Bankverbindung"));
    binder.run([&] {
        app.Hauptmaske.Bankverbindung.Visible = false;
        app.Hauptmaske.Morephones.Visible = true;
    });
    save(main, QStringLiteral("Hauptmaske-Morephones"));
    binder.run([&] {
        // A new card being entered while the types are named.
        Hauptmaske& m = app.Hauptmaske;
        m.Morephones.Visible = false;
        m.NeueAdresse.Caption = QStringLiteral("Speichern");
        m.NeueAdresseAbbruch.Visible = true;
        m.AdresseÄndern.Enabled = false;
        m.AdresseLöschen.Enabled = false;
        m.Label8.Caption = QStringLiteral("Neuer Eintrag 13 ");
        m.Command3D23.Picture = m.bildrecortar.Picture;
        m.Command3D24.Picture = m.bildcopy.Picture;
        m.Command3D25.Picture = m.bildpaste.Picture;
        m.Command3D13.Picture = m.bildbild.Picture;
        TextBox* names[] = {&m.Text2, &m.Text3, &m.Text4, &m.Text5, &m.Text6, &m.Text7, &m.Text8};
        const char* types[] = {"Kunde", "Lieferant", "Privat", "Verein", "Presse", "Behörde", "Sonstige"};
        for (int i = 0; i < 7; ++i) {
            names[i]->Visible = true;
            names[i]->Text = QString::fromUtf8(types[i]);
        }
        m.Command6.Visible = true;
        m.Command2.Visible = true;
    });
    save(main, QStringLiteral("Hauptmaske-Neu"));
    binder.run([&] { app.Hauptmaske.Bildschutz.Visible = true; });
    save(main, QStringLiteral("Hauptmaske-Bildschutz"));
    binder.run([&] { app.Hauptmaske.Bildschutz.Visible = false; });

    app.Message.Label1.Caption = QStringLiteral("Das Feld PLZ: verfügt nur über 10 Schriftzeichen");
    app.Message.Label1.ForeColor = colour::Red;
    show(QStringLiteral("Message"));
    save(binder.window("Message"), QStringLiteral("Message"));

    AboutBox& about = app.AboutBox;
    about.Label7.Caption = QStringLiteral("merkkartelle.mdb");
    about.Label7.ForeColor = colour::Red;
    about.Label10.Caption = QStringLiteral("/home/anna/Karten");
    about.Label9.Caption = QStringLiteral("Adressenstamm");
    about.Label5.Width = 4000;
    about.Label6.Caption = QStringLiteral("Texteinstellungen werden geladen...");
    show(QStringLiteral("AboutBox"));
    save(binder.window("AboutBox"), QStringLiteral("AboutBox"));

    app.Form3.Option3D1[5].Value = true;
    show(QStringLiteral("Form3"));
    save(binder.window("Form3"), QStringLiteral("Form3"));
}

TEST_F(ViewsTest, EveryOtherFormWithAViewOfItsOwnIsGrabbed)
{
    const QStringList done{"Hauptmaske", "Message", "AboutBox", "Form3"};
    for (const QString& form : app.forms.formNames()) {
        QWidget* window = binder.window(form);
        if (window->property("mkGenericView").toBool() || done.contains(form))
            continue;
        show(form);
        save(window, form);
    }
}

TEST_F(ViewsTest, FormsWithoutAViewOfTheirOwnShowTheirControlsWhereTheStatePutsThem)
{
    for (const QString& form : app.forms.formNames()) {
        QWidget* window = binder.window(form);
        if (!window->property("mkGenericView").toBool())
            continue;
        show(form);
        for (const ControlRef& ref : app.forms.controls(form)) {
            QWidget* w = binder.widget(form + u'.' + widgetName(ref));
            if (!w || !ref.control->Visible)
                continue;
            EXPECT_EQ(w->geometry().topLeft(), QPoint(ref.control->Left / 15, ref.control->Top / 15))
                << form.toStdString() << "." << widgetName(ref).toStdString();
        }
        save(window, QStringLiteral("generic-") + form);
    }
}

}  // namespace
}  // namespace mk::test
