#include "Listening.h"

#include <chrono>
#include <cstdlib>
#include <thread>

namespace {

/// Play a sound for half a second on the device of that name, or that the sound library finds, and end the process.
[[noreturn]] void playOnItsOwnMachine(const char* driver, const std::string& settings, const char* device,
    const std::string& sound)
{
    setenv("ALSOFT_DRIVERS", driver, 1);
    setenv("ALSOFT_CONF", settings.c_str(), 1);
    AudioSystem* audio = AudioSystem::getInstance();
    audio->init({{"musik", sound}}, {.device = device});
    audio->play("musik", true, 1.0f);
    const std::unique_ptr<Sound> engine = audio->createSound("engine", sound);
    engine->play(true, 0.0f);
    for (int pass = 0; pass < 50; ++pass) {
        engine->setPitch(1.0f);
        audio->update();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    std::exit(0);
}

using SoundDeviceDeathTest = ListeningTest; // its name lets it run before the others have started the sound library

TEST_F(SoundDeviceDeathTest, IsHeardFromOrReportedOnceAndNeverStopsTheGame)
{
    struct Machine {
        const char* what;
        const char* driver;   ///< of the sound library; its "wave" writes to a file
        const char* settings; ///< of the sound library
        const char* errors;   ///< the sound library's own lines on standard error, a pattern
        const char* printed;  ///< the whole log
        double peak;          ///< of what is heard, of a tone of 0.9 on both sides
        const char* device = "";
    };
    const char* const gone = "ERROR | The sound device is gone; going on without sound\n";
    const Machine rows[] = {
        {"two loudspeakers", "wave", "channels = stereo", "^$", "", 0.9},
        {"headphones", "wave", "channels = stereo\nstereo-mode = headphones", "^$", "", 0.9},
        {"one loudspeaker, limited to full scale", "wave", "channels = mono", "^$", "", 1.0},
        {"a device by its name", "wave", "channels = stereo", "^$", "", 0.9, "Wave File Writer"},
        {"a device that is not there", "wave", "channels = stereo", "^$",
            "WARNING | There is no sound device Trumpet; taking the default one\n", 0.9, "Trumpet"},
        {"no device", "nosuch", "", "", "ERROR | Error, initializing Audiosystem!\n", 0.0},
        {"a device that goes away: its disk is full", "wave", "[wave]\nfile = /dev/full", "", gone, 0.0},
    };
    const std::string sound = write("tone.wav", tones({441, 441}, kRate, 0.9));
    for (const Machine& row : rows) {
        const std::string heard = write("heard.wav", {});
        const std::string settings = folder.write("settings.conf",
            "[wave]\nfile = " + heard + "\n[general]\nfrequency = 44100\nsample-type = float32\n" + row.settings);
        CapturedLog log;
        EXPECT_EXIT(playOnItsOwnMachine(row.driver, settings, row.device, sound), testing::ExitedWithCode(0),
            row.errors);
        EXPECT_EQ(log.text(), row.printed) << row.what;
        EXPECT_NEAR(readSoundFile(heard).peak(), row.peak, 0.001) << row.what;
    }
}

} // namespace
