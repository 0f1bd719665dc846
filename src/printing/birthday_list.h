#pragma once
// The birthday list malasp: the cards whose Geburtstag matches a month, a day or a year,
// with the control window, print and preview of the serial-letter list.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The criterion of a pattern of ten characters: "[Geburtstag] like '" + pattern + "'".
QString geburtstagsKriterium(const QString& muster);
// GeburtstagslisteAufbauen: the list from the cards that match GeburtstagFilter.
void GeburtstagslisteAufbauen(Merkkartelle& app);
// The menu entry menumaladata, and the start when the settings ask for the list.
void GeburtstagslisteZeigen(Merkkartelle& app);

void registerBirthdayHandlers(HandlerTable& table);

}  // namespace mk
