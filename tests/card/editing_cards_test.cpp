// Entering, changing and cancelling cards through the buttons of the mask.

#include "editing_fixture.h"

#include "card/card_editing.h"

namespace mk::test {
namespace {

class NewCard : public EditingTest {};
class ChangeCard : public EditingTest {};
class FailedSave : public EditingTest {};
class EntryGuard : public EditingTest {};

TEST_F(NewCard, IsStoredWithItsStampsAndShownAfterTheSave)
{
    karte({{"Nachname", QStringLiteral("Alt")}, {"Vorname", QStringLiteral("Anna")}});
    oeffnen();

    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Neuer Eintrag 2 "));
    EXPECT_EQ(m.LaufendeNummer.Caption, QStringLiteral("2"));  // the forecast
    EXPECT_TRUE(m.NeueAdresseAbbruch.Visible);
    EXPECT_FALSE(m.EinznachHinten.Enabled);
    EXPECT_FALSE(m.AdresseLöschen.Enabled);
    EXPECT_TRUE(app.Form2.Visible);

    m.feld[4].Text = QStringLiteral("Neumann");
    m.feld[5].Text = QStringLiteral("Nora");
    m.Typenliste[2].Value = 1;
    klick("Hauptmaske.NeueAdresse");

    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("&Neu"));
    EXPECT_EQ(app.NeuerEintrag, 0);
    ASSERT_EQ(anzahl(), 2);
    const QString nummer = app.GesuchteNummer;
    EXPECT_EQ(gespeichert(nummer, "Nachname"), QStringLiteral("Neumann"));
    EXPECT_EQ(gespeichert(nummer, "Typ"), QStringLiteral("0010000"));
    EXPECT_EQ(gespeichert(nummer, "recdate"), QStringLiteral("17.05.2024"));
    EXPECT_EQ(gespeichert(nummer, "rectime"), QStringLiteral("10:00:00"));
    EXPECT_EQ(gespeichert(nummer, "Datum"), QStringLiteral("17.05.2024"));
    // The mask shows the stored card, found again after the rebuild.
    EXPECT_EQ(m.LaufendeNummer.Caption, nummer);
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Neumann"));
    EXPECT_EQ(app.mala.Label14.Caption, QStringLiteral("NOT UPDATED"));
    EXPECT_TRUE(m.EinznachHinten.Enabled);
    EXPECT_FALSE(m.NeueAdresseAbbruch.Visible);
    EXPECT_FALSE(app.Form2.Visible);
    EXPECT_TRUE(meldungen().isEmpty());
}

TEST_F(NewCard, WorksInAnEmptyDatabaseWithoutAForecast)
{
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(m.LaufendeNummer.Caption, QString());
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Neuer Eintrag 1 "));
    m.feld[4].Text = QStringLiteral("Erste");
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(anzahl(), 1);
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Erste"));
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Eintrag 1 von 1 "));
}

TEST_F(NewCard, CancelStoresNothingAndPutsThePreviousCardBack)
{
    karte({{"Nachname", QStringLiteral("Eins")}});
    karte({{"Nachname", QStringLiteral("Zwei")}});
    oeffnen();
    klick("Hauptmaske.EinznachHinten");
    klick("Hauptmaske.NeueAdresse");
    m.feld[4].Text = QStringLiteral("Verworfen");
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresseAbbruch");

    EXPECT_EQ(anzahl(), 2);
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("&Neu"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Zwei"));
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Eintrag 2 von 2 "));
    EXPECT_FALSE(m.SSCommand8.Enabled);
}

TEST_F(NewCard, PresetsFillTheMaskUnlessASelectionIsActive)
{
    app.config.prefeld[0].Text = QStringLiteral("Heute");
    app.config.prefeld[1].Text = QStringLiteral("Jetzt");
    app.config.prefeld[2].Text = QStringLiteral("Firma GmbH");
    app.config.prefeld[3].Text = QStringLiteral("01.01.2000");
    app.config.Text15.Text = QStringLiteral("Köln");

    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(m.feld[0].Text, QStringLiteral("17.05.2024"));
    EXPECT_EQ(m.feld[1].Text, QStringLiteral("10:00:00"));
    EXPECT_EQ(m.feld[2].Text, QStringLiteral("Firma GmbH"));
    EXPECT_EQ(m.feld[13].Text, QStringLiteral("01.01.2000"));
    EXPECT_EQ(m.feld[10].Text, QString());  // the further boxes wait for their option
    klick("Hauptmaske.NeueAdresseAbbruch");

    app.config.Check3D3.Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(m.feld[10].Text, QStringLiteral("Köln"));
    klick("Hauptmaske.NeueAdresseAbbruch");

    m.Selektiert.Caption = QStringLiteral("Selektierung aktiv");
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(m.feld[0].Text, QString());
    EXPECT_EQ(m.feld[10].Text, QString());
}

TEST_F(NewCard, OutsideTheSelectionGivesThePortugueseMessage)
{
    karte({{"Stadt", QStringLiteral("Köln")}});
    m.Selektiert.Caption = QStringLiteral("Selektierung aktiv");
    app.Selektionsfilter = QStringLiteral("[Stadt] = 'Köln'");
    oeffnen();
    klick("Hauptmaske.NeueAdresse");
    m.feld[10].Text = QStringLiteral("Bonn");
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(meldungen(), QStringList{QStringLiteral("Cadastro não pode ser encontrado !")});
    EXPECT_EQ(anzahl(), 2);
}

TEST_F(NewCard, QuickEntryCopiesItsBoxesIntoTheSlots)
{
    klick("Hauptmaske.NeueAdresse");
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(app.Form2.Text1[i].Text, QString());
    const char* texte[] = {"Vera", "Vogel", "Weg 1", "12345", "Ulm", "0731 1", "v@vogel.de"};
    for (int i = 0; i < 7; ++i)
        app.Form2.Text1[i].Text = QString::fromUtf8(texte[i]);
    klick("Form2.SSCommand1");
    EXPECT_FALSE(app.Form2.Visible);
    EXPECT_EQ(m.feld[5].Text, QStringLiteral("Vera"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Vogel"));
    EXPECT_EQ(m.feld[6].Text, QStringLiteral("Weg 1"));
    EXPECT_EQ(m.feld[9].Text, QStringLiteral("12345"));
    EXPECT_EQ(m.feld[10].Text, QStringLiteral("Ulm"));
    EXPECT_EQ(m.feld[14].Text, QStringLiteral("0731 1"));
    EXPECT_EQ(m.feldnum[0].Text, QStringLiteral("v@vogel.de"));
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
}

TEST_F(ChangeCard, StoresTheChangeAndKeepsTheCreationStamps)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Alt")},
                                  {"recdate", QStringLiteral("01.02.2003")},
                                  {"rectime", QStringLiteral("08:00:00")},
                                  {"Datum", QStringLiteral("01.02.2003")}});
    karte({{"Nachname", QStringLiteral("Andere")}});
    oeffnen();

    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("OK"));
    EXPECT_EQ(m.Label8.Caption, QStringLiteral("Ändern 1 von 2 "));
    EXPECT_FALSE(m.NeueAdresse.Enabled);
    EXPECT_TRUE(m.AdresseÄndernAbbruch.Visible);
    EXPECT_EQ(app.Form2.Text1[1].Text, QStringLiteral("Alt"));  // the quick entry, filled

    klick("Form2.SSCommand2");
    m.feld[4].Text = QStringLiteral("Neu");
    klick("Hauptmaske.AdresseÄndern");

    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("&Bearbeiten"));
    EXPECT_EQ(gespeichert(nummer, "Nachname"), QStringLiteral("Neu"));
    EXPECT_EQ(gespeichert(nummer, "Datum"), QStringLiteral("17.05.2024"));
    EXPECT_EQ(gespeichert(nummer, "recdate"), QStringLiteral("01.02.2003"));
    EXPECT_EQ(gespeichert(nummer, "rectime"), QStringLiteral("08:00:00"));
    EXPECT_EQ(m.LaufendeNummer.Caption, nummer);
    EXPECT_EQ(anzahl(), 2);
    EXPECT_TRUE(m.NeueAdresse.Enabled);
    EXPECT_TRUE(m.EinznachHinten.Enabled);
}

TEST_F(ChangeCard, CancelLeavesTheStoredCardUntouched)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Bleibt")}, {"Stadt", QStringLiteral("Bonn")}});
    oeffnen();
    klick("Hauptmaske.AdresseÄndern");
    m.feld[4].Text = QStringLiteral("Getippt");
    m.feld[10].Text.clear();
    m.Typenliste[0].Value = 0;
    m.Typenliste[6].Value = 1;
    klick("Hauptmaske.AdresseÄndernAbbruch");

    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("&Bearbeiten"));
    EXPECT_EQ(gespeichert(nummer, "Nachname"), QStringLiteral("Bleibt"));
    EXPECT_EQ(gespeichert(nummer, "Stadt"), QStringLiteral("Bonn"));
    EXPECT_EQ(gespeichert(nummer, "Typ"), QStringLiteral("1000000"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Bleibt"));
    EXPECT_EQ(m.Typenliste[0].Value, 1);
    EXPECT_EQ(m.Typenliste[6].Value, 0);
}

TEST_F(ChangeCard, OutsideTheSelectionNamesTheSelection)
{
    karte({{"Stadt", QStringLiteral("Köln")}});
    m.Selektiert.Caption = QStringLiteral("Selektierung aktiv");
    m.Label19.Caption = QStringLiteral("Stadt = Köln");
    app.Selektionsfilter = QStringLiteral("[Stadt] = 'Köln'");
    oeffnen();
    klick("Hauptmaske.AdresseÄndern");
    m.feld[10].Text = QStringLiteral("Bonn");
    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(meldungen(), QStringList{QStringLiteral("Datensatz kann nicht gefunden werden !\r\n"
                                                      "Datensatz ausserhalb der Selektierung\r\nStadt = Köln")});
}

TEST_F(FailedSave, WithoutATypeKeepsTheMaskOpenOnNewAndChange)
{
    klick("Hauptmaske.NeueAdresse");
    m.feld[4].Text = QStringLiteral("Ohnetyp");
    klick("Hauptmaske.NeueAdresse");
    ASSERT_EQ(ui.messageBoxes().size(), 1u);
    const ShownBox box = ui.messageBoxes()[0];
    EXPECT_EQ(box.prompt, QStringLiteral("Keine Selektierung in der Option 'Typ'\r\n"
                                         "Wählen Sie eine Option des Typs um zu speichern"));
    EXPECT_EQ(box.title, QStringLiteral("Eintrag nicht komplet !"));
    EXPECT_EQ(msgBoxIcon(box.buttons), vbCritical);
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Ohnetyp"));
    EXPECT_EQ(anzahl(), 0);

    // The buffer is still open: ticking a type and saving again stores the card.
    m.Typenliste[3].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(anzahl(), 1);

    klick("Hauptmaske.AdresseÄndern");
    m.Typenliste[3].Value = 0;
    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("OK"));
    EXPECT_EQ(gespeichert(app.GesuchteNummer, "Typ"), QStringLiteral("0001000"));
}

TEST_F(FailedSave, AChangeMadeMeanwhileByAnotherProgramIsNotOverwritten)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Adler")}, {"Stadt", QStringLiteral("Köln")}});
    oeffnen();
    klick("Hauptmaske.AdresseÄndern");

    // Another program moves the card to Bonn while it is open here.
    {
        auto andere = Database::open(pfad)->createDynaset(app.Tabellenname);
        andere->MoveFirst();
        andere->Edit();
        andere->Fields(QStringLiteral("Stadt")).setValue(QStringLiteral("Bonn"));
        andere->Update();
    }
    m.feld[5].Text = QStringLiteral("Anna");
    klick("Hauptmaske.AdresseÄndern");

    ASSERT_EQ(ui.messageBoxes().size(), 1u);
    EXPECT_EQ(ui.messageBoxes()[0].title, QStringLiteral("Speichern"));
    EXPECT_TRUE(ui.messageBoxes()[0].prompt.contains(QStringLiteral("von einem anderen Programm geändert")));
    EXPECT_EQ(gespeichert(nummer, "Stadt"), QStringLiteral("Bonn"));
    EXPECT_EQ(gespeichert(nummer, "Vorname"), QString());
    // The mask stays open with what was typed; a cancel shows the card as it is now.
    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("OK"));
    EXPECT_EQ(m.feld[5].Text, QStringLiteral("Anna"));
    klick("Hauptmaske.AdresseÄndernAbbruch");
    EXPECT_EQ(m.feld[10].Text, QStringLiteral("Bonn"));

    // Changed afresh, the card saves.
    klick("Hauptmaske.AdresseÄndern");
    m.feld[5].Text = QStringLiteral("Anna");
    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(gespeichert(nummer, "Vorname"), QStringLiteral("Anna"));
    EXPECT_EQ(gespeichert(nummer, "Stadt"), QStringLiteral("Bonn"));
}

TEST_F(FailedSave, ADuplicateNameStopsOnlyWhileTheOptionIsOn)
{
    karte({{"Vorname", QStringLiteral("Hans")}, {"Nachname", QStringLiteral("Müller")}});
    karte({{"Vorname", QStringLiteral("Hans")}, {"Nachname", QStringLiteral("Meier")}});
    oeffnen();
    app.config.SSCheck2.Value = 1;

    klick("Hauptmaske.NeueAdresse");
    m.feld[5].Text = QStringLiteral("Hans");
    m.feld[4].Text = QStringLiteral("Müller");
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(meldungen(), QStringList{QStringLiteral("   Vorname und Nachname exsistiert schon\r\n"
                                                      "1 Eintrag von: Hans Müller gefunden !")});
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Müller"));
    EXPECT_EQ(anzahl(), 2);

    m.feld[4].Text = QStringLiteral("Schulz");  // same first name, other surname
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(anzahl(), 3);

    app.config.SSCheck2.Value = 0;
    klick("Hauptmaske.NeueAdresse");
    m.feld[5].Text = QStringLiteral("Hans");
    m.feld[4].Text = QStringLiteral("Müller");
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    EXPECT_EQ(anzahl(), 4);
}

TEST_F(FailedSave, ATextTooLongForItsColumnKeepsWhatWasTyped)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Lang")}, {"PLZ", QStringLiteral("50667")}});
    oeffnen();

    klick("Hauptmaske.NeueAdresse");
    m.feld[4].Text = QStringLiteral("Zulang");
    m.feld[9].Text = QStringLiteral("123456789012");  // PLZ holds ten characters
    m.Typenliste[0].Value = 1;
    klick("Hauptmaske.NeueAdresse");
    ASSERT_EQ(meldungen().size(), 1);
    EXPECT_TRUE(meldungen()[0].startsWith(QStringLiteral("Speicherung abgebrochen - Strukturfehler \r       ")));
    EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("Speichern"));
    EXPECT_EQ(m.feld[9].Text, QStringLiteral("123456789012"));
    EXPECT_EQ(anzahl(), 1);

    m.feld[9].Text = QStringLiteral("12345");
    klick("Hauptmaske.NeueAdresse");
    ASSERT_EQ(anzahl(), 2);
    EXPECT_EQ(gespeichert(app.GesuchteNummer, "PLZ"), QStringLiteral("12345"));
    EXPECT_EQ(gespeichert(app.GesuchteNummer, "Typ"), QStringLiteral("1000000"));

    // A change that does not fit leaves the stored card as it was.
    KarteFinden(app, nummer);
    DatenInMaske(app);
    klick("Hauptmaske.AdresseÄndern");
    m.feld[9].Text = QStringLiteral("123456789012");
    klick("Hauptmaske.AdresseÄndern");
    EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("OK"));
    klick("Hauptmaske.AdresseÄndernAbbruch");
    EXPECT_EQ(gespeichert(nummer, "PLZ"), QStringLiteral("50667"));
}

TEST_F(EntryGuard, ReadOnlyAndTheScreenGuardSilenceTheEntryButtons)
{
    const QString nummer = karte({{"Nachname", QStringLiteral("Geschützt")}});
    oeffnen();
    const auto nichtsPassiert = [&] {
        for (const char* knopf : {"Hauptmaske.NeueAdresse", "Hauptmaske.AdresseÄndern", "Hauptmaske.AdresseLöschen"})
            klick(knopf);
        EXPECT_EQ(m.NeueAdresse.Caption, QStringLiteral("&Neu"));
        EXPECT_EQ(m.AdresseÄndern.Caption, QStringLiteral("&Bearbeiten"));
        EXPECT_EQ(app.Kartensatz->editMode(), EditMode::None);
        EXPECT_EQ(gespeichert(nummer, "Nachname"), QStringLiteral("Geschützt"));
        EXPECT_TRUE(ui.boxes.empty());
    };

    app.NurLesen = QStringLiteral("1");
    nichtsPassiert();
    app.NurLesen = QStringLiteral("0");
    m.Bildschutz.Visible = true;
    nichtsPassiert();
}

}  // namespace
}  // namespace mk::test
