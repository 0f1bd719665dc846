#pragma once
// The one binder between the forms' state and the Qt widgets, driven by the control kinds.
//
// State into widgets: refresh() copies every property of every attached form into its
// widgets (captions, texts, Enabled, Visible, colours, fonts, list items, check values, grid
// cells, pictures, geometry where a widget asks for it). It runs after every handler.
//
// Input into state: before a handler runs, what the user did is written into the state (the
// typed text, the click on a check box, the chosen line), then the handler runs through the
// handler table, then refresh(). Keys go to the form first when it previews keys (KeyDown,
// KeyPress, KeyUp with the old key codes); hints go to the form's status line on mouse
// movement and to the tooltips; moving over the form itself clears the status line. The
// status line is the panel `Panel3D3`, or the panel a view names in its window's property
// "mkStatusLine".
//
// A widget whose property "mkGeometry" is "full" is placed by the control's Left, Top,
// Width and Height; "width" takes only the Width (a progress bar). Other widgets belong to
// their layouts. The pages of a QStackedWidget share one place: the last page whose control
// is Visible shows (a panel opened in front of the notes), else the first page.
//
// Widgets are found by objectName: the control's name, with the index for an element of a
// control array ("feld(4)", "NeueAdresse"); menu items are QActions of that name.

#include "forms/events.h"
#include "forms/registry.h"

#include <QObject>
#include <QPointer>
#include <QPointF>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

class QAction;
class QEvent;
class QKeyEvent;
class QMouseEvent;
class QTimer;
class QWidget;

namespace mk {

struct Merkkartelle;

class Binder : public QObject {
    Q_OBJECT
public:
    explicit Binder(Merkkartelle& app, QObject* parent = nullptr);
    ~Binder() override;

    // Binds a form to its window: each named child becomes the widget of its control.
    void attach(const QString& form, QWidget* window);
    QWidget* window(const QString& form) const;
    // The widget bound to "Form.Control" or "Form.Control(i)"; null when there is none.
    QWidget* widget(const QString& path) const;

    // State into widgets, for every attached form; then the timers and the modal loops.
    void refresh();
    // Runs the handler of an event through the handler table, then refresh(). True when a
    // handler ran. The end of the program and run-time errors stop here, never in Qt.
    bool fire(const QString& path, const QString& event, EventArgs& args);
    bool fire(const QString& path, const QString& event);
    // Runs any step of the system (the start routine) under the same guard, then refresh().
    void run(const std::function<void()>& step);

    // A form shown modally takes the input of the whole program until it hides.
    void setModal(const QString& form, bool modal);
    // Form timers tick on QTimers (the desktop program); off in tests unless asked for.
    void setTimersRunning(bool running);
    bool ended() const;

    // Called after every refresh (the modal loops look whether their form still shows).
    std::function<void()> afterRefresh;
    // Called when the user closed a window and no form shows any more.
    std::function<void()> lastWindowClosed;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Binding;
    struct View;
    struct Target {
        View* view = nullptr;
        Binding* binding = nullptr;  // null: the form itself
        QWidget* widget = nullptr;   // the widget that stands for it
    };

    View* viewOf(const QString& form) const;
    Binding* bindingOf(const View& view, const QString& name, int index) const;
    Target targetOf(QObject* watched) const;
    QString pathOf(const Target& target) const;
    Control* controlOf(const Binding& binding) const;

    void bindWidget(View& view, const ControlRef& ref, QWidget* widget);
    void bindAction(View& view, const ControlRef& ref, QAction* action);
    void watch(QWidget* widget);
    void connectInput(Binding& binding);
    void connectTextInput(Binding& binding);
    void connectChoiceInput(Binding& binding);

    // state -> widgets
    void pushView(View& view);
    void pushForm(View& view);
    void pushWindowVisibility(View& view);
    void readWindowGeometry(View& view);
    void pushControl(Binding& binding, Control& control);
    void pushCommon(Binding& binding, const Control& control, QWidget* widget);
    void pushColours(Binding& binding, const Control& control, QWidget* widget);
    void pushGeometry(Binding& binding, const Control& control, QWidget* widget);
    void pushText(Binding& binding, Control& control, QWidget* widget);
    void pushButton(Binding& binding, Control& control, QWidget* widget);
    void pushList(Binding& binding, Control& control, QWidget* widget);
    void pushCaption(Binding& binding, Control& control, QWidget* widget);
    void pushImage(Binding& binding, Control& control, QWidget* widget);
    void pushGrid(Binding& binding, Control& control, QWidget* widget);
    void pushScrollBar(Binding& binding, Control& control, QWidget* widget);
    void pushMenuItem(Binding& binding, Control& control);
    void pushStacks(View& view);
    void applyFocusRequest();
    void syncTimers();

    // input -> state, then the handler
    bool dispatch(const QString& path, const QString& event, EventArgs& args);
    void onTextEdited(Binding& binding, const QString& text);
    void onSelection(Binding& binding);
    void onClicked(Binding& binding);
    void onListChosen(Binding& binding, int row);
    void onComboChosen(Binding& binding, int index);
    void onCellChosen(Binding& binding, int row, int col);
    void onScroll(Binding& binding, int value);
    void onTimer(const QString& path);
    bool onKey(QObject* watched, QKeyEvent* event);
    void onMouseMove(QObject* watched, QMouseEvent* event);
    void onMouseButton(QObject* watched, QMouseEvent* event);
    void onFocus(QObject* watched, QEvent* event);
    bool onClose(QObject* watched, QEvent* event);
    void onWindowGeometry(QObject* watched, QEvent* event);
    void onWindowActivated(QObject* watched);
    bool setStatusLine(const Target& target);
    void reportError(const QString& text);

    Merkkartelle& app_;
    std::vector<std::unique_ptr<View>> views_;
    std::map<const QObject*, Binding*> byObject_;
    std::map<QString, QTimer*> timers_;
    std::set<QString> tickingTimers_;
    bool timersRunning_ = false;
    int pushing_ = 0;     // state is going into widgets: their signals are our own doing
    bool refreshing_ = false;

    // A key or mouse event that Qt hands on to the parents is handled once only.
    const QEvent* lastKey_ = nullptr;
    QPointer<QObject> lastKeyReceiver_;
    const QEvent* resending_ = nullptr;
    struct MouseMark {
        const Binding* binding = nullptr;
        const View* view = nullptr;
        int type = 0;
        QPointF global;
        quint64 timestamp = 0;
    } lastMouse_;
};

}  // namespace mk
