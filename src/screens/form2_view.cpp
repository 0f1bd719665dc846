#include "screens/form2_view.h"

#include "screens/view_builder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace mk {

// A small dialog beside the mask: the names on the left, the boxes stretching to the right,
// the two buttons at the bottom right.
FormWindow* buildForm2View(FormRegistry& forms)
{
    const QString form = QStringLiteral("Form2");
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, form, window);
    window->setCentred(true);

    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(14, 12, 14, 12);
    v->setSpacing(10);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    for (int i = 0; i < 7; ++i) {
        auto* name = b.make<QLabel>(QStringLiteral("beschreibung"), i);
        auto* box = b.make<QLineEdit>(QStringLiteral("Text1"), i);
        name->setBuddy(box);
        box->setMinimumWidth(260);
        grid->addWidget(name, i, 0);
        grid->addWidget(box, i, 1);
    }
    grid->setColumnStretch(1, 1);
    v->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QWidget* ok = b.make(QStringLiteral("SSCommand1"));
    QWidget* cancel = b.make(QStringLiteral("SSCommand2"));
    ok->setMinimumWidth(90);
    cancel->setMinimumWidth(90);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    v->addLayout(buttons);

    window->setMinimumWidth(420);
    return window;
}

}  // namespace mk
