#include "sample_cards.h"

#include "platform/schema.h"
#include "platform/store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <map>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace mk::bench {

namespace {

// A small deterministic generator, the same on every platform.
class Random {
public:
    explicit Random(std::uint32_t seed) : state_(seed * 2654435761u + 1) {}
    std::uint32_t next()
    {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return std::uint32_t(state_ >> 11);
    }
    int below(int n) { return int(next() % std::uint32_t(n)); }
    bool chance(int percent) { return below(100) < percent; }
    template <class T, std::size_t N>
    const T& pick(const std::array<T, N>& list) { return list[std::size_t(below(int(N)))]; }
    std::string digits(int n)
    {
        std::string s;
        for (int i = 0; i < n; ++i)
            s += char('0' + below(10));
        return s;
    }

private:
    std::uint64_t state_;
};

const std::array<const char*, 48> FirstNames = {
    "Jürgen", "Björn", "Jörg", "Günter", "Käthe", "Sören", "Anna", "Peter", "Hans", "Ursula",
    "Monika", "Klaus", "Sabine", "Thomas", "Michael", "Andrea", "Stefan", "Petra", "Wolfgang",
    "Gisela", "Uwe", "Renate", "Dieter", "Brigitte", "Frank", "Karin", "Bernd", "Helga", "Jürgen",
    "Lars", "Jens", "Maximilian", "Lea", "Lukas", "Sophie", "Jonas", "Marie", "Felix", "Emma",
    "Tobias", "Hannah", "Sebastian", "Nele", "Jan", "Mia", "Ömer", "Ayşe", "Zoë"};

const std::array<const char*, 96> LastNames = {
    "Müller", "Schmidt", "Schneider", "Fischer", "Weber", "Meyer", "Wagner", "Becker", "Schulz",
    "Hoffmann", "Schäfer", "Koch", "Bauer", "Richter", "Klein", "Wolf", "Schröder", "Neumann",
    "Schwarz", "Zimmermann", "Braun", "Krüger", "Hofmann", "Hartmann", "Lange", "Schmitt",
    "Werner", "Schmitz", "Krause", "Meier", "Lehmann", "Schmid", "Schulze", "Maier", "Köhler",
    "Herrmann", "König", "Walter", "Mayer", "Huber", "Kaiser", "Fuchs", "Peters", "Lang", "Scholz",
    "Möller", "Weiß", "Jung", "Hahn", "Schubert", "Vogel", "Friedrich", "Keller", "Günther",
    "Frank", "Berger", "Winkler", "Roth", "Beck", "Lorenz", "Baumann", "Franke", "Albrecht",
    "Schuster", "Simon", "Ludwig", "Böhm", "Winter", "Kraus", "Martin", "Schumacher", "Krämer",
    "Vogt", "Stein", "Jäger", "Otto", "Sommer", "Groß", "Seidel", "Heinrich", "Brandt", "Haas",
    "Müllner", "Müllenbach", "Mühlbauer", "Mueller", "Düring", "Öztürk", "Ühlein", "Äbersold",
    "von Ahlen", "Straße", "Strauß", "Graf", "Kühn", "Dietrich"};

const std::array<const char*, 12> FirmForms = {"GmbH", "AG", "KG", "GmbH & Co. KG", "OHG", "e.K.",
                                               "& Söhne", "GbR", "mbH", "UG", "e.V.", "Partner"};
const std::array<const char*, 10> Trades = {"Bäckerei", "Autohaus", "Metzgerei", "Schreinerei",
                                            "Steuerbüro", "Apotheke", "Reisebüro", "Gärtnerei",
                                            "Elektro", "Druckerei"};
const std::array<const char*, 8> Departments = {"Einkauf", "Vertrieb", "Buchhaltung", "Personal",
                                                "Geschäftsführung", "Lager", "Versand", "Technik"};
const std::array<const char*, 16> Streets = {
    "Hauptstraße", "Bahnhofstraße", "Schillerstraße", "Goethestraße", "Am Mühlbach",
    "Lindenallee", "Gartenweg", "Königsallee", "Rosenweg", "Kirchplatz", "Schloßstraße",
    "Bergstraße", "Waldweg", "Dorfstraße", "Mühlenweg", "Friedrich-Ebert-Straße"};

struct City {
    const char* name;
    const char* plz;
    const char* area;
    const char* state;
};
const std::array<City, 20> Cities = {{
    {"Berlin", "10", "030", "Berlin"},          {"Hamburg", "20", "040", "Hamburg"},
    {"München", "80", "089", "Bayern"},         {"Köln", "50", "0221", "Nordrhein-Westfalen"},
    {"Frankfurt am Main", "60", "069", "Hessen"}, {"Stuttgart", "70", "0711", "Baden-Württemberg"},
    {"Düsseldorf", "40", "0211", "Nordrhein-Westfalen"}, {"Leipzig", "04", "0341", "Sachsen"},
    {"Dresden", "01", "0351", "Sachsen"},        {"Hannover", "30", "0511", "Niedersachsen"},
    {"Nürnberg", "90", "0911", "Bayern"},        {"Bremen", "28", "0421", "Bremen"},
    {"Münster", "48", "0251", "Nordrhein-Westfalen"}, {"Würzburg", "97", "0931", "Bayern"},
    {"Göttingen", "37", "0551", "Niedersachsen"}, {"Lübeck", "23", "0451", "Schleswig-Holstein"},
    {"Saarbrücken", "66", "0681", "Saarland"},   {"Osnabrück", "49", "0541", "Niedersachsen"},
    {"Bonn", "53", "0228", "Nordrhein-Westfalen"}, {"Erfurt", "99", "0361", "Thüringen"}}};
const std::array<const char*, 8> Districts = {"Altstadt", "Neustadt", "Nord", "Süd", "Oststadt",
                                              "Weststadt", "Zentrum", "Mühlenviertel"};
const std::array<const char*, 6> Banks = {"Sparkasse", "Volksbank", "Deutsche Bank", "Commerzbank",
                                          "Postbank", "Raiffeisenbank"};
const std::array<const char*, 6> Keys = {"Kunde", "Privat", "Lieferant", "Freund", "Verein", "Amt"};
const std::array<const char*, 10> Notes = {
    "Ruft meist vormittags an.", "Weihnachtskarte schicken.", "Rechnung offen seit März.",
    "Über Herrn Köhler kennengelernt.", "Bevorzugt Kontakt per Brief; keine Anrufe nach 18 Uhr.",
    "Termin für das nächste Jahresgespräch vereinbaren.", "Große Bestellung im Frühjahr erwartet.",
    "Hat zwei Kinder, Jonas und Lea.", "Schlüssel für das Büro liegt beim Nachbarn.",
    "Zahlt immer pünktlich; Rabatt von drei Prozent gewähren."};

std::string ascii(const std::string& s)
{
    static const std::map<std::string, std::string> plain = {
        {"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}, {"Ä", "Ae"}, {"Ö", "Oe"}, {"Ü", "Ue"},
        {"ş", "s"},  {"ë", "e"},  {" ", ""}};
    std::string out;
    for (std::size_t i = 0; i < s.size();) {
        bool done = false;
        for (const auto& [from, to] : plain) {
            if (s.compare(i, from.size(), from) == 0) {
                out += to;
                i += from.size();
                done = true;
                break;
            }
        }
        if (!done)
            out += char(std::tolower(static_cast<unsigned char>(s[i++])));
    }
    return out;
}

std::string twoDigits(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

std::string date(Random& r, int fromYear, int years)
{
    return twoDigits(1 + r.below(28)) + "." + twoDigits(1 + r.below(12)) + "." + std::to_string(fromYear + r.below(years));
}

std::string time(Random& r) { return twoDigits(r.below(24)) + ":" + twoDigits(r.below(60)) + ":" + twoDigits(r.below(60)); }

using Card = std::map<std::string, std::string>;

Card sampleCard(Random& r)
{
    Card c;
    const std::string last = r.pick(LastNames);
    const std::string first = r.pick(FirstNames);
    const City& city = r.pick(Cities);
    c["Nachname"] = last;
    c["Vorname"] = first;
    c["Schluessel"] = r.pick(Keys);
    if (r.chance(10))
        c["Titel"] = r.chance(70) ? "Dr." : "Prof. Dr.";
    if (r.chance(60)) {
        c["Firma"] = r.chance(50) ? std::string(r.pick(LastNames)) + " " + r.pick(FirmForms)
                                  : std::string(r.pick(Trades)) + " " + r.pick(LastNames);
        c["Departament"] = r.pick(Departments);
        if (r.chance(30))
            c["Firmenregisternummer"] = "HRB " + r.digits(5);
    } else if (r.chance(50)) {
        c["Firma"] = "";  // the rest keep a Null firm
    }
    c["Strasse"] = std::string(r.pick(Streets)) + " " + std::to_string(1 + r.below(180));
    c["PLZ"] = std::string(city.plz) + r.digits(3);
    c["Stadt"] = city.name;
    c["Staat"] = city.state;
    if (r.chance(30))
        c["Stadteil"] = r.pick(Districts);
    c["Land"] = "Deutschland";
    c["Landescod"] = "DE";
    c["vorwahl"] = city.area;
    c["Telefon"] = std::string(city.area) + " / " + r.digits(6 + r.below(2));
    if (r.chance(30))
        c["Telefax"] = std::string(city.area) + " / " + r.digits(6);
    if (r.chance(50))
        c["Celphone"] = "01" + std::to_string(51 + r.below(29)) + " " + r.digits(7);
    if (r.chance(60))
        c["Geburtstag"] = date(r, 1930, 75);
    std::string typ;
    for (int i = 0; i < 7; ++i)
        typ += r.chance(30) ? '1' : '0';
    c["Typ"] = typ;
    if (r.chance(20)) {
        std::string note = r.pick(Notes);
        for (int extra = r.below(4); extra > 0; --extra)
            note += std::string(" ") + r.pick(Notes);
        c["Bemerkung"] = note;
    }
    if (r.chance(40))
        c["C1"] = ascii(first) + "." + ascii(last) + "@beispiel.de";
    if (r.chance(30)) {
        const std::string city_name = city.name;
        c["Bank"] = std::string(r.pick(Banks)) + (r.chance(50) ? " " + city_name : "");
        c["BankLeitZahl"] = std::string(city.plz) + r.digits(6);
        c["Kontonummer"] = r.digits(10);
    }
    if (r.chance(10))
        c["Postfach"] = r.digits(2 + r.below(4));
    if (r.chance(5))
        c["Passportnummer"] = "C" + r.digits(8);
    if (r.chance(5))
        c["Staatsregister"] = "St-" + r.digits(6);
    if (r.chance(10))
        c["Texto"] = "Wert " + std::to_string(r.below(5000));
    if (r.chance(5))
        c["Telex"] = "Bilder/" + ascii(last) + ".jpg";
    const std::string created = date(r, 1995, 30);
    c["recdate"] = created;
    c["rectime"] = time(r);
    c["Datum"] = created;
    c["Zeit"] = time(r);
    return c;
}

void check(int rc, sqlite3* db, const char* what)
{
    if (rc != SQLITE_OK && rc != SQLITE_DONE)
        throw std::runtime_error(std::string(what) + ": " + sqlite3_errmsg(db));
}

}  // namespace

void writeSampleCards(const QString& path, int count, std::uint32_t seed)
{
    createEmptyDatabase(DatabaseKind::Cards, path);
    std::vector<std::string> columns;
    for (const FieldDef& f : schemaOf(DatabaseKind::Cards))
        if (f.Type != FieldType::Counter)
            columns.push_back(f.Name.toStdString());
    std::string sql = "INSERT INTO \"" + tableNameOf(DatabaseKind::Cards).toStdString() + "\" (";
    std::string places;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        sql += (i ? ", \"" : "\"") + columns[i] + "\"";
        places += i ? ", ?" : "?";
    }
    sql += ") VALUES (" + places + ")";

    sqlite3* db = nullptr;
    check(sqlite3_open(QFile::encodeName(path).constData(), &db), db, "open");
    check(sqlite3_exec(db, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; BEGIN", nullptr, nullptr, nullptr), db,
          "begin");
    sqlite3_stmt* insert = nullptr;
    check(sqlite3_prepare_v2(db, sql.c_str(), -1, &insert, nullptr), db, "prepare");
    Random r(seed);
    for (int n = 0; n < count; ++n) {
        const Card card = sampleCard(r);
        sqlite3_reset(insert);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto it = card.find(columns[i]);
            if (it == card.end())
                sqlite3_bind_null(insert, int(i + 1));
            else
                sqlite3_bind_text(insert, int(i + 1), it->second.c_str(), int(it->second.size()), SQLITE_TRANSIENT);
        }
        check(sqlite3_step(insert), db, "insert");
    }
    sqlite3_finalize(insert);
    check(sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr), db, "commit");
    sqlite3_close(db);
}

QString benchDataFolder()
{
    const QString configured = qEnvironmentVariable("MK_BENCH_DATA");
    return configured.isEmpty() ? QStringLiteral(MK_BENCH_DATA) : configured;
}

QString sampleCardFile(int count)
{
    QDir().mkpath(benchDataFolder());
    const QString path = QDir(benchDataFolder()).filePath(QStringLiteral("karten-%1.mdb").arg(count));
    if (QFileInfo::exists(path))
        return path;
    const QString part = path + QStringLiteral(".part");
    QFile::remove(part);
    std::fprintf(stderr, "Writing %d sample cards to %s ...\n", count, qPrintable(path));
    writeSampleCards(part, count);
    QFile::rename(part, path);
    return path;
}

}  // namespace mk::bench
