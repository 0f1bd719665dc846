// Finding cards where the driver scripts cannot look: the counter of the grid search while
// it runs, the walks' edges (long texts, the cut of the result lines, a read-only file), and
// the conditions the searches build.

#include "search/field_selection.h"
#include "search/full_search.h"
#include "search/grid_search.h"
#include "search/quick_search.h"
#include "search/search_fields.h"
#include "search/syllable_search.h"

#include "card/card_cursor.h"
#include "card_session.h"

#include <QSet>

namespace mk {
namespace {

using test::CardSession;

TEST(SearchConditions, PrefixAndFieldTable)
{
    // The length carries the blank a positive number has in front.
    EXPECT_EQ(Praefixbedingung(QStringLiteral("[Firma]"), QStringLiteral("Bau")), QStringLiteral("LEFT([Firma], 3) = 'Bau'"));
    EXPECT_EQ(Suchfeldspalte(16), QStringLiteral("[Telex]"));
    EXPECT_EQ(Suchfeldueberschrift(20), QStringLiteral("Valor:"));
    EXPECT_EQ(Suchfeldspalte(24), QStringLiteral("[Firmenregisternummer]"));
    EXPECT_EQ(Volltextspalte(24), QStringLiteral("[Staatsregister]"));
    EXPECT_EQ(Volltextspalte(25), QStringLiteral("[Firmenregisternummer]"));
    EXPECT_EQ(Volltextwert(16), QStringLiteral("Bemerkung"));
    EXPECT_EQ(Suchfeldspalte(0), QString());
    EXPECT_EQ(Suchfeldspalte(30), QString());
}

TEST(SearchConditions, SyllablesIgnoreCaseAndWildcards)
{
    EXPECT_TRUE(SilbeEnthalten(QStringLiteral("Weinberg"), QStringLiteral("INBE")));
    EXPECT_FALSE(SilbeEnthalten(QStringLiteral("abc"), QStringLiteral("a*")));
    EXPECT_FALSE(SilbeEnthalten(QStringLiteral("abc"), QStringLiteral("abcd")));
    EXPECT_FALSE(SilbeEnthalten(QStringLiteral("abc"), QString()));
    EXPECT_TRUE(SilbeEnthalten(QStringLiteral("a*c"), QStringLiteral("*")));
}

class GridCounter : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        // One cursor writes them all: a cursor per card would cost a commit each.
        auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        for (int i = 0; i < 205; ++i) {
            rs->AddNew();
            rs->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Berg%1").arg(i));
            rs->Update();
        }
        reopen();
        app.config.Check3D9.Value = 1;
        app.Hauptmaske.Text1.Text = QStringLiteral("berg");
        app.Hauptmaske.Text3.Text.clear();  // one pass
    }
};

// Both in one: the 205 cards cost a commit each.
TEST_F(GridCounter, RedrawsAtEachHitUpToAHundredThenAtEachHundredAndStopKeepsTheRowsSoFar)
{
    // What the counter shows each time the walk lets other events in (before hit n+1).
    std::vector<QString> gesehen;
    ui.onDoEvents = [&] { gesehen.push_back(app.Gitter.Label8.Caption); };
    Gittersuche(app);
    ASSERT_EQ(gesehen.size(), 205u);
    EXPECT_EQ(gesehen[100], QStringLiteral("100"));
    EXPECT_EQ(gesehen[101], QStringLiteral("100"));  // hit 101 leaves it
    EXPECT_EQ(gesehen[199], QStringLiteral("100"));
    EXPECT_EQ(gesehen[200], QStringLiteral("200"));
    EXPECT_EQ(app.Gitter.Label8.Caption, QStringLiteral("205"));
    EXPECT_EQ(app.Gitter.grid1.rows(), 206);
    // The clone was searched: the cursor of the mask did not move.
    EXPECT_EQ(kartensatz(app).AbsolutePosition(), 0);

    const int vorher = ui.doEventsCalls;
    ui.onDoEvents = [&] {
        if (ui.doEventsCalls - vorher == 51)
            raiseEvent(app, QStringLiteral("Gitter.Command3"), QStringLiteral("Click"));
    };
    Gittersuche(app);
    EXPECT_EQ(app.Gitter.Label8.Caption, QStringLiteral("50"));
    EXPECT_EQ(app.Gitter.grid1.rows(), 51);
    EXPECT_FALSE(app.Gitter.Command3.Visible);
}

class ResultLines : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        card({{"Nachname", "Müller-Lüdenscheidt"}, {"Vorname", "Anna"}, {"Firma", "Sehr lange Firmenbezeichnung AG"},
              {"Telefon", "0221"}});
        card({{"Nachname", "Müller"}, {"Vorname", QVariant()}, {"Firma", QVariant()}});
        reopen();
        app.config.Text12.Text = QStringLiteral("8");
        app.config.Text13.Text = QStringLiteral("0");
        app.config.Text14.Text = QStringLiteral("5");
        app.config.Text8.Text = QStringLiteral("~");
        app.Suchfeld = 11;
        app.Suchkriterium = Praefixbedingung(Suchfeldspalte(11), QStringLiteral("müller"));
    }
};

TEST_F(ResultLines, CutToTheLengthsOfTheSettingsWithTheirMark)
{
    Suchergebnis_Activate(app);
    const auto& liste = app.Suchergebnis.Suchergebnisliste;
    ASSERT_EQ(liste.ListCount(), 2);
    // A width of 0 means 20, as for the serial-letter list.
    EXPECT_EQ(liste.List(0), QStringLiteral("Müller\t\t Müll~\tTel.: "));
    EXPECT_EQ(liste.List(1), QStringLiteral("Müller-L~\tSehr lange Firmenbez~\tAnna ~\tTel.: 0221"));
    EXPECT_EQ(app.Suchergebnis.Label6.Caption, QStringLiteral("2"));
}

class Syllables : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        const QVariant namen[] = {QStringLiteral("a*b"), QStringLiteral("O'Neil"), QStringLiteral("[x] #1?"),
                                  QStringLiteral("Straße"), QStringLiteral("Weinberg"), QVariant(), QStringLiteral("ab")};
        for (const QVariant& name : namen)
            card({{"Nachname", name}, {"Vorname", "V"}});
        reopen();
        raiseEvent(app, QStringLiteral("Hauptmaske.menusilabas"), QStringLiteral("Click"));
    }
    // The numbers the walk lists for a text in the surname.
    QStringList gefunden(const QString& text)
    {
        app.search.Text2.Text = text;
        search_Command6_Click(app);
        QStringList nummern;
        for (const ListItem& zeile : app.search.List1.Items)
            nummern << QString::number(zeile.ItemData);
        return nummern;
    }
    // The same by the old comparison, card after card, Null read as "*".
    QStringList verglichen(const QString& text)
    {
        QStringList nummern;
        auto rs = app.Kartensatz->clone();
        for (rs->MoveFirst(); !rs->IsEOF(); rs->MoveNext()) {
            const QVariant v = rs->Fields(QStringLiteral("Nachname")).Value();
            if (SilbeEnthalten(v.isValid() ? v.toString() : QStringLiteral("*"), text))
                nummern << rs->Fields(QStringLiteral("Laufendenummer")).text();
        }
        return nummern;
    }
};

TEST_F(Syllables, TheStoreFindsWhatTheOldComparisonFound)
{
    for (const char* text : {"*", "?", "#", "[", "[x]", "'", "o'n", "B", "INBE", "ss", "ß", "a*", "b*"}) {
        const QString t = QString::fromUtf8(text);
        EXPECT_EQ(gefunden(t), verglichen(t)) << text;
        EXPECT_EQ(app.search.Label2.Caption, QStringLiteral("7")) << text;
        EXPECT_EQ(app.search.Label3.Caption, QString::number(verglichen(t).size())) << text;
    }
}

class FullSearch : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        card({{"Nachname", "Straße"}, {"Vorname", "strasse"}, {"Firma", "STRASSENBAU "}, {"Strasse", "Str"}});
        card({{"Nachname", "Äpfel"}, {"Vorname", "Apfel"}, {"Firma", QVariant()}, {"Bemerkung", "apfelbaum"}});
        card({{"Nachname", "12"}, {"Telefon", "123"}, {"PLZ", "12 "}, {"C1", "12@x"}});
        card({{"Nachname", "Zander"}, {"Staatsregister", "Z-1"}, {"Firmenregisternummer", "z"}, {"Telex", "zbild"}});
        reopen();
    }
    // Field and number of each line, as separate finds per field give them.
    QStringList feldweise(const QString& text)
    {
        QStringList erwartet;
        auto rs = app.Kartensatz->clone();
        for (int k = 1; k <= kSuchfelder; ++k) {
            const QString kriterium = Praefixbedingung(Volltextspalte(k), text);
            for (rs->FindFirst(kriterium); !rs->NoMatch(); rs->FindNext(kriterium))
                erwartet << Volltextspalte(k) + QLatin1Char(' ') + rs->Fields(QStringLiteral("Laufendenummer")).text();
        }
        return erwartet;
    }
    QStringList gelistet(const QString& text)
    {
        app.Hauptmaske.Text1.Text = text;
        Volltextsuche(app);
        QStringList zeilen;
        for (const ListItem& z : app.Procurar.Suchergebnisliste.Items)
            zeilen << z.Text.section(QStringLiteral("   "), 0, 0) + QLatin1Char(' ') + QString::number(z.ItemData);
        return zeilen;
    }
};

TEST_F(FullSearch, OneFindOverAllFieldsListsWhatAFindPerFieldListed)
{
    for (const char* text : {"stra", "Straß", "strass", "apfel", "äpf", "12", "1", "z", "Z-", "zb"}) {
        const QString t = QString::fromUtf8(text);
        EXPECT_EQ(gelistet(t), feldweise(t)) << text;
    }
    EXPECT_EQ(feldweise(QStringLiteral("stra")).size(), 3);  // the firm, the first name, the surname
    EXPECT_EQ(app.Suchfeld, kSuchfelder);
}

class ReadOnlyFile : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        card({{"Nachname", "Adler"}, {"Stadt", "Köln"}});
        card({{"Nachname", "Braun"}, {"Stadt", "Bonn"}});
        app.Kartendatenbank = Database::open(joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei), false, true);
        app.NurLesen = QStringLiteral("1");
        auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
        base->Sort = QStringLiteral("[Nachname]");
        app.Kartensatz = base->createDynaset();
    }
};

TEST_F(ReadOnlyFile, SearchesAndSelectionsChangeNoCard)
{
    app.Hauptmaske.Text1.Text = QStringLiteral("b");
    ui.modalLoop = [&](const QString& form, const std::function<bool()>&) {
        if (form == QLatin1String("Procurar"))
            raiseEvent(app, QStringLiteral("Procurar.Command2"), QStringLiteral("Click"));
    };
    Volltextsuche(app);
    EXPECT_EQ(app.Procurar.Suchergebnisliste.ListCount(), 2);  // Braun and Bonn

    SelektionAnwenden(app, QStringLiteral("[Stadt] LIKE 'Bonn'"));
    EXPECT_EQ(app.Hauptmaske.Selektiert.Caption, kSelektierungAktiv);
    EXPECT_EQ(column(), QStringList{QStringLiteral("Braun")});
    SelektionAussetzen(app);
    EXPECT_EQ(column(), QStringList({"Adler", "Braun"}));
    EXPECT_EQ(selected(QString()), QStringList({"Adler", "Braun"}));
}

}  // namespace
}  // namespace mk
