#pragma once
// The widgets that stand for the controls: one kind of widget per control kind, named with
// the control's path inside its form ("feld(4)", "NeueAdresse"), so that the binder finds
// them. Views build their widgets here and place them with layouts.

#include "forms/registry.h"

#include <QLabel>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace mk {

// "feld(4)" for an element of a control array, "NeueAdresse" for a single control.
QString widgetName(const QString& name, int index);
QString widgetName(const ControlRef& ref);

// The widget of a control of the given kind, named and parented; null for the controls that
// have no widget (timers, menu items). A panel becomes a sunken caption (a status panel);
// a view that needs a panel as a container makes a QFrame of that name itself.
QWidget* makeControlWidget(const ControlRef& ref, QWidget* parent);

// A picture that fits itself into the space it is given, keeping its proportions unless
// stretched.
class PictureLabel : public QLabel {
    Q_OBJECT
public:
    explicit PictureLabel(QWidget* parent = nullptr);
    void setPicture(const QString& picture);
    QString picture() const { return picture_; }
    void setStretch(bool stretch);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void rescale();
    QString picture_;
    QPixmap source_;
    bool stretch_ = false;
};

// The window of a form. A window that is centred keeps itself in the middle of its screen
// whenever its size changes (the notice follows the length of its text).
class FormWindow : public QWidget {
    Q_OBJECT
public:
    explicit FormWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    void setCentred(bool centred) { centred_ = centred; }
    bool centred() const { return centred_; }
    void centre();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool centred_ = false;
};

}  // namespace mk
