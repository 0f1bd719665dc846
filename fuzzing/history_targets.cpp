// The reader of the history's list files: any bytes loaded into the list of replay, on a
// session without a database as on one after the database was closed, and written back.

#include "fuzzing/fuzz_home.h"
#include "fuzzing/fuzz_target.h"

#include "history/history_list.h"
#include "platform/paths.h"

namespace mk::fuzz {

namespace {

QString inHome(const char* name) { return joinPath(fuzzHome(), QString::fromLatin1(name)); }

void historyList(const QByteArray& input)
{
    Merkkartelle& app = fuzzSystem();
    app.replay.Schnelleauswahlliste.Clear();
    writeFuzzFile(inHome("liste.dat"), input);
    VerlaufLaden(app, inHome("liste.dat"));
    VerlaufsdateiSchreiben(app, inHome("wieder.dat"));
}

std::vector<QByteArray> historyListSeeds()
{
    QByteArray hundred;
    for (int i = 1; i <= kVerlaufGrenze; ++i)
        hundred += QByteArray::number(i) + "\r\n";
    return {"3\r\n2\r\n\"D\"\r\n\"05-17-2024 10:00:00\"\r\n", "\"D\"\r\n\"05-17-2024 10:00:00\"\r\n",
            hundred + "101\r\n\"D\"\r\n", "Hallo Welt\r\n-7,1e9,&HFF\r\n"};
}

}  // namespace

std::vector<Target> historyTargets()
{
    return {
        {"historylist", "a history list file (.dat) loaded into replay and written back", historyList, historyListSeeds},
    };
}

}  // namespace mk::fuzz
