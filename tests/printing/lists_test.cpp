// The serial-letter and birthday lists: which cards, in which order, with which columns;
// the card print's lines.

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "platform/printer.h"
#include "printing/birthday_list.h"
#include "printing/card_printing.h"
#include "printing/serial_letter_list.h"
#include "search/card_session.h"

#include <gtest/gtest.h>

namespace mk::test {
namespace {

class Lists : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        app.Hauptmaske.Selektiert.Caption = QStringLiteral("Keine Selektion");
        app.config.Text12.Text = QStringLiteral("6");
        app.config.Text13.Text = QStringLiteral("0");
        app.config.Text14.Text = QStringLiteral("4");
        app.config.Text8.Text = QStringLiteral(".");
        loadForm(app, app.mala);
    }

    QStringList lines(const ListBox& list)
    {
        QStringList out;
        for (int i = 0; i < list.ListCount(); ++i)
            out << list.List(i);
        return out;
    }
};

TEST(ListColumns, CutLongTextsAndPadShortOnes)
{
    EXPECT_EQ(spaltenText(QStringLiteral("Müller-Lüdenscheidt"), 6, QStringLiteral(" ")), QStringLiteral("Müller"));
    EXPECT_EQ(spaltenText(QStringLiteral("Eva"), 6, QStringLiteral("_")), QStringLiteral("Eva___"));
    EXPECT_EQ(spaltenText(QStringLiteral("Eva"), 3, QStringLiteral("_")), QStringLiteral("Eva"));
    EXPECT_EQ(listenSortierspalte(13), QStringLiteral("Land"));
    EXPECT_EQ(listenLayout(25), QStringLiteral("Inscrição estadual / Firma / Telefon"));
    EXPECT_TRUE(listenSortierspalte(18).isEmpty());
}

TEST_F(Lists, SerialLetterListSortsByTheOptionAndMarksCardsWithoutCompany)
{
    card({{"Vorname", "Hans"}, {"Nachname", "Zander"}, {"Firma", "ACME Maschinenbau"}, {"Telefon", "030"}, {"Typ", "1000000"}});
    card({{"Vorname", "Eva"}, {"Nachname", "Abel"}, {"Firma", QVariant()}, {"Typ", "0100000"}});
    card({{"Vorname", "Otto"}, {"Nachname", "Meier"}, {"Firma", "Beta"}, {"Telefon", "0221"}, {"Typ", "1000000"}});
    reopen();
    app.mala.Option3D1[3].Value = true;  // Firma / Abteilung / Telefon
    ListeAufbauen(app);
    // Nulls first in an ascending sort: the card without a company has no row before it.
    EXPECT_EQ(lines(app.mala.Schnelleauswahlliste),
              (QStringList{"\t\t <<<  >>>", "ACME M\t....................\t030.",
                           "Beta..\t....................\t0221"}));
    EXPECT_EQ(app.mala.Schnelleauswahlliste.ItemData(2), 3);
    EXPECT_EQ(app.mala.Label14.Caption, QStringLiteral("UPDATED"));
    EXPECT_EQ(app.mala.Label3.Caption, QStringLiteral("3"));

    app.mala.AZCHECK.Value = true;  // Z to A: the company-less card takes the row before it
    ListeAufbauen(app);
    EXPECT_EQ(lines(app.mala.Schnelleauswahlliste).last(), QStringLiteral("ACME M\t....................\t030. <<<  >>>"));

    app.mala.AZCHECK.Value = false;
    app.mala.Option3D1[3].Value = false;
    app.mala.Option3D1[5].Value = true;
    app.mala.ComboTypenliste.select(0);  // type 1 only
    ListeAufbauen(app);
    EXPECT_EQ(lines(app.mala.Schnelleauswahlliste),
              (QStringList{"Meier.\tOtto................\t ...", "Zander\tHans................\t ..."}));
}

TEST_F(Lists, ListWithoutDatabaseSaysSo)
{
    app.Kartensatz.reset();
    app.Kartendatenbank.reset();
    ListeAufbauen(app);
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].prompt, QStringLiteral("Keine Datenbank geladen"));
}

TEST_F(Lists, BirthdayListMatchesMonthDayOrYearOfTheStoredText)
{
    card({{"Vorname", "Anna"}, {"Nachname", "Adler"}, {"Firma", "A"}, {"Geburtstag", "03.11.1970"}, {"Titel", "Dr."}});
    card({{"Vorname", "Bert"}, {"Nachname", "Bach"}, {"Firma", QVariant()}, {"Geburtstag", "17.11.1982"}});
    card({{"Vorname", "Cora"}, {"Nachname", "Cramer"}, {"Firma", "C"}, {"Geburtstag", "03.05.1970"}});
    card({{"Vorname", "Dora"}, {"Nachname", "Dorn"}, {"Firma", "D"}, {"Geburtstag", ""}});
    reopen();
    loadForm(app, app.malasp);
    auto& f = app.malasp;
    EXPECT_EQ(f.Frame3D2.Caption, QStringLiteral("Systemdatum: 05-17-2024 (Monat/Tag/Jahr) "));
    EXPECT_EQ(f.Text2.Text, QStringLiteral("17"));

    f.Combo1.select(10);
    raiseEvent(app, QStringLiteral("malasp.Combo1"), QStringLiteral("Click"));
    EXPECT_EQ(f.Text1.Text, QStringLiteral("11"));  // "Novenber"
    raiseEvent(app, QStringLiteral("malasp.Command2"), QStringLiteral("Click"));
    EXPECT_EQ(app.GeburtstagFilter, QStringLiteral("[Geburtstag] like '???11") + QStringLiteral("?????") + QLatin1Char('\''));
    EXPECT_EQ(lines(f.Schnelleauswahlliste),
              (QStringList{"03.11.\tAnna Adler..........\tDr. ", "03.11.\tAnna Adler..........\tDr.  <<< Firma fehlt >>>"}));

    f.Text1.Text.clear();
    f.Text2.Text = QStringLiteral("03");
    raiseEvent(app, QStringLiteral("malasp.Command5"), QStringLiteral("Click"));
    EXPECT_EQ(f.Text1.Text, QStringLiteral("??"));
    EXPECT_EQ(f.Schnelleauswahlliste.ListCount(), 2);

    f.Text3.Text = QStringLiteral("1982");
    raiseEvent(app, QStringLiteral("malasp.Command6"), QStringLiteral("Click"));
    EXPECT_EQ(f.Schnelleauswahlliste.ListCount(), 1);
}

TEST_F(Lists, CardPrintLeavesOutEmptyFieldsAndTheOptionalBlocks)
{
    auto recorder = std::make_unique<RecordingSurface>(kA4HeightTwips, kA4WidthTwips);
    RecordingSurface* printer = recorder.get();
    app.printing.setPrinter(std::move(recorder));
    card({{"Vorname", "Eva"}, {"Nachname", "Kurz"}, {"Bemerkung", "Ruft abends an"}});
    reopen();
    app.Kartensatz->MoveFirst();
    DatenInMaske(app);
    app.Aform.FeldA[2].Text = QStringLiteral("Hans Albers");

    const auto printedTexts = [&] {
        QStringList texts;
        for (const PrintOp& op : printer->ops)
            if (op.kind == PrintOp::Kind::Text && !op.text.isEmpty())
                texts << op.text;
        return texts;
    };
    ui.answerMsgBox(vbYes);
    KarteDrucken(app);
    EXPECT_EQ(ui.boxes[0].prompt, QStringLiteral("Atuelle Seite Drucken ?"));
    EXPECT_EQ(printedTexts(), (QStringList{app.Hauptmaske.beschreibung[4].Caption + QStringLiteral("\tKurz"),
                                           app.Hauptmaske.beschreibung[5].Caption + QStringLiteral("\tEva")}));

    printer->ops.clear();
    app.Form6.impinf.Value = 1;
    app.Form6.Impsoc.Value = 1;
    ui.answerMsgBox(vbYes);
    KarteDrucken(app);
    const QStringList texts = printedTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral("02. \tHans Albers")));
    EXPECT_EQ(texts.last(), QStringLiteral("Ruft abends an"));
    EXPECT_EQ(printer->ops.back().kind, PrintOp::Kind::EndDoc);
}

}  // namespace
}  // namespace mk::test
