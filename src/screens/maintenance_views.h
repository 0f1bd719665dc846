#pragma once
// The views of the export frmExport, the exit dialog Form5 and the password form senha.

#include "forms/registry.h"
#include "screens/widgets.h"

namespace mk {

FormWindow* buildFrmExportView(FormRegistry& forms);
FormWindow* buildForm5View(FormRegistry& forms);
FormWindow* buildSenhaView(FormRegistry& forms);

}  // namespace mk
