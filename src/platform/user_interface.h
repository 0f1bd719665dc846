#pragma once
// The user-interface services the handlers call: message and input boxes, the common
// dialogs, showing forms (a modal show runs a loop until the form hides), DoEvents, beep,
// sounds and Shell. The desktop program implements them with Qt (screens/); tests and the
// headless driver use ScriptedUserInterface, which takes queued answers and logs every box.

#include <QString>
#include <deque>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace mk {

// MsgBox buttons, icons and default button, added together as in the old runtime.
constexpr int vbOKOnly = 0;
constexpr int vbOKCancel = 1;
constexpr int vbAbortRetryIgnore = 2;
constexpr int vbYesNoCancel = 3;
constexpr int vbYesNo = 4;
constexpr int vbRetryCancel = 5;
constexpr int vbCritical = 16;
constexpr int vbQuestion = 32;
constexpr int vbExclamation = 48;
constexpr int vbInformation = 64;
constexpr int vbDefaultButton1 = 0;
constexpr int vbDefaultButton2 = 256;
constexpr int vbDefaultButton3 = 512;

// MsgBox answers.
constexpr int vbOK = 1;
constexpr int vbCancel = 2;
constexpr int vbAbort = 3;
constexpr int vbRetry = 4;
constexpr int vbIgnore = 5;
constexpr int vbYes = 6;
constexpr int vbNo = 7;

// The answers a box offers, in the order of its buttons.
std::vector<int> msgBoxAnswers(int buttons);
// The answer of the default button (Enter, or no answer at all).
int msgBoxDefault(int buttons);
int msgBoxIcon(int buttons);  // 0, vbCritical, vbQuestion, vbExclamation or vbInformation
// "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"; and back (-1 for none), case-blind.
QString answerName(int answer);
int answerFromName(const QString& name);

// Common dialog flags the system uses.
constexpr int cdlOFNReadOnly = 0x1;          // open: the read-only box is ticked
constexpr int cdlOFNOverwritePrompt = 0x2;
constexpr int cdlOFNHideReadOnly = 0x4;
constexpr int cdlOFNPathMustExist = 0x800;
constexpr int cdlOFNFileMustExist = 0x1000;
constexpr int cdlPDAllPages = 0x0;
constexpr int cdlPDSelection = 0x1;
constexpr int cdlCancel = 32755;             // the error a cancelled dialog raised

// One line of a dialog filter "Text (*.x)|*.x|": its description and its patterns.
struct FileFilter {
    QString description;
    QString patterns;  // "*.x" or "*.x;*.y"
};
std::vector<FileFilter> parseFilter(const QString& filter);

struct FileDialog {
    QString DialogTitle;
    QString Filter;
    int FilterIndex = 1;
    QString InitDir;
    QString FileName;  // the proposed name, or a pattern such as "*.exe"
    QString DefaultExt;
    int Flags = 0;
};

// The choice of an open or save dialog. FileName is the full path. Flags: the open dialog
// reports 1025 when its read-only box was ticked, as the old one did; otherwise the flags it
// was given, without the read-only bit.
struct FileChoice {
    bool cancelled = true;
    QString FileName;
    int Flags = 0;
};
int openDialogFlags(const FileDialog& dialog, bool readOnlyTicked);

struct ColorChoice {
    bool cancelled = true;
    long Color = 0;  // 0x00BBGGRR
};

struct FontChoice {
    bool cancelled = true;
    QString Name;
    double Size = 0;
    bool Bold = false;
    bool Italic = false;
};

struct PrinterDialog {
    QString DialogTitle;
    int Flags = 0;
    int Copies = 1;
};

struct PrinterChoice {
    bool cancelled = true;
    int Flags = 0;
    int Copies = 1;
    QString PrinterName;  // the printer chosen; empty: the one in use
};

class UserInterface {
public:
    virtual ~UserInterface() = default;

    virtual int MsgBox(const QString& prompt, int buttons = vbOKOnly, const QString& title = QString()) = 0;
    // The typed text; the empty text when cancelled, as the old InputBox gave it.
    virtual QString InputBox(const QString& prompt, const QString& title = QString(),
                             const QString& defaultText = QString()) = 0;
    virtual FileChoice ShowOpen(const FileDialog& dialog) = 0;
    virtual FileChoice ShowSave(const FileDialog& dialog) = 0;
    virtual ColorChoice ShowColor(long initial) = 0;
    virtual FontChoice ShowFont(const FontChoice& initial) = 0;
    virtual PrinterChoice ShowPrinter(const PrinterDialog& dialog) = 0;

    // A form became visible. A modal show returns only when stillShown() says false: the
    // implementation runs its loop (the Qt event loop, the driver's script lines) meanwhile.
    virtual void showForm(const QString& form, bool modal, const std::function<bool()>& stillShown) = 0;
    virtual void hideForm(const QString& form) = 0;

    virtual void DoEvents() = 0;
    virtual void Beep() = 0;
    // sndPlaySound: the file name as given; false when it could not be played.
    virtual bool playSound(const QString& file, int flags) = 0;
    // Shell: starts the command line; the process number. A program that cannot be started
    // raises RuntimeError 53, as the old Shell did.
    virtual double Shell(const QString& commandLine, int windowStyle) = 0;
    // The program ended (End): the last thing before the unwinding.
    virtual void programEnded() {}
    // The clipboard's text, for the cut, copy and paste buttons of the mask.
    virtual QString clipboardText() { return {}; }
    virtual void setClipboardText(const QString&) {}
};

constexpr int vbNormalFocus = 1;

// A queued answer that does not fit the box it meets: a fault of the script or test.
class AnswerMismatch : public std::exception {
public:
    explicit AnswerMismatch(QString message) : message_(std::move(message)), utf8_(message_.toStdString()) {}
    const char* what() const noexcept override { return utf8_.c_str(); }
    const QString& message() const { return message_; }

private:
    QString message_;
    std::string utf8_;
};

// One box or dialog as it was shown.
struct ShownBox {
    QString kind;     // "msgbox", "input", "open", "save", "color", "font", "printer"
    QString prompt;   // the prompt of a box; the title of a dialog
    QString title;    // as shown: a box given no title shows the program's
    int buttons = 0;  // message boxes
    QString filter;   // file dialogs
    QString fileName; // file dialogs: the proposed name
    QString initDir;
    bool answered = false;  // false: no answer was queued, the default was taken
    QString answer;   // the answer as text: "Yes", the typed text, the path, "cancel"
    bool checked = false;   // message boxes: an expectation has looked at it
};

class ScriptedUserInterface : public UserInterface {
public:
    // Answers, taken in order by the next box or dialog of their kind.
    void answerMsgBox(int answer);
    void answerInput(const QString& text);
    void answerInputCancel();
    void answerOpen(const QString& path, bool readOnly = false);
    void answerOpenCancel();
    void answerSave(const QString& path);
    void answerSaveCancel();
    void answerColor(long color);
    void answerColorCancel();
    void answerFont(const QString& name, double size, bool bold, bool italic);
    void answerFontCancel();
    void answerPrinter(bool ok);
    int pendingAnswers() const;

    // The log.
    std::vector<ShownBox> boxes;
    std::vector<ShownBox> messageBoxes() const;
    // The oldest message box not yet checked, now marked checked; null when there is none.
    const ShownBox* checkNextMsgBox();
    bool allMsgBoxesChecked() const;
    std::vector<QString> sounds;
    std::vector<QString> shellCommands;
    std::vector<std::pair<QString, bool>> formsShown;  // form, modal
    std::vector<QString> formsHidden;
    int beeps = 0;
    int doEventsCalls = 0;
    bool ended = false;

    // The title a box shows when it is given none (the program's title).
    QString appTitle = QStringLiteral("Merkkartelle");

    // Hooks: the loop of a modal show (without one a modal show returns at once), and work
    // to do inside DoEvents.
    std::function<void(const QString& form, const std::function<bool()>& stillShown)> modalLoop;
    std::function<void()> onDoEvents;
    // Command lines that Shell refuses (error 53), matched by their start.
    std::vector<QString> failingPrograms;

    int MsgBox(const QString& prompt, int buttons = vbOKOnly, const QString& title = QString()) override;
    QString InputBox(const QString& prompt, const QString& title = QString(),
                     const QString& defaultText = QString()) override;
    FileChoice ShowOpen(const FileDialog& dialog) override;
    FileChoice ShowSave(const FileDialog& dialog) override;
    ColorChoice ShowColor(long initial) override;
    FontChoice ShowFont(const FontChoice& initial) override;
    PrinterChoice ShowPrinter(const PrinterDialog& dialog) override;
    void showForm(const QString& form, bool modal, const std::function<bool()>& stillShown) override;
    void hideForm(const QString& form) override;
    void DoEvents() override;
    void Beep() override;
    bool playSound(const QString& file, int flags) override;
    double Shell(const QString& commandLine, int windowStyle) override;
    void programEnded() override;
    // Kept in memory: tests and scripts see what was cut or copied without a desktop.
    QString clipboard;
    QString clipboardText() override { return clipboard; }
    void setClipboardText(const QString& text) override { clipboard = text; }

private:
    struct FileAnswer {
        QString path;
        bool readOnly = false;
    };
    ShownBox& logDialog(const QString& kind, const QString& title);
    FileChoice fileDialog(const QString& kind, std::deque<std::optional<FileAnswer>>& queue,
                          const FileDialog& dialog, bool open);

    std::deque<int> msgAnswers_;
    std::deque<std::optional<QString>> inputAnswers_;
    std::deque<std::optional<FileAnswer>> openAnswers_;
    std::deque<std::optional<FileAnswer>> saveAnswers_;
    std::deque<std::optional<long>> colorAnswers_;
    std::deque<std::optional<FontChoice>> fontAnswers_;
    std::deque<bool> printerAnswers_;
    double nextProcess_ = 1000;
};

}  // namespace mk
