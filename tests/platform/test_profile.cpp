// Profile files: MERKKARTELLE.INI and win.ini in the Windows directory, read and written
// as the platform did.

#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/profile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace mk {
namespace {

class Profiles : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        savedHome = qEnvironmentVariable("MERKKARTELLE_HOME");
        hadHome = qEnvironmentVariableIsSet("MERKKARTELLE_HOME");
        qputenv("MERKKARTELLE_HOME", dir.filePath("home").toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
    }
    void TearDown() override
    {
        if (hadHome)
            qputenv("MERKKARTELLE_HOME", savedHome.toUtf8());
        else
            qunsetenv("MERKKARTELLE_HOME");
        setProfileLocale(QLocale::system());
    }

    QByteArray iniBytes() const
    {
        QFile file(iniFilePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }
    void putIni(const QString& path, const QByteArray& bytes) const
    {
        QDir().mkpath(windowsDirectory());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QString ini(const char* key, const char* fallback = "-") const
    {
        return GetPrivateProfileString("Databases", key, fallback, "MERKKARTELLE.INI");
    }

    QTemporaryDir dir;
    QString savedHome;
    bool hadHome = false;
};

TEST_F(Profiles, WritingCreatesFolderFileAndSection)
{
    WritePrivateProfileString("Databases", "Filename", "karten.mdb", "MERKKARTELLE.INI");
    WritePrivateProfileString("Databases", "Workdir", "/home/anna/Karten", "MERKKARTELLE.INI");
    EXPECT_EQ(iniBytes(), "[Databases]\r\nFilename=karten.mdb\r\nWorkdir=/home/anna/Karten\r\n");
    EXPECT_EQ(ini("Filename"), "karten.mdb");
    EXPECT_EQ(ini("Workdir"), "/home/anna/Karten");
}

TEST_F(Profiles, ReplacingAKeyKeepsEverythingElseInPlace)
{
    putIni(iniFilePath(), "; Merkkartelle\r\n[Databases]\r\nFilename=a.mdb\r\nWorkdir=/alt\r\n"
                          "ReadOnly=0\r\n\r\n[Other]\r\nx=1\r\n");
    WritePrivateProfileString("DATABASES", "workdir", "/neu", "merkkartelle.ini");
    WritePrivateProfileString("Databases", "Dbmerkkartelle", "Adressenstamm", "MERKKARTELLE.INI");
    WritePrivateProfileString("Other", "y", "", "MERKKARTELLE.INI");
    EXPECT_EQ(iniBytes(), "; Merkkartelle\r\n[Databases]\r\nFilename=a.mdb\r\nworkdir=/neu\r\n"
                          "ReadOnly=0\r\nDbmerkkartelle=Adressenstamm\r\n\r\n[Other]\r\nx=1\r\ny=\r\n");
    EXPECT_EQ(GetPrivateProfileString("other", "Y", "dflt", "MERKKARTELLE.INI"), "");
    EXPECT_EQ(GetPrivateProfileString("other", "X", "dflt", "MERKKARTELLE.INI"), "1");
}

TEST_F(Profiles, ReadingTakesTheDefaultQuotesAndZero)
{
    EXPECT_EQ(ini("Filename", "merkkartelle.mdb"), "merkkartelle.mdb");  // no file yet
    QByteArray bytes("[Databases]\r\n  Filename = \"mit Blank.mdb\" \r\nWorkdir=/a");
    bytes.append('\0').append("/b\r\n");
    putIni(iniFilePath(), bytes);
    EXPECT_EQ(ini("Filename"), "mit Blank.mdb");
    EXPECT_EQ(ini("Workdir"), "/a");
    EXPECT_EQ(ini("ReadOnly", "0  "), "0");
    EXPECT_EQ(GetPrivateProfileString("Fehlt", "Filename", "d", "MERKKARTELLE.INI"), "d");
    EXPECT_EQ(GetPrivateProfileString("Databases", "Filename", "d", "anderes.ini"), "d");
}

TEST_F(Profiles, TheFixedWindowsPathIsTheIniFile)
{
    WritePrivateProfileString("Databases", "ReadOnly", "1", "MERKKARTELLE.INI");
    EXPECT_EQ(GetPrivateProfileString("Databases", "ReadOnly", "0", "c:\\windows\\MERKKARTELLE.INI"),
              "1");
    EXPECT_EQ(resolvePath("C:\\WINDOWS\\merkkartelle.ini"), iniFilePath());
    Kill("c:\\windows\\MERKKARTELLE.INI");
    EXPECT_FALSE(QFile::exists(iniFilePath()));
    EXPECT_FALSE(underIgnoredErrors([] { Kill("c:\\windows\\MERKKARTELLE.INI"); }));
}

TEST_F(Profiles, DeletingKeysAndSections)
{
    putIni(iniFilePath(), "[A]\r\nk=1\r\nl=2\r\n[B]\r\nm=3\r\n");
    deletePrivateProfileKey("a", "K", "MERKKARTELLE.INI");
    deletePrivateProfileSection("b", "MERKKARTELLE.INI");
    EXPECT_EQ(iniBytes(), "[A]\r\nl=2\r\n");
}

TEST_F(Profiles, WinIniIntlComesFromTheLocaleWhereTheFileIsSilent)
{
    EXPECT_EQ(GetProfileString("Intl", "sDecimal", ""), ",");
    EXPECT_EQ(GetProfileString("intl", "STHOUSAND", ""), ".");
    EXPECT_EQ(GetProfileString("Intl", "sDate", ""), ".");
    EXPECT_EQ(GetProfileString("Intl", "sShortDate", ""), "dd.MM.yyyy");
    EXPECT_EQ(GetProfileString("windows", "spooler", ""), "yes");
    EXPECT_EQ(GetProfileString("Intl", "iCountry", "49"), "49");

    setProfileLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(GetPrivateProfileString("Intl", "sDecimal", "", "win.ini"), ".");
    EXPECT_EQ(GetPrivateProfileString("Intl", "sShortDate", "", "Win.ini"), "M/d/yyyy");
    EXPECT_EQ(GetPrivateProfileString("Intl", "sDate", "", "win.ini"), "/");

    WritePrivateProfileString("Intl", "sDecimal", ";", "Win.ini");
    WritePrivateProfileString("Extensions", "doc", "/usr/bin/writer ^.doc", "WIN.INI");
    EXPECT_TRUE(QFile::exists(winIniPath()));
    EXPECT_EQ(GetProfileString("Intl", "sDecimal", ""), ";");
    EXPECT_EQ(GetProfileString("Intl", "sThousand", ""), ",");
    EXPECT_EQ(GetProfileString("Extensions", "DOC", ""), "/usr/bin/writer ^.doc");
    // Other files have no stand-ins.
    EXPECT_EQ(GetPrivateProfileString("Intl", "sThousand", "x", "MERKKARTELLE.INI"), "x");
}

TEST_F(Profiles, AFileWithAPathIsTakenFromTheCurrentDirectory)
{
    const QString previous = CurDir();
    ChDir(dir.path());
    WritePrivateProfileString("S", "k", "v", ".\\eigene.ini");
    ChDir(previous);
    EXPECT_TRUE(QFile::exists(dir.filePath("eigene.ini")));
    EXPECT_EQ(GetPrivateProfileString("s", "K", "", dir.filePath("eigene.ini")), "v");
}

}  // namespace
}  // namespace mk
