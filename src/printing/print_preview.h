#pragma once
// The print preview form4 ("Vorschau"): the label sheet of the current card at full scale,
// drawn on the form's own surface with the same label drawing as the paper.

namespace mk {

struct Merkkartelle;
class HandlerTable;

// Draws the sheet on form4; a label height above 29 cm is clamped and closes the preview.
void VorschauZeichnen(Merkkartelle& app);
void VorschauSchliessen(Merkkartelle& app);
void registerPreviewHandlers(HandlerTable& table);

}  // namespace mk
