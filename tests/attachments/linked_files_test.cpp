// The linked files of a card: the program found by the last three letters of the path, the
// caret tail of the table's value, the association step writing the table, and the file
// choice only while the card is edited.

#include "maintenance/maintenance_home.h"

#include "attachments/linked_files.h"
#include "card/card_editing.h"

namespace mk::test {
namespace {

class LinkedFilesTest : public MaintenanceHome {
protected:
    void SetUp() override
    {
        MaintenanceHome::SetUp();
        addCard({{"Nachname", "Zeller"}, {"PROG1", "/daten/brief.docx"}, {"PROG2", "/daten/liste.ods"}});
        start();
    }
    void associate(const char* ext, const QString& value)
    {
        WritePrivateProfileString("Extensions", ext, value, winIniPath());
    }
    QString association(const char* ext)
    {
        return GetPrivateProfileString("Extensions", ext, "<none>", winIniPath());
    }
};

TEST_F(LinkedFilesTest, TheProgramComesFromTheLastThreeLettersWithoutTheCaretTail)
{
    associate("ocx", "/usr/bin/textprogramm ^.ocx");
    raiseEvent(app(), "Hauptmaske.init(1)", "Click");
    ASSERT_EQ(ui().shellCommands.size(), 1u);
    EXPECT_EQ(ui().shellCommands.at(0), "/usr/bin/textprogramm /daten/brief.docx");
    EXPECT_EQ(mask().progLabel4.Caption, ui().shellCommands.at(0));
    EXPECT_EQ(mask().Curindex.Caption, "1");
    EXPECT_EQ(mask().prog[1].BackColor, rgb(0, 255, 255));
    EXPECT_EQ(mask().prog[2].BackColor, TextBox{}.BackColor);

    // A value without the tail is the program whole, blanks and all.
    associate("ods", "/opt/mein programm/calc");
    raiseEvent(app(), "Hauptmaske.init(2)", "Click");
    EXPECT_EQ(ui().shellCommands.at(1), "/opt/mein programm/calc /daten/liste.ods");
    EXPECT_EQ(mask().prog[1].BackColor, TextBox{}.BackColor);
}

TEST_F(LinkedFilesTest, AnUnknownOrFailingProgramLeadsToTheAssociationStep)
{
    ui().answerOpen("/usr/bin/office");
    raiseEvent(app(), "Hauptmaske.init(2)", "Click");
    EXPECT_TRUE(ui().shellCommands.empty());
    EXPECT_EQ(ui().messageBoxes().at(0).prompt, "Zu verknüpfende Datei 2");
    EXPECT_EQ(ui().boxes.at(1).prompt, "Programm zur verknüpfung auswählen");
    EXPECT_EQ(association("ods"), "/usr/bin/office ^.ods");
    EXPECT_EQ(mask().progname.Caption, "/usr/bin/office");

    // The program now known, the file starts; one that cannot start asks again.
    raiseEvent(app(), "Hauptmaske.init(2)", "Click");
    EXPECT_EQ(ui().shellCommands.back(), "/usr/bin/office /daten/liste.ods");
    ui().failingPrograms.push_back("/usr/bin/office");
    ui().answerOpen("/usr/bin/anderes");
    raiseEvent(app(), "Hauptmaske.init(2)", "Click");
    EXPECT_EQ(association("ods"), "/usr/bin/anderes ^.ods");
}

TEST_F(LinkedFilesTest, AFileIsChosenOnlyWhileTheCardIsEdited)
{
    ui().answerOpen("/daten/neu.txt");
    raiseEvent(app(), "Hauptmaske.prog(3)", "DblClick");
    EXPECT_TRUE(mask().prog[3].Text.isEmpty());
    EXPECT_EQ(ui().pendingAnswers(), 1);

    raiseEvent(app(), "Hauptmaske.AdresseÄndern", "Click");
    raiseEvent(app(), "Hauptmaske.prog(3)", "DblClick");
    EXPECT_EQ(mask().prog[3].Text, "/daten/neu.txt");
    // In editing the start button chooses as well, from the folder and kind of its path.
    ui().answerOpen("/daten/andere.docx");
    raiseEvent(app(), "Hauptmaske.init(1)", "Click");
    const ShownBox& box = ui().boxes.back();
    EXPECT_EQ(box.fileName, "*docx");
    EXPECT_EQ(box.initDir, "/daten");
    EXPECT_EQ(mask().prog[1].Text, "/daten/andere.docx");
    EXPECT_TRUE(ui().shellCommands.empty());
}

TEST_F(LinkedFilesTest, HintsNameThePathItsSizeAndTheFolder)
{
    const QString file = homeFile("brief.txt");
    writeBytes(file, "12345");
    mask().prog[3].Text = file;
    raiseEvent(app(), "Hauptmaske.prog(3)", "MouseMove");
    EXPECT_EQ(mask().Panel3D3.Caption, "Datei: " + file + "   5 bytes");
    raiseEvent(app(), "Hauptmaske.prog(1)", "MouseMove");
    EXPECT_EQ(mask().Panel3D3.Caption, "Datei: /daten/brief.docx");
    raiseEvent(app(), "Hauptmaske.init(3)", "Click");
    raiseEvent(app(), "Hauptmaske.SSCommand13", "MouseMove");
    EXPECT_EQ(mask().Panel3D3.Caption, "Windows Explorer im Verzeichniss starten: " + home);
    raiseEvent(app(), "Hauptmaske.SSCommand13", "Click");
    EXPECT_EQ(ui().shellCommands.back(), "xdg-open " + home);
}

}  // namespace
}  // namespace mk::test
