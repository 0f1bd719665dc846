#pragma once
// The views of the search forms: the field search and its result list, the result list of the
// search over all fields, the grid search, the field selection and the syllable search.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildSchnellsuchenView(FormRegistry& forms);
FormWindow* buildSuchergebnisView(FormRegistry& forms);
FormWindow* buildProcurarView(FormRegistry& forms);
FormWindow* buildGitterView(FormRegistry& forms);
FormWindow* buildSelektierungView(FormRegistry& forms);
FormWindow* buildSearchView(FormRegistry& forms);

}  // namespace mk
