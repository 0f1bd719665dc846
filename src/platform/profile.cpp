#include "platform/profile.h"

#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/text_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <optional>

namespace mk {

namespace {

std::optional<QLocale>& chosenLocale()
{
    static std::optional<QLocale> locale;
    return locale;
}

QString profilePath(const QString& file)
{
    for (QChar c : file) {
        if (isPathSeparator(c))
            return resolvePath(file);
    }
    return windowsDirectoryFile(file);
}

bool isWinIni(const QString& path)
{
    return path == windowsDirectoryFile(QStringLiteral("win.ini"));
}

// The lines of a profile file; none when it is missing or unreadable.
QStringList profileLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = decodeTextFile(file.readAll());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    QStringList lines = text.split(u'\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

void saveProfileLines(const QString& path, const QStringList& lines)
{
    QDir().mkpath(DateiPfad(path));
    printLines(path, lines);
}

// The section name of a "[name]" line; nothing for other lines.
std::optional<QString> sectionOf(const QString& line)
{
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(u'['))
        return std::nullopt;
    const qsizetype close = trimmed.indexOf(u']');
    return (close < 0 ? trimmed.mid(1) : trimmed.mid(1, close - 1)).trimmed();
}

bool sameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The lines [first, end) of a section's body; first is -1 when there is no such section.
struct SectionRange {
    qsizetype header = -1;
    qsizetype end = -1;
};

SectionRange findSection(const QStringList& lines, const QString& section)
{
    SectionRange range;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto name = sectionOf(lines.at(i));
        if (!name)
            continue;
        if (range.header >= 0) {
            range.end = i;
            return range;
        }
        if (sameName(*name, section))
            range.header = i;
    }
    range.end = lines.size();
    return range;
}

// The index of key's line within the section; -1 when there is none.
qsizetype findKey(const QStringList& lines, const SectionRange& range, const QString& key)
{
    for (qsizetype i = range.header + 1; i < range.end; ++i) {
        const QString& line = lines.at(i);
        const qsizetype equals = line.indexOf(u'=');
        if (equals >= 0 && sameName(line.left(equals).trimmed(), key.trimmed()))
            return i;
    }
    return -1;
}

QString valueOf(const QString& line)
{
    QString value = line.mid(line.indexOf(u'=') + 1).trimmed();
    if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.mid(1, value.size() - 2);
    return value;
}

QString cutAtZero(const QString& text)
{
    const qsizetype zero = text.indexOf(QChar(0));
    return zero < 0 ? text : text.left(zero);
}

QString withoutTrailingBlanks(QString text)
{
    while (!text.isEmpty() && (text.back() == u' ' || text.back() == u'\t'))
        text.chop(1);
    return text;
}

// What the platform answered for win.ini keys that the file lacks.
std::optional<QString> winIniStandIn(const QString& section, const QString& key)
{
    if (sameName(section, QStringLiteral("windows")) && sameName(key, QStringLiteral("spooler")))
        return QStringLiteral("yes");
    if (!sameName(section, QStringLiteral("Intl")))
        return std::nullopt;
    const IntlValues intl = intlValuesOf(profileLocale());
    if (sameName(key, QStringLiteral("sDecimal")))
        return intl.sDecimal;
    if (sameName(key, QStringLiteral("sThousand")))
        return intl.sThousand;
    if (sameName(key, QStringLiteral("sDate")))
        return intl.sDate;
    if (sameName(key, QStringLiteral("sShortDate")))
        return intl.sShortDate;
    return std::nullopt;
}

}  // namespace

QString GetPrivateProfileString(const QString& section, const QString& key,
                                const QString& defaultValue, const QString& file)
{
    const QString path = profilePath(file);
    const QStringList lines = profileLines(path);
    const SectionRange range = findSection(lines, section);
    if (range.header >= 0) {
        const qsizetype at = findKey(lines, range, key);
        if (at >= 0)
            return cutAtZero(valueOf(lines.at(at)));
    }
    if (isWinIni(path)) {
        if (const auto standIn = winIniStandIn(section, key))
            return cutAtZero(*standIn);
    }
    return cutAtZero(withoutTrailingBlanks(defaultValue));
}

void WritePrivateProfileString(const QString& section, const QString& key,
                               const QString& value, const QString& file)
{
    const QString path = profilePath(file);
    QStringList lines = profileLines(path);
    const QString line = key + u'=' + value;
    SectionRange range = findSection(lines, section);
    if (range.header < 0) {
        lines.append(u'[' + section + u']');
        lines.append(line);
    } else if (const qsizetype at = findKey(lines, range, key); at >= 0) {
        lines[at] = line;
    } else {
        qsizetype after = range.end;
        while (after - 1 > range.header && lines.at(after - 1).trimmed().isEmpty())
            --after;
        lines.insert(after, line);
    }
    saveProfileLines(path, lines);
}

void deletePrivateProfileKey(const QString& section, const QString& key, const QString& file)
{
    const QString path = profilePath(file);
    QStringList lines = profileLines(path);
    const SectionRange range = findSection(lines, section);
    if (range.header < 0)
        return;
    const qsizetype at = findKey(lines, range, key);
    if (at < 0)
        return;
    lines.removeAt(at);
    saveProfileLines(path, lines);
}

void deletePrivateProfileSection(const QString& section, const QString& file)
{
    const QString path = profilePath(file);
    QStringList lines = profileLines(path);
    const SectionRange range = findSection(lines, section);
    if (range.header < 0)
        return;
    lines.remove(range.header, range.end - range.header);
    saveProfileLines(path, lines);
}

QString GetProfileString(const QString& section, const QString& key, const QString& defaultValue)
{
    return GetPrivateProfileString(section, key, defaultValue, QStringLiteral("win.ini"));
}

IntlValues intlValuesOf(const QLocale& locale)
{
    QString shortDate = locale.dateFormat(QLocale::ShortFormat);
    // A two-digit year was the platform's exception, not its rule.
    if (!shortDate.contains(QLatin1String("yyyy")))
        shortDate.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    QString dateSeparator = QStringLiteral("/");
    for (QChar c : shortDate) {
        if (!c.isLetter()) {
            dateSeparator = c;
            break;
        }
    }
    return IntlValues{locale.decimalPoint(), locale.groupSeparator(), dateSeparator, shortDate};
}

void setProfileLocale(const QLocale& locale)
{
    chosenLocale() = locale;
}

QLocale profileLocale()
{
    return chosenLocale().value_or(QLocale::system());
}

}  // namespace mk
