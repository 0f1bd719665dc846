// "Verlauf": the list of visited cards with its buttons, counters and status line.
// "Conections": the ten slots of a card beside their entry boxes, and the browser that
// shows when the form is enlarged.

#include "screens/history_views.h"

#include "forms/aform.h"
#include "screens/view_builder.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace mk {

namespace {

// The lines of the history are columns parted by tabs: each column starts at its own place,
// whatever the width of the text before it.
class TabColumns : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem o = option;
        initStyleOption(&o, index);
        const QString text = o.text;
        o.text.clear();
        const QWidget* widget = option.widget;
        QStyle* style = widget ? widget->style() : nullptr;
        if (style)
            style->drawControl(QStyle::CE_ItemViewItem, &o, painter, widget);
        static const int widths[] = {130, 100, 180, 110};
        painter->save();
        painter->setPen(o.palette.color(option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
        int x = o.rect.left() + 4;
        const QStringList parts = text.split(QLatin1Char('\t'));
        for (int i = 0; i < parts.size(); ++i) {
            const bool last = i + 1 == parts.size();
            const int width = i < 4 && !last ? widths[i] : o.rect.right() - x;
            const QRect cell(x, o.rect.top(), std::max(width - 6, 0), o.rect.height());
            painter->drawText(cell, Qt::AlignLeft | Qt::AlignVCenter,
                              o.fontMetrics.elidedText(parts[i], Qt::ElideRight, cell.width()));
            x += width;
        }
        painter->restore();
    }
};

}  // namespace

FormWindow* buildReplayView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("replay"), window);
    window->setProperty("mkStatusLine", QStringLiteral("Panel3D1"));
    auto* v = new QVBoxLayout(window);
    v->setContentsMargins(10, 6, 10, 6);
    v->setSpacing(6);
    v->setMenuBar(b.menuBar());

    auto* counters = new QHBoxLayout;
    counters->addWidget(new QLabel(QStringLiteral("Einträge:"), window));
    counters->addWidget(b.valueLabel(QStringLiteral("Label1"), 50));
    counters->addSpacing(12);
    counters->addWidget(new QLabel(QStringLiteral("Laufende Nr.:"), window));
    counters->addWidget(b.valueLabel(QStringLiteral("Label2"), 70));
    counters->addStretch(1);
    v->addLayout(counters);

    auto* list = b.make<QListWidget>(QStringLiteral("Schnelleauswahlliste"));
    list->setItemDelegate(new TabColumns(list));
    list->setMinimumSize(580, 220);
    v->addWidget(list, 1);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (const char* name : {"Command3D1", "Command3D5", "Command3D2", "Command5", "Command3d4"})
        buttons->addWidget(b.make(QString::fromLatin1(name)));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command3D6")));
    v->addLayout(buttons);
    v->addWidget(b.make(QStringLiteral("Panel3D1")));
    return window;
}

namespace {

// The slots: the number typed for a slot, the name and the number it holds.
QWidget* slotTable(ViewBuilder& b)
{
    auto* box = new QWidget(b.window());
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(3);
    const char* heads[] = {"", "Nr. eingeben", "Verknüpfte Adresse", "Laufende Nr."};
    for (int c = 0; c < 4; ++c)
        grid->addWidget(new QLabel(QString::fromUtf8(heads[c]), box), 0, c);
    for (int i = 1; i <= 10; ++i) {
        grid->addWidget(new QLabel(QStringLiteral("%1.").arg(i), box), i, 0);
        QWidget* entry = b.make(QStringLiteral("Suchtext"), i - 1);
        entry->setFixedWidth(80);
        grid->addWidget(entry, i, 1);
        QWidget* name = b.make(QStringLiteral("FeldA"), i);
        name->setMinimumWidth(240);
        grid->addWidget(name, i, 2);
        QWidget* number = b.make(QStringLiteral("feldB"), i);
        number->setFixedWidth(80);
        grid->addWidget(number, i, 3);
    }
    grid->setColumnStretch(2, 1);
    return box;
}

QWidget* browser(ViewBuilder& b)
{
    auto* frame = b.make<QGroupBox>(QStringLiteral("Frame1"));
    auto* v = new QVBoxLayout(frame);
    v->setSpacing(6);

    auto* find = new QHBoxLayout;
    find->addWidget(b.make(QStringLiteral("Text1")), 1);
    for (const char* name : {"Command2", "Command4", "Command3", "Command5"})
        find->addWidget(b.make(QString::fromLatin1(name)));
    v->addLayout(find);

    auto* options = new QGridLayout;
    options->setHorizontalSpacing(10);
    options->setVerticalSpacing(2);
    for (int i = 0; i < Aform::kSuchfelder; ++i)
        options->addWidget(b.make(QStringLiteral("SuchOption"), i), i / 5, i % 5);
    v->addLayout(options);

    auto* card = new QHBoxLayout;
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(6);
    fields->setVerticalSpacing(2);
    for (int i = 0; i < Aform::kInfofelder; ++i) {
        fields->addWidget(b.make(QStringLiteral("Infotitel"), i), i, 0);
        auto* value = b.make<QLabel>(QStringLiteral("Infolabel"), i);
        value->setFrameShape(QFrame::StyledPanel);
        value->setFrameShadow(QFrame::Sunken);
        value->setMinimumWidth(200);
        fields->addWidget(value, i, 1);
    }
    fields->setColumnStretch(1, 1);
    card->addLayout(fields, 1);
    QWidget* picture = b.make(QStringLiteral("Image1"));
    picture->setFixedSize(160, 160);
    card->addWidget(picture, 0, Qt::AlignTop);
    v->addLayout(card);

    auto* moves = new QHBoxLayout;
    for (const char* name : {"Command9", "Command10", "Command11", "Command12"}) {
        QWidget* button = b.make(QString::fromLatin1(name));
        button->setFixedWidth(44);
        moves->addWidget(button);
    }
    moves->addStretch(1);
    moves->addWidget(b.make(QStringLiteral("Command8")));
    v->addLayout(moves);
    v->addStretch(1);
    return frame;
}

}  // namespace

FormWindow* buildAformView(FormRegistry& forms)
{
    auto* window = new FormWindow(nullptr, Qt::Dialog);
    ViewBuilder b(forms, QStringLiteral("Aform"), window);
    auto* h = new QHBoxLayout(window);
    h->setContentsMargins(10, 10, 10, 10);
    h->setSpacing(12);

    auto* left = new QVBoxLayout;
    left->addWidget(slotTable(b));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(b.make(QStringLiteral("Command6")));
    buttons->addStretch(1);
    buttons->addWidget(b.make(QStringLiteral("Command7")));
    left->addLayout(buttons);
    left->addStretch(1);
    h->addLayout(left, 1);
    h->addWidget(browser(b), 1);

    // The slot in use and the browser's order travel with the form but are not shown.
    b.make(QStringLiteral("Label5"))->hide();
    b.make(QStringLiteral("Label6"))->hide();
    return window;
}

}  // namespace mk
