#include "search/type_marks.h"

#include "card/app_state.h"
#include "card/focus.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "search/type_naming.h"

namespace mk {

namespace {

// The form that chooses several types closes by unloading, so that its next opening starts
// with clear boxes and the names the types have then.
void listenformSchliessen(Merkkartelle& app) { unloadForm(app, app.TypenlisteBenutzerdefiniert); }

void statuszeile(Merkkartelle& app, const QString& text) { app.Hauptmaske.Panel3D3.Caption = text; }

// The filter buttons rest while the cover shows, which is while a card is entered or edited:
// a new cursor would drop the card in the making.
bool filterGesperrt(const Merkkartelle& app) { return bildschutzSichtbar(app) || bearbeitungOffen(app); }

}  // namespace

// ---- masks and conditions ------------------------------------------------------------------

QString Typmaske(int typ)
{
    QString maske = kAlleTypen;
    if (typ >= 1 && typ <= kTypen)
        maske[typ - 1] = QLatin1Char('1');
    return maske;
}

QString festeTypform(int typ)
{
    QString form(kTypen, QLatin1Char('0'));
    if (typ >= 1 && typ <= kTypen)
        form[typ - 1] = QLatin1Char('1');
    return form;
}

QString Typbedingung(const QString& maske) { return QStringLiteral("[Typ] like '") + maske + QLatin1Char('\''); }

QString TypbedingungEinzeln(const Typauswahl& gewaehlt)
{
    QString bedingung;
    for (int i = 0; i < kTypen; ++i) {
        if (!gewaehlt[std::size_t(i)])
            continue;
        if (!bedingung.isEmpty())
            bedingung += QStringLiteral(" OR ");
        bedingung += Typbedingung(Typmaske(i + 1));
    }
    return bedingung;
}

QString TypbedingungMulti(const Typauswahl& gewaehlt)
{
    QString maske;
    for (int i = 0; i < kTypen; ++i)
        maske += gewaehlt[std::size_t(i)] ? QLatin1Char('1') : QLatin1Char('?');
    return Typbedingung(maske);
}

// ---- the filter of the main mask ------------------------------------------------------------

void TypenfilterAnzeigen(Merkkartelle& app)
{
    auto& maske = app.Hauptmaske;
    Button& info = maske.InfoTipo;
    // The lookup goes by mask, so two types of the same name cannot be mistaken; the fixed
    // form of a type ("0100000") names it as well as its mask ("?1?????").
    for (int k = 1; k <= kTypen; ++k)
        if (app.Typmaske == Typmaske(k) || app.Typmaske == festeTypform(k))
            info.Caption = maske.Typenliste[k - 1].Caption;
    info.ForeColor = colour::Red;
    if (app.Typmaske.isEmpty()) {
        info.Caption = kAlleEintraege;
        info.ForeColor = colour::Black;
    }
    info.Hint = InfoTipoHinweis(app);
    SerienbriefVeraltet(app);
}

void TypfilterEinsetzen(Merkkartelle& app)
{
    // Each step under ignored errors: a step that fails leaves what the one before made.
    const QString pfad = joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei);
    underIgnoredErrors([&] { app.Kartendatenbank = Database::open(pfad, false, false); });
    underIgnoredErrors([&] {
        if (app.Kartendatenbank)
            app.Kartensatz = app.Kartendatenbank->createDynaset(app.Tabellenname);
    });
    underIgnoredErrors([&] { kartensatz(app).Filter = app.Typfilter; });
    // Always ascending: a type filter turns "Z - A" back until the order is chosen again.
    underIgnoredErrors([&] { kartensatz(app).Sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']'); });
    underIgnoredErrors([&] { app.Kartensatz = kartensatz(app).createDynaset(); });
}

void Selector_Click(Merkkartelle& app, int index)
{
    if (filterGesperrt(app))
        return;
    app.Typmaske = Typmaske(index + 1);
    app.Typfilter = Typbedingung(app.Typmaske);
    TypfilterEinsetzen(app);
    DatenInMaske(app);
    TypenfilterAnzeigen(app);
    PositionAnzeigen(app);
}

void InfoTipo_Click(Merkkartelle& app)
{
    if (filterGesperrt(app))
        return;
    app.Typfilter.clear();
    app.Typmaske.clear();
    TypfilterEinsetzen(app);
    DatenInMaske(app);
    TypenfilterAnzeigen(app);
}

// ---- hints and focus -----------------------------------------------------------------------

QString TypenlisteHinweis(const Merkkartelle& app, int index)
{
    const CheckBox& box = app.Hauptmaske.Typenliste[index];
    return (box.checked() ? QStringLiteral("Markierung aufhenen Typ: ") : QStringLiteral("Markieren als Typ: "))
        + box.Caption;
}

QString SelectorHinweis(int index)
{
    // The number as Str() writes it, with the blank a positive number carries.
    return QStringLiteral("Nur Einträge mit dieser Markierung freigeben ") + QLatin1Char(' ')
        + QString::number(index + 1);
}

QString InfoTipoHinweis(const Merkkartelle& app)
{
    const QString& caption = app.Hauptmaske.InfoTipo.Caption;
    return caption == kAlleEintraege ? QStringLiteral("Alle Einträge freigeben") : QStringLiteral("Aktiver Filter: ") + caption;
}

void Typenliste_MouseMove(Merkkartelle& app, int index) { statuszeile(app, TypenlisteHinweis(app, index)); }

void Selector_MouseMove(Merkkartelle& app, int index) { statuszeile(app, SelectorHinweis(index)); }

void InfoTipo_MouseMove(Merkkartelle& app) { statuszeile(app, InfoTipoHinweis(app)); }

void Typenliste_GotFocus(Merkkartelle& app, int index)
{
    // The focus colour of the settings: the fore colour of the swatch on config.
    app.Hauptmaske.Typenliste[index].ForeColor = app.config.Label34.ForeColor;
}

void Typenliste_LostFocus(Merkkartelle& app, int index)
{
    app.Hauptmaske.Typenliste[index].ForeColor = colour::Black;
    // Leaving the last type box leads on to the first card field.
    if (index == 6)
        underIgnoredErrors([&] { SetFocus(app, QStringLiteral("Hauptmaske.feld(0)")); });
}

// ---- several types for the list ---------------------------------------------------------------

void TypenlisteBenutzerdefiniert_Load(Merkkartelle& app)
{
    auto& form = app.TypenlisteBenutzerdefiniert;
    for (int k = 0; k < kTypen; ++k)
        form.Typenliste[k].Caption = app.Typenbenennung[std::size_t(k + 1)];
    form.Top = app.mala.Top + 150;
    form.Left = app.mala.Left - 300;
}

void TypenlisteBenutzerdefiniert_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape) {
        listenformSchliessen(app);
    } else if (args.KeyCode == vbKeyF1) {
        app.ui.MsgBox(QStringLiteral(" \r\nTastaturbelegung\r\n \r\nESC = Schliessen "));
    }
}

void TypenlisteBenutzerdefiniert_ok_Click(Merkkartelle& app)
{
    auto& form = app.TypenlisteBenutzerdefiniert;
    Typauswahl gewaehlt{};
    for (int i = 0; i < kTypen; ++i)
        gewaehlt[std::size_t(i)] = form.Typenliste[i].checked();
    app.Selektionsfilter = form.BenutzertypenlisteOption1.Value ? TypbedingungEinzeln(gewaehlt)
                                                                 : TypbedingungMulti(gewaehlt);
    listenformSchliessen(app);
}

QString TypwahlFilter(Merkkartelle& app)
{
    const int index = app.mala.ComboTypenliste.ListIndex;
    if (index >= 0 && index < kTypen)
        return Typbedingung(Typmaske(index + 1));
    if (index == kTypen)
        return Typbedingung(kAlleTypen);
    if (index == kTypen + 1) {
        showForm(app, app.TypenlisteBenutzerdefiniert, true);
        return app.Selektionsfilter;
    }
    return QString();
}

// ---- the handler table ----------------------------------------------------------------------

void registerTypeHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("Selector"), QStringLiteral("Click"), &Selector_Click);
    table.on(haupt, QStringLiteral("Selector"), QStringLiteral("MouseMove"), &Selector_MouseMove);
    table.on(haupt, QStringLiteral("InfoTipo"), QStringLiteral("Click"), &InfoTipo_Click);
    table.on(haupt, QStringLiteral("InfoTipo"), QStringLiteral("MouseMove"), &InfoTipo_MouseMove);
    table.on(haupt, QStringLiteral("Typenliste"), QStringLiteral("MouseMove"), &Typenliste_MouseMove);
    table.on(haupt, QStringLiteral("Typenliste"), QStringLiteral("GotFocus"), &Typenliste_GotFocus);
    table.on(haupt, QStringLiteral("Typenliste"), QStringLiteral("LostFocus"), &Typenliste_LostFocus);
    table.on(haupt, QStringLiteral("menutipo"), QStringLiteral("Click"), &menutipo_Click);
    table.on(haupt, QStringLiteral("Command6"), QStringLiteral("Click"), &Command6_Click);
    table.on(haupt, QStringLiteral("Command2"), QStringLiteral("Click"), &Command2_Click);

    const QString liste = QStringLiteral("TypenlisteBenutzerdefiniert");
    table.onForm(liste, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { TypenlisteBenutzerdefiniert_Load(app); });
    table.onForm(liste, QStringLiteral("KeyDown"), &TypenlisteBenutzerdefiniert_KeyDown);
    table.on(liste, QStringLiteral("ok"), QStringLiteral("Click"), &TypenlisteBenutzerdefiniert_ok_Click);
}

}  // namespace mk
