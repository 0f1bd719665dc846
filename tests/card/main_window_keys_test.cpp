// The key maps of the main window: what each key presses while browsing, and the questions
// of the edit states.

#include "card/card_cursor.h"
#include "card/key_map.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace mk {
namespace {

class MainWindowKeys : public ::testing::Test {
protected:
    // Every control a key may press records its click instead of running its action.
    void SetUp() override
    {
        for (const char* name : {"Command3D1", "EinzNachvorne", "EinznachHinten", "Command3D15", "Command3D16",
                                 "NeueAdresse", "AdresseÄndern", "Command3D8", "NachAdresseSuchen", "Command3D3",
                                 "menuetqconf", "menumaladata", "menusenha", "Command1", "menutipo",
                                 "NeueAdresseAbbruch", "AdresseÄndernAbbruch"}) {
            const QString control = QString::fromUtf8(name);
            app().handlers.on(QStringLiteral("Hauptmaske"), control, QStringLiteral("Click"),
                              [this, control](Merkkartelle&, EventArgs&) { pressed << control; });
        }
    }

    Merkkartelle& app() { return sys.app; }

    void key(int code)
    {
        EventArgs args;
        args.KeyCode = code;
        raiseEvent(app(), QStringLiteral("Hauptmaske"), QStringLiteral("KeyDown"), args);
    }

    void newCardOpen() { app().Hauptmaske.NeueAdresse.Caption = kSpeichernCaption; }
    void changeOpen() { app().Hauptmaske.AdresseÄndern.Caption = kOKCaption; }

    test::ScriptedSystem sys;
    QStringList pressed;
};

TEST_F(MainWindowKeys, BrowseKeysPressTheirControls)
{
    const std::pair<int, const char*> map[] = {
        {vbKeyEscape, "Command3D1"},   {vbKeyPageUp, "EinzNachvorne"},     {vbKeyPageDown, "EinznachHinten"},
        {vbKeyEnd, "Command3D15"},     {vbKeyHome, "Command3D16"},         {vbKeyF2, "NeueAdresse"},
        {vbKeyF3, "AdresseÄndern"},    {vbKeyF5, "Command3D8"},            {vbKeyF6, "NachAdresseSuchen"},
        {vbKeyF7, "Command3D3"},       {vbKeyF8, "menuetqconf"},           {vbKeyF9, "menumaladata"},
        {vbKeyF10, "menusenha"},       {vbKeyF11, "Command1"},             {vbKeyF12, "menutipo"},
    };
    for (const auto& [code, control] : map) {
        pressed.clear();
        key(code);
        EXPECT_EQ(pressed, QStringList{QString::fromUtf8(control)}) << "key " << code;
    }
    pressed.clear();
    key(vbKeyF4);
    key('A');
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_TRUE(sys.ui.boxes.empty());
}

TEST_F(MainWindowKeys, F11PressesTheBankButtonOnlyWhileItIsEnabled)
{
    app().Hauptmaske.Command1.Enabled = false;
    key(vbKeyF11);
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(MainWindowKeys, F1InBrowseStateListsTheKeys)
{
    key(vbKeyF1);
    ASSERT_EQ(sys.ui.boxes.size(), 1u);
    EXPECT_EQ(sys.ui.boxes[0].title, QStringLiteral("Tastaturbelegung"));
    EXPECT_EQ(sys.ui.boxes[0].prompt,
              QStringLiteral("F2 = Neuer Eintrag \r\nF3 = Eintrag ändern\r\nF5 = Serienbriefliste\r\nF6 = Suchen \r\n"
                             "F7 = Nummer wählen\r\nF8 = Etiquetten konfigurieren \r\nF9 = Geburtstagsserienbrief\r\n"
                             "F10 = Passwort ändern \r\nF11 = Bank \r\nF12 = Typ benennen"));

    // While the dialer is open F5 and F9 work the modem.
    app().DIALER.Visible = true;
    const QString prompt = TastaturbelegungBlaettern(app());
    EXPECT_TRUE(prompt.contains(QStringLiteral("\r\nF5 = Modem abschalten\r\n")));
    EXPECT_TRUE(prompt.contains(QStringLiteral("\r\nF9 = Nummer wählen \r\n")));
    EXPECT_FALSE(prompt.contains(QStringLiteral("Serienbriefliste")));
}

TEST_F(MainWindowKeys, EscapeAsksBeforeItCancelsTheOpenCard)
{
    newCardOpen();
    sys.ui.answerMsgBox(vbNo);
    key(vbKeyEscape);
    EXPECT_TRUE(pressed.isEmpty());
    sys.ui.answerMsgBox(vbYes);
    key(vbKeyEscape);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("NeueAdresseAbbruch")});
    ASSERT_EQ(sys.ui.boxes.size(), 2u);
    EXPECT_EQ(sys.ui.boxes[1].prompt, QStringLiteral("Neuen Eintrag abbrechen ?\r\n            "));
    EXPECT_EQ(sys.ui.boxes[1].title, QStringLiteral("Neuen Eintrag abbrechen"));
    EXPECT_EQ(sys.ui.boxes[1].buttons, vbYesNo + vbCritical);

    pressed.clear();
    app().Hauptmaske.NeueAdresse.Caption = kNeuCaption;
    changeOpen();
    sys.ui.answerMsgBox(vbYes);
    key(vbKeyEscape);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("AdresseÄndernAbbruch")});
    EXPECT_EQ(sys.ui.boxes.back().prompt, QStringLiteral("Bearbeitung abbrechen ?\r\n            "));
    EXPECT_EQ(sys.ui.boxes.back().title, QStringLiteral("Bearbeitung abbrechen"));
}

TEST_F(MainWindowKeys, F2SavesOnlyANewCardAndF3OnlyAChange)
{
    changeOpen();
    key(vbKeyF2);
    EXPECT_TRUE(sys.ui.boxes.empty());
    sys.ui.answerMsgBox(vbYes);
    key(vbKeyF3);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("AdresseÄndern")});
    EXPECT_EQ(sys.ui.boxes.back().prompt, QStringLiteral("Eintrag aktualizieren ?\r\n            "));
    EXPECT_EQ(sys.ui.boxes.back().title, QStringLiteral("Eintrag aktualizieren"));

    pressed.clear();
    app().Hauptmaske.AdresseÄndern.Caption = kBearbeitenCaption;
    newCardOpen();
    const auto boxes = sys.ui.boxes.size();
    key(vbKeyF3);
    EXPECT_EQ(sys.ui.boxes.size(), boxes);
    sys.ui.answerMsgBox(vbNo);
    key(vbKeyF2);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_EQ(sys.ui.boxes.back().prompt, QStringLiteral("Neuen Eintrag speichern ?\r\n            "));
    sys.ui.answerMsgBox(vbYes);
    key(vbKeyF2);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("NeueAdresse")});
}

TEST_F(MainWindowKeys, EditStateKeepsOnlyItsOwnKeys)
{
    changeOpen();
    for (int code : {vbKeyPageUp, vbKeyPageDown, vbKeyHome, vbKeyEnd, vbKeyF5, vbKeyF6, vbKeyF11, vbKeyF12})
        key(code);
    EXPECT_TRUE(pressed.isEmpty());
    key(vbKeyF7);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("Command3D3")});

    key(vbKeyF1);
    EXPECT_EQ(sys.ui.boxes.back().prompt,
              QStringLiteral(" Tastaturbelegung\r\n Esc = Abbrechen \r\n F3 = Änderungen übernehmen\r\n F7 = Nummer wählen"));
    app().Hauptmaske.AdresseÄndern.Caption = kBearbeitenCaption;
    newCardOpen();
    EXPECT_TRUE(TastaturbelegungBearbeiten(app()).contains(QStringLiteral("\r\n F2 = Neuen Eintrag speichern\r\n")));
}

}  // namespace
}  // namespace mk
