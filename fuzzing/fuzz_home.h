#pragma once
// The folder the fuzz targets write their files into, and a system object to read them with.

#include "card/app_state.h"

#include <QByteArray>
#include <QString>

namespace mk::fuzz {

// A temporary folder, the same for the whole run, removed at the end.
QString fuzzHome();
void writeFuzzFile(const QString& path, const QByteArray& bytes);

// A system object with the scripted user interface and a still clock, its session in the
// fuzz folder: every reader that takes the system object runs on it.
Merkkartelle& fuzzSystem();

}  // namespace mk::fuzz
