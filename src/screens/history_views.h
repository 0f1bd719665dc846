#pragma once
// The views of the history "Verlauf" (replay) and of the connections "Conections" (Aform).

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildReplayView(FormRegistry& forms);
FormWindow* buildAformView(FormRegistry& forms);

}  // namespace mk
