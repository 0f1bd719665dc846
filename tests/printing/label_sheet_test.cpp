// The label sheet: decimal rules, fitting, .ecf files, the roll arithmetic of the run over
// all cards and the one-card sheet, checked against the recording printer in twips.

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "platform/printer.h"
#include "platform/text_files.h"
#include "printing/label_layout.h"
#include "printing/label_printing.h"
#include "printing/print_preview.h"
#include "search/card_session.h"
#include "support/file_bytes.h"

#include <QDir>
#include <algorithm>
#include <gtest/gtest.h>

namespace mk::test {
namespace {

class LabelSheet : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        auto recorder = std::make_unique<RecordingSurface>(kA4HeightTwips, kA4WidthTwips);
        printer = recorder.get();
        app.printing.setPrinter(std::move(recorder));
        loadForm(app, app.etiquet);
    }

    void sheet(const char* width, const char* height, int across, int down)
    {
        auto& e = app.etiquet;
        e.Text1.Text = QString::fromLatin1(width);
        e.Text2.Text = QString::fromLatin1(height);
        e.Quantidade.Text = QString::number(across);
        e.colunas.Text = QString::number(down);
        e.Text9.Text = QString::number(Bogenhoehe(e));
    }

    void lines(std::initializer_list<const char*> items)
    {
        int i = 0;
        for (const char* item : items)
            app.etiquet.Combo1[i++].Text = QString::fromUtf8(item);
    }

    QStringList printed(const QString& kind = QStringLiteral("Print "))
    {
        QStringList out;
        for (const QString& line : printer->logLines())
            if (line.startsWith(kind))
                out << line;
        return out;
    }

    RecordingSurface* printer = nullptr;
};

TEST(LabelDecimals, ConvertsLocaleSignsAndRefusesLongTexts)
{
    QString text = QStringLiteral("7,25");
    decimalconvertor(text);
    EXPECT_EQ(text, QStringLiteral("7.25"));
    text = QStringLiteral("1a0");
    decimalconvertor(text);
    EXPECT_EQ(text, QStringLiteral("1.0"));
    text = QStringLiteral("12345678901");
    EXPECT_THROW(decimalconvertor(text), RuntimeError);
    EXPECT_EQ(text, QStringLiteral("12345678901"));

    EXPECT_EQ(cmInTwips(QStringLiteral("3")), 1701);
    EXPECT_EQ(cmInTwips(QStringLiteral("0.1")), 57);
    EXPECT_EQ(zeilenabstandInTwips(QStringLiteral("4.5")), 271);
    EXPECT_EQ(seitenmass(16838 / 567.0), QStringLiteral("29.7"));
    EXPECT_EQ(seitenmass(11906 / 567.0), QStringLiteral("21"));
}

TEST_F(LabelSheet, LengthBoxesTakeOneDecimalSignAndFitTheSheetToThePage)
{
    auto& e = app.etiquet;
    e.Text1.Text = QStringLiteral("2,5");
    Laengenfeld_Change(app, QStringLiteral("Text1"));
    EXPECT_EQ(e.Text1.Text, QStringLiteral("2.5"));
    EXPECT_EQ(e.Text1.SelStart, 3);
    e.Text1.Text = QStringLiteral("2.5,7");
    Laengenfeld_Change(app, QStringLiteral("Text1"));
    EXPECT_EQ(e.Text1.Text, QStringLiteral("2.5,"));
    e.Text2.Text = QString();
    Laengenfeld_Change(app, QStringLiteral("Text2"));
    EXPECT_EQ(e.Text2.Text, QStringLiteral("0"));

    // 10 rows of 3 cm do not fit 29.7 cm less a bottom margin of 2: the rows fall to 8.
    DruckflaecheLesen(app);
    EXPECT_EQ(e.Text11.Text, QStringLiteral("29.7"));
    e.Text2.Text = QStringLiteral("3");
    e.impborda.Text = QStringLiteral("2");
    e.colunas.Text = QStringLiteral("10");
    Mengenfeld_Change(app, false);
    EXPECT_EQ(e.colunas.Text, QStringLiteral("8"));
    EXPECT_EQ(e.HScroll1.Value, 8);
    EXPECT_EQ(e.Text9.Text, QStringLiteral("24.7"));
    EXPECT_EQ(e.Text12.Text, QStringLiteral("8"));

    // No page height to fit against: nothing is fitted, and a bottom margin over 10 is cut.
    e.Text11.Text = QStringLiteral("2");
    e.impborda.Text = QStringLiteral("12");
    e.colunas.Text = QStringLiteral("20");
    Mengenfeld_Change(app, false);
    EXPECT_EQ(e.colunas.Text, QStringLiteral("20"));
    EXPECT_EQ(e.impborda.Text, QStringLiteral("10"));
    e.colunas.Text = QStringLiteral("0");
    Mengenfeld_Change(app, false);
    EXPECT_EQ(e.colunas.Text, QStringLiteral("1"));
}

TEST_F(LabelSheet, LayoutFilesRoundTripAndShortFilesLeaveTheRestEmpty)
{
    const QString path = QDir(dir.path()).filePath(QStringLiteral("bogen.ecf"));
    EtikettendateiSchreiben(app, path);
    const QString written = QString::fromUtf8(readBytes(path));
    const QStringList lines = written.split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 46);  // 45 lines and the end of the last
    EXPECT_EQ(lines[0], QStringLiteral("\"0\""));
    EXPECT_EQ(lines[4], QStringLiteral("\"4.5\""));
    EXPECT_EQ(lines[13], QStringLiteral("1"));
    EXPECT_EQ(lines[23], QStringLiteral("16711680"));  // blue note block
    EXPECT_EQ(lines[43], QStringLiteral("\"5000\""));

    auto& e = app.etiquet;
    e.Text1.Text = QStringLiteral("7.5");
    e.Quantidade.Text = QStringLiteral("3");
    e.HScroll2.Value = 3;
    e.Check4.Value = 1;
    e.Combo1[0].Text = QStringLiteral("Vorname + Nachname");
    e.bordercolor.BackColor = rgb(10, 20, 30);
    e.Label33.Caption = QStringLiteral("4200");
    EtikettendateiSchreiben(app, path);

    ScriptedSystem other;
    other.app.etiquet.Check7.Value = 1;
    EtikettendateiLesen(other.app, path);
    const auto& o = other.app.etiquet;
    EXPECT_EQ(o.Text1.Text, QStringLiteral("7.5"));
    EXPECT_EQ(o.Quantidade.Text, QStringLiteral("3"));
    EXPECT_EQ(o.HScroll2.Value, 3);
    EXPECT_EQ(o.Check4.Value, 1);
    EXPECT_EQ(o.Combo1[0].Text, QStringLiteral("Vorname + Nachname"));
    EXPECT_EQ(o.bordercolor.BackColor, rgb(10, 20, 30));
    EXPECT_EQ(o.HScroll4.Value, 4200);
    EXPECT_EQ(o.Check7.Value, 1);  // not in the file
    EtikettendateiSchreiben(other.app, path + QStringLiteral("2"));
    EXPECT_EQ(readBytes(path + QStringLiteral("2")), readBytes(path));

    // Thirty lines: the rest become empty or 0 without a word.
    QStringList kurz = lines.mid(0, 30);
    writeBytes(path, (kurz.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8());
    EtikettendateiLesen(other.app, path);
    EXPECT_EQ(o.Text15.Text, QStringLiteral("Cel.:"));
    EXPECT_EQ(o.Combo1[0].Text, QString());
    EXPECT_EQ(o.paginas.Text, QString());
    EXPECT_EQ(o.bordercolor.BackColor, 0);
    EXPECT_TRUE(ui.boxes.empty());
}

TEST(LabelRoll, FillsColumnsTopToBottomThenTheNextColumnThenANewPage)
{
    Etikettenmasse m;
    m.W = 3969, m.H = 2268, m.GX = 57, m.GY = 57, m.spalten = 2, m.zeilen = 2;
    const double bogen = 8.1;  // two rows of 4 cm and one gap
    const long S = 4593;
    Rollenstand stand;
    std::vector<std::tuple<long, long, bool>> seen;
    for (long n = 1; n <= 6; ++n) {
        const Etikettenplatz p = naechsterPlatz(stand, m, bogen, S, n);
        seen.emplace_back(p.x, p.y, p.neueSeite);
    }
    const std::vector<std::tuple<long, long, bool>> expected = {
        {0, 0, false}, {0, 2325, false}, {4026, 0, false}, {4026, 2325, false}, {0, 0, true}, {0, 2325, false}};
    EXPECT_EQ(seen, expected);

    // A label of 0.9 cm or less: the tolerance starts the next column one row early, and the
    // arithmetic puts that label a row above the top of the sheet.
    m.H = 454;  // 0.8 cm
    m.GY = 0;
    Rollenstand kurz;
    naechsterPlatz(kurz, m, 1.6, 907, 1);
    const Etikettenplatz zweite = naechsterPlatz(kurz, m, 1.6, 907, 2);
    EXPECT_EQ(zweite.x, 3969 + 57);
    EXPECT_EQ(zweite.y, 454 - 907);
}

TEST_F(LabelSheet, RunOverAllCardsPrintsEachCardOnceWithTheCopysNumbers)
{
    card({{"Vorname", "Hans"}, {"Nachname", "Albers"}, {"Firma", "ACME"}, {"Telefon", "030111"}, {"PLZ", "12345"}, {"Stadt", "Berlin"}});
    card({{"Nachname", "Braun"}, {"Telefon", "040222"}});
    card({{"Vorname", ""}, {"Nachname", ""}, {"Firma", "Leer GmbH"}});
    reopen();
    sheet("7", "4", 1, 2);
    lines({"Vorname + Nachname", "PLZ + Stadt", "Telefon", "Land", "Leer"});
    app.etiquet.Check4.Value = 1;

    EtikettenDrucken(app);
    const QStringList log = printer->logLines();
    ASSERT_FALSE(log.isEmpty());
    EXPECT_EQ(log.last(), QStringLiteral("EndDoc"));
    EXPECT_EQ(log.count(QStringLiteral("NewPage")), 1);
    const QStringList texts = printed();
    // The page opens with an empty print; then five lines a label.
    EXPECT_EQ(texts.mid(1, 5), (QStringList{"Print 170 170 \" \"", "Print 170 441 \" \"", "Print 170 712 \"Tel.:\"",
                                            "Print 170 983 \"\"", "Print 170 1254 \"\""}));
    EXPECT_EQ(texts.mid(6, 4), (QStringList{"Print 170 2495 \"Hans Albers\"", "Print 170 2766 \"12345 Berlin\"",
                                            "Print 170 3037 \"Tel.:\"", "Print 170 3308 \"030111\""}));
    // The third label begins the second page, at the top again.
    EXPECT_EQ(texts.mid(11, 2), (QStringList{"Print 0 0 \"\"", "Print 170 170 \" Braun\""}));
    EXPECT_TRUE(log.contains(QStringLiteral("Line 0 2325 3969 2325 0")));  // the frame's bottom line of label 2
    EXPECT_FALSE(app.Message.Visible);
}

TEST_F(LabelSheet, ProgressBarMovesInStepsAndStandsStillAtExactlyAHundredCards)
{
    for (int i = 0; i < 100; ++i)
        card({{"Nachname", QStringLiteral("N%1").arg(i, 3, 10, QLatin1Char('0'))}});
    reopen();
    lines({"Nachname"});
    std::vector<int> bar;
    ui.onDoEvents = [&] { bar.push_back(app.Message.picAusgabe.Value); };
    EtikettenDrucken(app);
    EXPECT_EQ(bar.size(), 101u);
    EXPECT_EQ(*std::max_element(bar.begin(), bar.end()), 0);
    EXPECT_EQ(printer->logLines().filter(QStringLiteral("\"N0")).size(), 100);

    card({{"Nachname", QStringLiteral("N100")}});
    reopen();
    bar.clear();
    EtikettenDrucken(app);
    EXPECT_EQ(bar[10], 10);  // filled up to n at every tenth card
    EXPECT_EQ(bar[19], 10);
    EXPECT_EQ(bar.back(), 100);
    ui.onDoEvents = nullptr;
}

TEST_F(LabelSheet, CuttingLineWithoutFrameAndAnUnreadablePictureLeaveTheLabelWhole)
{
    card({{"Vorname", "Eva"}, {"Nachname", "Kurz"}, {"Telex", "/nirgendwo/bild.bmp"}, {"Bemerkung", "Notiz"}});
    reopen();
    sheet("5", "3", 1, 1);
    lines({"Vorname + Nachname", "", "", "", ""});
    app.etiquet.Check3.Value = 1;
    app.etiquet.Check7.Value = 1;
    app.etiquet.Check5.Value = 1;
    app.etiquet.Check6.Value = 1;
    app.etiquet.Text13.Text = QStringLiteral("100");
    EtikettenDrucken(app);
    const QStringList log = printer->logLines();
    EXPECT_TRUE(log.contains(QStringLiteral("Line 0 1701 13665 1701 0")));  // the run draws it without a frame
    EXPECT_TRUE(printed().contains(QStringLiteral("Print 170 170 \"Eva Kurz\"")));
    EXPECT_TRUE(printed(QStringLiteral("Picture")).isEmpty());
    // The note block: five lines down, plus its own distance in twips, in its own colour.
    EXPECT_TRUE(printed().contains(QStringLiteral("Print 170 1625 \"Notiz\"")));
    EXPECT_TRUE(log.contains(QStringLiteral("ForeColor 16711680")));
    EXPECT_TRUE(log.contains(QStringLiteral("Line 0 1575 2835 1575 16711680")));
}

TEST_F(LabelSheet, DamagedLayoutFileLoadsWithoutHarm)
{
    const QString path = QDir(dir.path()).filePath(QStringLiteral("kaputt.ecf"));
    writeBytes(path, QByteArray("\x00\xff\"7,5\r\n\"ab\"\"\r\n\x01\x02", 16));
    EXPECT_NO_THROW(EtikettendateiLesen(app, path));
    EXPECT_EQ(app.etiquet.Quantidade.Text, QStringLiteral("1"));
    EXPECT_EQ(app.etiquet.colunas.Text, QStringLiteral("1"));
    EXPECT_EQ(app.etiquet.Text5.Text.size() <= 10, true);
}

TEST_F(LabelSheet, EmptyCardFileOpensNoJob)
{
    EtikettenDrucken(app);
    EXPECT_TRUE(printer->ops.empty());
}

TEST_F(LabelSheet, OneCardSheetPrintsEveryPlaceOncePerPageAsItsOwnJob)
{
    card({{"Vorname", "Eva"}, {"Nachname", "Kurz"}, {"Telefon", "0221"}});
    reopen();
    app.Kartensatz->MoveFirst();
    DatenInMaske(app);
    sheet("5", "3", 2, 2);
    lines({"Vorname + Nachname", "Telefon", "", "", ""});
    app.etiquet.paginas.Text = QStringLiteral("2");
    app.etiquet.Check3.Value = 1;  // the cutting line needs the frame on this path

    ui.answerMsgBox(vbYes);
    EinzelseiteDrucken_Click(app);
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].prompt, QStringLiteral("Sollen 2 Seiten dieser Etiketten gedruck werden ?\r            \r"));
    const QStringList log = printer->logLines();
    EXPECT_EQ(log.count(QStringLiteral("EndDoc")), 2);
    EXPECT_EQ(printed().filter(QStringLiteral("Eva Kurz")).size(), 8);
    EXPECT_TRUE(printed().contains(QStringLiteral("Print 3062 1928 \"Eva Kurz\"")));  // the fourth place
    EXPECT_TRUE(printed().contains(QStringLiteral("Print 170 441 \"Tel.:0221\"")));
    EXPECT_TRUE(printed(QStringLiteral("Line")).isEmpty());

    app.etiquet.Check4.Value = 1;
    app.etiquet.paginas.Text = QStringLiteral("1");
    printer->ops.clear();
    ui.answerMsgBox(vbYes);
    EinzelseiteDrucken_Click(app);
    EXPECT_TRUE(printed(QStringLiteral("Line")).contains(QStringLiteral("Line 0 1701 13665 1701 0")));
}

TEST_F(LabelSheet, PreviewDrawsWhatThePaperGetsAndClampsTallLabels)
{
    card({{"Vorname", "Eva"}, {"Nachname", "Kurz"}});
    reopen();
    app.Kartensatz->MoveFirst();
    DatenInMaske(app);
    sheet("5", "3", 1, 1);
    lines({"Vorname + Nachname", "Leer", "", "", ""});
    DruckflaecheLesen(app);
    showForm(app, app.form4);
    VorschauZeichnen(app);
    const QStringList drawn = app.printing.form(QStringLiteral("form4")).logLines();
    EXPECT_EQ(drawn.first(), QStringLiteral("Cls"));
    EXPECT_TRUE(drawn.contains(QStringLiteral("Print 170 170 \"Eva Kurz\"")));
    EXPECT_TRUE(drawn.contains(QStringLiteral("Print 170 441 \" \"")));  // "Leer" shows a blank here
    EXPECT_TRUE(drawn.contains(QStringLiteral("Line 0 0 0 16840 255")));  // the printable area, in red

    // While the settings form is dragged the preview rests.
    const std::size_t drawings = app.printing.form(QStringLiteral("form4")).ops.size();
    app.etiquet.Label31.Caption = QStringLiteral("MOVENDO");
    app.etiquet.Combo1[1].Text = QStringLiteral("Vorname");
    VorschauAuffrischen(app);
    EXPECT_TRUE(app.printing.form(QStringLiteral("form4")).logLines().contains(QStringLiteral("Print 170 441 \" \"")));
    EXPECT_EQ(app.printing.form(QStringLiteral("form4")).ops.size(), drawings);
    app.etiquet.Label31.Caption.clear();

    app.etiquet.Text2.Text = QStringLiteral("30");
    VorschauZeichnen(app);
    EXPECT_EQ(app.etiquet.Text2.Text, QStringLiteral("29"));
    EXPECT_FALSE(app.form4.Visible);
}

}  // namespace
}  // namespace mk::test
