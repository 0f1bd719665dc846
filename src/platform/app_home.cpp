#include "platform/app_home.h"

#include "platform/paths.h"
#include "platform/store.h"

#include <QDir>
#include <QFileInfo>

namespace mk {

namespace {

// $name when set and not empty, else $HOME + fallback (as the XDG rules say).
QString xdgFolder(const char* name, const char* fallback)
{
    const QString value = qEnvironmentVariable(name);
    if (!value.isEmpty())
        return value;
    return joinPath(QDir::homePath(), QString::fromLatin1(fallback));
}

QString homeOverride()
{
    return qEnvironmentVariable("MERKKARTELLE_HOME");
}

}  // namespace

QString applicationHome()
{
    const QString home = homeOverride();
    if (!home.isEmpty())
        return home;
    return joinPath(xdgFolder("XDG_DATA_HOME", ".local/share"), QStringLiteral("merkkartelle"));
}

QString windowsDirectory()
{
    const QString home = homeOverride();
    if (!home.isEmpty())
        return home;
    return joinPath(xdgFolder("XDG_CONFIG_HOME", ".config"), QStringLiteral("merkkartelle"));
}

QString iniFilePath()
{
    return joinPath(windowsDirectory(), QStringLiteral("MERKKARTELLE.INI"));
}

QString winIniPath()
{
    return joinPath(windowsDirectory(), QStringLiteral("win.ini"));
}

bool applicationHomeNeedsLayout()
{
    return !QFileInfo::exists(joinPath(applicationHome(), QString::fromLatin1(TemplateDatabaseName)));
}

void layoutApplicationHome()
{
    const QString home = applicationHome();
    QDir().mkpath(home);
    const struct {
        const char* name;
        DatabaseKind kind;
    } files[] = {
        {GlobalViewName, DatabaseKind::GlobalView},
        {DefaultDatabaseName, DatabaseKind::Cards},
        {TelephoneName, DatabaseKind::Telephone},
        // The template marks a finished first start, so it comes last: a first start cut
        // short is done again, and makes what is still missing.
        {TemplateDatabaseName, DatabaseKind::Cards},
    };
    for (const auto& file : files) {
        const QString path = joinPath(home, QString::fromLatin1(file.name));
        if (!QFileInfo::exists(path))
            createEmptyDatabase(file.kind, path);
    }
}

void layoutApplicationHomeIfNeeded()
{
    if (applicationHomeNeedsLayout())
        layoutApplicationHome();
}

}  // namespace mk
