#pragma once
// The binder's own pieces, shared by its two halves: what went into each widget last, the
// bindings of controls and forms, and the small conversions of texts and selections.

#include "screens/binder.h"
#include "screens/conversions.h"

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QRect>
#include <QStackedWidget>
#include <QTextCursor>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace mk {

namespace detail {

// What went into a widget last, so that only changes are copied.
struct Pushed {
    std::optional<bool> enabled, visible, flag;
    std::optional<long> back, fore;
    std::optional<FontSpec> font;
    std::optional<QString> tip, picture;
    std::optional<int> alignment;
    std::optional<QRect> geometry;
    std::optional<int> windowState;
};

template <class T>
bool differs(std::optional<T>& last, const T& now)
{
    if (last && *last == now)
        return false;
    last = now;
    return true;
}

inline bool differs(std::optional<FontSpec>& last, const FontSpec& now)
{
    if (last && sameFont(*last, now))
        return false;
    last = now;
    return true;
}

inline int px(int twips)
{
    return twipsToPixels(twips);
}

// Multi-line texts keep CR LF in the state; the text widgets work with LF alone.
inline QString toWidgetText(const QString& text)
{
    QString out = text;
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    out.replace(u'\r', u'\n');
    return out;
}

inline QString fromWidgetText(const QString& text)
{
    QString out = text;
    out.replace(u'\n', QLatin1String("\r\n"));
    return out;
}

// A position in the state's text (CR LF counts two) as a position in the widget's, and back.
inline int toWidgetPosition(const QString& text, int position)
{
    int pairs = 0;
    for (int i = 1; i < position && i < text.size(); ++i)
        if (text[i] == u'\n' && text[i - 1] == u'\r')
            ++pairs;
    if (position > 0 && position < text.size() && text[position - 1] == u'\r' && text[position] == u'\n')
        ++pairs;  // inside a line break: behind it
    return position - pairs;
}

inline int toStatePosition(const QString& text, int widgetPosition)
{
    int state = 0;
    for (int seen = 0; seen < widgetPosition && state < text.size(); ++seen)
        state += (text[state] == u'\r' && state + 1 < text.size() && text[state + 1] == u'\n') ? 2 : 1;
    return state;
}

inline bool isStackPage(const QWidget* widget)
{
    return widget && qobject_cast<QStackedWidget*>(widget->parentWidget()) != nullptr;
}

// The selection of a text widget as (start, length) in the widget's own positions.
template <class Edit>
std::pair<int, int> textEditSelection(const Edit* edit)
{
    const QTextCursor cursor = edit->textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

template <class Edit>
void setTextEditSelection(Edit* edit, int start, int length)
{
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
}

inline std::pair<int, int> lineEditSelection(const QLineEdit* edit)
{
    if (edit->hasSelectedText())
        return {edit->selectionStart(), edit->selectionLength()};
    return {edit->cursorPosition(), 0};
}

}  // namespace detail

struct Binder::Binding {
    View* view = nullptr;
    QString form;
    QString name;
    int index = -1;
    ControlKind kind = ControlKind::Label;
    QPointer<QWidget> widget;
    QPointer<QAction> action;
    QString geometry;  // "full": the state places the widget; "width": it sets its width
    bool comboEditWatched = false;
    detail::Pushed last;
};

struct Binder::View {
    QString form;
    QPointer<QWidget> window;
    std::vector<std::unique_ptr<Binding>> bindings;
    std::map<QString, Binding*> byKey;  // lower-case widget name
    std::vector<QPointer<QStackedWidget>> stacks;
    detail::Pushed last;
    bool modal = false;
    QString statusLine;  // path of the form's status panel, empty when it has none
};

}  // namespace mk
