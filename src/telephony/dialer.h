#pragma once
// The modem dialer: dialling the card's numbers, tone dialling during a call, hanging up,
// waiting for rings, the modem reset, closing, and the dialer's keys.
//
// The wait loops run inside the click that starts them and turn through DoEvents, so that a
// click on Abrir, a key or the closing button is handled while they run; between passes they
// sleep on the port until input arrives, so that an idle wait costs no processor.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;

// The number without the user's own area code (config.Text2), when it starts with it.
QString OhneVorwahl(const QString& nummer, const QString& vorwahl);

// The card's seven numbers on Dialnumber(0..6): Telefon, Telefax, Celphone, TEL1 to TEL4,
// each without the own area code.
void KartennummernInDialer(Merkkartelle& app);
// Hauptmaske.Command3D3: the current card into the dialer, which opens.
void DialerOeffnen(Merkkartelle& app);
// A key in a telephone slot of the mask: that number into the dialer, which opens.
void NummerAusFeld(Merkkartelle& app, const QString& nummer);

void DIALER_Load(Merkkartelle& app);
void DIALER_Unload(Merkkartelle& app);
void DIALER_KeyDown(Merkkartelle& app, EventArgs& args);
void DIALER_Text2_Change(Merkkartelle& app);
void DIALER_Text6_Change(Merkkartelle& app);
void Dialnumber_Click(Merkkartelle& app, int index);
void Dialnumber_MouseMove(Merkkartelle& app, int index);
void number_Click(Merkkartelle& app, int index);
void Abrir_Click(Merkkartelle& app);
void DIALER_Command3D2_Click(Merkkartelle& app);
void DIALER_Command3D3_Click(Merkkartelle& app);
void DIALER_Command3D8_Click(Merkkartelle& app);
void DIALER_Command3D9_Click(Merkkartelle& app);
void DIALER_SSCommand_Click(Merkkartelle& app, int which);
void DIALER_Timer1_Timer(Merkkartelle& app);
void DIALER_MouseDown(Merkkartelle& app, EventArgs& args);
void DIALER_MouseMove(Merkkartelle& app, EventArgs& args);
void DIALER_MouseUp(Merkkartelle& app, EventArgs& args);

// The F1 text of the dialer.
QString DialerTastenbelegung();

// The time a wait loop sleeps on the port between passes when nothing has arrived.
constexpr int kPortWarteMs = 20;

}  // namespace mk
