// The notice Message, the splash AboutBox and the order form Form3, and the choice of a view.

#include "screens/cidadefrm_view.h"
#include "screens/maintenance_views.h"
#include "screens/conversions.h"
#include "screens/form2_view.h"
#include "screens/printing_views.h"
#include "screens/history_views.h"
#include "screens/search_views.h"
#include "screens/settings_views.h"
#include "screens/telephony_views.h"
#include "screens/typenliste_view.h"
#include "screens/view_builder.h"
#include "screens/views.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mk {

// A borderless notice in the middle of the screen whose size follows its text.
FormWindow* buildMessageView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    ViewBuilder b(forms, QStringLiteral("Message"), window);
    window->setCentred(true);
    auto* outer = new QVBoxLayout(window);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSizeConstraint(QLayout::SetFixedSize);
    auto* border = new QFrame(window);
    border->setFrameShape(QFrame::Box);
    border->setLineWidth(2);
    outer->addWidget(border);
    auto* inner = new QVBoxLayout(border);
    inner->setContentsMargins(28, 18, 28, 18);
    auto* text = b.make<QLabel>(QStringLiteral("Label1"));
    text->setMinimumWidth(twipsToPixels(forms.form(QStringLiteral("Message")).Width) - 60);
    inner->addWidget(text);
    // The progress of long runs: the count, the disk the run works on, the bar and, for a
    // copy of cards, the count of the whole.
    inner->addWidget(b.make(QStringLiteral("Label3")));
    auto* progress = new QHBoxLayout;
    for (const char* name : {"Image1", "Image2"}) {
        QWidget* picture = b.make(QString::fromLatin1(name));
        picture->setFixedSize(32, 32);
        progress->addWidget(picture);
    }
    QWidget* bar = b.make(QStringLiteral("picAusgabe"));
    bar->setMinimumSize(220, 22);
    progress->addWidget(bar, 1);
    progress->addWidget(b.make(QStringLiteral("Label2")));
    inner->addLayout(progress);
    return window;
}

// The splash: the program's name and picture, the database, its folder and table, the
// progress bar Label5 whose width is the step counter, and the step's text.
FormWindow* buildAboutBoxView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("AboutBox"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(16, 12, 16, 14);
    v->setSpacing(6);

    auto* top = new QHBoxLayout;
    auto* titles = new QVBoxLayout;
    titles->addWidget(b.make(QStringLiteral("Label1")));
    titles->addWidget(b.make(QStringLiteral("Label8")));
    titles->addStretch(1);
    top->addLayout(titles, 1);
    QWidget* picture = b.make(QStringLiteral("Image3"));
    picture->setFixedSize(twipsToPixels(1800), twipsToPixels(1200));
    top->addWidget(picture);
    v->addLayout(top);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    const char* pairs[][2] = {{"Label2", "Label7"}, {"Label3", "Label10"}, {"Label4", "Label9"}};
    for (int row = 0; row < 3; ++row) {
        grid->addWidget(b.make(QString::fromLatin1(pairs[row][0])), row, 0);
        grid->addWidget(b.make(QString::fromLatin1(pairs[row][1])), row, 1);
    }
    grid->setColumnStretch(1, 1);
    v->addLayout(grid);
    v->addSpacing(8);

    // The bar runs in a track as wide as its last step.
    auto* track = new QFrame(window);
    track->setFrameShape(QFrame::StyledPanel);
    track->setFrameShadow(QFrame::Sunken);
    track->setFixedSize(twipsToPixels(7000) + 4, 17);
    auto* trackLayout = new QHBoxLayout(track);
    trackLayout->setContentsMargins(2, 2, 2, 2);
    QWidget* bar = b.make(QStringLiteral("Label5"));
    bar->setProperty("mkGeometry", QStringLiteral("width"));
    bar->setFixedHeight(13);
    trackLayout->addWidget(bar);
    trackLayout->addStretch(1);
    v->addWidget(track);
    v->addWidget(b.make(QStringLiteral("Label6")));
    window->setMinimumWidth(twipsToPixels(forms.form(QStringLiteral("AboutBox")).Width));
    return window;
}

// One option per sort slot in two columns, the direction ribbon and the close button.
FormWindow* buildForm3View(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Form3"), window);
    window->setCentred(true);
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(12, 10, 12, 10);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(3);
    int row = 0;
    for (const ControlRef& ref : forms.controls(QStringLiteral("Form3"))) {
        if (ref.kind != ControlKind::OptionButton)
            continue;
        grid->addWidget(b.make(ref.name, ref.index), row % 12, row / 12);
        ++row;
    }
    v->addLayout(grid);
    v->addSpacing(8);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("AZCHECK")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D1")));
    v->addLayout(buttons);
    return window;
}

FormWindow* buildView(FormRegistry& forms, const QString& form)
{
    const QString name = forms.form(form).Name;
    if (name == QLatin1String("Hauptmaske"))
        return buildHauptmaskeView(forms);
    if (name == QLatin1String("Message"))
        return buildMessageView(forms);
    if (name == QLatin1String("AboutBox"))
        return buildAboutBoxView(forms);
    if (name == QLatin1String("Form3"))
        return buildForm3View(forms);
    if (name == QLatin1String("config"))
        return buildConfigView(forms);
    if (name == QLatin1String("malaglobalview"))
        return buildMalaglobalviewView(forms);
    if (name == QLatin1String("Form2"))
        return buildForm2View(forms);
    if (name == QLatin1String("TypenlisteBenutzerdefiniert"))
        return buildTypenlisteBenutzerdefiniertView(forms);
    if (name == QLatin1String("Cidadefrm"))
        return buildCidadefrmView(forms);
    if (name == QLatin1String("etiquet"))
        return buildEtiquetView(forms);
    if (name == QLatin1String("form4"))
        return buildForm4View(forms);
    if (name == QLatin1String("mala"))
        return buildMalaView(forms);
    if (name == QLatin1String("malasp"))
        return buildMalaspView(forms);
    if (name == QLatin1String("malaview"))
        return buildMalaviewView(forms);
    if (name == QLatin1String("Form6"))
        return buildForm6View(forms);
    if (name == QLatin1String("replay"))
        return buildReplayView(forms);
    if (name == QLatin1String("Aform"))
        return buildAformView(forms);
    if (name == QLatin1String("DIALER"))
        return buildDialerView(forms);
    if (name == QLatin1String("Form10"))
        return buildForm10View(forms);
    if (name == QLatin1String("Form1"))
        return buildForm1View(forms);
    if (name == QLatin1String("malatelephone"))
        return buildMalatelephoneView(forms);
    if (name == QLatin1String("Formtel"))
        return buildFormtelView(forms);
    if (name == QLatin1String("Schnellsuchen"))
        return buildSchnellsuchenView(forms);
    if (name == QLatin1String("Suchergebnis"))
        return buildSuchergebnisView(forms);
    if (name == QLatin1String("Procurar"))
        return buildProcurarView(forms);
    if (name == QLatin1String("Gitter"))
        return buildGitterView(forms);
    if (name == QLatin1String("Selektierung"))
        return buildSelektierungView(forms);
    if (name == QLatin1String("search"))
        return buildSearchView(forms);
    if (name == QLatin1String("frmExport"))
        return buildFrmExportView(forms);
    if (name == QLatin1String("Form5"))
        return buildForm5View(forms);
    if (name == QLatin1String("senha"))
        return buildSenhaView(forms);
    return buildGenericView(forms, name);
}

}  // namespace mk
