// Files and folders as the old runtime's statements saw them, the path helpers, and the
// application home a first start lays out.

#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "support/runtime_errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace mk {
namespace {

using test::errorOf;

// Sets an environment variable for one test and puts the old value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const QString& value)
        : name_(name), had_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name))
    {
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value.toUtf8());
    }
    ~ScopedEnv()
    {
        if (had_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }

private:
    const char* name_;
    bool had_;
    QByteArray old_;
};

class Files : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        previous = CurDir();
        ChDir(dir.path());
    }
    void TearDown() override { ChDir(previous); }

    void put(const QString& name, const QByteArray& bytes = "x") const
    {
        QDir().mkpath(QFileInfo(dir.filePath(name)).path());
        QFile file(dir.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QString path(const QString& name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    QString previous;
};

TEST_F(Files, DirOnAMissingFolderRaisesOnAnExistingOneAnswersEmpty)
{
    EXPECT_EQ(errorOf([&] { Dir(path("fehlt/merkkartelle.mdb")); }), err::PathNotFound);
    EXPECT_EQ(errorOf([] { Dir("X:\\Karten\\merkkartelle.mdb"); }), err::PathNotFound);
    EXPECT_EQ(Dir(path("merkkartelle.mdb")), "");
    put("merkkartelle.mdb");
    EXPECT_EQ(Dir(path("merkkartelle.mdb")), "merkkartelle.mdb");
    EXPECT_EQ(Dir(path("MERKKARTELLE.MDB")), "merkkartelle.mdb");  // names match in any case
    QDir(dir.path()).mkdir("ordner");
    EXPECT_EQ(Dir(path("ordner")), "");  // folders are no files
}

TEST_F(Files, DirWithWildcardsWalksTheMatchesInNameOrder)
{
    put("b.dat");
    put("A.DAT");
    put("c.txt");
    put("ohne");
    QDir(dir.path()).mkdir("d.dat");
    EXPECT_EQ(Dir(path("*.dat")), "A.DAT");
    EXPECT_EQ(Dir(), "b.dat");
    EXPECT_EQ(Dir(), "");
    EXPECT_EQ(Dir(path("?.t*")), "c.txt");
    EXPECT_EQ(Dir(path("ohne.*")), "ohne");
    EXPECT_EQ(Dir(dir.path() + "\\"), "A.DAT");
    EXPECT_EQ(Dir(""), "A.DAT");  // the current directory
    EXPECT_EQ(Dir(path("*.mdb")), "");
}

TEST_F(Files, NameRenamesButNeverOntoAFile)
{
    put("alt.dat", "alt");
    put("da.dat", "da");
    EXPECT_EQ(errorOf([] { Name("alt.dat", "da.dat"); }), err::FileAlreadyExists);
    EXPECT_EQ(errorOf([] { Name("fehlt.dat", "neu.dat"); }), err::FileNotFound);
    EXPECT_EQ(errorOf([] { Name("alt.dat", "fehlt\\neu.dat"); }), err::PathNotFound);
    Name("alt.dat", "neu.dat");
    EXPECT_FALSE(QFile::exists(path("alt.dat")));
    EXPECT_EQ(FileLen("neu.dat"), 3);
}

TEST_F(Files, KillAndItsErrors)
{
    put("a.dat");
    put("b.dat");
    put("c.txt");
    EXPECT_EQ(errorOf([] { Kill("fehlt.dat"); }), err::FileNotFound);
    EXPECT_EQ(errorOf([] { Kill("ordner/fehlt.dat"); }), err::PathNotFound);
    Kill("*.dat");
    EXPECT_EQ(Dir("*.*"), "c.txt");
    Kill("C.TXT");
    EXPECT_EQ(Dir("*.*"), "");
}

TEST_F(Files, FileCopyOverwritesKeepsTheTimeAndRefusesItself)
{
    put("db.mdb", "12345");
    put("ziel/db.mdb", "alt");
    const QDateTime stamp = QDateTime::currentDateTime().addDays(-3);
    {
        QFile source(path("db.mdb"));
        ASSERT_TRUE(source.open(QIODevice::ReadWrite));
        ASSERT_TRUE(source.setFileTime(stamp, QFileDevice::FileModificationTime));
    }
    FileCopy("db.mdb", "ziel\\db.mdb");
    EXPECT_EQ(FileLen("ziel/db.mdb"), 5);
    EXPECT_EQ(FileDateTime("ziel/db.mdb").toSecsSinceEpoch(), stamp.toSecsSinceEpoch());
    EXPECT_EQ(errorOf([] { FileCopy("fehlt.mdb", "x.mdb"); }), err::FileNotFound);
    EXPECT_EQ(errorOf([] { FileCopy("db.mdb", "nirgends/db.mdb"); }), err::PathNotFound);
    EXPECT_EQ(errorOf([] { FileCopy("db.mdb", "./DB.mdb"); }), err::PermissionDenied);
}

TEST_F(Files, MkDirFileLenFileDateTime)
{
    MkDir("neu");
    EXPECT_TRUE(QFileInfo(path("neu")).isDir());
    EXPECT_EQ(errorOf([] { MkDir("neu"); }), err::PathFileAccess);
    EXPECT_EQ(errorOf([] { MkDir("a\\b"); }), err::PathNotFound);
    EXPECT_EQ(errorOf([] { FileLen("fehlt"); }), err::FileNotFound);
    EXPECT_EQ(errorOf([] { FileDateTime("fehlt"); }), err::FileNotFound);
    EXPECT_EQ(errorOf([] { FileLen("neu"); }), err::FileNotFound);
}

TEST_F(Files, RelativePathsStartAtTheCurrentDirectoryNotTheProcesss)
{
    const QString processDir = QDir::currentPath();
    put("Karten/x.txt");
    ChDir("karten");  // found without regard to case
    EXPECT_EQ(CurDir(), path("Karten"));
    EXPECT_EQ(QDir::currentPath(), processDir);

    writePositionalFile("rel.cfg", {1});
    EXPECT_TRUE(QFile::exists(path("Karten/rel.cfg")));
    EXPECT_EQ(Dir("rel.cfg"), "rel.cfg");
    EXPECT_EQ(FileLen("REL.CFG"), 3);
    EXPECT_EQ(readRecords("rel.cfg"), QStringList{"1"});
    WritePrivateProfileString("S", "k", "v", ".\\rel.ini");
    EXPECT_TRUE(QFile::exists(path("Karten/rel.ini")));
    ChDir("..");
    EXPECT_EQ(CurDir(), dir.path());
    ChDrive("D");
    EXPECT_EQ(CurDir(), dir.path());
    EXPECT_EQ(errorOf([] { ChDir("fehlt"); }), err::PathNotFound);
    EXPECT_EQ(CurDir(), dir.path());
}

TEST(Paths, NameAndFolderSplitAtTheLastSeparator)
{
    EXPECT_EQ(DateiName("C:\\Karten\\merkkartelle.mdb"), "merkkartelle.mdb");
    EXPECT_EQ(DateiPfad("C:\\Karten\\merkkartelle.mdb"), "C:\\Karten");
    EXPECT_EQ(DateiName("/home/anna\\Karten/a.mdb"), "a.mdb");
    EXPECT_EQ(DateiPfad("/home/anna\\Karten/a.mdb"), "/home/anna\\Karten");
    EXPECT_EQ(DateiName("a.mdb"), "a.mdb");
    EXPECT_EQ(DateiPfad("a.mdb"), "");
    EXPECT_EQ(DateiName("/home/"), "");
    EXPECT_EQ(DateiPfad("/a.mdb"), "/");
    EXPECT_EQ(DateiName(""), "");
    EXPECT_EQ(DateiPfad(""), "");
    EXPECT_EQ(joinPath("/home/anna", "a.mdb"), "/home/anna/a.mdb");
    EXPECT_EQ(joinPath("/home/anna/", "a.mdb"), "/home/anna/a.mdb");
    EXPECT_EQ(joinPath("", "a.mdb"), "a.mdb");
    EXPECT_EQ(joinPath(DateiPfad("/a.mdb"), DateiName("/a.mdb")), "/a.mdb");
}

TEST(AppHome, HomesFollowTheEnvironment)
{
    QTemporaryDir dir;
    ScopedEnv home("HOME", dir.path());
    ScopedEnv own("MERKKARTELLE_HOME", QString());
    ScopedEnv data("XDG_DATA_HOME", QString());
    ScopedEnv config("XDG_CONFIG_HOME", QString());
    EXPECT_EQ(applicationHome(), dir.path() + "/.local/share/merkkartelle");
    EXPECT_EQ(windowsDirectory(), dir.path() + "/.config/merkkartelle");
    {
        ScopedEnv data2("XDG_DATA_HOME", "/xdg/data");
        ScopedEnv config2("XDG_CONFIG_HOME", "/xdg/config");
        EXPECT_EQ(applicationHome(), "/xdg/data/merkkartelle");
        EXPECT_EQ(iniFilePath(), "/xdg/config/merkkartelle/MERKKARTELLE.INI");
        ScopedEnv own2("MERKKARTELLE_HOME", "/mk");
        EXPECT_EQ(applicationHome(), "/mk");
        EXPECT_EQ(iniFilePath(), "/mk/MERKKARTELLE.INI");
        EXPECT_EQ(winIniPath(), "/mk/win.ini");
    }
}

TEST(AppHome, LayoutMakesTheFourFilesAndOverwritesNothing)
{
    QTemporaryDir dir;
    const QString home = dir.filePath("neu/home");
    ScopedEnv own("MERKKARTELLE_HOME", home);
    EXPECT_TRUE(applicationHomeNeedsLayout());
    QDir().mkpath(home);
    {
        QFile mine(home + "/merkkartelle.mdb");
        ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
        mine.write("meine Karten");
    }
    layoutApplicationHome();
    EXPECT_FALSE(applicationHomeNeedsLayout());
    EXPECT_EQ(FileLen(home + "/merkkartelle.mdb"), 12);

    const struct {
        const char* name;
        DatabaseKind kind;
    } laidOut[] = {{"EMPTYMDB.KDB", DatabaseKind::Cards},
                   {"GlobalView.mdb", DatabaseKind::GlobalView},
                   {"Telephone.mdb", DatabaseKind::Telephone}};
    for (const auto& file : laidOut) {
        SCOPED_TRACE(file.name);
        DatabasePtr db = Database::open(home + "/" + file.name);
        RecordsetPtr rs = db->createDynaset(tableNameOf(file.kind));
        EXPECT_EQ(rs->RecordCount(), 0);
        rs->close();
        db->close();
    }

    // A later start finds the template and lays out nothing, even what went missing.
    QFile::remove(home + "/merkkartelle.mdb");
    layoutApplicationHomeIfNeeded();
    EXPECT_FALSE(QFile::exists(home + "/merkkartelle.mdb"));
    QFile::remove(home + "/EMPTYMDB.KDB");
    layoutApplicationHomeIfNeeded();
    DatabasePtr db = Database::open(home + "/merkkartelle.mdb");
    EXPECT_EQ(db->createDynaset(tableNameOf(DatabaseKind::Cards))->RecordCount(), 0);
}

}  // namespace
}  // namespace mk
