// The text semantics of the store: the General order, its sort keys and collation, LIKE, and
// the text functions as SQLite calls them.

#include "platform/jet_expression.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QStringList>
#include <algorithm>
#include <cstring>
#include <random>

using namespace mk::jet;

namespace {

int sign(int v) { return (v > 0) - (v < 0); }

int keyOrder(const QString& a, const QString& b)
{
    const QByteArray ka = sortKey(a);
    const QByteArray kb = sortKey(b);
    const int c = std::memcmp(ka.constData(), kb.constData(), size_t(std::min(ka.size(), kb.size())));
    return c != 0 ? sign(c) : sign(int(ka.size() - kb.size()));
}

// Texts that probe every branch of the order: ASCII and not, accents precomposed and
// combining, expansions, scripts beyond Latin, characters beyond the BMP, blanks.
const QStringList kProbes{
    "", " ", "  ", "a", "A", "a ", "ab", "a b", "a-b", "a1", "1", "10", "9", "09", "!", "~", "{", "_",
    "Apfel", "apfel", "APFEL  ", "Äpfel", "äpfel", "A\u0308pfel", "Apfelbaum", "Äpfelbaum", "Apfelbäume",
    "Müller", "MÜLLER", "Mueller", "Muller", "Mu\u0308ller", "Müllerin", "Straße", "Strasse", "STRASSE",
    "Strasser", "ß", "ss", "st", "sr", "æ", "ae", "Ærø", "Øre", "ore", "Œuvre", "oeuvre", "Łódź", "Lodz",
    "é", "è", "ê", "e", "f", "Ελλάδα", "ελλαδα", "Москва", "москва", "東京", "\U0001F600", "a\U0001F600",
    "z", "Z", "zz", "ı", "i", "ﬁ", "fi", "²", "2", "١", "1a", "\u00AD", "a\u00ADb", "ab\u0301", "\u0301",
    "a\tb", "x\u0308\u0301", "x\u0301\u0308", "«a»", "€", "$", "\u00A0",
};

}  // namespace

TEST(GeneralOrder, SortsAsTheCardFileExpects)
{
    QStringList names{"ß", "Apfelbaum", "Äpfel", "apfel", "9", "Apfel", "10", "Zander", "Ökonom", "Otto",
                      "Ozean", "Strasse", "Straße", "Strassen"};
    std::stable_sort(names.begin(), names.end(),
                     [](const QString& a, const QString& b) { return compareText(a, b) < 0; });
    EXPECT_EQ(names, (QStringList{"10", "9", "apfel", "Apfel", "Äpfel", "Apfelbaum", "Ökonom", "Otto",
                                  "Ozean", "ß", "Strasse", "Straße", "Strassen", "Zander"}));
}

TEST(GeneralOrder, EqualityIgnoresCaseAndTrailingBlanksOnly)
{
    EXPECT_EQ(compareText("apfel", "APFEL  "), 0);
    EXPECT_EQ(compareText("müller", "MÜLLER"), 0);
    EXPECT_EQ(compareText("Äpfel", "A\u0308pfel"), 0);
    EXPECT_EQ(compareText("", "   "), 0);
    EXPECT_LT(compareText("Apfel", "Äpfel"), 0);
    EXPECT_LT(compareText("Äpfel", "Apfelbaum"), 0);
    EXPECT_LT(compareText("abc", "abc d"), 0);
    EXPECT_LT(compareText(" abc", "abc"), 0);
    EXPECT_NE(compareText("Strasse", "Straße"), 0);
    EXPECT_NE(compareText("ab", "a b"), 0);
    EXPECT_GT(compareText("ab\u0301", "ab"), 0);
}

// The store sorts by keys and compares through the collation: both must tell the same story.
TEST(GeneralOrder, SortKeysAgreeWithCompareTextOnEveryPair)
{
    for (const QString& a : kProbes) {
        EXPECT_EQ(compareText(a, a), 0);
        for (const QString& b : kProbes) {
            const int c = sign(compareText(a, b));
            ASSERT_EQ(c, -sign(compareText(b, a))) << a.toStdString() << " / " << b.toStdString();
            ASSERT_EQ(c, keyOrder(a, b)) << a.toStdString() << " / " << b.toStdString();
        }
    }
    QByteArray reused = "prefix";
    appendSortKey(u"Äpfel", reused);
    EXPECT_EQ(reused, "prefix" + sortKey("Äpfel"));
    for (const QString& a : kProbes) {
        const QByteArray utf8 = a.toUtf8();
        std::string key = "x";
        appendSortKeyUtf8(utf8.constData(), utf8.size(), key);
        EXPECT_EQ(QByteArray::fromStdString(key), "x" + sortKey(a)) << a.toStdString();
    }
}

TEST(GeneralOrder, OrderIsTransitiveOverRandomTexts)
{
    std::mt19937 random(7);
    const QString alphabet = "aAbäÄoöß1 9-zé\u0308";
    QStringList texts;
    for (int i = 0; i < 400; ++i) {
        QString t;
        for (int n = int(random() % 6); n > 0; --n)
            t += alphabet[int(random() % alphabet.size())];
        texts << t;
    }
    std::sort(texts.begin(), texts.end(), [](const QString& a, const QString& b) { return sortKey(a) < sortKey(b); });
    for (int i = 1; i < texts.size(); ++i) {
        ASSERT_LE(compareText(texts[i - 1], texts[i]), 0) << texts[i - 1].toStdString() << " / " << texts[i].toStdString();
        ASSERT_EQ(compareText(texts[i - 1], texts[i]) == 0, sortKey(texts[i - 1]) == sortKey(texts[i]));
    }
}

TEST(Like, KnowsTheWildcardsOfTheOldEngine)
{
    EXPECT_TRUE(like("Müller", "*üll*"));
    EXPECT_TRUE(like("MÜLLER", "*üll*"));
    EXPECT_FALSE(like("Muller", "*üll*"));
    EXPECT_TRUE(like("0100000", "?1?????"));
    EXPECT_FALSE(like("0100000", "?1????"));
    EXPECT_FALSE(like("1100000 ", "?1?????"));
    EXPECT_TRUE(like("12.03.1960", "##.##.####"));
    EXPECT_FALSE(like("12.03.196x", "##.##.####"));
    EXPECT_TRUE(like("Berlin", "[a-c]*"));
    EXPECT_FALSE(like("Dresden", "[a-c]*"));
    EXPECT_TRUE(like("Dresden", "[!a-c]*"));
    EXPECT_TRUE(like("a*b", "a[*]b"));
    EXPECT_FALSE(like("axb", "a[*]b"));
    EXPECT_TRUE(like("a-", "a[x-]"));
    EXPECT_TRUE(like("a!", "a[!]"));
    EXPECT_TRUE(like("ab", "a[]b"));
    EXPECT_TRUE(like("[x", "[x"));
    EXPECT_TRUE(like("", "*"));
    EXPECT_FALSE(like("", "?"));
    EXPECT_TRUE(like("abc", "a**c"));
    EXPECT_TRUE(like("mississippi", "*iss*ppi"));
    EXPECT_FALSE(like("abc", "ab"));
    EXPECT_TRUE(like("x\U0001F600y", "x?y"));
    EXPECT_TRUE(like("ÉCOLE", "[é]cole"));
    EXPECT_FALSE(like("Ecole", "[é]cole"));
    // Ranges go by the base letter, as the order places it.
    EXPECT_TRUE(like("Ärger", "[a-c]*"));
    EXPECT_TRUE(like("Źródło", "[x-z]*"));
    EXPECT_FALSE(like("5", "[a-z]"));
    EXPECT_FALSE(like("Ärger", "[!a-c]*"));
}

TEST(Like, StaysFastOnHostilePatterns)
{
    // Backtracking over stars must not explode.
    const QString text(3000, u'a');
    EXPECT_FALSE(like(text, "*a*a*a*a*a*a*a*a*b"));
}

TEST(NumberAsText, HasNoLeadingBlank)
{
    EXPECT_EQ(numberAsText(qlonglong(123)), "123");
    EXPECT_EQ(numberAsText(qlonglong(-5)), "-5");
    EXPECT_EQ(numberAsText(2.0), "2");
    EXPECT_EQ(numberAsText(1.5), "1.5");
}

namespace {

class SqlFunctions : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(sqlite3_open(":memory:", &db_), SQLITE_OK);
        registerFunctions(db_);
    }
    void TearDown() override { sqlite3_close(db_); }

    // The single value of a query as text; "NULL" for Null, "ERROR" when SQLite refuses.
    std::string value(const char* sql)
    {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(db_, sql, -1, &st, nullptr) != SQLITE_OK)
            return "PREPARE " + std::string(sqlite3_errmsg(db_));
        std::string out = "ERROR";
        if (sqlite3_step(st) == SQLITE_ROW)
            out = sqlite3_column_type(st, 0) == SQLITE_NULL
                ? "NULL"
                : reinterpret_cast<const char*>(sqlite3_column_text(st, 0));
        sqlite3_finalize(st);
        return out;
    }

    sqlite3* db_ = nullptr;
};

}  // namespace

TEST_F(SqlFunctions, TextFunctionsFollowTheOldRuntime)
{
    EXPECT_EQ(value("SELECT jet_left(123, 4)"), "123");
    EXPECT_EQ(value("SELECT jet_left('Müller', 2)"), "Mü");
    EXPECT_EQ(value("SELECT jet_right('Müller', 3)"), "ler");
    EXPECT_EQ(value("SELECT jet_mid('Müller', 2, 3)"), "üll");
    EXPECT_EQ(value("SELECT jet_mid('Müller', 3)"), "ller");
    EXPECT_EQ(value("SELECT jet_mid('abc', 9)"), "");
    EXPECT_EQ(value("SELECT jet_len('Müller  ')"), "8");
    EXPECT_EQ(value("SELECT jet_lcase('ÄRGER')"), "ärger");
    EXPECT_EQ(value("SELECT '[' || jet_trim('  a b  ') || ']'"), "[a b]");
    EXPECT_EQ(value("SELECT jet_concat(NULL, 12, 'x', 1.5)"), "12x1.5");
    EXPECT_EQ(value("SELECT jet_text(42)"), "42");
    EXPECT_EQ(value("SELECT jet_like(1234, '1#3*')"), "1");
}

TEST_F(SqlFunctions, NullGoesThroughAndBadArgumentsFail)
{
    for (const char* sql : {"SELECT jet_left(NULL, 2)", "SELECT jet_left('a', NULL)", "SELECT jet_len(NULL)",
                            "SELECT jet_ucase(NULL)", "SELECT jet_concat(NULL, NULL)", "SELECT jet_like(NULL, '*')",
                            "SELECT jet_like('a', NULL)", "SELECT NOT jet_like(NULL, '*')"})
        EXPECT_EQ(value(sql), "NULL") << sql;
    for (const char* sql : {"SELECT jet_left('abc', -1)", "SELECT jet_mid('abc', 0)", "SELECT jet_right('abc', 'x')"})
        EXPECT_EQ(value(sql), "ERROR") << sql;
}

TEST_F(SqlFunctions, CollationOrdersAndComparesAsCompareText)
{
    ASSERT_EQ(sqlite3_exec(db_, "CREATE TABLE t (name TEXT)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(db_, "INSERT INTO t VALUES (?1)", -1, &insert, nullptr);
    for (const QString& p : kProbes) {
        bindParameters(insert, {p});
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);

    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db_, "SELECT name FROM t ORDER BY name COLLATE JETTEXT", -1, &st, nullptr);
    QStringList ordered;
    while (sqlite3_step(st) == SQLITE_ROW)
        ordered << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    ASSERT_EQ(ordered.size(), kProbes.size());
    for (int i = 1; i < ordered.size(); ++i)
        EXPECT_LE(compareText(ordered[i - 1], ordered[i]), 0) << ordered[i - 1].toStdString() << " / "
                                                             << ordered[i].toStdString();

    EXPECT_EQ(value("SELECT COUNT(*) FROM t WHERE name COLLATE JETTEXT = 'APFEL'"), "3");
    EXPECT_EQ(value("SELECT COUNT(*) FROM t WHERE name COLLATE JETTEXT = 'äpfel '"), "3");
}
