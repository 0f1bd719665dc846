// The printing forms on the screen, grabbed into pictures, and a label sheet printed through
// Qt into a real PDF file (kept beside the pictures, to be looked at).

#include "screens_fixture.h"

#include "card/mask_transfer.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "printing/label_layout.h"
#include "printing/label_printing.h"
#include "printing/print_preview.h"
#include "printing/serial_letter_list.h"

#include <QDir>
#include <QFile>
#include <QPrinterInfo>
#include <QTemporaryDir>

namespace mk::test {
namespace {

class PrintingViews : public ScreensTest {
protected:
    void SetUp() override
    {
        registerPrintingHandlers(app.handlers);
        ASSERT_TRUE(dir.isValid());
        const QString db = joinPath(dir.path(), QStringLiteral("karten.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, db);
        app.Kartendatenbank = Database::open(db);
        const char* cards[][6] = {{"Anna", "Albers", "Albers & Co", "40213", "Düsseldorf", "Königsallee 1"},
                                  {"Bernd", "Brandt", "Brandt GmbH", "50667", "Köln", "Domplatz 3"},
                                  {"Clara", "Conrad", "", "10115", "Berlin", "Invalidenstraße 7"},
                                  {"Dieter", "Dorn", "Dorn AG", "80331", "München", "Marienplatz 9"},
                                  {"Eva", "Ebert", "Ebert KG", "20095", "Hamburg", "Mönckebergstraße 2"}};
        auto rs = app.Kartendatenbank->createDynaset(QStringLiteral("Adressenstamm"));
        for (const auto& c : cards) {
            rs->AddNew();
            const char* columns[] = {"Vorname", "Nachname", "Firma", "PLZ", "Stadt", "Strasse"};
            for (int i = 0; i < 6; ++i)
                rs->Fields(QString::fromLatin1(columns[i])).setValue(QString::fromUtf8(c[i]));
            rs->Update();
        }
        auto base = app.Kartendatenbank->createDynaset(QStringLiteral("Adressenstamm"));
        base->Sort = QStringLiteral("[Nachname]");
        app.Kartensatz = base->createDynaset();
        app.Kartensatz->MoveFirst();
        DatenInMaske(app);

        auto& e = app.etiquet;
        loadForm(app, e);
        e.Text1.Text = QStringLiteral("7");
        e.Text2.Text = QStringLiteral("3.5");
        e.Text5.Text = QStringLiteral("1");
        e.Text6.Text = QStringLiteral("1.5");
        e.Quantidade.Text = QStringLiteral("2");
        e.colunas.Text = QStringLiteral("3");
        e.Check4.Value = 1;
        e.Check5.Value = 1;
        e.bordercolor.BackColor = rgb(0, 0, 160);
        const char* items[] = {"Vorname + Nachname", "Firma", "Strasse", "PLZ + Stadt", "Leer"};
        for (int i = 0; i < 5; ++i)
            e.Combo1[i].Text = QString::fromLatin1(items[i]);
        e.Text9.Text = QString::number(Bogenhoehe(e));
    }

    void save(const QString& form, const QString& name)
    {
        QWidget* window = binder.window(form);
        ASSERT_NE(window, nullptr);
        const QSize least = window->minimumSizeHint();
        EXPECT_LE(least.width(), 1280) << name.toStdString();
        EXPECT_LE(least.height(), 770) << name.toStdString();
        ASSERT_TRUE(savePicture(window, name));
    }

    QTemporaryDir dir;
};

TEST_F(PrintingViews, TheFormsAreGrabbedIntoPictures)
{
    binder.run([&] {
        showForm(app, app.etiquet);
        showForm(app, app.form4);
        VorschauZeichnen(app);
    });
    save(QStringLiteral("etiquet"), QStringLiteral("etiquet"));
    save(QStringLiteral("form4"), QStringLiteral("form4"));
    EXPECT_FALSE(app.printing.form(QStringLiteral("form4")).ops.empty());

    binder.run([&] {
        app.mala.Label14.Caption = QStringLiteral("UPDATED");
        showForm(app, app.mala);
        app.mala.Label14.Caption = QStringLiteral("NOT UPDATED");
        ListeAufbauen(app);
    });
    EXPECT_EQ(app.mala.Schnelleauswahlliste.ListCount(), 5);
    save(QStringLiteral("mala"), QStringLiteral("mala"));

    binder.run([&] {
        app.mala.Label9.Caption = QStringLiteral("DRUCK");
        showForm(app, app.malaview);
        ListenetikettenDrucken(app, true);
    });
    save(QStringLiteral("malaview"), QStringLiteral("malaview"));
    binder.run([&] { showForm(app, app.malasp); });
    save(QStringLiteral("malasp"), QStringLiteral("malasp"));
    binder.run([&] { raiseEvent(app, QStringLiteral("Hauptmaske.infoprint"), QStringLiteral("Click")); });
    save(QStringLiteral("Form6"), QStringLiteral("Form6"));
}

TEST_F(PrintingViews, LabelsOfAllCardsGoIntoARealPdf)
{
    const QString pdf = dir.filePath(QStringLiteral("etiketten.pdf"));
    app.printing.setPrinter(std::make_unique<QtPrinterSurface>(ui, pdf));
    DruckflaecheLesen(app);
    EXPECT_EQ(app.etiquet.Text11.Text, QStringLiteral("29.7"));
    binder.run([&] { EtikettenDrucken(app); });
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_GT(bytes.size(), 2000);
    QFile::remove(pictureFolder() + QStringLiteral("/etiketten.pdf"));
    QFile::copy(pdf, pictureFolder() + QStringLiteral("/etiketten.pdf"));
}

// With no printer installed, the first page offers a PDF file; a cancelled choice prints
// nothing and the next job asks again.
TEST(PrinterWithoutPrinters, OffersAPdfFileAndDropsTheJobWhenRefused)
{
    if (!QPrinterInfo::availablePrinters().isEmpty())
        GTEST_SKIP() << "a printer is installed here";
    QTemporaryDir dir;
    ScriptedUserInterface ui;
    QtPrinterSurface printer(ui);
    ui.answerSaveCancel();
    printer.Line(0, 0, 1000, 0);
    printer.Print(QStringLiteral("verworfen"));
    printer.EndDoc();
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].kind, QStringLiteral("save"));

    const QString pdf = dir.filePath(QStringLiteral("ersatz.pdf"));
    ui.answerSave(pdf);
    printer.Print(QStringLiteral("gedruckt"));
    printer.NewPage();
    printer.Print(QStringLiteral("Seite zwei"));
    printer.EndDoc();
    EXPECT_EQ(ui.boxes.size(), 2u);
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r"), 2) << "two pages";
}

}  // namespace
}  // namespace mk::test
