#pragma once
// The telephony subsystem's line in the handler table: the dialer, the modem configuration,
// the call log, and the dial keys of the main mask.

#include "forms/events.h"

namespace mk {

void registerTelephonyHandlers(HandlerTable& table);

}  // namespace mk
