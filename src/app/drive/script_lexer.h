#pragma once
// Lines and tokens of a driver script. One command a line; tokens are separated by blanks; a
// token may hold double-quoted parts, in which blanks are kept and \" \\ \n \r \t are
// escapes. A quoted part may stand inside a token (COL="Hans Müller"). Lines that start with
// '#' and blank lines carry no tokens and are left out.

#include <QByteArray>
#include <QString>
#include <vector>

namespace mk::drive {

struct Token {
    QString text;
    bool quoted = false;  // some part was written in double quotes: "cancel" is no keyword
    // True when the token is the bare word (written without quotes), case-blind.
    bool is(const char* word) const;
};

struct ScriptLine {
    int number = 0;  // 1-based line number in the script file
    std::vector<Token> tokens;
};

// Splits one line. ScriptFault for an unclosed quote or an unknown escape.
std::vector<Token> lexLine(const QString& line, int number);

// The lines of a script (UTF-8, LF or CR LF line ends, a leading byte order mark allowed)
// that carry a command.
std::vector<ScriptLine> lexScript(const QByteArray& bytes);

// A value as a script would write it: bare when it can stand bare, else in double quotes
// with the escapes above. Used for the driver's messages.
QString scriptValue(const QString& value);
// Always quoted.
QString quotedValue(const QString& value);

}  // namespace mk::drive
