#include "screens/printing_views.h"

#include "screens/view_builder.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>
#include <vector>

namespace mk {

namespace {

PrintDevices* drawingSource = nullptr;

// A form's drawing at screen scale: 15 twips make a pixel.
class DrawingWidget : public QWidget {
public:
    DrawingWidget(const QString& form, QWidget* parent) : QWidget(parent), form_(form)
    {
        setObjectName(QStringLiteral("Zeichnung"));
        setAutoFillBackground(true);
        QPalette p = palette();
        p.setColor(QPalette::Window, Qt::white);
        setPalette(p);
        setMinimumSize(794, 1123);  // an A4 sheet
        widgets().push_back(this);
    }
    ~DrawingWidget() override { std::erase(widgets(), this); }
    const QString& form() const { return form_; }
    static std::vector<DrawingWidget*>& widgets()
    {
        static std::vector<DrawingWidget*> all;
        return all;
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!drawingSource)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(1 / 15.0, 1 / 15.0);
        paintOps(painter, drawingSource->form(form_).ops);
    }

private:
    QString form_;
};

QWidget* drawing(const QString& form, QWidget* window)
{
    auto* scroll = new QScrollArea(window);
    scroll->setWidget(new DrawingWidget(form, scroll));
    scroll->setMinimumSize(600, 400);
    return scroll;
}

QLabel* caption(const char* text, QWidget* parent) { return new QLabel(QString::fromUtf8(text), parent); }

QHBoxLayout* row(std::initializer_list<QWidget*> widgets, bool stretch = true)
{
    auto* h = new QHBoxLayout;
    h->setSpacing(6);
    for (QWidget* w : widgets)
        h->addWidget(w);
    if (stretch)
        h->addStretch(1);
    return h;
}

}  // namespace

void setDrawingSource(PrintDevices* devices) { drawingSource = devices; }

void repaintDrawing(const QString& form)
{
    for (DrawingWidget* w : DrawingWidget::widgets())
        if (w->form() == form)
            w->update();
}

// The sheet: geometry on the left, text lines and font in the middle, note block, frame
// and picture on the right; buttons and the status line below.
FormWindow* buildEtiquetView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("etiquet"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 8);
    v->setSpacing(8);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(10);

    auto* sheet = new QGroupBox(QStringLiteral("Etiketten"), window);
    auto* g = new QGridLayout(sheet);
    g->setVerticalSpacing(4);
    const char* lengths[][2] = {{"von links:", "Text5"}, {"von oben:", "Text6"}, {"Breite", "Text1"},
                                {"Höhe", "Text2"}, {"Vertikaler Abstand:", "dishor"}, {"Horizontaler Abstand:", "disver"},
                                {"Text Abstand X:", "Text3"}, {"Text Abstand Y:", "Text4"},
                                {"Abstand zwischen Text (mm)", "tabh"}};
    int r = 0;
    for (const auto& [label, name] : lengths) {
        g->addWidget(caption(label, sheet), r, 0);
        QWidget* box = b.make(QString::fromLatin1(name));
        box->setMaximumWidth(80);
        g->addWidget(box, r++, 1);
    }
    g->addWidget(caption("Horizontale Menge:", sheet), r, 0);
    g->addLayout(row({b.make(QStringLiteral("Quantidade")), b.make(QStringLiteral("HScroll2"))}, false), r++, 1);
    g->addWidget(caption("Vertikale Menge:", sheet), r, 0);
    g->addLayout(row({b.make(QStringLiteral("colunas")), b.make(QStringLiteral("HScroll1"))}, false), r++, 1);
    g->addWidget(caption("Anz.Etiketten::", sheet), r, 0);
    g->addWidget(b.make(QStringLiteral("Text12")), r++, 1);
    g->addWidget(caption("Bogenhöhe:", sheet), r, 0);
    g->addWidget(b.make(QStringLiteral("Text9")), r++, 1);
    g->addWidget(caption("Mar.rech.:", sheet), r, 0);
    g->addWidget(b.make(QStringLiteral("impbordavertical")), r++, 1);
    g->addWidget(caption("Mar.unten:", sheet), r, 0);
    g->addWidget(b.make(QStringLiteral("impborda")), r++, 1);
    auto* page = new QGroupBox(QStringLiteral("Maximale Druckfläche in cm"), sheet);
    page->setLayout(row({b.make(QStringLiteral("Text11")), b.make(QStringLiteral("Text14"))}));
    g->addWidget(page, r++, 0, 1, 2);
    columns->addWidget(sheet);

    auto* text = new QGroupBox(QStringLiteral("Etikettentext"), window);
    auto* t = new QVBoxLayout(text);
    t->addWidget(b.make(QStringLiteral("Label17")));
    for (int i = 0; i < 5; ++i)
        t->addWidget(b.make(QStringLiteral("Combo1"), i));
    t->addWidget(caption("Schrift der Felder", text));
    t->addLayout(row({b.make(QStringLiteral("Text8")), b.make(QStringLiteral("Text7")), b.make(QStringLiteral("Campoforecolor"))}));
    t->addLayout(row({b.make(QStringLiteral("Check1")), b.make(QStringLiteral("Check2"))}));
    t->addLayout(row({caption("Tel +", text), b.make(QStringLiteral("Text10")), caption("Cel +", text), b.make(QStringLiteral("Text15"))}));
    t->addLayout(row({caption("Seiten:", text), b.make(QStringLiteral("paginas"))}));
    t->addLayout(row({b.make(QStringLiteral("Label39")), caption("Aktueller Eintrag LFNR.:", text), b.make(QStringLiteral("Label38")),
                      b.make(QStringLiteral("Command3D12"))}));
    t->addStretch(1);
    columns->addWidget(text, 1);

    auto* more = new QVBoxLayout;
    auto* note = new QGroupBox(QStringLiteral("Bemerkung"), window);
    auto* n = new QVBoxLayout(note);
    n->addWidget(b.make(QStringLiteral("Check5")));
    n->addWidget(caption("Schrift der Bemerkung", note));
    n->addLayout(row({b.make(QStringLiteral("InfoFontname")), b.make(QStringLiteral("InfoFontsize")), b.make(QStringLiteral("Infoforecolor"))}));
    n->addLayout(row({b.make(QStringLiteral("Check10")), b.make(QStringLiteral("Check20")), b.make(QStringLiteral("Check6"))}));
    n->addLayout(row({b.make(QStringLiteral("Label22")), caption("Abstand der Bemerkung:", note), b.make(QStringLiteral("Text13"))}));
    more->addWidget(note);
    auto* frame = new QGroupBox(QStringLiteral("Rahmen und Bild"), window);
    auto* f = new QGridLayout(frame);
    f->addWidget(b.make(QStringLiteral("Check3")), 0, 0, 1, 2);
    f->addWidget(b.make(QStringLiteral("Check4")), 1, 0);
    f->addLayout(row({b.make(QStringLiteral("Label40")), caption("Rahmenfarbe:", frame), b.make(QStringLiteral("bordercolor"))}), 1, 1);
    f->addWidget(b.make(QStringLiteral("Check7")), 2, 0, 1, 2);
    const char* bars[][3] = {{"PosX", "Label32", "HScroll3"}, {"Zoom", "Label33", "HScroll4"}, {"PosY", "Label34", "HScroll5"}};
    int br = 3;
    for (const auto& [label, value, bar] : bars) {
        f->addWidget(caption(label, frame), br, 0);
        f->addLayout(row({b.make(QString::fromLatin1(value)), b.make(QString::fromLatin1(bar))}, false), br++, 1);
    }
    f->addLayout(row({b.make(QStringLiteral("Label36")), b.make(QStringLiteral("Label37")), b.make(QStringLiteral("Label41"))}), br, 0, 1, 2);
    more->addWidget(frame);
    more->addWidget(b.make(QStringLiteral("SSPanel1")));
    more->addStretch(1);
    columns->addLayout(more, 1);
    v->addLayout(columns, 1);

    auto* buttons = new QHBoxLayout;
    for (const char* name : {"Command1", "Command2", "Command3", "Command4"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Label31")));
    buttons->addWidget(b.make(QStringLiteral("Command3D2")));
    v->addLayout(buttons);
    v->addLayout(row({b.make(QStringLiteral("Panel3D1")), b.make(QStringLiteral("Panel3D2"))}, false));
    return window;
}

// The sheet at full scale, scrolled where the screen is smaller.
FormWindow* buildForm4View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Window);
    ViewBuilder b(forms, QStringLiteral("form4"), window);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(drawing(QStringLiteral("form4"), window), 1);
    v->addWidget(b.make(QStringLiteral("Image1")));
    window->resize(1000, 760);
    return window;
}

namespace {

// The list with its sort options beside it; the list's buttons and state labels below.
FormWindow* listenView(FormRegistry& forms, const QString& form, bool geburtstag)
{
    auto* window = new FormWindow(nullptr, Qt::Window);
    ViewBuilder b(forms, form, window);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 8);
    v->setSpacing(6);
    auto* top = new QHBoxLayout;
    QWidget* list = b.make(QStringLiteral("Schnelleauswahlliste"));
    list->setMinimumSize(420, 320);
    top->addWidget(list, 1);
    auto* side = new QVBoxLayout;
    QFrame* frame = b.container(QStringLiteral("Frame3D2"));
    auto* fl = new QVBoxLayout(frame);
    if (geburtstag) {
        fl->addWidget(b.make(QStringLiteral("Combo1")));
        fl->addLayout(row({caption("Monat:", frame), b.make(QStringLiteral("Text1")), b.make(QStringLiteral("Command2"))}));
        fl->addLayout(row({caption("Tag:", frame), b.make(QStringLiteral("Text2")), b.make(QStringLiteral("Command5"))}));
        fl->addLayout(row({caption("Jahr:", frame), b.make(QStringLiteral("Text3")), b.make(QStringLiteral("Command6"))}));
    } else {
        fl->addWidget(b.make(QStringLiteral("Label12")));
        fl->addWidget(b.make(QStringLiteral("ComboTypenliste")));
        QFrame* options = b.container(QStringLiteral("Panel3D1"));
        auto* og = new QGridLayout(options);
        og->setVerticalSpacing(1);
        int i = 0;
        for (const ControlRef& ref : forms.controls(form)) {
            if (ref.kind != ControlKind::OptionButton)
                continue;
            og->addWidget(b.make(ref.name, ref.index), i % 15, i / 15);
            ++i;
        }
        fl->addWidget(options);
        fl->addWidget(b.make(QStringLiteral("Label20")));
    }
    fl->addWidget(b.make(QStringLiteral("AZCHECK")));
    side->addWidget(frame);
    side->addStretch(1);
    top->addLayout(side);
    v->addLayout(top, 1);
    if (geburtstag) {
        v->addLayout(row({caption("Einträge", window), b.make(QStringLiteral("Label3")), b.make(QStringLiteral("Label4")),
                          b.make(QStringLiteral("Label9"))}));
    } else {
        v->addLayout(row({b.make(QStringLiteral("Label3")), b.make(QStringLiteral("Label4")), b.make(QStringLiteral("noat1")),
                          b.make(QStringLiteral("Label5")), b.make(QStringLiteral("Label15")), b.make(QStringLiteral("Label17")),
                          b.make(QStringLiteral("Label18")), b.make(QStringLiteral("Label19")), b.make(QStringLiteral("Label9")),
                          b.make(QStringLiteral("Label14")), b.make(QStringLiteral("Label7")), b.make(QStringLiteral("Label10")),
                          b.make(QStringLiteral("Label11"))}));
        v->addLayout(row({b.make(QStringLiteral("Command1")), b.make(QStringLiteral("Command3")), b.make(QStringLiteral("Command4")),
                          b.make(QStringLiteral("Check1")), b.make(QStringLiteral("Command2")), b.make(QStringLiteral("SSCommand1"))}));
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("Command3d4")));
    buttons->addWidget(b.make(QStringLiteral("Command3D3")));
    buttons->addWidget(b.make(QStringLiteral("Command3D2")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D1")));
    v->addLayout(buttons);
    window->resize(900, 560);
    return window;
}

}  // namespace

FormWindow* buildMalaView(FormRegistry& forms) { return listenView(forms, QStringLiteral("mala"), false); }
FormWindow* buildMalaspView(FormRegistry& forms) { return listenView(forms, QStringLiteral("malasp"), true); }

// The control window: range, buttons, page and status; the preview below.
FormWindow* buildMalaviewView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Window);
    ViewBuilder b(forms, QStringLiteral("malaview"), window);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(8, 8, 8, 6);
    v->addLayout(row({b.make(QStringLiteral("Command5")), b.make(QStringLiteral("Command6")), b.make(QStringLiteral("Label7")),
                      caption("Ab:", window), b.make(QStringLiteral("Text1")), caption("Anzahl:", window),
                      b.make(QStringLiteral("Text2")), b.make(QStringLiteral("Label6"))}));
    v->addLayout(row({b.make(QStringLiteral("Command1")), b.make(QStringLiteral("Command4")), b.make(QStringLiteral("Command2")),
                      caption("Seite:", window), b.make(QStringLiteral("Label1")), b.make(QStringLiteral("Label2")),
                      b.make(QStringLiteral("Label3")), b.make(QStringLiteral("Command3"))}));
    v->addWidget(drawing(QStringLiteral("malaview"), window), 1);
    v->addWidget(b.make(QStringLiteral("Panel3D1")));
    window->resize(900, 700);
    return window;
}

// Margins, factors and choices on the left, the page as it will print on the right.
FormWindow* buildForm6View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Window);
    ViewBuilder b(forms, QStringLiteral("Form6"), window);
    auto* h = new QHBoxLayout(window);
    h->setContentsMargins(10, 10, 10, 10);
    auto* side = new QGridLayout;
    int r = 0;
    const char* bars[][3] = {{"Oberer Rand:", "Text2", "HScroll2"}, {"Linker Rand:", "Text3", "HScroll3"},
                             {"Faktor:", "Label3", "HScroll1"}, {"Bild:", "Label4", "HScroll4"}};
    for (const auto& [label, value, bar] : bars) {
        side->addWidget(caption(label, window), r, 0);
        side->addWidget(b.make(QString::fromLatin1(value)), r, 1);
        side->addWidget(b.make(QString::fromLatin1(bar)), r++, 2);
    }
    side->addLayout(row({b.make(QStringLiteral("Command1")), b.make(QStringLiteral("Command7"))}), r++, 0, 1, 3);
    side->addLayout(row({b.make(QStringLiteral("impinf")), b.make(QStringLiteral("Impsoc"))}), r++, 0, 1, 3);
    side->addLayout(row({b.make(QStringLiteral("Command5")), b.make(QStringLiteral("Command2")), b.make(QStringLiteral("Command6"))}), r++, 0, 1, 3);
    side->addLayout(row({b.make(QStringLiteral("Command8")), b.make(QStringLiteral("Label6"))}), r++, 0, 1, 3);
    side->setRowStretch(r++, 1);
    side->addLayout(row({b.make(QStringLiteral("Command4")), b.make(QStringLiteral("Command3"))}), r, 0, 1, 3);
    h->addLayout(side);
    h->addWidget(drawing(QStringLiteral("Form6"), window), 1);
    window->resize(1100, 760);
    return window;
}

}  // namespace mk
