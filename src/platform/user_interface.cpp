#include "platform/user_interface.h"

#include "platform/runtime_error.h"

#include <QStringList>
#include <algorithm>

namespace mk {

std::vector<int> msgBoxAnswers(int buttons)
{
    switch (buttons & 0x7) {
    case vbOKCancel: return {vbOK, vbCancel};
    case vbAbortRetryIgnore: return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel: return {vbYes, vbNo, vbCancel};
    case vbYesNo: return {vbYes, vbNo};
    case vbRetryCancel: return {vbRetry, vbCancel};
    default: return {vbOK};
    }
}

int msgBoxDefault(int buttons)
{
    const std::vector<int> answers = msgBoxAnswers(buttons);
    const std::size_t which = std::size_t((buttons & 0x300) >> 8);
    return answers[std::min(which, answers.size() - 1)];
}

int msgBoxIcon(int buttons)
{
    return buttons & 0x70;
}

namespace {
const std::vector<std::pair<int, QString>>& answerNames()
{
    static const std::vector<std::pair<int, QString>> names = {
        {vbOK, QStringLiteral("OK")},       {vbCancel, QStringLiteral("Cancel")},
        {vbAbort, QStringLiteral("Abort")}, {vbRetry, QStringLiteral("Retry")},
        {vbIgnore, QStringLiteral("Ignore")}, {vbYes, QStringLiteral("Yes")},
        {vbNo, QStringLiteral("No")},
    };
    return names;
}
}  // namespace

QString answerName(int answer)
{
    for (const auto& [value, name] : answerNames())
        if (value == answer)
            return name;
    return QString::number(answer);
}

int answerFromName(const QString& name)
{
    for (const auto& [value, text] : answerNames())
        if (QString::compare(text, name, Qt::CaseInsensitive) == 0)
            return value;
    return -1;
}

std::vector<FileFilter> parseFilter(const QString& filter)
{
    std::vector<FileFilter> out;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        if (parts[i].isEmpty() && parts[i + 1].isEmpty())
            continue;
        out.push_back({parts[i], parts[i + 1]});
    }
    return out;
}

int openDialogFlags(const FileDialog& dialog, bool readOnlyTicked)
{
    // The old dialog came back with 1025 (read-only and "extension differs") when the box
    // was ticked; the database change compares that number exactly.
    return readOnlyTicked ? 1025 : (dialog.Flags & ~cdlOFNReadOnly);
}

// --- answers -------------------------------------------------------------------------

void ScriptedUserInterface::answerMsgBox(int answer) { msgAnswers_.push_back(answer); }
void ScriptedUserInterface::answerInput(const QString& text) { inputAnswers_.push_back(text); }
void ScriptedUserInterface::answerInputCancel() { inputAnswers_.push_back(std::nullopt); }
void ScriptedUserInterface::answerOpen(const QString& path, bool readOnly)
{
    openAnswers_.push_back(FileAnswer{path, readOnly});
}
void ScriptedUserInterface::answerOpenCancel() { openAnswers_.push_back(std::nullopt); }
void ScriptedUserInterface::answerSave(const QString& path) { saveAnswers_.push_back(FileAnswer{path, false}); }
void ScriptedUserInterface::answerSaveCancel() { saveAnswers_.push_back(std::nullopt); }
void ScriptedUserInterface::answerColor(long color) { colorAnswers_.push_back(color); }
void ScriptedUserInterface::answerColorCancel() { colorAnswers_.push_back(std::nullopt); }
void ScriptedUserInterface::answerFont(const QString& name, double size, bool bold, bool italic)
{
    fontAnswers_.push_back(FontChoice{false, name, size, bold, italic});
}
void ScriptedUserInterface::answerFontCancel() { fontAnswers_.push_back(std::nullopt); }
void ScriptedUserInterface::answerPrinter(bool ok) { printerAnswers_.push_back(ok); }

int ScriptedUserInterface::pendingAnswers() const
{
    return int(msgAnswers_.size() + inputAnswers_.size() + openAnswers_.size() + saveAnswers_.size()
               + colorAnswers_.size() + fontAnswers_.size() + printerAnswers_.size());
}

// --- the log -----------------------------------------------------------------------------

std::vector<ShownBox> ScriptedUserInterface::messageBoxes() const
{
    std::vector<ShownBox> out;
    std::copy_if(boxes.begin(), boxes.end(), std::back_inserter(out),
                 [](const ShownBox& b) { return b.kind == QLatin1String("msgbox"); });
    return out;
}

const ShownBox* ScriptedUserInterface::checkNextMsgBox()
{
    for (ShownBox& box : boxes)
        if (box.kind == QLatin1String("msgbox") && !box.checked) {
            box.checked = true;
            return &box;
        }
    return nullptr;
}

bool ScriptedUserInterface::allMsgBoxesChecked() const
{
    return std::none_of(boxes.begin(), boxes.end(), [](const ShownBox& b) {
        return b.kind == QLatin1String("msgbox") && !b.checked;
    });
}

ShownBox& ScriptedUserInterface::logDialog(const QString& kind, const QString& title)
{
    ShownBox box;
    box.kind = kind;
    box.prompt = title;
    box.title = title;
    boxes.push_back(box);
    return boxes.back();
}

// --- the boxes ---------------------------------------------------------------------------

int ScriptedUserInterface::MsgBox(const QString& prompt, int buttons, const QString& title)
{
    ShownBox box;
    box.kind = QStringLiteral("msgbox");
    box.prompt = prompt;
    box.title = title.isEmpty() ? appTitle : title;
    box.buttons = buttons;
    int answer = msgBoxDefault(buttons);
    if (!msgAnswers_.empty()) {
        answer = msgAnswers_.front();
        msgAnswers_.pop_front();
        const std::vector<int> offered = msgBoxAnswers(buttons);
        if (std::find(offered.begin(), offered.end(), answer) == offered.end()) {
            boxes.push_back(box);
            throw AnswerMismatch(QStringLiteral("answer %1 does not fit the message box \"%2\"")
                                     .arg(answerName(answer), prompt));
        }
        box.answered = true;
    }
    box.answer = answerName(answer);
    boxes.push_back(box);
    return answer;
}

QString ScriptedUserInterface::InputBox(const QString& prompt, const QString& title, const QString& defaultText)
{
    ShownBox box;
    box.kind = QStringLiteral("input");
    box.prompt = prompt;
    box.title = title.isEmpty() ? appTitle : title;
    box.fileName = defaultText;
    QString result;  // no answer: the box was cancelled
    bool cancelled = true;
    if (!inputAnswers_.empty()) {
        box.answered = true;
        if (inputAnswers_.front()) {
            result = *inputAnswers_.front();
            cancelled = false;
        }
        inputAnswers_.pop_front();
    }
    box.answer = cancelled ? QStringLiteral("cancel") : result;
    boxes.push_back(box);
    return result;
}

FileChoice ScriptedUserInterface::fileDialog(const QString& kind, std::deque<std::optional<FileAnswer>>& queue,
                                             const FileDialog& dialog, bool open)
{
    ShownBox& box = logDialog(kind, dialog.DialogTitle);
    box.filter = dialog.Filter;
    box.fileName = dialog.FileName;
    box.initDir = dialog.InitDir;
    FileChoice choice;
    choice.Flags = dialog.Flags;
    if (queue.empty()) {
        box.answer = QStringLiteral("cancel");
        return choice;
    }
    box.answered = true;
    std::optional<FileAnswer> answer = queue.front();
    queue.pop_front();
    if (!answer) {
        box.answer = QStringLiteral("cancel");
        return choice;
    }
    box.answer = answer->path;
    choice.cancelled = false;
    choice.FileName = answer->path;
    choice.Flags = open ? openDialogFlags(dialog, answer->readOnly) : dialog.Flags;
    return choice;
}

FileChoice ScriptedUserInterface::ShowOpen(const FileDialog& dialog)
{
    return fileDialog(QStringLiteral("open"), openAnswers_, dialog, true);
}

FileChoice ScriptedUserInterface::ShowSave(const FileDialog& dialog)
{
    return fileDialog(QStringLiteral("save"), saveAnswers_, dialog, false);
}

ColorChoice ScriptedUserInterface::ShowColor(long initial)
{
    ShownBox& box = logDialog(QStringLiteral("color"), QString());
    ColorChoice choice;
    choice.Color = initial;
    box.answer = QStringLiteral("cancel");
    if (colorAnswers_.empty())
        return choice;
    box.answered = true;
    std::optional<long> answer = colorAnswers_.front();
    colorAnswers_.pop_front();
    if (answer) {
        choice.cancelled = false;
        choice.Color = *answer;
        box.answer = QString::number(*answer);
    }
    return choice;
}

FontChoice ScriptedUserInterface::ShowFont(const FontChoice& initial)
{
    ShownBox& box = logDialog(QStringLiteral("font"), QString());
    FontChoice choice = initial;
    choice.cancelled = true;
    box.answer = QStringLiteral("cancel");
    if (fontAnswers_.empty())
        return choice;
    box.answered = true;
    std::optional<FontChoice> answer = fontAnswers_.front();
    fontAnswers_.pop_front();
    if (answer) {
        choice = *answer;
        box.answer = answer->Name;
    }
    return choice;
}

PrinterChoice ScriptedUserInterface::ShowPrinter(const PrinterDialog& dialog)
{
    ShownBox& box = logDialog(QStringLiteral("printer"), dialog.DialogTitle);
    PrinterChoice choice;
    choice.Flags = dialog.Flags;
    choice.Copies = dialog.Copies;
    box.answer = QStringLiteral("cancel");
    if (printerAnswers_.empty())
        return choice;
    box.answered = true;
    choice.cancelled = !printerAnswers_.front();
    printerAnswers_.pop_front();
    if (!choice.cancelled)
        box.answer = QStringLiteral("ok");
    return choice;
}

// --- forms and the rest ------------------------------------------------------------------

void ScriptedUserInterface::showForm(const QString& form, bool modal, const std::function<bool()>& stillShown)
{
    formsShown.emplace_back(form, modal);
    if (modal && modalLoop)
        modalLoop(form, stillShown);
}

void ScriptedUserInterface::hideForm(const QString& form)
{
    formsHidden.push_back(form);
}

void ScriptedUserInterface::DoEvents()
{
    ++doEventsCalls;
    if (onDoEvents)
        onDoEvents();
}

void ScriptedUserInterface::Beep()
{
    ++beeps;
}

bool ScriptedUserInterface::playSound(const QString& file, int)
{
    sounds.push_back(file);
    return true;
}

double ScriptedUserInterface::Shell(const QString& commandLine, int)
{
    shellCommands.push_back(commandLine);
    for (const QString& program : failingPrograms)
        if (commandLine.startsWith(program, Qt::CaseInsensitive))
            throw RuntimeError(err::FileNotFound, QStringLiteral("File not found"));
    return nextProcess_++;
}

void ScriptedUserInterface::programEnded()
{
    ended = true;
}

}  // namespace mk
