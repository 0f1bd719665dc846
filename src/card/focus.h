#pragma once
// Moving the keyboard focus from a handler, as the old SetFocus did.
//
// The forms' state has no focus of its own: the system object keeps the control that last got
// the focus (Fokus, written by raiseEvent on GotFocus and cleared on its LostFocus) and a
// request for the screens (FokusAnfrage), which the binder carries out after the handler.

#include <QString>

namespace mk {

struct Merkkartelle;

// Asks for the focus on the control "Form.Control" or "Form.Control(i)" and raises LostFocus
// of the control that had it and GotFocus of the new one, so that focus colours and the
// remembered typing slot follow at once, with or without screens. Nothing is raised when the
// control has the focus already. FormsError for a path that names no control.
void SetFocus(Merkkartelle& app, const QString& path);

}  // namespace mk
