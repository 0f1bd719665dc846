#pragma once
// The modem configuration Form10, its file dialer.cfg, and Form1 with the modem's answers.

#include <QString>

namespace mk {

struct Merkkartelle;

// dialer.cfg in Arbeitsverzeichnis: written when the dialer closes, read when it loads and
// by "Defauft config". A missing file or a bad record leaves the controls as they are.
void DialerKonfigurationLesen(Merkkartelle& app);
void DialerKonfigurationSchreiben(Merkkartelle& app);

// The port and line settings of Form10 into Comm1.
void PortEinrichten(Merkkartelle& app);
// The tone or pulse prefix and the speaker command the options choose.
QString Wahlpraefix(const Merkkartelle& app);
QString Lautsprecherbefehl(const Merkkartelle& app);

// The modem's answers on Form1, when Modemstatus is on.
void AntwortZeigen(Merkkartelle& app, const QString& antwort);

void Form10_Command1_Click(Merkkartelle& app);
void Form10_Command2_Click(Merkkartelle& app);
void Form10_Command3_Click(Merkkartelle& app);
void Form10_Command7_Click(Merkkartelle& app);
void Form10_Check3D1_Click(Merkkartelle& app);
void Form10_Check3D2_Click(Merkkartelle& app);
void Form10_Check3D4_Click(Merkkartelle& app);

}  // namespace mk
