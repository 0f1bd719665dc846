#include "search/type_naming.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "platform/text_files.h"

#include <array>

namespace mk {

namespace {

constexpr int kErsterTypEintrag = 21;  // settings entries 21 to 27 hold the seven names

std::array<TextBox*, 7> namensfelder(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    return {&m.Text2, &m.Text3, &m.Text4, &m.Text5, &m.Text6, &m.Text7, &m.Text8};
}

void benennungZeigen(Merkkartelle& app, bool sichtbar)
{
    for (TextBox* feld : namensfelder(app))
        feld->Visible = sichtbar;
    app.Hauptmaske.Command2.Visible = sichtbar;
    app.Hauptmaske.Command6.Visible = sichtbar;
}

// Box captions and settings entries take the typed names.
void namenUebernehmen(Merkkartelle& app)
{
    const auto felder = namensfelder(app);
    for (int k = 0; k < 7; ++k) {
        app.Hauptmaske.Typenliste[k].Caption = felder[std::size_t(k)]->Text;
        app.Einstellungsliste[std::size_t(kErsterTypEintrag + k)] = felder[std::size_t(k)]->Text;
    }
}

void namenAusEinstellungen(Merkkartelle& app)
{
    const auto felder = namensfelder(app);
    for (int k = 0; k < 7; ++k)
        felder[std::size_t(k)]->Text = app.Einstellungsliste[std::size_t(kErsterTypEintrag + k)];
}

}  // namespace

// The list of types of the serial-letter list: the seven names, then index 7 for all cards
// and index 8 for the choice of several types; the stored default chosen.
void typenlisteFuellen(Merkkartelle& app)
{
    ComboBox& combo = app.mala.ComboTypenliste;
    combo.Clear();
    for (int k = 1; k <= 7; ++k)
        combo.AddItem(app.Typenbenennung[std::size_t(k)]);
    combo.AddItem(kAlleEintraege);
    combo.AddItem(QStringLiteral("Persönliche Definition"));
    const int vorgabe = int(Val(app.Einstellungsliste[190]));
    if (vorgabe >= -1 && vorgabe < combo.ListCount())
        combo.select(vorgabe);
}

void menutipo_Click(Merkkartelle& app)
{
    if (!app.Hauptmaske.Text2.Visible) {
        namenAusEinstellungen(app);
        benennungZeigen(app, true);
        return;
    }
    // Confirming by the menu leaves Typenbenennung and the list of mala with the old names.
    namenUebernehmen(app);
    benennungZeigen(app, false);
}

void TypenBenennen(Merkkartelle& app) { menutipo_Click(app); }

void Command6_Click(Merkkartelle& app)
{
    namenUebernehmen(app);
    const auto felder = namensfelder(app);
    for (int k = 1; k <= 7; ++k)
        app.Typenbenennung[std::size_t(k)] = felder[std::size_t(k - 1)]->Text;
    typenlisteFuellen(app);
    benennungZeigen(app, false);
}

void Command2_Click(Merkkartelle& app)
{
    namenAusEinstellungen(app);
    benennungZeigen(app, false);
}

}  // namespace mk
