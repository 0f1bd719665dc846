// Readers of the files the program keeps beside the database: the settings file, field
// names, pick lists and the copy of a deleted card, each read into the forms as the program
// reads it.

#include "fuzzing/fuzz_home.h"
#include "fuzzing/fuzz_target.h"

#include "card/deleted_cards.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "settings/field_naming.h"
#include "settings/pick_lists.h"
#include "settings/settings_file.h"

#include <QFile>

namespace mk::fuzz {

namespace {

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString inHome(const char* name) { return joinPath(fuzzHome(), QString::fromLatin1(name)); }

void settings(const QByteArray& input)
{
    Merkkartelle& app = fuzzSystem();
    writeFuzzFile(inHome("merkkartelle.cfg"), input);
    EinstellungenEinlesen(app, inHome("merkkartelle.cfg"));
    EinstellungenLaden(app);
    EinstellungenSchreiben(app, inHome("wieder.cfg"));
}

std::vector<QByteArray> settingsSeeds()
{
    Merkkartelle& app = fuzzSystem();
    EinstellungenSchreiben(app, inHome("seed.cfg"));
    QByteArray design = fileBytes(inHome("seed.cfg"));
    QByteArray shifted = design;
    shifted.replace("\"A - Z\"", "\"A \"\" Z\"");  // a quote inside a value shifts the records after it
    return {design, shifted, "\"\"\r\n", design.left(design.size() / 2)};
}

void fieldNames(const QByteArray& input)
{
    Merkkartelle& app = fuzzSystem();
    writeFuzzFile(inHome("fuzz.den"), input);
    FeldbenennungEinlesen(app, inHome("fuzz.den"), NamingReset::AfterLoad);
    FeldbenennungSchreiben(app, inHome("wieder.den"));
}

std::vector<QByteArray> fieldNameSeeds()
{
    Merkkartelle& app = fuzzSystem();
    FeldbenennungSchreiben(app, inHome("seed.den"));
    return {fileBytes(inHome("seed.den")), "\"Name:\"\r\n\"\"\r\n,,,\r\n"};
}

void pickList(const QByteArray& input)
{
    Merkkartelle& app = fuzzSystem();
    writeFuzzFile(inHome("Stadt.txt"), input);
    app.Cidadefrm.Label2.Caption = inHome("Stadt.txt");
    AuswahllisteLesen(app);
    AuswahllisteSchreiben(app);
}

std::vector<QByteArray> pickListSeeds()
{
    return {"\"Köln\"\r\n\"\"\r\n\"Berlin, Mitte\"\r\n", QByteArray(300, ',')};
}

void deletedCard(const QByteArray& input)
{
    Merkkartelle& app = fuzzSystem();
    writeFuzzFile(inHome("7.dat"), input);
    GeloeschteKarteLesen(app, inHome("7.dat"));
    GeloeschteKarteSchreiben(app, inHome("8.dat"));
}

std::vector<QByteArray> deletedCardSeeds()
{
    Merkkartelle& app = fuzzSystem();
    app.Hauptmaske.feld[4].Text = QStringLiteral("Müller, \"Hans\"");
    app.Hauptmaske.Typenliste[2].Value = 1;
    GeloeschteKarteSchreiben(app, inHome("seed.dat"));
    return {fileBytes(inHome("seed.dat")), "\"a\"\r\n1\r\n#TRUE#\r\n"};
}

}  // namespace

std::vector<Target> settingsTargets()
{
    return {
        {"settings", "merkkartelle.cfg read, applied to the forms and written back", settings, settingsSeeds},
        {"fieldnames", "a .den file of field names read and written back", fieldNames, fieldNameSeeds},
        {"picklist", "a pick list file read into Cidadefrm and written back", pickList, pickListSeeds},
        {"deletedcard", "the file of a deleted card read into the mask and written back", deletedCard, deletedCardSeeds},
    };
}

}  // namespace mk::fuzz
