#include "forms/events.h"

namespace mk {

HandlerTable::Key HandlerTable::key(const QString& form, const QString& control, const QString& event)
{
    return {form.toLower(), control.toLower(), event.toLower()};
}

void HandlerTable::on(const QString& form, const QString& control, const QString& event, Handler handler)
{
    // Two subsystems claiming one event would silently lose one of them; keep a record.
    auto [it, fresh] = handlers_.insert_or_assign(key(form, control, event), std::move(handler));
    if (!fresh)
        duplicates_.push_back(form + QLatin1Char('.') + control + QLatin1Char('.') + event);
}

void HandlerTable::on(const QString& form, const QString& control, const QString& event,
                      void (*handler)(Merkkartelle&))
{
    on(form, control, event, Handler([handler](Merkkartelle& app, EventArgs&) { handler(app); }));
}

void HandlerTable::on(const QString& form, const QString& control, const QString& event,
                      void (*handler)(Merkkartelle&, int))
{
    on(form, control, event,
       Handler([handler](Merkkartelle& app, EventArgs& args) { handler(app, args.Index); }));
}

void HandlerTable::onForm(const QString& form, const QString& event, Handler handler)
{
    on(form, QString(), event, std::move(handler));
}

const Handler* HandlerTable::find(const QString& form, const QString& control, const QString& event) const
{
    auto it = handlers_.find(key(form, control, event));
    return it == handlers_.end() ? nullptr : &it->second;
}

}  // namespace mk
