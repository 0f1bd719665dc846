#include "card/app_state.h"

#include "card/card_editing.h"
#include "card/card_handlers.h"
#include "card/main_window.h"
#include "card/notice.h"
#include "history/connections.h"
#include "history/global_view.h"
#include "printing/label_layout.h"
#include "history/history_list.h"
#include "search/field_selection.h"
#include "search/full_search.h"
#include "search/grid_search.h"
#include "search/quick_search.h"
#include "search/syllable_search.h"
#include "attachments/linked_files.h"
#include "history/global_view.h"
#include "maintenance/maintenance.h"
#include "search/type_marks.h"
#include "settings/password.h"
#include "settings/pick_lists.h"
#include "settings/settings_file.h"
#include "telephony/telephony_handlers.h"

namespace mk {

Merkkartelle::Merkkartelle(UserInterface& ui_, Clock& clock_) : ui(ui_), clock(clock_)
{
    // One line per form: the registry reaches its properties by path from then on.
    forms.add(Hauptmaske);
    forms.add(Message);
    forms.add(AboutBox);
    forms.add(Form3);
    forms.add(Form2);
    forms.add(config);
    forms.add(etiquet);
    forms.add(Form5);
    forms.add(Form6);
    forms.add(form4);
    forms.add(malaview);
    forms.add(senha);
    forms.add(mala);
    forms.add(malasp);
    forms.add(Schnellsuchen);
    forms.add(Suchergebnis);
    forms.add(Procurar);
    forms.add(replay);
    forms.add(search);
    forms.add(Gitter);
    forms.add(Selektierung);
    forms.add(Cidadefrm);
    forms.add(frmExport);
    forms.add(Aform);
    forms.add(malaglobalview);
    forms.add(DIALER);
    forms.add(Form10);
    forms.add(Form1);
    forms.add(malatelephone);
    forms.add(Formtel);
    forms.add(TypenlisteBenutzerdefiniert);

    // The type names a first start shows are the names every list takes and the first end
    // writes: records 21 to 27 agree with the boxes' design.
    for (int k = 1; k <= 7; ++k) {
        Typenbenennung[std::size_t(k)] = designTypeName(k);
        Einstellungsliste[std::size_t(20 + k)] = designTypeName(k);
    }

    registerAllHandlers(handlers);
}

void registerAllHandlers(HandlerTable& table)
{
    // Each subsystem adds its one line here.
    registerCardHandlers(table);
    registerEditingHandlers(table);
    registerNoticeHandlers(table);
    registerMainWindowHandlers(table);
    registerSettingsHandlers(table);
    registerGlobalViewHandlers(table);
    registerHistoryHandlers(table);
    registerConnectionHandlers(table);
    registerTypeHandlers(table);
    registerPickListHandlers(table);
    registerPrintingHandlers(table);
    registerTelephonyHandlers(table);
    registerQuickSearchHandlers(table);
    registerFullSearchHandlers(table);
    registerGridSearchHandlers(table);
    registerFieldSelectionHandlers(table);
    registerSyllableSearchHandlers(table);
    registerMaintenanceHandlers(table);
    registerPasswordHandlers(table);
    registerAttachmentHandlers(table);
}

bool raiseEvent(Merkkartelle& app, const QString& path, const QString& event, EventArgs& args)
{
    const ControlRef ref = app.forms.control(path);
    // Kept before the handler runs: a GotFocus handler that moves the focus on must see
    // its own control as the one that loses it.
    if (ref.control) {
        if (event.compare(QLatin1String("GotFocus"), Qt::CaseInsensitive) == 0)
            app.Fokus = ref.path();
        else if (event.compare(QLatin1String("LostFocus"), Qt::CaseInsensitive) == 0
                 && app.Fokus.compare(ref.path(), Qt::CaseInsensitive) == 0)
            app.Fokus.clear();
    }
    const Handler* handler = app.handlers.find(ref.form, ref.name, event);
    if (!handler)
        return false;
    if (ref.control)
        args.Index = ref.index;
    // A copy: the handler may replace the table's entries while it runs.
    Handler run = *handler;
    run(app, args);
    return true;
}

bool raiseEvent(Merkkartelle& app, const QString& path, const QString& event)
{
    EventArgs args;
    return raiseEvent(app, path, event, args);
}

void loadForm(Merkkartelle& app, const QString& form)
{
    Form& f = app.forms.form(form);
    if (f.Loaded)
        return;
    f.Loaded = true;
    raiseEvent(app, f.Name, QStringLiteral("Load"));
}

void showForm(Merkkartelle& app, const QString& form, bool modal)
{
    loadForm(app, form);
    Form& f = app.forms.form(form);
    const QString name = f.Name;
    f.Visible = true;
    if (app.activeForm != name || modal) {
        app.activeForm = name;
        raiseEvent(app, name, QStringLiteral("Activate"));
    }
    // The struct keeps its address across an unload, so the loop's test reads it afresh.
    app.ui.showForm(name, modal, [&f] { return f.Loaded && f.Visible; });
}

void hideForm(Merkkartelle& app, const QString& form)
{
    Form& f = app.forms.form(form);
    if (!f.Visible)
        return;
    f.Visible = false;
    if (app.activeForm == f.Name)
        app.activeForm.clear();
    app.ui.hideForm(f.Name);
}

bool unloadForm(Merkkartelle& app, const QString& form, int unloadMode)
{
    Form& f = app.forms.form(form);
    const QString name = f.Name;
    if (f.Loaded) {
        EventArgs query;
        query.UnloadMode = unloadMode;
        raiseEvent(app, name, QStringLiteral("QueryUnload"), query);
        if (query.Cancel)
            return false;
        EventArgs unload;
        raiseEvent(app, name, QStringLiteral("Unload"), unload);
        if (unload.Cancel)
            return false;
    }
    hideForm(app, name);
    app.forms.reset(name);
    return true;
}

void End(Merkkartelle& app)
{
    app.ended = true;
    app.ui.programEnded();
    throw ProgramEnded();
}

void advanceClock(Merkkartelle& app, qint64 ms)
{
    app.timers.advance(app.forms, app.clock, ms, [&app](const ControlRef& timer) {
        EventArgs args;
        raiseEvent(app, timer.path(), QStringLiteral("Timer"), args);
    });
}

}  // namespace mk
