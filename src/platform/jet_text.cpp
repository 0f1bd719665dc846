// Text semantics of the store: the General order (collation "JETTEXT" and sort keys), LIKE
// with its own wildcards, and the text functions the translated SQL calls.
//
// Everything about order is defined by one byte key per text:
//   primary units (one byte for ASCII; an escape byte and the UTF-8 of a code point for the
//   rest), the end byte 0x01, then one accent byte per unit with the trailing plain ones
//   dropped.
// So the whole base text decides first, and only then the accents ("Apfel" < "Äpfel" <
// "Apfelbaum"); case never counts. compareText takes shortcuts for ASCII but answers exactly
// as a comparison of the keys would.

#include "platform/jet_expression.h"

#include <sqlite3.h>

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace mk::jet {
namespace {

// ---------------------------------------------------------------------------------------
// Weights

constexpr uint8_t kEnd = 0x01;          // ends the primary part; below every unit
constexpr uint8_t kOtherSymbol = 0x44;  // + UTF-8 of the code point: symbols beyond ASCII
constexpr uint8_t kDigit0 = 0x50;       // '0'..'9' are 0x50..0x59
constexpr uint8_t kLetterA = 0x60;      // 'a'..'z' are 0x60..0x79
constexpr uint8_t kOtherLetter = 0x7A;  // + UTF-8 of the folded code point: letters after z

// Accent bytes. Plain is the smallest, so dropping trailing plain bytes keeps the order.
constexpr uint8_t kPlain = 0x01;
constexpr uint8_t kStroke = 0xF8;     // ø, đ, ł, ħ, ŧ
constexpr uint8_t kDotless = 0xF9;    // ı
constexpr uint8_t kOldLetter = 0xFA;  // þ as th, ð as d
constexpr uint8_t kLigature = 0xFB;   // æ as ae, œ as oe
constexpr uint8_t kSharpS = 0xFC;     // ß as ss
constexpr uint8_t kCompat = 0xFD;     // compatibility forms: ﬁ, ², fullwidth letters
constexpr uint8_t kOtherDigit = 0xFE; // decimal digits of other scripts

uint8_t accentOfMark(char32_t mark)
{
    // The common combining accents in code order: grave < acute < circumflex < tilde < … <
    // diaeresis < ring; the rest share a range above.
    if (mark >= 0x300 && mark <= 0x36F)
        return uint8_t(0x02 + (mark - 0x300));
    return uint8_t(0x72 + (mark % 0x80));
}

// Weights of the 128 ASCII characters: symbols and controls first in code order, then digits,
// then letters without regard to case.
constexpr std::array<uint8_t, 128> makeAsciiWeights()
{
    std::array<uint8_t, 128> w{};
    uint8_t symbol = 0x02;
    for (int c = 0; c < 128; ++c) {
        if (c >= '0' && c <= '9')
            w[c] = uint8_t(kDigit0 + (c - '0'));
        else if (c >= 'a' && c <= 'z')
            w[c] = uint8_t(kLetterA + (c - 'a'));
        else if (c >= 'A' && c <= 'Z')
            w[c] = uint8_t(kLetterA + (c - 'A'));
        else
            w[c] = symbol++;
    }
    return w;
}
constexpr std::array<uint8_t, 128> kAscii = makeAsciiWeights();
static_assert(kAscii[0x7F] < kOtherSymbol, "ASCII symbols must fit below the other symbols");

struct Unit {
    char32_t codePoint = 0;  // for the escape leads only
    uint8_t lead = 0;
    uint8_t accent = kPlain;
};

// What one code point adds to a key.
struct Entry {
    uint8_t count = 0;      // primary units; 0 and not a mark: ignored (soft hyphen, joiners)
    bool isMark = false;    // a combining mark: gives the unit before it an accent
    uint8_t markAccent = kPlain;
    std::array<Unit, 3> units{};
};

bool isMarkCategory(QChar::Category c)
{
    return c == QChar::Mark_NonSpacing || c == QChar::Mark_SpacingCombining || c == QChar::Mark_Enclosing;
}

Unit unitOf(char32_t base)
{
    const char32_t c = QChar::toCaseFolded(base);
    if (c < 0x80)
        return Unit{0, kAscii[c], kPlain};
    if (QChar::category(c) == QChar::Number_DecimalDigit)
        return Unit{0, uint8_t(kDigit0 + QChar::digitValue(c)), kOtherDigit};
    if (QChar::isLetter(c))
        return Unit{c, kOtherLetter, kPlain};
    return Unit{c, kOtherSymbol, kPlain};
}

bool special(char32_t c, Entry& e)
{
    auto set = [&](std::initializer_list<char> bases, uint8_t accent) {
        e.count = 0;
        for (char b : bases)
            e.units[e.count++] = Unit{0, kAscii[uchar(b)], accent};
        return true;
    };
    switch (c) {
    case 0xDF: case 0x1E9E: return set({'s', 's'}, kSharpS);
    case 0xE6: case 0xC6: return set({'a', 'e'}, kLigature);
    case 0x153: case 0x152: return set({'o', 'e'}, kLigature);
    case 0xF8: case 0xD8: return set({'o'}, kStroke);
    case 0x111: case 0x110: return set({'d'}, kStroke);
    case 0x142: case 0x141: return set({'l'}, kStroke);
    case 0x127: case 0x126: return set({'h'}, kStroke);
    case 0x167: case 0x166: return set({'t'}, kStroke);
    case 0x131: return set({'i'}, kDotless);
    case 0xFE: case 0xDE: return set({'t', 'h'}, kOldLetter);
    case 0xF0: case 0xD0: return set({'d'}, kOldLetter);
    default: return false;
    }
}

Entry computeEntry(char32_t c)
{
    Entry e;
    if (c < 0x80) {
        e.count = 1;
        e.units[0] = Unit{0, kAscii[c], kPlain};
        return e;
    }
    const QChar::Category category = QChar::category(c);
    if (isMarkCategory(category)) {
        e.isMark = true;
        e.markAccent = accentOfMark(c);
        return e;
    }
    if (category == QChar::Other_Format)
        return e;
    if (special(c, e))
        return e;

    // The base letters of the full decomposition, their marks as accents.
    const QString single = QString::fromUcs4(&c, 1);
    const QString canonical = single.normalized(QString::NormalizationForm_D);
    const QString compat = single.normalized(QString::NormalizationForm_KD);
    const QList<uint> points = compat.toUcs4();
    for (uint p : points) {
        if (isMarkCategory(QChar::category(char32_t(p)))) {
            if (e.count > 0 && e.units[e.count - 1].accent == kPlain)
                e.units[e.count - 1].accent = accentOfMark(p);
            continue;
        }
        if (e.count < e.units.size())
            e.units[e.count++] = unitOf(p);
    }
    if (e.count == 0) {  // nothing but marks: keep the character as a symbol of its own
        e.count = 1;
        e.units[0] = Unit{c, kOtherSymbol, kPlain};
    }
    if (compat != canonical && e.units[0].accent == kPlain)
        e.units[0].accent = kCompat;
    return e;
}

// Entries of the Basic Multilingual Plane, computed a block of 256 at a time on first use.
struct Block {
    std::array<Entry, 256> entries;
};
std::array<std::atomic<Block*>, 256> g_blocks{};

struct BlocksRelease {
    ~BlocksRelease()
    {
        for (auto& b : g_blocks)
            delete b.exchange(nullptr);
    }
} g_blocksRelease;

const Entry& bmpEntry(char32_t c)
{
    std::atomic<Block*>& slot = g_blocks[c >> 8];
    Block* block = slot.load(std::memory_order_acquire);
    if (!block) {
        auto fresh = std::make_unique<Block>();
        const char32_t base = c & ~char32_t(0xFF);
        for (char32_t i = 0; i < 256; ++i)
            fresh->entries[i] = computeEntry(base + i);
        Block* expected = nullptr;
        if (slot.compare_exchange_strong(expected, fresh.get(), std::memory_order_acq_rel))
            block = fresh.release();
        else
            block = expected;
    }
    return block->entries[c & 0xFF];
}

// ---------------------------------------------------------------------------------------
// Code points of UTF-16 and UTF-8 text; broken sequences read as U+FFFD.

template <class F>
void forEachCodePoint(QStringView s, qsizetype from, F&& f)
{
    const char16_t* p = s.utf16();
    const qsizetype n = s.size();
    for (qsizetype i = from; i < n; ++i) {
        char32_t c = p[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < n && p[i + 1] >= 0xDC00 && p[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (p[i + 1] - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        f(c);
    }
}

// Decodes one code point at s[i], advancing i.
char32_t decodeUtf8(const unsigned char* s, int n, int& i)
{
    const unsigned char b = s[i++];
    if (b < 0x80)
        return b;
    int extra = 0;
    char32_t c = 0;
    char32_t min = 0;
    if ((b & 0xE0) == 0xC0) {
        extra = 1, c = b & 0x1F, min = 0x80;
    } else if ((b & 0xF0) == 0xE0) {
        extra = 2, c = b & 0x0F, min = 0x800;
    } else if ((b & 0xF8) == 0xF0) {
        extra = 3, c = b & 0x07, min = 0x10000;
    } else {
        return 0xFFFD;
    }
    for (int k = 0; k < extra; ++k) {
        if (i >= n || (s[i] & 0xC0) != 0x80)
            return 0xFFFD;
        c = (c << 6) | (s[i++] & 0x3F);
    }
    if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
        return 0xFFFD;
    return c;
}

template <class F>
void forEachCodePoint(const unsigned char* s, int n, int from, F&& f)
{
    int i = from;
    while (i < n)
        f(decodeUtf8(s, n, i));
}

// ---------------------------------------------------------------------------------------
// Keys

template <class Out>
void appendUtf8(Out& out, char32_t c)
{
    if (c < 0x80) {
        out.append(char(c));
    } else if (c < 0x800) {
        out.append(char(0xC0 | (c >> 6)));
        out.append(char(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.append(char(0xE0 | (c >> 12)));
        out.append(char(0x80 | ((c >> 6) & 0x3F)));
        out.append(char(0x80 | (c & 0x3F)));
    } else {
        out.append(char(0xF0 | (c >> 18)));
        out.append(char(0x80 | ((c >> 12) & 0x3F)));
        out.append(char(0x80 | ((c >> 6) & 0x3F)));
        out.append(char(0x80 | (c & 0x3F)));
    }
}

// Writes a key; the accent bytes are kept only from the first accent on.
template <class Out>
class KeyWriter {
public:
    explicit KeyWriter(Out& out) : out_(out) {}

    void ascii(char16_t c)
    {
        out_.append(char(kAscii[c]));
        ++units_;
    }

    void codePoint(char32_t c)
    {
        if (c < 0x80) {
            ascii(char16_t(c));
            return;
        }
        const Entry& e = c <= 0xFFFF ? bmpEntry(c) : (spare_ = computeEntry(c));
        if (e.isMark) {
            markLast(e.markAccent);
            return;
        }
        for (int k = 0; k < e.count; ++k) {
            const Unit& u = e.units[k];
            out_.append(char(u.lead));
            if (u.codePoint)
                appendUtf8(out_, u.codePoint);
            ++units_;
            if (u.accent != kPlain)
                setAccent(units_ - 1, u.accent);
        }
    }

    void finish()
    {
        out_.append(char(kEnd));
        for (uint8_t a : accents_)
            out_.append(char(a));
    }

private:
    void setAccent(int unit, uint8_t accent)
    {
        while (accents_.size() < unit)
            accents_.append(kPlain);
        if (accents_.size() == unit)
            accents_.append(accent);
        else
            accents_[unit] = accent;
    }

    // A combining mark accents the unit before it, unless that one has an accent already.
    void markLast(uint8_t accent)
    {
        if (units_ == 0)
            return;
        const int last = units_ - 1;
        if (last < accents_.size() && accents_[last] != kPlain)
            return;
        setAccent(last, accent);
    }

    Out& out_;
    int units_ = 0;
    QVarLengthArray<uint8_t, 64> accents_;
    Entry spare_;
};

QStringView withoutTrailingBlanks(QStringView s)
{
    qsizetype n = s.size();
    while (n > 0 && s[n - 1] == u' ')
        --n;
    return s.first(n);
}

int withoutTrailingBlanks(const unsigned char* s, int n)
{
    while (n > 0 && s[n - 1] == ' ')
        --n;
    return n;
}

template <class Out>
void writeKey(QStringView text, Out& out)
{
    const QStringView s = withoutTrailingBlanks(text);
    KeyWriter<Out> w(out);
    const char16_t* p = s.utf16();
    qsizetype i = 0;
    while (i < s.size() && p[i] < 0x80)
        w.ascii(p[i++]);
    if (i < s.size())
        forEachCodePoint(s, i, [&](char32_t c) { w.codePoint(c); });
    w.finish();
}

template <class Out>
void writeKey(const unsigned char* text, int length, Out& out)
{
    const int n = withoutTrailingBlanks(text, length);
    KeyWriter<Out> w(out);
    int i = 0;
    while (i < n && text[i] < 0x80)
        w.ascii(text[i++]);
    if (i < n)
        forEachCodePoint(text, n, i, [&](char32_t c) { w.codePoint(c); });
    w.finish();
}

using KeyBuffer = QVarLengthArray<char, 256>;

struct StringOut {
    std::string& s;
    void append(char c) { s.push_back(c); }
};

int compareKeys(const KeyBuffer& a, const KeyBuffer& b)
{
    const qsizetype n = std::min(a.size(), b.size());
    const int c = n ? std::memcmp(a.constData(), b.constData(), size_t(n)) : 0;
    if (c != 0)
        return c < 0 ? -1 : 1;
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

// The shared shortcut: while both texts are ASCII the weights decide character by character;
// anything else goes to the keys. Returns 2 when the keys must decide.
template <class Char>
int compareAscii(const Char* a, qsizetype na, const Char* b, qsizetype nb)
{
    const qsizetype n = std::min(na, nb);
    for (qsizetype i = 0; i < n; ++i) {
        const unsigned ca = a[i];
        const unsigned cb = b[i];
        if ((ca | cb) >= 0x80)
            return 2;
        if (kAscii[ca] != kAscii[cb])
            return kAscii[ca] < kAscii[cb] ? -1 : 1;
    }
    if (na == nb)
        return 0;
    // The longer text goes after only if its next character gives a unit for certain.
    if (na > nb)
        return unsigned(a[n]) < 0x80 ? 1 : 2;
    return unsigned(b[n]) < 0x80 ? -1 : 2;
}

int collateJetText(void*, int na, const void* a, int nb, const void* b)
{
    auto* x = static_cast<const unsigned char*>(a);
    auto* y = static_cast<const unsigned char*>(b);
    na = withoutTrailingBlanks(x, na);
    nb = withoutTrailingBlanks(y, nb);
    const int quick = compareAscii(x, na, y, nb);
    if (quick != 2)
        return quick;
    KeyBuffer ka, kb;
    writeKey(x, na, ka);
    writeKey(y, nb, kb);
    return compareKeys(ka, kb);
}

// ---------------------------------------------------------------------------------------
// LIKE

struct PatternItem {
    enum Kind : uint8_t { Char, AnyOne, Digit, Star, Set };
    Kind kind = Char;
    bool negated = false;
    char32_t c = 0;
    int first = 0;  // ranges of a set
    int last = 0;
};

struct Pattern {
    std::vector<PatternItem> items;
    std::vector<std::pair<char32_t, char32_t>> ranges;  // single characters are ranges of one
    std::vector<bool> ordered;                          // a range a-z, by the General order
};

char32_t fold(char32_t c)
{
    if (c < 0x80)
        return (c >= 'A' && c <= 'Z') ? c + 32 : c;
    return QChar::toCaseFolded(c);
}

void addSet(Pattern& p, const std::vector<char32_t>& body, bool negated)
{
    PatternItem item;
    item.kind = PatternItem::Set;
    item.negated = negated;
    item.first = int(p.ranges.size());
    for (size_t i = 0; i < body.size(); ++i) {
        // a-z is a range; a '-' at either end stands for itself.
        if (i + 2 < body.size() && body[i + 1] == U'-') {
            p.ranges.emplace_back(fold(body[i]), fold(body[i + 2]));
            p.ordered.push_back(true);
            i += 2;
        } else {
            p.ranges.emplace_back(fold(body[i]), fold(body[i]));
            p.ordered.push_back(false);
        }
    }
    item.last = int(p.ranges.size());
    p.items.push_back(item);
}

// A '[' without its ']' stands for itself; "[]" matches nothing at all (an empty run).
Pattern compile(const std::vector<char32_t>& pattern)
{
    Pattern p;
    for (size_t i = 0; i < pattern.size(); ++i) {
        const char32_t c = pattern[i];
        if (c == U'*') {
            if (p.items.empty() || p.items.back().kind != PatternItem::Star)
                p.items.push_back(PatternItem{PatternItem::Star});
        } else if (c == U'?') {
            p.items.push_back(PatternItem{PatternItem::AnyOne});
        } else if (c == U'#') {
            p.items.push_back(PatternItem{PatternItem::Digit});
        } else if (c == U'[') {
            size_t close = i + 1;
            while (close < pattern.size() && pattern[close] != U']')
                ++close;
            if (close >= pattern.size()) {
                p.items.push_back(PatternItem{PatternItem::Char, false, U'['});
                continue;
            }
            std::vector<char32_t> body(pattern.begin() + i + 1, pattern.begin() + close);
            i = close;
            if (body.empty())
                continue;
            const bool negated = body.size() > 1 && body.front() == U'!';
            if (negated)
                body.erase(body.begin());
            addSet(p, body, negated);
        } else {
            p.items.push_back(PatternItem{PatternItem::Char, false, fold(c)});
        }
    }
    return p;
}

// Two characters by their base letters in the General order, so that [a-z] holds ä and ź.
int comparePrimary(char32_t a, char32_t b)
{
    if (a < 0x80 && b < 0x80)
        return kAscii[a] < kAscii[b] ? -1 : kAscii[a] > kAscii[b] ? 1 : 0;
    KeyBuffer ka, kb;
    KeyWriter<KeyBuffer> wa(ka), wb(kb);
    wa.codePoint(a);
    wa.finish();
    wb.codePoint(b);
    wb.finish();
    // The primary part ends at the end byte; accents after it do not count here.
    ka.resize(std::find(ka.begin(), ka.end(), char(kEnd)) - ka.begin());
    kb.resize(std::find(kb.begin(), kb.end(), char(kEnd)) - kb.begin());
    return compareKeys(ka, kb);
}

bool matchesOne(const Pattern& p, const PatternItem& item, char32_t c)
{
    switch (item.kind) {
    case PatternItem::Char: return item.c == c;
    case PatternItem::AnyOne: return true;
    case PatternItem::Digit: return c >= U'0' && c <= U'9';
    case PatternItem::Set: {
        bool in = false;
        for (int r = item.first; r < item.last && !in; ++r) {
            const auto [low, high] = p.ranges[size_t(r)];
            in = p.ordered[size_t(r)] ? comparePrimary(low, c) <= 0 && comparePrimary(c, high) <= 0 : c == low;
        }
        return in != item.negated;
    }
    case PatternItem::Star: return false;
    }
    return false;
}

// Stars are retried from the last one only, so the work stays at most text × pattern.
bool matches(const Pattern& p, const std::vector<char32_t>& text)
{
    const size_t n = text.size();
    const size_t m = p.items.size();
    size_t t = 0, k = 0;
    size_t starItem = SIZE_MAX, starText = 0;
    while (t < n) {
        if (k < m && p.items[k].kind == PatternItem::Star) {
            starItem = k++;
            starText = t;
        } else if (k < m && matchesOne(p, p.items[k], text[t])) {
            ++t;
            ++k;
        } else if (starItem != SIZE_MAX) {
            k = starItem + 1;
            t = ++starText;
        } else {
            return false;
        }
    }
    while (k < m && p.items[k].kind == PatternItem::Star)
        ++k;
    return k == m;
}

void foldedCodePoints(QStringView s, std::vector<char32_t>& out)
{
    out.clear();
    forEachCodePoint(s, 0, [&](char32_t c) { out.push_back(fold(c)); });
}

void foldedCodePoints(const unsigned char* s, int n, std::vector<char32_t>& out)
{
    out.clear();
    forEachCodePoint(s, n, 0, [&](char32_t c) { out.push_back(fold(c)); });
}

// ---------------------------------------------------------------------------------------
// SQL functions

// The value as text; false for Null.
bool textOf(sqlite3_value* v, QString& out)
{
    switch (sqlite3_value_type(v)) {
    case SQLITE_NULL: return false;
    case SQLITE_INTEGER: out = numberAsText(qlonglong(sqlite3_value_int64(v))); return true;
    case SQLITE_FLOAT: out = numberAsText(sqlite3_value_double(v)); return true;
    default: {
        auto* p = reinterpret_cast<const char*>(sqlite3_value_text(v));
        out = QString::fromUtf8(p, sqlite3_value_bytes(v));
        return true;
    }
    }
}

// The UTF-8 bytes of a value as text, numbers written as we write them.
bool utf8Of(sqlite3_value* v, QByteArray& scratch, const unsigned char*& p, int& n)
{
    const int type = sqlite3_value_type(v);
    if (type == SQLITE_NULL)
        return false;
    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) {
        scratch = (type == SQLITE_INTEGER ? numberAsText(qlonglong(sqlite3_value_int64(v)))
                                          : numberAsText(sqlite3_value_double(v)))
                      .toUtf8();
        p = reinterpret_cast<const unsigned char*>(scratch.constData());
        n = int(scratch.size());
        return true;
    }
    p = sqlite3_value_text(v);
    n = sqlite3_value_bytes(v);
    if (!p)
        p = reinterpret_cast<const unsigned char*>("");
    return true;
}

void resultText(sqlite3_context* ctx, const QString& s)
{
    const QByteArray b = s.toUtf8();
    sqlite3_result_text64(ctx, b.constData(), sqlite3_uint64(b.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

const char* const kInvalidArgument = "Ungültiger Prozeduraufruf oder ungültiges Argument";

// A count or position argument: a number, rounded as the old runtime rounded (to even).
bool countOf(sqlite3_context* ctx, sqlite3_value* v, qint64 min, qint64& out)
{
    const int type = sqlite3_value_numeric_type(v);
    if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) {
        sqlite3_result_error(ctx, kInvalidArgument, -1);
        return false;
    }
    const double d = std::nearbyint(sqlite3_value_double(v));
    if (!(d >= double(min)) || d > 2147483647.0) {
        sqlite3_result_error(ctx, kInvalidArgument, -1);
        return false;
    }
    out = qint64(d);
    return true;
}

bool anyNull(int argc, sqlite3_value** argv)
{
    for (int i = 0; i < argc; ++i)
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL)
            return true;
    return false;
}

void fnLeft(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    QString s;
    qint64 n = 0;
    if (anyNull(argc, argv) || !textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    if (countOf(ctx, argv[1], 0, n))
        resultText(ctx, s.left(qsizetype(n)));
}

void fnRight(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    QString s;
    qint64 n = 0;
    if (anyNull(argc, argv) || !textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    if (countOf(ctx, argv[1], 0, n))
        resultText(ctx, s.right(qsizetype(n)));
}

void fnMid(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    QString s;
    qint64 start = 0, n = -1;
    if (anyNull(argc, argv) || !textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    if (!countOf(ctx, argv[1], 1, start))
        return;
    if (argc > 2 && !countOf(ctx, argv[2], 0, n))
        return;
    if (start > s.size())
        return resultText(ctx, QString());
    resultText(ctx, s.mid(qsizetype(start - 1), qsizetype(n)));
}

void fnLen(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    QString s;
    if (!textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    sqlite3_result_int64(ctx, s.size());
}

void fnUcase(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    QString s;
    if (!textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    resultText(ctx, s.toUpper());
}

void fnLcase(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    QString s;
    if (!textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    resultText(ctx, s.toLower());
}

// Trims blanks only, as the old TRIM did; tabs and line breaks stay.
void fnTrim(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    QString s;
    if (!textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    qsizetype b = 0, e = s.size();
    while (b < e && s[b] == u' ')
        ++b;
    while (e > b && s[e - 1] == u' ')
        --e;
    resultText(ctx, s.mid(b, e - b));
}

void fnText(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    QString s;
    if (!textOf(argv[0], s))
        return sqlite3_result_null(ctx);
    resultText(ctx, s);
}

// a & b: Null counts as the empty text; only when every part is Null is the whole Null.
void fnConcat(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    QString out;
    bool any = false;
    for (int i = 0; i < argc; ++i) {
        QString part;
        if (textOf(argv[i], part)) {
            out += part;
            any = true;
        }
    }
    if (!any)
        return sqlite3_result_null(ctx);
    resultText(ctx, out);
}

void deletePattern(void* p) { delete static_cast<Pattern*>(p); }

// jet_like(text, pattern): Null when either is Null. The compiled pattern is kept with the
// statement while the pattern argument stays the same.
void fnLike(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL)
        return sqlite3_result_null(ctx);
    thread_local std::vector<char32_t> buffer;
    QByteArray scratch;
    const unsigned char* p = nullptr;
    int n = 0;

    auto* cached = static_cast<Pattern*>(sqlite3_get_auxdata(ctx, 1));
    std::unique_ptr<Pattern> fresh;
    if (!cached) {
        utf8Of(argv[1], scratch, p, n);
        foldedCodePoints(p, n, buffer);
        fresh = std::make_unique<Pattern>(compile(buffer));
    }
    const Pattern& pattern = cached ? *cached : *fresh;
    utf8Of(argv[0], scratch, p, n);
    foldedCodePoints(p, n, buffer);
    sqlite3_result_int(ctx, matches(pattern, buffer) ? 1 : 0);
    if (fresh)
        sqlite3_set_auxdata(ctx, 1, fresh.release(), deletePattern);
}

}  // namespace

// ---------------------------------------------------------------------------------------

QString numberAsText(qlonglong value)
{
    return QString::number(value);
}

QString numberAsText(double value)
{
    if (std::isfinite(value) && value == std::trunc(value) && std::fabs(value) < 1e15)
        return QString::number(qlonglong(value));
    return QString::number(value, 'g', 15).toUpper();
}

int compareText(const QString& a, const QString& b)
{
    const QStringView x = withoutTrailingBlanks(a);
    const QStringView y = withoutTrailingBlanks(b);
    const int quick = compareAscii(x.utf16(), x.size(), y.utf16(), y.size());
    if (quick != 2)
        return quick;
    KeyBuffer ka, kb;
    writeKey(x, ka);
    writeKey(y, kb);
    return compareKeys(ka, kb);
}

void appendSortKey(QStringView text, QByteArray& key)
{
    writeKey(text, key);
}

void appendSortKeyUtf8(const char* utf8, qsizetype length, std::string& key)
{
    StringOut out{key};
    writeKey(reinterpret_cast<const unsigned char*>(utf8), int(length), out);
}

QByteArray sortKey(const QString& text)
{
    QByteArray key;
    key.reserve(text.size() + 8);
    writeKey(QStringView(text), key);
    return key;
}

bool like(const QString& text, const QString& pattern)
{
    std::vector<char32_t> t, p;
    foldedCodePoints(pattern, p);
    const Pattern compiled = compile(p);
    foldedCodePoints(text, t);
    return matches(compiled, t);
}

void registerFunctions(sqlite3* db)
{
    struct Function {
        const char* name;
        int args;
        void (*fn)(sqlite3_context*, int, sqlite3_value**);
    };
    static constexpr Function functions[] = {
        {"jet_left", 2, fnLeft},   {"jet_right", 2, fnRight}, {"jet_mid", 2, fnMid},
        {"jet_mid", 3, fnMid},     {"jet_len", 1, fnLen},     {"jet_ucase", 1, fnUcase},
        {"jet_lcase", 1, fnLcase}, {"jet_trim", 1, fnTrim},   {"jet_text", 1, fnText},
        {"jet_concat", -1, fnConcat}, {"jet_like", 2, fnLike},
    };
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    int rc = sqlite3_create_collation_v2(db, "JETTEXT", SQLITE_UTF8, nullptr, collateJetText, nullptr);
    for (const Function& f : functions) {
        if (rc != SQLITE_OK)
            break;
        rc = sqlite3_create_function_v2(db, f.name, f.args, flags, nullptr, f.fn, nullptr, nullptr, nullptr);
    }
    if (rc != SQLITE_OK)
        throw RuntimeError(3000, QStringLiteral("Reservierter Fehler: ") + QString::fromUtf8(sqlite3_errmsg(db)));
}

}  // namespace mk::jet
