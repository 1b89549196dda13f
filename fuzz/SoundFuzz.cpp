// Sounds of every kind that the sound file library reads.
#include "audio/SoundData.h"
#include "fuzz/Input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("sound");
    static_cast<void>(SoundData::decode(input.set(bytes, size)));
    return 0;
}
