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

TEST_F(MainWindowKeys, F1NamesF5AndF9AfterTheDialerWhileItIsOpen)
{
    app().DIALER.Visible = true;
    const QString prompt = TastaturbelegungBlaettern(app());
    EXPECT_TRUE(prompt.contains(QStringLiteral("\r\nF5 = Modem abschalten\r\n")));
    EXPECT_TRUE(prompt.contains(QStringLiteral("\r\nF9 = Nummer wählen \r\n")));
    EXPECT_FALSE(prompt.contains(QStringLiteral("Serienbriefliste")));
}

TEST_F(MainWindowKeys, EditStateKeepsOnlyItsOwnKeys)
{
    changeOpen();
    for (int code : {vbKeyPageUp, vbKeyPageDown, vbKeyHome, vbKeyEnd, vbKeyF2, vbKeyF5, vbKeyF6, vbKeyF11, vbKeyF12})
        key(code);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_TRUE(sys.ui.boxes.empty());
    key(vbKeyF7);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("Command3D3")});
    sys.ui.answerMsgBox(vbYes);
    key(vbKeyF3);
    EXPECT_EQ(sys.ui.boxes.back().buttons, vbYesNo + vbCritical);
}

}  // namespace
}  // namespace mk
