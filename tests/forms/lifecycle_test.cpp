// Forms in the system object: events through the handler table, load/show/unload, End.

#include "card/app_state.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

class LifecycleTest : public ::testing::Test {
protected:
    test::ScriptedSystem system;
    ScriptedUserInterface& ui = system.ui;
    Merkkartelle& app = system.app;
    std::vector<QString> calls;
};

void NeueAdresse_Click(Merkkartelle& app) { app.Hauptmaske.NeueAdresse.Caption = QStringLiteral("Speichern"); }
int lastChanged = -2;
void feld_Change(Merkkartelle&, int index) { lastChanged = index; }

TEST_F(LifecycleTest, DispatchReachesTheHandlerWithTheIndex)
{
    app.handlers.on("Hauptmaske", "NeueAdresse", "Click", NeueAdresse_Click);
    app.handlers.on("Hauptmaske", "feld", "Change", feld_Change);
    EventArgs keyArgs;
    app.handlers.on("Hauptmaske", "feld", "KeyPress", [](Merkkartelle&, EventArgs& a) { a.KeyAscii = 0; });

    EXPECT_TRUE(raiseEvent(app, "hauptmaske.neueadresse", "click"));
    EXPECT_EQ(app.Hauptmaske.NeueAdresse.Caption, "Speichern");
    EXPECT_TRUE(raiseEvent(app, "Hauptmaske.feld(13)", "Change"));
    EXPECT_EQ(lastChanged, 13);
    keyArgs.KeyAscii = 'a';
    raiseEvent(app, "Hauptmaske.feld(2)", "KeyPress", keyArgs);
    EXPECT_EQ(keyArgs.KeyAscii, 0);  // a handler swallows the key through the args

    EXPECT_FALSE(raiseEvent(app, "Hauptmaske.Label33", "DblClick"));  // no handler: nothing
    EXPECT_THROW(raiseEvent(app, "Hauptmaske.feld(40)", "Change"), FormsError);
    EXPECT_THROW(raiseEvent(app, "Hauptmaske.Unbekannt", "Click"), FormsError);
}

TEST_F(LifecycleTest, UnloadBringsTheDesignValuesBack)
{
    showForm(app, "Form3");
    app.Form3.Option3D1[5].Value = true;
    app.Form3.AZCHECK.Value = true;
    app.Form3.Caption = "anders";
    ASSERT_TRUE(unloadForm(app, app.Form3));
    EXPECT_FALSE(app.Form3.Loaded);
    EXPECT_FALSE(app.Form3.Visible);
    EXPECT_FALSE(app.Form3.Option3D1[5].Value);
    EXPECT_FALSE(app.Form3.AZCHECK.Value);
    EXPECT_EQ(app.Form3.Caption, "Datenbanksortierung");
    EXPECT_EQ(app.Form3.Option3D1[5].Name, "Option3D1");
    // the registry still reaches the fresh struct
    app.forms.write("Form3.Option3D1(21).Value", "True");
    EXPECT_TRUE(app.Form3.Option3D1[21].Value);
}

TEST_F(LifecycleTest, LoadOnceActivateOnShowAndCancelledUnload)
{
    app.handlers.onForm("Message", "Load", [this](Merkkartelle&, EventArgs&) { calls.push_back("Load"); });
    app.handlers.onForm("Message", "Activate", [this](Merkkartelle&, EventArgs&) { calls.push_back("Activate"); });
    app.handlers.onForm("Message", "QueryUnload", [this](Merkkartelle&, EventArgs& a) {
        calls.push_back("QueryUnload");
        a.Cancel = a.UnloadMode == 0;  // the user may not close it, code may
    });
    app.handlers.onForm("Message", "Unload", [this](Merkkartelle&, EventArgs&) { calls.push_back("Unload"); });

    loadForm(app, "Message");
    showForm(app, "Message");
    hideForm(app, "Message");
    showForm(app, "Message");
    EXPECT_FALSE(unloadForm(app, "Message", 0));
    EXPECT_TRUE(app.Message.Visible);
    EXPECT_TRUE(unloadForm(app, "Message"));
    EXPECT_EQ(calls, (std::vector<QString>{"Load", "Activate", "Activate", "QueryUnload", "QueryUnload", "Unload"}));
    EXPECT_EQ(ui.formsHidden.back(), "Message");
}

TEST_F(LifecycleTest, ModalShowStaysInTheLoopUntilTheFormHides)
{
    int rounds = 0;
    ui.modalLoop = [&](const QString& form, const std::function<bool()>& stillShown) {
        EXPECT_EQ(form, "Message");
        while (stillShown()) {
            ++rounds;
            advanceClock(app, 500);  // the notice closes by its own timer
        }
    };
    app.handlers.on("Message", "Timer1", "Timer", [](Merkkartelle& a, EventArgs&) { unloadForm(a, "Message"); });
    app.handlers.on("Hauptmaske", "Command3D24", "Click", [this](Merkkartelle& a, EventArgs&) {
        a.Message.Label1.Caption = "Sortierung der Datenbank:";
        showForm(a, a.Message, true);
        calls.push_back("after the notice");
    });

    raiseEvent(app, "Hauptmaske.Command3D24", "Click");
    EXPECT_EQ(rounds, 4);  // Interval 2000 in steps of 500
    EXPECT_EQ(calls, std::vector<QString>{"after the notice"});
    EXPECT_FALSE(app.Message.Loaded);
    EXPECT_EQ(app.Message.Label1.Caption, "");
    EXPECT_EQ(ui.formsShown.back(), std::make_pair(QString("Message"), true));
}

TEST_F(LifecycleTest, EndUnwindsNestedHandlersAndIsNeverIgnored)
{
    app.handlers.on("Hauptmaske", "SSCommand1", "Click", [this](Merkkartelle& a, EventArgs&) {
        underIgnoredErrors([&] { End(a); });
        calls.push_back("after End");
    });
    app.handlers.on("Hauptmaske", "Command3D1", "Click", [this](Merkkartelle& a, EventArgs&) {
        ui.modalLoop = [&](const QString&, const std::function<bool()>&) {
            raiseEvent(a, "Hauptmaske.SSCommand1", "Click");
            calls.push_back("after the inner click");
        };
        showForm(a, "Form3", true);
        calls.push_back("after the modal form");
    });

    EXPECT_THROW(raiseEvent(app, "Hauptmaske.Command3D1", "Click"), ProgramEnded);
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(app.ended);
    EXPECT_TRUE(ui.ended);
}

}  // namespace
}  // namespace mk
