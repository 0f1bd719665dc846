// The scripted user interface: answers per kind in order, defaults and the log.

#include "platform/runtime_error.h"
#include "platform/user_interface.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

TEST(ScriptedUserInterface, AnswersAreTakenInOrderPerKind)
{
    ScriptedUserInterface ui;
    ui.answerMsgBox(vbNo);
    ui.answerInput("Firma:");
    ui.answerMsgBox(vbYes);
    ui.answerOpen("/daten/karten.mdb", true);
    ui.answerOpen("/daten/zwei.mdb");
    ui.answerSaveCancel();
    ui.answerColor(255);
    ui.answerFont("Arial", 10, true, false);
    ui.answerPrinter(true);

    EXPECT_EQ(ui.MsgBox("Programm beenden ?", vbYesNo + vbQuestion, "Ende"), vbNo);
    EXPECT_EQ(ui.InputBox("Benennung eingeben", "Benennung", "Texto:"), "Firma:");
    EXPECT_EQ(ui.MsgBox("Noch einmal ?", vbYesNo), vbYes);

    FileDialog open;
    open.Filter = "Datenbank (*.mdb)|*.mdb|";
    open.DialogTitle = "Datenbank öffnen...";
    FileChoice first = ui.ShowOpen(open);
    EXPECT_FALSE(first.cancelled);
    EXPECT_EQ(first.FileName, "/daten/karten.mdb");
    EXPECT_EQ(first.Flags, 1025);  // the read-only box ticked
    FileChoice second = ui.ShowOpen(open);
    EXPECT_EQ(second.FileName, "/daten/zwei.mdb");
    EXPECT_NE(second.Flags, 1025);
    EXPECT_TRUE(ui.ShowSave(FileDialog{}).cancelled);

    EXPECT_EQ(ui.ShowColor(0).Color, 255);
    FontChoice font = ui.ShowFont(FontChoice{});
    EXPECT_FALSE(font.cancelled);
    EXPECT_EQ(font.Name, "Arial");
    EXPECT_TRUE(font.Bold);
    EXPECT_FALSE(ui.ShowPrinter(PrinterDialog{}).cancelled);
    EXPECT_EQ(ui.pendingAnswers(), 0);

    ASSERT_EQ(ui.boxes.size(), 9u);
    EXPECT_EQ(ui.boxes[0].title, "Ende");
    EXPECT_EQ(ui.boxes[0].answer, "No");
    EXPECT_EQ(ui.boxes[2].title, "Merkkartelle");  // a box without a title shows the program's
    EXPECT_EQ(ui.boxes[3].kind, "open");
    EXPECT_EQ(ui.boxes[3].filter, "Datenbank (*.mdb)|*.mdb|");
    EXPECT_EQ(ui.boxes[3].prompt, "Datenbank öffnen...");
}

TEST(ScriptedUserInterface, AnUnansweredBoxTakesItsDefaultAndIsLogged)
{
    ScriptedUserInterface ui;
    EXPECT_EQ(ui.MsgBox("Eintrag löschen ?", vbYesNo + vbCritical + vbDefaultButton2, "Eintrag löschen"), vbNo);
    EXPECT_EQ(ui.MsgBox("Weiter ?", vbYesNoCancel + vbDefaultButton3), vbCancel);
    EXPECT_EQ(ui.MsgBox("Hinweis"), vbOK);
    EXPECT_EQ(ui.InputBox("Benennung eingeben"), "");
    EXPECT_TRUE(ui.ShowOpen(FileDialog{}).cancelled);
    EXPECT_TRUE(ui.ShowColor(42).cancelled);
    EXPECT_TRUE(ui.ShowPrinter(PrinterDialog{}).cancelled);
    for (const ShownBox& box : ui.boxes)
        EXPECT_FALSE(box.answered) << box.kind.toStdString();

    ui.answerInputCancel();
    EXPECT_EQ(ui.InputBox("Benennung eingeben"), "");
    EXPECT_TRUE(ui.boxes.back().answered);
    EXPECT_EQ(ui.boxes.back().answer, "cancel");
}

TEST(ScriptedUserInterface, MessageBoxesAreCheckedOldestFirst)
{
    ScriptedUserInterface ui;
    ui.MsgBox("erste");
    ui.InputBox("dazwischen");
    ui.MsgBox("zweite");
    EXPECT_FALSE(ui.allMsgBoxesChecked());
    EXPECT_EQ(ui.checkNextMsgBox()->prompt, "erste");
    EXPECT_EQ(ui.checkNextMsgBox()->prompt, "zweite");
    EXPECT_EQ(ui.checkNextMsgBox(), nullptr);
    EXPECT_TRUE(ui.allMsgBoxesChecked());
}

TEST(ScriptedUserInterface, AnAnswerThatFitsNoButtonIsAFaultOfTheScript)
{
    ScriptedUserInterface ui;
    ui.answerMsgBox(vbYes);
    EXPECT_THROW(ui.MsgBox("Nur OK"), AnswerMismatch);
}

TEST(ScriptedUserInterface, RecordsSoundsShellAndDoEvents)
{
    ScriptedUserInterface ui;
    int inside = 0;
    ui.onDoEvents = [&] { ++inside; };
    ui.DoEvents();
    ui.DoEvents();
    EXPECT_EQ(ui.doEventsCalls, 2);
    EXPECT_EQ(inside, 2);
    EXPECT_TRUE(ui.playSound("/karten/pleaseedit.wav", 1));
    EXPECT_EQ(ui.sounds, std::vector<QString>{"/karten/pleaseedit.wav"});
    ui.failingPrograms.push_back("nichtda");
    ui.Shell("notepad brief.txt", vbNormalFocus);
    EXPECT_THROW(ui.Shell("nichtda brief.txt", vbNormalFocus), RuntimeError);
    EXPECT_EQ(ui.shellCommands.size(), 2u);
}

TEST(MsgBoxButtons, DefaultsAndNames)
{
    EXPECT_EQ(msgBoxDefault(vbAbortRetryIgnore + vbDefaultButton2), vbRetry);
    EXPECT_EQ(msgBoxDefault(vbOKOnly + vbDefaultButton3), vbOK);
    EXPECT_EQ(msgBoxIcon(vbYesNo + vbExclamation + vbDefaultButton2), vbExclamation);
    EXPECT_EQ(answerFromName("yes"), vbYes);
    EXPECT_EQ(answerFromName("Vielleicht"), -1);
    EXPECT_EQ(parseFilter("Gelöschte Einträge (*.dat)|*.dat|Alle (*.*)|*.*|").size(), 2u);
    EXPECT_EQ(parseFilter("Datenbank (*.mdb)|*.mdb|")[0].patterns, "*.mdb");
}

}  // namespace
}  // namespace mk
