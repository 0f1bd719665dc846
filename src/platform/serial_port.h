#pragma once
// The serial control of the dialer: CommPort, Settings, PortOpen, InBufferCount, Input and
// Output, as the old communications control offered them, over a service that opens a port
// by its number. The desktop program opens devices through QSerialPort, COM1 to COM5 mapped
// by the section Ports of MERKKARTELLE.INI (default /dev/ttyS0 to /dev/ttyS4); the headless
// driver puts simulated modems behind the same service.
//
// Errors are RuntimeErrors with the numbers the old control raised.

#include "platform/runtime_error.h"

#include <QByteArray>
#include <QString>
#include <memory>

namespace mk {

namespace err {
constexpr int CommSettingsInvalid = 380;   // Settings that are no "baud,parity,data,stop"
constexpr int CommInvalidPort = 8002;      // a port number outside 1 to 16, or no such device
constexpr int CommPortOpen = 8005;         // CommPort or open while the port is open
constexpr int CommPortNotOpen = 8012;      // reading or writing a closed port
constexpr int CommPortBusy = 8010;         // another program holds the device
}  // namespace err

// The line parameters of a Settings text.
struct LineSettings {
    int baud = 9600;
    char parity = 'N';  // N, E, O, M, S
    int dataBits = 8;
    double stopBits = 1;
};
// "9600,N,8,1"; err::CommSettingsInvalid for a text that is no such thing.
LineSettings parseLineSettings(const QString& settings);

// One open port.
class SerialLine {
public:
    virtual ~SerialLine() = default;
    virtual int bytesWaiting() = 0;
    virtual QByteArray readAll() = 0;
    virtual void discardInput() = 0;
    virtual void write(const QByteArray& bytes) = 0;
    // Sleeps until input is waiting or the time is up; returns at once when input waits.
    virtual void waitReadable(int ms) = 0;
    // The modem is gone (unplugged): reading and writing do nothing more.
    virtual bool lost() const { return false; }
};

class SerialPorts {
public:
    virtual ~SerialPorts() = default;
    // Opens COMn with the settings; raises a RuntimeError when it cannot.
    virtual std::unique_ptr<SerialLine> open(int port, const LineSettings& settings) = 0;
};

// The devices of this machine through QSerialPort.
class DeviceSerialPorts : public SerialPorts {
public:
    std::unique_ptr<SerialLine> open(int port, const LineSettings& settings) override;
    // The device of COMn: the key COMn of the section Ports of MERKKARTELLE.INI.
    static QString deviceOf(int port);
};

// The control Comm1. A closed control keeps CommPort and Settings; the port opens on
// setPortOpen(true).
class MSComm {
public:
    int CommPort = 1;
    QString Settings = QStringLiteral("9600,N,8,1");

    bool PortOpen() const { return line_ != nullptr; }
    void setPortOpen(SerialPorts& ports, bool open);
    int InBufferCount();
    void clearInBuffer();  // InBufferCount = 0
    QString Input();       // everything waiting, as Latin-1 text
    void Output(const QString& text);
    // Between passes of a wait loop: sleeps until input arrives or ms are up.
    void waitForInput(int ms);

private:
    SerialLine& line();
    std::unique_ptr<SerialLine> line_;
};

}  // namespace mk
