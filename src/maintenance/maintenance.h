#pragma once
// The data maintenance of the card file: the export, the safety copy on leaving, new and
// compacted databases, and the copying of cards into another database.

namespace mk {

class HandlerTable;

void registerMaintenanceHandlers(HandlerTable& table);

}  // namespace mk
