#include "platform/files.h"

#include "platform/app_home.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace mk {

namespace {

QString& currentDirectory()
{
    static QString dir = QDir::currentPath();
    return dir;
}

// What is left of the last Dir(pattern).
QStringList& pendingMatches()
{
    static QStringList matches;
    return matches;
}

QString toInternalSeparators(QString path)
{
#ifndef Q_OS_WIN
    path.replace(u'\\', u'/');
#endif
    return path;
}

bool hasWildcard(const QString& name)
{
    return name.contains(u'*') || name.contains(u'?');
}

// The entry of dir whose name equals name without regard to case; "" when there is none.
QString caseBlindEntry(const QString& dir, const QString& name)
{
    QStringList entries = QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                              | QDir::NoDotAndDotDot);
    std::sort(entries.begin(), entries.end());
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return QString();
}

// An absolute, clean path whose parts that are not found as written are looked up without
// regard to case; parts found neither way stay as written.
QString matchCaseBlind(const QString& path)
{
    if (path.isEmpty() || QFileInfo::exists(path))
        return path;
    const QStringList parts = path.split(u'/');
    QString built = parts.first();  // "" for the root, or a drive
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const QString parent = built.isEmpty() ? QStringLiteral("/") : built;
        QString next = joinPath(parent, parts.at(i));
        if (!QFileInfo::exists(next)) {
            const QString found = caseBlindEntry(parent, parts.at(i));
            if (found.isEmpty())
                return joinPath(parent, parts.mid(i).join(u'/'));
            next = joinPath(parent, found);
        }
        built = next;
    }
    return built;
}

// "c:\windows\x" in any case and with either separator: the rest behind the folder, else
// nothing.
std::optional<QString> behindWindowsFolder(const QString& path)
{
    static const QString folder = QStringLiteral("c:/windows");
    if (!path.startsWith(folder, Qt::CaseInsensitive))
        return std::nullopt;
    if (path.size() == folder.size())
        return QString();
    if (path.at(folder.size()) != u'/')
        return std::nullopt;
    return path.mid(folder.size() + 1);
}

QString knownWindowsName(const QString& name)
{
    for (const char* known : {"MERKKARTELLE.INI", "win.ini"}) {
        if (name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(known);
    }
    return name;
}

std::filesystem::path fsPath(const QString& path)
{
    return std::filesystem::path(path.toStdU16String());
}

bool isFile(const QString& path)
{
    return QFileInfo(path).isFile();
}

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

// Splits a resolved pattern into its folder and name part; a trailing separator means all.
void splitPattern(const QString& pattern, QString& folder, QString& name)
{
    const QString full = resolvePath(pattern);
    if (pattern.isEmpty() || isPathSeparator(pattern.back())) {
        folder = full;
        name = QStringLiteral("*");
        return;
    }
    folder = DateiPfad(full);
    name = DateiName(full);
}

// The files of folder that match the name part, in the order of their names.
QStringList matchingFiles(const QString& folder, const QString& name)
{
    QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
    std::sort(files.begin(), files.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    QStringList matches;
    for (const QString& file : files) {
        if (matchesFilePattern(file, name))
            matches.append(file);
    }
    return matches;
}

bool wildcardMatch(QStringView name, QStringView pattern)
{
    if (pattern.isEmpty())
        return name.isEmpty();
    const QChar p = pattern.front();
    if (p == u'*') {
        for (qsizetype skip = 0; skip <= name.size(); ++skip) {
            if (wildcardMatch(name.mid(skip), pattern.mid(1)))
                return true;
        }
        return false;
    }
    if (name.isEmpty())
        return false;
    if (p != u'?' && p.toCaseFolded() != name.front().toCaseFolded())
        return false;
    return wildcardMatch(name.mid(1), pattern.mid(1));
}

// The runtime's number for a failed write: a full disk, a target that may not be written,
// or any other failure to reach the file.
int writeErrorNumber(int error)
{
    switch (error) {
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return err::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return err::PermissionDenied;
    default:
        return err::PathFileAccess;
    }
}

// Copies the bytes of from into to and makes them durable; the runtime's number of the
// failure, or 0.
int copyBytes(const QString& from, const QString& to)
{
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly))
        return err::PermissionDenied;
    std::FILE* out = std::fopen(QFile::encodeName(to).constData(), "wb");
    if (!out)
        return writeErrorNumber(errno);
    int failure = 0;
    while (!failure && !in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty())
            failure = err::PathFileAccess;
        else if (std::fwrite(chunk.constData(), 1, std::size_t(chunk.size()), out) != std::size_t(chunk.size()))
            failure = writeErrorNumber(errno);
    }
    if (!failure && std::fflush(out) != 0)
        failure = writeErrorNumber(errno);
#ifdef Q_OS_UNIX
    if (!failure && ::fsync(::fileno(out)) != 0)
        failure = writeErrorNumber(errno);
#endif
    if (std::fclose(out) != 0 && !failure)
        failure = writeErrorNumber(errno);
    return failure;
}

void requireFolder(const QString& path)
{
    if (!isFolder(DateiPfad(path)))
        raiseFileError(err::PathNotFound);
}

}  // namespace

QString fileErrorDescription(int number)
{
    switch (number) {
    case err::TypeMismatch: return QStringLiteral("Typen unverträglich");
    case err::BadFileName: return QStringLiteral("Dateiname oder -nummer falsch");
    case err::FileNotFound: return QStringLiteral("Datei nicht gefunden");
    case err::FileAlreadyExists: return QStringLiteral("Datei existiert bereits");
    case err::DiskFull: return QStringLiteral("Datenträger voll");
    case err::InputPastEnd: return QStringLiteral("Einlesen hinter Dateiende");
    case err::PermissionDenied: return QStringLiteral("Zugriff verweigert");
    case err::PathFileAccess: return QStringLiteral("Fehler beim Zugriff auf Pfad/Datei");
    case err::PathNotFound: return QStringLiteral("Pfad nicht gefunden");
    default: return QStringLiteral("Anwendungs- oder objektdefinierter Fehler");
    }
}

void raiseFileError(int number)
{
    throw RuntimeError(number, fileErrorDescription(number));
}

QString windowsDirectoryFile(const QString& name)
{
    const QString dir = windowsDirectory();
    const QString asWritten = joinPath(dir, name);
    if (QFileInfo::exists(asWritten))
        return asWritten;
    const QString found = caseBlindEntry(dir, name);
    return joinPath(dir, found.isEmpty() ? knownWindowsName(name) : found);
}

QString resolvePath(const QString& path)
{
    const QString internal = toInternalSeparators(path);
    if (const auto rest = behindWindowsFolder(internal)) {
        if (rest->isEmpty())
            return windowsDirectory();
        if (!rest->contains(u'/'))
            return windowsDirectoryFile(*rest);
        return matchCaseBlind(QDir::cleanPath(joinPath(windowsDirectory(), *rest)));
    }
    const QString absolute =
        QDir::isRelativePath(internal) ? joinPath(currentDirectory(), internal) : internal;
    return matchCaseBlind(QDir::cleanPath(absolute));
}

void ChDir(const QString& path)
{
    const QString target = resolvePath(path);
    if (!isFolder(target))
        raiseFileError(err::PathNotFound);
    currentDirectory() = target;
}

QString CurDir()
{
    return currentDirectory();
}

bool matchesFilePattern(const QString& name, const QString& pattern)
{
    if (wildcardMatch(name, pattern))
        return true;
    return pattern.endsWith(QLatin1String(".*")) && !name.contains(u'.')
        && wildcardMatch(name, QStringView(pattern).chopped(2));
}

QString Dir(const QString& pattern)
{
    pendingMatches().clear();
    QString folder, name;
    splitPattern(pattern, folder, name);
    if (!isFolder(folder))
        raiseFileError(err::PathNotFound);
    if (!hasWildcard(name)) {
        const QString path = joinPath(folder, name);
        return isFile(path) ? DateiName(path) : QString();
    }
    QStringList matches = matchingFiles(folder, name);
    if (matches.isEmpty())
        return QString();
    const QString first = matches.takeFirst();
    pendingMatches() = matches;
    return first;
}

QString Dir()
{
    QStringList& pending = pendingMatches();
    return pending.isEmpty() ? QString() : pending.takeFirst();
}

void FileCopy(const QString& source, const QString& destination)
{
    const QString from = resolvePath(source);
    const QString to = resolvePath(destination);
    requireFolder(from);
    if (!isFile(from))
        raiseFileError(err::FileNotFound);
    requireFolder(to);
    if (isFolder(to))
        raiseFileError(err::PathFileAccess);
    std::error_code ec;
    if (std::filesystem::exists(fsPath(to), ec) && std::filesystem::equivalent(fsPath(from), fsPath(to), ec))
        raiseFileError(err::PermissionDenied);
    const auto modified = std::filesystem::last_write_time(fsPath(from), ec);
    // The copy is made beside the target and takes its name only when it is whole: a copy
    // that fails half way leaves the earlier target as it was and no piece of the new one.
    const QString part = to + QStringLiteral(".kopie~");
    int failure = copyBytes(from, part);
    if (!failure) {
        std::filesystem::rename(fsPath(part), fsPath(to), ec);
        if (ec)
            failure = writeErrorNumber(ec.value());
    }
    if (failure) {
        QFile::remove(part);
        raiseFileError(failure);
    }
    std::filesystem::last_write_time(fsPath(to), modified, ec);  // as the old copy kept it
}

void Kill(const QString& pattern)
{
    QString folder, name;
    splitPattern(pattern, folder, name);
    if (!isFolder(folder))
        raiseFileError(err::PathNotFound);
    const QStringList victims = hasWildcard(name)
        ? matchingFiles(folder, name)
        : (isFile(joinPath(folder, name)) ? QStringList{name} : QStringList{});
    if (victims.isEmpty())
        raiseFileError(err::FileNotFound);
    for (const QString& victim : victims) {
        if (!QFile::remove(joinPath(folder, victim)))
            raiseFileError(err::PermissionDenied);
    }
}

void Name(const QString& oldPath, const QString& newPath)
{
    const QString from = resolvePath(oldPath);
    const QString to = resolvePath(newPath);
    if (!QFileInfo::exists(from))
        raiseFileError(err::FileNotFound);
    if (QFileInfo::exists(to))
        raiseFileError(err::FileAlreadyExists);
    requireFolder(to);
    std::error_code ec;
    std::filesystem::rename(fsPath(from), fsPath(to), ec);
    if (ec)
        raiseFileError(err::PathFileAccess);
}

void MkDir(const QString& path)
{
    const QString target = resolvePath(path);
    if (QFileInfo::exists(target))
        raiseFileError(err::PathFileAccess);
    requireFolder(target);
    if (!QDir().mkdir(target))
        raiseFileError(err::PathFileAccess);
}

qint64 FileLen(const QString& path)
{
    const QFileInfo info(resolvePath(path));
    if (!info.isFile())
        raiseFileError(err::FileNotFound);
    return info.size();
}

QDateTime FileDateTime(const QString& path)
{
    const QFileInfo info(resolvePath(path));
    if (!info.isFile())
        raiseFileError(err::FileNotFound);
    return info.lastModified();
}

}  // namespace mk
