#pragma once
// The sequential file statements of the old runtime: Write # and Input # for positional
// files, Print # and Line Input # for plain lines.
//
// Files are written in UTF-8, every line ended by CR LF. Reading accepts UTF-8 and takes a
// file that is not valid UTF-8 as Windows-1252, the encoding the old files were made in.
// Paths pass resolvePath() (files.h), so a relative path starts at the ChDir directory.

#include "platform/runtime_error.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <concepts>
#include <memory>
#include <vector>

namespace mk {

// One value of a Write # record, with the type that decides how it is written.
class WriteValue {
public:
    enum class Kind { Null, Text, Boolean, Integer, Single, Double };

    WriteValue(const QString& text) : kind_(Kind::Text), text_(text) {}
    WriteValue(const char* text) : kind_(Kind::Text), text_(QString::fromUtf8(text)) {}
    WriteValue(bool value) : kind_(Kind::Boolean), integer_(value) {}
    template <std::integral T>
        requires(!std::same_as<T, bool> && !std::same_as<T, char>)
    WriteValue(T value) : kind_(Kind::Integer), integer_(static_cast<qint64>(value)) {}
    WriteValue(float value) : kind_(Kind::Single), number_(value) {}
    WriteValue(double value) : kind_(Kind::Double), number_(value) {}

    static WriteValue null() { return WriteValue(); }
    // An invalid variant is Null; bool, integers, float and double keep their kind; anything
    // else is written as its text.
    static WriteValue fromVariant(const QVariant& value);

    Kind kind() const { return kind_; }
    // The value as Write # puts it into the file: "text" (an inner quote as it is), #TRUE#,
    // #FALSE#, 42, 1234.5 (always a point; ".5" without the leading zero), #NULL#.
    QString written() const;

private:
    WriteValue() = default;
    Kind kind_ = Kind::Null;
    QString text_;
    qint64 integer_ = 0;
    double number_ = 0;
};

// One Write # record without its line end: the values separated by commas.
QString writeRecord(const std::vector<WriteValue>& values);

// The text of a file's bytes: UTF-8 when they are valid UTF-8 (a byte order mark is
// dropped), else Windows-1252.
QString decodeTextFile(const QByteArray& bytes);

// Open … For Output / For Append, then Write # and Print #, then Close. Opening raises
// err::PathNotFound for a missing folder and err::PermissionDenied for a file that cannot
// be written. The destructor closes.
// A file opened for output is written beside the old one and takes its place only when it
// is closed whole: a crash, a full disk or an error half way leaves the old file as it was.
// close() raises err::PathFileAccess when the new file could not be put in place; a writer
// that goes out of scope without close() while an error unwinds keeps the old file.
class TextWriter {
public:
    enum class Mode { Output, Append };
    explicit TextWriter(const QString& path, Mode mode = Mode::Output);
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void write(const std::vector<WriteValue>& values);  // Write #: one record, CR LF
    void print(const QString& text = QString());        // Print #: the text, CR LF
    void close();

private:
    void put(const QString& text);
    QSaveFile whole_;  // Output
    QFile appended_;   // Append
    QFileDevice* file_ = nullptr;
    int unwinding_ = 0;  // exceptions in flight when the writer was made
};

// Writes a whole positional file: one value a line, each line ended by CR LF.
void writePositionalFile(const QString& path, const std::vector<WriteValue>& values);
// Writes a whole file of lines with Print #.
void printLines(const QString& path, const QStringList& lines);

// Open … For Input, then Input #, Line Input # and EOF(). Opening raises
// err::FileNotFound for a missing file (err::PathNotFound for a missing folder), so that
// a caller under ignored errors gets the old behaviour. The file is read whole at opening.
class TextReader {
public:
    explicit TextReader(const QString& path);
    static TextReader fromBytes(const QByteArray& bytes);

    // Input #: the next record as a text, whatever its type. Leading blanks and tabs are
    // skipped; a value that opens with a double quote runs to the next double quote, any
    // other to the next comma or line end; then one separator is consumed (after blanks: a
    // comma or a line end), if one follows. err::InputPastEnd at the end of the file.
    QString next();
    // Line Input #: the rest of the line without its end. err::InputPastEnd at the end.
    QString nextLine();
    // EOF().
    bool atEnd() const { return pos_ >= text_.size(); }

private:
    TextReader() = default;
    void skipBlanks();
    void consumeSeparator();
    QString text_;
    qsizetype pos_ = 0;
};

// Every record of a file, read with Input # until EOF(). Raises as the reader opens.
QStringList readRecords(const QString& path);
// Every line of a file, read with Line Input # until EOF(). Raises as the reader opens.
QStringList readLines(const QString& path);

// A positional file read the quiet way: whatever records there are, and whether there was a
// file at all. Never raises, so a missing or short file leaves the caller's defaults.
struct PositionalFile {
    QStringList records;
    bool existed = false;
};
PositionalFile readPositionalFile(const QString& path);

// CBool of a record: "True", "False", "#TRUE#", "#FALSE#" in any case, or a number
// (non-zero is true). Anything else raises err::TypeMismatch.
bool toBoolean(const QString& text);
// Val(): the number at the start of the text. Blanks, tabs and line ends are passed over
// anywhere; only a point is a decimal sign; &H and &O start hexadecimal and octal
// numbers; the first character that fits no number ends it; no number at all is 0.
double Val(const QString& text);

}  // namespace mk
