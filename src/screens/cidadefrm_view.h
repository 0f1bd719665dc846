#pragma once
// The view of Cidadefrm: the pick list of a mask field, its entry box and its buttons.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildCidadefrmView(FormRegistry& forms);

}  // namespace mk
