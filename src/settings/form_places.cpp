#include "settings/form_places.h"

#include "card/app_state.h"

#include <cmath>

namespace mk {

namespace {

void seiteNehmen(Merkkartelle& app, int record, int& seite)
{
    if (record <= 0)
        return;
    bool ok = false;
    const double wert = app.Einstellungsliste[std::size_t(record)].trimmed().toDouble(&ok);
    if (ok)
        seite = int(std::nearbyint(wert));
}

void seiteMerken(Merkkartelle& app, int record, int seite)
{
    if (record > 0)
        app.Einstellungsliste[std::size_t(record)] = QString::number(seite);
}

}  // namespace

void FormplatzNehmen(Merkkartelle& app, Form& form, const Formplatz& platz)
{
    seiteNehmen(app, platz.top, form.Top);
    seiteNehmen(app, platz.left, form.Left);
    seiteNehmen(app, platz.height, form.Height);
    seiteNehmen(app, platz.width, form.Width);
}

void FormplatzMerken(Merkkartelle& app, const Form& form, const Formplatz& platz)
{
    seiteMerken(app, platz.top, form.Top);
    seiteMerken(app, platz.left, form.Left);
    seiteMerken(app, platz.height, form.Height);
    seiteMerken(app, platz.width, form.Width);
}

}  // namespace mk
