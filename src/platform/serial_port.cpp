#include "platform/serial_port.h"

#include "platform/profile.h"

#include <QSerialPort>
#include <QStringList>
#include <QThread>

namespace mk {

namespace {

[[noreturn]] void raise(int number, const QString& text)
{
    throw RuntimeError(number, text);
}

class DeviceLine : public SerialLine {
public:
    explicit DeviceLine(const QString& device) { port_.setPortName(device); }

    void open(int number, const LineSettings& s)
    {
        if (!port_.open(QIODevice::ReadWrite)) {
            const auto error = port_.error();
            if (error == QSerialPort::PermissionError)
                raise(err::CommPortBusy, QStringLiteral("COM%1 is held by another program").arg(number));
            raise(err::CommInvalidPort, QStringLiteral("COM%1: %2").arg(number).arg(port_.errorString()));
        }
        const bool applied = port_.setBaudRate(s.baud) && port_.setDataBits(QSerialPort::DataBits(s.dataBits))
                             && port_.setParity(parityOf(s.parity)) && port_.setStopBits(stopBitsOf(s.stopBits));
        if (!applied) {
            port_.close();
            raise(err::CommSettingsInvalid, QStringLiteral("COM%1 refuses the line settings").arg(number));
        }
        // A pseudo-terminal or a plain cable has no modem lines: raising DTR fails there, and
        // the port works all the same.
        port_.setDataTerminalReady(true);
        port_.clearError();
    }

    int bytesWaiting() override
    {
        fetch(0);
        return int(port_.bytesAvailable());
    }

    QByteArray readAll() override
    {
        fetch(0);
        return port_.readAll();
    }

    void discardInput() override
    {
        fetch(0);
        port_.readAll();
        port_.clear(QSerialPort::Input);
    }

    void write(const QByteArray& bytes) override
    {
        if (lost())
            return;
        port_.write(bytes);
        // No event loop runs between the passes of the dialer: the bytes go out now.
        while (port_.bytesToWrite() > 0 && port_.waitForBytesWritten(200)) {
        }
    }

    void waitReadable(int ms) override
    {
        if (port_.bytesAvailable() > 0)
            return;
        // An unplugged modem is never readable again: sleep all the same, so that the wait
        // loop that asks does not spin.
        if (lost())
            QThread::msleep(ulong(ms));
        else
            fetch(ms);
    }

    bool lost() const override { return port_.error() == QSerialPort::ResourceError; }

private:
    // Reads what the device holds into the port's buffer, waiting up to ms for it.
    void fetch(int ms)
    {
        if (lost())
            return;
        port_.waitForReadyRead(ms);
        if (port_.error() == QSerialPort::TimeoutError)
            port_.clearError();
    }

    static QSerialPort::Parity parityOf(char p)
    {
        switch (p) {
        case 'E': return QSerialPort::EvenParity;
        case 'O': return QSerialPort::OddParity;
        case 'M': return QSerialPort::MarkParity;
        case 'S': return QSerialPort::SpaceParity;
        default: return QSerialPort::NoParity;
        }
    }

    static QSerialPort::StopBits stopBitsOf(double bits)
    {
        if (bits == 2)
            return QSerialPort::TwoStop;
        if (bits == 1.5)
            return QSerialPort::OneAndHalfStop;
        return QSerialPort::OneStop;
    }

    QSerialPort port_;
};

}  // namespace

LineSettings parseLineSettings(const QString& settings)
{
    const QStringList parts = settings.split(u',');
    const auto invalid = [&] {
        raise(err::CommSettingsInvalid, QStringLiteral("Invalid property value: %1").arg(settings));
    };
    if (parts.size() != 4)
        invalid();
    LineSettings s;
    bool ok = false;
    s.baud = parts[0].trimmed().toInt(&ok);
    if (!ok || s.baud <= 0)
        invalid();
    const QString parity = parts[1].trimmed().toUpper();
    if (parity.size() != 1 || !QStringLiteral("NEOMS").contains(parity))
        invalid();
    s.parity = parity[0].toLatin1();
    s.dataBits = parts[2].trimmed().toInt(&ok);
    if (!ok || s.dataBits < 5 || s.dataBits > 8)
        invalid();
    s.stopBits = parts[3].trimmed().toDouble(&ok);
    if (!ok || (s.stopBits != 1 && s.stopBits != 1.5 && s.stopBits != 2))
        invalid();
    return s;
}

QString DeviceSerialPorts::deviceOf(int port)
{
    return GetPrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM%1").arg(port),
                                   QStringLiteral("/dev/ttyS%1").arg(port - 1), QStringLiteral("MERKKARTELLE.INI"));
}

std::unique_ptr<SerialLine> DeviceSerialPorts::open(int port, const LineSettings& settings)
{
    auto line = std::make_unique<DeviceLine>(deviceOf(port));
    line->open(port, settings);
    return line;
}

void MSComm::setPortOpen(SerialPorts& ports, bool open)
{
    if (!open) {
        line_.reset();
        return;
    }
    if (line_)
        raise(err::CommPortOpen, QStringLiteral("Port already open"));
    if (CommPort < 1 || CommPort > 16)
        raise(err::CommInvalidPort, QStringLiteral("Invalid port number"));
    line_ = ports.open(CommPort, parseLineSettings(Settings));
}

SerialLine& MSComm::line()
{
    if (!line_)
        raise(err::CommPortNotOpen, QStringLiteral("Operation valid only when the port is open"));
    return *line_;
}

int MSComm::InBufferCount()
{
    return line().bytesWaiting();
}

void MSComm::clearInBuffer()
{
    line().discardInput();
}

QString MSComm::Input()
{
    return QString::fromLatin1(line().readAll());
}

void MSComm::Output(const QString& text)
{
    line().write(text.toLatin1());
}

void MSComm::waitForInput(int ms)
{
    if (line_)
        line_->waitReadable(ms);
}

}  // namespace mk
