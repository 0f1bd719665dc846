#include "forms/hauptmaske.h"

#include "card/card_record.h"

#include <array>

namespace mk {

namespace {

constexpr long kStatusBlue = rgb(0, 0, 96);

void button(Button& b, const char* caption, const char* hint = "")
{
    b.Caption = QString::fromUtf8(caption);
    b.Hint = QString::fromUtf8(hint);
}

void label(Label& l, const char* caption, const char* hint = "")
{
    l.Caption = QString::fromUtf8(caption);
    l.Hint = QString::fromUtf8(hint);
}

void hiddenLabel(Label& l, const char* caption = "")
{
    l.Caption = QString::fromUtf8(caption);
    l.Visible = false;
}

void menu(MenuItem& m, const char* caption, const char* parent = "")
{
    m.Caption = QString::fromUtf8(caption);
    m.Parent = QString::fromUtf8(parent);
}

void slot(TextBox& t, int maxLength)
{
    t.MaxLength = maxLength;
    t.BackColor = colour::White;
    t.ForeColor = colour::Black;
}

void panel(Panel& p, const char* caption = "", const char* hint = "")
{
    p.Caption = QString::fromUtf8(caption);
    p.Hint = QString::fromUtf8(hint);
}

// Pictures kept on the form only to be copied onto buttons.
void store(Image& i, const char* picture)
{
    i.Picture = QString::fromUtf8(picture);
    i.Visible = false;
}

}  // namespace

QString designCaption(int index)
{
    return index >= 0 && index < int(karte::kKatalog.size())
               ? karte::text(karte::kKatalog[std::size_t(index)].beschriftung)
               : QString();
}

QString designTypeName(int type) { return QStringLiteral("Typ %1").arg(type); }

Hauptmaske::Hauptmaske()
{
    Caption = QStringLiteral("Merkkartelle");
    Width = 12000;
    Height = 9000;
    KeyPreview = true;

    // The card's slots: two columns of label and box.
    feld = ControlArray<TextBox>(0, 22, [](TextBox& t, int i) {
        slot(t, 256);
        t.Left = i < 12 ? 1560 : 6960;
        t.Top = 600 + (i % 12) * 330;
        t.Width = 3600;
    });
    beschreibung = ControlArray<Label>(0, 24, [](Label& l, int i) {
        l.Caption = designCaption(i);
        l.Left = i < 12 ? 120 : 5520;
        l.Top = 630 + (i % 12) * 330;
        l.Width = 1400;
    });
    feldbank = ControlArray<TextBox>(0, 2, [](TextBox& t, int) { slot(t, 0); });
    beschreibungbank = ControlArray<Label>(0, 2, [](Label& l, int i) {
        static const char* const captions[] = {"BLZ:", "Kontonr:", "Bank:"};
        l.Caption = QString::fromUtf8(captions[i]);
    });
    feldnum = ControlArray<TextBox>(0, 3, [](TextBox& t, int i) {
        static const char* const hints[] = {"E-Mail 1", "E-Mail 2", "Homepage", "KFZ-nummer"};
        slot(t, 0);
        t.Hint = QString::fromUtf8(hints[i]);
    });
    beschreibungnum = ControlArray<Label>(0, 7, [](Label& l, int i) {
        static const char* const captions[] = {"E-Mail 1:", "E-Mail 2:", "Homepage", "KFZ-Nr.:",
                                               "Campo1:", "Campo2:", "CampoM1:", "CampoM2:"};
        l.Caption = QString::fromUtf8(captions[i]);
    });
    TextBox* phones[] = {&tel1, &tel2, &tel3, &tel4};
    for (int i = 0; i < 4; ++i) {
        slot(*phones[i], 256);
        phones[i]->Hint = QStringLiteral("Zusatz Telefonnummer %1").arg(i + 1);
    }
    TEL_LBL = ControlArray<Label>(0, 4, [](Label& l, int i) {
        static const char* const captions[] = {"Tel. Res.1:", "Tel. Res.2:", "Tel. Com.1:", "Tel. Com.2:",
                                               "Vorwahl:"};
        l.Caption = QString::fromUtf8(captions[i]);
    });
    slot(Ramal, 0);
    Ramal.Hint = QStringLiteral("Vorwahl");
    slot(Partido, 0);
    prog = ControlArray<TextBox>(1, 20, [](TextBox& t, int) { slot(t, 0); });
    init = ControlArray<Button>(1, 20, [](Button& b, int i) { b.Caption = QString::number(i); });
    Typenliste = ControlArray<CheckBox>(0, 6, [](CheckBox& c, int i) {
        c.Caption = designTypeName(i + 1);
        c.Top = 4700 + i * 300;
        c.Left = 5520;
    });
    Selector = ControlArray<Button>(0, 6, [](Button& b, int i) {
        b.Top = 4700 + i * 300;
        b.Left = 5280;
        b.Width = 225;
        b.Height = 225;
    });

    Bemerkung.Hint = QStringLiteral("Rechter Mouseknopf");
    Text15.Hint = QStringLiteral("Zusatzinformationen (Beliebig grosser Text)");
    Text1.SelLength = 0;
    // The boxes that name the types hold the names the boxes show, so that an end before any
    // naming writes those names and not seven empty ones.
    TextBox* typeNames[] = {&Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8};
    for (int k = 0; k < 7; ++k) {
        typeNames[k]->Text = designTypeName(k + 1);
        typeNames[k]->Visible = false;
    }
    TextBox* extras[] = {&Text12, &Text13, &Text14};
    for (int i = 0; i < 3; ++i)
        extras[i]->Hint = QStringLiteral("Zusatz %1").arg(i + 1);

    // Labels of the card's own data and of the session.
    label(LaufendeNummer, "");
    label(Datum, "", "Datum der letzten änderung");
    label(Zeit, "", "Uhrzeit der letzten änderung");
    label(recdate, "", "Erstellungsdatum des Eintrags");
    label(rectime, "", "Erstellungsuhrzeit des Eintrags");
    label(datalabel, "", "Atueller Eintrag");
    label(dataold, "", "Vorherigen Eintrag aufrufen");
    label(currentindex, "", "Ordem - valor numérico");
    label(SortiertNach, "", "Sortierng der Datenbank");
    label(Label1, "Sound:");
    hiddenLabel(Label2);  // sDate
    hiddenLabel(Label3);  // sShortDate
    hiddenLabel(Label4);  // sThousand
    label(Label5, "A - Z");
    hiddenLabel(Label6);  // sDecimal
    hiddenLabel(Label7);  // spooler
    label(Label8, "", "Bearbeitungsstatus");
    Label8.ForeColor = kStatusBlue;
    label(Label9, "REPLAY OFF");
    hiddenLabel(Label10);
    label(Label12, "");
    label(Label13, "Video:");
    label(Label14, "Verknüpfte Dateien");
    label(Label15, "Zusatzinfo:");
    label(Label16, "", "Grösse de Bilddatei (Pixel: b x h) ");
    hiddenLabel(Label17);
    label(Label18, "");
    label(Label19, "");
    label(Label32, "", "Breite des Bildes in Pixel");
    label(Label33, "", "Altura da Imagen em pixel");
    hiddenLabel(Label36);
    hiddenLabel(Curindex);
    hiddenLabel(progname, "Notepad.exe");
    hiddenLabel(progLabel2);
    hiddenLabel(progLabel4);

    // Buttons.
    button(NeueAdresse, "&Neu");
    button(NeueAdresseAbbruch, "Abbrechen");
    NeueAdresseAbbruch.Visible = false;
    button(AdresseÄndern, "&Bearbeiten");
    button(AdresseÄndernAbbruch, "Abbrechen");
    AdresseÄndernAbbruch.Visible = false;
    button(AdresseLöschen, "&Löschen", "Aktuellen Eintrag löschen");
    button(NachAdresseSuchen, "S&uchen", "Bestimmtes Feld suchen");
    button(Command3D16, "|<");
    button(EinzNachvorne, "<");
    button(EinznachHinten, ">");
    button(Command3D15, ">|");
    button(InfoTipo, "Alle Einträge", "Alle Einträge freigeben");
    InfoTipo.ForeColor = colour::Black;
    button(Command3D1, "Beenden");
    button(Command3D2, "Dateien", "Verknüpfte Dokumente");
    button(Command3D3, "Wählen", "Nummer wählen");
    button(Command3D8, "Serienbrief", " Seriendruck nach TYP");
    button(Command3D13, "", "Etiketten konfigurieren");
    button(Command3D23, "", " Eintragsfreigabe nach Feldauswahlstext");
    button(Command3D24, "", " Datenbanksortierung ");
    button(Command3D25, "", "Datenbank Export");
    Command3D23.Picture = QStringLiteral("bildselect");
    Command3D24.Picture = QStringLiteral("bildordem");
    Command3D25.Picture = QStringLiteral("bildwinword");
    Command3D13.Picture = QStringLiteral("bildwinfile");
    button(Command1, "Bank", "Informationen zur Bankverbindung");
    button(Command2, "Abbrechen", "Typenbenennung abbrechen");
    Command2.Visible = false;
    button(Command3, "Adressen", "Verknüpfte Adressen");
    button(Command3d4, "Telefone", "zusätzliche Telefone");
    button(Command4, "E-Mail", "E-Mail");
    button(Command5, "Suchen", "In allen Felden suchen");
    button(Command6, "OK", "Typenbenennung Bestätigen");
    Command6.Visible = false;
    button(Command9, "new");
    button(Command10, "edit");
    button(Command11, "");
    button(SSCommand1, "", "Einstellungen speichern und Programm sofort beenden");
    button(SSCommand2, "");
    button(SSCommand3, "", "Notiz vergrössern");
    button(SSCommand4, "");
    button(SSCommand5, "");
    button(SSCommand6, "");
    button(SSCommand7, "");
    button(SSCommand8, "");
    button(SSCommand9, "");
    SSCommand8.Enabled = false;
    SSCommand9.Enabled = false;
    button(SSCommand11, "");
    button(SSCommand13, "");
    button(AssociarComOP, "Verknüpfen mit einem Programm");

    // Panels: the four pages beside the notes start shut.
    panel(Bankverbindung, "Bankverbindung");
    panel(Morephones, "Phones");
    panel(Numbers, "E-Mail");
    panel(Conexted, "Conected");
    for (Panel* p : {&Bankverbindung, &Morephones, &Numbers, &Conexted})
        p->Visible = false;
    panel(Panel3D3);
    Panel3D3.Alignment = vbLeftJustify;
    panel(Panel3d5, "", "Systemzeit");
    panel(panel3d7, "", "Systemdatum");
    panel(Selektiert, "Keine Selektion");
    panel(SSPanel2);
    panel(Panel3D1);
    panel(Panel3D2);
    panel(Panel3D4);

    // Pictures.
    Image1.Visible = false;
    Image2.Stretch = true;
    Bildschutz.Visible = false;
    Bildschutz.BackColor = colour::White;
    Picture2.Visible = false;
    prever.Visible = false;
    store(Image6, "conexted_open");
    store(Image7, "conexted_shut");
    store(Image9, "web");
    store(Image11, "mail");
    store(Leerbild, "");
    store(bildrecortar, "cut");
    store(bildcopy, "copy");
    store(bildpaste, "paste");
    store(bildbild, "picture");
    store(bildselect, "select");
    store(bildordem, "order");
    store(bildwinword, "export");
    store(bildwinfile, "labels");

    Timer1.Interval = 1000;
    Timer2.Interval = 60000;

    // The menu.
    menu(dbaction, "&Datei");
    menu(abrirdmb, "Datenbank öffnen...", "dbaction");
    menu(fechardb, "Datenbank schliessen", "dbaction");
    menu(newdb, "Neue Datenbank", "dbaction");
    menu(compactar, "Datenbank Compactieren", "dbaction");
    menu(confimp, "Druckereinrichtung...", "dbaction");
    menu(saidapr, "Beenden", "dbaction");
    menu(MenuCadastro, "&Eintrag");
    menu(menucopy, "Eintrag kopieren", "MenuCadastro");
    menu(Menucolar, "Eintrag einfügen", "MenuCadastro");
    menu(menuapagar, "Maske leeren", "MenuCadastro");
    menu(copiardb, "Auf andere Datenbank kopieren", "MenuCadastro");
    menu(Multicopy, "Alle Einträge auf andere Datenbank kopieren", "MenuCadastro");
    menu(infoprint, "Eintrag drucken", "MenuCadastro");
    menu(BemDruck, "Notizen drucken", "MenuCadastro");
    menu(printzusatzdaten, "Zusatzdaten drucken", "MenuCadastro");
    menu(menulisten, "&Listen");
    menu(menumaladata, "Geburtstagsserienbrief", "menulisten");
    menu(malaprint, "Etiketten drucken", "menulisten");
    menu(DBGitterListe, "Datenbankliste", "menulisten");
    menu(menuvalor, "Summe Wert", "menulisten");
    menu(menuoptionen, "E&instellungen");
    menu(menuconfig, "Einstellungen", "menuoptionen");
    menu(menutipo, "Typ festlegen", "menuoptionen");
    menu(menusenha, "Passwort ändern", "menuoptionen");
    menu(menuetqconf, "Etiquetten konfigurieren", "menuoptionen");
    menu(abrirdenominacao, "Benennung laden...", "menuoptionen");
    menu(salvarden, "Benennung speichern...", "menuoptionen");
    menu(menuwerkzeuge, "&Werkzeuge");
    menu(menuauto, "Verlauf", "menuwerkzeuge");
    menu(menusilabas, "Silben suchen", "menuwerkzeuge");
    menu(progshow, "Zusatzprogramm", "menuwerkzeuge");

    nameControls(*this, "Hauptmaske");
}

}  // namespace mk
