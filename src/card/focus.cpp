#include "card/focus.h"

#include "card/app_state.h"

namespace mk {

void SetFocus(Merkkartelle& app, const QString& path)
{
    const ControlRef ref = app.forms.control(path);
    if (!ref.control)
        throw FormsError(QStringLiteral("SetFocus: no control at ") + path);
    const QString ziel = ref.path();
    app.FokusAnfrage = ziel;
    if (QString::compare(app.Fokus, ziel, Qt::CaseInsensitive) == 0)
        return;
    // The old runtime told the control that lost the focus first, then the one that got it.
    const QString vorher = app.Fokus;
    if (!vorher.isEmpty())
        raiseEvent(app, vorher, QStringLiteral("LostFocus"));
    raiseEvent(app, ziel, QStringLiteral("GotFocus"));
}

}  // namespace mk
