#include "printing/print_preview.h"

#include "card/app_state.h"
#include "platform/text_files.h"
#include "printing/label_printing.h"

namespace mk {

namespace {

using M = Merkkartelle;

void druckflaecheZeichnen(M& app, Surface& s)
{
    const auto& e = app.etiquet;
    const double hoehe = Val(e.Text11.Text) * 567;
    const double breite = Val(e.Text14.Text) * 567;
    const double rechts = (Val(e.Text14.Text) - Val(e.impbordavertical.Text)) * 567;
    s.ForeColor = rgb(255, 0, 0);
    s.Line(0, 0, 0, hoehe);
    s.Line(rechts, 0, 0, hoehe);
    s.Line(0, 0, rechts, 0);
    s.Line(0, hoehe, breite, 0);
}

}  // namespace

void VorschauSchliessen(M& app) { unloadForm(app, app.form4); }

void VorschauZeichnen(M& app)
{
    auto& e = app.etiquet;
    if (Val(e.Text2.Text) > 29) {
        e.Text2.Text = QStringLiteral("29");
        VorschauSchliessen(app);
        return;
    }
    RecordingSurface& s = app.printing.form(QStringLiteral("form4"));
    s.beginDrawing(QStringLiteral("form4"));
    s.Cls();
    const Etikettenmasse m = EtikettenmasseLesen(e);
    for (int zeile = 1; zeile <= m.zeilen; ++zeile) {
        const long y = m.T + m.H * (zeile - 1) + m.GY * (zeile - 1);
        if (s.Height() < y)
            break;
        for (int c = 0; c < m.spalten; ++c) {
            const long x = m.W * c + m.L + m.GX * c;
            s.ForeColor = e.bordercolor.BackColor;
            if (e.Check4.checked()) {
                s.Line(x, y, 0, m.H);
                s.Line(x + m.W, y, 0, m.H);
                s.Line(x, y, m.W, 0);
                s.Line(x, y + m.H, m.W, 0);
            }
            druckflaecheZeichnen(app, s);
            s.ForeColor = e.bordercolor.BackColor;
            if (e.Check3.checked())
                s.Line(x, y + m.H, m.W + 19.1 * 567, 0);
            EtikettInhalt(app, s, m, x, y, Etikettenart::Vorschau);
            s.ForeColor = colour::Black;
            FeldschriftSetzen(app, s);
        }
    }
    if (app.printing.formChanged)
        app.printing.formChanged(QStringLiteral("form4"));
}

namespace {

void form4_Load(M& app)
{
    auto& f = app.form4;
    f.Left = 0;
    f.Top = 0;
    f.Width = int(app.printing.screenWidth);
    f.Height = int(app.printing.screenHeight);
}

void form4_KeyDown(M& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        VorschauSchliessen(app);
}

// The picture toggles between the full sheet and a small view of the card's image.
void Image1_Click(M& app)
{
    auto& f = app.form4;
    if (f.Width >= int(app.printing.screenWidth)) {
        f.Image1.Visible = true;
        f.Image1.Left = f.Image1.Top = 0;
        f.Width = int(f.Image1.Width * 1.25);
        f.Height = int(f.Image1.Height * 1.25);
        f.Image1.Width = f.Width;
        f.Image1.Height = f.Height;
    } else {
        f.Image1.Visible = false;
        f.Left = (int(app.printing.screenWidth) - f.Width) / 2;
        f.Top = (int(app.printing.screenHeight) - f.Height) / 2;
        f.Width = f.Image1.Width;
        f.Height = f.Image1.Height;
    }
}

void Image1_MouseUp(M& app, EventArgs& args)
{
    if (args.Button == vbRightButton) {
        VorschauSchliessen(app);
        return;
    }
    auto& f = app.form4;
    f.Left = f.Top = 0;
    f.Image1.Width = f.Width = app.Hauptmaske.Image1.Width;
    f.Image1.Height = f.Height = app.Hauptmaske.Image1.Height;
}

}  // namespace

void registerPreviewHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("form4");
    table.onForm(f, QStringLiteral("Load"), [](M& app, EventArgs&) { form4_Load(app); });
    table.onForm(f, QStringLiteral("Activate"), [](M& app, EventArgs&) { VorschauAuffrischen(app); });
    table.onForm(f, QStringLiteral("Paint"), [](M& app, EventArgs&) { VorschauAuffrischen(app); });
    table.onForm(f, QStringLiteral("KeyDown"), form4_KeyDown);
    table.on(f, QStringLiteral("Image1"), QStringLiteral("Click"), Image1_Click);
    table.on(f, QStringLiteral("Image1"), QStringLiteral("MouseUp"), Image1_MouseUp);
}

}  // namespace mk
