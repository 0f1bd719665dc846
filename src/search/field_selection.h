#pragma once
// The field selection (form Selektierung): conditions on a field, one line each, narrow the
// cards of the main mask; the selected line alone, or in multi mode all lines joined by
// " OR ". The panel Selektiert shows the state, and a selection and a type filter replace
// each other on the one filter of the cursor.

#include <QString>
#include <QStringList>

namespace mk {

struct Merkkartelle;
class HandlerTable;

inline const QString kKeineSelektion = QStringLiteral("Keine Selektion");
inline const QString kSelektierungDeaktiviert = QStringLiteral("Selektierung deaktiviert");
inline const QString kSelektierungWirdGeaendert = QStringLiteral("Selktierung wird geändert...");

// The columns Datenfelder offers.
QStringList Selektionsspalten();
// "[column] operator 'value'"; the value of BETWEEN as the user writes it.
QString Selektionsbedingung(const QString& spalte, const QString& op, const QString& wert);

// The browse branch of Hauptmaske.Command3D23: the form, then the selection it leaves.
void SelektionBearbeiten(Merkkartelle& app);
// The three transitions.
void KeineSelektion(Merkkartelle& app);
void SelektionAussetzen(Merkkartelle& app);
void SelektionAnwenden(Merkkartelle& app, const QString& filter);

void Selektierung_Datenfelder_Click(Merkkartelle& app);
void Selektierung_ok_Click(Merkkartelle& app);

void registerFieldSelectionHandlers(HandlerTable& table);

}  // namespace mk
