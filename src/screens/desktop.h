#pragma once
// The screens of the desktop program put together: a window for every form of the system
// object (its own view, or the generic one), the binder over them, and the Qt user interface
// wired to that binder.

#include "screens/binder.h"

#include <QString>
#include <memory>
#include <vector>

class QWidget;

namespace mk {

struct Merkkartelle;
class QtUserInterface;

class Desktop {
public:
    Desktop(Merkkartelle& app, QtUserInterface& ui);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    Binder& binder() { return binder_; }
    QWidget* window(const QString& form) const { return binder_.window(form); }

private:
    QtUserInterface& ui_;
    Binder binder_;
    std::vector<std::unique_ptr<QWidget>> windows_;
};

}  // namespace mk
