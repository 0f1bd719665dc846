// Running commands: what a user does to the forms, turned into the events the handlers get.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"
#include "app/drive/key_names.h"
#include "card/session.h"
#include "forms/status_line.h"

namespace mk::drive {

namespace {

bool isTextControl(const ControlRef& ref)
{
    return ref.is(ControlKind::TextBox) || ref.is(ControlKind::RichText) || ref.is(ControlKind::ComboBox);
}

// The text and selection of a text control, whatever its kind.
struct TextTarget {
    QString* text = nullptr;
    TextSelection* sel = nullptr;  // null for a combo box: typing goes to the end
    int maxLength = 0;
    bool locked = false;
    bool multiLine = false;
};

TextTarget textTarget(const ControlRef& ref)
{
    if (ref.is(ControlKind::TextBox)) {
        auto& box = ref.as<TextBox>();
        return {&box.Text, &box, box.MaxLength, box.Locked, box.MultiLine};
    }
    if (ref.is(ControlKind::RichText)) {
        auto& box = ref.as<RichText>();
        return {&box.Text, &box, box.MaxLength, box.Locked, true};
    }
    auto& combo = ref.as<ComboBox>();
    return {&combo.Text, nullptr, 0, combo.Style == 2, false};
}

void caretToEnd(TextTarget& t)
{
    if (t.sel) {
        t.sel->SelStart = int(t.text->size());
        t.sel->SelLength = 0;
    }
}

// One typed character after its KeyPress: true when the text changed.
bool insertTyped(TextTarget& t, int keyAscii)
{
    if (t.locked)
        return false;
    TextSelection end{int(t.text->size()), 0};
    TextSelection& sel = t.sel ? *t.sel : end;
    sel.SelStart = std::clamp(sel.SelStart, 0, int(t.text->size()));
    sel.SelLength = std::clamp(sel.SelLength, 0, int(t.text->size()) - sel.SelStart);
    if (keyAscii == vbKeyBack) {
        if (sel.SelLength == 0 && sel.SelStart > 0) {
            --sel.SelStart;
            sel.SelLength = 1;
        }
        if (sel.SelLength == 0)
            return false;
        replaceSelection(*t.text, sel, QString());
        return true;
    }
    QString insert;
    if (keyAscii == vbKeyReturn)
        insert = t.multiLine ? QStringLiteral("\r\n") : QString();
    else if (keyAscii >= 32)
        insert = QString(QChar(char16_t(keyAscii)));
    if (insert.isEmpty())
        return false;
    if (t.maxLength > 0 && t.text->size() - sel.SelLength + insert.size() > t.maxLength)
        return false;
    replaceSelection(*t.text, sel, insert);
    return true;
}

}  // namespace

void Interpreter::start(const ScriptLine& line)
{
    need(line, 1, "start");
    started_ = true;
    guarded([this] { Start(app_); });
}

void Interpreter::click(const ScriptLine& line)
{
    need(line, 2, "click PATH");
    const ControlRef ref = control(line.tokens[1].text);
    noteIfDisabled(ref, "click");
    applyClick(app_.forms, ref);
    EventArgs args;
    fire(ref.path(), QStringLiteral("Click"), args);
}

void Interpreter::simpleEvent(const ScriptLine& line, const char* usage, const char* event, int button)
{
    need(line, 2, usage);
    const ControlRef ref = control(line.tokens[1].text);
    noteIfDisabled(ref, event);
    EventArgs args;
    args.Button = button;
    fire(ref.path(), QLatin1String(event), args);
}

void Interpreter::dblclick(const ScriptLine& line)
{
    simpleEvent(line, "dblclick PATH", "DblClick");
}

void Interpreter::rightclick(const ScriptLine& line)
{
    need(line, 2, "rightclick PATH");
    const ControlRef ref = control(line.tokens[1].text);
    noteIfDisabled(ref, "right click");
    for (const char* event : {"MouseDown", "MouseUp"}) {
        EventArgs args;
        args.Button = vbRightButton;
        fire(ref.path(), QLatin1String(event), args);
    }
}

void Interpreter::focus(const ScriptLine& line)
{
    simpleEvent(line, "focus PATH", "GotFocus");
}

void Interpreter::blur(const ScriptLine& line)
{
    simpleEvent(line, "blur PATH", "LostFocus");
}

void Interpreter::hover(const ScriptLine& line)
{
    need(line, 2, "hover PATH");
    const ControlRef ref = control(line.tokens[1].text);
    noteIfDisabled(ref, "MouseMove");
    // As on the desktop: the status line takes the hint first, then the control's own
    // handler runs, and may write another text there.
    showHintInStatusLine(app_.forms, statusLineOf(app_.forms, ref.form), ref);
    EventArgs args;
    fire(ref.path(), QStringLiteral("MouseMove"), args);
}

// A paste over the whole text: cut at MaxLength, caret at the end, one Change.
void Interpreter::type(const ScriptLine& line)
{
    need(line, 3, "type PATH TEXT");
    const ControlRef ref = control(line.tokens[1].text);
    if (!isTextControl(ref))
        fault(QStringLiteral("%1 is no text box, rich text box or combo box").arg(ref.path()));
    noteIfDisabled(ref, "typing");
    TextTarget t = textTarget(ref);
    if (t.locked) {
        tell(QStringLiteral("%1 is locked: the typing does nothing").arg(ref.path()));
        return;
    }
    QString text = line.tokens[2].text;
    if (t.maxLength > 0)
        text.truncate(t.maxLength);
    *t.text = text;
    caretToEnd(t);
    EventArgs args;
    fire(ref.path(), QStringLiteral("Change"), args);
}

void Interpreter::keys(const ScriptLine& line)
{
    need(line, 3, "keys PATH TEXT");
    const QString path = line.tokens[1].text;
    const ControlRef ref = control(path);
    if (!isTextControl(ref))
        fault(QStringLiteral("%1 is no text box, rich text box or combo box").arg(ref.path()));
    noteIfDisabled(ref, "typing");
    TextTarget t = textTarget(ref);
    caretToEnd(t);
    for (QChar c : line.tokens[2].text)
        typeKey(path, c == u'\n' ? vbKeyReturn : int(c.unicode()));
}

// One key typed into a control: the form's KeyPress first when it previews the keys, then
// the control's, either of which may change or swallow the key; then the text and Change.
void Interpreter::typeKey(const QString& path, int keyAscii)
{
    const ControlRef ref = control(path);
    EventArgs args;
    args.KeyAscii = keyAscii;
    if (app_.forms.form(ref.form).KeyPreview)
        fire(ref.form, QStringLiteral("KeyPress"), args);
    if (args.KeyAscii != 0)
        fire(ref.path(), QStringLiteral("KeyPress"), args);
    if (args.KeyAscii == 0)
        return;
    const ControlRef now = control(path);  // a handler may have loaded or unloaded the form
    TextTarget t = textTarget(now);
    if (insertTyped(t, args.KeyAscii)) {
        EventArgs change;
        fire(now.path(), QStringLiteral("Change"), change);
    }
}

void Interpreter::key(const ScriptLine& line)
{
    need(line, 3, "key FORM KEY");
    const ControlRef ref = control(line.tokens[1].text);
    if (ref.control)
        fault(QStringLiteral("key goes to a form, not to %1").arg(ref.path()));
    const std::optional<KeyStroke> stroke = keyStroke(line.tokens[2].text);
    if (!stroke)
        fault(QStringLiteral("unknown key %1").arg(quotedValue(line.tokens[2].text)));
    for (const char* event : {"KeyDown", "KeyUp"}) {
        EventArgs args;
        args.KeyCode = stroke->KeyCode;
        args.Shift = stroke->Shift;
        fire(ref.form, QLatin1String(event), args);
    }
}

void Interpreter::select(const ScriptLine& line)
{
    need(line, 3, "select PATH N");
    const ControlRef ref = control(line.tokens[1].text);
    if (!ref.is(ControlKind::ListBox) && !ref.is(ControlKind::ComboBox))
        fault(QStringLiteral("%1 is no list or combo box").arg(ref.path()));
    const int index = number(line.tokens[2], "the list index");
    noteIfDisabled(ref, "selection");
    try {
        app_.forms.write(ref.path() + QStringLiteral(".ListIndex"), QString::number(index));
    } catch (const FormsError& e) {
        fault(e.message());
    }
    EventArgs args;
    fire(ref.path(), QStringLiteral("Click"), args);
}

void Interpreter::wait(const ScriptLine& line)
{
    need(line, 2, "wait MS");
    const int ms = number(line.tokens[1], "the time to wait");
    if (ms < 0)
        fault(QStringLiteral("wait cannot go back in time"));
    guarded([&] { advanceClock(app_, ms); });
}

void Interpreter::set(const ScriptLine& line)
{
    need(line, 3, "set PATH VALUE");
    try {
        app_.forms.write(line.tokens[1].text, line.tokens[2].text);
    } catch (const FormsError& e) {
        fault(e.message());
    }
}

void Interpreter::after(const ScriptLine& line)
{
    if (line.tokens.size() < 4 || !line.tokens[2].is("doevents"))
        fault(QStringLiteral("usage: after N doevents LINE"));
    const int n = number(line.tokens[1], "the DoEvents count");
    if (n < 1)
        fault(QStringLiteral("after counts DoEvents calls from 1"));
    ScriptLine inner{line.number, std::vector<Token>(line.tokens.begin() + 3, line.tokens.end())};
    const Command* c = command(inner.tokens.front());
    if (!c || c->phase == Phase::Setup)
        fault(QStringLiteral("after N doevents takes a running command, an answer or an expect, not %1")
                  .arg(quotedValue(inner.tokens.front().text)));
    pending_.push_back({n, ui_.doEventsCalls, std::move(inner)});
}

}  // namespace mk::drive
