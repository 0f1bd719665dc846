#pragma once
// A simulated Hayes modem on the master side of a pseudo-terminal. The program opens the
// slave side as its serial device (through QSerialPort, as a real modem); the test pumps the
// modem from inside DoEvents, so everything runs on one thread.
//
// The modem echoes nothing and answers each command line ending in a carriage return: "ATD…"
// with dialReply, anything else starting with "AT" with okReply; an empty line goes
// unanswered. A reply may be empty: the modem then stays silent.

#include <QByteArray>
#include <QString>

namespace mk::test {

class PtyModem {
public:
    PtyModem();
    ~PtyModem();
    PtyModem(const PtyModem&) = delete;
    PtyModem& operator=(const PtyModem&) = delete;

    bool valid() const { return master_ >= 0; }
    QString device() const { return device_; }

    // Reads what the program wrote and answers every complete command line.
    void pump();
    // Sends bytes at once, as a ring.
    void send(const QByteArray& bytes);
    // Closes the master side: the modem is unplugged.
    void unplug();

    QByteArray dialReply = "\r\nOK\r\n";
    QByteArray okReply = "\r\nOK\r\n";
    QByteArray written;      // everything the program wrote
    QByteArray line;         // the command line being written
    int commandLines = 0;    // command lines answered or not

private:
    int master_ = -1;
    int slave_ = -1;  // kept open so that the terminal lives while the program reopens it
    QString device_;
};

}  // namespace mk::test
