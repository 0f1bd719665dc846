// Positional text files: what Write # puts on disk, what Input # makes of it, and the quiet
// reading that leaves defaults in force.

#include "platform/files.h"
#include "platform/text_files.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <random>

namespace mk {
namespace {

class TextFiles : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        previous = CurDir();
        ChDir(dir.path());
    }
    void TearDown() override { ChDir(previous); }

    QByteArray bytesOf(const QString& name) const
    {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }
    void putBytes(const QString& name, const QByteArray& bytes) const
    {
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir dir;
    QString previous;
};

TEST_F(TextFiles, WriteTypesByteExactAndReadBackAsTexts)
{
    writePositionalFile("a.cfg", {QStringLiteral("A - Z"), "", true, false, 1, -5, 1234.5, 0.5f,
                                  8.25f, 3.0, WriteValue::null(), "Straße, Nr. 4"});
    EXPECT_EQ(bytesOf("a.cfg"),
              QByteArray("\"A - Z\"\r\n\"\"\r\n#TRUE#\r\n#FALSE#\r\n1\r\n-5\r\n1234.5\r\n.5\r\n"
                         "8.25\r\n3\r\n#NULL#\r\n\"Stra\xc3\x9f" "e, Nr. 4\"\r\n"));
    EXPECT_EQ(readRecords("a.cfg"),
              (QStringList{"A - Z", "", "#TRUE#", "#FALSE#", "1", "-5", "1234.5", ".5", "8.25",
                           "3", "#NULL#", "Straße, Nr. 4"}));
}

TEST_F(TextFiles, NumbersKeepThePointInAnyLocale)
{
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString written = writeRecord({1234.5, -0.25, 1e20, 0.1f});
    QLocale::setDefault(saved);
    EXPECT_EQ(written, "1234.5,-.25,1E+20,.1");
}

TEST_F(TextFiles, DoubleQuoteInsideATextShiftsTheLaterRecords)
{
    writePositionalFile("q.cfg", {QStringLiteral("He said \"hi\""), "next", true});
    EXPECT_EQ(bytesOf("q.cfg"), QByteArray("\"He said \"hi\"\"\r\n\"next\"\r\n#TRUE#\r\n"));
    EXPECT_EQ(readRecords("q.cfg"), (QStringList{"He said ", "hi\"\"", "next", "#TRUE#"}));
}

TEST_F(TextFiles, RecordsOfOneLineAndBlanksAroundThem)
{
    {
        TextWriter writer("r.txt");
        writer.write({"x", 1, true});
        writer.write({});
        writer.print("  \"a\"  ,  12,x y ");
    }
    EXPECT_EQ(bytesOf("r.txt"), QByteArray("\"x\",1,#TRUE#\r\n\r\n  \"a\"  ,  12,x y \r\n"));
    EXPECT_EQ(readRecords("r.txt"), (QStringList{"x", "1", "#TRUE#", "", "a", "12", "x y "}));
}

TEST_F(TextFiles, EveryLineEndSeparates)
{
    TextReader reader = TextReader::fromBytes("1\n2\r3\r\n\"4\"\n,\n");
    QStringList records;
    while (!reader.atEnd())
        records.append(reader.next());
    EXPECT_EQ(records, (QStringList{"1", "2", "3", "4", "", ""}));
}

TEST_F(TextFiles, QuotedTextRunsOverLineEndsToTheNextQuote)
{
    TextReader reader = TextReader::fromBytes("\"one\r\ntwo\",3\r\n\"open");
    EXPECT_EQ(reader.next(), "one\r\ntwo");
    EXPECT_EQ(reader.next(), "3");
    EXPECT_EQ(reader.next(), "open");
    EXPECT_TRUE(reader.atEnd());
}

TEST_F(TextFiles, ReadingPastTheEndRaises)
{
    TextReader reader = TextReader::fromBytes("1\r\n");
    EXPECT_EQ(reader.next(), "1");
    EXPECT_TRUE(reader.atEnd());
    try {
        reader.next();
        FAIL() << "no error past the end";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number, err::InputPastEnd);
    }
    EXPECT_THROW(TextReader::fromBytes("").nextLine(), RuntimeError);
}

TEST_F(TextFiles, PrintAndLineInputKeepWholeLines)
{
    printLines("l.txt", {"Name, Vorname", "\"zitiert\"", "", "Ende"});
    EXPECT_EQ(bytesOf("l.txt"), QByteArray("Name, Vorname\r\n\"zitiert\"\r\n\r\nEnde\r\n"));
    EXPECT_EQ(readLines("l.txt"), (QStringList{"Name, Vorname", "\"zitiert\"", "", "Ende"}));

    TextReader mixed = TextReader::fromBytes("a\n\nb\rc");
    QStringList lines;
    while (!mixed.atEnd())
        lines.append(mixed.nextLine());
    EXPECT_EQ(lines, (QStringList{"a", "", "b", "c"}));
}

TEST_F(TextFiles, AppendAddsToTheEnd)
{
    printLines("s.txt", {"1"});
    TextWriter(QStringLiteral("s.txt"), TextWriter::Mode::Append).print("2");
    EXPECT_EQ(bytesOf("s.txt"), QByteArray("1\r\n2\r\n"));
}

TEST_F(TextFiles, EncodingUtf8ElseWindows1252)
{
    putBytes("alt.txt", "\"M\xfcller\",\"\x80 5\"\r\n");
    EXPECT_EQ(readRecords("alt.txt"), (QStringList{"Müller", "€ 5"}));
    putBytes("neu.txt", "\xef\xbb\xbf\"M\xc3\xbcller\"\r\n");
    EXPECT_EQ(readRecords("neu.txt"), QStringList{"Müller"});
}

TEST_F(TextFiles, MissingFilesRaiseOrFailQuietly)
{
    try {
        TextReader reader("fehlt.cfg");
        FAIL() << "opened a missing file";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number, err::FileNotFound);
    }
    try {
        TextReader reader("nirgends/fehlt.cfg");
        FAIL() << "opened a file in a missing folder";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number, err::PathNotFound);
    }
    EXPECT_THROW(TextWriter("nirgends/neu.cfg"), RuntimeError);

    const PositionalFile missing = readPositionalFile("fehlt.cfg");
    EXPECT_FALSE(missing.existed);
    EXPECT_TRUE(missing.records.isEmpty());

    putBytes("kurz.cfg", "\"A\"\r\n#TRUE#\r\n");
    const PositionalFile shortFile = readPositionalFile("kurz.cfg");
    EXPECT_TRUE(shortFile.existed);
    EXPECT_EQ(shortFile.records, (QStringList{"A", "#TRUE#"}));
}

TEST(TextConversions, BooleanAsTheRuntimeTookIt)
{
    for (const char* yes : {"True", "TRUE", "#TRUE#", "#true#", " -1 ", "1", "2.5"})
        EXPECT_TRUE(toBoolean(yes)) << yes;
    for (const char* no : {"False", "false", "#FALSE#", "0", "0.0"})
        EXPECT_FALSE(toBoolean(no)) << no;
    for (const char* neither : {"", "ja", "#NULL#"}) {
        try {
            toBoolean(neither);
            ADD_FAILURE() << neither;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number, err::TypeMismatch);
        }
    }
}

TEST(TextConversions, ValReadsTheLeadingNumber)
{
    EXPECT_EQ(Val("1234.5"), 1234.5);
    EXPECT_EQ(Val("  12abc"), 12);
    EXPECT_EQ(Val("1 2 3"), 123);
    EXPECT_EQ(Val("3,5"), 3);  // only a point is a decimal sign
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("-.25"), -0.25);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("1e3x"), 1000);
    EXPECT_EQ(Val("2D2"), 200);
    EXPECT_EQ(Val("5e"), 5);
    EXPECT_EQ(Val("&HFF"), 255);
    EXPECT_EQ(Val("&HFFFF"), -1);
    EXPECT_EQ(Val("&O17"), 15);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val("--3"), 0);
    EXPECT_EQ(Val("\"5\""), 0);
}

// Whatever bytes a file holds, reading it ends: every Input # takes at least one character.
TEST(TextReaderRobustness, RandomBytesNeitherCrashNorHang)
{
    std::mt19937 random(20240611);
    const QByteArray favourites(" \t,\"\r\nx1#");
    for (int round = 0; round < 4000; ++round) {
        QByteArray bytes;
        const int length = std::uniform_int_distribution<int>(0, 120)(random);
        for (int i = 0; i < length; ++i) {
            const int pick = std::uniform_int_distribution<int>(0, 511)(random);
            bytes.append(pick < 256 ? char(pick) : favourites.at(pick % favourites.size()));
        }
        TextReader records = TextReader::fromBytes(bytes);
        int calls = 0;
        while (!records.atEnd() && calls <= length)
            (void)records.next(), ++calls;
        ASSERT_TRUE(records.atEnd()) << "stuck on round " << round;
        TextReader lines = TextReader::fromBytes(bytes);
        calls = 0;
        while (!lines.atEnd() && calls <= length)
            (void)lines.nextLine(), ++calls;
        ASSERT_TRUE(lines.atEnd()) << "stuck on round " << round;
    }
}

}  // namespace
}  // namespace mk
