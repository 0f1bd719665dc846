#include "screens/binder.h"

#include "card/app_state.h"
#include "screens/conversions.h"
#include "screens/icons.h"
#include "screens/widgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTextCursor>
#include <QTextEdit>
#include <QTimer>
#include <QWindowStateChangeEvent>
#include <optional>

namespace mk {

namespace {

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

bool differs(std::optional<FontSpec>& last, const FontSpec& now)
{
    if (last && sameFont(*last, now))
        return false;
    last = now;
    return true;
}

// The colours a control of this kind has by design: those leave the style's own look.
std::pair<long, long> designColours(ControlKind kind)
{
    switch (kind) {
    case ControlKind::TextBox: return {TextBox{}.BackColor, TextBox{}.ForeColor};
    case ControlKind::RichText: return {RichText{}.BackColor, RichText{}.ForeColor};
    case ControlKind::ListBox: return {ListBox{}.BackColor, ListBox{}.ForeColor};
    case ControlKind::ComboBox: return {ComboBox{}.BackColor, ComboBox{}.ForeColor};
    case ControlKind::Grid: return {Grid{}.BackColor, Grid{}.ForeColor};
    default: return {Label{}.BackColor, Label{}.ForeColor};
    }
}

void applyColours(QWidget* widget, const QColor& back, const QColor& fore, bool fill)
{
    QPalette palette;  // only the roles set here replace the inherited ones
    if (back.isValid())
        for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(role, back);
    if (fore.isValid())
        for (auto group : {QPalette::Active, QPalette::Inactive})
            for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                palette.setColor(group, role, fore);
    widget->setPalette(palette);
    widget->setAutoFillBackground(fill && back.isValid());
}

int px(int twips)
{
    return twipsToPixels(twips);
}

// Multi-line texts keep CR LF in the state; the text widgets work with LF alone.
QString toWidgetText(const QString& text)
{
    QString out = text;
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    out.replace(u'\r', u'\n');
    return out;
}

QString fromWidgetText(const QString& text)
{
    QString out = text;
    out.replace(u'\n', QLatin1String("\r\n"));
    return out;
}

// A position in the state's text (CR LF counts two) as a position in the widget's, and back.
int toWidgetPosition(const QString& text, int position)
{
    int pairs = 0;
    for (int i = 1; i < position && i < text.size(); ++i)
        if (text[i] == u'\n' && text[i - 1] == u'\r')
            ++pairs;
    if (position > 0 && position < text.size() && text[position - 1] == u'\r' && text[position] == u'\n')
        ++pairs;  // inside a line break: behind it
    return position - pairs;
}

int toStatePosition(const QString& text, int widgetPosition)
{
    int state = 0;
    for (int seen = 0; seen < widgetPosition && state < text.size(); ++seen)
        state += (text[state] == u'\r' && state + 1 < text.size() && text[state + 1] == u'\n') ? 2 : 1;
    return state;
}

bool isStackPage(const QWidget* widget)
{
    return widget && qobject_cast<QStackedWidget*>(widget->parentWidget()) != nullptr;
}

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

std::pair<int, int> lineEditSelection(const QLineEdit* edit)
{
    if (edit->hasSelectedText())
        return {edit->selectionStart(), edit->selectionLength()};
    return {edit->cursorPosition(), 0};
}

}  // namespace

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
    Pushed last;
};

struct Binder::View {
    QString form;
    QPointer<QWidget> window;
    std::vector<std::unique_ptr<Binding>> bindings;
    std::map<QString, Binding*> byKey;  // lower-case widget name
    std::vector<QPointer<QStackedWidget>> stacks;
    Pushed last;
    bool modal = false;
    QString statusLine;  // path of the form's status panel, empty when it has none
};

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
    for (const ControlRef& ref : app_.forms.controls(form)) {
        const QString name = widgetName(ref);
        if (sameName(ref.name, QStringLiteral("Panel3D3")) && ref.index < 0)
            view->statusLine = f.Name + QStringLiteral(".") + ref.name;
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

// --- state into widgets ---------------------------------------------------------------------

void Binder::refresh()
{
    if (refreshing_)
        return;
    refreshing_ = true;
    ++pushing_;
    for (const auto& view : views_)
        pushView(*view);
    --pushing_;
    refreshing_ = false;
    syncTimers();
    if (afterRefresh)
        afterRefresh();
}

void Binder::pushView(View& view)
{
    if (!view.window)
        return;
    pushForm(view);
    for (const ControlRef& ref : app_.forms.controls(view.form))
        if (Binding* binding = bindingOf(view, ref.name, ref.index))
            pushControl(*binding, *ref.control);
    pushStacks(view);
    pushWindowVisibility(view);
}

void Binder::pushForm(View& view)
{
    Form& f = app_.forms.form(view.form);
    QWidget* w = view.window;
    if (w->windowTitle() != f.Caption)
        w->setWindowTitle(f.Caption);
    if (differs(view.last.enabled, f.Enabled))
        w->setEnabled(f.Enabled);
    if (differs(view.last.back, f.BackColor)) {
        const bool design = f.BackColor == Form{}.BackColor;
        applyColours(w, design ? QColor() : toQColor(f.BackColor), QColor(), true);
    }
    const QRect geometry(px(f.Left), px(f.Top), px(f.Width), px(f.Height));
    if (differs(view.last.geometry, geometry)) {
        auto* formWindow = qobject_cast<FormWindow*>(w);
        if (!formWindow || !formWindow->centred())
            w->move(geometry.topLeft());
        w->resize(geometry.size());
    }
    if (differs(view.last.windowState, f.WindowState) && w->isVisible()) {
        const Qt::WindowStates states[] = {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized};
        w->setWindowState(states[std::clamp(f.WindowState, 0, 2)]);
    }
}

void Binder::pushWindowVisibility(View& view)
{
    Form& f = app_.forms.form(view.form);
    QWidget* w = view.window;
    const bool wanted = f.Loaded && f.Visible;
    const Qt::WindowModality modality = view.modal ? Qt::ApplicationModal : Qt::NonModal;
    if (!wanted) {
        if (w->isVisible())
            w->hide();
        return;
    }
    if (w->isVisible() && w->windowModality() == modality)
        return;
    w->hide();  // the modality of a window changes only while it is hidden
    w->setWindowModality(modality);
    if (f.WindowState == vbMaximized)
        w->showMaximized();
    else if (f.WindowState == vbMinimized)
        w->showMinimized();
    else
        w->show();
    w->raise();
    w->activateWindow();
}

void Binder::pushControl(Binding& b, Control& control)
{
    if (b.kind == ControlKind::MenuItem) {
        pushMenuItem(b, control);
        return;
    }
    QWidget* w = b.widget;
    if (!w)
        return;
    pushCommon(b, control, w);
    switch (b.kind) {
    case ControlKind::TextBox:
    case ControlKind::RichText: pushText(b, control, w); break;
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: pushButton(b, control, w); break;
    case ControlKind::ListBox:
    case ControlKind::ComboBox: pushList(b, control, w); break;
    case ControlKind::Label:
    case ControlKind::Panel:
    case ControlKind::Frame: pushCaption(b, control, w); break;
    case ControlKind::Image: pushImage(b, control, w); break;
    case ControlKind::Grid: pushGrid(b, control, w); break;
    case ControlKind::ScrollBar: pushScrollBar(b, control, w); break;
    case ControlKind::Timer:
    case ControlKind::MenuItem: break;
    }
}

void Binder::pushCommon(Binding& b, const Control& c, QWidget* w)
{
    if (differs(b.last.enabled, c.Enabled))
        w->setEnabled(c.Enabled);
    if (isStackPage(w))
        b.last.visible = c.Visible;  // the stack shows one page: pushStacks chooses
    else if (differs(b.last.visible, c.Visible))
        w->setVisible(c.Visible);
    pushColours(b, c, w);
    // The design font and colours leave the look the view gave a widget; any other value,
    // and any later change, is the state's.
    const bool designFont = sameFont(c.Font, FontSpec{});
    const bool firstFont = !b.last.font.has_value();
    if (differs(b.last.font, c.Font) && !(firstFont && designFont))
        w->setFont(designFont ? QFont() : toQFont(c.Font, QApplication::font()));
    const QString tip = (c.ToolTipText.isEmpty() ? c.Hint : c.ToolTipText).trimmed();
    if (differs(b.last.tip, tip))
        w->setToolTip(tip);
    pushGeometry(b, c, w);
}

void Binder::pushColours(Binding& b, const Control& c, QWidget* w)
{
    const bool first = !b.last.back.has_value();
    const bool backChanged = differs(b.last.back, c.BackColor);
    const bool foreChanged = differs(b.last.fore, c.ForeColor);
    if (!backChanged && !foreChanged)
        return;
    const auto [designBack, designFore] = designColours(b.kind);
    if (first && c.BackColor == designBack && c.ForeColor == designFore)
        return;
    const QColor back = c.BackColor == designBack ? QColor() : toQColor(c.BackColor);
    const QColor fore = c.ForeColor == designFore ? QColor() : toQColor(c.ForeColor);
    const bool fill = b.kind != ControlKind::TextBox && b.kind != ControlKind::RichText;
    applyColours(w, back, fore, fill);
}

void Binder::pushGeometry(Binding& b, const Control& c, QWidget* w)
{
    if (b.geometry.isEmpty())
        return;
    const QRect r(px(c.Left), px(c.Top), std::max(0, px(c.Width)), std::max(0, px(c.Height)));
    if (!differs(b.last.geometry, r))
        return;
    if (b.geometry == QLatin1String("width"))
        w->setFixedWidth(r.width());
    else
        w->setGeometry(r);
}

void Binder::pushText(Binding& b, Control& control, QWidget* w)
{
    QString text;
    TextSelection* sel = nullptr;
    int maxLength = 0;
    bool locked = false;
    int alignment = -1;
    if (b.kind == ControlKind::TextBox) {
        auto& t = static_cast<TextBox&>(control);
        text = t.Text, sel = &t, maxLength = t.MaxLength, locked = t.Locked, alignment = t.Alignment;
    } else {
        auto& t = static_cast<RichText&>(control);
        text = t.Text, sel = &t, maxLength = t.MaxLength, locked = t.Locked;
    }
    const int start = std::clamp(sel->SelStart, 0, int(text.size()));
    const int length = std::clamp(sel->SelLength, 0, int(text.size()) - start);
    if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        // MaxLength limits what the user types, never what the code puts in.
        const int limit = maxLength > 0 ? std::max(maxLength, int(text.size())) : 32767;
        if (edit->maxLength() != limit)
            edit->setMaxLength(limit);
        if (edit->isReadOnly() != locked)
            edit->setReadOnly(locked);
        if (alignment >= 0 && differs(b.last.alignment, alignment))
            edit->setAlignment(toQtAlignment(alignment));
        if (edit->text() != text)
            edit->setText(text);
        if (lineEditSelection(edit) != std::pair{start, length}) {
            edit->setCursorPosition(start);
            if (length > 0)
                edit->setSelection(start, length);
        }
        return;
    }
    const QString shown = toWidgetText(text);
    const std::pair<int, int> wanted{toWidgetPosition(text, start),
                                     toWidgetPosition(text, start + length) - toWidgetPosition(text, start)};
    auto apply = [&](auto* edit) {
        if (edit->isReadOnly() != locked)
            edit->setReadOnly(locked);
        if (edit->toPlainText() != shown)
            edit->setPlainText(shown);
        if (textEditSelection(edit) != wanted)
            setTextEditSelection(edit, wanted.first, wanted.second);
    };
    if (auto* edit = qobject_cast<QTextEdit*>(w))
        apply(edit);
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(w))
        apply(plain);
}

void Binder::pushButton(Binding& b, Control& control, QWidget* w)
{
    auto* button = qobject_cast<QAbstractButton*>(w);
    if (!button)
        return;
    QString caption;
    if (b.kind == ControlKind::Button) {
        auto& c = static_cast<Button&>(control);
        caption = c.Caption;
        if (button->isCheckable() != c.Ribbon)
            button->setCheckable(c.Ribbon);
        if (c.Ribbon && button->isChecked() != c.Value)
            button->setChecked(c.Value);
        // A button without a picture in its state keeps the icon its view gave it.
        const bool first = !b.last.picture.has_value();
        if (differs(b.last.picture, c.Picture) && !(first && c.Picture.isEmpty()))
            button->setIcon(bundledIcon(c.Picture));
    } else if (b.kind == ControlKind::CheckBox) {
        auto& c = static_cast<CheckBox&>(control);
        caption = c.Caption;
        if (auto* box = qobject_cast<QCheckBox*>(button)) {
            const Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
            const Qt::CheckState state = states[std::clamp(c.Value, 0, 2)];
            if (state == Qt::PartiallyChecked && !box->isTristate())
                box->setTristate(true);
            if (box->checkState() != state)
                box->setCheckState(state);
        } else if (button->isChecked() != c.checked()) {
            button->setChecked(c.checked());
        }
    } else {
        auto& c = static_cast<OptionButton&>(control);
        caption = c.Caption;
        if (button->isChecked() != c.Value)
            button->setChecked(c.Value);
    }
    if (button->text() != caption)
        button->setText(caption);
}

void Binder::pushList(Binding& b, Control& control, QWidget* w)
{
    auto& items = b.kind == ControlKind::ListBox ? static_cast<ListItems&>(static_cast<ListBox&>(control))
                                                 : static_cast<ListItems&>(static_cast<ComboBox&>(control));
    if (auto* list = qobject_cast<QListWidget*>(w)) {
        bool same = list->count() == items.ListCount();
        for (int i = 0; same && i < list->count(); ++i)
            same = list->item(i)->text() == items.List(i);
        if (!same) {
            list->clear();
            for (const ListItem& item : items.Items)
                list->addItem(item.Text);
        }
        if (list->currentRow() != items.ListIndex) {
            list->setCurrentRow(items.ListIndex);
            if (items.ListIndex < 0)
                list->clearSelection();
        }
        return;
    }
    auto* combo = qobject_cast<QComboBox*>(w);
    if (!combo)
        return;
    auto& box = static_cast<ComboBox&>(control);
    const bool editable = box.Style != 2;
    if (combo->isEditable() != editable)
        combo->setEditable(editable);
    if (editable && combo->lineEdit() && !b.comboEditWatched) {
        b.comboEditWatched = true;
        watch(combo->lineEdit());
        connect(combo->lineEdit(), &QLineEdit::textEdited, this, [this, &b](const QString& text) {
            if (pushing_)
                return;
            if (Control* c = controlOf(b)) {
                static_cast<ComboBox&>(*c).Text = text;
                fire(b.form + u'.' + widgetName(b.name, b.index), QStringLiteral("Change"));
            }
        });
    }
    bool same = combo->count() == items.ListCount();
    for (int i = 0; same && i < combo->count(); ++i)
        same = combo->itemText(i) == items.List(i);
    if (!same) {
        combo->clear();
        for (const ListItem& item : items.Items)
            combo->addItem(item.Text);
    }
    if (combo->currentIndex() != items.ListIndex)
        combo->setCurrentIndex(items.ListIndex);
    if (editable && combo->currentText() != box.Text)
        combo->setEditText(box.Text);
}

void Binder::pushCaption(Binding& b, Control& control, QWidget* w)
{
    QString caption;
    int alignment = -1;
    if (b.kind == ControlKind::Label) {
        auto& c = static_cast<Label&>(control);
        caption = c.Caption, alignment = c.Alignment;
    } else if (b.kind == ControlKind::Panel) {
        auto& c = static_cast<Panel&>(control);
        caption = c.Caption, alignment = c.Alignment;
    } else {
        caption = static_cast<Frame&>(control).Caption;
    }
    caption = toWidgetText(caption);
    if (auto* label = qobject_cast<QLabel*>(w)) {
        if (label->text() != caption)
            label->setText(caption);
        if (alignment >= 0 && differs(b.last.alignment, alignment))
            label->setAlignment(toQtAlignment(alignment));
    } else if (auto* box = qobject_cast<QGroupBox*>(w)) {
        if (box->title() != caption)
            box->setTitle(caption);
    }
}

void Binder::pushImage(Binding& b, Control& control, QWidget* w)
{
    auto& image = static_cast<Image&>(control);
    auto* picture = qobject_cast<PictureLabel*>(w);
    if (!picture)
        return;
    if (differs(b.last.picture, image.Picture))
        picture->setPicture(image.Picture);
    if (differs(b.last.flag, image.Stretch))
        picture->setStretch(image.Stretch);
}

void Binder::pushGrid(Binding& b, Control& control, QWidget* w)
{
    auto* table = qobject_cast<QTableWidget*>(w);
    if (!table)
        return;
    auto& grid = static_cast<Grid&>(control);
    if (table->rowCount() != grid.rows())
        table->setRowCount(grid.rows());
    if (table->columnCount() != grid.cols())
        table->setColumnCount(grid.cols());
    const QBrush fixed = table->palette().button();
    for (int r = 0; r < grid.rows(); ++r) {
        for (int c = 0; c < grid.cols(); ++c) {
            const QString text = grid.TextMatrix(r, c);
            QTableWidgetItem* item = table->item(r, c);
            if (!item) {
                item = new QTableWidgetItem;
                if (r < grid.FixedRows || c < grid.FixedCols)
                    item->setBackground(fixed);
                table->setItem(r, c, item);
            }
            if (item->text() != text)
                item->setText(text);
        }
    }
    for (int c = 0; c < grid.cols(); ++c)
        if (table->columnWidth(c) != px(grid.ColWidth(c)))
            table->setColumnWidth(c, px(grid.ColWidth(c)));
    if (grid.rows() > 0 && grid.cols() > 0
        && (table->currentRow() != grid.Row || table->currentColumn() != grid.Col))
        table->setCurrentCell(grid.Row, grid.Col);
}

void Binder::pushScrollBar(Binding& b, Control& control, QWidget* w)
{
    auto* bar = qobject_cast<QScrollBar*>(w);
    if (!bar)
        return;
    auto& s = static_cast<ScrollBar&>(control);
    bar->setInvertedAppearance(s.Min > s.Max);
    bar->setRange(std::min(s.Min, s.Max), std::max(s.Min, s.Max));
    bar->setSingleStep(s.SmallChange);
    bar->setPageStep(s.LargeChange);
    if (bar->value() != s.Value)
        bar->setValue(s.Value);
}

void Binder::pushMenuItem(Binding& b, Control& control)
{
    QAction* action = b.action;
    if (!action)
        return;
    auto& item = static_cast<MenuItem&>(control);
    const bool separator = item.Caption == QLatin1String("-");
    if (action->isSeparator() != separator)
        action->setSeparator(separator);
    if (!separator && action->text() != item.Caption)
        action->setText(item.Caption);
    if (action->isEnabled() != item.Enabled)
        action->setEnabled(item.Enabled);
    if (action->isVisible() != item.Visible)
        action->setVisible(item.Visible);
    // Only a ticked entry shows a check mark; the others keep a plain look.
    if (action->isCheckable() != item.Checked)
        action->setCheckable(item.Checked);
    if (item.Checked && !action->isChecked())
        action->setChecked(true);
}

void Binder::pushStacks(View& view)
{
    // The pages of a stack share one place: the last page whose control is visible shows,
    // so a panel opened in front of the notes hides them; with none visible the first page.
    for (const auto& stack : view.stacks) {
        if (!stack)
            continue;
        int chosen = 0;
        for (int i = 0; i < stack->count(); ++i) {
            auto it = byObject_.find(stack->widget(i));
            if (it != byObject_.end() && it->second->last.visible.value_or(false))
                chosen = i;
        }
        if (stack->currentIndex() != chosen)
            stack->setCurrentIndex(chosen);
    }
}

void Binder::syncTimers()
{
    if (!timersRunning_)
        return;
    for (const QString& form : app_.forms.formNames()) {
        const bool loaded = app_.forms.form(form).Loaded;
        for (const ControlRef& ref : app_.forms.controls(form)) {
            if (ref.kind != ControlKind::Timer)
                continue;
            const auto& timer = ref.as<Timer>();
            const QString path = ref.path();
            QTimer*& qtimer = timers_[path];
            if (!qtimer) {
                qtimer = new QTimer(this);
                connect(qtimer, &QTimer::timeout, this, [this, path] { onTimer(path); });
            }
            const bool runs = loaded && timer.Enabled && timer.Interval > 0;
            if (!runs)
                qtimer->stop();
            else if (!qtimer->isActive() || qtimer->interval() != timer.Interval)
                qtimer->start(timer.Interval);
        }
    }
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
    QString hint;
    if (t.binding) {
        Control* c = controlOf(*t.binding);
        if (!c)
            return false;
        hint = c->Hint;
        const bool area = t.binding->kind == ControlKind::Panel || t.binding->kind == ControlKind::Frame;
        if (hint.isEmpty() && !area)
            return false;
    }
    const ControlRef status = app_.forms.control(t.view->statusLine);
    QString* caption = status.is(ControlKind::Panel)   ? &status.as<Panel>().Caption
                       : status.is(ControlKind::Label) ? &status.as<Label>().Caption
                                                       : nullptr;
    if (!caption || *caption == hint)
        return false;
    *caption = hint;
    return true;
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
    Form& f = app_.forms.form(t.view->form);
    QWidget* w = t.widget;
    if (event->type() == QEvent::WindowStateChange) {
        f.WindowState = w->isMinimized() ? vbMinimized : w->isMaximized() ? vbMaximized : vbNormal;
        t.view->last.windowState = f.WindowState;
        return;
    }
    const QPoint at = w->frameGeometry().topLeft();
    f.Left = pixelsToTwips(at.x());
    f.Top = pixelsToTwips(at.y());
    f.Width = pixelsToTwips(w->width());
    f.Height = pixelsToTwips(w->height());
    t.view->last.geometry = QRect(px(f.Left), px(f.Top), px(f.Width), px(f.Height));
    if (event->type() == QEvent::Resize && !w->isMinimized())
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
