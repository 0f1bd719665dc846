#include "card/session.h"

#include "card/app_state.h"
#include "platform/app_home.h"

namespace mk {

void Start(Merkkartelle& app)
{
    layoutApplicationHomeIfNeeded();
    showForm(app, app.Hauptmaske);
}

}  // namespace mk
