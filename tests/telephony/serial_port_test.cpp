// The serial control over a pseudo-terminal: line settings, the errors of the old control,
// input and output through QSerialPort.

#include "platform/serial_port.h"
#include "platform/profile.h"
#include "support/pty_modem.h"
#include "support/runtime_errors.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace mk::test {
namespace {

class SerialPortTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        ASSERT_TRUE(modem.valid());
        qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
        WritePrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM3"), modem.device(),
                                  QStringLiteral("MERKKARTELLE.INI"));
        comm.CommPort = 3;
    }
    void TearDown() override { qunsetenv("MERKKARTELLE_HOME"); }

    QTemporaryDir home;
    PtyModem modem;
    DeviceSerialPorts ports;
    MSComm comm;
};

TEST(LineSettings, OnlyFourValidPartsAreLineSettings)
{
    const LineSettings s = parseLineSettings(QStringLiteral("19200,e,7,2"));
    EXPECT_EQ(s.baud, 19200);
    EXPECT_EQ(s.parity, 'E');
    EXPECT_EQ(s.dataBits, 7);
    EXPECT_EQ(s.stopBits, 2);
    for (const char* bad : {"9600,,,", "9600,N,8", "fast,N,8,1", "9600,X,8,1", "9600,N,9,1", "9600,N,8,3"})
        EXPECT_EQ(errorOf([&] { parseLineSettings(QString::fromLatin1(bad)); }), err::CommSettingsInvalid) << bad;
}

TEST_F(SerialPortTest, BytesGoBothWaysThroughTheMappedDevice)
{
    EXPECT_EQ(DeviceSerialPorts::deviceOf(3), modem.device());
    EXPECT_EQ(DeviceSerialPorts::deviceOf(5), QStringLiteral("/dev/ttyS4"));
    comm.setPortOpen(ports, true);
    ASSERT_TRUE(comm.PortOpen());
    comm.Output(QStringLiteral("ATI\r"));
    modem.pump();
    EXPECT_EQ(modem.written, QByteArray("ATI\r"));
    comm.waitForInput(1000);
    EXPECT_EQ(comm.InBufferCount(), 6);
    EXPECT_EQ(comm.Input(), QStringLiteral("\r\nOK\r\n"));
    EXPECT_EQ(comm.InBufferCount(), 0);

    modem.send("\r\nRING\r\n");
    comm.waitForInput(1000);
    comm.clearInBuffer();
    EXPECT_EQ(comm.InBufferCount(), 0);
}

TEST_F(SerialPortTest, ThePortRaisesTheErrorsOfTheOldControl)
{
    EXPECT_EQ(errorOf([&] { comm.InBufferCount(); }), err::CommPortNotOpen);
    EXPECT_EQ(errorOf([&] { comm.Output(QStringLiteral("AT\r")); }), err::CommPortNotOpen);

    comm.setPortOpen(ports, true);
    EXPECT_EQ(errorOf([&] { comm.setPortOpen(ports, true); }), err::CommPortOpen);
    MSComm second;
    second.CommPort = 3;
    EXPECT_EQ(errorOf([&] { second.setPortOpen(ports, true); }), err::CommPortBusy);
    comm.setPortOpen(ports, false);
    EXPECT_FALSE(comm.PortOpen());
    EXPECT_EQ(errorOf([&] { second.setPortOpen(ports, true); }), 0) << "closing frees the device";

    MSComm missing;
    WritePrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM4"), home.filePath(QStringLiteral("none")),
                              QStringLiteral("MERKKARTELLE.INI"));
    missing.CommPort = 4;
    EXPECT_EQ(errorOf([&] { missing.setPortOpen(ports, true); }), err::CommInvalidPort);
    missing.CommPort = 0;
    EXPECT_EQ(errorOf([&] { missing.setPortOpen(ports, true); }), err::CommInvalidPort);
    missing.CommPort = 3;
    second.setPortOpen(ports, false);
    missing.Settings = QStringLiteral("9600,N,8");
    EXPECT_EQ(errorOf([&] { missing.setPortOpen(ports, true); }), err::CommSettingsInvalid);
    EXPECT_FALSE(missing.PortOpen());
}

TEST_F(SerialPortTest, AnUnpluggedModemReadsAsSilenceAndTakesNoWrites)
{
    comm.setPortOpen(ports, true);
    modem.unplug();
    comm.waitForInput(50);
    EXPECT_EQ(comm.InBufferCount(), 0);
    comm.Output(QStringLiteral("ATH0\r"));
    EXPECT_EQ(comm.Input(), QString());
}

}  // namespace
}  // namespace mk::test
