#pragma once
// The views of the printing forms: the label layout etiquet, the preview form4, the
// serial-letter list mala, the birthday list malasp, their control window malaview and the
// card print Form6. The previews paint the drawing their form's surface keeps.

#include "forms/registry.h"
#include "platform/printer.h"
#include "screens/widgets.h"

#include <functional>

namespace mk {

FormWindow* buildEtiquetView(FormRegistry& forms);
FormWindow* buildForm4View(FormRegistry& forms);
FormWindow* buildMalaView(FormRegistry& forms);
FormWindow* buildMalaspView(FormRegistry& forms);
FormWindow* buildMalaviewView(FormRegistry& forms);
FormWindow* buildForm6View(FormRegistry& forms);

// Where the drawing surfaces of the forms come from (set by the desktop), and the repaint
// of a form whose drawing changed.
void setDrawingSource(PrintDevices* devices);
void repaintDrawing(const QString& form);

}  // namespace mk
