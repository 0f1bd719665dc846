#pragma once
// Splitting and joining paths. The old code split at the last backslash; here a path may
// carry either separator, since paths typed or stored in the old notation still reach us.

#include <QString>

namespace mk {

// Both '\' and '/' separate the parts of a path.
bool isPathSeparator(QChar c);

// The part behind the last separator; the whole path when it has none; "" for "".
QString DateiName(const QString& path);

// The part before the last separator; "" when there is none and for "". A path whose only
// separator is its root ("/karten.mdb") keeps the root, so that joining it again works.
QString DateiPfad(const QString& path);

// dir + the platform separator + name; no doubled separator when dir ends in one; name alone
// when dir is empty.
QString joinPath(const QString& dir, const QString& name);

}  // namespace mk
