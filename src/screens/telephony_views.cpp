// The telephony forms. The dialer: number and name on top, the card's numbers beside the
// keypad, the big Abrir button with the status line, the modem buttons below. The modem
// configuration: line settings and ports, the command texts in two columns, the options.

#include "screens/telephony_views.h"

#include "screens/view_builder.h"

#include <QAbstractButton>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

namespace {

// A titled box around part of a form; the title is ours, the controls are the form's.
QGroupBox* box(const char* title)
{
    return new QGroupBox(QString::fromUtf8(title));
}

}  // namespace

FormWindow* buildDialerView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("DIALER"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 6);
    v->setSpacing(8);

    // The drag panels frame the number and the status.
    QFrame* top = b.container(QStringLiteral("Panel3D1"));
    auto* topGrid = new QGridLayout(top);
    topGrid->setContentsMargins(6, 6, 6, 6);
    topGrid->addWidget(new QLabel(QStringLiteral("Nummer:")), 0, 0);
    QWidget* nummer = b.make(QStringLiteral("Text6"));
    QFont big = nummer->font();
    big.setPointSize(big.pointSize() + 4);
    big.setBold(true);
    nummer->setFont(big);
    nummer->setMinimumWidth(260);
    topGrid->addWidget(nummer, 0, 1);
    topGrid->addWidget(b.make(QStringLiteral("Text2")), 0, 2);
    topGrid->addWidget(new QLabel(QStringLiteral("Name:")), 1, 0);
    topGrid->addWidget(b.make(QStringLiteral("Text1")), 1, 1, 1, 2);
    topGrid->setColumnStretch(1, 1);
    v->addWidget(top);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(10);
    auto* cardNumbers = new QVBoxLayout;
    cardNumbers->setSpacing(3);
    for (int i = 0; i <= 6; ++i) {
        QWidget* button = b.make(QStringLiteral("Dialnumber"), i);
        button->setMinimumWidth(170);
        cardNumbers->addWidget(button);
    }
    cardNumbers->addWidget(b.make(QStringLiteral("SSPanel1")));
    cardNumbers->addStretch(1);
    middle->addLayout(cardNumbers, 1);

    auto* keypad = new QGridLayout;
    keypad->setSpacing(3);
    const int order[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0, 11};  // 1 2 3 / … / * 0 #
    for (int k = 0; k < 12; ++k) {
        QWidget* key = b.make(QStringLiteral("number"), order[k]);
        key->setFixedSize(44, 34);
        keypad->addWidget(key, k / 3, k % 3);
    }
    auto* editing = new QGridLayout;
    editing->setSpacing(3);
    const char* editingKeys[] = {"SSCommand1", "SSCommand3", "SSCommand2", "SSCommand4"};
    for (int k = 0; k < 4; ++k)
        editing->addWidget(b.make(QString::fromLatin1(editingKeys[k])), k / 2, k % 2);
    auto* keys = new QVBoxLayout;
    keys->addLayout(keypad);
    keys->addLayout(editing);
    keys->addStretch(1);
    middle->addLayout(keys);

    auto* line = new QVBoxLayout;
    line->setSpacing(4);
    auto* abrir = b.make<QAbstractButton>(QStringLiteral("Abrir"));
    abrir->setIconSize(QSize(56, 56));
    abrir->setMinimumSize(96, 80);
    line->addWidget(abrir, 0, Qt::AlignHCenter);
    QFrame* status = b.container(QStringLiteral("Panel3d5"));
    auto* statusGrid = new QFormLayout(status);
    statusGrid->setContentsMargins(6, 6, 6, 6);
    QWidget* label1 = b.make(QStringLiteral("Label1"));
    label1->setMinimumSize(190, 30);
    statusGrid->addRow(label1);
    statusGrid->addRow(QStringLiteral("Uhrzeit:"), b.valueLabel(QStringLiteral("Label2"), 70));
    statusGrid->addRow(QStringLiteral("Beginn:"), b.valueLabel(QStringLiteral("Label4"), 70));
    statusGrid->addRow(QStringLiteral("Dauer (s):"), b.valueLabel(QStringLiteral("Label5"), 70));
    statusGrid->addRow(QStringLiteral("Durchläufe:"), b.valueLabel(QStringLiteral("Label3"), 70));
    statusGrid->addRow(b.make(QStringLiteral("loopoff")));
    line->addWidget(status);
    line->addStretch(1);
    middle->addLayout(line);
    v->addLayout(middle, 1);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (const char* name : {"Command3D8", "Command3D9", "Command3D2"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D3")));
    v->addLayout(buttons);

    // The state the form keeps without showing it.
    for (const char* hidden : {"Label7", "Command1", "Command2", "Image1", "Image2", "Image4"})
        b.make(QString::fromLatin1(hidden))->hide();
    return window;
}

FormWindow* buildForm10View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Form10"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 10);
    v->setSpacing(8);
    const auto row = [&b](QFormLayout* form, int n) {
        form->addRow(b.make(QStringLiteral("Label%1").arg(n)), b.make(QStringLiteral("Text%1").arg(n)));
    };

    auto* top = new QHBoxLayout;
    QGroupBox* line = box("Schnittstelle");
    auto* lineForm = new QFormLayout(line);
    for (int n = 1; n <= 4; ++n)
        row(lineForm, n);
    top->addWidget(line, 1);
    QGroupBox* ports = box("Port");
    auto* portList = new QVBoxLayout(ports);
    for (const char* name : {"Option3D1", "Option3D2", "Option3D3", "Option3D4", "Option3d5"})
        portList->addWidget(b.make(QString::fromLatin1(name)));
    top->addWidget(ports);
    QGroupBox* dialling = box("Wahl");
    auto* dialList = new QVBoxLayout(dialling);
    for (const char* name : {"Check3D1", "Check3D2", "Check3D5", "Check3D4"})
        dialList->addWidget(b.make(QString::fromLatin1(name)));
    dialList->addStretch(1);
    top->addWidget(dialling);
    v->addLayout(top);

    auto* commands = new QHBoxLayout;
    QGroupBox* left = box("Befehle");
    auto* leftForm = new QFormLayout(left);
    for (int n : {21, 9, 5, 6, 7, 8, 16})
        row(leftForm, n);
    commands->addWidget(left, 1);
    QGroupBox* right = box("Lautsprecher und Wahlzeichen");
    auto* rightForm = new QFormLayout(right);
    for (int n : {11, 12, 13, 14, 15, 17, 18, 19, 20})
        row(rightForm, n);
    auto* speaker = new QHBoxLayout;
    for (const char* name : {"Option1", "Option2", "OPtion3"})
        speaker->addWidget(b.make(QString::fromLatin1(name)));
    rightForm->addRow(speaker);
    commands->addWidget(right, 1);
    v->addLayout(commands, 1);

    QGroupBox* test = box("Test");
    auto* testRow = new QHBoxLayout(test);
    testRow->addWidget(b.make(QStringLiteral("Label10")));
    testRow->addWidget(b.make(QStringLiteral("Text10")), 1);
    testRow->addWidget(b.make(QStringLiteral("Command1")));
    testRow->addSpacing(12);
    testRow->addWidget(new QLabel(QStringLiteral("Reset:")));
    testRow->addWidget(b.make(QStringLiteral("Command2")));
    v->addWidget(test);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("Command3")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command7")));
    v->addLayout(buttons);
    return window;
}

FormWindow* buildForm1View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Tool);
    ViewBuilder b(forms, QStringLiteral("Form1"), window);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(6, 6, 6, 6);
    QWidget* answers = b.make(QStringLiteral("Label1"));
    answers->setMinimumSize(260, 90);
    if (auto* label = qobject_cast<QLabel*>(answers)) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    v->addWidget(answers, 1);
    return window;
}

FormWindow* buildMalatelephoneView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("malatelephone"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 6);
    v->setSpacing(6);
    QWidget* list = b.make(QStringLiteral("Schnelleauswahlliste"));
    list->setMinimumSize(460, 240);
    v->addWidget(list, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QLabel(QStringLiteral("Anrufe:")));
    buttons->addWidget(b.valueLabel(QStringLiteral("Label3"), 50));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command1")));
    buttons->addWidget(b.make(QStringLiteral("Command2")));
    v->addLayout(buttons);
    v->addWidget(b.make(QStringLiteral("Panel3D1")));
    b.make(QStringLiteral("Label4"))->hide();
    return window;
}

FormWindow* buildFormtelView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Formtel"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 10, 10, 10);
    v->setSpacing(8);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    const auto field = [&](int n, int r, int c, int span = 1) {
        grid->addWidget(b.make(QStringLiteral("Label%1").arg(n)), r, c);
        grid->addWidget(b.make(QStringLiteral("Text%1").arg(n)), r, c + 1, 1, span);
    };
    field(1, 0, 0);
    field(7, 1, 0, 3);
    field(2, 2, 0, 3);
    field(3, 3, 0);
    field(5, 3, 2);
    field(4, 4, 0);
    field(6, 4, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    v->addLayout(grid);
    v->addStretch(1);
    auto* buttons = new QHBoxLayout;
    for (const char* name : {"Command2", "Command1"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addSpacing(12);
    buttons->addWidget(b.make(QStringLiteral("Command5")));
    buttons->addWidget(b.make(QStringLiteral("Command4")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3")));
    v->addLayout(buttons);
    return window;
}

}  // namespace mk
