#pragma once
// The start of the program, as the desktop program and the headless driver call it.

namespace mk {

struct Merkkartelle;

// The start routine: lays out the application home on a first start, then shows the main
// mask, whose load step does the rest. Returns when Hauptmaske is shown.
void Start(Merkkartelle& app);

}  // namespace mk
