#include "screens/widgets.h"

#include "screens/icons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>

namespace mk {

QString widgetName(const QString& name, int index)
{
    return index >= 0 ? QStringLiteral("%1(%2)").arg(name).arg(index) : name;
}

QString widgetName(const ControlRef& ref)
{
    return widgetName(ref.name, ref.index);
}

namespace {

QWidget* textWidget(const ControlRef& ref, QWidget* parent)
{
    if (ref.as<TextBox>().MultiLine) {
        auto* edit = new QPlainTextEdit(parent);
        edit->setTabChangesFocus(true);
        return edit;
    }
    return new QLineEdit(parent);
}

QWidget* richTextWidget(QWidget* parent)
{
    auto* edit = new QTextEdit(parent);
    edit->setAcceptRichText(false);
    edit->setTabChangesFocus(true);
    return edit;
}

QWidget* buttonWidget(const ControlRef& ref, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setCheckable(ref.as<Button>().Ribbon);
    button->setAutoDefault(false);
    return button;
}

QWidget* optionWidget(QWidget* parent)
{
    auto* option = new QRadioButton(parent);
    option->setAutoExclusive(false);  // the forms decide which option of a group is set
    return option;
}

QWidget* panelWidget(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setFrameShape(QFrame::StyledPanel);
    label->setFrameShadow(QFrame::Sunken);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(2);
    return label;
}

QWidget* gridWidget(QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    return table;
}

QWidget* scrollBarWidget(const ControlRef& ref, QWidget* parent)
{
    const Control& c = *ref.control;
    return new QScrollBar(c.Width >= c.Height ? Qt::Horizontal : Qt::Vertical, parent);
}

QWidget* widgetOfKind(const ControlRef& ref, QWidget* parent)
{
    switch (ref.kind) {
    case ControlKind::TextBox: return textWidget(ref, parent);
    case ControlKind::RichText: return richTextWidget(parent);
    case ControlKind::Label: {
        auto* label = new QLabel(parent);
        label->setTextFormat(Qt::PlainText);
        return label;
    }
    case ControlKind::Button: return buttonWidget(ref, parent);
    case ControlKind::CheckBox: return new QCheckBox(parent);
    case ControlKind::OptionButton: return optionWidget(parent);
    case ControlKind::ListBox: return new QListWidget(parent);
    case ControlKind::ComboBox: return new QComboBox(parent);
    case ControlKind::Panel: return panelWidget(parent);
    case ControlKind::Frame: return new QGroupBox(parent);
    case ControlKind::Image: return new PictureLabel(parent);
    case ControlKind::Grid: return gridWidget(parent);
    case ControlKind::ScrollBar: return scrollBarWidget(ref, parent);
    case ControlKind::Timer:
    case ControlKind::MenuItem: return nullptr;
    }
    return nullptr;
}

}  // namespace

QWidget* makeControlWidget(const ControlRef& ref, QWidget* parent)
{
    QWidget* widget = widgetOfKind(ref, parent);
    if (widget)
        widget->setObjectName(widgetName(ref));
    return widget;
}

// --- PictureLabel ---------------------------------------------------------------------------

PictureLabel::PictureLabel(QWidget* parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setMinimumSize(1, 1);
}

void PictureLabel::setPicture(const QString& picture)
{
    picture_ = picture;
    source_ = picturePixmap(picture);
    rescale();
}

void PictureLabel::setStretch(bool stretch)
{
    stretch_ = stretch;
    rescale();
}

QSize PictureLabel::sizeHint() const
{
    return QSize(64, 64);
}

QSize PictureLabel::minimumSizeHint() const
{
    return QSize(16, 16);
}

void PictureLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    rescale();
}

void PictureLabel::rescale()
{
    if (source_.isNull()) {
        clear();
        return;
    }
    const QSize room = contentsRect().size();
    if (room.isEmpty())
        return;
    const bool fits = source_.width() <= room.width() && source_.height() <= room.height();
    if (!stretch_ && fits) {
        setPixmap(source_);
        return;
    }
    setPixmap(source_.scaled(room, stretch_ ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio,
                             Qt::SmoothTransformation));
}

// --- FormWindow -----------------------------------------------------------------------------

FormWindow::FormWindow(QWidget* parent, Qt::WindowFlags flags) : QWidget(parent, flags) {}

void FormWindow::centre()
{
    QScreen* screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}

void FormWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (centred_)
        centre();
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (centred_ && isVisible())
        centre();
}

}  // namespace mk
