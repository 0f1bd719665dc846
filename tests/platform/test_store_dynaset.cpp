// Dynasets: key lists chosen at opening, Sort and Filter on the next open, moves and edges,
// rows added and deleted, clones and bookmarks.

#include "store_fixture.h"

namespace mk {
namespace {

using testing::CardStore;
using testing::errorOf;

QStringList names(std::initializer_list<const char*> list)
{
    QStringList out;
    for (const char* s : list)
        out << QString::fromUtf8(s);
    return out;
}

class Dynaset : public CardStore {
protected:
    void SetUp() override
    {
        CardStore::SetUp();
        for (const char* name : {"Weber", "Müller", "Zander", "Becker", "Mueller"})
            add({{"Nachname", QString::fromUtf8(name)}});
        cards = db->createDynaset(QStringLiteral("Adressenstamm"));
    }
};

// ---- moves and edges -----------------------------------------------------------------------

TEST_F(CardStore, EmptySetHasBothEdgesAndRefusesMoves)
{
    EXPECT_TRUE(cards->IsBOF());
    EXPECT_TRUE(cards->IsEOF());
    EXPECT_EQ(cards->RecordCount(), 0);
    EXPECT_EQ(cards->AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { cards->MoveFirst(); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cards->MoveNext(); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cards->Fields(QStringLiteral("Nachname")).Value(); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cards->Edit(); }), err::NoCurrentRecord);
}

TEST_F(Dynaset, MovesPastTheEndsSetTheEdgeFlags)
{
    EXPECT_EQ(current(cards), QStringLiteral("Weber")) << "a dynaset opens on its first row";
    EXPECT_FALSE(cards->IsBOF());
    cards->MoveLast();
    EXPECT_EQ(current(cards), QStringLiteral("Mueller"));
    cards->MoveNext();
    EXPECT_TRUE(cards->IsEOF());
    EXPECT_FALSE(cards->IsBOF());
    EXPECT_EQ(errorOf([&] { current(cards); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cards->MoveNext(); }), err::NoCurrentRecord);
    cards->MovePrevious();
    EXPECT_EQ(current(cards), QStringLiteral("Mueller"));

    cards->MoveFirst();
    cards->MovePrevious();
    EXPECT_TRUE(cards->IsBOF());
    EXPECT_FALSE(cards->IsEOF());
    EXPECT_EQ(errorOf([&] { cards->MovePrevious(); }), err::NoCurrentRecord);
    cards->MoveNext();
    EXPECT_EQ(current(cards), QStringLiteral("Weber"));
}

TEST_F(Dynaset, CountAndPositionFollowTheLiveRows)
{
    EXPECT_EQ(cards->RecordCount(), 5);
    cards->MoveLast();
    EXPECT_EQ(cards->AbsolutePosition(), 4);
    cards->MoveFirst();
    cards->MoveNext();
    cards->Delete();
    EXPECT_EQ(cards->RecordCount(), 4);
    EXPECT_EQ(cards->AbsolutePosition(), -1) << "the deleted row is no position";
    cards->MoveNext();
    EXPECT_EQ(current(cards), QStringLiteral("Zander"));
    EXPECT_EQ(cards->AbsolutePosition(), 1);
    cards->MoveLast();
    EXPECT_EQ(cards->AbsolutePosition(), 3);
}

// ---- order ------------------------------------------------------------------------------

TEST_F(CardStore, TextSortsInTheGeneralOrderWithNullsAtTheStart)
{
    for (const char* name : {"Äpfel", "apfelbaum", "Apfel", "Zahn", "9 Leben", "Strauß", "Straus"})
        add({{"Nachname", QString::fromUtf8(name)}});
    add({{"Vorname", QStringLiteral("ohne Nachname")}});
    add({{"Nachname", QString()}});

    EXPECT_EQ(all(opened(QStringLiteral("[Nachname]"))),
              names({"<Null>", "", "9 Leben", "Apfel", "Äpfel", "apfelbaum", "Straus", "Strauß", "Zahn"}));
    EXPECT_EQ(all(opened(QStringLiteral("Nachname DESC"))),
              names({"Zahn", "Strauß", "Straus", "apfelbaum", "Äpfel", "Apfel", "9 Leben", "", "<Null>"}));
}

TEST_F(CardStore, EqualSortValuesKeepTheOrderOfEntry)
{
    const qlonglong first = add({{"Nachname", QStringLiteral("Meier")}, {"Vorname", QStringLiteral("Anna")}});
    add({{"Nachname", QStringLiteral("MEIER")}, {"Vorname", QStringLiteral("Bernd")}});
    add({{"Nachname", QStringLiteral("Abel")}, {"Vorname", QStringLiteral("Carl")}});
    add({{"Nachname", QStringLiteral("meier")}, {"Vorname", QStringLiteral("Dora")}});
    EXPECT_EQ(all(opened(QStringLiteral("[Nachname]")), "Vorname"), names({"Carl", "Anna", "Bernd", "Dora"}));
    EXPECT_EQ(all(opened(QStringLiteral("[Nachname] DESC")), "Vorname"), names({"Anna", "Bernd", "Dora", "Carl"}));
    EXPECT_EQ(first, 1);
}

TEST_F(CardStore, TheNumberSortsAsANumber)
{
    for (int i = 0; i < 12; ++i)
        add({{"Nachname", QString::number(i + 1)}});
    auto rs = opened(QStringLiteral("[Laufendenummer] DESC"));
    EXPECT_EQ(all(rs).mid(0, 4), names({"12", "11", "10", "9"}));
    EXPECT_EQ(all(opened(QStringLiteral("[Nachname]"))).mid(0, 4), names({"1", "10", "11", "12"}))
        << "a text column orders as text";
}

TEST_F(CardStore, SortByAnExpressionFallsBackToTheTranslatedOrder)
{
    for (const char* name : {"Bxx", "Acz", "Cya"})
        add({{"Nachname", QString::fromUtf8(name)}});
    EXPECT_EQ(all(opened(QStringLiteral("RIGHT([Nachname], 1)"))), names({"Cya", "Bxx", "Acz"}));
}

TEST_F(CardStore, LongWalksReadTheirOwnRowsInBothDirections)
{
    inOneTransaction([&] {
        for (int i = 0; i < 150; ++i)
            add({{"Nachname", QStringLiteral("N%1").arg(i % 7)}, {"Vorname", QString::number(i)}});
    });
    auto rs = opened(QStringLiteral("[Nachname] DESC"));
    const QStringList forward = all(rs, "Vorname");
    ASSERT_EQ(forward.size(), 150);
    QStringList backward;
    rs->MoveLast();
    while (!rs->IsBOF()) {
        backward.prepend(current(rs, "Vorname"));
        rs->MovePrevious();
    }
    EXPECT_EQ(backward, forward);

    // A row deleted through the second session in the middle of a walk is no current record.
    auto other = Database::open(file)->createDynaset(QStringLiteral("Adressenstamm"));
    rs->MoveFirst();
    for (int i = 0; i < 40; ++i) {
        current(rs);
        rs->MoveNext();
    }
    other->FindFirst(QStringLiteral("[Vorname] = '%1'").arg(forward[41]));
    other->Delete();
    EXPECT_EQ(current(rs, "Vorname"), forward[40]);
    rs->MoveNext();
    EXPECT_EQ(errorOf([&] { current(rs); }), err::NoCurrentRecord);
    rs->MoveNext();
    EXPECT_EQ(current(rs, "Vorname"), forward[42]);
}

// ---- Sort and Filter act on the next open ---------------------------------------------------

TEST_F(Dynaset, SortAndFilterActOnlyOnTheNextOpen)
{
    cards->Sort = QStringLiteral("[Nachname]");
    cards->Filter = QStringLiteral("[Nachname] <> 'Zander'");
    EXPECT_EQ(all(cards), names({"Weber", "Müller", "Zander", "Becker", "Mueller"}));

    auto sorted = cards->createDynaset();
    EXPECT_EQ(all(sorted), names({"Becker", "Mueller", "Müller", "Weber"}));
    EXPECT_EQ(all(cards), names({"Weber", "Müller", "Zander", "Becker", "Mueller"}));
    EXPECT_TRUE(sorted->Sort.isEmpty());
}

TEST_F(Dynaset, AChildKeepsItsParentsFilterAndOrder)
{
    auto parent = opened(QStringLiteral("[Nachname] DESC"), QStringLiteral("[Nachname] LIKE 'M*'"));
    EXPECT_EQ(all(parent), names({"Müller", "Mueller"}));

    parent->Filter = QStringLiteral("[Nachname] <> 'Mueller'");
    EXPECT_EQ(all(parent->createDynaset()), names({"Müller"})) << "both filters hold";

    parent->Filter.clear();
    parent->Sort = QStringLiteral("[Nachname]");
    EXPECT_EQ(all(parent->createDynaset()), names({"Mueller", "Müller"}));

    parent->Sort.clear();
    add({{"Nachname", QStringLiteral("Maier")}});
    EXPECT_EQ(all(parent->createDynaset()), names({"Müller", "Mueller", "Maier"}))
        << "without a Sort the child takes the parent's order and draws afresh";
}

TEST_F(Dynaset, AFailingSortOrFilterLeavesTheCursorAsItWas)
{
    cards->MoveLast();
    for (const char* sort : {"[Abteilung]", "[Pais]", "[Nachname", "Nachname ASC DESC"}) {
        cards->Sort = QString::fromUtf8(sort);
        EXPECT_NE(errorOf([&] { cards->createDynaset(); }), 0) << sort;
    }
    cards->Sort.clear();
    for (const char* filter : {"[Abteilung] = 'x'", "[Nachname] = ", "[Typ] like"}) {
        cards->Filter = QString::fromUtf8(filter);
        EXPECT_NE(errorOf([&] { cards->createDynaset(); }), 0) << filter;
    }
    EXPECT_EQ(current(cards), QStringLiteral("Mueller"));
    EXPECT_EQ(cards->RecordCount(), 5);
}

TEST_F(Dynaset, KeysAreChosenOnceAndValuesReadLive)
{
    auto byName = opened(QStringLiteral("[Nachname]"));
    auto other = db->createDynaset(QStringLiteral("Adressenstamm"));
    other->Edit();
    other->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Aaron"));  // was Weber
    other->Update();

    EXPECT_EQ(all(byName), names({"Becker", "Mueller", "Müller", "Aaron", "Zander"}));

    auto second = Database::open(file);
    auto elsewhere = second->createDynaset(QStringLiteral("Adressenstamm"));
    elsewhere->MoveLast();
    elsewhere->Edit();
    elsewhere->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Möller"));
    elsewhere->Update();
    cards->MoveLast();
    EXPECT_EQ(current(cards), QStringLiteral("Möller")) << "a change through the second session is seen";
}

// ---- rows added and deleted -----------------------------------------------------------------

TEST_F(Dynaset, AnAddedRowJoinsTheEndAndTheCurrentStays)
{
    auto byName = opened(QStringLiteral("[Nachname]"));
    byName->MoveNext();  // Mueller
    byName->AddNew();
    byName->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Aachen"));
    EXPECT_EQ(current(byName), QStringLiteral("Aachen")) << "the buffer reads back while adding";
    byName->Update();
    EXPECT_EQ(byName->editMode(), EditMode::None);
    EXPECT_EQ(current(byName), QStringLiteral("Mueller"));
    EXPECT_EQ(byName->RecordCount(), 6);
    byName->MoveLast();
    EXPECT_EQ(current(byName), QStringLiteral("Aachen"));
    EXPECT_EQ(byName->Fields(QStringLiteral("Laufendenummer")).Value().toLongLong(), 6);
    EXPECT_EQ(cards->RecordCount(), 5) << "another dynaset does not learn of it";
}

TEST_F(Dynaset, AnAddedRowFromTheEndIsReachedBackwards)
{
    cards->MoveLast();
    cards->MoveNext();
    ASSERT_TRUE(cards->IsEOF());
    add({{"Nachname", QStringLiteral("Neu")}});
    EXPECT_TRUE(cards->IsEOF());
    cards->MovePrevious();
    EXPECT_EQ(current(cards), QStringLiteral("Neu"));
}

TEST_F(Dynaset, CancelledAddOrEditLeavesNoTrace)
{
    cards->AddNew();
    cards->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Verworfen"));
    cards->CancelUpdate();
    cards->Edit();
    cards->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Verworfen"));
    cards->MoveNext();  // a move drops the edit
    EXPECT_EQ(cards->editMode(), EditMode::None);
    EXPECT_EQ(all(opened({})), names({"Weber", "Müller", "Zander", "Becker", "Mueller"}));
    EXPECT_EQ(errorOf([&] { cards->Update(); }), err::UpdateWithoutEdit);
    EXPECT_EQ(errorOf([&] { cards->CancelUpdate(); }), err::UpdateWithoutEdit);
}

TEST_F(Dynaset, ADeletedRowStaysCurrentButUnusableUntilAMove)
{
    auto byName = opened(QStringLiteral("[Nachname]"));
    byName->MoveNext();
    byName->MoveNext();  // Müller
    byName->Delete();
    EXPECT_EQ(errorOf([&] { current(byName); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { byName->Edit(); }), err::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { byName->Delete(); }), err::NoCurrentRecord);
    EXPECT_FALSE(byName->IsEOF());
    byName->MoveNext();
    EXPECT_EQ(current(byName), QStringLiteral("Weber"));
    byName->MovePrevious();
    EXPECT_EQ(current(byName), QStringLiteral("Mueller")) << "the hole is stepped over";
    EXPECT_EQ(all(byName), names({"Becker", "Mueller", "Weber", "Zander"}));
    byName->MoveLast();
    byName->Delete();
    byName->MovePrevious();
    EXPECT_EQ(current(byName), QStringLiteral("Weber"));
}

TEST_F(Dynaset, DeletingEveryRowEndsAtBothEdges)
{
    cards->MoveFirst();
    while (!cards->IsEOF()) {
        cards->Delete();
        cards->MoveNext();
    }
    EXPECT_EQ(cards->RecordCount(), 0);
    EXPECT_TRUE(cards->IsBOF() && cards->IsEOF());
    EXPECT_EQ(db->createDynaset(QStringLiteral("Adressenstamm"))->RecordCount(), 0);
}

TEST_F(CardStore, TheCounterNeverGivesANumberTwice)
{
    add({{"Nachname", QStringLiteral("Eins")}});
    const qlonglong highest = add({{"Nachname", QStringLiteral("Zwei")}});
    cards->MoveLast();
    cards->Delete();
    EXPECT_EQ(add({{"Nachname", QStringLiteral("Drei")}}), highest + 1);

    db->close();
    db = Database::open(file);
    auto rs = db->createDynaset(QStringLiteral("Adressenstamm"));
    rs->MoveLast();
    rs->Delete();
    EXPECT_EQ(add(rs, {{"Nachname", QStringLiteral("Vier")}}), highest + 2) << "also across sessions";
}

// ---- clones and bookmarks ---------------------------------------------------------------------

TEST_F(Dynaset, ClonesShareRowsButNotPosition)
{
    cards->MoveLast();
    auto twin = cards->clone();
    EXPECT_FALSE(twin->IsBOF());
    EXPECT_FALSE(twin->IsEOF());
    EXPECT_EQ(errorOf([&] { current(twin); }), err::NoCurrentRecord) << "a fresh clone has no current record";
    EXPECT_EQ(errorOf([&] { twin->Bookmark(); }), err::NoCurrentRecord);
    twin->MoveNext();
    EXPECT_EQ(current(twin), QStringLiteral("Weber"));
    EXPECT_EQ(current(cards), QStringLiteral("Mueller"));

    twin->MoveNext();
    twin->Delete();  // Müller, through the clone
    EXPECT_EQ(cards->RecordCount(), 4);
    EXPECT_EQ(all(cards), names({"Weber", "Zander", "Becker", "Mueller"}));

    twin->AddNew();
    twin->Fields(QStringLiteral("Nachname")).setValue(QStringLiteral("Klon"));
    twin->Update();
    cards->MoveLast();
    EXPECT_EQ(current(cards), QStringLiteral("Klon")) << "a row added through a clone joins the shared list";
}

TEST_F(Dynaset, ABookmarkBelongsToItsDynasetAndClones)
{
    cards->MoveNext();
    cards->MoveNext();
    const QByteArray mark = cards->Bookmark();
    cards->MoveFirst();
    cards->setBookmark(mark);
    EXPECT_EQ(current(cards), QStringLiteral("Zander"));

    auto twin = cards->clone();
    twin->setBookmark(mark);
    EXPECT_EQ(current(twin), QStringLiteral("Zander"));
    EXPECT_EQ(twin->AbsolutePosition(), 2);

    auto foreign = db->createDynaset(QStringLiteral("Adressenstamm"));
    EXPECT_EQ(errorOf([&] { foreign->setBookmark(mark); }), err::InvalidBookmark);
    EXPECT_EQ(current(foreign), QStringLiteral("Weber")) << "a refused bookmark does not move";
    EXPECT_EQ(errorOf([&] { cards->setBookmark(QByteArray("garbage")); }), err::InvalidBookmark);
    EXPECT_EQ(errorOf([&] { cards->createDynaset()->setBookmark(mark); }), err::InvalidBookmark);
}

TEST_F(Dynaset, AClosedRecordsetRefusesWork)
{
    auto twin = cards->clone();
    cards->close();
    EXPECT_EQ(errorOf([&] { cards->MoveNext(); }), err::ObjectClosed);
    EXPECT_EQ(errorOf([&] { cards->RecordCount(); }), err::ObjectClosed);
    twin->MoveFirst();
    EXPECT_EQ(current(twin), QStringLiteral("Weber")) << "its clone lives on";
}

}  // namespace
}  // namespace mk
