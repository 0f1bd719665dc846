#pragma once
// The main window's own behaviour: the four panels that share the place of the notes, the
// dual buttons and their picture sets, the status hints, the enlarged notes, and the layout
// that follows the window's size. The keys are in key_map.h, what the typing slots do in
// field_checks.h, the clock and the screen guard in screen_guard.h.

#include <QString>

namespace mk {

struct Merkkartelle;
struct Button;
struct Panel;
class HandlerTable;

// --- the panels beside the notes ------------------------------------------------------------
// Bankverbindung (Command1), Morephones (Command3d4), Numbers (Command4), Conexted
// (Command3D2). One at most is open; beschreibung(16) names what shows: the open panel's
// caption, or "Notizen" for the notes.
inline const QString kNotizen = QStringLiteral("Notizen");
// The neutral colour of a panel button, and the colour while its panel is open.
long panelKnopfNeutral();
long panelKnopfAktiv();

// Opens the panel when it is shut and shuts it when it is open; the other three shut.
// Ignored while the screen guard shows.
void PanelUmschalten(Merkkartelle& app, Panel& panel, Button& knopf);
// Shuts all four panels; their buttons go neutral and the notes come back.
void PanelsSchliessen(Merkkartelle& app);

void Command1_Click(Merkkartelle& app);    // "Bankverbindung"
void Command3d4_Click(Merkkartelle& app);  // "Morephones"
void Command4_Click(Merkkartelle& app);    // "Numbers"
void Command3D2_Click(Merkkartelle& app);  // "Conexted"

// --- the dual buttons -------------------------------------------------------------------------
// Command3D23, Command3D24, Command3D25 and Command3D13 mean one thing while browsing and
// another while a card is open: their pictures and hints are swapped between the two sets.
void BildsatzSchalten(Merkkartelle& app, bool bearbeiten);
// The routine as the edit buttons call it: swaps to the other set than the one shown.
void BildsatzSchalten(Merkkartelle& app);

// --- the notes --------------------------------------------------------------------------------
inline const QString kNotizVergroessern = QStringLiteral("Notiz vergrössern");
inline const QString kNotizVerkleinern = QStringLiteral("Notiz verkleinern");
// SSCommand3: the notes between their place and the whole panel SSPanel2. The button stays
// pressed (Value) while the notes are enlarged.
void SSCommand3_Click(Merkkartelle& app);

// --- hints ------------------------------------------------------------------------------------
// The hint a control of the mask shows in the status line Panel3D3 while the mouse is over
// it; "" for a control that has none in the current state. Control as declared ("Datum",
// "feldnum"), index for an element of an array.
QString Hinweis(Merkkartelle& app, const QString& control, int index = -1);
// Writes the hint into the status line (and the control's tooltip); nothing for "".
void HinweisZeigen(Merkkartelle& app, const QString& control, int index = -1);
// "Laufende Nummer " + the number + "  (Datenbankregistriernummer)".
QString LaufendeNummerHinweis(const Merkkartelle& app);
// Moving over the form itself clears the status line.
void Hauptmaske_MouseMove(Merkkartelle& app);

// --- size --------------------------------------------------------------------------------------
// The panels, buttons, slots and pictures follow the form's size; nothing while minimised.
void Hauptmaske_Resize(Merkkartelle& app);

// Every handler of the main window's behaviour: panels, hints, notes, size, keys, typing
// slots, the dual buttons' edit actions, clock and screen guard.
void registerMainWindowHandlers(HandlerTable& table);

}  // namespace mk
