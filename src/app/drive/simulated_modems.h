#pragma once
// Simulated Hayes modems behind the serial service, for scripts: a port that a `modem` line
// names opens without a device, takes every byte the program writes, answers each command
// line with the next queued reply, and sends what the script tells it to at once. Ports
// without a simulated modem go to this machine's devices.

#include "platform/serial_port.h"

#include <QByteArray>
#include <deque>
#include <functional>
#include <map>

namespace mk::drive {

struct SimulatedModem {
    bool busy = false;               // another program holds the port
    bool open = false;
    std::deque<QByteArray> replies;  // one per command line, in turn
    QByteArray toProgram;            // sent and not yet read
    QByteArray written;              // written since the last check
    QByteArray line;                 // the command line being written

    void take(const QByteArray& bytes);
};

class SimulatedSerialPorts : public SerialPorts {
public:
    explicit SimulatedSerialPorts(SerialPorts& devices) : devices_(devices) {}

    SimulatedModem& modem(int port) { return modems_[port]; }
    bool has(int port) const { return modems_.count(port) != 0; }
    std::unique_ptr<SerialLine> open(int port, const LineSettings& settings) override;

    // Called when the program sleeps on a simulated port with nothing to read: the driver
    // then has to be the one who ends the wait.
    std::function<void(int port)> onIdleWait;

private:
    SerialPorts& devices_;
    std::map<int, SimulatedModem> modems_;
};

}  // namespace mk::drive
