#include "testing/Shell.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

struct Machine {
    const char* what;
    const char* driver;  ///< of the sound library; its "wave" writes to a file
    const char* errors;  ///< where standard error goes: the sound library has lines of its own about a bad device
    const char* printed; ///< the program's whole log
};

/// Each machine is a process of its own: the sound library looks for its drivers once.
TEST(SoundDevices, AreReportedOnceAndNeverStopTheGame)
{
    const Machine rows[] = {{"a device that works, and is given back at the end", "null", "2>&1", ""},
        {"no device", "nosuch", "2>/dev/null", "ERROR | Error, initializing Audiosystem!\n"},
        {"a device that goes away: its disk is full", "wave", "2>/dev/null",
            "ERROR | The sound device is gone; going on without sound\n"}};
    const TemporaryFolder folder;
    const std::string settings = folder.write("full.conf", "[wave]\nfile=/dev/full\n");
    for (const Machine& row : rows) {
        const CommandResult run = runCommand("ALSOFT_CONF='" + settings + "' ALSOFT_DRIVERS=" + row.driver +
            " '" SOUND_DEVICE_PROBE "' '" DATA_FOLDER "' " + row.errors);
        EXPECT_EQ(run.status, 0) << row.what;
        EXPECT_EQ(run.output, row.printed) << row.what;
    }
}

} // namespace
