#pragma once
// The view of TypenlisteBenutzerdefiniert: the seven type boxes beside the choice between
// any and all of the checked marks.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildTypenlisteBenutzerdefiniertView(FormRegistry& forms);

}  // namespace mk
