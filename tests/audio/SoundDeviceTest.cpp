#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

struct Machine {
    const char* what;
    const char* driver;  ///< of the sound library; its "wave" writes to a file
    const char* printed; ///< the program's whole log
};

/// Each machine is a process of its own: the sound library looks for its drivers once.
TEST(SoundDevices, AreReportedOnceAndNeverStopTheGame)
{
    const Machine rows[] = {
        {"a device that works, and is given back at the end", "null", ""},
        {"no device", "nosuch", "ERROR | Error, initializing Audiosystem!\n"},
        {"a device that goes away: its disk is full", "wave",
            "ERROR | The sound device is gone; going on without sound\n"},
    };
    const TemporaryFolder folder;
    const std::string settings = folder.write("full.conf", "[wave]\nfile=/dev/full\n");
    for (const Machine& row : rows) {
        // The sound library would have lines of its own about a bad device.
        ChildProcess run({
            .command = {SOUND_DEVICE_PROBE, DATA_FOLDER},
            .output = folder.path() / "log.txt",
            .environment = {{"ALSOFT_CONF", settings}, {"ALSOFT_DRIVERS", row.driver}, {"ALSOFT_LOGLEVEL", "0"}},
        });
        EXPECT_EQ(run.waitForExit(), 0) << row.what;
        EXPECT_EQ(run.output(), row.printed) << row.what;
    }
}

} // namespace
