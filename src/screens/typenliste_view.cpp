#include "screens/typenliste_view.h"

#include "screens/view_builder.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

FormWindow* buildTypenlisteBenutzerdefiniertView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("TypenlisteBenutzerdefiniert"), window);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(12, 10, 12, 10);
    v->setSpacing(10);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);

    auto* types = b.make<QGroupBox>(QStringLiteral("Frame3D1"));
    auto* typeBoxes = new QVBoxLayout(types);
    typeBoxes->setSpacing(4);
    for (int i = 0; i <= 6; ++i)
        typeBoxes->addWidget(b.make(QStringLiteral("Typenliste"), i));
    typeBoxes->addStretch(1);
    columns->addWidget(types);

    // Each option with the sentence that says what it lists below it.
    auto* modes = b.make<QGroupBox>(QStringLiteral("Frame3D2"));
    auto* modeLines = new QVBoxLayout(modes);
    modeLines->setSpacing(4);
    const char* const pairs[][2] = {{"BenutzertypenlisteOption1", "Label1"}, {"BenutzerTypenlisteOption2", "Label2"}};
    for (const auto& pair : pairs) {
        modeLines->addWidget(b.make(QString::fromLatin1(pair[0])));
        auto* text = b.make<QLabel>(QString::fromLatin1(pair[1]));
        text->setWordWrap(true);
        text->setMinimumWidth(170);
        text->setContentsMargins(20, 0, 0, 8);
        modeLines->addWidget(text);
    }
    modeLines->addStretch(1);
    columns->addWidget(modes, 1);
    v->addLayout(columns, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QWidget* ok = b.make(QStringLiteral("ok"));
    ok->setMinimumWidth(90);
    buttons->addWidget(ok);
    v->addLayout(buttons);
    return window;
}

}  // namespace mk
