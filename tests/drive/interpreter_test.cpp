// The driver's interpreter run in-process, with small handlers of the tests' own in an
// otherwise empty handler table, so that what is tested is the driver and not the product.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"
#include "app/drive/script_lexer.h"
#include "platform/files.h"
#include "platform/profile.h"
#include "platform/text_files.h"
#include "support/scripted_system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Test messages show texts as texts.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace mk::drive {
namespace {

// How a run stopped: "held" (with the number of expectations), "expect", "fault", "failure".
struct Outcome {
    QString stop;
    int line = 0;
    QString text;
    int passed = -1;
};

class DriveTest : public ::testing::Test {
protected:
    DriveTest()
    {
        qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
        ChDir(home.path());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
        app.handlers = HandlerTable{};
    }

    Outcome run(const char* script)
    {
        try {
            Interpreter interpreter(lexScript(QByteArray(script)), app, ui);
            interpreter.note = [this](const QString& text) { notes.push_back(text); };
            return {"held", 0, {}, interpreter.run()};
        } catch (const ExpectFailed& e) {
            return {"expect", e.line, QStringLiteral("expected %1 got %2").arg(e.expected, e.got)};
        } catch (const ScriptFault& e) {
            return {"fault", e.line, e.message};
        } catch (const SystemFailure& e) {
            return {"failure", e.line, e.message};
        }
    }

    void on(const char* form, const char* control, const char* event, Handler handler)
    {
        app.handlers.on(QString::fromUtf8(form), QString::fromUtf8(control), QString::fromUtf8(event), std::move(handler));
    }

    QByteArray fileBytes(const QString& name)
    {
        QFile f(QDir(home.path()).filePath(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }

    QTemporaryDir home;
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
    std::vector<QString> calls;
    std::vector<QString> notes;
};

#define EXPECT_HELD(outcome, count)                                                               \
    do {                                                                                          \
        const Outcome o_ = (outcome);                                                             \
        EXPECT_EQ(o_.stop, "held") << "line " << o_.line << ": " << o_.text.toStdString();        \
        EXPECT_EQ(o_.passed, count);                                                              \
    } while (0)

TEST(ScriptLexer, TokensQuotesAndEscapes)
{
    const auto lines = lexScript("# a comment\r\n\r\n  \t\nset  A.b.Text \"x \\\"y\\\" \\\\ \\n\\r\\t\" \"\"\r\n"
                                 "card Nachname=\"van Dyk\" Titel=null Vorname=\"null\"\n   # indented comment\n");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].number, 4);
    ASSERT_EQ(lines[0].tokens.size(), 4u);
    EXPECT_EQ(lines[0].tokens[2].text, "x \"y\" \\ \n\r\t");
    EXPECT_TRUE(lines[0].tokens[3].quoted);
    EXPECT_EQ(lines[0].tokens[3].text, "");
    EXPECT_EQ(lines[1].number, 5);
    EXPECT_EQ(lines[1].tokens[1].text, "Nachname=van Dyk");
    EXPECT_TRUE(lines[1].tokens[2].is("Titel=null"));
    EXPECT_FALSE(lines[1].tokens[3].is("Vorname=null"));  // quoted: the text, not the word
    EXPECT_EQ(lexScript("\xEF\xBB\xBFstart\n")[0].tokens[0].text, "start");
}

TEST(ScriptLexer, BrokenQuotingIsAFaultOfItsLine)
{
    for (const char* script : {"start\nset A.b.Text \"open\n", "start\n\nset A.b.Text \"a\\qb\"\n"}) {
        try {
            lexScript(script);
            ADD_FAILURE() << script;
        } catch (const ScriptFault& e) {
            EXPECT_EQ(e.line, QByteArray(script).count('\n') == 2 ? 2 : 3);
        }
    }
}

TEST(ScriptLexer, MessagesQuoteOnlyWhatNeedsIt)
{
    EXPECT_EQ(scriptValue("Hans"), "Hans");
    EXPECT_EQ(scriptValue(""), "\"\"");
    EXPECT_EQ(scriptValue("Hans Müller"), "\"Hans Müller\"");
    EXPECT_EQ(scriptValue("a\r\nb\"c\\"), "\"a\\r\\nb\\\"c\\\\\"");
    EXPECT_EQ(scriptValue("#7"), "\"#7\"");
}

TEST_F(DriveTest, SetAndExpectReadPropertiesOfEveryKindAsText)
{
    EXPECT_HELD(run(R"(
set Hauptmaske.feld(4).Text "Müller"
expect Hauptmaske.feld(4).Text Müller
set Hauptmaske.Caption "Karten  -  merkkartelle.mdb"
expect Hauptmaske.Caption "Karten  -  merkkartelle.mdb"
expect Hauptmaske.Typenliste(2).Value 0
set Hauptmaske.LaufendeNummer.ForeColor 255
expect Hauptmaske.LaufendeNummer.ForeColor 255
expect Hauptmaske.NeueAdresse.Enabled True
set Hauptmaske.Timer1.Interval 250
expect Hauptmaske.Timer1.Interval 250
expect Message.Visible False
expect Hauptmaske.feld(4).Font.Bold False
)"),
                8);
    EXPECT_EQ(app.Hauptmaske.feld[4].Text, "Müller");

    const Outcome wrong = run("set Hauptmaske.feld(4).Text Otto\nexpect Hauptmaske.feld(4).Text \"Hans Otto\"\n");
    EXPECT_EQ(wrong.stop, "expect");
    EXPECT_EQ(wrong.line, 2);
    EXPECT_EQ(wrong.text, "expected \"Hans Otto\" got Otto");
}

TEST_F(DriveTest, ClicksChangeStateAsAUsersClickDoesThenFireClick)
{
    on("Hauptmaske", "Typenliste", "Click", [this](Merkkartelle& a, EventArgs& e) {
        calls.push_back(QStringLiteral("Typenliste(%1)=%2").arg(e.Index).arg(a.Hauptmaske.Typenliste[e.Index].Value));
    });
    on("Form3", "Option3D1", "Click", [this](Merkkartelle&, EventArgs& e) { calls.push_back(QString::number(e.Index)); });
    on("Hauptmaske", "NeueAdresse", "Click", [this](Merkkartelle&, EventArgs&) { calls.push_back("NeueAdresse"); });
    EXPECT_HELD(run(R"(
click Hauptmaske.Typenliste(3)
expect Hauptmaske.Typenliste(3).Value 1
click Hauptmaske.Typenliste(3)
click Form3.Option3D1(2)
click Form3.Option3D1(5)
expect Form3.Option3D1(2).Value False
expect Form3.Option3D1(5).Value True
set Hauptmaske.NeueAdresse.Enabled False
click Hauptmaske.NeueAdresse
)"),
                3);
    // The disabled button gets its click as the script says, and the log tells.
    EXPECT_EQ(calls, (std::vector<QString>{"Typenliste(3)=1", "Typenliste(3)=0", "2", "5", "NeueAdresse"}));
    ASSERT_EQ(notes.size(), 1u);
    EXPECT_EQ(notes[0], "line 10: Hauptmaske.NeueAdresse is disabled: a user could not give it the click");
}

TEST_F(DriveTest, MouseFocusAndFormKeysCarryTheirArguments)
{
    const auto record = [this](const char* what) {
        return [this, what](Merkkartelle&, EventArgs& e) {
            calls.push_back(QStringLiteral("%1 %2 %3 %4").arg(QLatin1String(what)).arg(e.Button).arg(e.KeyCode).arg(e.Shift));
        };
    };
    for (const char* event : {"MouseDown", "MouseUp", "MouseMove", "GotFocus", "LostFocus", "DblClick"})
        on("Hauptmaske", "LaufendeNummer", event, record(event));
    app.handlers.onForm("Hauptmaske", "KeyDown", record("KeyDown"));
    app.handlers.onForm("Hauptmaske", "KeyUp", record("KeyUp"));
    EXPECT_HELD(run(R"(
rightclick Hauptmaske.LaufendeNummer
hover Hauptmaske.LaufendeNummer
focus Hauptmaske.LaufendeNummer
blur Hauptmaske.LaufendeNummer
dblclick Hauptmaske.LaufendeNummer
key Hauptmaske F7
key Hauptmaske PageDown
key Hauptmaske a
key Hauptmaske Shift+F3
)"),
                0);
    EXPECT_EQ(calls, (std::vector<QString>{
                         "MouseDown 2 0 0", "MouseUp 2 0 0", "MouseMove 0 0 0", "GotFocus 0 0 0", "LostFocus 0 0 0",
                         "DblClick 0 0 0", "KeyDown 0 118 0", "KeyUp 0 118 0", "KeyDown 0 34 0", "KeyUp 0 34 0",
                         "KeyDown 0 65 0", "KeyUp 0 65 0", "KeyDown 0 114 1", "KeyUp 0 114 1"}));
}

TEST_F(DriveTest, TypePastesOnceKeysTypesThroughKeyPress)
{
    on("Hauptmaske", "Text1", "Change", [this](Merkkartelle& a, EventArgs&) { calls.push_back(a.Hauptmaske.Text1.Text); });
    // The quick search takes capitals only and refuses digits.
    on("Hauptmaske", "Text1", "KeyPress", [](Merkkartelle&, EventArgs& e) {
        if (e.KeyAscii >= '0' && e.KeyAscii <= '9')
            e.KeyAscii = 0;
        else
            e.KeyAscii = QChar(e.KeyAscii).toUpper().unicode();
    });
    app.Hauptmaske.Text1.MaxLength = 4;
    EXPECT_HELD(run(R"(
type Hauptmaske.Text1 "Hans Otto"
expect Hauptmaske.Text1.SelStart 4
keys Hauptmaske.Text1 "\n"
set Hauptmaske.Text1.Text ""
keys Hauptmaske.Text1 "m2ü"
keys Hauptmaske.Text1 "lll\n"
)"),
                1);
    // The paste is cut at MaxLength; Enter adds nothing to a single line; the last letter
    // finds the box full.
    EXPECT_EQ(calls, (std::vector<QString>{"Hans", "M", "MÜ", "MÜL", "MÜLL"}));
}

TEST_F(DriveTest, KeysReplaceTheSelectionAHandlerMade)
{
    // A completion: the rest of the name is offered selected, the next letter replaces it.
    on("Hauptmaske", "Text2", "Change", [this](Merkkartelle& a, EventArgs&) {
        TextBox& box = a.Hauptmaske.Text2;
        calls.push_back(box.Text);
        if (box.Text == "Mü") {
            box.Text = "Müller";
            box.SelStart = 2;
            box.SelLength = 4;
        }
    });
    app.Hauptmaske.Text2.Text = "x";
    app.Hauptmaske.Text2.SelStart = 0;
    EXPECT_HELD(run("set Hauptmaske.Text2.Text \"\"\nkeys Hauptmaske.Text2 Mül\nkeys Hauptmaske.Text2 \"\\r\"\n"), 0);
    EXPECT_EQ(calls, (std::vector<QString>{"M", "Mü", "Mül"}));
    EXPECT_EQ(app.Hauptmaske.Text2.SelStart, 3);
}

TEST_F(DriveTest, SelectSetsTheListIndexThenClicks)
{
    for (const char* name : {"Müller", "Meier", "Schulze"}) {
        app.mala.Schnelleauswahlliste.AddItem(name);
        app.mala.ComboTypenliste.AddItem(name);
    }
    on("mala", "Schnelleauswahlliste", "Click", [this](Merkkartelle& a, EventArgs&) {
        calls.push_back(a.mala.Schnelleauswahlliste.Text());
    });
    on("mala", "ComboTypenliste", "Click", [this](Merkkartelle& a, EventArgs&) { calls.push_back(a.mala.ComboTypenliste.Text); });
    EXPECT_HELD(run(R"(
select mala.Schnelleauswahlliste 1
expect mala.Schnelleauswahlliste.ListIndex 1
select mala.ComboTypenliste 2
expect mala.ComboTypenliste.Text Schulze
expect mala.Schnelleauswahlliste.ListCount 3
expect mala.Schnelleauswahlliste.List(0) Müller
)"),
                4);
    EXPECT_EQ(calls, (std::vector<QString>{"Meier", "Schulze"}));

    EXPECT_EQ(run("select mala.Schnelleauswahlliste 3\n").stop, "fault");
    const Outcome notAList = run("select Hauptmaske.feld(2) 0\n");
    EXPECT_EQ(notAList.stop, "fault");
    EXPECT_EQ(notAList.text, "Hauptmaske.feld(2) is no list or combo box");
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(DriveTest, WaitFiresTimersInTimeOrderAtTheirMoment)
{
    loadForm(app, "Hauptmaske");
    app.Hauptmaske.Timer2.Interval = 1500;
    app.Hauptmaske.Timer2.Enabled = true;
    for (const char* timer : {"Timer1", "Timer2"})
        on("Hauptmaske", timer, "Timer", [this, timer](Merkkartelle& a, EventArgs&) {
            calls.push_back(QLatin1String(timer) + a.clock.Time().toString(QStringLiteral(" HH:mm:ss.zzz")));
        });
    EXPECT_HELD(run(R"(
clock "2024-12-24 18:00:00"
wait 999
wait 2001
)"),
                0);
    EXPECT_EQ(calls, (std::vector<QString>{"Timer1 18:00:01.000", "Timer2 18:00:01.500", "Timer1 18:00:02.000",
                                           "Timer1 18:00:03.000", "Timer2 18:00:03.000"}));
    EXPECT_EQ(app.clock.Now(), QDateTime(QDate(2024, 12, 24), QTime(18, 0, 3)));
}

// A handler that shows a form modally and goes on when it hides.
class ModalTest : public DriveTest {
protected:
    ModalTest()
    {
        on("Hauptmaske", "Command3D24", "Click", [this](Merkkartelle& a, EventArgs&) {
            calls.push_back("before");
            showForm(a, a.Form3, true);
            calls.push_back("after " + a.Form3.Tag);
        });
        on("Form3", "Command3D1", "Click", [this](Merkkartelle& a, EventArgs&) {
            a.Form3.Tag = "closed";
            hideForm(a, a.Form3);
        });
        // The notice as the product shows it: modal, closed by its own timer.
        on("Hauptmaske", "Command3D23", "Click", [this](Merkkartelle& a, EventArgs&) {
            loadForm(a, a.Message);
            a.Message.Label1.Caption = "Sortierung der Datenbank:";
            a.Message.Timer1.Interval = 2000;
            showForm(a, a.Message, true);
            calls.push_back("notice closed at " + a.clock.Time().toString(QStringLiteral("HH:mm:ss")));
        });
        on("Message", "Timer1", "Timer", [](Merkkartelle& a, EventArgs&) { unloadForm(a, a.Message); });
    }
};

TEST_F(ModalTest, LinesAfterAModalShowRunInsideTheHandlerUntilTheFormHides)
{
    EXPECT_HELD(run(R"(
click Hauptmaske.Command3D24
expect Form3.Visible True
click Form3.Command3D1
expect Form3.Visible False
)"),
                2);
    EXPECT_EQ(calls, (std::vector<QString>{"before", "after closed"}));
}

TEST_F(ModalTest, TheNoticeClosesByItsTimerAtWait)
{
    EXPECT_HELD(run(R"(
clock "2024-05-17 10:00:00"
click Hauptmaske.Command3D23
expect Message.Visible True
expect Message.Label1.Caption "Sortierung der Datenbank:"
wait 1999
expect Message.Visible True
wait 1
expect Message.Visible False
)"),
                4);
    EXPECT_EQ(calls, (std::vector<QString>{"notice closed at 10:00:02"}));
}

TEST_F(ModalTest, AScriptThatEndsInsideAModalFormFailsAtTheLineThatShowedIt)
{
    const Outcome o = run("set Hauptmaske.Tag x\nclick Hauptmaske.Command3D24\nexpect Form3.Visible True\n");
    EXPECT_EQ(o.stop, "fault");
    EXPECT_EQ(o.line, 2);
    EXPECT_EQ(o.text, "the script ends while the modal form Form3 is shown");
    EXPECT_EQ(calls, std::vector<QString>{"before"});  // the handler never went on
}

TEST_F(ModalTest, EndUnwindsEveryHandlerAndOnlyChecksOfFilesMayFollow)
{
    on("Form3", "Command3D1", "Click", [](Merkkartelle& a, EventArgs&) {
        underIgnoredErrors([&] { End(a); });
    });
    const char* script = R"(
click Hauptmaske.Command3D24
click Form3.Command3D1
expect ended
write kept.txt x
)";
    const Outcome refused = run(script);
    EXPECT_EQ(calls, std::vector<QString>{"before"});
    EXPECT_EQ(refused.stop, "fault");
    EXPECT_EQ(refused.line, 5);
    EXPECT_EQ(refused.text,
              "the program has ended: only expect ended, expect file, expect exists and expect missing may follow");
}

TEST_F(DriveTest, ChecksAfterTheEnd)
{
    on("Hauptmaske", "SSCommand1", "Click", [](Merkkartelle& a, EventArgs&) {
        TextWriter(QStringLiteral("session.txt")).print(QStringLiteral("1"));
        End(a);
    });
    EXPECT_HELD(run(R"(
ini Workdir Karten
write notiz.txt x
)"),
                0);
    ChDir(QDir(home.path()).filePath("Karten"));
    EXPECT_HELD(run(R"(
click Hauptmaske.SSCommand1
expect ended
expect file session.txt "1\r\n"
expect exists session.txt
expect missing merkkartelle.cfg
)"),
                4);
    const Outcome over = run("expect Hauptmaske.Caption \"\"\n");
    EXPECT_EQ(over.stop, "fault");  // the same program is still over
    const Outcome wrongBytes = run("expect file session.txt \"1\"\n");
    EXPECT_EQ(wrongBytes.text, "expected \"1\" got \"1\\r\\n\"");
}

TEST_F(DriveTest, DoEventsRunsAQueuedLineInsideTheNthCall)
{
    // A long walk that stops when the STOP flag shows in a label, as the list loops do.
    on("Hauptmaske", "Command3D8", "Click", [this](Merkkartelle& a, EventArgs&) {
        for (int card = 1; card <= 10 && a.Hauptmaske.Label9.Caption != "STOP"; ++card) {
            calls.push_back(QString::number(card));
            a.ui.DoEvents();
        }
    });
    on("Hauptmaske", "Command3D13", "Click", [](Merkkartelle& a, EventArgs&) { a.Hauptmaske.Label9.Caption = "STOP"; });
    EXPECT_HELD(run(R"(
after 3 doevents click Hauptmaske.Command3D13
click Hauptmaske.Command3D8
expect Hauptmaske.Label9.Caption STOP
)"),
                1);
    EXPECT_EQ(calls, (std::vector<QString>{"1", "2", "3"}));

    const Outcome never = run("after 4 doevents set Hauptmaske.Label9.Caption x\nset Hauptmaske.Tag y\n");
    EXPECT_EQ(never.stop, "expect");
    EXPECT_EQ(never.line, 1);
    EXPECT_EQ(never.text, "expected 4 DoEvents calls got 0");

    const Outcome setup = run("after 1 doevents ini Workdir x\n");
    EXPECT_EQ(setup.stop, "fault");
}

TEST_F(DriveTest, AnExpectOrAnAnswerWaitsForItsDoEventsToo)
{
    // A walk that shows how far it is, and asks when it is through.
    on("Hauptmaske", "Command3D2", "Click", [this](Merkkartelle& a, EventArgs&) {
        for (int card = 1; card <= 3; ++card) {
            a.Hauptmaske.Label9.Caption = QString::number(card);
            a.ui.DoEvents();
        }
        calls.push_back(answerName(a.ui.MsgBox("Weiter?", vbYesNo)));
    });
    EXPECT_HELD(run(R"(
after 2 doevents expect Hauptmaske.Label9.Caption 2
after 3 doevents answer msgbox No
click Hauptmaske.Command3D2
expect Hauptmaske.Label9.Caption 3
)"),
                2);
    EXPECT_EQ(calls, (std::vector<QString>{"No"}));

    const Outcome looked = run("after 1 doevents expect Hauptmaske.Label9.Caption 2\nclick Hauptmaske.Command3D2\n");
    EXPECT_EQ(looked.stop, "expect");
    EXPECT_EQ(looked.line, 1);
    EXPECT_EQ(looked.text, "expected 2 got 1");
}

TEST_F(DriveTest, AnswersAreTakenPerKindInOrder)
{
    on("Hauptmaske", "Command1", "Click", [this](Merkkartelle& a, EventArgs&) {
        calls.push_back(answerName(a.ui.MsgBox("Editierung des Eintrags abbrechen ?\r\nProgramm beenden ?", vbYesNo + vbQuestion)));
        calls.push_back(a.ui.InputBox("Name?"));
        calls.push_back(answerName(a.ui.MsgBox("Gespeichert", vbOKOnly, "Hinweis")));
        calls.push_back(a.ui.InputBox("Noch einmal?", "", "vorgabe"));
        FileDialog dialog;
        dialog.DialogTitle = "Datenbank öffnen...";
        dialog.Filter = "Datenbank (*.mdb)|*.mdb|";
        const FileChoice open = a.ui.ShowOpen(dialog);
        calls.push_back(QStringLiteral("%1 %2").arg(QDir(home.path()).relativeFilePath(open.FileName)).arg(open.Flags));
        calls.push_back(a.ui.ShowSave(FileDialog{}).cancelled ? "save cancelled" : "saved");
        calls.push_back(QString::number(a.ui.ShowColor(5).Color));
        const FontChoice font = a.ui.ShowFont(FontChoice{});
        calls.push_back(QStringLiteral("%1 %2 %3 %4").arg(font.Name).arg(font.Size).arg(int(font.Bold)).arg(int(font.Italic)));
        calls.push_back(a.ui.ShowPrinter(PrinterDialog{}).cancelled ? "printer cancelled" : "printer ok");
    });
    EXPECT_HELD(run(R"(
answer input "Hans Otto"
answer msgbox No
answer input cancel
answer open Karten/neu.mdb readonly
answer save cancel
answer color 255
answer font Arial 12,5 True False
answer printer ok
click Hauptmaske.Command1
expect msgbox "Editierung des Eintrags abbrechen ?\nProgramm beenden ?" title Merkkartelle
expect msgbox Gespeichert title Hinweis
expect no msgbox
)"),
                3);
    EXPECT_EQ(calls, (std::vector<QString>{"No", "Hans Otto", "OK", "", "Karten/neu.mdb 1025", "save cancelled",
                                           "255", "Arial 12.5 1 0", "printer ok"}));
    ASSERT_EQ(notes.size(), 1u);
    EXPECT_EQ(notes[0], "line 10: unanswered msgbox \"Gespeichert\": took OK");
}

TEST_F(DriveTest, UncheckedBoxesAndUnansweredDialogsFailNoMsgBox)
{
    on("Hauptmaske", "Command1", "Click", [](Merkkartelle& a, EventArgs&) { a.ui.MsgBox("Datei fehlt"); });
    on("Hauptmaske", "Command2", "Click", [](Merkkartelle& a, EventArgs&) {
        FileDialog dialog;
        dialog.DialogTitle = "Öffnen";
        a.ui.ShowOpen(dialog);
    });
    Outcome o = run("click Hauptmaske.Command1\nexpect no msgbox\n");
    EXPECT_EQ(o.stop, "expect");
    EXPECT_EQ(o.text, "expected no msgbox got msgbox \"Datei fehlt\"");
    o = run("expect msgbox \"Datei fehlt\"\nexpect no msgbox\nclick Hauptmaske.Command2\nexpect no msgbox\n");
    EXPECT_EQ(o.line, 4);
    EXPECT_EQ(o.text, "expected no msgbox got unanswered open \"Öffnen\"");
    o = run("expect msgbox \"Datei fehlt\"\n");
    EXPECT_EQ(o.text, "expected \"Datei fehlt\" got no msgbox");
}

TEST_F(DriveTest, AnswersOfTheWrongKindAreFaultsOfTheScript)
{
    on("Hauptmaske", "Command1", "Click", [](Merkkartelle& a, EventArgs&) { a.ui.MsgBox("Datei fehlt"); });
    const Outcome mismatch = run("answer msgbox Yes\nclick Hauptmaske.Command1\n");
    EXPECT_EQ(mismatch.stop, "fault");
    EXPECT_EQ(mismatch.line, 2);
    EXPECT_EQ(mismatch.text, "answer Yes does not fit the message box \"Datei fehlt\"");
    for (const char* script : {"answer msgbox Vielleicht\n", "answer fax 0301234\n", "answer color rot\n",
                               "answer font Arial 12 ja nein\n", "answer printer maybe\n"})
        EXPECT_EQ(run(script).stop, "fault") << script;
}

TEST_F(DriveTest, FaultsOfTheScriptNameTheirLine)
{
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"frobnicate Hauptmaske\n", "unknown command \"frobnicate\""},
        {"click Hauptmaske.Unbekannt\n", "Hauptmaske.Unbekannt: form Hauptmaske has no control Unbekannt"},
        {"expect Niemand.Caption x\n", "unknown form Niemand"},
        {"set Hauptmaske.Typenliste(1).Value 7\n", "a check box takes 0, 1 or 2, not 7"},
        {"click Hauptmaske.feld(4) extra\n", "usage: click PATH"},
        {"key Hauptmaske.feld(4) F1\n", "key goes to a form, not to Hauptmaske.feld(4)"},
        {"key Hauptmaske F13\n", "unknown key \"F13\""},
        {"wait -5\n", "wait cannot go back in time"},
        {"clock 24.12.2024\n", "clock takes \"YYYY-MM-DD HH:MM:SS\", not \"24.12.2024\""},
        {"printer druck.log\n", "printer is not yet supported"},
    };
    for (const auto& [script, message] : cases) {
        const Outcome o = run((std::string("# first\n") + script).c_str());
        EXPECT_EQ(o.stop, "fault") << script;
        EXPECT_EQ(o.line, 2) << script;
        EXPECT_EQ(o.text, QString::fromUtf8(message)) << script;
    }
}

TEST_F(DriveTest, AnErrorNoHandlerCaughtIsAFailureOfTheSystem)
{
    on("Hauptmaske", "Command1", "Click", [](Merkkartelle&, EventArgs&) {
        throw RuntimeError(err::NoCurrentRecord, QStringLiteral("Kein aktueller Datensatz."));
    });
    const Outcome o = run("click Hauptmaske.Command1\n");
    EXPECT_EQ(o.stop, "failure");
    EXPECT_EQ(o.text, "run-time error 3021: Kein aktueller Datensatz.");
}

TEST_F(DriveTest, SetUpWritesTheIniFilesAndCards)
{
    EXPECT_HELD(run(R"(
layout
ini Workdir Karten
write notiz.txt "Grüße\r\n"
expect file notiz.txt "Grüße\r\n"
ini Workdir ""
card Nachname=Müller Vorname="Hans Otto" Titel=null
card Nachname=Meier
expect cards 2
expect exists merkkartelle.mdb
expect missing Karten/merkkartelle.mdb
)"),
                4);
    EXPECT_EQ(fileBytes("Karten/notiz.txt"), "Gr\xC3\xBC\xC3\x9F" "e\r\n");
    EXPECT_EQ(fileBytes("MERKKARTELLE.INI"), "[Databases]\r\nWorkdir=\r\n");
    DatabasePtr db = Database::open(QDir(home.path()).filePath("merkkartelle.mdb"));
    RecordsetPtr cards = db->createDynaset("Adressenstamm");
    cards->MoveFirst();
    EXPECT_EQ(cards->Fields("Vorname").text(), "Hans Otto");
    EXPECT_TRUE(cards->Fields("Titel").isNull());

    const Outcome o = run("card Unbekannt=1\n");
    EXPECT_EQ(o.stop, "fault");
    EXPECT_TRUE(o.text.startsWith("card: ")) << o.text.toStdString();
}

}  // namespace
}  // namespace mk::drive
