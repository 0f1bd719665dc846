#include "support/pty_modem.h"

#include <cerrno>
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

namespace mk::test {

PtyModem::PtyModem()
{
    char name[256] = {};
    if (openpty(&master_, &slave_, name, nullptr, nullptr) != 0) {
        master_ = slave_ = -1;
        return;
    }
    termios raw{};
    tcgetattr(slave_, &raw);
    cfmakeraw(&raw);
    tcsetattr(slave_, TCSANOW, &raw);
    fcntl(master_, F_SETFL, fcntl(master_, F_GETFL) | O_NONBLOCK);
    device_ = QString::fromLocal8Bit(name);
}

PtyModem::~PtyModem()
{
    unplug();
    if (slave_ >= 0)
        ::close(slave_);
}

void PtyModem::pump()
{
    if (master_ < 0)
        return;
    char buffer[512];
    for (;;) {
        const ssize_t n = ::read(master_, buffer, sizeof buffer);
        if (n <= 0)
            break;
        for (ssize_t i = 0; i < n; ++i) {
            const char c = buffer[i];
            written += c;
            if (c != '\r') {
                line += c;
                continue;
            }
            ++commandLines;
            const QByteArray command = line.trimmed().toUpper();
            line.clear();
            if (command.startsWith("ATD"))
                send(dialReply);
            else if (command.startsWith("AT"))
                send(okReply);
        }
    }
}

void PtyModem::send(const QByteArray& bytes)
{
    if (master_ < 0 || bytes.isEmpty())
        return;
    const ssize_t n = ::write(master_, bytes.constData(), size_t(bytes.size()));
    (void)n;  // a full terminal drops the reply, as a line drops noise
}

void PtyModem::unplug()
{
    if (master_ >= 0)
        ::close(master_);
    master_ = -1;
}

}  // namespace mk::test
