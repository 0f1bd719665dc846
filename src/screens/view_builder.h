#pragma once
// Help for building the view of a form: widgets for its controls, of the right kind and named
// by the control path, its menu bar from its menu items, and the generic view for the forms
// that have no view of their own yet.

#include "forms/registry.h"
#include "screens/widgets.h"

#include <QString>

class QFrame;
class QLabel;
class QMenuBar;
class QWidget;

namespace mk {

class ViewBuilder {
public:
    ViewBuilder(FormRegistry& forms, const QString& form, QWidget* window);

    // The widget of control name (element index of an array), parented to the window until a
    // layout takes it. FormsError when the form has no such control.
    QWidget* make(const QString& name, int index = -1);
    template <class W>
    W* make(const QString& name, int index = -1)
    {
        return qobject_cast<W*>(make(name, index));
    }
    // A label that shows a value: sunken, with room even when empty.
    QLabel* valueLabel(const QString& name, int minimumWidth = 40);
    // A panel (or frame) that holds other widgets: a plain frame of that name.
    QFrame* container(const QString& name, int index = -1);
    // The form's menu bar, built from its menu items (an item that others name as their
    // parent is a menu); null when the form has none.
    QMenuBar* menuBar();

    FormRegistry& forms() { return forms_; }
    const QString& form() const { return form_; }
    QWidget* window() const { return window_; }

private:
    FormRegistry& forms_;
    QString form_;
    QWidget* window_;
};

// A widget that always covers its parent (the screen guard over the mask).
void coverParent(QWidget* overlay);

// The generic view: every control where its state places it, in twips; panels and frames
// below the controls they hold.
FormWindow* buildGenericView(FormRegistry& forms, const QString& form);

}  // namespace mk
