// The binder's first half: the state of the forms into their widgets.

#include "screens/binder_parts.h"

#include "card/app_state.h"
#include "screens/icons.h"
#include "screens/widgets.h"
#include "screens/long_list.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <utility>

namespace mk {

using namespace detail;

namespace {

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

}  // namespace

void Binder::refresh()
{
    if (refreshing_)
        return;
    refreshing_ = true;
    ++pushing_;
    for (const auto& view : views_)
        pushView(*view);
    applyFocusRequest();
    --pushing_;
    refreshing_ = false;
    syncTimers();
    if (afterRefresh)
        afterRefresh();
}

// A focus a handler asked for. Its GotFocus and LostFocus have run already, so the focus
// events this causes are our own doing and stay unreported (pushing_ is set).
void Binder::applyFocusRequest()
{
    if (app_.FokusAnfrage.isEmpty())
        return;
    const QString path = std::exchange(app_.FokusAnfrage, QString());
    if (QWidget* w = widget(path))
        w->setFocus(Qt::OtherFocusReason);
}

void Binder::pushView(View& view)
{
    if (!view.window)
        return;
    pushForm(view);
    // A hidden form's controls wait until it shows: then they all go in before the show.
    const Form& f = app_.forms.form(view.form);
    if (!(f.Loaded && f.Visible) && !view.window->isVisible())
        return;
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
    readWindowGeometry(view);  // the size the view chose is the form's from now on
}

void Binder::readWindowGeometry(View& view)
{
    Form& f = app_.forms.form(view.form);
    QWidget* w = view.window;
    f.WindowState = w->isMinimized() ? vbMinimized : w->isMaximized() ? vbMaximized : vbNormal;
    view.last.windowState = f.WindowState;
    const QPoint at = w->frameGeometry().topLeft();
    f.Left = pixelsToTwips(at.x());
    f.Top = pixelsToTwips(at.y());
    f.Width = pixelsToTwips(w->width());
    f.Height = pixelsToTwips(w->height());
    view.last.geometry = QRect(px(f.Left), px(f.Top), px(f.Width), px(f.Height));
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
    bool hidden = false;
    if (b.kind == ControlKind::TextBox) {
        auto& t = static_cast<TextBox&>(control);
        text = t.Text, sel = &t, maxLength = t.MaxLength, locked = t.Locked, alignment = t.Alignment;
        hidden = !t.PasswordChar.isEmpty();
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
        const auto echo = hidden ? QLineEdit::Password : QLineEdit::Normal;
        if (edit->echoMode() != echo)
            edit->setEchoMode(echo);
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
    if (auto* list = qobject_cast<LongListView*>(w)) {
        list->sync(items);
        return;
    }
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
    auto& grid = static_cast<Grid&>(control);
    if (auto* view = qobject_cast<LongGridView*>(w)) {
        std::vector<int> widths;
        for (int c = 0; c < grid.cols(); ++c)
            widths.push_back(px(grid.ColWidth(c)));
        view->sync(grid, widths);
        return;
    }
    auto* table = qobject_cast<QTableWidget*>(w);
    if (!table)
        return;
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
    if (timers_.empty()) {
        // The forms' timers are known once: a QTimer for each.
        for (const QString& form : app_.forms.formNames())
            for (const ControlRef& ref : app_.forms.controls(form))
                if (ref.kind == ControlKind::Timer) {
                    const QString path = ref.path();
                    auto* qtimer = new QTimer(this);
                    connect(qtimer, &QTimer::timeout, this, [this, path] { onTimer(path); });
                    timers_[path] = qtimer;
                }
    }
    for (const auto& [path, qtimer] : timers_) {
        const ControlRef ref = app_.forms.control(path);
        const auto& timer = ref.as<Timer>();
        const bool runs = app_.forms.form(ref.form).Loaded && timer.Enabled && timer.Interval > 0;
        if (!runs)
            qtimer->stop();
        else if (!qtimer->isActive() || qtimer->interval() != timer.Interval)
            qtimer->start(timer.Interval);
    }
}

}  // namespace mk
