// The dialer against a simulated Hayes modem on a pseudo-terminal, through the serial
// service the desktop program uses: calls, reply words, rings, the reset, ports that cannot
// be opened, a silent modem, an unplugged one.

#include "telephony_fixture.h"

#include <QFile>
#include <QSerialPort>
#include <algorithm>

namespace mk::test {
namespace {

constexpr long kRot = rgb(255, 0, 0);

TEST(AreaCode, OnlyTheOwnAreaCodeAtTheStartIsCut)
{
    EXPECT_EQ(OhneVorwahl(QStringLiteral("02132 4711"), QStringLiteral("02132")), QStringLiteral(" 4711"));
    EXPECT_EQ(OhneVorwahl(QStringLiteral("02132"), QStringLiteral("02132")), QString());
    EXPECT_EQ(OhneVorwahl(QStringLiteral("0211/02132"), QStringLiteral("02132")), QStringLiteral("0211/02132"));
    EXPECT_EQ(OhneVorwahl(QStringLiteral("02132-4711"), QString()), QStringLiteral("02132-4711"));
    EXPECT_EQ(OhneVorwahl(QStringLiteral("0213"), QStringLiteral("02132")), QStringLiteral("0213"));
}

TEST_F(TelephonyTest, ACallFromTheCardIsLoggedFromConnectionToHangUp)
{
    app.config.Text2.Text = QStringLiteral("02132");
    card(QStringLiteral("Hans"), QStringLiteral("Müller"), QStringLiteral("02132 4711"));
    DialerOeffnen(app);
    ASSERT_TRUE(app.DIALER.Visible);
    EXPECT_EQ(app.DIALER.Dialnumber[0].Caption, QStringLiteral(" 4711"));
    raiseEvent(app, QStringLiteral("DIALER.Dialnumber(0)"), QStringLiteral("Click"));

    bool rowOpenDuringCall = false;
    duringWait = [&](int) {
        if (app.DIALER.Label1.BackColor != kRot || app.DIALER.Label7.Caption == QLatin1String("STOP"))
            return;
        // The row waits in the add state while the call lasts.
        rowOpenDuringCall = rows() == 0 && app.Anrufsatz->editMode() == EditMode::AddNew;
        sys.clock.advance(65000);
        click("DIALER.Abrir");
    };
    click("DIALER.Abrir");

    EXPECT_TRUE(rowOpenDuringCall);
    EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("OFF LINE"));
    EXPECT_EQ(app.DIALER.Label4.Caption, QStringLiteral("10:00:00"));
    EXPECT_EQ(app.DIALER.Label5.Caption, QStringLiteral("65"));
    EXPECT_FALSE(app.DIALER.Comm1.PortOpen());
    EXPECT_TRUE(sent().startsWith("ATDTM0 4711\rATM0\r")) << sent().toStdString();
    EXPECT_TRUE(sent().endsWith("ATATZ\r\r")) << sent().toStdString();
    ASSERT_EQ(rows(), 1);
    EXPECT_EQ(app.Formtel.Text2.Text, QStringLiteral(" 4711"));
    EXPECT_EQ(app.Formtel.Text7.Text, QStringLiteral("Hans Müller"));
    EXPECT_EQ(app.Formtel.Text5.Text, QStringLiteral("10:00:00"));
    EXPECT_EQ(app.Formtel.Text6.Text, QStringLiteral("10:01:05"));

    // The port is free again for the next call.
    QSerialPort other(modem.device());
    EXPECT_TRUE(other.open(QIODevice::ReadWrite));
}

TEST_F(TelephonyTest, NoDialToneAndErrorShowTheirStateAndLeaveNoRow)
{
    card(QStringLiteral("Anna"), QStringLiteral("Zeller"), QStringLiteral("4711"));
    DialerOeffnen(app);
    struct Case {
        QByteArray reply;
        const char* status;
        QString picture;
    };
    const Case cases[] = {{"\r\nNO DIALTONE\r\n", "Verbindung ohne Freizeichen", app.DIALER.Image2.Picture},
                          {"\r\nERROR\r\n", "Konfigurationsfehler", app.DIALER.Image1.Picture}};
    for (const Case& c : cases) {
        modem.dialReply = c.reply;
        QString seen;
        QString picture;
        bool open = false;
        duringWait = [&](int) {
            if (seen.isEmpty() && app.DIALER.Label1.BackColor == 0) {
                seen = app.DIALER.Label1.Caption;
                picture = app.DIALER.Abrir.Picture;
                open = app.DIALER.Comm1.PortOpen();
                click("DIALER.Abrir");
            }
        };
        click("DIALER.Abrir");
        EXPECT_EQ(seen, QString::fromUtf8(c.status));
        EXPECT_EQ(picture, c.picture) << c.status;
        EXPECT_TRUE(open) << "the line stays until the user clicks";
        EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("OFF LINE"));
        modem.pump();  // the modem takes the hang-up before the next call
    }
    EXPECT_EQ(rows(), 0);
}

TEST_F(TelephonyTest, EveryRingIsNoticedAndTheDetectionEndsAtAClick)
{
    app.config.SSCheck7.Value = 0;  // the ring sounds whatever the option says
    DialerOeffnen(app);
    QStringList states;
    duringWait = [&](int n) {
        if (n == 3 || n == 8)
            modem.send("\r\nRING\r\n");
        if (n == 6 || n == 12)
            states << app.DIALER.Label1.Caption;
        if (n == 14)
            click("DIALER.Abrir");
    };
    click("DIALER.Command3D8");
    EXPECT_EQ(states, QStringList({QStringLiteral("Anruf"), QStringLiteral("Anruf")}));
    EXPECT_EQ(std::count_if(sys.ui.sounds.begin(), sys.ui.sounds.end(),
                            [](const QString& s) { return s.endsWith(QLatin1String("phonerng.wav")); }),
              2);
    EXPECT_EQ(app.DIALER.loopoff.Caption, QStringLiteral("DETECTION OFF"));
    EXPECT_TRUE(app.DIALER.Command3D8.Enabled);
    EXPECT_TRUE(app.DIALER.Command3D2.Visible);
    EXPECT_EQ(sent(), QByteArray("ATS0=0\rATH0\r\r"));
    EXPECT_EQ(rows(), 0);
}

TEST_F(TelephonyTest, TheResetEndsAtTheModemsAnswer)
{
    DialerOeffnen(app);
    click("DIALER.Command3D9");
    EXPECT_EQ(sent(), QByteArray("ATZ\r"));
    EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("OFF LINE"));
    EXPECT_EQ(app.DIALER.Command3D9.Picture, QStringLiteral("reset1"));
    EXPECT_TRUE(app.DIALER.Command3D9.Enabled);
    EXPECT_FALSE(app.DIALER.Comm1.PortOpen());
}

TEST_F(TelephonyTest, APortThatCannotBeOpenedGivesTheMessageAndReturnsToIdle)
{
    WritePrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM2"), joinPath(dir.path(), QStringLiteral("nothing")),
                              QStringLiteral("MERKKARTELLE.INI"));
    QSerialPort holder(modem.device());
    ASSERT_TRUE(holder.open(QIODevice::ReadWrite));
    card(QStringLiteral("Anna"), QStringLiteral("Zeller"), QStringLiteral("4711"));
    DialerOeffnen(app);
    for (int port : {1, 2}) {
        app.Form10.Option3D1.Value = port == 1;
        app.Form10.Option3D2.Value = port == 2;
        sys.ui.answerMsgBox(vbOK);
        click("DIALER.Abrir");
        const ShownBox* box = sys.ui.checkNextMsgBox();
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->prompt, QStringLiteral("COM%1: exsitiert nicht, bitte COM-PORT wechseln. ").arg(port));
        EXPECT_EQ(box->title, QStringLiteral("Modem"));
        EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("Falscher PORT"));
        EXPECT_EQ(app.DIALER.Abrir.Picture, app.DIALER.Image1.Picture);
        EXPECT_TRUE(app.DIALER.Abrir.Enabled);
        EXPECT_EQ(passes, 0) << "no wait starts";
    }
}

TEST_F(TelephonyTest, ASilentModemWaitsUntilTheUserHangsUp)
{
    modem.dialReply.clear();
    card(QStringLiteral("Anna"), QStringLiteral("Zeller"), QStringLiteral("4711"));
    DialerOeffnen(app);
    QString during;
    duringWait = [&](int n) {
        if (n == 40) {
            during = app.DIALER.Label1.Caption + u'/' + app.DIALER.Abrir.Picture;
            click("DIALER.Abrir");
        }
    };
    click("DIALER.Abrir");
    EXPECT_EQ(during, QStringLiteral("OFF LINE/dialling"));
    EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("OFF LINE"));
    EXPECT_EQ(app.DIALER.Abrir.Picture, app.DIALER.Image1.Picture);
    EXPECT_FALSE(app.DIALER.Comm1.PortOpen());
    EXPECT_EQ(rows(), 0);
}

TEST_F(TelephonyTest, AnUnpluggedModemDuringACallStillHangsUp)
{
    card(QStringLiteral("Anna"), QStringLiteral("Zeller"), QStringLiteral("4711"));
    DialerOeffnen(app);
    duringWait = [&](int n) {
        if (app.DIALER.Label1.BackColor == kRot && modem.valid())
            modem.unplug();
        if (!modem.valid() && n > 20)
            click("DIALER.Abrir");
    };
    click("DIALER.Abrir");
    EXPECT_EQ(app.DIALER.Label1.Caption, QStringLiteral("OFF LINE"));
    EXPECT_FALSE(app.DIALER.Comm1.PortOpen());
    EXPECT_EQ(rows(), 1) << "the call was connected and is hung up";
}

TEST_F(TelephonyTest, ClosingEndsTheWaitWritesTheConfigurationAndSoundsWhenAsked)
{
    app.config.SSCheck7.Value = 1;
    modem.dialReply.clear();
    card(QStringLiteral("Anna"), QStringLiteral("Zeller"), QStringLiteral("4711"));
    DialerOeffnen(app);
    duringWait = [&](int n) {
        if (n == 5) {
            EventArgs key;
            key.KeyCode = vbKeyEscape;
            raiseEvent(app, QStringLiteral("DIALER"), QStringLiteral("KeyDown"), key);
        }
    };
    click("DIALER.Abrir");
    EXPECT_FALSE(app.DIALER.Visible);
    EXPECT_FALSE(app.DIALER.Comm1.PortOpen());
    EXPECT_TRUE(sent().endsWith("ATATZ\r\r")) << "the end of the loop hangs up with the reset";
    EXPECT_TRUE(QFile::exists(joinPath(dir.path(), QStringLiteral("dialer.cfg"))));
    const QStringList sounds(sys.ui.sounds.begin(), sys.ui.sounds.end());
    ASSERT_EQ(sounds.size(), 2);
    EXPECT_TRUE(sounds[0].endsWith(QLatin1String("mapa.wav")));
    EXPECT_TRUE(sounds[1].endsWith(QLatin1String("mapaexit.wav")));
}

}  // namespace
}  // namespace mk::test
