#pragma once
// The call log: one row of the table Telephone per call, begun when the connection is made
// and stored at hang-up; the list malatelephone and the single call on Formtel. Every step on
// the table runs under ignored errors: without Telephone.mdb the log is silently off.

namespace mk {

struct Merkkartelle;

void AnrufBeginnen(Merkkartelle& app);   // DIALER.Command1
void AnrufBeenden(Merkkartelle& app);    // DIALER.Command2
void TelefonlisteFuellen(Merkkartelle& app);
void TelefonsatzAnzeigen(Merkkartelle& app);

void malatelephone_Load(Merkkartelle& app);
void Schnelleauswahlliste_Click(Merkkartelle& app);
void Schnelleauswahlliste_DblClick(Merkkartelle& app);
void Formtel_Load(Merkkartelle& app);
void Formtel_Command1_Click(Merkkartelle& app);
void Formtel_Command2_Click(Merkkartelle& app);
void Formtel_Command5_Click(Merkkartelle& app);

}  // namespace mk
