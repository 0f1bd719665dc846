#pragma once
// The views of the telephony forms: the dialer, the modem configuration, the modem's
// answers, the list of calls and the single call.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildDialerView(FormRegistry& forms);
FormWindow* buildForm10View(FormRegistry& forms);
FormWindow* buildForm1View(FormRegistry& forms);
FormWindow* buildMalatelephoneView(FormRegistry& forms);
FormWindow* buildFormtelView(FormRegistry& forms);

}  // namespace mk
