#include "screens/cidadefrm_view.h"

#include "screens/view_builder.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace mk {

FormWindow* buildCidadefrmView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Cidadefrm"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 10);
    v->setSpacing(6);

    auto* lists = new QHBoxLayout;
    QWidget* list = b.make(QStringLiteral("List1"));
    list->setMinimumSize(260, 220);
    lists->addWidget(list, 1);
    lists->addWidget(b.make(QStringLiteral("List3")));  // the shadow list never shows
    v->addLayout(lists, 1);

    // The entry box shows after "Hinzufügen"; the button then says "OK".
    auto* entry = new QHBoxLayout;
    entry->addWidget(b.make(QStringLiteral("Label1")));
    entry->addWidget(b.make(QStringLiteral("Text1")), 1);
    v->addLayout(entry);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (const char* name : {"Command1", "Command3", "Command4", "Command5"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command2")));
    v->addLayout(buttons);

    // The file name and the column travel with the form but are not shown.
    v->addWidget(b.make(QStringLiteral("Label2")));
    v->addWidget(b.make(QStringLiteral("Label3")));
    return window;
}

}  // namespace mk
