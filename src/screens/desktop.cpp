#include "screens/desktop.h"

#include "card/app_state.h"
#include "screens/qt_user_interface.h"
#include "screens/printing_views.h"
#include "screens/views.h"

#include <QWidget>

namespace mk {

Desktop::Desktop(Merkkartelle& app, QtUserInterface& ui) : ui_(ui), binder_(app)
{
    for (const QString& form : app.forms.formNames()) {
        FormWindow* window = buildView(app.forms, form);
        windows_.emplace_back(window);
        binder_.attach(form, window);
    }
    ui_.setBinder(&binder_);
    setDrawingSource(&app.printing);
    app.printing.formChanged = [](const QString& form) { repaintDrawing(form); };
}

Desktop::~Desktop()
{
    ui_.setBinder(nullptr);
    setDrawingSource(nullptr);
}

}  // namespace mk
