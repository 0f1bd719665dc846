#pragma once
// The keys of the main window. The form sees every key first; what a key does depends on
// the edit state. While browsing the keys press the buttons and menu entries of the mask;
// while a card is open Esc, F2 and F3 ask before they cancel or save.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;

// The prompts of the F1 boxes, lines parted by CR LF. The browse box names F5 and F9 after
// the dialer while it is open.
QString TastaturbelegungBlaettern(const Merkkartelle& app);
QString TastaturbelegungBearbeiten(const Merkkartelle& app);
inline const QString kTastaturbelegung = QStringLiteral("Tastaturbelegung");

// The questions of the edit state: the question, a line of twelve blanks; yes and no with
// the stop icon. True for yes.
bool TasteFragen(Merkkartelle& app, const QString& frage, const QString& titel);

// Form_KeyDown of Hauptmaske.
void Hauptmaske_KeyDown(Merkkartelle& app, EventArgs& args);

}  // namespace mk
