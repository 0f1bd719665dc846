#pragma once
// The interpreter of driver scripts. It runs the lines in order over one shared cursor:
// when a handler shows a form modally, the scripted user interface calls back into the
// interpreter, which goes on with the following lines inside that handler until the form
// hides; a line queued with `after N doevents` runs inside the N-th DoEvents call. So the
// script reads as what a user does, while the handlers run as they would on a screen.
//
// run() returns the number of expectations that held; a failing expectation, a fault of the
// script and a failure of the system stop it with ExpectFailed, ScriptFault and
// SystemFailure (faults.h).

#include "app/drive/script_lexer.h"
#include "app/drive/simulated_modems.h"
#include "card/app_state.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace mk::drive {

class Interpreter {
public:
    Interpreter(std::vector<ScriptLine> lines, Merkkartelle& app, ScriptedUserInterface& ui);
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    int run();

    // Where unanswered boxes and ignored actions are reported (the driver gives stderr).
    std::function<void(const QString&)> note;

private:
    enum class Phase { Setup, Running, Answer, Check };
    using Run = void (Interpreter::*)(const ScriptLine&);
    struct Command {
        const char* name;
        Phase phase;
        Run run;
    };
    struct PendingLine {
        int remaining = 0;     // DoEvents calls still to come
        int callsAtStart = 0;
        ScriptLine line;
    };

    // --- the loop (interpreter.cpp) ---------------------------------------------------------
    static const std::vector<Command>& commands();
    const Command* command(const Token& name) const;
    void execute(const ScriptLine& line);
    void afterLine();
    void modalLoop(const QString& form, const std::function<bool()>& stillShown);
    void onDoEvents();
    void checkNothingPending();
    [[noreturn]] void fault(const QString& message) const;
    void need(const ScriptLine& line, std::size_t count, const char* usage) const;
    // Runs system code for the current line: an error no handler caught becomes a
    // SystemFailure, an answer that does not fit its box a ScriptFault.
    void guarded(const std::function<void()>& step);
    bool fire(const QString& path, const QString& event, EventArgs& args);
    void tell(const QString& message);

    // --- helpers over forms and files (interpreter.cpp) -------------------------------------
    ControlRef control(const QString& path);
    void noteIfDisabled(const ControlRef& ref, const char* action);
    QString workingDirectory();
    QString fromHome(const QString& dir) const;
    QString filePath(const QString& path);
    int number(const Token& token, const char* what) const;

    // --- set-up (setup_commands.cpp) --------------------------------------------------------
    void home(const ScriptLine& line);
    void layout(const ScriptLine& line);
    void ini(const ScriptLine& line);
    void card(const ScriptLine& line);
    void write(const ScriptLine& line);
    void clock(const ScriptLine& line);
    void printer(const ScriptLine& line);
    void preview(const ScriptLine& line);
    QString cardDatabasePath();
    QString cardTableName();

    // --- running (running_commands.cpp) -----------------------------------------------------
    void start(const ScriptLine& line);
    void click(const ScriptLine& line);
    void dblclick(const ScriptLine& line);
    void rightclick(const ScriptLine& line);
    void type(const ScriptLine& line);
    void keys(const ScriptLine& line);
    void key(const ScriptLine& line);
    void focus(const ScriptLine& line);
    void blur(const ScriptLine& line);
    void hover(const ScriptLine& line);
    void select(const ScriptLine& line);
    void wait(const ScriptLine& line);
    void set(const ScriptLine& line);
    void after(const ScriptLine& line);
    void modem(const ScriptLine& line);
    int comPort(const Token& token) const;
    void onIdleWait(int port);
    void simpleEvent(const ScriptLine& line, const char* usage, const char* event, int button = 0);
    void typeKey(const QString& path, int keyAscii);

    // --- answers (answer_commands.cpp) ------------------------------------------------------
    void answer(const ScriptLine& line);

    // --- checks (check_commands.cpp) --------------------------------------------------------
    void expect(const ScriptLine& line);
    void expectProperty(const ScriptLine& line);
    void expectMsgBox(const ScriptLine& line);
    void expectNoMsgBox(const ScriptLine& line);
    void expectFile(const ScriptLine& line);
    void expectPresence(const ScriptLine& line, bool present);
    void expectEnded(const ScriptLine& line);
    void expectCards(const ScriptLine& line);
    void expectModem(const ScriptLine& line);
    void check(bool held, const QString& expected, const QString& got);

    std::vector<ScriptLine> lines_;
    std::size_t cursor_ = 0;
    int currentLine_ = 0;
    Merkkartelle& app_;
    ScriptedUserInterface& ui_;
    int passed_ = 0;
    bool started_ = false;
    bool ended_ = false;
    std::size_t boxesSeen_ = 0;
    std::vector<PendingLine> pending_;
    SimulatedSerialPorts modems_;
    SerialPorts* devices_ = nullptr;  // the system's own serial service, given back at the end
    int idleWaits_ = 0;               // waits on a silent simulated port with nothing queued
};

}  // namespace mk::drive
