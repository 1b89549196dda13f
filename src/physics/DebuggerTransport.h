#pragma once

#include <pvd/PxPvdTransport.h>

#include <atomic>
#include <cstdint>
#include <mutex>

/// The connection through which the SDK talks to a visual debugger on this machine. It is lost when the debugger goes
/// away or does not take a write within a second; from then on the SDK's calls return at once.
///
/// Owned by PhysxManager, which releases the SDK's side first. The SDK calls it from its worker thread too, between
/// lock() and unlock().
class DebuggerTransport final : public physx::PxPvdTransport {
public:
    /// port: where the debugger listens on 127.0.0.1.
    explicit DebuggerTransport(std::uint16_t debuggerPort) : port(debuggerPort) {}
    ~DebuggerTransport() override { disconnect(); }
    DebuggerTransport(const DebuggerTransport&) = delete;
    DebuggerTransport& operator=(const DebuggerTransport&) = delete;

    /// Return whether the debugger answered, which may take a second.
    bool connect() override;
    void disconnect() override;
    bool isConnected() override;

    /// Hand all bytes to the operating system. Return false when that failed, or there is no connection.
    bool write(const std::uint8_t* bytes, std::uint32_t length) override;
    void flush() override {} ///< do nothing: write() keeps nothing back

    physx::PxPvdTransport& lock() override;
    void unlock() override;

    std::uint64_t getWrittenDataSize() override; ///< bytes
    void release() override {}                   ///< do nothing: the owner destroys it

    /// Return whether the connection was lost since the last call.
    bool takeLoss() { return lost.exchange(false); }

private:
    static constexpr int kNone = -1;

    const std::uint16_t port;
    std::recursive_mutex mutex; // of the next two; the SDK may hold it when it calls
    int connection = kNone;     // socket
    std::uint64_t written = 0;  // bytes
    std::atomic<bool> lost = false;
};
