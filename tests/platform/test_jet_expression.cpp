// Criteria, filters and sorts as the card file writes them, run through the translator against
// a small card table in SQLite.

#include "platform/jet_expression.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QStringList>
#include <random>

using namespace mk;
using namespace mk::jet;

namespace {

struct Card {
    qlonglong number;
    const char* nachname;  // nullptr is Null
    const char* typ;
    const char* firma;
    const char* plz;
};

class CardTable : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(sqlite3_open(":memory:", &db_), SQLITE_OK);
        registerFunctions(db_);
        exec("CREATE TABLE Adressenstamm (Laufendenummer INTEGER PRIMARY KEY, Nachname TEXT(50), "
             "Typ TEXT(7), Firma TEXT(100), PLZ TEXT(10), \"Odd \"\"Name\"\"\" TEXT)");
        const Card cards[] = {
            {12, "Müller", "1000000", "Otto GmbH", "10115"},
            {123, "MÜLLER", "0100000", "O'Neil Ltd", "20095"},
            {1234, "Schmidt", nullptr, "Schmidt & Söhne", "80331"},
            {7, "müllerin", "0110000", nullptr, "01067"},
            {45, nullptr, "0000001", "Äpfel AG", nullptr},
            {99, "Meier  ", "1100000", "apfel ag", "50667"},
        };
        for (const Card& c : cards)
            insert(c);
    }
    void TearDown() override { sqlite3_close(db_); }

    void exec(const char* sql)
    {
        char* msg = nullptr;
        ASSERT_EQ(sqlite3_exec(db_, sql, nullptr, nullptr, &msg), SQLITE_OK) << (msg ? msg : "");
    }

    void insert(const Card& c)
    {
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db_, "INSERT INTO Adressenstamm (Laufendenummer, Nachname, Typ, Firma, PLZ) "
                                "VALUES (?1, ?2, ?3, ?4, ?5)", -1, &st, nullptr);
        auto text = [](const char* s) { return s ? QVariant(QString::fromUtf8(s)) : QVariant(); };
        bindParameters(st, {c.number, text(c.nachname), text(c.typ), text(c.firma), text(c.plz)});
        EXPECT_EQ(sqlite3_step(st), SQLITE_DONE);
        sqlite3_finalize(st);
    }

    static std::optional<QString> resolve(const QString& written)
    {
        static const QStringList columns{"Laufendenummer", "Nachname", "Typ", "Firma", "PLZ", "Odd \"Name\""};
        for (const QString& c : columns)
            if (c.compare(written, Qt::CaseInsensitive) == 0)
                return c;
        return std::nullopt;
    }

    // The numbers of the cards a criterion selects, in the order of sortText (or by number).
    // With keyed, Laufendenummer is told to the translator as the integer key, as the store
    // tells it.
    std::vector<qlonglong> select(const QString& criterion, const QString& sortText = {}, bool keyed = false)
    {
        Sql where = keyed ? toSql(*parseExpression(criterion), resolve, isKey) : toSql(*parseExpression(criterion), resolve);
        Sql order = toSql(parseSort(sortText.isEmpty() ? QStringLiteral("[Laufendenummer]") : sortText),
                          resolve, int(where.params.size()) + 1);
        const std::string sql = "SELECT Laufendenummer FROM Adressenstamm WHERE " + where.text
            + " ORDER BY " + order.text;
        sqlite3_stmt* st = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(db_, sql.c_str(), -1, &st, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(db_);
        bindParameters(st, where.params);
        bindParameters(st, order.params, int(where.params.size()) + 1);
        std::vector<qlonglong> numbers;
        while (sqlite3_step(st) == SQLITE_ROW)
            numbers.push_back(sqlite3_column_int64(st, 0));
        sqlite3_finalize(st);
        return numbers;
    }

    static bool isKey(const QString& column) { return column == QLatin1String("Laufendenummer"); }

    sqlite3* db_ = nullptr;
};

using Numbers = std::vector<qlonglong>;

int errorNumberOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const RuntimeError& e) {
        return e.Number;
    }
    return 0;
}

}  // namespace

TEST_F(CardTable, FindingACardByNumberComparesTheNumberAsTextWithoutLeadingBlank)
{
    EXPECT_EQ(select("LEFT([Laufendenummer], 4) = '123 '"), Numbers{123});
    EXPECT_EQ(select("LEFT([Laufendenummer], 3) = '12 '"), Numbers{12});
    EXPECT_EQ(select("LEFT(Laufendenummer, 2) = '7 '"), Numbers{7});
    EXPECT_EQ(select("LEFT([Laufendenummer], 5) = '1234 '"), Numbers{1234});
    EXPECT_EQ(select("[Laufendenummer] LIKE 123"), Numbers{123});
    EXPECT_EQ(select("[Laufendenummer] = '45'"), Numbers{45});
    EXPECT_EQ(select("[Laufendenummer] & '' = '45'"), Numbers{45});
}

// LEFT(key, n) = '<integer text>' is answered through the key; it must select exactly what
// the general translation selects.
TEST_F(CardTable, TheCardNumberCriterionThroughTheKeySelectsTheSameCards)
{
    insert({0, "Null", nullptr, nullptr, nullptr});
    insert({-5, "Minus", nullptr, nullptr, nullptr});
    insert({1230, "Zehnfach", nullptr, nullptr, nullptr});
    insert({12345, "Lang", nullptr, nullptr, nullptr});
    const std::vector<std::pair<const char*, Numbers>> cases{
        {"LEFT([Laufendenummer], 4) = '123 '", {123}},
        {"'123 ' = LEFT([Laufendenummer], 4)", {123}},
        {"LEFT([Laufendenummer], 4) = '123'", {123}},
        {"LEFT([Laufendenummer], 9) = '123   '", {123}},
        {"LEFT([Laufendenummer], 3) = '12 '", {12}},
        {"LEFT([Laufendenummer], 3) = '123 '", {123, 1230, 1234, 12345}},  // n characters: the general way
        {"LEFT([Laufendenummer], 2) = '123 '", {}},
        {"LEFT([Laufendenummer], 5) = '0123 '", {}},  // the text of 123 is not "0123"
        {"LEFT([Laufendenummer], 5) = '00 '", {}},
        {"LEFT([Laufendenummer], 2) = '0 '", {0}},
        {"LEFT([Laufendenummer], 4) = '-5 '", {-5}},
        {"LEFT([Laufendenummer], 4) = '-0 '", {}},
        {"LEFT([Laufendenummer], 4) = '+5 '", {}},
        {"LEFT([Laufendenummer], 4) = ' 12'", {}},
        {"LEFT([Laufendenummer], 5) = '1234 '", {1234}},
        {"LEFT([Laufendenummer], 6) = '12345'", {12345}},
        {"LEFT([Laufendenummer], 30) = '99999999999999999999'", {}},
        {"NOT LEFT([Laufendenummer], 4) = '123 '", {-5, 0, 7, 12, 45, 99, 1230, 1234, 12345}},
        {"LEFT([Laufendenummer], 4) = '123 ' OR [Nachname] = 'Null'", {0, 123}},
    };
    for (const auto& [criterion, expected] : cases) {
        EXPECT_EQ(select(criterion, {}, true), expected) << criterion;
        EXPECT_EQ(select(criterion, {}, false), expected) << criterion;
    }

    const Sql keyed = toSql(*parseExpression("LEFT([Laufendenummer], 4) = '123 '"), resolve, isKey);
    EXPECT_EQ(keyed.text, "(\"Laufendenummer\" = ?1)");
    ASSERT_EQ(keyed.params.size(), 1u);
    EXPECT_EQ(keyed.params[0], QVariant(qlonglong(123)));
    // Not the key, not a plain integer text, or as long as n: the general translation.
    for (const char* other : {"LEFT([Nachname], 4) = '123 '", "LEFT([Laufendenummer], 5) = '0123 '",
                              "LEFT([Laufendenummer], 3) = '123 '", "LEFT([Laufendenummer], 4) <> '123 '",
                              "LEFT([Laufendenummer], 4) = 123"})
        EXPECT_NE(toSql(*parseExpression(other), resolve, isKey).text.find("jet_left"), std::string::npos) << other;
}

TEST_F(CardTable, TextComparisonIgnoresCaseAndTrailingBlanksButNotAccents)
{
    EXPECT_EQ(select("[Nachname] = 'müller'"), (Numbers{12, 123}));
    EXPECT_EQ(select("[Nachname] = 'Meier'"), Numbers{99});
    EXPECT_EQ(select("[Nachname] = 'MULLER'"), Numbers{});
    EXPECT_EQ(select("[Firma] = 'Apfel AG'"), Numbers{99});
    EXPECT_EQ(select("[Nachname] <> 'Müller'"), (Numbers{7, 99, 1234}));
    EXPECT_EQ(select("LEFT([Firma], 4) = 'OTTO'"), Numbers{12});
    EXPECT_EQ(select("UCASE([Nachname]) = 'SCHMIDT' AND LCASE([Typ]) IS NULL"), Numbers{1234});
    EXPECT_EQ(select("LEN([Nachname]) = 7 OR RIGHT([PLZ], 3) = '095'"), (Numbers{99, 123, 1234}));
    EXPECT_EQ(select("MID([Firma], 3, 4) = 'neil' OR TRIM([Nachname]) & '|' = 'Meier|'"), (Numbers{99, 123}));
}

TEST_F(CardTable, LikeKnowsItsWildcardsAndSkipsNull)
{
    EXPECT_EQ(select(R"([Typ] like '?1?????')"), (Numbers{7, 99, 123}));
    EXPECT_EQ(select(R"([Typ] like '???????')"), (Numbers{7, 12, 45, 99, 123}));
    EXPECT_EQ(select("[Nachname] like '*üll*'"), (Numbers{7, 12, 123}));
    EXPECT_EQ(select("[Nachname] not like '*üll*'"), (Numbers{99, 1234}));
    EXPECT_EQ(select("[PLZ] like '[0-1]####'"), (Numbers{7, 12}));
    EXPECT_EQ(select("[PLZ] like '[!0-1]*'"), (Numbers{99, 123, 1234}));
    EXPECT_EQ(select(R"([Typ] like '1??????' OR [Typ] like '??????1')"), (Numbers{12, 45, 99}));
}

TEST_F(CardTable, BetweenNullTestsAndNotFollowThreeValuedLogic)
{
    EXPECT_EQ(select("[PLZ] BETWEEN '10000' AND '50667'"), (Numbers{12, 99, 123}));
    EXPECT_EQ(select("[PLZ] NOT BETWEEN '10000' AND '50667'"), (Numbers{7, 1234}));
    EXPECT_EQ(select("[Laufendenummer] BETWEEN 10 AND 100"), (Numbers{12, 45, 99}));
    EXPECT_EQ(select("[Firma] IS NULL"), Numbers{7});
    EXPECT_EQ(select("[Firma] IS NOT NULL AND NOT [Nachname] = 'Meier'"), (Numbers{12, 123, 1234}));
    EXPECT_EQ(select("NOT ([Typ] like '1*')"), (Numbers{7, 45, 123}));
    EXPECT_EQ(select("[Nachname] & [Firma] = 'SchmidtSchmidt & Söhne'"), Numbers{1234});
    EXPECT_EQ(select("[Nachname] & [Firma] = 'Äpfel AG'"), Numbers{45});
    EXPECT_EQ(select("-[Laufendenummer] < -1000"), Numbers{1234});
}

TEST_F(CardTable, SortFollowsTheGeneralOrderWithNullFirst)
{
    EXPECT_EQ(select("[Laufendenummer] > 0", "[Nachname], [Laufendenummer]"), (Numbers{45, 99, 12, 123, 7, 1234}));
    EXPECT_EQ(select("[Laufendenummer] > 0", "[Nachname] DESC, Laufendenummer ASC"),
              (Numbers{1234, 7, 12, 123, 99, 45}));
    EXPECT_EQ(select("[Laufendenummer] > 0", "LEFT([Firma], 1) DESC, [Laufendenummer]"),
              (Numbers{1234, 12, 123, 45, 99, 7}));
}

TEST_F(CardTable, QuotesAndNamesAreReadAsTheOldEngineReadThem)
{
    EXPECT_EQ(select("[Firma] = 'O''Neil Ltd'"), Numbers{123});
    EXPECT_EQ(select("[Firma] = \"O'Neil Ltd\""), Numbers{123});
    EXPECT_EQ(select("[firma] = \"Schmidt & Söhne\""), Numbers{1234});
    EXPECT_EQ(select("[Odd \"Name\"] IS NULL AND laufendenummer = 7"), Numbers{7});
    EXPECT_EQ(select("left(nachname,1) = 'm' and (typ like '??1*' or typ like '*1')"), Numbers{7});
    EXPECT_EQ(select("Nachname = True OR Nachname = False"), Numbers{});
}

TEST_F(CardTable, UserTextNeverBecomesSql)
{
    const QString criterion = "[Firma] = '''; DROP TABLE Adressenstamm; --'";
    const Sql sql = toSql(*parseExpression(criterion), resolve);
    EXPECT_EQ(sql.text.find("DROP"), std::string::npos);
    ASSERT_EQ(sql.params.size(), 1u);
    EXPECT_EQ(sql.params[0].toString(), "'; DROP TABLE Adressenstamm; --");
    EXPECT_EQ(select(criterion), Numbers{});
    EXPECT_EQ(select("[Laufendenummer] > 0").size(), 6u);

    const Sql numbered = toSql(*parseExpression("[PLZ] = '1' OR [Typ] LIKE 2"), resolve, 5);
    EXPECT_EQ(numbered.text, "((\"PLZ\" COLLATE JETTEXT = ?5) OR jet_like(\"Typ\", ?6))");
}

TEST_F(CardTable, RefusedTextsRaiseWithTheirNumber)
{
    for (const char* text : {"[Firma] LIKE 'O'Neil'", "([Typ] like '1*'", "[Typ] like '1*')", "[PLZ] =",
                             "= 5", "[Firma] = 'open", "[Firma", "[] = 1", "LEFT([Firma]) = 'a'",
                             "NOSUCH([Firma]) = 1", "[PLZ] BETWEEN 1", "[PLZ] IS 5", "AND", "", "12abc = 1",
                             "[A] = 1 = 2", "[A] # 1", "[A] LIKE"}) {
        const int number = errorNumberOf([&] { parseExpression(QString::fromUtf8(text)); });
        EXPECT_EQ(number, err::SyntaxInExpression) << text;
    }
    EXPECT_EQ(errorNumberOf([] { parseSort("[A] DESC DESC"); }), err::SyntaxInExpression);
    EXPECT_EQ(errorNumberOf([] { parseSort("[A],"); }), err::SyntaxInExpression);
    EXPECT_EQ(errorNumberOf([] { toSql(*parseExpression("[Abteilung] = 'x'"), resolve); }), err::TooFewParameters);
    EXPECT_EQ(errorNumberOf([] { toSql(parseSort("[Abteilung]"), resolve); }), err::TooFewParameters);
    std::string deep(300, '(');
    EXPECT_EQ(errorNumberOf([&] { parseExpression(QString::fromStdString(deep + "1" + std::string(300, ')'))); }),
              err::SyntaxInExpression);
}

TEST(JetSort, ReadsDirectionsAndPlainColumns)
{
    const auto terms = parseSort("[Numeroatual] ASC, nachname desc, LEFT([PLZ], 2)");
    ASSERT_EQ(terms.size(), 3u);
    EXPECT_EQ(plainColumn(*terms[0].expr), QString("Numeroatual"));
    EXPECT_FALSE(terms[0].descending);
    EXPECT_EQ(plainColumn(*terms[1].expr), QString("nachname"));
    EXPECT_TRUE(terms[1].descending);
    EXPECT_FALSE(plainColumn(*terms[2].expr).has_value());
    EXPECT_TRUE(parseSort("   ").empty());
}

// Whatever arrives, the parser, the translator and LIKE answer or raise; they never crash, and
// whatever parses translates into SQL that SQLite accepts.
TEST(JetRobustness, RandomTextsNeverCrash)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(":memory:", &db), SQLITE_OK);
    registerFunctions(db);
    sqlite3_exec(db, "CREATE TABLE t (c TEXT); INSERT INTO t VALUES ('abc'), (NULL), (12)", nullptr, nullptr, nullptr);
    const auto run = [&](const Sql& sql, const char* head) {
        sqlite3_stmt* st = nullptr;
        const std::string text = head + sql.text;
        ASSERT_EQ(sqlite3_prepare_v2(db, text.c_str(), -1, &st, nullptr), SQLITE_OK) << text;
        bindParameters(st, sql.params);
        while (sqlite3_step(st) == SQLITE_ROW) {
        }
        sqlite3_finalize(st);
    };

    std::mt19937 random(20240611);
    const QStringList tokens{"[Firma]", "Nachname", "'text'", "\"q\"\"x\"", "123", "4.5", "=", "<>", "<=", ">",
                             "LIKE", "NOT", "AND", "OR", "BETWEEN", "IS", "NULL", "(", ")", ",", "&", "-",
                             "LEFT(", "MID(", "LEN(", "True", "'*[!a-", "ASC", "DESC", "[", "]", "'", "ü", "#"};
    const auto resolve = [](const QString& name) -> std::optional<QString> {
        if (name.size() < 12)
            return QStringLiteral("c");
        return std::nullopt;
    };
    // Well-formed expressions, so that the translator and SQLite see many shapes.
    std::function<QString(int)> grammar = [&](int depth) -> QString {
        const int pick = int(random() % (depth > 3 ? 4 : 14));
        const QString a = depth > 3 ? "[Firma]" : "(" + grammar(depth + 1) + ")";
        const QString b = depth > 3 ? "'x'" : "(" + grammar(depth + 1) + ")";
        switch (pick) {
        case 0: return "[Firma]";
        case 1: return "'it''s " + QString::number(random() % 100) + "'";
        case 2: return QString::number(random() % 1000);
        case 3: return "1.5";
        case 4: return a + " = " + b;
        case 5: return a + (random() % 2 ? " NOT LIKE " : " LIKE ") + b;
        case 6: return a + " BETWEEN " + b + " AND " + a;
        case 7: return a + (random() % 2 ? " IS NULL" : " IS NOT NULL");
        case 8: return a + (random() % 2 ? " AND " : " OR ") + b;
        case 9: return "NOT " + a;
        case 10: return a + " & " + b;
        case 11: return "((" + a + "))";
        case 12: return "-" + a;
        default: return QStringList{"LEFT", "RIGHT", "MID"}[int(random() % 3)] + "(" + a + ", " + b + ")";
        }
    };

    int translated = 0;
    for (int round = 0; round < 6000; ++round) {
        QString text;
        const int length = int(random() % 12);
        if (round % 3 == 2) {
            text = grammar(0);
        } else if (round % 3 == 0) {
            for (int i = 0; i < length; ++i)
                text += tokens[int(random() % tokens.size())] + (random() % 3 ? " " : "");
        } else {
            QByteArray bytes;
            for (int i = 0; i < length * 3; ++i)
                bytes += char(random() % 256);
            text = round % 2 ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
        }
        try {
            const Sql sql = toSql(*parseExpression(text), resolve);
            ++translated;
            run(sql, "SELECT 1 FROM t WHERE ");
        } catch (const RuntimeError& e) {
            ASSERT_NE(round % 3, 2) << text.toStdString() << ": " << e.what();
        }
        try {
            const auto sort = parseSort(text);
            if (!sort.empty())
                run(toSql(sort, resolve), "SELECT 1 FROM t ORDER BY ");
        } catch (const RuntimeError&) {
        }
        like(text, text.mid(int(random() % (text.size() + 1))));
        compareText(text, text.left(text.size() / 2));
        sortKey(text);
    }
    EXPECT_GT(translated, 2000);
    sqlite3_close(db);
}
