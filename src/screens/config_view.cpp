// "Einstellungen": the options on the left; presets, list columns and other texts on the
// right; colours and fonts below the options; the file buttons at the foot.

#include "screens/settings_views.h"

#include "screens/view_builder.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

namespace {

// A group box with a grid of caption and box pairs.
QGridLayout* pairsIn(QGroupBox* group)
{
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(8, 6, 8, 8);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(1, 1);
    return grid;
}

void addPair(ViewBuilder& b, QGridLayout* grid, int row, const QString& label, const QString& box,
             int boxIndex = -1, int labelIndex = -1)
{
    grid->addWidget(b.make(label, labelIndex), row, 0);
    grid->addWidget(b.make(box, boxIndex), row, 1);
}

}  // namespace

FormWindow* buildConfigView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("config"), window);
    window->setCentred(true);
    auto* outer = new QVBoxLayout(window);
    outer->setContentsMargins(10, 10, 10, 10);
    outer->setSpacing(8);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(10);
    outer->addLayout(columns, 1);

    // Left: the options, then colours and fonts.
    auto* left = new QVBoxLayout;
    auto* options = b.make<QGroupBox>(QStringLiteral("Frame1"));
    auto* optionList = new QVBoxLayout(options);
    optionList->setContentsMargins(8, 6, 8, 8);
    optionList->setSpacing(2);
    for (const char* name : {"SSCheck4", "SSCheck5", "SSCheck2", "SSCheck6", "SSCheck7", "SSCheck3", "SSCheck8",
                             "SSCheck1", "SSCheck9", "Check3D8", "SSCheck10", "Check3D3", "Check3D5",
                             "Check3D10", "Check3D11", "Check3D12", "SSCheck11"})
        optionList->addWidget(b.make(QString::fromLatin1(name)));
    auto* indented = new QHBoxLayout;
    indented->addSpacing(20);
    indented->addWidget(b.make(QStringLiteral("Check3D9")), 1);
    optionList->addLayout(indented);
    optionList->addWidget(b.make(QStringLiteral("Check3D13")));
    auto* unnamed = new QHBoxLayout;  // the two boxes without a caption
    unnamed->addWidget(b.make(QStringLiteral("Check3D6")));
    unnamed->addWidget(b.make(QStringLiteral("Check3D7")));
    unnamed->addStretch(1);
    optionList->addLayout(unnamed);
    optionList->addStretch(1);
    left->addWidget(options, 1);

    auto* colours = b.make<QGroupBox>(QStringLiteral("Frame4"));
    auto* colourGrid = new QGridLayout(colours);
    colourGrid->setContentsMargins(8, 6, 8, 8);
    colourGrid->setSpacing(6);
    colourGrid->addWidget(b.make(QStringLiteral("Label14")), 0, 0);
    colourGrid->addWidget(b.make(QStringLiteral("Command1")), 0, 1);
    colourGrid->addWidget(b.make(QStringLiteral("Command2")), 0, 2);
    colourGrid->addWidget(b.make(QStringLiteral("Command3")), 0, 3);
    colourGrid->addWidget(b.make(QStringLiteral("Label15")), 1, 0);
    colourGrid->addWidget(b.make(QStringLiteral("Command6")), 1, 1);
    auto* swatch = b.make<QLabel>(QStringLiteral("Label34"));
    swatch->setAlignment(Qt::AlignCenter);
    swatch->setMinimumHeight(22);
    swatch->setFrameShape(QFrame::Box);
    colourGrid->addWidget(swatch, 1, 2, 1, 2);
    colourGrid->addWidget(b.make(QStringLiteral("Command8")), 2, 1, 1, 1);
    colourGrid->addWidget(b.make(QStringLiteral("Command9")), 2, 2, 1, 2);
    b.make(QStringLiteral("Label16"))->hide();
    b.make(QStringLiteral("Label17"))->hide();
    left->addWidget(colours);
    columns->addLayout(left, 1);

    // Right: presets of a new card, the list columns, the other texts.
    auto* right = new QVBoxLayout;
    auto* presets = b.make<QGroupBox>(QStringLiteral("Frame2"));
    QGridLayout* presetGrid = pairsIn(presets);
    int row = 0;
    for (int i = 0; i <= 3; ++i)
        addPair(b, presetGrid, row++, QStringLiteral("prelabel"), QStringLiteral("prefeld"), i, i);
    const char* presetPairs[][2] = {{"Label1", "Text20"}, {"Label2", "Text21"}, {"Label3", "Text15"},
                                    {"Label4", "Text16"}, {"Label5", "Text17"}};
    for (const auto& pair : presetPairs)
        addPair(b, presetGrid, row++, QString::fromLatin1(pair[0]), QString::fromLatin1(pair[1]));
    right->addWidget(presets);

    auto* lists = b.make<QGroupBox>(QStringLiteral("Frame3"));
    auto* listGrid = new QGridLayout(lists);
    listGrid->setContentsMargins(8, 6, 8, 8);
    listGrid->setHorizontalSpacing(8);
    const char* listPairs[][2] = {{"Label6", "Text12"}, {"Label7", "Text13"}, {"Label8", "Text14"}, {"Label9", "Text8"}};
    for (int i = 0; i < 4; ++i) {
        listGrid->addWidget(b.make(QString::fromLatin1(listPairs[i][0])), i / 2, (i % 2) * 2);
        QWidget* box = b.make(QString::fromLatin1(listPairs[i][1]));
        box->setMaximumWidth(60);
        listGrid->addWidget(box, i / 2, (i % 2) * 2 + 1);
    }
    listGrid->setColumnStretch(1, 1);
    listGrid->setColumnStretch(3, 1);
    right->addWidget(lists);

    auto* texts = new QGridLayout;
    texts->setHorizontalSpacing(8);
    texts->setVerticalSpacing(4);
    texts->addWidget(b.make(QStringLiteral("Label10")), 0, 0);
    texts->addWidget(b.make(QStringLiteral("Text1")), 0, 1);
    texts->addWidget(b.make(QStringLiteral("Label11")), 1, 0);
    texts->addWidget(b.make(QStringLiteral("Text2")), 1, 1);
    texts->addWidget(b.make(QStringLiteral("Label12")), 2, 0, 1, 2);
    texts->addWidget(b.make(QStringLiteral("Text9")), 3, 0, 1, 2);
    texts->addWidget(b.make(QStringLiteral("Label13")), 4, 0, 1, 2);
    QWidget* program = b.make(QStringLiteral("Text18"));
    program->setToolTip(QStringLiteral("Doppelklick: Programm auswählen"));
    texts->addWidget(program, 5, 0, 1, 2);
    texts->setColumnStretch(1, 1);
    right->addLayout(texts);
    right->addStretch(1);
    right->addWidget(b.make(QStringLiteral("Command7")));
    columns->addLayout(right, 1);

    // Foot: the file and the form.
    auto* foot = new QHBoxLayout;
    foot->addWidget(b.make(QStringLiteral("Command4")));
    foot->addWidget(b.make(QStringLiteral("Command5")));
    foot->addStretch(1);
    foot->addWidget(b.make(QStringLiteral("Command3d1")));
    outer->addLayout(foot);

    window->setMinimumWidth(720);
    return window;
}

}  // namespace mk
