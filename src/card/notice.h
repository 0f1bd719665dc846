#pragma once
// The quiet notice: the form Message shows a text in a colour until its timer runs out or a
// key is pressed. True questions and errors use the message box instead.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// Shows the notice modally; returns when it has closed. interval: milliseconds until the
// notice closes by itself (2000 for the length warnings).
void ShowMessage(Merkkartelle& app, const QString& text, long colour, int interval);

// The notice's own handlers: its timer and a key close it.
void registerNoticeHandlers(HandlerTable& table);

}  // namespace mk
