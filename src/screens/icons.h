#pragma once
// The pictures of the buttons: small icons drawn once in code, found by the picture names the
// forms use ("select", "order", "cut" …) or by the names of the picture holders that carry
// them ("bildselect", "bildordem", "bildrecortar" …). A picture that is a file is loaded.

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace mk {

// The icon of a picture name or file; a null icon for "" or an unknown name.
QIcon bundledIcon(const QString& picture);
// The picture itself at its own size (a file) or as a drawn icon of the given size.
QPixmap picturePixmap(const QString& picture, int iconSize = 48);
bool isBundledPicture(const QString& picture);

}  // namespace mk
