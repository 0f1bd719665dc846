#include "platform/text_files.h"

#include "platform/files.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <charconv>
#include <exception>
#include <string>

namespace mk {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

// Numbers are written as the runtime wrote them: significant digits only, a point, no
// leading zero before it, an upper-case exponent.
QString writtenNumber(double value, int digits)
{
    QString text = QString::number(value, 'G', digits);
    if (text.startsWith(QLatin1String("0.")))
        text.remove(0, 1);
    else if (text.startsWith(QLatin1String("-0.")))
        text.remove(1, 1);
    else if (text == QLatin1String("-0"))
        text = QStringLiteral("0");
    return text;
}

// The folder must exist and the path must not be one.
QString openablePath(const QString& path)
{
    const QString resolved = resolvePath(path);
    if (!QFileInfo(DateiPfad(resolved)).isDir())
        raiseFileError(err::PathNotFound);
    if (QFileInfo(resolved).isDir())
        raiseFileError(err::PathFileAccess);
    return resolved;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

bool isValBlank(QChar c)
{
    return isBlank(c) || isLineEnd(c);
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The &H and &O numbers of Val(): four digits or fewer make a 16-bit integer, up to eight
// a 32-bit one, so that "&HFFFF" is -1 as it was.
double radixValue(const QString& digits, int radix)
{
    bool ok = false;
    const quint64 raw = digits.toULongLong(&ok, radix);
    if (!ok)
        return 0;
    const int bits = radix == 16 ? 4 * int(digits.size()) : 3 * int(digits.size());
    if (bits <= 16)
        return static_cast<qint16>(raw);
    if (bits <= 32 || raw <= 0xFFFFFFFFull)
        return static_cast<qint32>(raw);
    return static_cast<double>(raw);
}

}  // namespace

// ---- Write # ---------------------------------------------------------------------------

WriteValue WriteValue::fromVariant(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        return null();
    switch (value.typeId()) {
    case QMetaType::Bool: return WriteValue(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULong:
    case QMetaType::ULongLong: return WriteValue(value.toLongLong());
    case QMetaType::Float: return WriteValue(value.toFloat());
    case QMetaType::Double: return WriteValue(value.toDouble());
    default: return WriteValue(value.toString());
    }
}

QString WriteValue::written() const
{
    switch (kind_) {
    case Kind::Null: return QStringLiteral("#NULL#");
    case Kind::Text: return u'"' + text_ + u'"';
    case Kind::Boolean: return integer_ ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
    case Kind::Integer: return QString::number(integer_);
    case Kind::Single: return writtenNumber(number_, 7);
    case Kind::Double: return writtenNumber(number_, 15);
    }
    return QString();
}

QString writeRecord(const std::vector<WriteValue>& values)
{
    QStringList parts;
    parts.reserve(qsizetype(values.size()));
    for (const WriteValue& value : values)
        parts.append(value.written());
    return parts.join(u',');
}

TextWriter::TextWriter(const QString& path, Mode mode) : unwinding_(std::uncaught_exceptions())
{
    const QString resolved = openablePath(path);
    bool opened = false;
    if (mode == Mode::Append) {
        appended_.setFileName(resolved);
        opened = appended_.open(QIODevice::Append);
        file_ = &appended_;
    } else {
        // A read-only file must not be replaced behind its back: the rename would do it.
        const QFileInfo old(resolved);
        whole_.setFileName(resolved);
        whole_.setDirectWriteFallback(true);  // a folder we may not create files in: write in place
        opened = !(old.exists() && !old.isWritable()) && whole_.open(QIODevice::WriteOnly);
        file_ = &whole_;
    }
    if (!opened)
        raiseFileError(err::PermissionDenied);
}

TextWriter::~TextWriter()
{
    if (!file_->isOpen())
        return;
    if (file_ == &whole_ && std::uncaught_exceptions() > unwinding_)
        whole_.cancelWriting();  // an error half way: the old file stays
    try {
        close();
    } catch (const RuntimeError&) {
        // A destructor cannot report; callers that must know call close() themselves.
    }
}

void TextWriter::put(const QString& text)
{
    if (!file_->isOpen())
        raiseFileError(err::BadFileName);
    const QByteArray bytes = text.toUtf8();
    if (file_->write(bytes) != bytes.size())
        raiseFileError(err::PathFileAccess);
}

void TextWriter::write(const std::vector<WriteValue>& values)
{
    put(writeRecord(values) + LineEnd);
}

void TextWriter::print(const QString& text)
{
    put(text + LineEnd);
}

void TextWriter::close()
{
    if (!file_->isOpen())
        return;
    if (file_ == &appended_) {
        const bool flushed = appended_.flush();
        appended_.close();
        if (!flushed)
            raiseFileError(err::PathFileAccess);
    } else if (!whole_.commit()) {
        raiseFileError(err::PathFileAccess);
    }
}

void writePositionalFile(const QString& path, const std::vector<WriteValue>& values)
{
    TextWriter writer(path);
    for (const WriteValue& value : values)
        writer.write({value});
    writer.close();
}

void printLines(const QString& path, const QStringList& lines)
{
    TextWriter writer(path);
    for (const QString& line : lines)
        writer.print(line);
    writer.close();
}

// ---- Input # ---------------------------------------------------------------------------

QString decodeTextFile(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringConverter::Utf8);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    QStringDecoder windows1252("windows-1252");
    if (windows1252.isValid())
        return windows1252.decode(bytes);
    return QString::fromLatin1(bytes);
}

TextReader::TextReader(const QString& path)
{
    const QString resolved = openablePath(path);
    QFile file(resolved);
    if (!file.exists())
        raiseFileError(err::FileNotFound);
    if (!file.open(QIODevice::ReadOnly))
        raiseFileError(err::PermissionDenied);
    text_ = decodeTextFile(file.readAll());
}

TextReader TextReader::fromBytes(const QByteArray& bytes)
{
    TextReader reader;
    reader.text_ = decodeTextFile(bytes);
    return reader;
}

void TextReader::skipBlanks()
{
    while (pos_ < text_.size() && isBlank(text_.at(pos_)))
        ++pos_;
}

void TextReader::consumeSeparator()
{
    skipBlanks();
    if (atEnd())
        return;
    const QChar c = text_.at(pos_);
    if (c == u',' || c == u'\n') {
        ++pos_;
    } else if (c == u'\r') {
        ++pos_;
        if (!atEnd() && text_.at(pos_) == u'\n')
            ++pos_;
    }
}

QString TextReader::next()
{
    if (atEnd())
        raiseFileError(err::InputPastEnd);
    skipBlanks();
    QString value;
    if (!atEnd() && text_.at(pos_) == u'"') {
        const qsizetype start = pos_ + 1;
        qsizetype close = text_.indexOf(u'"', start);
        if (close < 0)
            close = text_.size();
        value = text_.mid(start, close - start);
        pos_ = qMin(close + 1, text_.size());
    } else {
        const qsizetype start = pos_;
        while (pos_ < text_.size() && text_.at(pos_) != u',' && !isLineEnd(text_.at(pos_)))
            ++pos_;
        value = text_.mid(start, pos_ - start);
    }
    consumeSeparator();
    return value;
}

QString TextReader::nextLine()
{
    if (atEnd())
        raiseFileError(err::InputPastEnd);
    const qsizetype start = pos_;
    while (pos_ < text_.size() && !isLineEnd(text_.at(pos_)))
        ++pos_;
    const QString line = text_.mid(start, pos_ - start);
    if (!atEnd()) {
        const bool carriageReturn = text_.at(pos_) == u'\r';
        ++pos_;
        if (carriageReturn && !atEnd() && text_.at(pos_) == u'\n')
            ++pos_;
    }
    return line;
}

QStringList readRecords(const QString& path)
{
    TextReader reader(path);
    QStringList records;
    while (!reader.atEnd())
        records.append(reader.next());
    return records;
}

QStringList readLines(const QString& path)
{
    TextReader reader(path);
    QStringList lines;
    while (!reader.atEnd())
        lines.append(reader.nextLine());
    return lines;
}

PositionalFile readPositionalFile(const QString& path)
{
    PositionalFile file;
    underIgnoredErrors([&] {
        file.records = readRecords(path);
        file.existed = true;
    });
    return file;
}

// ---- conversions ----------------------------------------------------------------------

bool toBoolean(const QString& text)
{
    const QString word = text.trimmed();
    for (const char* yes : {"True", "#TRUE#"}) {
        if (word.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    for (const char* no : {"False", "#FALSE#"}) {
        if (word.compare(QLatin1String(no), Qt::CaseInsensitive) == 0)
            return false;
    }
    bool ok = false;
    const double number = word.toDouble(&ok);
    if (!ok)
        raiseFileError(err::TypeMismatch);
    return number != 0;
}

double Val(const QString& text)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    const auto skip = [&] {
        while (i < n && isValBlank(text.at(i)))
            ++i;
    };
    const auto peek = [&](qsizetype at) { return at < n ? text.at(at) : QChar(); };

    skip();
    if (peek(i) == u'&') {
        const QChar kind = peek(i + 1).toUpper();
        const int radix = kind == u'H' ? 16 : kind == u'O' ? 8 : 0;
        if (radix == 0)
            return 0;
        QString digits;
        for (i += 2, skip(); i < n; ++i, skip()) {
            const QChar c = text.at(i);
            bool ok = false;
            QString(c).toInt(&ok, radix);
            if (!ok)
                break;
            digits += c;
        }
        return radixValue(digits, radix);
    }

    std::string number;
    if (peek(i) == u'-' || peek(i) == u'+') {
        if (text.at(i) == u'-')
            number += '-';
        ++i;
        skip();
    }
    const auto takeDigits = [&] {
        for (; i < n && isDigit(text.at(i)); ++i, skip())
            number += char(text.at(i).unicode());
    };
    takeDigits();
    if (peek(i) == u'.') {
        number += '.';
        ++i;
        skip();
        takeDigits();
    }
    const QChar e = peek(i).toUpper();
    if (e == u'E' || e == u'D') {
        qsizetype j = i + 1;
        while (j < n && isValBlank(text.at(j)))
            ++j;
        std::string exponent = "e";
        if (peek(j) == u'-' || peek(j) == u'+') {
            exponent += char(text.at(j).unicode());
            ++j;
            while (j < n && isValBlank(text.at(j)))
                ++j;
        }
        if (isDigit(peek(j))) {
            number += exponent;
            i = j;
            takeDigits();
        }
    }
    double value = 0;
    const char* begin = number.data();
    if (!number.empty() && number.front() == '-')
        ++begin;
    std::from_chars(begin, number.data() + number.size(), value);
    return begin != number.data() ? -value : value;
}

}  // namespace mk
