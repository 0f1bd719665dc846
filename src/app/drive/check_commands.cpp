// Checks: property values, message boxes, files, and the end of the program.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"
#include "platform/store.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace mk::drive {

namespace {

// Any line break (CR LF, CR or LF) as LF.
QString unifiedBreaks(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

// File bytes for a message: the text when they are UTF-8, else each byte above 127 as \xNN.
QString bytesForMessage(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (!decoder.hasError())
        return quotedValue(text);
    QString out;
    for (char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        out += b < 0x80 ? QString(QChar(b)) : QStringLiteral("\\x%1").arg(b, 2, 16, QLatin1Char('0'));
    }
    return quotedValue(out);
}

}  // namespace

void Interpreter::check(bool held, const QString& expected, const QString& got)
{
    if (!held)
        throw ExpectFailed{currentLine_, expected, got};
    ++passed_;
}

void Interpreter::expect(const ScriptLine& line)
{
    if (line.tokens.size() < 2)
        fault(QStringLiteral("usage: expect PATH VALUE"));
    const Token& what = line.tokens[1];
    const bool afterEndToo = what.is("ended") || what.is("file") || what.is("exists") || what.is("missing")
        || what.is("cards");
    if (ended_ && !afterEndToo)
        fault(QStringLiteral("the program has ended: only expect ended, expect file, expect exists and "
                             "expect missing may follow"));
    if (what.is("msgbox"))
        expectMsgBox(line);
    else if (what.is("no"))
        expectNoMsgBox(line);
    else if (what.is("file"))
        expectFile(line);
    else if (what.is("exists"))
        expectPresence(line, true);
    else if (what.is("missing"))
        expectPresence(line, false);
    else if (what.is("ended"))
        expectEnded(line);
    else if (what.is("cards"))
        expectCards(line);
    else if (what.is("modem"))
        expectModem(line);
    else
        expectProperty(line);
}

void Interpreter::expectProperty(const ScriptLine& line)
{
    need(line, 3, "expect PATH VALUE");
    QString got;
    try {
        got = app_.forms.read(line.tokens[1].text);
    } catch (const FormsError& e) {
        fault(e.message());
    }
    const QString& wanted = line.tokens[2].text;
    check(got == wanted, scriptValue(wanted), scriptValue(got));
}

void Interpreter::expectMsgBox(const ScriptLine& line)
{
    const bool withTitle = line.tokens.size() == 5 && line.tokens[3].is("title");
    if (line.tokens.size() != 3 && !withTitle)
        fault(QStringLiteral("usage: expect msgbox TEXT [title TITLE]"));
    const QString prompt = line.tokens[2].text;
    const QString title = withTitle ? line.tokens[4].text : QString();
    QString expected = quotedValue(prompt);
    if (withTitle)
        expected += QStringLiteral(" title ") + quotedValue(title);
    const ShownBox* box = ui_.checkNextMsgBox();
    if (!box) {
        check(false, expected, QStringLiteral("no msgbox"));
        return;
    }
    QString got = quotedValue(box->prompt);
    if (withTitle)
        got += QStringLiteral(" title ") + quotedValue(box->title);
    const bool held = unifiedBreaks(box->prompt) == unifiedBreaks(prompt) && (!withTitle || box->title == title);
    check(held, expected, got);
}

// Every message box has been looked at, and no dialog went by without an answer.
void Interpreter::expectNoMsgBox(const ScriptLine& line)
{
    if (line.tokens.size() != 3 || !line.tokens[2].is("msgbox"))
        fault(QStringLiteral("usage: expect no msgbox"));
    for (const ShownBox& box : ui_.boxes) {
        if (box.kind == QLatin1String("msgbox") && !box.checked) {
            check(false, QStringLiteral("no msgbox"), QStringLiteral("msgbox ") + quotedValue(box.prompt));
            return;
        }
        if (box.kind != QLatin1String("msgbox") && !box.answered) {
            check(false, QStringLiteral("no msgbox"),
                  QStringLiteral("unanswered %1 %2").arg(box.kind, quotedValue(box.prompt)));
            return;
        }
    }
    check(true, {}, {});
}

void Interpreter::expectFile(const ScriptLine& line)
{
    need(line, 4, "expect file PATH VALUE");
    const QString path = filePath(line.tokens[2].text);
    const QByteArray wanted = line.tokens[3].text.toUtf8();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        check(false, bytesForMessage(wanted), QStringLiteral("missing"));
        return;
    }
    const QByteArray got = file.readAll();
    check(got == wanted, bytesForMessage(wanted), bytesForMessage(got));
}

void Interpreter::expectPresence(const ScriptLine& line, bool present)
{
    need(line, 3, present ? "expect exists PATH" : "expect missing PATH");
    const bool exists = QFileInfo::exists(filePath(line.tokens[2].text));
    const auto word = [](bool there) { return there ? QStringLiteral("exists") : QStringLiteral("missing"); };
    check(exists == present, word(present), word(exists));
}

void Interpreter::expectEnded(const ScriptLine& line)
{
    need(line, 2, "expect ended");
    check(ended_, QStringLiteral("ended"), QStringLiteral("running"));
}

// The number of rows in the card table of the database the INI file names.
void Interpreter::expectCards(const ScriptLine& line)
{
    need(line, 3, "expect cards N");
    const int wanted = number(line.tokens[2], "the number of cards");
    long got = 0;
    try {
        DatabasePtr db = Database::open(cardDatabasePath(), false, true);
        got = db->createDynaset(cardTableName())->RecordCount();
        db->close();
    } catch (const RuntimeError& e) {
        fault(QStringLiteral("expect cards: %1").arg(e.Description));
    }
    check(got == wanted, QString::number(wanted), QString::number(got));
}

void Interpreter::expectModem(const ScriptLine& line)
{
    need(line, 4, "expect modem COMn TEXT");
    SimulatedModem& modem = modems_.modem(comPort(line.tokens[2]));
    const QString got = QString::fromLatin1(std::exchange(modem.written, QByteArray()));
    const QString& wanted = line.tokens[3].text;
    check(got == wanted, quotedValue(wanted), quotedValue(got));
}

}  // namespace mk::drive
