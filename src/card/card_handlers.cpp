#include "card/card_handlers.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/session.h"

namespace mk {

namespace {

// The hint of a move button goes into the status line while the mouse is over it.
Handler bewegungsHinweisZeigen(const char* name)
{
    const QString control = QString::fromLatin1(name);
    return [control](Merkkartelle& app, EventArgs&) {
        Button& knopf = app.forms.control(QStringLiteral("Hauptmaske"), control).as<Button>();
        knopf.Hint = bewegungsHinweis(app, control);
        app.Hauptmaske.Panel3D3.Caption = knopf.Hint;
    };
}

}  // namespace

void registerCardHandlers(HandlerTable& table)
{
    // Start and end of the session.
    table.onForm("Hauptmaske", "Load", [](Merkkartelle& app, EventArgs&) { Hauptmaske_Load(app); });
    table.onForm("Hauptmaske", "Unload", [](Merkkartelle& app, EventArgs&) { Hauptmaske_Unload(app); });
    table.on("Hauptmaske", "abrirdmb", "Click", abrirdmb_Click);
    table.on("Hauptmaske", "fechardb", "Click", fechardb_Click);
    table.on("Hauptmaske", "SSCommand1", "Click", SSCommand1_Click);

    // Moving along the cursor.
    table.on("Hauptmaske", "EinznachHinten", "Click", EinznachHinten_Click);
    table.on("Hauptmaske", "EinzNachvorne", "Click", EinzNachvorne_Click);
    table.on("Hauptmaske", "Command3D15", "Click", Command3D15_Click);
    table.on("Hauptmaske", "Command3D16", "Click", Command3D16_Click);
    for (const char* name : {"EinznachHinten", "EinzNachvorne", "Command3D15", "Command3D16"})
        table.on("Hauptmaske", QString::fromLatin1(name), "MouseMove", bewegungsHinweisZeigen(name));
    table.on("Hauptmaske", "dataold", "Click", dataold_Click);
    table.on("Hauptmaske", "Command3D8", "Click", Command3D8_Click);

    // The order.
    table.on("Hauptmaske", "Command3D24", "Click", Command3D24_Click);
    table.onForm("Form3", "Load", [](Merkkartelle& app, EventArgs&) { Form3_Load(app); });
    table.on("Form3", "Option3D1", "Click", Form3_Option3D1_Click);
    table.on("Form3", "AZCHECK", "Click", Form3_AZCHECK_Click);
    table.on("Form3", "Command3D1", "Click", Form3_Command3D1_Click);
    table.onForm("Form3", "KeyDown", Form3_KeyDown);
}

}  // namespace mk
