// Find on dynasets, and the field values: Null apart from empty text, sizes, the edit rules.

#include "platform/jet_expression.h"
#include "store_fixture.h"

namespace mk {
namespace {

using testing::CardStore;
using testing::errorOf;

class Find : public CardStore {
protected:
    void SetUp() override
    {
        CardStore::SetUp();
        // 122 plain cards, so that card 123 and card 12 both exist.
        inOneTransaction([&] {
            for (int i = 1; i <= 130; ++i)
                add({{"Nachname", QStringLiteral("Karte %1").arg(i)}, {"Typ", QStringLiteral("0000000")}});
        });
        cards = db->createDynaset(QStringLiteral("Adressenstamm"));
        setCard(12, {{"Nachname", QStringLiteral("Müller")}, {"Typ", QStringLiteral("0100000")}});
        setCard(40, {{"Nachname", QStringLiteral("Schüller")}, {"Typ", QVariant()}});
        setCard(77, {{"Nachname", QStringLiteral("MÜLLERSHAUSEN")}, {"Typ", QStringLiteral("1111111")}});
        setCard(123, {{"Nachname", QStringLiteral("Zöllner")}, {"Typ", QStringLiteral("0000001")}});
        cards->MoveFirst();
    }
    void setCard(int number, testing::Values values)
    {
        cards->FindFirst(QStringLiteral("[Laufendenummer] = %1").arg(number));
        ASSERT_FALSE(cards->NoMatch());
        cards->Edit();
        for (const auto& [name, value] : values)
            cards->Fields(QString::fromUtf8(name)).setValue(value);
        cards->Update();
    }
    // The numbers of all cards the criterion finds, by FindFirst and FindNext.
    QList<qlonglong> found(const RecordsetPtr& rs, const QString& criteria)
    {
        QList<qlonglong> numbers;
        rs->FindFirst(criteria);
        while (!rs->NoMatch()) {
            numbers << rs->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong();
            rs->FindNext(criteria);
        }
        return numbers;
    }
    QList<qlonglong> found(const QString& criteria) { return found(cards, criteria); }
};

TEST_F(Find, TheCardNumberCriterionFindsExactlyItsCard)
{
    EXPECT_EQ(found(QStringLiteral("LEFT([Laufendenummer], 4) = '123 '")), QList<qlonglong>{123});
    EXPECT_EQ(found(QStringLiteral("LEFT(Laufendenummer, 3) = '12 '")), QList<qlonglong>{12});
    EXPECT_TRUE(found(QStringLiteral("LEFT([Laufendenummer], 3) = '13 '")).contains(13));
    EXPECT_FALSE(found(QStringLiteral("LEFT([Laufendenummer], 3) = '12 '")).contains(123));
    EXPECT_EQ(found(QStringLiteral("[Laufendenummer] LIKE 123")), QList<qlonglong>{123});
    EXPECT_TRUE(found(QStringLiteral("LEFT([Laufendenummer], 4) = '999 '")).isEmpty());
}

// The card number criterion is answered through the key; it finds what the text comparison
// finds, in any order and filter, and nothing more.
TEST_F(Find, TheCardNumberCriterionAmongManyCards)
{
    inOneTransaction([&] {
        for (int i = 131; i <= 1300; ++i)
            add({{"Nachname", QStringLiteral("Karte %1").arg(i)}});
    });
    auto base = db->createDynaset(QStringLiteral("Adressenstamm"));
    base->Sort = QStringLiteral("[Nachname] DESC");
    auto sorted = base->createDynaset();
    for (const RecordsetPtr& rs : {db->createDynaset(QStringLiteral("Adressenstamm")), sorted}) {
        EXPECT_EQ(found(rs, QStringLiteral("LEFT([Laufendenummer], 4) = '123 '")), QList<qlonglong>{123});
        EXPECT_EQ(found(rs, QStringLiteral("LEFT([Laufendenummer], 5) = '1234 '")), QList<qlonglong>{1234});
        EXPECT_TRUE(found(rs, QStringLiteral("LEFT([Laufendenummer], 5) = '0123 '")).isEmpty());
        EXPECT_TRUE(found(rs, QStringLiteral("LEFT([Laufendenummer], 4) = '-123 '")).isEmpty());
        EXPECT_TRUE(found(rs, QStringLiteral("LEFT([Laufendenummer], 5) = '1301 '")).isEmpty());
        rs->FindLast(QStringLiteral("LEFT([Laufendenummer], 4) = '123 '"));
        ASSERT_FALSE(rs->NoMatch());
        EXPECT_EQ(rs->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(), 123);
        rs->FindNext(QStringLiteral("LEFT([Laufendenummer], 4) = '999 '"));
        EXPECT_FALSE(rs->NoMatch());
        rs->FindNext(QStringLiteral("LEFT([Laufendenummer], 4) = '123 '"));
        EXPECT_TRUE(rs->NoMatch()) << "each card once";
        EXPECT_EQ(rs->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(), 999);
    }
    auto filtered = db->createDynaset(QStringLiteral("Adressenstamm"));
    filtered->Filter = QStringLiteral("LEFT([Laufendenummer], 5) = '1234 ' OR LEFT([Laufendenummer], 4) = '12 '");
    auto two = filtered->createDynaset();
    EXPECT_EQ(two->RecordCount(), 2);
    EXPECT_EQ(found(two, QStringLiteral("LEFT([Laufendenummer], 4) = '123 '")), QList<qlonglong>{});
    EXPECT_EQ(found(two, QStringLiteral("LEFT([Laufendenummer], 3) = '12 '")), QList<qlonglong>{12});
}

TEST_F(Find, CriteriaOfTheSearches)
{
    EXPECT_EQ(found(QStringLiteral("[Typ] like '?1?????" "'")), (QList<qlonglong>{12, 77})) << "a Null Typ is skipped";
    EXPECT_EQ(found(QStringLiteral("[Nachname] like '*üll*'")), (QList<qlonglong>{12, 40, 77}));
    EXPECT_EQ(found(QStringLiteral("LEFT([Nachname],3) = 'mül'")), (QList<qlonglong>{12, 77}));
    EXPECT_EQ(found(QStringLiteral("[Nachname] = 'Müller' OR [Laufendenummer] = 5")), (QList<qlonglong>{5, 12}));
    EXPECT_EQ(found(QStringLiteral("[Laufendenummer] BETWEEN 3 AND 5")), (QList<qlonglong>{3, 4, 5}));
    EXPECT_EQ(found(QStringLiteral("[Nachname] NOT LIKE 'Karte*'")), (QList<qlonglong>{12, 40, 77, 123}));
    EXPECT_EQ(found(QStringLiteral("[Typ] IS NULL")), QList<qlonglong>{40});
}

TEST_F(Find, DirectionsAndStartingPoints)
{
    const QString mueller = QStringLiteral("[Nachname] like '*üll*'");
    const auto number = [&] { return cards->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(); };
    cards->FindLast(mueller);
    EXPECT_EQ(number(), 77);
    cards->FindPrevious(mueller);
    EXPECT_EQ(number(), 40);
    cards->FindPrevious(mueller);
    EXPECT_EQ(number(), 12);
    cards->FindPrevious(mueller);
    EXPECT_TRUE(cards->NoMatch());
    EXPECT_EQ(number(), 12) << "no match leaves the current record";

    cards->MoveLast();
    cards->FindNext(mueller);
    EXPECT_TRUE(cards->NoMatch());
    EXPECT_EQ(number(), 130);
    cards->FindFirst(mueller);
    EXPECT_FALSE(cards->NoMatch());
    EXPECT_EQ(number(), 12);

    auto twin = cards->clone();
    twin->FindNext(mueller);
    EXPECT_EQ(twin->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(), 12)
        << "a fresh clone searches from the start";
}

TEST_F(Find, FindWorksInsideTheFilterAndOrder)
{
    auto base = db->createDynaset(QStringLiteral("Adressenstamm"));
    base->Filter = QStringLiteral("[Typ] like '?1?????" "'");
    base->Sort = QStringLiteral("[Nachname] DESC");
    auto typed = base->createDynaset();
    EXPECT_EQ(typed->RecordCount(), 2);
    EXPECT_EQ(found(typed, QStringLiteral("[Nachname] like '*üll*'")), (QList<qlonglong>{77, 12}));
    typed->FindFirst(QStringLiteral("LEFT([Laufendenummer], 3) = '40 '"));
    EXPECT_TRUE(typed->NoMatch()) << "a card outside the selection is not found";
}

TEST_F(Find, FindSeesWritesAndStepsOverDeletedRows)
{
    const QString criteria = QStringLiteral("LEFT([Nachname],3) = 'Mül'");
    EXPECT_EQ(found(criteria), (QList<qlonglong>{12, 77}));
    setCard(5, {{"Nachname", QStringLiteral("Mülheim")}});
    EXPECT_EQ(found(criteria), (QList<qlonglong>{5, 12, 77}));
    cards->FindFirst(criteria);
    cards->FindNext(criteria);
    cards->Delete();
    EXPECT_EQ(found(criteria), (QList<qlonglong>{5, 77}));

    auto second = Database::open(file)->createDynaset(QStringLiteral("Adressenstamm"));
    second->FindFirst(QStringLiteral("[Laufendenummer] = 77"));
    second->Edit();
    second->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Anders"));
    second->Update();
    EXPECT_EQ(found(criteria), QList<qlonglong>{5}) << "a write through another session counts too";
}

TEST_F(Find, ASmallSetOnABigTableAsksRowByRow)
{
    auto base = db->createDynaset(QStringLiteral("Adressenstamm"));
    base->Filter = QStringLiteral("[Laufendenummer] <= 12");
    auto few = base->createDynaset();
    const QString criteria = QStringLiteral("[Nachname] like '*üll*'");
    EXPECT_EQ(found(few, criteria), QList<qlonglong>{12});
    few->AddNew();
    few->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Knüller"));
    few->Update();
    EXPECT_EQ(found(few, criteria), (QList<qlonglong>{12, 131}));
}

TEST_F(Find, ABadCriterionRaisesAndLeavesThePosition)
{
    cards->MoveLast();
    EXPECT_EQ(errorOf([&] { cards->FindFirst(QStringLiteral("[Abteilung] = 'x'")); }), err::TooFewParameters);
    EXPECT_EQ(errorOf([&] { cards->FindFirst(QStringLiteral("LEFT([Nachname],3) = ")); }), err::SyntaxInExpression);
    EXPECT_EQ(cards->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(), 130);
}

// ---- field values --------------------------------------------------------------------------

TEST_F(CardStore, NullIsKeptApartFromEmptyText)
{
    add({{"Nachname", QString()}, {"Vorname", QVariant()}});
    cards->MoveFirst();
    const QVariant surname = cards->Fields(QStringLiteral("Nachname")).Value();
    EXPECT_TRUE(surname.isValid());
    EXPECT_EQ(surname.toString(), QString());
    EXPECT_FALSE(cards->Fields(QStringLiteral("vorname")).Value().isValid());
    EXPECT_TRUE(cards->Fields(QStringLiteral("Firma")).isNull()) << "a column never written is Null";
    EXPECT_EQ(cards->Fields(QStringLiteral("Firma")).text(), QString());
    EXPECT_EQ(cards->Fields(QStringLiteral("LAUFENDENUMMER")).Name(), QStringLiteral("Laufendenummer"));
    EXPECT_EQ(cards->Fields(QStringLiteral("Laufendenummer")).text(), QStringLiteral("1"));

    cards->Edit();
    cards->Fields(QStringLiteral("Nachname")).setValue(QVariant());
    cards->Update();
    EXPECT_FALSE(cards->Fields(QStringLiteral("Nachname")).Value().isValid());
}

TEST_F(CardStore, WritesKeepToTheRules)
{
    add({{"Nachname", QStringLiteral("Meier")}});
    cards->MoveFirst();
    EXPECT_EQ(errorOf([&] { cards->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("x")); }),
              err::UpdateWithoutEdit);
    EXPECT_EQ(errorOf([&] { cards->Fields(QStringLiteral("Pais")); }), err::ItemNotFound);

    cards->Edit();
    auto typ = cards->Fields(QStringLiteral("Typ"));
    EXPECT_EQ(errorOf([&] { typ.setValue(QStringLiteral("01010101")); }), err::FieldTooSmall);
    EXPECT_NO_THROW(typ.setValue(QStringLiteral("0101010")));
    EXPECT_NO_THROW(cards->Fields(QStringLiteral("Bemerkung")).setValue(QString(100000, QLatin1Char('x'))));
    EXPECT_NE(errorOf([&] { cards->Fields(QStringLiteral("Laufendenummer")).setValue(5); }), 0);
    cards->Update();
    EXPECT_EQ(current(cards, "Typ"), QStringLiteral("0101010"));
    EXPECT_EQ(current(cards, "Bemerkung").size(), 100000);
}

}  // namespace
}  // namespace mk
