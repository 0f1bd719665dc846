#include "forms/status_line.h"

namespace mk {

QString statusLineOf(FormRegistry& forms, const QString& form, const QString& panel)
{
    for (const ControlRef& ref : forms.controls(form))
        if (ref.index < 0 && ref.name.compare(panel, Qt::CaseInsensitive) == 0)
            return ref.path();
    return {};
}

bool showHintInStatusLine(FormRegistry& forms, const QString& statusLine, const ControlRef& hovered)
{
    if (statusLine.isEmpty())
        return false;
    QString hint;
    if (hovered.control) {
        hint = hovered.control->Hint;
        const bool area = hovered.kind == ControlKind::Panel || hovered.kind == ControlKind::Frame;
        if (hint.isEmpty() && !area)
            return false;
    }
    const ControlRef status = forms.control(statusLine);
    QString* caption = status.is(ControlKind::Panel)   ? &status.as<Panel>().Caption
                       : status.is(ControlKind::Label) ? &status.as<Label>().Caption
                                                       : nullptr;
    if (!caption || *caption == hint)
        return false;
    *caption = hint;
    return true;
}

}  // namespace mk
