#include "screens/conversions.h"

#include "forms/events.h"
#include "platform/user_interface.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <cmath>

namespace mk {

QColor toQColor(long vbColour)
{
    if (vbColour < 0 || vbColour > 0xFFFFFF)
        return QColor();
    return QColor(int(vbColour & 0xFF), int((vbColour >> 8) & 0xFF), int((vbColour >> 16) & 0xFF));
}

long toVbColour(const QColor& colour)
{
    return rgb(colour.red(), colour.green(), colour.blue());
}

QFont toQFont(const FontSpec& wanted, const QFont& base)
{
    QFont font = base;
    if (!wanted.Name.isEmpty())
        font.setFamilies({wanted.Name});
    if (wanted.Size > 0)
        font.setPointSizeF(wanted.Size);
    font.setBold(wanted.Bold);
    font.setItalic(wanted.Italic);
    return font;
}

FontSpec toFontSpec(const QFont& font)
{
    FontSpec wanted;
    wanted.Name = font.family();
    wanted.Size = font.pointSizeF() > 0 ? font.pointSizeF() : 8.25;
    wanted.Bold = font.bold();
    wanted.Italic = font.italic();
    return wanted;
}

bool sameFont(const FontSpec& a, const FontSpec& b)
{
    return a.Name == b.Name && std::abs(a.Size - b.Size) < 0.01 && a.Bold == b.Bold && a.Italic == b.Italic;
}

int vbKeyCode(int key, Qt::KeyboardModifiers modifiers)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return vbKeyF1 + (key - Qt::Key_F1);
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return (modifiers & Qt::KeypadModifier) ? 96 + (key - Qt::Key_0) : key;
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return key;
    switch (key) {
    case Qt::Key_Backspace: return vbKeyBack;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return vbKeyTab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return vbKeyReturn;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Pause: return 19;
    case Qt::Key_CapsLock: return 20;
    case Qt::Key_Escape: return vbKeyEscape;
    case Qt::Key_Space: return vbKeySpace;
    case Qt::Key_PageUp: return vbKeyPageUp;
    case Qt::Key_PageDown: return vbKeyPageDown;
    case Qt::Key_End: return vbKeyEnd;
    case Qt::Key_Home: return vbKeyHome;
    case Qt::Key_Left: return vbKeyLeft;
    case Qt::Key_Up: return vbKeyUp;
    case Qt::Key_Right: return vbKeyRight;
    case Qt::Key_Down: return vbKeyDown;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return vbKeyDelete;
    case Qt::Key_Asterisk: return 106;
    case Qt::Key_Plus: return (modifiers & Qt::KeypadModifier) ? 107 : 187;
    case Qt::Key_Minus: return (modifiers & Qt::KeypadModifier) ? 109 : 189;
    case Qt::Key_Comma: return 188;
    case Qt::Key_Period: return (modifiers & Qt::KeypadModifier) ? 110 : 190;
    case Qt::Key_Slash: return (modifiers & Qt::KeypadModifier) ? 111 : 191;
    case Qt::Key_Semicolon: return 186;
    case Qt::Key_NumberSign: return 191;
    default: return 0;
    }
}

int vbKeyAscii(const QKeyEvent& event)
{
    const QString text = event.text();
    if (text.isEmpty())
        return 0;
    const ushort code = text.at(0).unicode();
    if (code == 9 || code == 127)  // Tab moves the focus, Delete is no character
        return 0;
    if (code < 32 && code != vbKeyBack && code != vbKeyReturn && code != vbKeyEscape)
        return (event.modifiers() & Qt::ControlModifier) ? code : 0;
    return code;
}

int vbShift(Qt::KeyboardModifiers modifiers)
{
    int shift = 0;
    if (modifiers & Qt::ShiftModifier)
        shift |= vbShiftMask;
    if (modifiers & Qt::ControlModifier)
        shift |= vbCtrlMask;
    if (modifiers & Qt::AltModifier)
        shift |= vbAltMask;
    return shift;
}

int vbButton(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton: return vbLeftButton;
    case Qt::RightButton: return vbRightButton;
    case Qt::MiddleButton: return vbMiddleButton;
    default: return 0;
    }
}

int vbButtons(Qt::MouseButtons buttons)
{
    int out = 0;
    if (buttons & Qt::LeftButton)
        out |= vbLeftButton;
    if (buttons & Qt::RightButton)
        out |= vbRightButton;
    if (buttons & Qt::MiddleButton)
        out |= vbMiddleButton;
    return out;
}

QStringList qtNameFilters(const QString& vbFilter)
{
    static const QRegularExpression trailingPatterns(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    QStringList out;
    for (const FileFilter& filter : parseFilter(vbFilter)) {
        QStringList patterns;
        for (QString pattern : filter.patterns.split(u';', Qt::SkipEmptyParts)) {
            pattern = pattern.trimmed();
            // The old dialog's *.* took every file, with or without an extension.
            patterns << (pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern);
        }
        if (patterns.isEmpty())
            patterns << QStringLiteral("*");
        QString description = filter.description;
        description.remove(trailingPatterns);
        if (description.isEmpty())
            description = patterns.join(u' ');
        out << QStringLiteral("%1 (%2)").arg(description, patterns.join(u' '));
    }
    return out;
}

Qt::Alignment toQtAlignment(int vbAlignment)
{
    switch (vbAlignment) {
    case vbRightJustify: return Qt::AlignRight | Qt::AlignVCenter;
    case vbCenter: return Qt::AlignHCenter | Qt::AlignVCenter;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace mk
