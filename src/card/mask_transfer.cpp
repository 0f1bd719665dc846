#include "card/mask_transfer.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/card_slots.h"
#include "history/history_list.h"
#include "platform/files.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "telephony/dialer.h"

#include <QImageReader>
#include <functional>
#include <vector>

namespace mk {

namespace {

using karte::Art;

// A column of the card record with its name as the store takes it, made once.
struct Spalte {
    QString name;
    const karte::Spalte* def;
    Art art;
};

// The columns in the order a card is written from the mask.
const std::vector<Spalte>& spalten()
{
    static const std::vector<Spalte> liste = [] {
        std::vector<Spalte> s;
        for (std::size_t i = 0; i < karte::kMaskenSpalten; ++i)
            s.push_back({karte::text(karte::kSpalten[i].name), &karte::kSpalten[i], karte::kSpalten[i].art});
        return s;
    }();
    return liste;
}

QString& slotVon(Merkkartelle& app, const Spalte& spalte) { return *Spaltentext(app, *spalte.def); }

std::size_t typIndex()
{
    static const std::size_t index = [] {
        const auto& s = spalten();
        for (std::size_t i = 0; i < s.size(); ++i)
            if (s[i].art == Art::Typ)
                return i;
        return s.size();
    }();
    return index;
}

// The mail and web buttons beside C1, C2, C3: active with their picture when the slot is
// filled, blank and inactive when it is empty.
void verweisKnopf(Merkkartelle& app, Button& knopf, const Image& bild, const QString& inhalt)
{
    const bool gefuellt = !inhalt.isEmpty();
    knopf.Picture = gefuellt ? bild.Picture : app.Hauptmaske.Leerbild.Picture;
    knopf.Enabled = gefuellt;
}

// What a shown column drives beyond its slot.
void nachDerSpalte(Merkkartelle& app, const Spalte& spalte)
{
    auto& m = app.Hauptmaske;
    const QString& name = spalte.name;
    if (name == QStringLiteral("Postfach")) {
        app.Aform.Suchtext[2].Text.clear();
    } else if (name == QStringLiteral("C1")) {
        verweisKnopf(app, m.SSCommand2, m.Image11, m.feldnum[0].Text);
    } else if (name == QStringLiteral("C2")) {
        verweisKnopf(app, m.SSCommand7, m.Image11, m.feldnum[1].Text);
    } else if (name == QStringLiteral("C3")) {
        verweisKnopf(app, m.SSCommand5, m.Image9, m.feldnum[2].Text);
    } else if (name == QStringLiteral("PROG1")) {
        if (m.prog[1].Text.isEmpty()) {
            m.Label12.Caption.clear();
            m.Command3D2.Picture = m.Leerbild.Picture;
            m.Command3D2.BackColor = Button{}.BackColor;
            m.Conexted.BackColor = Panel{}.BackColor;
        } else {
            m.Label12.Caption = QStringLiteral("Siehe verknüpfte Dateien");
            m.Command3D2.Picture = m.Conexted.Visible ? m.Image6.Picture : m.Image7.Picture;
        }
    } else if (name == QStringLiteral("Som")) {
        if (!m.Text9.Text.isEmpty())
            m.SSCommand4.Enabled = true;
    } else if (name == QStringLiteral("Video")) {
        if (!m.Text10.Text.isEmpty())
            m.SSCommand6.Enabled = true;
    }
}

// The colour records of the settings; an empty or unreadable record leaves the colour.
void farbeAusEinstellung(const Merkkartelle& app, int record, long& ziel)
{
    bool ok = false;
    const long wert = app.Einstellungsliste[std::size_t(record)].trimmed().toLong(&ok);
    if (ok)
        ziel = wert;
}

// Twips a pixel, and the margin the picture keeps inside its panel.
constexpr int kTwipsPerPixel = 15;
constexpr int kBildRand = 240;

}  // namespace

void BildEinpassen(Image& bild, const Control& rahmen)
{
    const int breite = std::max(rahmen.Width - kBildRand, 0);
    const int hoehe = std::max(rahmen.Height - kBildRand, 0);
    if (bild.PictureWidth > 0 && bild.PictureHeight > 0 && breite > 0 && hoehe > 0) {
        const double skala = std::min(double(breite) / bild.PictureWidth, double(hoehe) / bild.PictureHeight);
        bild.Width = int(bild.PictureWidth * skala);
        bild.Height = int(bild.PictureHeight * skala);
    } else {
        bild.Width = breite;
        bild.Height = hoehe;
    }
    bild.Left = (rahmen.Width - bild.Width) / 2;
    bild.Top = (rahmen.Height - bild.Height) / 2;
}

// ---- card into mask ---------------------------------------------------------------------------

namespace {

// The columns of the current card into their slots; with the display, each column also
// drives what it shows beside its slot.
void spaltenInMaske(Merkkartelle& app, bool mitAnzeige)
{
    auto& m = app.Hauptmaske;
    for (const Spalte& spalte : spalten()) {
        underIgnoredErrors([&] {
            const QString wert = kartensatz(app).Fields(spalte.name).text();  // Null reads as ""
            if (spalte.art == Art::Typ) {
                app.Typzeichen = wert;
                TypInMaske(app, wert);
            } else {
                slotVon(app, spalte) = wert;
            }
            if (spalte.art == Art::Zaehler) {
                m.datalabel.Caption = wert;
                m.LaufendeNummer.Hint = QStringLiteral("Laufende Nummer ") + wert + QStringLiteral("  (Datenbankregistriernummer)");
            }
        });
        if (mitAnzeige)
            nachDerSpalte(app, spalte);
    }
}

}  // namespace

void KarteInMaskenfelder(Merkkartelle& app)
{
    if (kartenzahl(app) == 0)
        MaskeLeeren(app);
    else
        spaltenInMaske(app, false);
}

void DatenInMaske(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (kartenzahl(app) == 0) {
        MaskeLeeren(app);
        PositionAnzeigen(app);
        return;
    }

    // Whatever showed for the last card goes away.
    m.Picture2.Visible = false;

    for (auto& [index, feld] : m.prog) {
        farbeAusEinstellung(app, 90, feld.BackColor);
        farbeAusEinstellung(app, 91, feld.ForeColor);
    }

    PositionAnzeigen(app);
    spaltenInMaske(app, true);

    m.AdresseÄndern.Enabled = true;
    m.AdresseLöschen.Enabled = true;
    m.Command1.Enabled = true;

    // The history takes a card the user asked for; the flag acts for that one card, so a
    // jump from the history itself, or any later showing, records nothing.
    if (m.Label9.Caption == kReplayOn) {
        if (app.config.Check3D5.checked())
            Verlaufsaufnahme(app);
        m.Label9.Caption.clear();
    }

    if (app.mala.Visible) {
        auto& liste = app.mala.Schnelleauswahlliste;
        const long nummer = long(Val(m.LaufendeNummer.Caption));
        for (int i = 0; i < liste.ListCount(); ++i)
            if (liste.ItemData(i) == nummer)
                liste.ListIndex = i;
    }

    KarteInDialer(app);
    KartenbildZeigen(app);
}

void KartenbildZeigen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    Image& bild = m.Image1;
    const QString pfad = m.feld[16].Text;
    if (pfad.isEmpty()) {
        bild.Visible = false;
        m.Label9.Caption.clear();
        bild.Picture.clear();
        bild.PictureWidth = bild.PictureHeight = 0;
        m.Label16.Caption.clear();
        m.Label32.Caption = QString::number(bild.Width / kTwipsPerPixel);  // in pixels, as their hints say
        m.Label33.Caption = QString::number(bild.Height / kTwipsPerPixel);
        return;
    }
    QString gefunden;
    if (!underIgnoredErrors([&] { gefunden = Dir(pfad); }) || gefunden.isEmpty()) {
        bild.Visible = false;  // a picture that is gone stays away without a word
        return;
    }
    const QString datei = resolvePath(pfad);
    const QSize groesse = QImageReader(datei).size();
    bild.Picture = datei;
    bild.PictureWidth = std::max(groesse.width(), 0);
    bild.PictureHeight = std::max(groesse.height(), 0);
    bild.Width = bild.PictureWidth * kTwipsPerPixel;
    bild.Height = bild.PictureHeight * kTwipsPerPixel;
    m.Label16.Caption = QStringLiteral("%1 x %2").arg(bild.PictureWidth).arg(bild.PictureHeight);
    bild.Width = m.Panel3D2.Width - kBildRand;
    bild.Height = m.Panel3D2.Height - kBildRand;
    bild.Visible = true;

    bild.Stretch = false;  // never distorted: the fitting keeps the picture's proportions
    BildEinpassen(bild, m.Panel3D2);
    if (app.config.SSCheck9.checked()) {
        m.prever.Picture = datei;
        m.prever.PictureWidth = bild.PictureWidth;
        m.prever.PictureHeight = bild.PictureHeight;
        m.prever.Stretch = true;
    }
}

void KarteInDialer(Merkkartelle& app)
{
    const auto& m = app.Hauptmaske;
    auto& d = app.DIALER;
    // A call in progress keeps its number and name.
    if (d.Schleifen > 0)
        return;
    d.Text6.Text = m.feld[14].Text;
    d.Text1.Text = m.feld[5].Text + QLatin1Char(' ') + m.feld[4].Text;
    d.Text2.Text = m.LaufendeNummer.Caption;
    KartennummernInDialer(app);
}

QString TypAusMaske(const Merkkartelle& app)
{
    QString typ;
    for (int i = 0; i <= 6; ++i)
        typ += app.Hauptmaske.Typenliste[i].checked() ? QLatin1Char('1') : QLatin1Char('0');
    return typ;
}

void TypInMaske(Merkkartelle& app, const QString& typ)
{
    for (int i = 0; i <= 6; ++i)
        app.Hauptmaske.Typenliste[i].Value = typ.mid(i, 1) == QStringLiteral("1") ? 1 : 0;
}

// ---- mask into card ---------------------------------------------------------------------------

namespace {

void strukturfehler(Merkkartelle& app, const RuntimeError& fehler)
{
    app.ui.MsgBox(QStringLiteral("Speicherung abgebrochen - Strukturfehler ") + QLatin1Char('\r') + QStringLiteral("       ")
                      + fehler.Description + QLatin1Char('\r'),
                  vbCritical);
}

}  // namespace

void MaskeInDaten(Merkkartelle& app)
{
    Recordset* satz = nullptr;
    try {
        satz = &kartensatz(app);
    } catch (const RuntimeError& fehler) {
        strukturfehler(app, fehler);
        return;
    }
    MaskeInDatenMulti(app, *satz);
}

void MaskeInDatenMulti(Merkkartelle& app, Recordset& satz)
{
    const auto& liste = spalten();
    try {
        for (std::size_t i = 0; i < liste.size(); ++i) {
            const Spalte& spalte = liste[i];
            switch (spalte.art) {
            case Art::Text:
            case Art::Langtext:
                satz.Fields(spalte.name).setValue(slotVon(app, spalte));
                break;
            case Art::Geburtstag:
                if (!slotVon(app, spalte).isEmpty()) {
                    try {
                        satz.Fields(spalte.name).setValue(slotVon(app, spalte));
                    } catch (const RuntimeError&) {
                        i = typIndex() - 1;  // the guard goes on with Typ
                    }
                } else {
                    underIgnoredErrors([&] { satz.Fields(spalte.name).setValue(QString()); });
                }
                break;
            case Art::Stempel:
                underIgnoredErrors([&] { satz.Fields(spalte.name).setValue(slotVon(app, spalte)); });
                break;
            case Art::Typ:
                satz.Fields(spalte.name).setValue(TypAusMaske(app));
                break;
            case Art::Zaehler:
            case Art::Vorlage:
                break;  // the counter of the database is never written, nor the template's own column
            }
        }
    } catch (const RuntimeError& fehler) {
        strukturfehler(app, fehler);
    }
}

// ---- clearing the mask -------------------------------------------------------------------------

void MaskeLeeren(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    for (auto& [i, feld] : m.feld)
        feld.Text.clear();
    for (auto& [i, box] : m.Typenliste)
        box.Value = 0;
    for (auto& [i, feld] : m.feldbank)
        feld.Text.clear();
    for (auto& [i, feld] : app.Aform.FeldA)
        feld.Text.clear();
    for (auto& [i, feld] : app.Aform.feldB)
        feld.Text.clear();
    for (auto& [i, feld] : app.Aform.Suchtext)
        feld.Text.clear();
    for (auto& [i, feld] : m.feldnum)
        feld.Text.clear();
    for (auto& [i, feld] : m.prog)
        feld.Text.clear();
    m.Datum.Caption.clear();
    m.Zeit.Caption.clear();
    m.Partido.Text.clear();
    m.Ramal.Text.clear();
    m.recdate.Caption.clear();
    m.rectime.Caption.clear();
    m.Bemerkung.Text.clear();
    m.Image1.Picture.clear();
    m.Image1.PictureWidth = m.Image1.PictureHeight = 0;
    m.Label16.Caption.clear();
    m.LaufendeNummer.Caption.clear();
    for (TextBox* feld : {&m.tel1, &m.tel2, &m.tel3, &m.tel4, &m.Text9, &m.Text10, &m.Text11, &m.Text12, &m.Text13, &m.Text14})
        feld->Text.clear();
    m.Text15.Text.clear();
}

// ---- the print copy ----------------------------------------------------------------------------

void DatenInDruckpuffer(Merkkartelle& app, Druckpuffer& puffer)
{
    if (kartenzahl(app) == 0)
        return;
    const auto lesen = [&](const char* spalte, QString& ziel) {
        underIgnoredErrors([&] { ziel = kartensatz(app).Fields(QString::fromLatin1(spalte)).text(); });
    };
    lesen("Schluessel", puffer.Schluessel);
    lesen("Titel", puffer.Titel);
    lesen("Firma", puffer.Firma);
    lesen("Nachname", puffer.Nachname);
    lesen("Vorname", puffer.Vorname);
    lesen("Strasse", puffer.Strasse);
    lesen("Staat", puffer.Staat);
    lesen("Stadteil", puffer.Stadteil);
    lesen("PLZ", puffer.PLZ);
    lesen("Stadt", puffer.Stadt);
    lesen("Telefon", puffer.Telefon);
    lesen("Land", puffer.Land);
    lesen("Celphone", puffer.Celphone);
    // The notes pass the hidden rich-text control, which gives the print plain text.
    lesen("Bemerkung", puffer.Bemerkung);
}

}  // namespace mk
