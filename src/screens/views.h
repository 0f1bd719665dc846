#pragma once
// The views of the forms, built in code with Qt layouts. Each names its widgets by the
// control paths of its form; the binder does the rest.

#include "forms/registry.h"
#include "screens/widgets.h"

#include <QString>

namespace mk {

FormWindow* buildHauptmaskeView(FormRegistry& forms);
FormWindow* buildMessageView(FormRegistry& forms);
FormWindow* buildAboutBoxView(FormRegistry& forms);
FormWindow* buildForm3View(FormRegistry& forms);

// The view of a form: its own where it has one, else the generic view.
FormWindow* buildView(FormRegistry& forms, const QString& form);

}  // namespace mk
