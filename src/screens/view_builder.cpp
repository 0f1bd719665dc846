#include "screens/view_builder.h"

#include "screens/conversions.h"

#include <QAction>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>
#include <map>
#include <set>

namespace mk {

ViewBuilder::ViewBuilder(FormRegistry& forms, const QString& form, QWidget* window)
    : forms_(forms), form_(forms.form(form).Name), window_(window)
{
    window_->setObjectName(form_);
}

QWidget* ViewBuilder::make(const QString& name, int index)
{
    return makeControlWidget(forms_.control(form_, name, index), window_);
}

QLabel* ViewBuilder::valueLabel(const QString& name, int minimumWidth)
{
    auto* label = make<QLabel>(name);
    label->setFrameShape(QFrame::StyledPanel);
    label->setFrameShadow(QFrame::Sunken);
    label->setMinimumWidth(minimumWidth);
    label->setMargin(1);
    return label;
}

QFrame* ViewBuilder::container(const QString& name, int index)
{
    const ControlRef ref = forms_.control(form_, name, index);
    auto* frame = new QFrame(window_);
    frame->setObjectName(widgetName(ref));
    return frame;
}

QMenuBar* ViewBuilder::menuBar()
{
    std::vector<ControlRef> items;
    std::set<QString> parents;
    for (const ControlRef& ref : forms_.controls(form_)) {
        if (ref.kind != ControlKind::MenuItem)
            continue;
        items.push_back(ref);
        parents.insert(ref.as<MenuItem>().Parent.toLower());
    }
    if (items.empty())
        return nullptr;
    auto* bar = new QMenuBar(window_);
    std::map<QString, QMenu*> menus;  // lower-case name -> its menu
    for (const ControlRef& ref : items) {
        const auto& item = ref.as<MenuItem>();
        auto holder = menus.find(item.Parent.toLower());
        QMenu* parentMenu = holder == menus.end() ? nullptr : holder->second;
        QWidget* owner = parentMenu ? static_cast<QWidget*>(parentMenu) : bar;
        if (parents.count(item.Name.toLower())) {
            auto* menu = new QMenu(item.Caption, owner);
            menu->menuAction()->setObjectName(widgetName(ref));
            parentMenu ? parentMenu->addMenu(menu) : bar->addMenu(menu);
            menus[item.Name.toLower()] = menu;
            continue;
        }
        auto* action = new QAction(item.Caption, owner);
        action->setObjectName(widgetName(ref));
        parentMenu ? parentMenu->addAction(action) : bar->addAction(action);
    }
    return bar;
}

namespace {

class Cover : public QObject {
public:
    Cover(QWidget* overlay) : QObject(overlay), overlay_(overlay) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize && watched == overlay_->parentWidget())
            overlay_->setGeometry(overlay_->parentWidget()->rect());
        return false;
    }

private:
    QWidget* overlay_;
};

bool isContainer(ControlKind kind)
{
    return kind == ControlKind::Panel || kind == ControlKind::Frame;
}

}  // namespace

void coverParent(QWidget* overlay)
{
    QWidget* parent = overlay->parentWidget();
    parent->installEventFilter(new Cover(overlay));
    overlay->setGeometry(parent->rect());
    overlay->raise();
}

FormWindow* buildGenericView(FormRegistry& forms, const QString& form)
{
    auto* window = new FormWindow;
    window->setProperty("mkGenericView", true);
    ViewBuilder b(forms, form, window);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    if (QMenuBar* bar = b.menuBar())
        layout->setMenuBar(bar);
    auto* canvas = new QWidget(window);
    layout->addWidget(canvas);
    QRect extent;
    // Panels and frames first, so that the controls they hold lie above them.
    for (bool containers : {true, false}) {
        for (const ControlRef& ref : forms.controls(form)) {
            if (isContainer(ref.kind) != containers)
                continue;
            QWidget* widget = makeControlWidget(ref, canvas);
            if (!widget)
                continue;
            widget->setProperty("mkGeometry", QStringLiteral("full"));
            const Control& c = *ref.control;
            extent |= QRect(twipsToPixels(c.Left), twipsToPixels(c.Top), twipsToPixels(c.Width),
                            twipsToPixels(c.Height));
        }
    }
    const Form& f = forms.form(form);
    canvas->setMinimumSize(extent.united(QRect(0, 0, 1, 1)).bottomRight().x() + 8,
                           extent.united(QRect(0, 0, 1, 1)).bottomRight().y() + 8);
    window->resize(QSize(twipsToPixels(f.Width), twipsToPixels(f.Height)).expandedTo(canvas->minimumSize()));
    return window;
}

}  // namespace mk
