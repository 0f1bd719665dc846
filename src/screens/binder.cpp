#include "screens/binder_parts.h"

#include "card/app_state.h"
#include "forms/status_line.h"
#include "screens/conversions.h"
#include "screens/widgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <optional>

namespace mk {

using namespace detail;

namespace {

bool isAncestor(const QObject* ancestor, const QObject* child)
{
    for (const QObject* o = child; o; o = o->parent())
        if (o == ancestor)
            return true;
    return false;
}

bool sameName(const QString& a, const QString& b)
{
    return QString::compare(a, b, Qt::CaseInsensitive) == 0;
}

// The kinds whose widgets give no click of their own: the mouse gives it.
bool clickedByMouse(ControlKind kind)
{
    switch (kind) {
    case ControlKind::Label:
    case ControlKind::Image:
    case ControlKind::Panel:
    case ControlKind::Frame:
    case ControlKind::TextBox:
    case ControlKind::RichText: return true;
    default: return false;
    }
}

}  // namespace

Binder::Binder(Merkkartelle& app, QObject* parent) : QObject(parent), app_(app) {}

Binder::~Binder() = default;

// --- finding things -------------------------------------------------------------------------

Binder::View* Binder::viewOf(const QString& form) const
{
    for (const auto& view : views_)
        if (sameName(view->form, form))
            return view.get();
    return nullptr;
}

Binder::Binding* Binder::bindingOf(const View& view, const QString& name, int index) const
{
    auto it = view.byKey.find(widgetName(name, index).toLower());
    return it == view.byKey.end() ? nullptr : it->second;
}

QWidget* Binder::window(const QString& form) const
{
    View* view = viewOf(form);
    return view ? view->window.data() : nullptr;
}

QWidget* Binder::widget(const QString& path) const
{
    const ControlRef ref = app_.forms.control(path);
    View* view = viewOf(ref.form);
    if (!view)
        return nullptr;
    if (!ref.control)
        return view->window;
    Binding* binding = bindingOf(*view, ref.name, ref.index);
    return binding ? binding->widget.data() : nullptr;
}

Binder::Target Binder::targetOf(QObject* watched) const
{
    auto* widget = qobject_cast<QWidget*>(watched);
    while (widget) {
        auto it = byObject_.find(widget);
        if (it != byObject_.end())
            return {it->second->view, it->second, widget};
        for (const auto& view : views_)
            if (view->window == widget)
                return {view.get(), nullptr, widget};
        if (widget->isWindow())
            break;
        widget = widget->parentWidget();
    }
    return {};
}

QString Binder::pathOf(const Target& target) const
{
    if (!target.binding)
        return target.view->form;
    return target.view->form + u'.' + widgetName(target.binding->name, target.binding->index);
}

Control* Binder::controlOf(const Binding& binding) const
{
    try {
        return app_.forms.control(binding.form, binding.name, binding.index).control;
    } catch (const FormsError&) {
        return nullptr;  // an element unloaded at run time
    }
}

bool Binder::ended() const
{
    return app_.ended;
}

// --- binding --------------------------------------------------------------------------------

void Binder::attach(const QString& form, QWidget* window)
{
    auto view = std::make_unique<View>();
    Form& f = app_.forms.form(form);
    view->form = f.Name;
    view->window = window;
    // The design geometry of a form is its old screen's: the view chooses its own size until
    // the state sets another.
    view->last.geometry = QRect(px(f.Left), px(f.Top), px(f.Width), px(f.Height));
    view->last.windowState = f.WindowState;
    // The status line is Panel3D3 unless the view names another panel.
    const QString statusPanel = window->property("mkStatusLine").toString();
    view->statusLine = statusPanel.isEmpty() ? statusLineOf(app_.forms, form) : statusLineOf(app_.forms, form, statusPanel);
    for (const ControlRef& ref : app_.forms.controls(form)) {
        const QString name = widgetName(ref);
        if (ref.kind == ControlKind::MenuItem) {
            if (auto* action = window->findChild<QAction*>(name))
                bindAction(*view, ref, action);
        } else if (ref.kind != ControlKind::Timer) {
            if (auto* widget = window->findChild<QWidget*>(name))
                bindWidget(*view, ref, widget);
        }
    }
    for (QStackedWidget* stack : window->findChildren<QStackedWidget*>())
        view->stacks.emplace_back(stack);
    watch(window);
    for (QWidget* child : window->findChildren<QWidget*>())
        watch(child);
    View& added = *view;
    views_.push_back(std::move(view));
    ++pushing_;
    pushView(added);
    --pushing_;
}

void Binder::bindWidget(View& view, const ControlRef& ref, QWidget* widget)
{
    auto binding = std::make_unique<Binding>();
    binding->view = &view;
    binding->form = view.form;
    binding->name = ref.name;
    binding->index = ref.index;
    binding->kind = ref.kind;
    binding->widget = widget;
    binding->geometry = widget->property("mkGeometry").toString();
    // The nearest control takes the mouse: a label in a panel is not the panel.
    widget->setAttribute(Qt::WA_NoMousePropagation);
    byObject_[widget] = binding.get();
    view.byKey[widgetName(ref).toLower()] = binding.get();
    connectInput(*binding);
    view.bindings.push_back(std::move(binding));
}

void Binder::bindAction(View& view, const ControlRef& ref, QAction* action)
{
    auto binding = std::make_unique<Binding>();
    binding->view = &view;
    binding->form = view.form;
    binding->name = ref.name;
    binding->index = ref.index;
    binding->kind = ref.kind;
    binding->action = action;
    Binding* b = binding.get();
    byObject_[action] = b;
    view.byKey[widgetName(ref).toLower()] = b;
    const QString path = view.form + u'.' + widgetName(ref);
    if (auto* menu = action->menu()) {
        // A menu of the bar gets its Click when it drops down.
        connect(menu, &QMenu::aboutToShow, this, [this, path] { fire(path, QStringLiteral("Click")); });
    } else {
        connect(action, &QAction::triggered, this, [this, path] {
            if (!pushing_)
                fire(path, QStringLiteral("Click"));
        });
    }
    connect(action, &QAction::hovered, this, [this, b] {
        if (setStatusLine({b->view, b, nullptr}))
            refresh();
    });
    view.bindings.push_back(std::move(binding));
}

void Binder::watch(QWidget* widget)
{
    widget->installEventFilter(this);
    widget->setMouseTracking(true);
}

void Binder::connectInput(Binding& b)
{
    QWidget* w = b.widget;
    if (b.kind == ControlKind::TextBox || b.kind == ControlKind::RichText) {
        connectTextInput(b);
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        connect(button, &QAbstractButton::clicked, this, [this, &b] { onClicked(b); });
    } else {
        connectChoiceInput(b);
    }
}

void Binder::connectTextInput(Binding& b)
{
    QWidget* w = b.widget;
    if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        connect(edit, &QLineEdit::textEdited, this, [this, &b](const QString& text) { onTextEdited(b, text); });
        connect(edit, &QLineEdit::cursorPositionChanged, this, [this, &b] { onSelection(b); });
        connect(edit, &QLineEdit::selectionChanged, this, [this, &b] { onSelection(b); });
    } else if (auto* edit = qobject_cast<QTextEdit*>(w)) {
        connect(edit, &QTextEdit::textChanged, this, [this, &b, edit] { onTextEdited(b, edit->toPlainText()); });
        connect(edit, &QTextEdit::cursorPositionChanged, this, [this, &b] { onSelection(b); });
        connect(edit, &QTextEdit::selectionChanged, this, [this, &b] { onSelection(b); });
    } else if (auto* edit = qobject_cast<QPlainTextEdit*>(w)) {
        connect(edit, &QPlainTextEdit::textChanged, this,
                [this, &b, edit] { onTextEdited(b, edit->toPlainText()); });
        connect(edit, &QPlainTextEdit::cursorPositionChanged, this, [this, &b] { onSelection(b); });
        connect(edit, &QPlainTextEdit::selectionChanged, this, [this, &b] { onSelection(b); });
    }
}

void Binder::connectChoiceInput(Binding& b)
{
    QWidget* w = b.widget;
    if (auto* list = qobject_cast<QListWidget*>(w)) {
        connect(list, &QListWidget::currentRowChanged, this, [this, &b](int row) { onListChosen(b, row); });
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
        connect(combo, &QComboBox::activated, this, [this, &b](int index) { onComboChosen(b, index); });
    } else if (auto* table = qobject_cast<QTableWidget*>(w)) {
        connect(table, &QTableWidget::cellClicked, this, [this, &b](int row, int col) { onCellChosen(b, row, col); });
    } else if (auto* bar = qobject_cast<QScrollBar*>(w)) {
        connect(bar, &QScrollBar::valueChanged, this, [this, &b](int value) { onScroll(b, value); });
    }
}

void Binder::setModal(const QString& form, bool modal)
{
    if (View* view = viewOf(form))
        view->modal = modal;
}

void Binder::setTimersRunning(bool running)
{
    timersRunning_ = running;
    if (!running)
        for (auto& [path, timer] : timers_)
            timer->stop();
    syncTimers();
}

// --- running handlers -----------------------------------------------------------------------

bool Binder::dispatch(const QString& path, const QString& event, EventArgs& args)
{
    if (app_.ended)
        return false;
    try {
        return raiseEvent(app_, path, event, args);
    } catch (const ProgramEnded&) {
        // End has told the user interface; every handler below has unwound.
    } catch (const RuntimeError& e) {
        reportError(QStringLiteral("Laufzeitfehler '%1':\n\n%2").arg(e.Number).arg(e.Description));
    } catch (const std::exception& e) {
        reportError(QString::fromUtf8(e.what()));
    }
    return true;
}

bool Binder::fire(const QString& path, const QString& event, EventArgs& args)
{
    const bool ran = dispatch(path, event, args);
    if (!app_.ended)
        refresh();
    return ran;
}

bool Binder::fire(const QString& path, const QString& event)
{
    EventArgs args;
    return fire(path, event, args);
}

void Binder::run(const std::function<void()>& step)
{
    try {
        step();
    } catch (const ProgramEnded&) {
    } catch (const RuntimeError& e) {
        reportError(QStringLiteral("Laufzeitfehler '%1':\n\n%2").arg(e.Number).arg(e.Description));
    } catch (const std::exception& e) {
        reportError(QString::fromUtf8(e.what()));
    }
    if (!app_.ended)
        refresh();
}

void Binder::reportError(const QString& text)
{
    // An error no handler dealt with: shown, and the program goes on.
    try {
        app_.ui.MsgBox(text, vbCritical);
    } catch (const std::exception&) {
    }
}

// --- input into state -----------------------------------------------------------------------

void Binder::onTextEdited(Binding& b, const QString& widgetText)
{
    if (pushing_ || app_.ended)
        return;
    Control* c = controlOf(b);
    if (!c)
        return;
    const bool single = qobject_cast<QLineEdit*>(b.widget.data()) != nullptr;
    const QString text = single ? widgetText : fromWidgetText(widgetText);
    QString& state = b.kind == ControlKind::TextBox ? static_cast<TextBox&>(*c).Text : static_cast<RichText&>(*c).Text;
    if (!single && state == text)
        return;  // a change of format only
    state = text;
    onSelection(b);
    fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Change"));
}

void Binder::onSelection(Binding& b)
{
    if (pushing_ || app_.ended)
        return;
    Control* c = controlOf(b);
    if (!c)
        return;
    TextSelection& sel = b.kind == ControlKind::TextBox ? static_cast<TextSelection&>(static_cast<TextBox&>(*c))
                                                        : static_cast<TextSelection&>(static_cast<RichText&>(*c));
    const QString& text = b.kind == ControlKind::TextBox ? static_cast<TextBox&>(*c).Text : static_cast<RichText&>(*c).Text;
    std::pair<int, int> widgetSel{0, 0};
    if (auto* edit = qobject_cast<QLineEdit*>(b.widget.data())) {
        sel.SelStart = lineEditSelection(edit).first;
        sel.SelLength = lineEditSelection(edit).second;
        return;
    }
    if (auto* edit = qobject_cast<QTextEdit*>(b.widget.data()))
        widgetSel = textEditSelection(edit);
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(b.widget.data()))
        widgetSel = textEditSelection(plain);
    sel.SelStart = toStatePosition(text, widgetSel.first);
    sel.SelLength = toStatePosition(text, widgetSel.first + widgetSel.second) - sel.SelStart;
}

void Binder::onClicked(Binding& b)
{
    if (pushing_ || app_.ended)
        return;
    try {
        applyClick(app_.forms, app_.forms.control(b.form, b.name, b.index));
    } catch (const FormsError&) {
        return;
    }
    fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Click"));
}

void Binder::onListChosen(Binding& b, int row)
{
    if (pushing_ || app_.ended)
        return;
    if (Control* c = controlOf(b)) {
        static_cast<ListBox&>(*c).ListIndex = row;
        fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Click"));
    }
}

void Binder::onComboChosen(Binding& b, int index)
{
    if (pushing_ || app_.ended)
        return;
    if (Control* c = controlOf(b)) {
        static_cast<ComboBox&>(*c).select(index);
        fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Click"));
    }
}

void Binder::onCellChosen(Binding& b, int row, int col)
{
    if (pushing_ || app_.ended)
        return;
    if (Control* c = controlOf(b)) {
        auto& grid = static_cast<Grid&>(*c);
        grid.Row = row;
        grid.Col = col;
        fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Click"));
    }
}

void Binder::onScroll(Binding& b, int value)
{
    if (pushing_ || app_.ended)
        return;
    if (Control* c = controlOf(b)) {
        static_cast<ScrollBar&>(*c).Value = value;
        fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Change"));
    }
}

void Binder::onTimer(const QString& path)
{
    // A tick does not come again while its own handler still runs (a modal notice in it).
    if (pushing_ || app_.ended || tickingTimers_.count(path))
        return;
    tickingTimers_.insert(path);
    fire(path, QStringLiteral("Timer"));
    tickingTimers_.erase(path);
}

bool Binder::setStatusLine(const Target& t)
{
    if (!t.view || t.view->statusLine.isEmpty())
        return false;
    ControlRef hovered;
    if (t.binding) {
        try {
            hovered = app_.forms.control(t.binding->form, t.binding->name, t.binding->index);
        } catch (const FormsError&) {
            return false;  // an element unloaded at run time
        }
    }
    return showHintInStatusLine(app_.forms, t.view->statusLine, hovered);
}

namespace {
EventArgs mouseArgs(QWidget* target, const QMouseEvent* event, int button)
{
    EventArgs args;
    const QPoint at = target->mapFromGlobal(event->globalPosition().toPoint());
    args.Button = button;
    args.Shift = vbShift(event->modifiers());
    args.X = pixelsToTwips(at.x());
    args.Y = pixelsToTwips(at.y());
    return args;
}
}  // namespace

void Binder::onMouseMove(QObject* watched, QMouseEvent* event)
{
    const Target t = targetOf(watched);
    if (!t.view)
        return;
    // The same movement handed on to a parent, or no movement at all.
    if (lastMouse_.type == QEvent::MouseMove && lastMouse_.view == t.view && lastMouse_.binding == t.binding
        && lastMouse_.global == event->globalPosition())
        return;
    lastMouse_ = {t.binding, t.view, QEvent::MouseMove, event->globalPosition(), event->timestamp()};
    EventArgs args = mouseArgs(t.widget, event, vbButtons(event->buttons()));
    const bool statusChanged = setStatusLine(t);
    const bool ran = dispatch(pathOf(t), QStringLiteral("MouseMove"), args);
    if ((statusChanged || ran) && !app_.ended)
        refresh();
}

void Binder::onMouseButton(QObject* watched, QMouseEvent* event)
{
    const Target t = targetOf(watched);
    if (!t.view)
        return;
    const MouseMark mark{t.binding, t.view, int(event->type()), event->globalPosition(), event->timestamp()};
    if (lastMouse_.type == mark.type && lastMouse_.view == mark.view && lastMouse_.binding == mark.binding
        && lastMouse_.global == mark.global && lastMouse_.timestamp == mark.timestamp)
        return;
    lastMouse_ = mark;
    EventArgs args = mouseArgs(t.widget, event, vbButton(event->button()));
    const QString path = pathOf(t);
    bool ran = false;
    if (event->type() == QEvent::MouseButtonPress) {
        ran = dispatch(path, QStringLiteral("MouseDown"), args);
    } else if (event->type() == QEvent::MouseButtonRelease) {
        ran = dispatch(path, QStringLiteral("MouseUp"), args);
        const bool inside = t.widget->rect().contains(t.widget->mapFromGlobal(event->globalPosition().toPoint()));
        if (event->button() == Qt::LeftButton && inside && (!t.binding || clickedByMouse(t.binding->kind))) {
            EventArgs click;
            ran = dispatch(path, QStringLiteral("Click"), click) || ran;
        }
    } else {
        ran = dispatch(path, QStringLiteral("DblClick"), args);
    }
    if (ran && !app_.ended)
        refresh();
}

bool Binder::onKey(QObject* watched, QKeyEvent* event)
{
    if (event == resending_ || event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        return false;
    const Target t = targetOf(watched);
    if (!t.view)
        return false;
    // A key that a widget did not take travels on to its parents: the forms saw it already.
    if (event == lastKey_ && lastKeyReceiver_ && lastKeyReceiver_ != watched && isAncestor(watched, lastKeyReceiver_))
        return false;
    lastKey_ = event;
    lastKeyReceiver_ = watched;

    const bool formFirst = app_.forms.form(t.view->form).KeyPreview || !t.binding;
    const QString formPath = t.view->form;
    const QString controlPath = t.binding ? pathOf(t) : QString();
    const bool down = event->type() == QEvent::KeyPress;
    const QString name = down ? QStringLiteral("KeyDown") : QStringLiteral("KeyUp");
    EventArgs args;
    args.KeyCode = vbKeyCode(event->key(), event->modifiers());
    args.Shift = vbShift(event->modifiers());
    bool ran = false;
    bool swallowed = false;
    if (args.KeyCode != 0) {
        if (formFirst)
            ran = dispatch(formPath, name, args) || ran;
        if (args.KeyCode != 0 && t.binding)
            ran = dispatch(controlPath, name, args) || ran;
        swallowed = args.KeyCode == 0;
    }
    const int ascii = down ? vbKeyAscii(*event) : 0;
    if (ascii != 0 && !app_.ended) {
        // The character goes on unless KeyPress takes it, whatever KeyDown did.
        args.KeyAscii = ascii;
        if (formFirst)
            ran = dispatch(formPath, QStringLiteral("KeyPress"), args) || ran;
        if (args.KeyAscii != 0 && t.binding)
            ran = dispatch(controlPath, QStringLiteral("KeyPress"), args) || ran;
        swallowed = args.KeyAscii == 0;
        if (!swallowed && args.KeyAscii != ascii && !app_.ended) {
            if (ran)
                refresh();
            QKeyEvent changed(QEvent::KeyPress, event->key(), event->modifiers(), QString(QChar(args.KeyAscii)),
                              event->isAutoRepeat(), event->count());
            resending_ = &changed;
            QCoreApplication::sendEvent(watched, &changed);
            resending_ = nullptr;
            return true;
        }
    }
    if (app_.ended)
        return true;
    if (ran)
        refresh();
    return swallowed;
}

void Binder::onFocus(QObject* watched, QEvent* event)
{
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Going to another window is no change of focus inside the form.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    const Target t = targetOf(watched);
    if (!t.binding)
        return;
    const bool in = event->type() == QEvent::FocusIn;
    if (!in && t.widget != watched) {
        QWidget* next = QApplication::focusWidget();
        if (next && isAncestor(t.widget, next))
            return;  // within the same control (a combo box and its edit line)
    }
    EventArgs args;
    if (dispatch(pathOf(t), in ? QStringLiteral("GotFocus") : QStringLiteral("LostFocus"), args) && !app_.ended)
        refresh();
}

bool Binder::onClose(QObject* watched, QEvent* event)
{
    const Target t = targetOf(watched);
    if (!t.view || t.binding || t.widget != watched)
        return false;
    // Closing by the frame unloads the form, which may refuse (QueryUnload, Unload).
    event->ignore();
    const QString form = t.view->form;
    run([&] { unloadForm(app_, form, 0); });
    if (app_.ended)
        return true;
    bool anyShown = false;
    for (const auto& view : views_)
        anyShown = anyShown || (view->window && view->window->isVisible());
    if (!anyShown && lastWindowClosed)
        lastWindowClosed();
    return true;
}

void Binder::onWindowGeometry(QObject* watched, QEvent* event)
{
    if (pushing_)
        return;
    const Target t = targetOf(watched);
    if (!t.view || t.binding || t.widget != watched || !t.widget->isVisible())
        return;
    readWindowGeometry(*t.view);
    if (event->type() == QEvent::Resize && !t.widget->isMinimized())
        fire(t.view->form, QStringLiteral("Resize"));
}

void Binder::onWindowActivated(QObject* watched)
{
    const Target t = targetOf(watched);
    if (!t.view || t.binding || t.widget != watched)
        return;
    Form& f = app_.forms.form(t.view->form);
    if (app_.activeForm == f.Name || !f.Visible)
        return;
    app_.activeForm = f.Name;
    fire(f.Name, QStringLiteral("Activate"));
}

bool Binder::eventFilter(QObject* watched, QEvent* event)
{
    // While state goes into the widgets, what they report back is our own doing.
    if (app_.ended || pushing_)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return onKey(watched, static_cast<QKeyEvent*>(event));
    case QEvent::MouseMove: onMouseMove(watched, static_cast<QMouseEvent*>(event)); break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: onMouseButton(watched, static_cast<QMouseEvent*>(event)); break;
    case QEvent::FocusIn:
    case QEvent::FocusOut: onFocus(watched, event); break;
    case QEvent::Close: return onClose(watched, event);
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange: onWindowGeometry(watched, event); break;
    case QEvent::WindowActivate: onWindowActivated(watched); break;
    default: break;
    }
    return false;
}

}  // namespace mk
