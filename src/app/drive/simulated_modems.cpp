#include "app/drive/simulated_modems.h"

namespace mk::drive {

namespace {

class SimulatedLine : public SerialLine {
public:
    SimulatedLine(SimulatedSerialPorts& ports, SimulatedModem& modem, int port)
        : ports_(ports), modem_(modem), port_(port)
    {
        modem_.open = true;
    }
    ~SimulatedLine() override { modem_.open = false; }

    int bytesWaiting() override { return int(modem_.toProgram.size()); }
    QByteArray readAll() override { return std::exchange(modem_.toProgram, QByteArray()); }
    void discardInput() override { modem_.toProgram.clear(); }
    void write(const QByteArray& bytes) override { modem_.take(bytes); }
    void waitReadable(int) override
    {
        if (modem_.toProgram.isEmpty() && ports_.onIdleWait)
            ports_.onIdleWait(port_);
    }

private:
    SimulatedSerialPorts& ports_;
    SimulatedModem& modem_;
    int port_;
};

}  // namespace

void SimulatedModem::take(const QByteArray& bytes)
{
    written += bytes;
    for (char c : bytes) {
        if (c != '\r') {
            line += c;
            continue;
        }
        line.clear();
        if (!replies.empty()) {
            toProgram += replies.front();
            replies.pop_front();
        }
    }
}

std::unique_ptr<SerialLine> SimulatedSerialPorts::open(int port, const LineSettings& settings)
{
    const auto it = modems_.find(port);
    if (it == modems_.end())
        return devices_.open(port, settings);
    SimulatedModem& modem = it->second;
    if (modem.busy || modem.open)
        throw RuntimeError(err::CommPortBusy, QStringLiteral("COM%1 is held by another program").arg(port));
    return std::make_unique<SimulatedLine>(*this, modem, port);
}

}  // namespace mk::drive
