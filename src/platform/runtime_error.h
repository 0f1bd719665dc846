#pragma once
// Run-time errors of the platform layer: a number and a text, as the old runtime raised them.
// Handlers that the system runs "under ignored errors" say so at the call site with
// underIgnoredErrors(); nothing catches errors wholesale.

#include <QString>
#include <exception>
#include <string>
#include <utility>

namespace mk {

class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString description)
        : Number(number), Description(std::move(description)),
          utf8_(QString::number(number).toStdString() + ": " + Description.toStdString()) {}
    const char* what() const noexcept override { return utf8_.c_str(); }

    int Number;
    QString Description;

private:
    std::string utf8_;
};

// Runs one step and swallows a RuntimeError it raises, as "On Error Resume Next" did for
// that step. Returns false when the step failed, so that callers may look, as the old code
// looked at Err.
template <class Step>
bool underIgnoredErrors(Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

// Error numbers the system and its tests rely on.
namespace err {
constexpr int TypeMismatch = 13;        // a text that is no boolean
constexpr int BadFileName = 52;
constexpr int FileNotFound = 53;        // Dir/Kill/Name/FileLen on a missing file
constexpr int PathFileAccess = 75;      // MkDir on an existing folder, a failed copy or rename
constexpr int FileAlreadyExists = 58;   // Name onto an existing file
constexpr int DiskFull = 61;            // a write that found no room on the disk
constexpr int PathNotFound = 76;        // a folder that does not exist
constexpr int PermissionDenied = 70;
constexpr int InputPastEnd = 62;        // Input # past the end of a file
constexpr int FieldTooSmall = 3163;     // text longer than the column's size
constexpr int NoCurrentRecord = 3021;
constexpr int ItemNotFound = 3265;      // Fields(name) of a column the table lacks
constexpr int UpdateWithoutEdit = 3020;
constexpr int ChangedMeanwhile = 3197;  // another program changed the row since Edit
constexpr int ReadOnlyDatabase = 3027;
constexpr int SyntaxInExpression = 3075;
constexpr int TooFewParameters = 3061;  // a name in an expression that is no column
constexpr int CannotOpenTable = 3078;   // unknown table name
constexpr int FileNotFoundDb = 3024;    // OpenDatabase on a missing file
constexpr int FileInUse = 3045;         // locked by an exclusive opener, or open when compacted
constexpr int UnrecognizedFormat = 3343; // not a database at all
constexpr int JetFormat = 3344;         // a real Jet file: must be converted first
constexpr int DatabaseDamaged = 3049;   // the file is a database, but damaged
constexpr int InvalidBookmark = 3159;
constexpr int ObjectClosed = 3420;
}  // namespace err

}  // namespace mk
