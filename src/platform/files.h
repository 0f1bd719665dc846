#pragma once
// The file statements of the old runtime: Dir, FileCopy, Kill, Name, MkDir, FileLen,
// FileDateTime, ChDir/CurDir/ChDrive, on std::filesystem and Qt.
//
// Every path given to these functions, to the text files and to the profile functions
// passes resolvePath(): either separator is accepted, a relative path is taken from the
// current directory of ChDir (the process's own working directory is never changed),
// the literal Windows folder "c:\windows" means windowsDirectory(), and a name that is not
// found as written is looked up without regard to case, as the old file system did.

#include "platform/paths.h"
#include "platform/runtime_error.h"

#include <QDateTime>
#include <QString>

namespace mk {

// Raises RuntimeError(number) with the runtime's German description of that number.
[[noreturn]] void raiseFileError(int number);
QString fileErrorDescription(int number);

// The absolute path a program path stands for (see above). "" means the current directory.
QString resolvePath(const QString& path);

// A file of the Windows directory by its bare name ("win.ini", "Win.ini",
// "MERKKARTELLE.INI"): the file there that matches without regard to case, else the
// name as it is kept there.
QString windowsDirectoryFile(const QString& name);

// ChDir: err::PathNotFound when the folder does not exist. CurDir starts as the process's
// working directory. ChDrive does nothing: there are no drive letters here.
void ChDir(const QString& path);
QString CurDir();
inline void ChDrive(const QString&) {}

// Dir(pattern): the name (without folder) of the first file that matches, or "". The name
// part may hold * and ?. A folder that does not exist raises err::PathNotFound, as an
// invalid drive did; an empty pattern lists the current directory.
QString Dir(const QString& pattern);
// Dir(): the next match of the last Dir(pattern), or "" when there is none left.
QString Dir();

// FileCopy: overwrites the target and keeps the source's modification time.
// err::FileNotFound (missing source), err::PathNotFound (missing folder),
// err::PermissionDenied (source and target the same file), err::PathFileAccess.
void FileCopy(const QString& source, const QString& destination);

// Kill: removes every file matching the pattern; err::FileNotFound when none does.
void Kill(const QString& pattern);

// Name old As new: err::FileNotFound, err::FileAlreadyExists, err::PathNotFound.
void Name(const QString& oldPath, const QString& newPath);

// MkDir: err::PathFileAccess when it exists, err::PathNotFound without its parent.
void MkDir(const QString& path);

// err::FileNotFound for a missing file.
qint64 FileLen(const QString& path);
QDateTime FileDateTime(const QString& path);

// Matches a file name against a pattern with * and ?, without regard to case; "x.*" also
// matches "x", as the old file system did.
bool matchesFilePattern(const QString& name, const QString& pattern);

}  // namespace mk
