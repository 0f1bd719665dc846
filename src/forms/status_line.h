#pragma once
// The status line of a form: wherever the mouse moves, the line shows the hint of the control
// under it, whether or not the control has a mouse-move handler of its own. The desktop and
// the driver both go through here, so a script sees the hints a user sees.

#include "forms/registry.h"

#include <QString>

namespace mk {

// The path of a form's status panel: "Form.Panel3D3" where the form has a panel of that name
// (or of the name given), "" where it has none.
QString statusLineOf(FormRegistry& forms, const QString& form,
                     const QString& panel = QStringLiteral("Panel3D3"));

// The mouse over a control (or over the bare form, a ref with no control): the status line
// takes the control's hint. A control without a hint leaves the line alone, except a panel or
// a frame, which are areas and clear it. True when the line changed.
bool showHintInStatusLine(FormRegistry& forms, const QString& statusLine, const ControlRef& hovered);

}  // namespace mk
