// The history list and its files where the driver scripts cannot reach: the limit of a list
// file, damaged files, a selection that hides listed cards, and the flag that lets exactly
// one shown card into the list.

#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "history/history_list.h"
#include "platform/paths.h"
#include "search/card_session.h"
#include "support/file_bytes.h"

#include <QImage>

namespace mk::test {
namespace {

class HistoryList : public CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        for (const char* name : {"Adler", "Berg", "Christ"})
            card({{"Nachname", QString::fromLatin1(name)}, {"Firma", QStringLiteral("F")}});
        reopen();
        app.config.Check3D5.Value = 1;
    }

    QString file(const char* name) const { return joinPath(dir.path(), QString::fromLatin1(name)); }

    // A list file of the numbers 1..count, with the marker and a date when asked.
    QString listOf(int count, bool marker = true)
    {
        QByteArray bytes;
        for (int i = 1; i <= count; ++i)
            bytes += QByteArray::number(i) + "\r\n";
        if (marker)
            bytes += "\"D\"\r\n\"05-17-2024 10:00:00\"\r\n";
        const QString path = file("liste.dat");
        writeBytes(path, bytes);
        return path;
    }

    QList<long> numbers()
    {
        QList<long> seen;
        const ListBox& l = app.replay.Schnelleauswahlliste;
        for (int i = 0; i < l.ListCount(); ++i)
            seen << l.ItemData(i);
        return seen;
    }

    // Moves Kartensatz to the card with that surname and shows it, as a move button does.
    void show(const char* surname, bool asked = true)
    {
        app.Kartensatz->FindFirst(QStringLiteral("[Nachname] = '%1'").arg(QString::fromLatin1(surname)));
        if (asked)
            app.Hauptmaske.Label9.Caption = kReplayOn;
        DatenInMaske(app);
    }
};

TEST_F(HistoryList, AListFileHoldsAHundredCardsAndNoMore)
{
    const Verlaufsdatei hundert = VerlaufsdateiLesen(listOf(100));
    EXPECT_TRUE(hundert.ok);
    ASSERT_EQ(hundert.nummern.size(), 100u);
    EXPECT_EQ(hundert.nummern.back(), 100);

    EXPECT_FALSE(VerlaufsdateiLesen(listOf(101)).ok);

    // A load that fails keeps the lines the list already had, and adds none.
    show("Berg");
    ASSERT_EQ(numbers(), QList<long>{2});
    VerlaufLaden(app, listOf(101));
    EXPECT_EQ(numbers(), QList<long>{2});
    VerlaufLaden(app, listOf(3));
    EXPECT_EQ(numbers(), (QList<long>{2, 1, 3}));
}

TEST_F(HistoryList, ReadingEndsAtTheMarkerOrTheEndAndSurvivesForeignBytesAndAClosedDatabase)
{
    writeBytes(file("a.dat"), "5\r\n\"D\"\r\n7\r\n\"D\"\r\n");
    EXPECT_EQ(VerlaufsdateiLesen(file("a.dat")).nummern, std::vector<long>{5});

    writeBytes(file("b.dat"), "2\r\n3");
    EXPECT_EQ(VerlaufsdateiLesen(file("b.dat")).nummern, (std::vector<long>{2, 3}));

    EXPECT_FALSE(VerlaufsdateiLesen(file("fehlt.dat")).ok);
    VerlaufLaden(app, file("fehlt.dat"));
    EXPECT_EQ(app.replay.Schnelleauswahlliste.ListCount(), 0);

    // Bytes of no text at all: whatever items they make become hyphen lines.
    writeBytes(file("c.dat"), QByteArray("\x00\xff\x01,\"\x80\r\n\x7f", 9));
    VerlaufLaden(app, file("c.dat"));
    const ListBox& l = app.replay.Schnelleauswahlliste;
    ASSERT_GT(l.ListCount(), 0);
    for (int i = 0; i < l.ListCount(); ++i)
        EXPECT_EQ(l.List(i), kStrichzeile);

    // With the database closed a list still loads, every line a hyphen line.
    app.replay.Schnelleauswahlliste.Clear();
    app.Kartendatenbank.reset();
    VerlaufLaden(app, listOf(2));
    EXPECT_EQ(numbers(), (QList<long>{1, 2}));
    EXPECT_EQ(l.List(0), kStrichzeile);
}

TEST_F(HistoryList, LoadingFindsCardsThatTheSelectionHides)
{
    auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
    base->Filter = QStringLiteral("[Nachname] = 'Adler'");
    app.Kartensatz = base->createDynaset();
    VerlaufLaden(app, listOf(3));
    const ListBox& l = app.replay.Schnelleauswahlliste;
    ASSERT_EQ(l.ListCount(), 3);
    EXPECT_EQ(l.List(2), QStringLiteral("Christ\t\tF\t\t3"));
}

TEST_F(HistoryList, TheFlagLetsOneShownCardIntoTheListEvenWithAPicture)
{
    const QString bild = file("bild.png");
    QImage(4, 4, QImage::Format_RGB32).save(bild);
    auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
    rs->FindFirst(QStringLiteral("[Nachname] = 'Adler'"));
    rs->Edit();
    rs->Fields(QStringLiteral("Telex")).setValue(bild);
    rs->Update();
    reopen();

    show("Adler");
    EXPECT_EQ(numbers(), QList<long>{1});
    // Shown again without a request, as a jump from the connections does: not recorded.
    show("Christ", false);
    EXPECT_EQ(numbers(), QList<long>{1});

    // With the option off a requested card stays out as well.
    app.config.Check3D5.Value = 0;
    show("Berg");
    EXPECT_EQ(numbers(), QList<long>{1});
}

}  // namespace
}  // namespace mk::test
