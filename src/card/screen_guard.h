#pragma once
// The timers of the main window: Timer1 keeps the date and time panels, Timer2 puts the
// screen guard Bildschutz over the mask. While the guard shows, the entry, move and panel
// buttons do nothing; a click on it or a movement over it takes it away.

#include <QDate>
#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The day of the week counted from Sunday as 1: "Sonntag", "Montag" … "Samstag"; "" outside
// 1 to 7.
QString Wochentag(int tag);
// The number of a date's weekday in that count.
int WochentagNummer(const QDate& datum);

// Timer1: panel3d7 takes the weekday, ", " and the date; Panel3d5 the time.
void UhrAnzeigen(Merkkartelle& app);

// Timer2: in browse state, with "Programmschutz aktivieren" (config.SSCheck8) on and the
// guard not yet up, the guard comes up.
void Timer2_Timer(Merkkartelle& app);
// The guard over the mask: with config.Check3D11 its picture Image12 shows, fitted to it; the
// four panels shut; the search box Text1 has its text selected.
void BildschutzZeigen(Merkkartelle& app);
void BildschutzAufheben(Merkkartelle& app);
// The guard covers SSPanel2, the picture fits inside it.
void BildschutzEinpassen(Merkkartelle& app);

void registerScreenGuardHandlers(HandlerTable& table);

}  // namespace mk
