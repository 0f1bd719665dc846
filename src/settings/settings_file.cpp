#include "settings/settings_file.h"

#include "card/app_state.h"
#include "card/session.h"
#include "card/card_record.h"
#include "platform/files.h"
#include "platform/text_files.h"

#include <QFileInfo>
#include <QImageReader>

#include <array>
#include <cmath>
#include <optional>

namespace mk {

namespace {

using M = Merkkartelle;

// ---- conversions a control makes when it takes a record --------------------------------

// The number a record stands for when a numeric property takes it; a text that is no number
// (the empty text above all) is a type mismatch, so the control keeps its value.
double numberOf(const QString& text)
{
    const QString trimmed = text.trimmed();
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok) {
        const QString upper = trimmed.toUpper();
        if (upper == u"TRUE" || upper == u"#TRUE#")
            return -1;
        if (upper == u"FALSE" || upper == u"#FALSE#")
            return 0;
        raiseFileError(err::TypeMismatch);
    }
    return value;
}

int integerOf(const QString& text)
{
    return int(std::nearbyint(numberOf(text)));
}

long longOf(const QString& text)
{
    return long(std::llround(numberOf(text)));
}

// ---- the table of records ---------------------------------------------------------------

enum class Type { Text, Boolean, Integer, Long, Single };

struct Record {
    Type type = Type::Text;
    // What the writer writes; empty: table entry n, carried along.
    std::function<WriteValue(M&)> write;
    // The "same control" part of loading; empty: the load steps handle the record, or
    // nothing takes it.
    std::function<void(M&, const QString&)> apply;
};

using TextRef = QString& (*)(M&);
using CheckRef = CheckBox& (*)(M&);
using LongRef = long& (*)(M&);
using IntRef = int& (*)(M&);

Record text(TextRef ref)
{
    return {Type::Text, [ref](M& a) { return WriteValue(ref(a)); },
            [ref](M& a, const QString& v) { ref(a) = v; }};
}

Record textWrittenOnly(TextRef ref)
{
    return {Type::Text, [ref](M& a) { return WriteValue(ref(a)); }, {}};
}

Record fixedText(const char* literal)
{
    const QString value = QString::fromUtf8(literal);
    return {Type::Text, [value](M&) { return WriteValue(value); }, {}};
}

Record carried()
{
    return {Type::Text, {}, {}};
}

// The 3D check boxes of config: #TRUE# / #FALSE#.
Record option(CheckRef ref)
{
    return {Type::Boolean, [ref](M& a) { return WriteValue(ref(a).Value != 0); },
            [ref](M& a, const QString& v) { ref(a).Value = toBoolean(v) ? 1 : 0; }};
}

// The plain check boxes of etiquet: their Value 0, 1 or 2.
Record checkValue(CheckRef ref)
{
    return {Type::Integer, [ref](M& a) { return WriteValue(ref(a).Value); },
            [ref](M& a, const QString& v) { ref(a).Value = integerOf(v); }};
}

Record colour(LongRef ref, bool applied = true)
{
    Record r{Type::Long, [ref](M& a) { return WriteValue(ref(a)); }, {}};
    if (applied)
        r.apply = [ref](M& a, const QString& v) { ref(a) = longOf(v); };
    return r;
}

Record single(IntRef ref)
{
    return {Type::Single, [ref](M& a) { return WriteValue(float(ref(a))); },
            [ref](M& a, const QString& v) { ref(a) = int(std::nearbyint(numberOf(v))); }};
}

const std::array<Record, kSettingsRecords + 1>& records()
{
    static const std::array<Record, kSettingsRecords + 1> table = [] {
        std::array<Record, kSettingsRecords + 1> t;
        for (Record& r : t)
            r = carried();

        // Label geometry.
        t[1] = text([](M& a) -> QString& { return a.etiquet.Text5.Text; });
        t[2] = text([](M& a) -> QString& { return a.etiquet.Text6.Text; });
        t[3] = text([](M& a) -> QString& { return a.etiquet.Text3.Text; });
        t[4] = text([](M& a) -> QString& { return a.etiquet.Text4.Text; });
        t[5] = text([](M& a) -> QString& { return a.etiquet.tabh.Text; });
        t[6] = text([](M& a) -> QString& { return a.etiquet.Text1.Text; });
        t[7] = text([](M& a) -> QString& { return a.etiquet.Text2.Text; });
        t[8] = text([](M& a) -> QString& { return a.etiquet.Text7.Text; });
        t[9] = text([](M& a) -> QString& { return a.etiquet.Text8.Text; });
        t[10] = text([](M& a) -> QString& { return a.etiquet.dishor.Text; });
        t[11] = text([](M& a) -> QString& { return a.etiquet.disver.Text; });
        t[12] = text([](M& a) -> QString& { return a.etiquet.Quantidade.Text; });
        t[13] = text([](M& a) -> QString& { return a.etiquet.colunas.Text; });
        t[16] = text([](M& a) -> QString& { return a.etiquet.Combo1[0].Text; });
        t[17] = text([](M& a) -> QString& { return a.etiquet.Combo1[1].Text; });
        t[18] = text([](M& a) -> QString& { return a.etiquet.Combo1[2].Text; });
        t[19] = text([](M& a) -> QString& { return a.etiquet.Combo1[3].Text; });
        t[20] = text([](M& a) -> QString& { return a.etiquet.Combo1[4].Text; });

        // The seven type names: the load step spreads them.
        t[21] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text2.Text; });
        t[22] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text3.Text; });
        t[23] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text4.Text; });
        t[24] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text5.Text; });
        t[25] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text6.Text; });
        t[26] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text7.Text; });
        t[27] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Text8.Text; });
        t[29] = text([](M& a) -> QString& { return a.Hauptmaske.Label36.Caption; });
        t[31] = text([](M& a) -> QString& { return a.Hauptmaske.dataold.Caption; });

        t[32] = option([](M& a) -> CheckBox& { return a.config.SSCheck4; });
        t[33] = option([](M& a) -> CheckBox& { return a.config.SSCheck5; });
        t[34] = option([](M& a) -> CheckBox& { return a.config.SSCheck6; });
        t[35] = option([](M& a) -> CheckBox& { return a.config.SSCheck7; });
        t[36] = option([](M& a) -> CheckBox& { return a.config.SSCheck8; });
        t[37] = option([](M& a) -> CheckBox& { return a.config.SSCheck1; });
        t[38] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check3; });
        t[39] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check1; });
        t[40] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check2; });
        t[44] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check4; });
        t[45] = text([](M& a) -> QString& { return a.config.Text1.Text; });
        t[46] = text([](M& a) -> QString& { return a.etiquet.Text15.Text; });
        t[47] = option([](M& a) -> CheckBox& { return a.config.SSCheck9; });
        t[48] = option([](M& a) -> CheckBox& { return a.config.SSCheck10; });
        t[49] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check7; });
        t[56] = single([](M& a) -> int& { return a.Hauptmaske.Top; });
        t[57] = single([](M& a) -> int& { return a.Hauptmaske.Left; });
        t[62] = text([](M& a) -> QString& { return a.Form5.Text3.Text; });
        t[63] = text([](M& a) -> QString& { return a.Form5.Text2.Text; });
        t[64] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check6; });
        t[65] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.currentindex.Caption; });
        t[69] = option([](M& a) -> CheckBox& { return a.config.Check3D6; });
        t[71] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check5; });
        t[72] = text([](M& a) -> QString& { return a.etiquet.Text10.Text; });
        t[73] = text([](M& a) -> QString& { return a.etiquet.InfoFontname.Text; });
        t[74] = textWrittenOnly([](M& a) -> QString& { return a.etiquet.InfoFontsize.Text; });
        t[74].apply = [](M& a, const QString& v) { a.etiquet.InfoFontsize.Text = QString::number(Val(v)); };
        t[75] = colour([](M& a) -> long& { return a.etiquet.Infoforecolor.BackColor; });
        t[76] = colour([](M& a) -> long& { return a.etiquet.Campoforecolor.BackColor; });
        t[77] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check10; });
        t[78] = checkValue([](M& a) -> CheckBox& { return a.etiquet.Check20; });
        t[79] = text([](M& a) -> QString& { return a.config.Text20.Text; });
        t[80] = text([](M& a) -> QString& { return a.config.Text21.Text; });
        t[81] = colour([](M& a) -> long& { return a.Hauptmaske.BackColor; }, false);
        t[82] = colour([](M& a) -> long& { return a.config.Label34.BackColor; });
        t[83] = textWrittenOnly([](M& a) -> QString& { return a.mala.Label7.Caption; });
        t[90] = colour([](M& a) -> long& { return a.Hauptmaske.feld[0].BackColor; }, false);
        t[91] = colour([](M& a) -> long& { return a.Hauptmaske.feld[0].ForeColor; }, false);
        t[98] = text([](M& a) -> QString& { return a.etiquet.Label38.Caption; });
        t[101] = option([](M& a) -> CheckBox& { return a.config.Check3D7; });
        t[102] = option([](M& a) -> CheckBox& { return a.config.Check3D5; });
        t[103] = text([](M& a) -> QString& { return a.etiquet.Text13.Text; });
        t[106] = single([](M& a) -> int& { return a.Hauptmaske.Height; });
        t[107] = single([](M& a) -> int& { return a.Hauptmaske.Width; });
        t[118] = option([](M& a) -> CheckBox& { return a.config.Check3D8; });

        // The font of the fields: feld(0) stands for all of them.
        t[121] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.feld[0].Font.Name; });
        t[122] = {Type::Single, [](M& a) { return WriteValue(float(a.Hauptmaske.feld[0].Font.Size)); }, {}};
        t[123] = {Type::Boolean, [](M& a) { return WriteValue(a.Hauptmaske.feld[0].Font.Bold); }, {}};
        t[124] = {Type::Boolean, [](M& a) { return WriteValue(a.Hauptmaske.feld[0].Font.Italic); }, {}};
        t[125] = textWrittenOnly([](M& a) -> QString& { return a.Hauptmaske.Label17.Caption; });

        // New-card presets and list columns.
        t[132] = text([](M& a) -> QString& { return a.config.prefeld[0].Text; });
        t[133] = text([](M& a) -> QString& { return a.config.prefeld[1].Text; });
        t[134] = text([](M& a) -> QString& { return a.config.prefeld[2].Text; });
        t[135] = text([](M& a) -> QString& { return a.config.prefeld[3].Text; });
        t[136] = text([](M& a) -> QString& { return a.config.Text12.Text; });
        t[137] = text([](M& a) -> QString& { return a.config.Text13.Text; });
        t[138] = text([](M& a) -> QString& { return a.config.Text14.Text; });
        t[139] = text([](M& a) -> QString& { return a.config.Text8.Text; });
        t[140] = text([](M& a) -> QString& { return a.config.Text9.Text; });
        t[151] = option([](M& a) -> CheckBox& { return a.config.Check3D3; });
        t[152] = option([](M& a) -> CheckBox& { return a.config.SSCheck3; });
        t[153] = text([](M& a) -> QString& { return a.config.Text15.Text; });
        t[154] = text([](M& a) -> QString& { return a.config.Text16.Text; });
        t[155] = text([](M& a) -> QString& { return a.config.Text17.Text; });
        t[156] = text([](M& a) -> QString& { return a.config.Text18.Text; });
        t[156].apply = [](M& a, const QString& v) {
            a.config.Text18.Text = v;
            a.Hauptmaske.progshow.Caption = QStringLiteral("Zusatzprogramm: ") + v;
        };
        t[157] = option([](M& a) -> CheckBox& { return a.config.Check3D10; });
        t[158] = option([](M& a) -> CheckBox& { return a.config.Check3D11; });
        t[159] = option([](M& a) -> CheckBox& { return a.config.SSCheck2; });
        t[162] = option([](M& a) -> CheckBox& { return a.config.Check3D9; });
        t[162].apply = [](M& a, const QString& v) {
            a.config.Check3D9.Value = toBoolean(v) ? 1 : 0;
            a.config.Check3D9.Caption = a.config.Check3D9.Value ? kGittersuchNachname : kGittersuchSchluessel;
        };
        t[163] = option([](M& a) -> CheckBox& { return a.config.Check3D12; });
        t[164] = option([](M& a) -> CheckBox& { return a.config.Check3D13; });
        t[165] = colour([](M& a) -> long& { return a.etiquet.bordercolor.BackColor; });

        // The names of beschreibungnum: the first three are fixed on disk.
        t[166] = fixedText("E-Mail 1:");
        t[167] = fixedText("E-Mail 2:");
        t[168] = fixedText("Homepage:");
        t[169] = text([](M& a) -> QString& { return a.Hauptmaske.beschreibungnum[3].Caption; });
        t[170] = text([](M& a) -> QString& { return a.Hauptmaske.beschreibungnum[4].Caption; });
        t[171] = text([](M& a) -> QString& { return a.Hauptmaske.beschreibungnum[5].Caption; });
        t[172] = text([](M& a) -> QString& { return a.Hauptmaske.beschreibungnum[6].Caption; });
        t[173] = text([](M& a) -> QString& { return a.Hauptmaske.beschreibungnum[7].Caption; });
        for (int n = 166; n <= 168; ++n) {
            const int i = n - 166;
            t[std::size_t(n)].apply = [i](M& a, const QString& v) { a.Hauptmaske.beschreibungnum[i].Caption = v; };
        }
        t[174] = text([](M& a) -> QString& { return a.Form6.Label4.Caption; });
        t[175] = option([](M& a) -> CheckBox& { return a.config.SSCheck11; });
        t[176] = text([](M& a) -> QString& { return a.config.Text2.Text; });
        for (int n = 177; n <= 189; ++n)
            t[std::size_t(n)] = fixedText("");

        t[191] = text([](M& a) -> QString& { return a.etiquet.Label32.Caption; });
        t[192] = text([](M& a) -> QString& { return a.etiquet.Label33.Caption; });
        t[193] = text([](M& a) -> QString& { return a.etiquet.Label34.Caption; });
        t[194] = colour([](M& a) -> long& { return a.config.Label34.ForeColor; });
        t[195] = text([](M& a) -> QString& { return a.etiquet.impbordavertical.Text; });
        t[196] = text([](M& a) -> QString& { return a.etiquet.impborda.Text; });
        return t;
    }();
    return table;
}

QString& entry(M& app, int n)
{
    return app.Einstellungsliste.at(std::size_t(n));
}

// An entry that no file filled is a null text: loading leaves its control as it is, so a
// missing or short file keeps the design values. A record read as "" is applied.
bool filled(M& app, int n)
{
    return !entry(app, n).isNull();
}

// The "same control" part of a record, as one statement under ignored errors.
void applyRecord(M& app, int n)
{
    const Record& r = records()[std::size_t(n)];
    if (!r.apply || !filled(app, n))
        return;
    const QString value = entry(app, n);
    underIgnoredErrors([&] { r.apply(app, value); });
}

void applyRecords(M& app, std::initializer_list<std::pair<int, int>> ranges)
{
    for (const auto& [first, last] : ranges)
        for (int n = first; n <= last; ++n)
            applyRecord(app, n);
}

// One statement of a load step that takes a record and may fail on it.
template <class Step>
void withRecord(M& app, int n, Step step)
{
    if (!filled(app, n))
        return;
    const QString value = entry(app, n);
    underIgnoredErrors([&] { step(value); });
}

// ---- the load ---------------------------------------------------------------------------

enum class LoadPath { Start, Session };

struct Progress {
    int width;
    const char* atStart;
    int widthInSession;
    const char* inSession;
};

constexpr std::array<Progress, 10> kProgress = {{
    {2000, "Persönliche Einstellungen werden geladen...", 1000, "Laden von persönlichen Einstellungen"},
    {2500, "Allgemeine Einstellungen werden geladen...", 2000, "Laden von allgemeinen Einstellungen"},
    {3000, "Etiketteneinstellungen werden geladen...", 3000, "Laden der Einstellungen der Etiketten"},
    {3500, "Einstellungen des Typ...", 4000, "Laden der Typen"},
    {4000, "Texteinstellungen werden geladen...", 5000, "Laden der Texte"},
    {4500, "Positionierung wird geladen...", 6000, "Laden der Positionen"},
    {5000, "Farben werden geladen...", 6250, "Laden der Farben"},
    {5500, "Schriftarten werden geladen...", 6500, "Laden der Schriftarten"},
    {6000, "Listenabstände werden geladen...", 6800, "Einstellungen überprüfen"},
    {6500, "Alle Einstellungen wurden geladen.", 7000, "Alle Einstellungen sind geladen"},
}};

void showProgress(M& app, LoadPath path, int step)
{
    const Progress& p = kProgress[std::size_t(step)];
    const bool start = path == LoadPath::Start;
    app.AboutBox.Label5.Width = start ? p.width : p.widthInSession;
    app.AboutBox.Label6.Caption = QString::fromUtf8(start ? p.atStart : p.inSession);
}

// LoadPicture into an image: a file that is not there is error 53 and leaves the image.
void loadPicture(Image& image, const QString& path)
{
    if (path.isEmpty()) {
        image.Picture.clear();
        image.PictureWidth = image.PictureHeight = 0;
        return;
    }
    const QString file = resolvePath(path);
    if (!QFileInfo(file).isFile())
        raiseFileError(err::FileNotFound);
    const QSize size = QImageReader(file).size();
    image.Picture = path;
    image.PictureWidth = size.isValid() ? size.width() : 0;
    image.PictureHeight = size.isValid() ? size.height() : 0;
}

void unloadIfRegistered(M& app, const char* form)
{
    const QString name = QString::fromUtf8(form);
    if (app.forms.hasForm(name))
        unloadForm(app, name);
}

void stepForms(M& app, LoadPath path)
{
    for (const char* form : {"Message", "mala", "malasp", "Schnellsuchen"})
        unloadIfRegistered(app, form);
    if (path == LoadPath::Session)
        unloadIfRegistered(app, "DIALER");
    unloadIfRegistered(app, "Form3");
    showProgress(app, path, 0);
}

void stepPersonal(M& app)
{
    withRecord(app, 125, [&](const QString& v) {
        if (v.isEmpty())
            return;
        app.AboutBox.Image3.Visible = false;
        loadPicture(app.AboutBox.Image3, v);
        app.AboutBox.Image3.Stretch = true;
    });
}

void stepGeneral(M& app, LoadPath path)
{
    applyRecords(app, {{69, 69}, {101, 101}, {118, 118}});
    app.config.CMDialog1.FileName = kSettingsFileName;
    applyRecords(app, {{102, 102}, {32, 36}, {132, 135}, {136, 140}});
    if (path == LoadPath::Session)
        applyRecords(app, {{62, 63}});
    applyRecords(app, {{151, 156}});
    if (path == LoadPath::Start)
        applyRecords(app, {{79, 80}});
    applyRecords(app, {{157, 159}, {162, 164}});
    if (path == LoadPath::Start)
        applyRecords(app, {{62, 63}});
}

void stepLabels(M& app)
{
    etiquet& e = app.etiquet;
    for (int n : {12, 13})
        if (Val(entry(app, n)) == 0)
            entry(app, n) = QStringLiteral("1");
    applyRecords(app, {{1, 13}});
    withRecord(app, 13, [&](const QString& v) { e.HScroll1.setValue(integerOf(v)); });
    withRecord(app, 12, [&](const QString& v) { e.HScroll2.setValue(integerOf(v)); });
    applyRecords(app, {{16, 20}, {37, 40}, {44, 44}, {45, 49}, {64, 64}, {71, 78}});

    withRecord(app, 81, [&](const QString& v) { app.Hauptmaske.BackColor = longOf(v); });
    withRecord(app, 81, [&](const QString& v) { app.Hauptmaske.SSPanel2.BackColor = longOf(v); });
    withRecord(app, 81, [&](const QString& v) { app.Hauptmaske.Panel3D2.BackColor = longOf(v); });
    applyRecord(app, 82);
    for (int i = 0; i <= 24; ++i) {
        withRecord(app, 82, [&](const QString& v) { app.Hauptmaske.beschreibung[i].ForeColor = longOf(v); });
        withRecord(app, 30, [&](const QString& v) { app.Hauptmaske.beschreibung[i].BackColor = longOf(v); });
    }
    applyRecords(app, {{98, 98}, {103, 103}, {165, 165}, {166, 173}, {174, 175}});
    app.config.Check3D9.Visible = app.config.SSCheck11.Value != 0;
    applyRecords(app, {{176, 176}});

    ScrollBar* bars[] = {&e.HScroll3, &e.HScroll4, &e.HScroll5};
    for (int k = 0; k < 3; ++k) {
        applyRecord(app, 191 + k);
        withRecord(app, 191 + k, [&](const QString& v) { bars[k]->setValue(integerOf(v)); });
    }
    applyRecords(app, {{194, 196}});
}

void stepTypes(M& app)
{
    TextBox* names[] = {&app.Hauptmaske.Text2, &app.Hauptmaske.Text3, &app.Hauptmaske.Text4,
                        &app.Hauptmaske.Text5, &app.Hauptmaske.Text6, &app.Hauptmaske.Text7,
                        &app.Hauptmaske.Text8};
    for (int k = 0; k < 7; ++k)
        withRecord(app, 21 + k, [&](const QString& v) { app.Hauptmaske.Typenliste[k].Caption = v; });
    for (int k = 0; k < 7; ++k)
        withRecord(app, 21 + k, [&](const QString& v) { app.Typenbenennung[std::size_t(k + 1)] = v; });
    for (int k = 0; k < 7; ++k)
        withRecord(app, 21 + k, [&](const QString& v) { names[k]->Text = v; });
    applyRecords(app, {{29, 29}, {31, 31}});
}

void stepTexts(M& app, const std::function<void()>& ordnungWiederherstellen)
{
    Label& currentindex = app.Hauptmaske.currentindex;
    withRecord(app, 65, [&](const QString& v) { currentindex.Caption = v; });
    if (Val(currentindex.Caption) == 0)
        currentindex.Caption = QStringLiteral("21");
    // The option of the slot is pressed without running its action; a slot the form lacks is
    // an error the load passes over.
    const int slot = int(Val(currentindex.Caption));
    if (app.Form3.Option3D1.exists(slot))
        app.forms.chooseOption(app.forms.control(QStringLiteral("Form3"), QStringLiteral("Option3D1"), slot));
    withRecord(app, 66, [&](const QString& v) { app.Form3.AZCHECK.Value = toBoolean(v); });
    app.Hauptmaske.Label5.Caption = entry(app, 66) == u"True" ? QStringLiteral("Z - A") : QStringLiteral("A - Z");
    if (ordnungWiederherstellen)
        ordnungWiederherstellen();
    withRecord(app, 67, [&](const QString& v) { app.Form3.Top = int(std::nearbyint(numberOf(v))); });
    withRecord(app, 68, [&](const QString& v) { app.Form3.Left = int(std::nearbyint(numberOf(v))); });
    unloadForm(app, QStringLiteral("Form3"));
}

void stepPositions(M& app)
{
    applyRecords(app, {{56, 57}});
    Hauptmaske& h = app.Hauptmaske;
    h.AdresseÄndernAbbruch.Enabled = false;
    h.NeueAdresseAbbruch.Enabled = false;
    h.AdresseÄndern.Enabled = false;
    h.AdresseLöschen.Value = false;
}

// The controls that take the colours and the font of the fields.
template <class Each>
void eachField(M& app, Each each)
{
    for (auto& [index, field] : app.Hauptmaske.feld)
        each(static_cast<Control&>(field));
}

template <class Each>
void eachProg(M& app, Each each)
{
    for (auto& [index, prog] : app.Hauptmaske.prog)
        each(static_cast<Control&>(prog));
}

void stepColours(M& app, LoadPath path)
{
    Hauptmaske& h = app.Hauptmaske;
    eachField(app, [&](Control& c) {
        withRecord(app, 90, [&](const QString& v) { c.BackColor = longOf(v); });
        withRecord(app, 91, [&](const QString& v) { c.ForeColor = longOf(v); });
    });
    withRecord(app, 90, [&](const QString& v) { h.Partido.BackColor = longOf(v); });
    if (path == LoadPath::Start) {
        auto paint = [&](Control& c) {
            withRecord(app, 90, [&](const QString& v) { c.BackColor = longOf(v); });
            withRecord(app, 91, [&](const QString& v) { c.ForeColor = longOf(v); });
        };
        paint(h.Bemerkung);
        eachProg(app, paint);
    }
    // Text that cannot be read is no setting: the fields come up white with black text.
    if (h.feld[0].BackColor == h.feld[0].ForeColor) {
        eachField(app, [](Control& c) {
            c.BackColor = colour::White;
            c.ForeColor = colour::Black;
        });
        h.Partido.BackColor = colour::White;
        if (path == LoadPath::Start)
            h.Bemerkung.BackColor = colour::White;
    }
    withRecord(app, 90, [&](const QString& v) { h.Bildschutz.BackColor = longOf(v); });
}

void applyFont(M& app, Control& c)
{
    withRecord(app, 121, [&](const QString& v) { c.Font.Name = v; });
    withRecord(app, 122, [&](const QString& v) { c.Font.Size = numberOf(v); });
    withRecord(app, 123, [&](const QString& v) { c.Font.Bold = toBoolean(v); });
    withRecord(app, 124, [&](const QString& v) { c.Font.Italic = toBoolean(v); });
}

void stepFonts(M& app, LoadPath path)
{
    Hauptmaske& h = app.Hauptmaske;
    applyRecords(app, {{106, 107}});
    eachField(app, [&](Control& c) { applyFont(app, c); });
    for (Control* c : {static_cast<Control*>(&h.Partido), static_cast<Control*>(&h.Ramal)}) {
        withRecord(app, 90, [&](const QString& v) { c->BackColor = longOf(v); });
        withRecord(app, 91, [&](const QString& v) { c->ForeColor = longOf(v); });
        withRecord(app, 121, [&](const QString& v) { c->Font.Name = v; });
        withRecord(app, 122, [&](const QString& v) { c->Font.Size = numberOf(v); });
        c->Height = 256;
        withRecord(app, 123, [&](const QString& v) { c->Font.Bold = toBoolean(v); });
        withRecord(app, 124, [&](const QString& v) { c->Font.Italic = toBoolean(v); });
    }
    if (path == LoadPath::Start) {
        applyFont(app, h.Bemerkung);
        eachProg(app, [&](Control& c) { applyFont(app, c); });
    }
    withRecord(app, 125, [&](const QString& v) { h.Label17.Caption = v; });
    underIgnoredErrors([&] {
        loadPicture(h.Image2, entry(app, 125));
        h.Image2.Stretch = true;
        h.Image2.Visible = true;
    });
}

void stepCheck(M& app)
{
    TextBox* columns[] = {&app.config.Text12, &app.config.Text13, &app.config.Text14};
    for (int k = 0; k < 3; ++k)
        if (entry(app, 136 + k).isEmpty())
            columns[k]->Text = QStringLiteral("20");
}

void distribute(M& app, LoadPath path, const std::function<void()>& ordnungWiederherstellen)
{
    stepForms(app, path);
    stepPersonal(app);
    showProgress(app, path, 1);
    stepGeneral(app, path);
    showProgress(app, path, 2);
    stepLabels(app);
    showProgress(app, path, 3);
    stepTypes(app);
    showProgress(app, path, 4);
    stepTexts(app, ordnungWiederherstellen);
    showProgress(app, path, 5);
    stepPositions(app);
    showProgress(app, path, 6);
    stepColours(app, path);
    showProgress(app, path, 7);
    stepFonts(app, path);
    showProgress(app, path, 8);
    stepCheck(app);
    showProgress(app, path, 9);
}

QString fileInWorkingDirectory(M& app)
{
    ArbeitsverzeichnisSetzen(app);
    return kSettingsFileName;
}

}  // namespace

void EinstellungenEinlesen(Merkkartelle& app)
{
    EinstellungenEinlesen(app, fileInWorkingDirectory(app));
}

void EinstellungenEinlesen(Merkkartelle& app, const QString& file)
{
    std::optional<TextReader> reader;
    underIgnoredErrors([&] { reader.emplace(file); });
    for (int n = 1; n <= kSettingsRecords; ++n) {
        underIgnoredErrors([&] {
            if (!reader)
                raiseFileError(err::BadFileName);
            QString value = reader->next();
            if (value.isNull())
                value = QStringLiteral("");  // read, though empty: not the null of "never read"
            entry(app, n) = value;
        });
    }
}

std::vector<WriteValue> Einstellungsdatensaetze(Merkkartelle& app)
{
    // Reading a control of a form that is not loaded loads it, as the runtime did.
    for (const char* form : {"etiquet", "Form5", "mala", "Form6", "config"})
        loadForm(app, QString::fromUtf8(form));

    std::vector<WriteValue> values;
    values.reserve(kSettingsRecords);
    for (int n = 1; n <= kSettingsRecords; ++n) {
        const Record& r = records()[std::size_t(n)];
        values.push_back(r.write ? r.write(app) : WriteValue(entry(app, n)));
    }
    return values;
}

void EinstellungenSchreiben(Merkkartelle& app)
{
    EinstellungenSchreiben(app, fileInWorkingDirectory(app));
}

void EinstellungenSchreiben(Merkkartelle& app, const QString& file)
{
    const std::vector<WriteValue> values = Einstellungsdatensaetze(app);
    writePositionalFile(file, values);
}

void EinstellungenLaden(Merkkartelle& app)
{
    distribute(app, LoadPath::Session, {});
}

void EinstellungenBeimStart(Merkkartelle& app, const std::function<void()>& ordnungWiederherstellen)
{
    distribute(app, LoadPath::Start, ordnungWiederherstellen);
}

QString loadedSortColumn(int slot)
{
    const karte::Sortierplatz* platz = karte::sortierplatz(slot);
    return platz ? karte::text(platz->ladeSpalte) : QString();
}

}  // namespace mk
