#include "card/notice.h"

#include "card/app_state.h"

namespace mk {

namespace {

void closeNotice(Merkkartelle& app, EventArgs&)
{
    unloadForm(app, app.Message);
}

}  // namespace

void ShowMessage(Merkkartelle& app, const QString& text, long colour, int interval)
{
    // Touching the form's controls loads it, as it did in the old runtime; the text goes in
    // after its load step.
    loadForm(app, app.Message);
    app.Message.Label1.Caption = text;
    app.Message.Label1.ForeColor = colour;
    app.Message.Timer1.Interval = interval;
    app.Message.Timer1.Enabled = true;
    showForm(app, app.Message, true);
}

void registerNoticeHandlers(HandlerTable& table)
{
    table.on(QStringLiteral("Message"), QStringLiteral("Timer1"), QStringLiteral("Timer"), closeNotice);
    table.onForm(QStringLiteral("Message"), QStringLiteral("KeyDown"), closeNotice);
}

}  // namespace mk
