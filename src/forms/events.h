#pragma once
// Events of the forms: the arguments an event carries, the table of handlers that each
// subsystem fills, and the end of the program.
//
// A handler is a plain function over the system object, registered under
// (form, control, event); a form's own events (Load, Activate, Unload, QueryUnload,
// KeyDown, Resize …) have the empty control name. Names are matched without regard to case.
// The Qt binder and the headless driver dispatch through this table and nothing else.

#include <QString>
#include <QStringList>
#include <exception>
#include <functional>
#include <map>
#include <tuple>

namespace mk {

struct Merkkartelle;  // the system object, card/app_state.h

struct EventArgs {
    int Index = -1;     // element of a control array, -1 for a single control
    int KeyCode = 0;    // KeyDown/KeyUp; a handler may set it to 0 to swallow the key
    int Shift = 0;      // 1 shift, 2 ctrl, 4 alt
    int KeyAscii = 0;   // KeyPress, in and out: 0 swallows the key
    int Button = 0;     // mouse events: 1 left, 2 right, 4 middle
    double X = 0;
    double Y = 0;
    int Cancel = 0;     // QueryUnload/Unload: in and out, not 0 keeps the form
    int UnloadMode = 0; // QueryUnload: 0 closed by the user, 1 by code
};

// Mouse buttons and shift states of the old runtime.
constexpr int vbLeftButton = 1;
constexpr int vbRightButton = 2;
constexpr int vbMiddleButton = 4;
constexpr int vbShiftMask = 1;
constexpr int vbCtrlMask = 2;
constexpr int vbAltMask = 4;

// Key codes of KeyDown/KeyUp, as the old runtime numbered them.
constexpr int vbKeyBack = 8;
constexpr int vbKeyTab = 9;
constexpr int vbKeyReturn = 13;
constexpr int vbKeyEscape = 27;
constexpr int vbKeySpace = 32;
constexpr int vbKeyPageUp = 33;
constexpr int vbKeyPageDown = 34;
constexpr int vbKeyEnd = 35;
constexpr int vbKeyHome = 36;
constexpr int vbKeyLeft = 37;
constexpr int vbKeyUp = 38;
constexpr int vbKeyRight = 39;
constexpr int vbKeyDown = 40;
constexpr int vbKeyDelete = 46;
constexpr int vbKeyF1 = 112;  // F2 … F12 follow: vbKeyF1 + n - 1
constexpr int vbKeyF2 = 113;
constexpr int vbKeyF3 = 114;
constexpr int vbKeyF4 = 115;
constexpr int vbKeyF5 = 116;
constexpr int vbKeyF6 = 117;
constexpr int vbKeyF7 = 118;
constexpr int vbKeyF8 = 119;
constexpr int vbKeyF9 = 120;
constexpr int vbKeyF10 = 121;
constexpr int vbKeyF11 = 122;
constexpr int vbKeyF12 = 123;

using Handler = std::function<void(Merkkartelle&, EventArgs&)>;

class HandlerTable {
public:
    void on(const QString& form, const QString& control, const QString& event, Handler handler);
    // Handlers written as NeueAdresse_Click(Merkkartelle&) or feld_Change(Merkkartelle&, int index).
    void on(const QString& form, const QString& control, const QString& event, void (*handler)(Merkkartelle&));
    void on(const QString& form, const QString& control, const QString& event,
            void (*handler)(Merkkartelle&, int index));
    // The form's own events.
    void onForm(const QString& form, const QString& event, Handler handler);

    const Handler* find(const QString& form, const QString& control, const QString& event) const;
    bool has(const QString& form, const QString& control, const QString& event) const
    {
        return find(form, control, event) != nullptr;
    }
    int size() const { return int(handlers_.size()); }
    // Events that were registered more than once ("Form.Control.Event"), the later winning.
    const QStringList& duplicates() const { return duplicates_; }

private:
    using Key = std::tuple<QString, QString, QString>;
    static Key key(const QString& form, const QString& control, const QString& event);
    std::map<Key, Handler> handlers_;
    QStringList duplicates_;
};

// The program's end (the old End statement): unwinds every running handler and modal loop
// up to the top, where the desktop program and the driver catch it. It is deliberately no
// RuntimeError, so that no "under ignored errors" step can swallow it.
class ProgramEnded : public std::exception {
public:
    const char* what() const noexcept override { return "End"; }
};

}  // namespace mk
