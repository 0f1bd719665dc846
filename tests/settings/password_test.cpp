// The access password: one try at the length of the stored word, at start and when another
// database is opened; setting, changing and deleting the word; the file private to its owner.

#include "maintenance/maintenance_home.h"

#include "settings/password.h"

#include <algorithm>
#include <filesystem>

namespace mk::test {
namespace {

class PasswordTest : public MaintenanceHome {
protected:
    void storeWord(const QString& folder, const QByteArray& record)
    {
        writeBytes(joinPath(folder, QStringLiteral("blatt.pwd")), record);
    }
    // Types text into the entry box one character at a time, as the keys do.
    void typeWord(const QString& text)
    {
        for (QChar c : text) {
            app().senha.Text2.Text += c;
            raiseEvent(app(), "senha.Text2", "Change");
        }
    }
    void clickKey(int index) { raiseEvent(app(), QStringLiteral("senha.tecla(%1)").arg(index), "Click"); }
};

TEST_F(PasswordTest, TheRightWordLetsTheStartGoOnAtItsLastCharacter)
{
    addCard({{"Nachname", "Zeller"}});
    storeWord(home, "\"ab1\"\r\n");
    whileShown("senha", [&] {
        EXPECT_EQ(app().senha.Text2.PasswordChar, "*");
        app().senha.MhState1.Value = 0;
        raiseEvent(app(), "senha.MhState1", "Click");
        clickKey(0);  // "a"
        clickKey(1);  // "b"
        EXPECT_TRUE(app().senha.Visible);
        EXPECT_EQ(app().senha.Label6.Caption, "ab");
        typeWord("1");
    });
    EXPECT_FALSE(ends([&] { start(); }));
    EXPECT_EQ(shown(), "Zeller");
    EXPECT_TRUE(ui().messageBoxes().empty());
}

TEST_F(PasswordTest, AWrongWordOfTheRightLengthEndsTheProgram)
{
    storeWord(home, "\"abc\"\r\n");
    whileShown("senha", [&] { typeWord("abd"); });
    EXPECT_TRUE(ends([&] { start(); }));
    ASSERT_EQ(ui().messageBoxes().size(), 1u);
    EXPECT_EQ(ui().messageBoxes().at(0).prompt, "Falsches Passwort - Programm wird beendet !");
    EXPECT_FALSE(app().Kartensatz);
}

TEST_F(PasswordTest, WithoutTheFileThereIsNoQuestionAndClosingTheFormEndsTheStart)
{
    EXPECT_FALSE(ends([&] { start(); }));
    EXPECT_TRUE(ui().formsShown.end()
                == std::find_if(ui().formsShown.begin(), ui().formsShown.end(),
                                [](const auto& f) { return f.first == "senha"; }));

    restart();
    storeWord(home, "\"abc\"\r\n");
    whileShown("senha", [&] { unloadForm(app(), "senha"); });
    EXPECT_TRUE(ends([&] { start(); }));
}

TEST_F(PasswordTest, AWordIsSetWrittenForItsOwnerOnlyAndAQuoteCutsIt)
{
    start();
    whileShown("senha", [&] {
        app().senha.Text2.Text = "geheim";
        raiseEvent(app(), "senha.Command1", "Click");
    });
    raiseEvent(app(), "Hauptmaske.menusenha", "Click");
    EXPECT_EQ(ui().messageBoxes().at(0).prompt, "Erstellen Sie ein neues Passwort !");
    EXPECT_EQ(fileBytes("blatt.pwd"), "\"geheim\"\r\n");
    namespace fs = std::filesystem;
    EXPECT_EQ(fs::status(homeFile("blatt.pwd").toStdString()).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(app().senha.Visible);

    // A word with a double quote is stored as written and comes back cut at the quote.
    PasswortdateiSchreiben(homeFile("blatt.pwd"), "ge\"heim");
    EXPECT_EQ(fileBytes("blatt.pwd"), "\"ge\"heim\"\r\n");
    whileShown("senha", [&] {
        EXPECT_EQ(app().senha.Label1.Caption, "ge");
        raiseEvent(app(), "senha.Command2", "Click");
    });
    raiseEvent(app(), "Hauptmaske.menusenha", "Click");
}

TEST_F(PasswordTest, TheOldWordOpensTheChangeAndTheDeletion)
{
    storeWord(home, "\"alt\"\r\n");
    whileShown("senha", [&] { typeWord("alt"); });
    start();

    whileShown("senha", [&] {
        senha& f = app().senha;
        EXPECT_FALSE(f.Command1.Visible);
        typeWord("alt");
        EXPECT_TRUE(f.Command1.Visible && f.Command2.Visible && f.Command3.Visible && f.Label4.Visible);
        EXPECT_TRUE(f.Text2.Text.isEmpty());
        typeWord("neu");
        raiseEvent(app(), "senha.Command1", "Click");
    });
    EventArgs f10;
    f10.KeyCode = vbKeyF10;
    raiseEvent(app(), "Hauptmaske", "KeyDown", f10);
    EXPECT_EQ(app().Passwortmodus, 1);
    EXPECT_EQ(fileBytes("blatt.pwd"), "\"neu\"\r\n");

    whileShown("senha", [&] {
        typeWord("neu");
        ui().answerMsgBox(vbYes);
        raiseEvent(app(), "senha.Command3", "Click");
    });
    raiseEvent(app(), "Hauptmaske.menusenha", "Click");
    EXPECT_EQ(ui().messageBoxes().back().prompt, "Wollen Sie das Passwort löschen ?");
    EXPECT_FALSE(exists(homeFile("blatt.pwd")));

    // A wrong old word ends the system here too.
    storeWord(home, "\"abc\"\r\n");
    whileShown("senha", [&] { typeWord("xyz"); });
    EXPECT_TRUE(ends([&] { raiseEvent(app(), "Hauptmaske.menusenha", "Click"); }));
}

TEST_F(PasswordTest, AGuardedDatabaseIsAskedForBeforeTheOldOneIsClosed)
{
    addCard({{"Nachname", "Zeller"}});
    const QString other = makeDatabase("geschuetzt");
    addCardTo(other, {{"Nachname", "Geheim"}});
    storeWord(homeFile("geschuetzt"), "\"pw\"\r\n");
    start();

    // The form closed without the word: the old session stays whole.
    whileShown("senha", [&] { unloadForm(app(), "senha"); });
    ui().answerOpen(other);
    raiseEvent(app(), "Hauptmaske.abrirdmb", "Click");
    EXPECT_EQ(app().Arbeitsverzeichnis, home);
    EXPECT_EQ(app().Kartensatz->RecordCount(), 1);
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), "Zeller");

    whileShown("senha", [&] { typeWord("pw"); });
    ui().answerOpen(other);
    raiseEvent(app(), "Hauptmaske.abrirdmb", "Click");
    EXPECT_EQ(app().Datenbankdatei, "karten.mdb");
    EXPECT_EQ(shown(), "Geheim");
}

}  // namespace
}  // namespace mk::test
