#pragma once
// The view of the quick entry form Form2: seven named boxes above "OK" and "Abrechen".

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildForm2View(FormRegistry& forms);

}  // namespace mk
