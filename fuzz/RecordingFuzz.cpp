// Recordings of matches.
#include "fuzz/Input.h"
#include "replay/DeviceState.h"
#include "replay/RecordingReader.h"
#include "replay/WorldSample.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static Input input("match.quackdash");
    RecordingReader reader(input.set(bytes, size));
    if (!reader.open().empty()) return 0;
    recording::Pass pass;
    recording::Sample before;
    DeviceState device;
    while (reader.next(pass)) {
        for (const recording::Device& change : pass.devices()) device.apply(change);
        static_cast<void>(describeDifference(before, pass.sample()));
        static_cast<void>(greatestDistance(before, pass.sample()));
        before = pass.sample();
    }
    return 0;
}
