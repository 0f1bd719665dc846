// Answers for the boxes and dialogs to come, queued per kind.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"

namespace mk::drive {

namespace {

bool toBool(const Token& token, bool& out)
{
    if (token.is("True") || token.is("False")) {
        out = token.is("True");
        return true;
    }
    return false;
}

}  // namespace

void Interpreter::answer(const ScriptLine& line)
{
    if (line.tokens.size() < 3)
        fault(QStringLiteral("usage: answer KIND VALUE"));
    const Token& kind = line.tokens[1];
    const Token& value = line.tokens[2];
    const std::size_t count = line.tokens.size();
    const bool cancel = value.is("cancel") && count == 3;

    if (kind.is("msgbox")) {
        const int answer = value.quoted ? -1 : answerFromName(value.text);
        if (answer < 0 || count != 3)
            fault(QStringLiteral("a message box is answered by Yes, No, OK, Cancel, Abort, Retry or Ignore, "
                                 "not %1").arg(quotedValue(value.text)));
        ui_.answerMsgBox(answer);
    } else if (kind.is("input")) {
        need(line, 3, "answer input TEXT | answer input cancel");
        cancel ? ui_.answerInputCancel() : ui_.answerInput(value.text);
    } else if (kind.is("open")) {
        const bool readOnly = count == 4 && line.tokens[3].is("readonly");
        if (count != 3 && !readOnly)
            fault(QStringLiteral("usage: answer open PATH [readonly] | answer open cancel"));
        cancel ? ui_.answerOpenCancel() : ui_.answerOpen(filePath(value.text), readOnly);
    } else if (kind.is("save")) {
        need(line, 3, "answer save PATH | answer save cancel");
        cancel ? ui_.answerSaveCancel() : ui_.answerSave(filePath(value.text));
    } else if (kind.is("color")) {
        need(line, 3, "answer color LONG | answer color cancel");
        if (cancel) {
            ui_.answerColorCancel();
            return;
        }
        bool ok = false;
        const long color = value.text.toLong(&ok);
        if (!ok || color < 0 || color > 0xFFFFFF)
            fault(QStringLiteral("a colour is a long from 0 to 16777215, not %1").arg(quotedValue(value.text)));
        ui_.answerColor(color);
    } else if (kind.is("font")) {
        if (cancel) {
            ui_.answerFontCancel();
            return;
        }
        need(line, 6, "answer font NAME SIZE BOLD ITALIC | answer font cancel");
        bool ok = false;
        const double size = QString(line.tokens[3].text).replace(u',', u'.').toDouble(&ok);
        bool bold = false, italic = false;
        if (!ok || size <= 0 || !toBool(line.tokens[4], bold) || !toBool(line.tokens[5], italic))
            fault(QStringLiteral("usage: answer font NAME SIZE BOLD ITALIC (BOLD, ITALIC: True or False)"));
        ui_.answerFont(value.text, size, bold, italic);
    } else if (kind.is("printer")) {
        need(line, 3, "answer printer ok | answer printer cancel");
        if (!cancel && !value.is("ok"))
            fault(QStringLiteral("a printer dialog is answered by ok or cancel"));
        ui_.answerPrinter(!cancel);
    } else {
        fault(QStringLiteral("unknown answer kind %1").arg(quotedValue(kind.text)));
    }
}

}  // namespace mk::drive
