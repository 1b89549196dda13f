#include "audio/AudioSystem.h"

#include <chrono>
#include <string>
#include <thread>

/// Half a second of a match as the sound system sees it: music, an engine, a shot every ten passes. Its argument is the
/// data folder.
int main(int, char** arguments)
{
    constexpr int kPasses = 100;
    const std::string folder = std::string(arguments[1]) + "Audio/";

    AudioSystem* audio = AudioSystem::getInstance();
    audio->init({{"musik", folder + "quackdash.mp3"}, {"bang", folder + "bang.wav"}});
    audio->play("musik", true, 1.0f);
    const std::unique_ptr<Sound> engine = audio->createSound("engine", folder + "engine.wav");
    engine->play(true, 0.6f);
    for (int pass = 0; pass < kPasses; ++pass) {
        engine->setPitch(1.0f);
        if (pass % 10 == 0) audio->play("bang", false, 0.3f);
        audio->update();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return 0;
}
