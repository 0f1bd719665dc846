#include "app/drive/key_names.h"

#include "forms/events.h"

#include <QStringList>
#include <cstring>
#include <utility>
#include <vector>

namespace mk::drive {

namespace {

bool sameName(const QString& a, const char* b)
{
    return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0;
}

std::optional<int> namedKey(const QString& name)
{
    static const std::vector<std::pair<const char*, int>> names = {
        {"Esc", vbKeyEscape},       {"Escape", vbKeyEscape}, {"Enter", vbKeyReturn},
        {"Return", vbKeyReturn},    {"PageUp", vbKeyPageUp}, {"PageDown", vbKeyPageDown},
        {"Home", vbKeyHome},        {"End", vbKeyEnd},       {"Back", vbKeyBack},
        {"Backspace", vbKeyBack},   {"Tab", vbKeyTab},       {"Space", vbKeySpace},
        {"Delete", vbKeyDelete},    {"Left", vbKeyLeft},     {"Up", vbKeyUp},
        {"Right", vbKeyRight},      {"Down", vbKeyDown},
    };
    for (const auto& [text, code] : names)
        if (sameName(name, text))
            return code;
    if (name.size() >= 2 && (name[0] == u'F' || name[0] == u'f')) {
        bool ok = false;
        const int n = name.mid(1).toInt(&ok);
        if (ok && n >= 1 && n <= 12)
            return vbKeyF1 + n - 1;
    }
    if (name.size() == 1)
        return int(name[0].toUpper().unicode());
    return std::nullopt;
}

}  // namespace

std::optional<KeyStroke> keyStroke(const QString& name)
{
    KeyStroke stroke;
    QString rest = name;
    static const std::vector<std::pair<const char*, int>> modifiers = {
        {"Shift+", vbShiftMask}, {"Ctrl+", vbCtrlMask}, {"Alt+", vbAltMask}};
    for (bool found = true; found && rest.size() > 1;) {
        found = false;
        for (const auto& [prefix, mask] : modifiers)
            if (rest.startsWith(QLatin1String(prefix), Qt::CaseInsensitive) && rest.size() > qsizetype(strlen(prefix))) {
                stroke.Shift |= mask;
                rest = rest.mid(qsizetype(strlen(prefix)));
                found = true;
            }
    }
    const std::optional<int> code = namedKey(rest);
    if (!code)
        return std::nullopt;
    stroke.KeyCode = *code;
    return stroke;
}

}  // namespace mk::drive
