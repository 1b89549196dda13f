#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Tells whether bytes are the same as somewhere else: FNV-1a of 64 bits, the same on every machine. Guards against
/// chance, not against forgers.
class Fingerprint {
public:
    void add(const void* bytes, std::size_t count)
    {
        constexpr std::uint64_t kPrime = 0x100000001b3;
        for (const auto* byte = static_cast<const unsigned char*>(bytes); count > 0; --count, ++byte)
            sum = (sum ^ *byte) * kPrime;
    }
    void add(std::string_view text) { add(text.data(), text.size()); }

    std::uint64_t value() const { return sum; }

private:
    std::uint64_t sum = 0xcbf29ce484222325; // the offset that the method starts from
};
