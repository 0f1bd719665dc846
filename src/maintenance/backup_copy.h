#pragma once
// The way out with a safety copy: the mask's exit button (and saidapr) asks through Form5,
// which copies the open database and its side files to another drive and directory and
// then ends the system. A drive here is a mount point, joined with the directory.

#include <QString>
#include <QStringList>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The side files of the copy, steps 1 to 24 ("" where a step only counts on).
const QStringList& Sicherungsdateien();

// The folder a drive and a directory of Form5 stand for: a mount point ("" or an old drive
// letter such as "C" or "C:" mean the root) joined with the directory.
QString Sicherungsverzeichnis(const QString& laufwerk, const QString& verzeichnis);

void registerBackupHandlers(HandlerTable& table);

}  // namespace mk
