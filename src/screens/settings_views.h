#pragma once
// The views of the settings form config and of the global view malaglobalview.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildConfigView(FormRegistry& forms);
FormWindow* buildMalaglobalviewView(FormRegistry& forms);

}  // namespace mk
