#include "physics/DebuggerTransport.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr timeval kPatience{1, 0}; // seconds, with a debugger that does not answer or does not take a write

} // namespace

bool DebuggerTransport::connect()
{
    const std::lock_guard guard(mutex);
    disconnect();
    connection = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ::setsockopt(connection, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof(kPatience)); // holds for connect() too
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) disconnect();
    return isConnected();
}

void DebuggerTransport::disconnect()
{
    const std::lock_guard guard(mutex);
    if (connection != kNone) ::close(connection);
    connection = kNone;
}

bool DebuggerTransport::isConnected()
{
    const std::lock_guard guard(mutex);
    return connection != kNone;
}

bool DebuggerTransport::write(const std::uint8_t* bytes, std::uint32_t length)
{
    const std::lock_guard guard(mutex);
    if (connection == kNone) return false;
    // Fewer bytes are taken when the patience comes to its end, none when the debugger is gone.
    lost = ::send(connection, bytes, length, MSG_NOSIGNAL) != static_cast<ssize_t>(length);
    if (lost) disconnect();
    else written += length;
    return !lost;
}

physx::PxPvdTransport& DebuggerTransport::lock()
{
    mutex.lock();
    return *this;
}

void DebuggerTransport::unlock()
{
    mutex.unlock();
}

std::uint64_t DebuggerTransport::getWrittenDataSize()
{
    const std::lock_guard guard(mutex);
    return written;
}
