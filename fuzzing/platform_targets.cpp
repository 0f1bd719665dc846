// Readers of the platform: the criteria language, the positional text files, the INI files.

#include "fuzzing/fuzz_target.h"
#include "fuzzing/fuzz_home.h"

#include "platform/jet_expression.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/runtime_error.h"
#include "platform/schema.h"
#include "platform/store.h"
#include "platform/text_files.h"

#include <QFile>

namespace mk::fuzz {

namespace {

QString text(const QByteArray& input) { return decodeTextFile(input); }

// A criterion as the store takes it for a filter, a sort and a find, on a real card table.
void criteria(const QByteArray& input)
{
    static const QString database = [] {
        const QString path = joinPath(fuzzHome(), QStringLiteral("kriterien.mdb"));
        QFile::remove(path);
        createEmptyDatabase(DatabaseKind::Cards, path);
        RecordsetPtr rs = Database::open(path)->createDynaset(QStringLiteral("Adressenstamm"));
        for (const char* name : {"Müller", "Meier", "", "Zander"}) {
            rs->AddNew();
            rs->Fields(QStringLiteral("Nachname")).setValue(QString::fromUtf8(name));
            rs->Fields(QStringLiteral("Typ")).setValue(QStringLiteral("0100000"));
            rs->Update();
        }
        return path;
    }();
    static DatabasePtr db = Database::open(database);
    const QString criterion = text(input);
    try {
        RecordsetPtr rs = db->createDynaset(QStringLiteral("Adressenstamm"));
        rs->Filter = criterion;
        RecordsetPtr narrowed = rs->createDynaset();
        if (narrowed->RecordCount() > 0)
            narrowed->FindFirst(criterion);
    } catch (const RuntimeError&) {
    }
    try {
        RecordsetPtr rs = db->createDynaset(QStringLiteral("Adressenstamm"));
        rs->Sort = criterion;
        rs->createDynaset();
    } catch (const RuntimeError&) {
    }
}

std::vector<QByteArray> criteriaSeeds()
{
    return {"[Nachname] = 'Müller'", "LEFT([Laufendenummer], 4) = '123 '", "[Typ] like '?1\?\?\?\?\?'",
            "[Typ] like '1\?\?\?\?\?\?' OR [Typ] like '\?\?\?\?\?\?1'", "NOT [PLZ] BETWEEN '1' AND '5' AND [Stadt] IS NOT NULL",
            "UCASE(MID([Vorname], 2, 3)) & 'x' <> LCASE(TRIM(\"a\"))", "[Nachname] LIKE '[!a-m]*#?'",
            "LEN([Strasse]) >= 3", "[Nachname] DESC, [Vorname]", "((([Firma] = 'x')))"};
}

// The positional reader, record by record and line by line, as every settings file is read.
void positional(const QByteArray& input)
{
    TextReader records = TextReader::fromBytes(input);
    for (int i = 0; i < 10000 && !records.atEnd(); ++i)
        records.next();
    TextReader lines = TextReader::fromBytes(input);
    for (int i = 0; i < 10000 && !lines.atEnd(); ++i)
        lines.nextLine();
}

std::vector<QByteArray> positionalSeeds()
{
    return {"\"A - Z\"\r\n#FALSE#\r\n1\r\n12632256\r\n1234.5\r\n\"\"\r\n", "\"a, b\",\"c\"\"d\"\r\n#NULL#\r\n",
            "  -12 , \"x\" ,#TRUE#\n", QByteArray("\xC4pfel\r\n", 7)};
}

// MERKKARTELLE.INI and win.ini: sections, keys, the locale values.
void profile(const QByteArray& input)
{
    const QString path = joinPath(fuzzHome(), QStringLiteral("fuzz.ini"));
    writeFuzzFile(path, input);
    for (const char* section : {"Databases", "Intl", "Extensions", "Ports", ""})
        for (const char* key : {"Workdir", "Filename", "sDecimal", "txt", "COM1", ""})
            GetPrivateProfileString(QString::fromLatin1(section), QString::fromLatin1(key), QStringLiteral("-"), path);
    WritePrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Workdir"), QStringLiteral("x"), path);
}

std::vector<QByteArray> profileSeeds()
{
    return {"[Databases]\r\nWorkdir=/home/anna\r\nFilename=merkkartelle.mdb\r\nReadOnly=0\r\n",
            "[Intl]\nsDecimal=,\nsThousand=.\n[Extensions]\ntxt=kate ^.txt\n", "[Ports\r\nCOM1=/dev/ttyS0\r\n=\r\n[]\r\n"};
}

}  // namespace

std::vector<Target> platformTargets()
{
    return {
        {"criteria", "the criteria language: filters, sorts and finds on a card table", criteria, criteriaSeeds},
        {"positional", "the positional text reader of every settings and list file", positional, positionalSeeds},
        {"profile", "the INI reader and writer", profile, profileSeeds},
    };
}

}  // namespace mk::fuzz
