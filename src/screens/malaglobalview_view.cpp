// "Merkkartelle - Global Manager": the path of the current row, the list of databases, the
// buttons and the status line.

#include "screens/settings_views.h"

#include "screens/view_builder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

FormWindow* buildMalaglobalviewView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("malaglobalview"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 6);
    v->setSpacing(6);

    v->addWidget(b.valueLabel(QStringLiteral("Label3"), 300));
    QWidget* list = b.make(QStringLiteral("Schnelleauswahlliste"));
    list->setMinimumSize(420, 200);
    v->addWidget(list, 1);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (const char* name : {"SSCommand1", "SSCommand2", "Command1"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D1")));
    v->addLayout(buttons);
    v->addWidget(b.make(QStringLiteral("Panel3D1")));
    b.make(QStringLiteral("Label1"))->hide();  // the path handed back, never shown
    return window;
}

}  // namespace mk
