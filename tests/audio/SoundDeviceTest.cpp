#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

struct Machine {
    const char* what;
    const char* driver;  ///< of the sound library; its "wave" writes to a file
    const char* errors;  ///< where standard error goes: the sound library has lines of its own about a bad device
    const char* printed; ///< the program's whole log
};

class SoundDevices : public testing::TestWithParam<Machine> {};

/// Each machine is a process of its own: the sound library looks for its drivers once.
TEST_P(SoundDevices, AreReportedOnceAndNeverStopTheGame)
{
    const TemporaryFolder folder;
    const std::string settings = folder.write("full.conf", "[wave]\nfile=/dev/full\n");
    const std::string command = "ALSOFT_CONF='" + settings + "' ALSOFT_DRIVERS=" + GetParam().driver +
        " '" SOUND_DEVICE_PROBE "' '" DATA_FOLDER "' " + GetParam().errors;

    std::string printed;
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 256> part;
    while (std::fgets(part.data(), part.size(), pipe)) printed += part.data();
    EXPECT_EQ(WEXITSTATUS(pclose(pipe)), 0);
    EXPECT_EQ(printed, GetParam().printed) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(Table, SoundDevices,
    testing::Values(Machine{"a device that works, and is given back at the end", "null", "2>&1", ""},
        Machine{"no device", "nosuch", "2>/dev/null", "ERROR | Error, initializing Audiosystem!\n"},
        Machine{"a device that goes away: its disk is full", "wave", "2>/dev/null",
            "ERROR | The sound device is gone; going on without sound\n"}));

} // namespace
