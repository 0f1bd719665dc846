#pragma once
// The forms that keep their place in the settings table take it when they load and leave it
// there when they close; the settings file carries it from one session to the next.

namespace mk {

struct Merkkartelle;
struct Form;

// The numbers of the records that hold a form's place; 0 for a side the form does not keep.
struct Formplatz {
    int top = 0;
    int left = 0;
    int height = 0;
    int width = 0;
};

// The form takes each side from its record; an empty record or one that is no number leaves
// the side as it was.
void FormplatzNehmen(Merkkartelle& app, Form& form, const Formplatz& platz);
// Each side of the form goes into its record as a whole number of twips.
void FormplatzMerken(Merkkartelle& app, const Form& form, const Formplatz& platz);

}  // namespace mk
