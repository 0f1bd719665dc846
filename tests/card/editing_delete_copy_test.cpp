// Deleting a card with its copy in a file, restoring it from there, and card copy and paste.

#include "editing_fixture.h"

#include "card/card_copy.h"
#include "card/card_editing.h"
#include "card/deleted_cards.h"

#include <QDir>
#include <QFile>

namespace mk::test {
namespace {

const char* const kFeldSpalten[] = {
    "Schluessel", "Titel", "Firma", "Departament", "Nachname", "Vorname", "Strasse", "Staat",
    "Stadteil", "PLZ", "Stadt", "Landescod", "Land", "Geburtstag", "Telefon", "Telefax",
    "Telex", "Celphone", "Texto", "Firmenregisternummer", "Staatsregister", "Passportnummer", "Postfach",
};

// A card with a value of its own in every column the mask shows.
class FullCard : public EditingTest {
protected:
    QString volleKarte()
    {
        auto rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->AddNew();
        const auto setze = [&](const QString& spalte, const QString& wert) { rs->Fields(spalte).setValue(wert); };
        for (int i = 0; i <= 22; ++i)
            setze(QString::fromLatin1(kFeldSpalten[i]), QStringLiteral("F%1").arg(i));
        setze(QStringLiteral("Bemerkung"), QStringLiteral("Notiz, mit Komma"));
        for (int i = 1; i <= 10; ++i) {
            setze(QStringLiteral("A%1").arg(i), QStringLiteral("A%1").arg(i));
            setze(QStringLiteral("B%1").arg(i), QStringLiteral("B%1").arg(i));
        }
        for (int i = 1; i <= 4; ++i) {
            setze(QStringLiteral("C%1").arg(i), QStringLiteral("C%1").arg(i));
            setze(QStringLiteral("TEL%1").arg(i), QStringLiteral("T%1").arg(i));
        }
        for (int i = 1; i <= 20; ++i)
            setze(QStringLiteral("PROG%1").arg(i), QStringLiteral("P%1").arg(i));
        const std::pair<const char*, const char*> rest[] = {
            {"Datum", "01.01.2020"}, {"Zeit", "11:12:13"}, {"Partei", "Partei"}, {"vorwahl", "0221"},
            {"recdate", "02.02.2002"}, {"rectime", "03:03:03"}, {"Typ", "1010001"}, {"Som", "Som"},
            {"imagem", "Img"}, {"Video", "Vid"}, {"Campo1", "K1"}, {"Campo2", "K2"}, {"CampoM1", "KM1"},
            {"CampoM2", "KM2"}, {"Bank", "Bank"}, {"BankLeitZahl", "BLZ"}, {"Kontonummer", "Konto"},
        };
        for (const auto& [spalte, wert] : rest)
            setze(QString::fromLatin1(spalte), QString::fromUtf8(wert));
        rs->Update();
        rs = app.Kartendatenbank->createDynaset(app.Tabellenname);
        rs->MoveLast();
        return rs->Fields(QStringLiteral("Laufendenummer")).text();
    }

    // Every column the mask carries, of the stored card with that number, but the stamps.
    QStringList inhalt(const QString& nummer)
    {
        QStringList werte;
        for (const char* spalte : kFeldSpalten)
            werte << gespeichert(nummer, spalte);
        for (const char* spalte : {"Bemerkung", "A1", "A10", "B1", "B10", "C1", "C4", "PROG1", "PROG17", "Partei",
                                   "vorwahl", "TEL1", "TEL4", "Typ", "Som", "imagem", "Video", "Campo1", "Campo2",
                                   "CampoM1", "Bank", "BankLeitZahl", "Kontonummer"})
            werte << gespeichert(nummer, spalte);
        return werte;
    }
};

class DeleteCard : public FullCard {};
class CopyCard : public FullCard {};

QByteArray dateiInhalt(const QString& pfad)
{
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

TEST_F(DeleteCard, WritesTheNinetyFourLinesAndRestoreBringsTheCardBack)
{
    const QString nummer = volleKarte();
    karte({{"Nachname", QStringLiteral("Danach")}});
    oeffnen();
    const QStringList vorher = inhalt(nummer);

    ui.answerMsgBox(vbYes);
    klick("Hauptmaske.AdresseLöschen");

    QStringList zeilen;
    for (int i = 0; i <= 22; ++i)
        zeilen << QStringLiteral("F%1").arg(i);
    zeilen << QStringLiteral("Notiz, mit Komma");
    for (const char* vorsatz : {"A", "B"})
        for (int i = 1; i <= 10; ++i)
            zeilen << QString::fromLatin1(vorsatz) + QString::number(i);
    for (int i = 1; i <= 4; ++i)
        zeilen << QStringLiteral("C%1").arg(i);
    for (int i = 1; i <= 20; ++i)
        zeilen << QStringLiteral("P%1").arg(i);
    zeilen << QStringLiteral("11:12:13") << QStringLiteral("Partei") << QStringLiteral("0221")
           << QStringLiteral("02.02.2002") << QStringLiteral("03:03:03");
    for (int i = 1; i <= 4; ++i)
        zeilen << QStringLiteral("T%1").arg(i);
    for (const char* typ : {"1", "0", "1", "0", "0", "0", "1"})
        zeilen << QString::fromLatin1(typ);
    zeilen << QStringLiteral("Som") << QStringLiteral("Img") << QStringLiteral("Vid") << QStringLiteral("K1")
           << QStringLiteral("K2") << QStringLiteral("KM1") << QStringLiteral("KM2") << QStringLiteral("BLZ")
           << QStringLiteral("Bank") << QStringLiteral("Konto");
    ASSERT_EQ(zeilen.size(), 94);
    QByteArray erwartet;
    for (const QString& zeile : zeilen)
        erwartet += '"' + zeile.toUtf8() + "\"\r\n";
    const QString datei = dir.filePath(nummer + QStringLiteral(".dat"));
    EXPECT_EQ(dateiInhalt(datei), erwartet);

    EXPECT_EQ(gespeichert(nummer, "Nachname"), QStringLiteral("<keine Karte>"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Danach"));
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Eintrag 1 von 1 "));

    // Restored, the card is a new card with the recorded stamps until it is saved.
    ui.answerOpen(datei);
    klick("config.Command7");
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(m.recdate.Caption, QStringLiteral("02.02.2002"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("F4"));
    klick("Hauptmaske.NeueAdresse");

    const QString neu = app.GesuchteNummer;
    EXPECT_NE(neu, nummer);
    EXPECT_EQ(inhalt(neu), vorher);
    EXPECT_EQ(gespeichert(neu, "recdate"), QStringLiteral("17.05.2024"));
}

TEST_F(DeleteCard, TheQuestionFollowsTheOptionAndNoKeepsTheCard)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Muster")}, {"Vorname", QStringLiteral("Max")},
                                  {"Firma", QStringLiteral("Muster AG")}});
    oeffnen();
    ui.answerMsgBox(vbNo);
    klick("Hauptmaske.AdresseLöschen");
    app.config.SSCheck5.Value = 1;
    ui.answerMsgBox(vbNo);
    klick("Hauptmaske.AdresseLöschen");

    const auto boxen = ui.messageBoxes();
    ASSERT_EQ(boxen.size(), 2u);
    EXPECT_EQ(boxen[0].prompt, QStringLiteral("Eintrag: ") + nummer
                                   + QStringLiteral(" löschen ? \r\n   Muster\r\n   Max\r\n   Muster AG"));
    EXPECT_EQ(boxen[0].title, QStringLiteral("Eintrag löschen"));
    EXPECT_EQ(boxen[0].buttons, vbYesNo + vbExclamation + vbDefaultButton1);
    EXPECT_EQ(boxen[1].buttons, vbYesNo + vbCritical + vbDefaultButton2);
    EXPECT_EQ(anzahl(), 1);
    EXPECT_FALSE(QFile::exists(dir.filePath(nummer + QStringLiteral(".dat"))));
    EXPECT_TRUE(m.AdresseLöschen.Enabled);
}

TEST_F(DeleteCard, AnExistingCopyKeptByNoStillDeletesTheOnlyCard)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Einzig")}});
    oeffnen();
    const QString datei = dir.filePath(nummer + QStringLiteral(".dat"));
    {
        QFile f(datei);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("alt");
    }
    ui.answerMsgBox(vbYes);
    ui.answerMsgBox(vbNo);
    klick("Hauptmaske.AdresseLöschen");

    ASSERT_EQ(ui.messageBoxes().size(), 2u);
    EXPECT_EQ(ui.messageBoxes()[1].prompt, QStringLiteral("Bestehende Datei überschreiben "));
    EXPECT_EQ(ui.messageBoxes()[1].title, QStringLiteral("Speichern unter"));
    EXPECT_EQ(dateiInhalt(datei), QByteArray("alt"));
    EXPECT_EQ(anzahl(), 0);
    EXPECT_EQ(m.feld[4].Text, QString());
    EXPECT_EQ(m.LaufendeNummer.Caption, QString());
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Eintrag 0 von 0 "));

    klick("Hauptmaske.AdresseLöschen");
    EXPECT_EQ(ui.messageBoxes().back().prompt,
              QStringLiteral("Keine Daten gefunden - leere Datenbank.\r\nLöschen nicht möglich."));
    EXPECT_EQ(ui.messageBoxes().back().title, QStringLiteral("Löschen"));
}

TEST_F(DeleteCard, ACopyThatCannotBeWrittenKeepsTheCardAndSaysWhy)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Bleibt")}});
    oeffnen();
    // A folder where the copy should go: nothing can be written under that name.
    const QString datei = dir.filePath(nummer + QStringLiteral(".dat"));
    ASSERT_TRUE(QDir().mkdir(datei));
    ui.answerMsgBox(vbYes);
    klick("Hauptmaske.AdresseLöschen");

    ASSERT_EQ(ui.messageBoxes().size(), 2u);
    EXPECT_TRUE(ui.messageBoxes()[1].prompt.startsWith(
        QStringLiteral("Die Sicherungskopie des Eintrags konnte nicht geschrieben werden:\r\n   ") + datei));
    EXPECT_TRUE(ui.messageBoxes()[1].prompt.endsWith(QStringLiteral("\r\nDer Eintrag wurde nicht gelöscht.")));
    EXPECT_EQ(anzahl(), 1);
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Bleibt"));
    EXPECT_TRUE(m.AdresseLöschen.Enabled);
}

TEST_F(DeleteCard, RestoreCancelledLeavesTheNewCardOpen)
{
    karte({{"Nachname", QStringLiteral("Da")}});
    oeffnen();
    ui.answerOpenCancel();
    klick("config.Command7");
    ASSERT_FALSE(ui.boxes.empty());
    EXPECT_EQ(ui.boxes.back().title, QStringLiteral("Gelöschten Einträge wiederherstellen"));
    EXPECT_EQ(ui.boxes.back().filter, QStringLiteral("Gelöschte Einträge (*.dat)|*.dat|"));
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(app.Kartensatz->editMode(), EditMode::AddNew);

    // Read-only ignores the button.
    klick("Hauptmaske.NeueAdresseAbbruch");
    app.NurLesen = QStringLiteral("1");
    klick("config.Command7");
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("&Neu"));
}

TEST_F(CopyCard, PasteIntoANewCardGivesAFullCopyWithItsOwnNumber)
{
    const QString quelle = volleKarte();
    karte({{"Nachname", QStringLiteral("Ziel")}});
    oeffnen();
    klick("Hauptmaske.menucopy");
    klick("Hauptmaske.EinznachHinten");
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Ziel"));

    klick("Hauptmaske.NeueAdresse");
    m.prog[18].Text = QStringLiteral("bleibt");
    klick("Hauptmaske.Menucolar");
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("F4"));
    EXPECT_EQ(m.Typenliste[2].Value, 1);
    EXPECT_EQ(m.prog[17].Text, QStringLiteral("P17"));
    EXPECT_EQ(m.prog[18].Text, QStringLiteral("bleibt"));
    EXPECT_EQ(m.Ramal.Text, QStringLiteral("0221"));
    klick("Hauptmaske.NeueAdresse");

    const QString kopie = app.GesuchteNummer;
    EXPECT_NE(kopie, quelle);
    EXPECT_EQ(inhalt(kopie), inhalt(quelle));
    EXPECT_EQ(gespeichert(kopie, "recdate"), QStringLiteral("17.05.2024"));
    EXPECT_EQ(gespeichert(kopie, "PROG18"), QStringLiteral("bleibt"));
}

TEST_F(CopyCard, PasteAndClearActOnlyWhileACardIsOpen)
{
    volleKarte();
    karte({{"Nachname", QStringLiteral("Ziel")}});
    oeffnen();
    klick("Hauptmaske.menucopy");
    klick("Hauptmaske.EinznachHinten");

    klick("Hauptmaske.Menucolar");
    klick("Hauptmaske.menuapagar");
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Ziel"));

    klick("Hauptmaske.AdresseÄndern");
    EXPECT_FALSE(m.menucopy.Enabled);
    klick("Hauptmaske.menuapagar");
    EXPECT_EQ(m.feld[4].Text, QString());
    EXPECT_EQ(app.Kartensatz->editMode(), EditMode::Edit);
    klick("Hauptmaske.Menucolar");
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("F4"));
}

}  // namespace
}  // namespace mk::test
