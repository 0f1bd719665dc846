#include "app/drive/interpreter.h"

#include "app/drive/faults.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/printer.h"
#include "platform/profile.h"

#include <QDir>

namespace mk::drive {

namespace {

// The current line of the innermost running command, restored when it is done.
class LineScope {
public:
    LineScope(int& current, int line) : current_(current), saved_(current) { current_ = line; }
    ~LineScope() { current_ = saved_; }
    LineScope(const LineScope&) = delete;
    LineScope& operator=(const LineScope&) = delete;

private:
    int& current_;
    int saved_;
};

bool isAbsolute(const QString& path)
{
    QString internal = path;
    internal.replace(u'\\', u'/');
    return QDir::isAbsolutePath(internal) || (internal.size() >= 2 && internal[1] == u':');
}

}  // namespace

Interpreter::Interpreter(std::vector<ScriptLine> lines, Merkkartelle& app, ScriptedUserInterface& ui)
    : lines_(std::move(lines)), app_(app), ui_(ui), ended_(app.ended), modems_(*app.serialPorts),
      devices_(app.serialPorts)
{
    app_.serialPorts = &modems_;
    modems_.onIdleWait = [this](int port) { onIdleWait(port); };
    ui_.modalLoop = [this](const QString& form, const std::function<bool()>& stillShown) {
        modalLoop(form, stillShown);
    };
    ui_.onDoEvents = [this] { onDoEvents(); };
    // Without a printer line, printing goes where the desktop's does: the system printer,
    // or a PDF file offered through the save dialog when none is installed.
    app_.printing.makePrinter = [this] { return std::make_unique<QtPrinterSurface>(ui_); };
}

Interpreter::~Interpreter()
{
    ui_.modalLoop = nullptr;
    ui_.onDoEvents = nullptr;
    app_.serialPorts = devices_;
}

const std::vector<Interpreter::Command>& Interpreter::commands()
{
    static const std::vector<Command> table = {
        {"home", Phase::Setup, &Interpreter::home},
        {"layout", Phase::Setup, &Interpreter::layout},
        {"ini", Phase::Setup, &Interpreter::ini},
        {"card", Phase::Setup, &Interpreter::card},
        {"write", Phase::Setup, &Interpreter::write},
        {"clock", Phase::Setup, &Interpreter::clock},
        {"printer", Phase::Setup, &Interpreter::printer},
        {"preview", Phase::Setup, &Interpreter::preview},
        {"start", Phase::Running, &Interpreter::start},
        {"click", Phase::Running, &Interpreter::click},
        {"dblclick", Phase::Running, &Interpreter::dblclick},
        {"rightclick", Phase::Running, &Interpreter::rightclick},
        {"type", Phase::Running, &Interpreter::type},
        {"keys", Phase::Running, &Interpreter::keys},
        {"key", Phase::Running, &Interpreter::key},
        {"focus", Phase::Running, &Interpreter::focus},
        {"blur", Phase::Running, &Interpreter::blur},
        {"hover", Phase::Running, &Interpreter::hover},
        {"select", Phase::Running, &Interpreter::select},
        {"wait", Phase::Running, &Interpreter::wait},
        {"set", Phase::Running, &Interpreter::set},
        {"after", Phase::Running, &Interpreter::after},
        {"modem", Phase::Running, &Interpreter::modem},
        {"answer", Phase::Answer, &Interpreter::answer},
        {"expect", Phase::Check, &Interpreter::expect},
    };
    return table;
}

const Interpreter::Command* Interpreter::command(const Token& name) const
{
    if (name.quoted)
        return nullptr;
    for (const Command& c : commands())
        if (name.is(c.name))
            return &c;
    return nullptr;
}

int Interpreter::run()
{
    while (cursor_ < lines_.size()) {
        const ScriptLine& line = lines_[cursor_++];
        try {
            execute(line);
        } catch (const ProgramEnded&) {
            // Every handler and modal loop has unwound; the lines after the one that ended
            // the program may only look at what it left behind.
            ended_ = true;
            pending_.clear();
        }
    }
    checkNothingPending();
    return passed_;
}

void Interpreter::execute(const ScriptLine& line)
{
    LineScope scope(currentLine_, line.number);
    idleWaits_ = 0;
    const Command* c = command(line.tokens.front());
    if (!c)
        fault(QStringLiteral("unknown command %1").arg(quotedValue(line.tokens.front().text)));
    if (ended_ && c->phase != Phase::Check)
        fault(QStringLiteral("the program has ended: only expect ended, expect file, expect exists and "
                             "expect missing may follow"));
    (this->*c->run)(line);
    afterLine();
}

void Interpreter::afterLine()
{
    for (; boxesSeen_ < ui_.boxes.size(); ++boxesSeen_) {
        const ShownBox& box = ui_.boxes[boxesSeen_];
        if (!box.answered)
            tell(QStringLiteral("unanswered %1 %2: took %3").arg(box.kind, quotedValue(box.prompt), box.answer));
    }
    if (!ended_)
        app_.timers.sync(app_.forms, app_.clock);
}

void Interpreter::modalLoop(const QString& form, const std::function<bool()>& stillShown)
{
    const int opener = currentLine_;
    while (stillShown()) {
        if (cursor_ >= lines_.size())
            throw ScriptFault{opener, QStringLiteral("the script ends while the modal form %1 is shown").arg(form)};
        execute(lines_[cursor_++]);
    }
}

void Interpreter::onDoEvents()
{
    std::vector<PendingLine> due;
    for (auto it = pending_.begin(); it != pending_.end();) {
        if (--it->remaining > 0) {
            ++it;
            continue;
        }
        due.push_back(std::move(*it));
        it = pending_.erase(it);
    }
    for (const PendingLine& p : due)
        execute(p.line);
}

void Interpreter::checkNothingPending()
{
    if (pending_.empty())
        return;
    const PendingLine& p = pending_.front();
    const int wanted = p.remaining + (ui_.doEventsCalls - p.callsAtStart);
    currentLine_ = p.line.number;
    check(false, QStringLiteral("%1 DoEvents calls").arg(wanted),
          QString::number(ui_.doEventsCalls - p.callsAtStart));
}

void Interpreter::fault(const QString& message) const
{
    throw ScriptFault{currentLine_, message};
}

void Interpreter::need(const ScriptLine& line, std::size_t count, const char* usage) const
{
    if (line.tokens.size() != count)
        fault(QStringLiteral("usage: %1").arg(QLatin1String(usage)));
}

void Interpreter::guarded(const std::function<void()>& step)
{
    try {
        step();
    } catch (const ProgramEnded&) {
        throw;
    } catch (const AnswerMismatch& e) {
        throw ScriptFault{currentLine_, e.message()};
    } catch (const RuntimeError& e) {
        throw SystemFailure{currentLine_, QStringLiteral("run-time error %1: %2").arg(e.Number).arg(e.Description)};
    } catch (const FormsError& e) {
        throw SystemFailure{currentLine_, e.message()};
    } catch (const std::exception& e) {
        throw SystemFailure{currentLine_, QString::fromUtf8(e.what())};
    }
}

bool Interpreter::fire(const QString& path, const QString& event, EventArgs& args)
{
    bool ran = false;
    guarded([&] { ran = raiseEvent(app_, path, event, args); });
    return ran;
}

void Interpreter::tell(const QString& message)
{
    if (note)
        note(QStringLiteral("line %1: %2").arg(currentLine_).arg(message));
}

ControlRef Interpreter::control(const QString& path)
{
    try {
        return app_.forms.control(path);
    } catch (const FormsError& e) {
        fault(e.message());
    }
}

// The event goes to a disabled control as the script says, but the log tells, since a user
// could not have done it on the screen.
void Interpreter::noteIfDisabled(const ControlRef& ref, const char* action)
{
    const bool enabled = ref.control ? ref.control->Enabled : app_.forms.form(ref.form).Enabled;
    if (!enabled)
        tell(QStringLiteral("%1 is disabled: a user could not give it the %2").arg(ref.path(), QLatin1String(action)));
}

// The folder of the card database: the session's once the system has one, else the one the
// INI file names. A relative folder is taken from the application home, where the driver
// starts the program's current directory, so that scripts need not know where the home is.
QString Interpreter::workingDirectory()
{
    if (started_ && !app_.Arbeitsverzeichnis.isEmpty())
        return fromHome(app_.Arbeitsverzeichnis);
    return fromHome(GetPrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Workdir"),
                                            applicationHome(), QStringLiteral("MERKKARTELLE.INI")));
}

QString Interpreter::fromHome(const QString& dir) const
{
    return isAbsolute(dir) ? dir : joinPath(applicationHome(), dir);
}

QString Interpreter::filePath(const QString& path)
{
    return resolvePath(isAbsolute(path) ? path : joinPath(workingDirectory(), path));
}

int Interpreter::number(const Token& token, const char* what) const
{
    bool ok = false;
    const int n = token.text.toInt(&ok);
    if (!ok)
        fault(QStringLiteral("%1 must be a whole number, not %2").arg(QLatin1String(what), quotedValue(token.text)));
    return n;
}

}  // namespace mk::drive
