// The way out with a safety copy: the copy is the database byte for byte, the side files
// follow where they are, an existing copy is replaced only on yes and only by a whole one,
// and every failure of the database copy ends in a box that says why.

#include "maintenance_home.h"

#include "maintenance/backup_copy.h"

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace mk::test {
namespace {

class BackupTest : public MaintenanceHome {
protected:
    void SetUp() override
    {
        MaintenanceHome::SetUp();
        addCard({{"Nachname", "Zeller"}, {"Bemerkung", QString(4000, u'x')}});
        addCard({{"Nachname", "Adler"}});
        start();
        target = homeFile("usb/sicherung");
    }

    // Leaves through the exit button: the dialog comes up, the target is typed, then act.
    bool leave(const QString& folder, std::function<void()> act)
    {
        whileShown("Form5", [this, folder, act] {
            app().Form5.Text3.Text = homeFile("usb");
            raiseEvent(app(), "Form5.Text3", "Change");
            app().Form5.Text2.Text = folder;
            raiseEvent(app(), "Form5.Text2", "Change");
            act();
        });
        return ends([&] { raiseEvent(app(), "Hauptmaske.Command3D1", "Click"); });
    }
    bool copyAndLeave(const QString& folder = QStringLiteral("sicherung"))
    {
        return leave(folder, [this] { raiseEvent(app(), "Form5.Command3D1", "Click"); });
    }

    QString target;
};

TEST_F(BackupTest, TheCopyIsTheDatabaseByteForByteAndTheSystemEnds)
{
    writeBytes(homeFile("Vorname.txt"), "\"Anna\"\r\n");
    const QByteArray original = readBytes(defaultDatabase());
    ASSERT_FALSE(original.isEmpty());

    EXPECT_TRUE(copyAndLeave());
    EXPECT_EQ(readBytes(joinPath(target, "merkkartelle.mdb")), original);
    EXPECT_EQ(readBytes(joinPath(target, "Vorname.txt")), "\"Anna\"\r\n");
    EXPECT_TRUE(exists(joinPath(target, "Telephone.mdb")));
    EXPECT_FALSE(exists(joinPath(target, "Nachname.txt")));  // missing: passed over
    EXPECT_EQ(app().Form5.Label5.Caption, "Abgeschlossen !");
    EXPECT_EQ(fileBytes("session.txt"), "1\r\n");
    EXPECT_TRUE(exists(homeFile("merkkartelle.cfg")));

    ASSERT_EQ(ui().messageBoxes().size(), 0u);
    const QString notice = app().Message.Label1.Caption;
    EXPECT_TRUE(notice.startsWith("Zieldatei: " + joinPath(target, "merkkartelle.mdb") + "\r\nmit ")) << notice.toStdString();
    EXPECT_TRUE(notice.contains(" Kb wurde erfolgreich gespeichert.\r\n"));
}

TEST_F(BackupTest, AnExistingCopyIsReplacedOnlyOnYes)
{
    ASSERT_TRUE(QDir().mkpath(target));
    const QString copy = joinPath(target, "merkkartelle.mdb");
    writeBytes(copy, QByteArray(2048, 'a'));

    ui().answerMsgBox(vbNo);
    EXPECT_FALSE(copyAndLeave());
    EXPECT_EQ(readBytes(copy), QByteArray(2048, 'a'));
    EXPECT_EQ(app().Form5.Label5.Caption, "User abbruch !");
    const ShownBox box = ui().messageBoxes().at(0);
    EXPECT_EQ(box.title, "Aktuelle Datenbank kopieren ?");
    EXPECT_EQ(box.prompt, "   Soll die externe Datei: " + copy + " (2 kb) ?\r\ndurch die aktuelle Datei: "
                              + defaultDatabase() + " ("
                              + QString::number(double(QFileInfo(defaultDatabase()).size()) / 1024.0, 'g', 12).replace('.', ',')
                              + " kb) ersetzt werden ?");

    ui().answerMsgBox(vbYes);
    EXPECT_TRUE(copyAndLeave());
    EXPECT_EQ(readBytes(copy), readBytes(defaultDatabase()));
}

TEST_F(BackupTest, TheSameFolderAsTheDatabaseIsRefusedWithAWordAndTheDialogStays)
{
    const QByteArray original = readBytes(defaultDatabase());
    EXPECT_FALSE(leave(QString(), [&] {
        app().Form5.Text3.Text = home;
        raiseEvent(app(), "Form5.Text3", "Change");
        app().Form5.Text2.Text.clear();
        ui().answerMsgBox(vbYes);  // the copy exists: it is the database itself
        raiseEvent(app(), "Form5.Command3D1", "Click");
    }));
    const auto boxes = ui().messageBoxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes.at(1).prompt, "Die Datenbank kann nicht kopiert werden.Zugriff verweigert");
    EXPECT_EQ(app().Form5.Label5.Caption, "Kopierfehler !");
    EXPECT_EQ(readBytes(defaultDatabase()), original);
}

TEST_F(BackupTest, AFullDiskLeavesTheEarlierCopyWholeAndSaysSo)
{
    ASSERT_TRUE(QDir().mkpath(target));
    const QString copy = joinPath(target, "merkkartelle.mdb");
    writeBytes(copy, QByteArray(100, 'a'));
    // A file size limit below the database's size stands for a disk that runs full.
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 4096;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    ui().answerMsgBox(vbYes);
    const bool ended = copyAndLeave();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_FALSE(ended);
    const auto boxes = ui().messageBoxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes.at(1).prompt, "Die Datenbank kann nicht kopiert werden.Datenträger voll") << boxes.at(1).prompt.toStdString();
    EXPECT_EQ(readBytes(copy), QByteArray(100, 'a'));
    EXPECT_EQ(QDir(target).entryList(QDir::Files), QStringList{"merkkartelle.mdb"});
}

TEST_F(BackupTest, AFolderThatMayNotBeWrittenIsRefusedWithAWord)
{
    ASSERT_TRUE(QDir().mkpath(target));
    QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    if (access(QFile::encodeName(target).constData(), W_OK) == 0) {
        QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        GTEST_SKIP() << "this user may write anywhere";
    }
    EXPECT_FALSE(copyAndLeave());
    QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    EXPECT_EQ(ui().messageBoxes().at(0).prompt, "Die Datenbank kann nicht kopiert werden.Zugriff verweigert");
}

TEST_F(BackupTest, CancelKeepsTheTargetForNextTimeAndTheSessionRunsOn)
{
    EXPECT_FALSE(leave(QStringLiteral("woanders"), [&] { raiseEvent(app(), "Form5.Command3D3", "Click"); }));
    EXPECT_EQ(app().Einstellungsliste[41], homeFile("usb"));
    EXPECT_EQ(app().Einstellungsliste[42], "woanders");
    EXPECT_FALSE(app().Form5.Visible);
    EXPECT_EQ(app().Kartensatz->RecordCount(), 2);
    EXPECT_FALSE(exists(homeFile("usb/woanders")));
}

TEST(BackupFolder, ADriveIsAMountPointJoinedWithTheDirectory)
{
    EXPECT_EQ(Sicherungsverzeichnis("C", "sicherung/"), "/sicherung/");
    EXPECT_EQ(Sicherungsverzeichnis("c:\\", "\\sicherung"), "/sicherung");
    EXPECT_EQ(Sicherungsverzeichnis("", "home/anna"), "/home/anna");
    EXPECT_EQ(Sicherungsverzeichnis("/media/usb", "/karten"), "/media/usb/karten");
    EXPECT_EQ(Sicherungsverzeichnis("/media/usb", ""), "/media/usb");
}

}  // namespace
}  // namespace mk::test
