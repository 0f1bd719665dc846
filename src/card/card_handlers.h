#pragma once
// The handlers of the card store, in one table: form, control, event -> handler.

namespace mk {

class HandlerTable;

void registerCardHandlers(HandlerTable& table);

}  // namespace mk
