#include "screens/maintenance_views.h"

#include "forms/senha.h"
#include "screens/view_builder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

namespace {

QVBoxLayout* column(QWidget* window)
{
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 10);
    v->setSpacing(6);
    return v;
}

}  // namespace

// Columns of the table on the left, the chosen ones on the right, the move buttons between.
FormWindow* buildFrmExportView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("frmExport"), window);
    window->setCentred(true);
    auto* v = column(window);

    auto* lists = new QHBoxLayout;
    QWidget* source = b.make(QStringLiteral("Datenfelder"));
    source->setMinimumSize(200, 260);
    lists->addWidget(source, 1);
    auto* moves = new QVBoxLayout;
    moves->addStretch(1);
    for (const char* name : {"Übernehmen", "Rückgängig", "Command1", "Command2"})
        moves->addWidget(b.make(QString::fromUtf8(name)));
    moves->addStretch(1);
    lists->addLayout(moves);
    QWidget* chosen = b.make(QStringLiteral("DatenfelderExport"));
    chosen->setMinimumSize(200, 260);
    lists->addWidget(chosen, 1);
    v->addLayout(lists, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("Check3D1")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Export")));
    buttons->addWidget(b.make(QStringLiteral("Command3D1")));
    v->addLayout(buttons);
    QWidget* status = b.make(QStringLiteral("Infozeile"));
    status->setMinimumHeight(24);
    v->addWidget(status);
    return window;
}

// The banner above, the database and the target below it, the two buttons at the foot.
FormWindow* buildForm5View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Form5"), window);
    window->setCentred(true);
    auto* v = column(window);

    auto* top = new QHBoxLayout;
    top->addWidget(b.make(QStringLiteral("Label5")), 1);
    top->addWidget(b.valueLabel(QStringLiteral("Label4"), 70));
    v->addLayout(top);

    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->addWidget(b.make(QStringLiteral("Label3")), 0, 0);
    grid->addWidget(b.valueLabel(QStringLiteral("Label2"), 360), 0, 1, 1, 2);
    grid->addWidget(b.make(QStringLiteral("Label6")), 1, 0);
    grid->addWidget(b.make(QStringLiteral("Drive1")), 1, 1);
    grid->addWidget(b.make(QStringLiteral("Text3")), 1, 2);
    grid->addWidget(b.make(QStringLiteral("Label7")), 2, 0);
    grid->addWidget(b.make(QStringLiteral("Text2")), 2, 1, 1, 2);
    grid->addWidget(b.valueLabel(QStringLiteral("Label1"), 360), 3, 1, 1, 2);
    v->addLayout(grid);
    v->addStretch(1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D1")));
    buttons->addWidget(b.make(QStringLiteral("Command3D3")));
    v->addLayout(buttons);
    return window;
}

// The entry box above the on-screen keyboard: letters in rows of ten, then the digits and
// the signs, with the back key; the buttons of setting and deleting at the foot.
FormWindow* buildSenhaView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("senha"), window);
    window->setCentred(true);
    auto* v = column(window);

    auto* entry = new QHBoxLayout;
    entry->addWidget(b.make(QStringLiteral("Label5")));
    entry->addWidget(b.make(QStringLiteral("Label4")));
    entry->addWidget(b.make(QStringLiteral("Text2")), 1);
    entry->addWidget(b.make(QStringLiteral("MhState1")));
    v->addLayout(entry);

    auto* keys = new QGridLayout;
    keys->setSpacing(3);
    constexpr int kProZeile = 10;
    for (int i = 0; i < senha::kTasten; ++i) {
        QWidget* key = b.make(QStringLiteral("tecla"), i);
        key->setMinimumWidth(34);
        keys->addWidget(key, i / kProZeile, i % kProZeile);
    }
    keys->addWidget(b.make(QStringLiteral("SSCommand1")), senha::kTasten / kProZeile, 0, 1, 2);
    v->addLayout(keys);
    v->addWidget(b.make(QStringLiteral("infotec")));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("SSCommand2")));
    buttons->addStretch(1);
    for (const char* name : {"Command1", "Command3", "Command2"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    v->addLayout(buttons);

    // The stored word, its folder and the keyboard's mirror travel with the form unseen.
    for (const char* name : {"Label1", "Label3", "Label6"})
        v->addWidget(b.make(QString::fromLatin1(name)));
    return window;
}

}  // namespace mk
