// The typing slots of the main mask: the length check against the column, the birthday mask,
// the focus colours and the hints while a card is open.

#include "card/card_cursor.h"
#include "card/field_checks.h"
#include "card/main_window.h"
#include "platform/store.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace mk {
namespace {

class MainWindowFields : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        const QString path = dir.filePath(QStringLiteral("karten.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, path);
        app().Kartendatenbank = Database::open(path);
        app().Kartensatz = app().Kartendatenbank->createDynaset(tableNameOf(DatabaseKind::Cards));
        // The notice is shown modally: note it, then let its timer close it.
        sys.ui.modalLoop = [this](const QString&, const std::function<bool()>& stillShown) {
            notices << app().Message.Label1.Caption;
            app().timers.sync(app().forms, app().clock);
            advanceClock(app(), 2000);
            EXPECT_FALSE(stillShown());
        };
    }

    Merkkartelle& app() { return sys.app; }

    void change(const QString& control, int index, const QString& text)
    {
        app().forms.write(QStringLiteral("Hauptmaske.%1%2.Text")
                              .arg(control, index < 0 ? QString() : QStringLiteral("(%1)").arg(index)),
                          text);
        raiseEvent(app(), QStringLiteral("Hauptmaske.%1%2").arg(control, index < 0 ? QString() : QStringLiteral("(%1)").arg(index)),
                   QStringLiteral("Change"));
    }

    QTemporaryDir dir;
    test::ScriptedSystem sys;
    QStringList notices;
};

TEST_F(MainWindowFields, EachSlotFamilyHasItsWording)
{
    app().Hauptmaske.beschreibung[23].Caption = QStringLiteral("Foto:");
    change(QStringLiteral("feld"), 16, QString(256, u'x'));  // the picture path: label 23
    change(QStringLiteral("feldbank"), 0, QString(21, u'1'));
    change(QStringLiteral("feldnum"), 3, QString(101, u'k'));
    change(QStringLiteral("prog"), 20, QString(256, u'p'));
    change(QStringLiteral("Partido"), -1, QString(51, u'p'));
    EXPECT_EQ(notices, (QStringList{
                           QStringLiteral("Das Feld Foto: verfügt nur über 255 Schriftzeichen"),
                           QStringLiteral("Das Feld BLZ: verfügt nur über 20 Schriftzeichen"),
                           QStringLiteral("O campo KFZ-Nr.: suporta somente 100 caractéres"),
                           QStringLiteral("Dieses Feld verfügt über maximal 255 Schriftzeichen"),
                           QStringLiteral("Das Feld Partei: verfügt nur über 50 Schriftzeichen"),
                       }));
    EXPECT_EQ(app().Hauptmaske.feldnum[3].Text.size(), 100);
    EXPECT_EQ(app().Hauptmaske.prog[20].Text.size(), 255);
}

TEST_F(MainWindowFields, LongTextAndAMissingCursorHaveNoLimit)
{
    change(QStringLiteral("Bemerkung"), -1, QString(5000, u'n'));
    EXPECT_TRUE(notices.isEmpty());
    EXPECT_EQ(app().Hauptmaske.Bemerkung.Text.size(), 5000);

    app().Kartensatz.reset();
    change(QStringLiteral("feld"), 9, QStringLiteral("12345678901"));
    EXPECT_TRUE(notices.isEmpty());
    EXPECT_EQ(app().Hauptmaske.feld[9].Text, QStringLiteral("12345678901"));
}

// Typing one character after the other, as the mask sees it.
QString typed(const QString& keys, int* caret = nullptr)
{
    QString text;
    int at = 0;
    for (QChar c : keys) {
        text.insert(at, c);
        const Maskenergebnis r = Geburtstagsmaske(text, QStringLiteral("."));
        text = r.text;
        at = r.geaendert ? r.caret : at + 1;
    }
    if (caret)
        *caret = at;
    return text;
}

TEST(BirthdayMask, TypedDigitsGetTheSeparatorAndLoseWhatDoesNotFit)
{
    int caret = 0;
    EXPECT_EQ(typed(QStringLiteral("12345"), &caret), QStringLiteral("12."));
    EXPECT_EQ(caret, 3);
    EXPECT_EQ(typed(QStringLiteral("01.13")), QStringLiteral("01."));
    EXPECT_EQ(typed(QStringLiteral("01.121"), &caret), QStringLiteral("01.12."));
    EXPECT_EQ(caret, 6);
    EXPECT_EQ(typed(QStringLiteral("17.05.1970")), QStringLiteral("17.05.1970"));
    // A separator of another locale is replaced by the one in force.
    EXPECT_EQ(typed(QStringLiteral("17/05")), QStringLiteral("17.05"));
    const Maskenergebnis lang = Geburtstagsmaske(QStringLiteral("17.05.19701"), QStringLiteral("."));
    EXPECT_EQ(lang.text, QStringLiteral("17.05.1970"));
    EXPECT_EQ(lang.caret, 10);
}

TEST_F(MainWindowFields, BirthdaySlotAppliesTheMaskWithTheLocaleSeparator)
{
    app().Hauptmaske.Label2.Caption = QStringLiteral("/");
    change(QStringLiteral("feld"), 13, QStringLiteral("011"));
    EXPECT_EQ(app().Hauptmaske.feld[13].Text, QStringLiteral("01/"));
    EXPECT_EQ(app().Hauptmaske.feld[13].SelStart, 3);
    // Other slots take no mask.
    change(QStringLiteral("feld"), 12, QStringLiteral("011"));
    EXPECT_EQ(app().Hauptmaske.feld[12].Text, QStringLiteral("011"));
}

TEST_F(MainWindowFields, FocusColoursOnlyWhileEditing)
{
    auto& m = app().Hauptmaske;
    auto& cfg = app().config;
    cfg.Check3D10.Value = 1;
    cfg.Label34.BackColor = rgb(1, 2, 3);
    cfg.Label34.ForeColor = rgb(200, 0, 0);
    for (auto& [i, slot] : m.feld) {
        slot.BackColor = colour::Black;
        slot.ForeColor = rgb(0, 255, 0);
    }
    for (auto& [i, label] : m.beschreibung)
        label.ForeColor = rgb(1, 2, 3);

    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(4)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(m.Label10.Caption, QStringLiteral("4"));
    EXPECT_EQ(m.beschreibung[4].ForeColor, rgb(1, 2, 3));
    EXPECT_EQ(m.feld[4].BackColor, colour::Black);

    m.AdresseÄndern.Caption = kOKCaption;
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(16)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(m.beschreibung[23].ForeColor, rgb(200, 0, 0));
    EXPECT_EQ(m.feld[16].BackColor, colour::White);
    EXPECT_EQ(m.feld[16].ForeColor, colour::Black);
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(16)"), QStringLiteral("LostFocus"));
    EXPECT_EQ(m.beschreibung[23].ForeColor, rgb(1, 2, 3));
    EXPECT_EQ(m.feld[16].BackColor, colour::Black);
    EXPECT_EQ(m.feld[16].ForeColor, rgb(0, 255, 0));
}

TEST_F(MainWindowFields, FocusInBrowseStateRemindsOfEditing)
{
    auto& m = app().Hauptmaske;
    m.LaufendeNummer.ForeColor = colour::Black;
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(0)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(m.LaufendeNummer.ForeColor, colour::Black);
    app().config.SSCheck4.Value = 1;
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(0)"), QStringLiteral("GotFocus"));
    EXPECT_NE(m.LaufendeNummer.ForeColor, colour::Black);
}

TEST_F(MainWindowFields, EnteringASlotPlacesTheCaretAsTheOptionsSay)
{
    auto& slot = app().Hauptmaske.feld[2];
    slot.Text = QStringLiteral("Muster GmbH");
    app().config.Check3D12.Value = 1;
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(2)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(slot.SelStart, 11);
    EXPECT_EQ(slot.SelLength, 0);
    app().config.SSCheck10.Value = 1;
    raiseEvent(app(), QStringLiteral("Hauptmaske.feld(2)"), QStringLiteral("GotFocus"));
    EXPECT_EQ(slot.SelStart, 0);
    EXPECT_EQ(slot.SelLength, 11);
}

TEST_F(MainWindowFields, ASlotHintOfTheEditStateDoesNotOutliveIt)
{
    auto& m = app().Hauptmaske;
    m.NeueAdresse.Caption = kSpeichernCaption;
    raiseEvent(app(), QStringLiteral("Hauptmaske.Partido"), QStringLiteral("MouseMove"));
    EXPECT_EQ(m.Panel3D3.Caption, QStringLiteral("Feld: Partei: Doppelklick für Auswahlbox"));
    m.NeueAdresse.Caption = kNeuCaption;
    raiseEvent(app(), QStringLiteral("Hauptmaske.Partido"), QStringLiteral("MouseMove"));
    EXPECT_EQ(m.Panel3D3.Caption, QString());
    EXPECT_EQ(m.Partido.Hint, QString());
}

}  // namespace
}  // namespace mk
