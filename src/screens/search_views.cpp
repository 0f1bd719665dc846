#include "screens/search_views.h"

#include "screens/long_list.h"
#include "screens/view_builder.h"

#include <QFont>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

namespace {

FormWindow* dialogWindow() { return new FormWindow(nullptr, Qt::Dialog); }

QVBoxLayout* column(QWidget* window)
{
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 10);
    v->setSpacing(6);
    return v;
}

// A result list that may hold a million lines, named as its list box.
LongListView* longList(ViewBuilder& b, const QString& name)
{
    auto* list = new LongListView(b.window());
    list->setObjectName(name);
    list->setMinimumSize(420, 200);
    // The tab stops of the lines: a fixed-width font keeps the columns under each other.
    list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return list;
}

QHBoxLayout* buttonRow(ViewBuilder& b, std::initializer_list<const char*> left, std::initializer_list<const char*> right)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (const char* name : left)
        row->addWidget(b.make(QString::fromUtf8(name)));
    row->addStretch(1);
    for (const char* name : right) {
        QWidget* button = b.make(QString::fromUtf8(name));
        button->setMinimumWidth(96);
        row->addWidget(button);
    }
    return row;
}

}  // namespace

FormWindow* buildSchnellsuchenView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("Schnellsuchen"), window);
    auto* v = column(window);

    auto* entry = new QHBoxLayout;
    entry->addWidget(b.make(QStringLiteral("Label1")));
    entry->addWidget(b.make(QStringLiteral("Suchbegriff")), 1);
    v->addLayout(entry);

    auto* fields = b.make<QGroupBox>(QStringLiteral("Frame3D1"));
    auto* grid = new QGridLayout(fields);
    grid->setSpacing(4);
    for (int k = 1; k <= 29; ++k) {
        QWidget* button = b.make(QStringLiteral("Command1"), k);
        button->setMinimumWidth(110);
        grid->addWidget(button, (k - 1) / 4, (k - 1) % 4);
    }
    v->addWidget(fields, 1);
    v->addLayout(buttonRow(b, {}, {"abbruch"}));
    return window;
}

FormWindow* buildSuchergebnisView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("Suchergebnis"), window);
    auto* v = column(window);
    auto* head = b.make<QLabel>(QStringLiteral("Label1"));
    head->setStyleSheet(QStringLiteral("font-weight: bold"));
    v->addWidget(head);
    v->addWidget(longList(b, QStringLiteral("Suchergebnisliste")), 1);

    auto* foot = new QHBoxLayout;
    foot->addWidget(b.make(QStringLiteral("Check1")));
    foot->addSpacing(12);
    foot->addWidget(b.valueLabel(QStringLiteral("Label6"), 60));
    foot->addWidget(b.make(QStringLiteral("Label2")));
    foot->addWidget(b.make(QStringLiteral("Label7")));
    foot->addStretch(1);
    for (const char* name : {"ok", "Command1"}) {
        QWidget* button = b.make(QString::fromLatin1(name));
        button->setMinimumWidth(96);
        foot->addWidget(button);
    }
    v->addLayout(foot);
    window->setMinimumSize(520, 320);
    return window;
}

FormWindow* buildProcurarView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("Procurar"), window);
    auto* v = column(window);

    auto* head = new QHBoxLayout;
    head->addWidget(new QLabel(QStringLiteral("Suchtext:"), window));
    head->addWidget(b.valueLabel(QStringLiteral("Label3"), 120), 1);
    head->addWidget(new QLabel(QStringLiteral("Zeilen:"), window));
    head->addWidget(b.valueLabel(QStringLiteral("Label1"), 60));
    head->addWidget(new QLabel(QStringLiteral("Nr.:"), window));
    head->addWidget(b.valueLabel(QStringLiteral("Label2"), 60));
    v->addLayout(head);
    v->addWidget(longList(b, QStringLiteral("Suchergebnisliste")), 1);
    v->addLayout(buttonRow(b, {"Label4", "Label6"}, {"Command1", "Command2"}));
    window->setMinimumSize(520, 320);  // the list and its buttons follow down to this size
    return window;
}

FormWindow* buildGitterView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("Gitter"), window);
    window->setCentred(true);
    auto* v = column(window);

    auto* top = new QHBoxLayout;
    top->addWidget(b.make(QStringLiteral("Text1")), 1);
    top->addWidget(b.make(QStringLiteral("Command1")));
    top->addWidget(b.make(QStringLiteral("Command3")));
    top->addSpacing(12);
    top->addWidget(b.valueLabel(QStringLiteral("Label8"), 60));
    top->addWidget(b.make(QStringLiteral("Label2")));
    top->addWidget(b.valueLabel(QStringLiteral("Label5"), 24));
    v->addLayout(top);

    auto* body = new QHBoxLayout;
    auto* grid = new LongGridView(window);
    grid->setObjectName(QStringLiteral("grid1"));
    grid->setMinimumSize(640, 280);
    body->addWidget(grid, 1);
    auto* side = new QVBoxLayout;
    side->addWidget(b.make(QStringLiteral("Command2")));
    side->addStretch(1);
    body->addLayout(side);
    v->addLayout(body, 1);
    v->addWidget(b.make(QStringLiteral("Label1")));  // the stop signal never shows
    return window;
}

FormWindow* buildSelektierungView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("Selektierung"), window);
    auto* v = column(window);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(10);
    auto* left = new QVBoxLayout;
    left->addWidget(b.make(QStringLiteral("Label1")));
    QWidget* fields = b.make(QStringLiteral("Datenfelder"));
    fields->setMinimumSize(170, 240);
    left->addWidget(fields, 1);
    columns->addLayout(left);

    auto* right = new QVBoxLayout;
    auto* compose = new QGridLayout;
    compose->addWidget(new QLabel(QStringLiteral("Feld:"), window), 0, 0);
    compose->addWidget(b.valueLabel(QStringLiteral("Label4"), 140), 0, 1);
    QWidget* operators = b.make(QStringLiteral("Operatoren"));
    operators->setMaximumHeight(90);
    compose->addWidget(operators, 1, 0, 1, 2);
    compose->addWidget(b.make(QStringLiteral("Wert1")), 2, 0, 1, 2);
    compose->addWidget(b.make(QStringLiteral("Label6")), 3, 0);
    compose->addWidget(b.valueLabel(QStringLiteral("Label5"), 200), 3, 1);
    right->addLayout(compose);
    auto* adding = new QHBoxLayout;
    adding->addWidget(b.make(QStringLiteral("Command2")));
    adding->addWidget(b.make(QStringLiteral("Löschen")));
    adding->addStretch(1);
    adding->addWidget(b.make(QStringLiteral("Check1")));
    adding->addWidget(b.make(QStringLiteral("Label3")));
    right->addLayout(adding);
    right->addWidget(b.make(QStringLiteral("Label2")));
    QWidget* conditions = b.make(QStringLiteral("Abfragetexte"));
    conditions->setMinimumSize(320, 140);
    right->addWidget(conditions, 1);
    columns->addLayout(right, 1);
    v->addLayout(columns, 1);

    auto* info = b.make<QLabel>(QStringLiteral("SSPanel1"));
    info->setMinimumHeight(36);
    v->addWidget(info);
    v->addLayout(buttonRow(b, {"Command1"}, {"ok", "abbruch"}));
    return window;
}

FormWindow* buildSearchView(FormRegistry& forms)
{
    auto* window = dialogWindow();
    ViewBuilder b(forms, QStringLiteral("search"), window);
    auto* v = column(window);

    auto* top = new QHBoxLayout;
    top->addWidget(b.make(QStringLiteral("Label7")));
    top->addWidget(b.make(QStringLiteral("Text2")), 1);
    top->addWidget(b.make(QStringLiteral("Command6")));
    top->addWidget(b.make(QStringLiteral("Command3")));
    v->addLayout(top);

    auto* body = new QHBoxLayout;
    auto* options = new QGroupBox(QStringLiteral("Feld"), window);
    auto* grid = new QGridLayout(options);
    grid->setSpacing(2);
    for (int k = 0; k <= 30; ++k)
        grid->addWidget(b.make(QStringLiteral("Option3D1"), k), k % 16, k / 16);
    body->addWidget(options);
    auto* hits = new QVBoxLayout;
    QWidget* list = longList(b, QStringLiteral("List1"));
    hits->addWidget(list, 1);
    hits->addWidget(b.make(QStringLiteral("Text1")));
    body->addLayout(hits, 1);
    v->addLayout(body, 1);

    auto* status = new QHBoxLayout;
    status->addWidget(b.valueLabel(QStringLiteral("Label1"), 180), 1);
    status->addWidget(new QLabel(QStringLiteral("Karten:"), window));
    status->addWidget(b.valueLabel(QStringLiteral("Label2"), 60));
    status->addWidget(new QLabel(QStringLiteral("Treffer:"), window));
    status->addWidget(b.valueLabel(QStringLiteral("Label3"), 60));
    status->addWidget(b.valueLabel(QStringLiteral("Label4"), 60));
    status->addWidget(b.make(QStringLiteral("Label32")));
    status->addWidget(b.make(QStringLiteral("Command5")));
    v->addLayout(status);
    return window;
}

}  // namespace mk
