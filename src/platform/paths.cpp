#include "platform/paths.h"

#include <QDir>

namespace mk {

bool isPathSeparator(QChar c)
{
    return c == u'\\' || c == u'/';
}

namespace {

// Index of the last separator, found by walking the path; -1 without one.
qsizetype lastSeparator(const QString& path)
{
    qsizetype found = -1;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (isPathSeparator(path.at(i)))
            found = i;
    }
    return found;
}

}  // namespace

QString DateiName(const QString& path)
{
    return path.mid(lastSeparator(path) + 1);
}

QString DateiPfad(const QString& path)
{
    const qsizetype at = lastSeparator(path);
    if (at < 0)
        return QString();
    if (at == 0)
        return path.left(1);
    return path.left(at);
}

QString joinPath(const QString& dir, const QString& name)
{
    if (dir.isEmpty())
        return name;
    if (isPathSeparator(dir.back()))
        return dir + name;
    return dir + QDir::separator() + name;
}

}  // namespace mk
