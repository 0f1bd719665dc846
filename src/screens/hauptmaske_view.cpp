// The main mask: a tool row, an information row, the card's slots in two columns beside the
// type marks and the picture, the notes below them sharing their place with the four panels,
// and the status row with the clock.

#include "screens/icons.h"
#include "screens/view_builder.h"
#include "screens/views.h"

#include <QAbstractButton>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace mk {

namespace {

QFrame* separator(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

// A caption the layout adds for the reader; no control of the form.
QLabel* caption(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString());
    return label;
}

QAbstractButton* iconButton(ViewBuilder& b, const QString& name, int index = -1, const QString& icon = QString(),
                            int size = 30)
{
    auto* button = b.make<QAbstractButton>(name, index);
    if (!icon.isEmpty())
        button->setIcon(bundledIcon(icon));
    button->setIconSize(QSize(size - 10, size - 10));
    button->setFixedSize(size, size - 2);
    return button;
}

void tight(QLayout* layout, int margin = 4, int spacing = 4)
{
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
}

QWidget* toolRow(ViewBuilder& b)
{
    QFrame* row = b.container(QStringLiteral("Panel3D4"));
    auto* h = new QHBoxLayout(row);
    tight(h, 3);
    for (const char* name : {"NeueAdresse", "NeueAdresseAbbruch", "AdresseÄndern", "AdresseÄndernAbbruch",
                             "AdresseLöschen"})
        h->addWidget(b.make(QString::fromUtf8(name)));
    h->addWidget(separator(row));
    auto* search = b.make<QLineEdit>(QStringLiteral("Text1"));
    search->setMinimumWidth(160);
    search->setMaximumWidth(260);
    h->addWidget(search, 1);
    h->addWidget(b.make(QStringLiteral("NachAdresseSuchen")));
    h->addWidget(b.make(QStringLiteral("Command5")));
    h->addWidget(separator(row));
    // In browse state these four are selection, order, export and labels; editing swaps them
    // to cut, copy, paste and picture (their pictures come from the state).
    // They take no focus: a slot losing it would drop its selection before cut or copy.
    for (const char* name : {"Command3D23", "Command3D24", "Command3D25", "Command3D13"}) {
        QAbstractButton* button = iconButton(b, QString::fromLatin1(name), -1, QString(), 32);
        button->setFocusPolicy(Qt::NoFocus);
        h->addWidget(button);
    }
    h->addWidget(separator(row));
    auto* letters = b.make<QAbstractButton>(QStringLiteral("Command3D8"));
    letters->setIcon(bundledIcon(QStringLiteral("labels")));
    h->addWidget(letters);
    auto* dial = b.make<QAbstractButton>(QStringLiteral("Command3D3"));
    dial->setIcon(bundledIcon(QStringLiteral("dial")));
    h->addWidget(dial);
    h->addStretch(1);
    h->addWidget(separator(row));
    h->addWidget(b.make(QStringLiteral("Command3D1")));
    h->addWidget(iconButton(b, QStringLiteral("SSCommand1"), -1, QStringLiteral("exit"), 32));
    return row;
}

QWidget* infoRow(ViewBuilder& b)
{
    QFrame* row = b.container(QStringLiteral("Panel3D1"));
    auto* h = new QHBoxLayout(row);
    tight(h, 3);
    for (const char* name : {"Command3D16", "EinzNachvorne", "EinznachHinten", "Command3D15"}) {
        QWidget* move = b.make(QString::fromLatin1(name));
        move->setFixedWidth(36);
        h->addWidget(move);
    }
    h->addWidget(b.valueLabel(QStringLiteral("Label8"), 150));
    h->addWidget(caption(QStringLiteral("Nr."), row));
    h->addWidget(b.valueLabel(QStringLiteral("LaufendeNummer"), 60));
    h->addWidget(b.valueLabel(QStringLiteral("datalabel"), 44));
    h->addWidget(b.valueLabel(QStringLiteral("dataold"), 44));
    h->addWidget(separator(row));
    h->addWidget(caption(QStringLiteral("Sortiert nach:"), row));
    h->addWidget(b.valueLabel(QStringLiteral("SortiertNach"), 110));
    h->addWidget(b.valueLabel(QStringLiteral("Label5"), 44));
    h->addWidget(b.valueLabel(QStringLiteral("currentindex"), 26));
    h->addWidget(separator(row));
    h->addWidget(b.make(QStringLiteral("Selektiert")));
    h->addWidget(b.make(QStringLiteral("Label18")));
    h->addWidget(b.make(QStringLiteral("Label19")), 1);
    h->addWidget(b.make(QStringLiteral("Label12")));
    h->addWidget(b.make(QStringLiteral("InfoTipo")));
    h->addWidget(b.valueLabel(QStringLiteral("Label9"), 80));
    h->addWidget(b.make(QStringLiteral("Command9")));
    h->addWidget(b.make(QStringLiteral("Command10")));
    return row;
}

// The card's slots: two columns of caption and box. Slot 16 (the picture path) sits beside
// the caption "Bild:" (beschreibung 23), the party beside "Partei:" (beschreibung 24).
QWidget* slotColumns(ViewBuilder& b, QWidget* parent)
{
    auto* area = new QWidget(parent);
    auto* grid = new QGridLayout(area);
    tight(grid, 2, 3);
    grid->setHorizontalSpacing(6);
    const int left[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const int right[] = {12, 13, 14, 15, 17, 18, 19, 20, 21, 22};
    int row = 0;
    for (int slot : left) {
        grid->addWidget(b.make(QStringLiteral("beschreibung"), slot), row, 0);
        grid->addWidget(b.make(QStringLiteral("feld"), slot), row++, 1);
    }
    row = 0;
    for (int slot : right) {
        grid->addWidget(b.make(QStringLiteral("beschreibung"), slot), row, 2);
        grid->addWidget(b.make(QStringLiteral("feld"), slot), row++, 3);
    }
    grid->addWidget(b.make(QStringLiteral("beschreibung"), 23), row, 2);
    auto* picturePath = new QHBoxLayout;
    picturePath->setSpacing(2);
    picturePath->addWidget(b.make(QStringLiteral("feld"), 16), 1);
    picturePath->addWidget(iconButton(b, QStringLiteral("Command11"), -1, QStringLiteral("picture"), 24));
    picturePath->addWidget(iconButton(b, QStringLiteral("SSCommand11"), -1, QStringLiteral("program"), 24));
    grid->addLayout(picturePath, row++, 3);
    grid->addWidget(b.make(QStringLiteral("beschreibung"), 24), row, 2);
    grid->addWidget(b.make(QStringLiteral("Partido")), row, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(12, 1);
    return area;
}

// The seven type marks, each with its one-click filter and the box that names it.
QWidget* typeMarks(ViewBuilder& b, QWidget* parent)
{
    auto* box = new QFrame(parent);
    box->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(box);
    tight(grid, 4, 2);
    for (int i = 0; i <= 6; ++i) {
        grid->addWidget(iconButton(b, QStringLiteral("Selector"), i, QStringLiteral("select"), 22), i, 0);
        grid->addWidget(b.make(QStringLiteral("Typenliste"), i), i, 1);
        QWidget* name = b.make(QStringLiteral("Text%1").arg(i + 2));
        name->setMinimumWidth(90);
        grid->addWidget(name, i, 2);
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("Command6")));
    buttons->addWidget(b.make(QStringLiteral("Command2")));
    grid->addLayout(buttons, 7, 0, 1, 3);
    grid->setRowStretch(8, 1);
    return box;
}

QWidget* picturePanel(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("Panel3D2"));
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setMinimumSize(170, 150);
    // An empty frame reads as the place of the card's picture.
    panel->setBackgroundRole(QPalette::Base);
    panel->setAutoFillBackground(true);
    auto* v = new QVBoxLayout(panel);
    tight(v, 3, 2);
    for (const char* name : {"Image1", "Image2", "Picture2", "prever"})
        v->addWidget(b.make(QString::fromLatin1(name)), 1);
    auto* sizes = new QHBoxLayout;
    sizes->addWidget(b.make(QStringLiteral("Label16")), 1);
    sizes->addWidget(b.make(QStringLiteral("Label32")));
    sizes->addWidget(b.make(QStringLiteral("Label33")));
    v->addLayout(sizes);
    return panel;
}

QWidget* bankPanel(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("Bankverbindung"));
    auto* grid = new QGridLayout(panel);
    tight(grid, 6, 4);
    grid->addWidget(b.make(QStringLiteral("beschreibungbank"), 0), 0, 0);
    grid->addWidget(b.make(QStringLiteral("feldbank"), 0), 0, 1);
    grid->addWidget(b.make(QStringLiteral("beschreibungbank"), 1), 0, 2);
    grid->addWidget(b.make(QStringLiteral("feldbank"), 1), 0, 3, 1, 3);
    grid->addWidget(b.make(QStringLiteral("beschreibungbank"), 2), 1, 0);
    grid->addWidget(b.make(QStringLiteral("feldbank"), 2), 1, 1, 1, 5);
    const struct {
        const char* label;
        const char* box;
        const char* play;
        const char* remove;
        const char* icon;
    } media[] = {{"Label1", "Text9", "SSCommand4", "SSCommand8", "sound"},
                 {"Label13", "Text10", "SSCommand6", "SSCommand9", "video"},
                 {"Label15", "Text11", nullptr, nullptr, nullptr}};
    int row = 2;
    for (const auto& m : media) {
        grid->addWidget(b.make(QString::fromLatin1(m.label)), row, 0);
        grid->addWidget(b.make(QString::fromLatin1(m.box)), row, 1, 1, m.play ? 3 : 5);
        if (m.play) {
            grid->addWidget(iconButton(b, QString::fromLatin1(m.play), -1, QString::fromLatin1(m.icon), 26), row, 4);
            grid->addWidget(iconButton(b, QString::fromLatin1(m.remove), -1, QStringLiteral("remove"), 26), row, 5);
        }
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(row, 1);
    return panel;
}

QWidget* phonesPanel(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("Morephones"));
    auto* grid = new QGridLayout(panel);
    tight(grid, 6, 4);
    const char* phones[] = {"tel1", "tel2", "tel3", "tel4"};
    for (int i = 0; i < 4; ++i) {
        grid->addWidget(b.make(QStringLiteral("TEL_LBL"), i), i / 2, (i % 2) * 2);
        grid->addWidget(b.make(QString::fromLatin1(phones[i])), i / 2, (i % 2) * 2 + 1);
    }
    grid->addWidget(b.make(QStringLiteral("TEL_LBL"), 4), 2, 0);
    grid->addWidget(b.make(QStringLiteral("Ramal")), 2, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(3, 1);
    return panel;
}

// E-mail, homepage and vehicle on the left with their mail and web buttons; the free user
// fields on the right.
QWidget* numbersPanel(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("Numbers"));
    auto* grid = new QGridLayout(panel);
    tight(grid, 6, 4);
    const char* sendButtons[] = {"SSCommand2", "SSCommand7", "SSCommand5"};
    for (int i = 0; i <= 3; ++i) {
        grid->addWidget(b.make(QStringLiteral("beschreibungnum"), i), i, 0);
        grid->addWidget(b.make(QStringLiteral("feldnum"), i), i, 1);
        if (i < 3)
            grid->addWidget(iconButton(b, QString::fromLatin1(sendButtons[i]), -1, QString(), 26), i, 2);
    }
    for (int i = 4; i <= 6; ++i) {
        grid->addWidget(b.make(QStringLiteral("beschreibungnum"), i), i - 4, 3);
        grid->addWidget(b.make(QStringLiteral("Text%1").arg(i + 8)), i - 4, 4);
    }
    grid->addWidget(b.make(QStringLiteral("beschreibungnum"), 7), 3, 3, Qt::AlignTop);
    grid->addWidget(b.make(QStringLiteral("Text15")), 3, 4, 3, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(5, 1);
    return panel;
}

QWidget* linksPanel(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("Conexted"));
    auto* v = new QVBoxLayout(panel);
    tight(v, 6, 3);
    auto* header = new QHBoxLayout;
    header->addWidget(b.make(QStringLiteral("Label14")));
    header->addStretch(1);
    header->addWidget(b.make(QStringLiteral("AssociarComOP")));
    header->addWidget(iconButton(b, QStringLiteral("SSCommand13"), -1, QStringLiteral("folder"), 26));
    v->addLayout(header);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(2);
    for (int i = 1; i <= 20; ++i) {
        const int column = (i - 1) / 7;
        const int row = (i - 1) % 7;
        QWidget* start = b.make(QStringLiteral("init"), i);
        start->setFixedWidth(30);
        grid->addWidget(start, row, column * 2);
        grid->addWidget(b.make(QStringLiteral("prog"), i), row, column * 2 + 1);
        grid->setColumnStretch(column * 2 + 1, 1);
    }
    v->addLayout(grid);
    v->addStretch(1);
    return panel;
}

// The notes and the four panels share one place: a stack whose shown page follows the
// Visible values of the panels (the binder chooses it).
QWidget* notesArea(ViewBuilder& b, QWidget* parent)
{
    auto* area = new QWidget(parent);
    auto* v = new QVBoxLayout(area);
    tight(v, 0, 2);
    auto* header = new QHBoxLayout;
    header->setSpacing(4);
    header->addWidget(b.make(QStringLiteral("beschreibung"), 16));
    header->addStretch(1);
    header->addWidget(b.make(QStringLiteral("Command1")));
    header->addWidget(b.make(QStringLiteral("Command3d4")));
    header->addWidget(b.make(QStringLiteral("Command4")));
    auto* links = b.make<QAbstractButton>(QStringLiteral("Command3D2"));
    links->setIcon(bundledIcon(QStringLiteral("conexted_shut")));
    header->addWidget(links);
    header->addWidget(b.make(QStringLiteral("Command3")));
    header->addWidget(iconButton(b, QStringLiteral("SSCommand3"), -1, QStringLiteral("zoom"), 28));
    v->addLayout(header);
    auto* stack = new QStackedWidget(area);
    stack->setObjectName(QStringLiteral("notesStack"));
    stack->addWidget(new QWidget(stack));  // shown when neither the notes nor a panel are
    stack->addWidget(b.make(QStringLiteral("Bemerkung")));
    stack->addWidget(bankPanel(b));
    stack->addWidget(phonesPanel(b));
    stack->addWidget(numbersPanel(b));
    stack->addWidget(linksPanel(b));
    v->addWidget(stack, 1);
    return area;
}

QWidget* mainArea(ViewBuilder& b)
{
    QFrame* panel = b.container(QStringLiteral("SSPanel2"));
    auto* grid = new QGridLayout(panel);
    tight(grid, 4, 6);
    grid->addWidget(slotColumns(b, panel), 0, 0);
    auto* side = new QHBoxLayout;
    side->setSpacing(6);
    side->addWidget(typeMarks(b, panel));
    side->addWidget(picturePanel(b), 1);
    grid->addLayout(side, 0, 1);
    grid->addWidget(notesArea(b, panel), 1, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->setRowStretch(1, 1);

    // The screen guard lies over the whole mask when it shows.
    auto* guard = b.make<PictureLabel>(QStringLiteral("Bildschutz"));
    guard->setParent(panel);
    auto* guardLayout = new QVBoxLayout(guard);
    guardLayout->addWidget(b.make(QStringLiteral("Image12")), 0, Qt::AlignCenter);
    coverParent(guard);
    return panel;
}

// Controls that only hold values or pictures for others: hidden by their state, kept here.
QWidget* holders(ViewBuilder& b, QWidget* parent)
{
    auto* holder = new QWidget(parent);
    auto* h = new QHBoxLayout(holder);
    h->setContentsMargins(0, 0, 0, 0);
    for (const char* name : {"Label2", "Label3", "Label4", "Label6", "Label7", "Label10", "Label17", "Label36",
                             "Curindex", "progname", "progLabel2", "progLabel4", "Image6", "Image7", "Image9",
                             "Image11", "Leerbild", "bildrecortar", "bildcopy", "bildpaste", "bildbild",
                             "bildselect", "bildordem", "bildwinword", "bildwinfile"})
        h->addWidget(b.make(QString::fromLatin1(name)));
    return holder;
}

QWidget* statusRow(ViewBuilder& b, QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* h = new QHBoxLayout(row);
    tight(h, 2, 4);
    QWidget* status = b.make(QStringLiteral("Panel3D3"));
    status->setMinimumWidth(300);
    h->addWidget(status, 1);
    h->addWidget(caption(QStringLiteral("Geändert:"), row));
    h->addWidget(b.valueLabel(QStringLiteral("Datum"), 80));
    h->addWidget(b.valueLabel(QStringLiteral("Zeit"), 64));
    h->addWidget(caption(QStringLiteral("Erstellt:"), row));
    h->addWidget(b.valueLabel(QStringLiteral("recdate"), 80));
    h->addWidget(b.valueLabel(QStringLiteral("rectime"), 64));
    QWidget* date = b.make(QStringLiteral("panel3d7"));
    date->setMinimumWidth(170);
    h->addWidget(date);
    QWidget* time = b.make(QStringLiteral("Panel3d5"));
    time->setMinimumWidth(70);
    h->addWidget(time);
    h->addWidget(holders(b, row));
    return row;
}

}  // namespace

FormWindow* buildHauptmaskeView(FormRegistry& forms)
{
    auto* window = new FormWindow;
    ViewBuilder b(forms, QStringLiteral("Hauptmaske"), window);
    auto* v = new QVBoxLayout(window);
    tight(v, 4, 3);
    v->setMenuBar(b.menuBar());
    v->addWidget(toolRow(b));
    v->addWidget(infoRow(b));
    v->addWidget(mainArea(b), 1);
    v->addWidget(statusRow(b, window));
    window->resize(1280, 800);
    return window;
}

}  // namespace mk
