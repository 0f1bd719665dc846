#pragma once
// The small translations between the forms' world and Qt's: colours 0x00BBGGRR, twips,
// fonts, key codes, mouse buttons and the file filters of the common dialog.

#include "forms/controls.h"

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <Qt>

class QKeyEvent;

namespace mk {

// Twips on a 96 dpi screen: 1440 per inch, 15 per pixel.
constexpr int kTwipsPerPixel = 15;
inline int twipsToPixels(int twips) { return twips / kTwipsPerPixel; }
inline int pixelsToTwips(int pixels) { return pixels * kTwipsPerPixel; }

// A colour long 0x00BBGGRR; system colours (high bit set) give an invalid QColor, which
// means "the style's own colour".
QColor toQColor(long vbColour);
long toVbColour(const QColor& colour);

// The font of a control on top of the widget's own font: name, size in points, bold, italic.
QFont toQFont(const FontSpec& wanted, const QFont& base);
FontSpec toFontSpec(const QFont& font);
bool sameFont(const FontSpec& a, const FontSpec& b);

// Key codes as KeyDown sees them (vbKeyF1 …), 0 for keys the old runtime did not report.
int vbKeyCode(int qtKey, Qt::KeyboardModifiers modifiers);
// The character KeyPress carries, 0 when the key gives none (F keys, arrows, Tab, Delete).
int vbKeyAscii(const QKeyEvent& event);
int vbShift(Qt::KeyboardModifiers modifiers);
int vbButton(Qt::MouseButton button);
int vbButtons(Qt::MouseButtons buttons);

// "Text (*.x)|*.x|Alle (*.*)|*.*|" as Qt's name filters: "Text (*.x)", "Alle (*)".
QStringList qtNameFilters(const QString& vbFilter);

// Alignment values of labels and text boxes.
Qt::Alignment toQtAlignment(int vbAlignment);

}  // namespace mk
