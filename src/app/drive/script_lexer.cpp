#include "app/drive/script_lexer.h"

#include "app/drive/faults.h"

#include <QStringList>
#include <algorithm>

namespace mk::drive {

bool Token::is(const char* word) const
{
    return !quoted && text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

QChar unescape(QChar c, int number)
{
    switch (c.unicode()) {
    case '"': return u'"';
    case '\\': return u'\\';
    case 'n': return u'\n';
    case 'r': return u'\r';
    case 't': return u'\t';
    default:
        throw ScriptFault{number, QStringLiteral("unknown escape \\%1 in a quoted value").arg(c)};
    }
}

// Reads a quoted part starting behind its opening quote; returns the position behind its
// closing quote.
qsizetype readQuoted(const QString& line, qsizetype pos, QString& out, int number)
{
    while (pos < line.size()) {
        const QChar c = line[pos++];
        if (c == u'"')
            return pos;
        if (c != u'\\') {
            out += c;
            continue;
        }
        if (pos >= line.size())
            break;
        out += unescape(line[pos++], number);
    }
    throw ScriptFault{number, QStringLiteral("a quoted value is not closed")};
}

}  // namespace

std::vector<Token> lexLine(const QString& line, int number)
{
    std::vector<Token> tokens;
    qsizetype pos = 0;
    for (;;) {
        while (pos < line.size() && isBlank(line[pos]))
            ++pos;
        if (pos >= line.size())
            return tokens;
        Token token;
        while (pos < line.size() && !isBlank(line[pos])) {
            if (line[pos] == u'"') {
                token.quoted = true;
                pos = readQuoted(line, pos + 1, token.text, number);
            } else {
                token.text += line[pos++];
            }
        }
        tokens.push_back(std::move(token));
    }
}

std::vector<ScriptLine> lexScript(const QByteArray& bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    const QStringList lines = text.split(u'\n');
    std::vector<ScriptLine> out;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#'))
            continue;
        const int number = int(i + 1);
        out.push_back({number, lexLine(line, number)});
    }
    return out;
}

QString quotedValue(const QString& value)
{
    QString out = QStringLiteral("\"");
    for (QChar c : value) {
        switch (c.unicode()) {
        case '"': out += QStringLiteral("\\\""); break;
        case '\\': out += QStringLiteral("\\\\"); break;
        case '\n': out += QStringLiteral("\\n"); break;
        case '\r': out += QStringLiteral("\\r"); break;
        case '\t': out += QStringLiteral("\\t"); break;
        default: out += c;
        }
    }
    return out + u'"';
}

QString scriptValue(const QString& value)
{
    const bool bare = !value.isEmpty() && !value.startsWith(u'#')
        && std::none_of(value.begin(), value.end(), [](QChar c) {
               return c == u' ' || c == u'"' || c == u'\\' || c == u'\n' || c == u'\r' || c == u'\t';
           });
    return bare ? value : quotedValue(value);
}

}  // namespace mk::drive
