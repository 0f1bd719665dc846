// The expression language of Sort, Filter and Find: a small recursive-descent parser into an
// immutable tree, and a translator from the tree into SQL whose literals are all bound
// parameters. Names are resolved through the caller, so that an unknown column is an error
// of ours and never of SQLite.

#include "platform/jet_expression.h"

#include <sqlite3.h>

#include <array>
#include <string_view>

namespace mk::jet {

struct Node {
    enum class Kind { Literal, Null, Column, Not, Negate, And, Or, Compare, Like, Between, IsNull, Concat, Call };
    Kind kind = Kind::Literal;
    QString name;         // column, operator ("=", "<>", …) or SQL function name
    QVariant value;       // of a literal
    bool negated = false; // NOT LIKE, NOT BETWEEN, IS NOT NULL
    std::vector<NodePtr> kids;
};

namespace {

[[noreturn]] void refuse(const QString& text)
{
    throw RuntimeError(err::SyntaxInExpression, QStringLiteral("Syntaxfehler im Ausdruck: ") + text);
}

// ---------------------------------------------------------------------------------------
// Tokens

struct Token {
    enum Type { End, Word, Bracketed, Text, Number, Operator, Open, Close, Comma };
    Type type = End;
    QString text;    // word, name, text literal or operator
    QVariant number;
};

bool isNameStart(QChar c) { return c.isLetter() || c == u'_'; }
bool isNamePart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

class Lexer {
public:
    explicit Lexer(const QString& source) : s_(source) {}

    std::vector<Token> run()
    {
        std::vector<Token> tokens;
        for (;;) {
            skipBlanks();
            if (i_ >= s_.size()) {
                tokens.push_back(Token{});
                return tokens;
            }
            tokens.push_back(next());
        }
    }

private:
    void skipBlanks()
    {
        while (i_ < s_.size() && (s_[i_] == u' ' || s_[i_] == u'\t' || s_[i_] == u'\r' || s_[i_] == u'\n'))
            ++i_;
    }

    Token next()
    {
        const QChar c = s_[i_];
        if (c == u'[')
            return bracketed();
        if (c == u'\'' || c == u'"')
            return quoted(c);
        if (c.isDigit() && c.unicode() < 0x80)
            return number();
        if (c == u'.' && i_ + 1 < s_.size() && s_[i_ + 1].unicode() < 0x80 && s_[i_ + 1].isDigit())
            return number();
        if (isNameStart(c))
            return word();
        return symbol();
    }

    Token bracketed()
    {
        const qsizetype close = s_.indexOf(u']', i_ + 1);
        if (close < 0 || close == i_ + 1)
            refuse(s_);
        Token t{Token::Bracketed, s_.mid(i_ + 1, close - i_ - 1), {}};
        i_ = close + 1;
        return t;
    }

    // A doubled quote inside stands for one quote character.
    Token quoted(QChar quote)
    {
        QString text;
        ++i_;
        for (;;) {
            if (i_ >= s_.size())
                refuse(s_);
            if (s_[i_] == quote) {
                if (i_ + 1 < s_.size() && s_[i_ + 1] == quote) {
                    text += quote;
                    i_ += 2;
                    continue;
                }
                ++i_;
                return Token{Token::Text, text, {}};
            }
            text += s_[i_++];
        }
    }

    Token number()
    {
        const qsizetype start = i_;
        auto digits = [&] {
            while (i_ < s_.size() && s_[i_].unicode() < 0x80 && s_[i_].isDigit())
                ++i_;
        };
        digits();
        bool decimal = false;
        if (i_ < s_.size() && s_[i_] == u'.') {
            decimal = true;
            ++i_;
            digits();
        }
        if (i_ < s_.size() && (isNamePart(s_[i_]) || s_[i_] == u'.'))
            refuse(s_);
        const QString text = s_.mid(start, i_ - start);
        Token t{Token::Number, text, {}};
        bool ok = false;
        if (!decimal) {
            const qlonglong v = text.toLongLong(&ok);
            if (ok)
                t.number = v;
        }
        if (!ok) {
            const double v = text.toDouble(&ok);
            if (!ok)
                refuse(s_);
            t.number = v;
        }
        return t;
    }

    Token word()
    {
        const qsizetype start = i_;
        while (i_ < s_.size() && isNamePart(s_[i_]))
            ++i_;
        return Token{Token::Word, s_.mid(start, i_ - start), {}};
    }

    Token symbol()
    {
        const QChar c = s_[i_];
        const QChar d = i_ + 1 < s_.size() ? s_[i_ + 1] : QChar();
        auto take = [&](Token::Type type, qsizetype n) {
            Token t{type, s_.mid(i_, n), {}};
            i_ += n;
            return t;
        };
        switch (c.unicode()) {
        case u'(': return take(Token::Open, 1);
        case u')': return take(Token::Close, 1);
        case u',': return take(Token::Comma, 1);
        case u'=':
        case u'&':
        case u'-': return take(Token::Operator, 1);
        case u'<': return take(Token::Operator, (d == u'>' || d == u'=') ? 2 : 1);
        case u'>': return take(Token::Operator, d == u'=' ? 2 : 1);
        default: refuse(s_);
        }
    }

    const QString& s_;
    qsizetype i_ = 0;
};

// ---------------------------------------------------------------------------------------
// Parser

struct Function {
    const char16_t* name;
    int minArgs;
    int maxArgs;
    const char* sqlName;
};
constexpr std::array<Function, 7> kFunctions{{
    {u"LEFT", 2, 2, "jet_left"},
    {u"RIGHT", 2, 2, "jet_right"},
    {u"MID", 2, 3, "jet_mid"},
    {u"LEN", 1, 1, "jet_len"},
    {u"UCASE", 1, 1, "jet_ucase"},
    {u"LCASE", 1, 1, "jet_lcase"},
    {u"TRIM", 1, 1, "jet_trim"},
}};

const Function* functionNamed(const QString& word)
{
    for (const Function& f : kFunctions)
        if (word.compare(QStringView(f.name), Qt::CaseInsensitive) == 0)
            return &f;
    return nullptr;
}

constexpr std::array<const char16_t*, 11> kReserved{
    {u"AND", u"OR", u"NOT", u"LIKE", u"BETWEEN", u"IS", u"NULL", u"TRUE", u"FALSE", u"ASC", u"DESC"}};

bool isReserved(const QString& word)
{
    for (const char16_t* r : kReserved)
        if (word.compare(QStringView(r), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

std::shared_ptr<Node> make(Node::Kind kind, std::vector<NodePtr> kids = {}, QString name = {})
{
    auto n = std::make_shared<Node>();
    n->kind = kind;
    n->kids = std::move(kids);
    n->name = std::move(name);
    return n;
}

NodePtr literal(QVariant value)
{
    auto n = std::make_shared<Node>();
    n->kind = Node::Kind::Literal;
    n->value = std::move(value);
    return n;
}

// Nesting deeper than this is refused rather than risking the stack on hostile input.
constexpr int kMaxDepth = 200;

class Parser {
public:
    explicit Parser(const QString& source) : source_(source), tokens_(Lexer(source).run()) {}

    NodePtr expressionToEnd()
    {
        NodePtr e = orExpr();
        expectEnd();
        return e;
    }

    std::vector<SortTerm> sortToEnd()
    {
        std::vector<SortTerm> terms;
        if (at(Token::End))
            return terms;
        for (;;) {
            SortTerm term;
            term.expr = orExpr();
            if (isWord("ASC")) {
                ++pos_;
            } else if (isWord("DESC")) {
                term.descending = true;
                ++pos_;
            }
            terms.push_back(std::move(term));
            if (!at(Token::Comma))
                break;
            ++pos_;
        }
        expectEnd();
        return terms;
    }

private:
    struct Deeper {
        explicit Deeper(Parser& p) : p_(p)
        {
            if (++p_.depth_ > kMaxDepth)
                refuse(p_.source_);
        }
        ~Deeper() { --p_.depth_; }
        Parser& p_;
    };

    const Token& cur() const { return tokens_[pos_]; }
    bool at(Token::Type type) const { return cur().type == type; }
    bool isWord(const char* word, size_t ahead = 0) const
    {
        const size_t i = std::min(pos_ + ahead, tokens_.size() - 1);
        return tokens_[i].type == Token::Word
            && tokens_[i].text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    }
    bool isOperator(const char* op) const
    {
        return at(Token::Operator) && cur().text == QLatin1StringView(op);
    }
    void expect(Token::Type type)
    {
        if (!at(type))
            refuse(source_);
        ++pos_;
    }
    void expectWord(const char* word)
    {
        if (!isWord(word))
            refuse(source_);
        ++pos_;
    }
    void expectEnd()
    {
        if (!at(Token::End))
            refuse(source_);
    }

    NodePtr orExpr() { return chain("OR", Node::Kind::Or, &Parser::andExpr); }
    NodePtr andExpr() { return chain("AND", Node::Kind::And, &Parser::notExpr); }

    // AND and OR chains become one node with many operands: a selection joins many lines
    // by OR, and a flat node keeps the translation shallow.
    NodePtr chain(const char* word, Node::Kind kind, NodePtr (Parser::*operand)())
    {
        std::vector<NodePtr> kids{(this->*operand)()};
        while (isWord(word)) {
            ++pos_;
            kids.push_back((this->*operand)());
        }
        return kids.size() == 1 ? kids.front() : make(kind, std::move(kids));
    }

    NodePtr notExpr()
    {
        if (isWord("NOT")) {
            Deeper guard(*this);
            ++pos_;
            return make(Node::Kind::Not, {notExpr()});
        }
        return comparison();
    }

    NodePtr comparison()
    {
        NodePtr left = concat();
        static constexpr std::array<const char*, 6> ops{"=", "<>", "<", ">", "<=", ">="};
        for (const char* op : ops) {
            if (isOperator(op)) {
                ++pos_;
                return make(Node::Kind::Compare, {left, concat()}, QString::fromLatin1(op));
            }
        }
        bool negated = false;
        if (isWord("NOT") && (isWord("LIKE", 1) || isWord("BETWEEN", 1))) {
            negated = true;
            ++pos_;
        }
        if (isWord("LIKE")) {
            ++pos_;
            auto n = make(Node::Kind::Like, {left, concat()});
            n->negated = negated;
            return n;
        }
        if (isWord("BETWEEN")) {
            ++pos_;
            NodePtr low = concat();
            expectWord("AND");
            NodePtr high = concat();
            auto n = make(Node::Kind::Between, {left, low, high});
            n->negated = negated;
            return n;
        }
        if (isWord("IS")) {
            ++pos_;
            if (isWord("NOT")) {
                negated = true;
                ++pos_;
            }
            expectWord("NULL");
            auto n = make(Node::Kind::IsNull, {left});
            n->negated = negated;
            return n;
        }
        return left;
    }

    NodePtr concat()
    {
        std::vector<NodePtr> kids{unary()};
        while (isOperator("&")) {
            ++pos_;
            kids.push_back(unary());
        }
        return kids.size() == 1 ? kids.front() : make(Node::Kind::Concat, std::move(kids));
    }

    NodePtr unary()
    {
        if (isOperator("-")) {
            Deeper guard(*this);
            ++pos_;
            return make(Node::Kind::Negate, {unary()});
        }
        return primary();
    }

    NodePtr primary()
    {
        const Token& t = cur();
        switch (t.type) {
        case Token::Text:
            ++pos_;
            return literal(t.text);
        case Token::Number:
            ++pos_;
            return literal(t.number);
        case Token::Bracketed:
            ++pos_;
            return make(Node::Kind::Column, {}, t.text);
        case Token::Open: {
            Deeper guard(*this);
            ++pos_;
            NodePtr e = orExpr();
            expect(Token::Close);
            return e;
        }
        case Token::Word:
            return wordPrimary();
        default:
            refuse(source_);
        }
    }

    NodePtr wordPrimary()
    {
        const Token& t = cur();
        if (isWord("TRUE") || isWord("FALSE")) {
            const bool value = isWord("TRUE");
            ++pos_;
            return literal(value);
        }
        if (isWord("NULL")) {
            ++pos_;
            return make(Node::Kind::Null);
        }
        if (isReserved(t.text))
            refuse(source_);
        if (tokens_[pos_ + 1].type == Token::Open)
            return call();
        ++pos_;
        return make(Node::Kind::Column, {}, t.text);
    }

    NodePtr call()
    {
        const Function* f = functionNamed(cur().text);
        if (!f)
            refuse(source_);
        Deeper guard(*this);
        pos_ += 2;
        std::vector<NodePtr> args{orExpr()};
        while (at(Token::Comma)) {
            ++pos_;
            args.push_back(orExpr());
        }
        expect(Token::Close);
        if (int(args.size()) < f->minArgs || int(args.size()) > f->maxArgs)
            refuse(source_);
        return make(Node::Kind::Call, std::move(args), QString::fromLatin1(f->sqlName));
    }

    const QString& source_;
    std::vector<Token> tokens_;
    size_t pos_ = 0;
    int depth_ = 0;
};

// ---------------------------------------------------------------------------------------
// Translator

// What a node gives, as far as the tree alone tells.
enum class Kind { Text, Number, Other };

Kind staticKind(const Node& n)
{
    switch (n.kind) {
    case Node::Kind::Literal:
        return n.value.typeId() == QMetaType::QString ? Kind::Text
             : n.value.typeId() == QMetaType::Bool    ? Kind::Other
                                                      : Kind::Number;
    case Node::Kind::Concat: return Kind::Text;
    case Node::Kind::Call: return n.name == QLatin1StringView("jet_len") ? Kind::Number : Kind::Text;
    default: return Kind::Other;
    }
}

bool isNumberLiteral(const Node& n)
{
    return n.kind == Node::Kind::Literal && staticKind(n) == Kind::Number;
}

std::string quoteIdentifier(const QString& name)
{
    std::string out = "\"";
    for (char c : name.toStdString()) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
    return out;
}

// The integer D when text, without its trailing blanks, is exactly how an integer reads as
// text: optional minus, no leading zeros, no plus, within 64 bits. Only then is "the text of
// x equals text" the same as "x = D" for an integer x.
std::optional<qlonglong> integerText(const QString& text)
{
    qsizetype length = text.size();
    while (length > 0 && text[length - 1] == u' ')
        --length;
    const QStringView s = QStringView(text).first(length);
    if (s.isEmpty())
        return std::nullopt;
    for (qsizetype i = 0; i < s.size(); ++i) {
        const char16_t c = s[i].unicode();
        if (!((c >= u'0' && c <= u'9') || (c == u'-' && i == 0)))
            return std::nullopt;
    }
    bool ok = false;
    const qlonglong value = s.toLongLong(&ok);
    if (!ok || numberAsText(value) != s)
        return std::nullopt;
    return value;
}

class Translator {
public:
    Translator(const ColumnResolver& resolve, int firstParam, const IntegerColumn* integerColumn = nullptr)
        : resolve_(resolve), integer_(integerColumn), first_(firstParam)
    {
    }

    std::string sql(const Node& n) { return sql(n, false); }
    Sql take() { return std::move(out_); }

private:
    std::string param(QVariant v)
    {
        out_.params.push_back(std::move(v));
        return "?" + std::to_string(first_ + int(out_.params.size()) - 1);
    }

    // A number compared with a text reads as text, as it does in LEFT(…) = 123.
    std::string sql(const Node& n, bool numberAsTextWanted)
    {
        using K = Node::Kind;
        switch (n.kind) {
        case K::Literal:
            if (numberAsTextWanted && isNumberLiteral(n)) {
                const QVariant& v = n.value;
                return param(v.typeId() == QMetaType::Double ? numberAsText(v.toDouble())
                                                             : numberAsText(v.toLongLong()));
            }
            return param(n.value);
        case K::Null: return "NULL";
        case K::Column: return column(n.name);
        case K::Not: return "(NOT " + sql(*n.kids[0]) + ")";
        case K::Negate: return "(- " + sql(*n.kids[0]) + ")";
        case K::And: return joined(n, " AND ");
        case K::Or: return joined(n, " OR ");
        case K::Compare: {
            const Node& a = *n.kids[0];
            const Node& b = *n.kids[1];
            if (auto byKey = leftOfIntegerEquals(n))
                return *byKey;
            std::string left = sql(a, staticKind(b) == Kind::Text);
            std::string right = sql(b, staticKind(a) == Kind::Text);
            return "(" + left + " COLLATE JETTEXT " + n.name.toStdString() + " " + right + ")";
        }
        case K::Like: {
            std::string call = "jet_like(" + sql(*n.kids[0]) + ", " + sql(*n.kids[1]) + ")";
            return n.negated ? "(NOT " + call + ")" : call;
        }
        case K::Between: {
            const Node& x = *n.kids[0];
            const bool text = staticKind(x) == Kind::Text;
            std::string value = sql(x, staticKind(*n.kids[1]) == Kind::Text || staticKind(*n.kids[2]) == Kind::Text);
            std::string low = sql(*n.kids[1], text);
            std::string high = sql(*n.kids[2], text);
            return "(" + value + " COLLATE JETTEXT " + (n.negated ? "NOT " : "") + "BETWEEN " + low
                + " AND " + high + ")";
        }
        case K::IsNull: return "(" + sql(*n.kids[0]) + (n.negated ? " IS NOT NULL)" : " IS NULL)");
        case K::Concat: return call("jet_concat", n);
        case K::Call: return call(n.name.toStdString(), n);
        }
        return "NULL";
    }

    // LEFT(col, n) = 'D' (either way round) for an integer column and a text D that reads as
    // an integer of fewer than n characters once its trailing blanks are gone. An integer's
    // text has no blanks: if it is longer than n, LEFT gives n characters, which can never
    // equal the shorter D; otherwise LEFT gives the whole text, which equals D exactly when
    // the integer is D (digits and the minus compare exactly in the General order). So the
    // comparison is "col" = D, which finds the row through the key instead of calling LEFT
    // on every row. Anything else keeps the general translation.
    std::optional<std::string> leftOfIntegerEquals(const Node& n)
    {
        if (!integer_ || !*integer_ || n.name != QLatin1StringView("="))
            return std::nullopt;
        for (int side = 0; side < 2; ++side) {
            const Node& call = *n.kids[side];
            const Node& text = *n.kids[1 - side];
            if (call.kind != Node::Kind::Call || call.name != QLatin1StringView("jet_left")
                || call.kids.size() != 2 || call.kids[0]->kind != Node::Kind::Column
                || text.kind != Node::Kind::Literal || text.value.typeId() != QMetaType::QString)
                continue;
            const Node& count = *call.kids[1];
            // Only a whole count that LEFT accepts: a larger one is an error of LEFT's own.
            if (count.kind != Node::Kind::Literal || count.value.typeId() != QMetaType::LongLong
                || count.value.toLongLong() > 2147483647LL)
                continue;
            const std::optional<qlonglong> d = integerText(text.value.toString());
            if (!d || numberAsText(*d).size() >= count.value.toLongLong())
                continue;
            const std::optional<QString> real = resolve_ ? resolve_(call.kids[0]->name) : std::nullopt;
            if (!real || !(*integer_)(*real))
                continue;
            return "(" + quoteIdentifier(*real) + " = " + param(*d) + ")";
        }
        return std::nullopt;
    }

    std::string joined(const Node& n, const char* op)
    {
        std::string out = "(";
        for (size_t i = 0; i < n.kids.size(); ++i) {
            if (i)
                out += op;
            out += sql(*n.kids[i]);
        }
        return out + ")";
    }

    std::string call(const std::string& function, const Node& n)
    {
        std::string out = function + "(";
        for (size_t i = 0; i < n.kids.size(); ++i) {
            if (i)
                out += ", ";
            out += sql(*n.kids[i]);
        }
        return out + ")";
    }

    std::string column(const QString& written)
    {
        const std::optional<QString> real = resolve_ ? resolve_(written) : std::nullopt;
        if (!real)
            throw RuntimeError(err::TooFewParameters,
                               QStringLiteral("1 Parameter wurden erwartet, aber es wurden zu wenig "
                                              "Parameter übergeben. (%1)").arg(written));
        return quoteIdentifier(*real);
    }

    const ColumnResolver& resolve_;
    const IntegerColumn* integer_;
    int first_;
    Sql out_;
};

}  // namespace

NodePtr parseExpression(const QString& text)
{
    return Parser(text).expressionToEnd();
}

std::vector<SortTerm> parseSort(const QString& text)
{
    return Parser(text).sortToEnd();
}

std::optional<QString> plainColumn(const Node& node)
{
    if (node.kind == Node::Kind::Column)
        return node.name;
    return std::nullopt;
}

Sql toSql(const Node& node, const ColumnResolver& resolve, int firstParam)
{
    Translator t(resolve, firstParam);
    std::string text = t.sql(node);
    Sql out = t.take();
    out.text = std::move(text);
    return out;
}

Sql toSql(const Node& node, const ColumnResolver& resolve, const IntegerColumn& integerColumn, int firstParam)
{
    Translator t(resolve, firstParam, &integerColumn);
    std::string text = t.sql(node);
    Sql out = t.take();
    out.text = std::move(text);
    return out;
}

Sql toSql(const std::vector<SortTerm>& sort, const ColumnResolver& resolve, int firstParam)
{
    Translator t(resolve, firstParam);
    std::string text;
    for (const SortTerm& term : sort) {
        if (!text.empty())
            text += ", ";
        text += t.sql(*term.expr) + " COLLATE JETTEXT" + (term.descending ? " DESC" : "");
    }
    Sql out = t.take();
    out.text = std::move(text);
    return out;
}

void bindValue(sqlite3_stmt* stmt, int index, const QVariant& v)
{
    switch (v.isValid() && !v.isNull() ? v.typeId() : QMetaType::UnknownType) {
    case QMetaType::UnknownType: sqlite3_bind_null(stmt, index); break;
    case QMetaType::Bool: sqlite3_bind_int64(stmt, index, v.toBool() ? 1 : 0); break;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char: sqlite3_bind_int64(stmt, index, v.toLongLong()); break;
    case QMetaType::ULongLong:
    case QMetaType::ULong: sqlite3_bind_int64(stmt, index, qint64(v.toULongLong())); break;
    case QMetaType::Double:
    case QMetaType::Float: sqlite3_bind_double(stmt, index, v.toDouble()); break;
    case QMetaType::QByteArray: {
        const QByteArray b = v.toByteArray();
        sqlite3_bind_blob64(stmt, index, b.constData(), sqlite3_uint64(b.size()), SQLITE_TRANSIENT);
        break;
    }
    default: {
        const QByteArray b = v.toString().toUtf8();
        sqlite3_bind_text64(stmt, index, b.constData(), sqlite3_uint64(b.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
        break;
    }
    }
}

void bindParameters(sqlite3_stmt* stmt, const std::vector<QVariant>& params, int firstParam)
{
    int index = firstParam;
    for (const QVariant& v : params)
        bindValue(stmt, index++, v);
}

}  // namespace mk::jet
