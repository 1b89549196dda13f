#include "Listening.h"

#include <fstream>

namespace {

using SoundDataTest = ListeningTest;

TEST_F(SoundDataTest, BrokenFilesAreRefusedForTheReasonTheyHave)
{
    const char header[] = ".snd\0\0\0\x18\xff\xff\xff\xff\0\0\0\2\0\0\xac\x44\0\0\0\1"; // of one byte a frame
    const std::string path = folder.path().string() + "/", longest = folder.write("long.au", {header, 24});
    std::filesystem::resize_file(longest, 24 + 11 * 60 * 48000);
    std::filesystem::create_symlink("circle.wav", path + "circle.wav");
    const std::pair<std::string, const char*> rows[] = {
        {folder.write("text.mp3", std::string(5000, 'x')), "no sound that can be decoded"},
        {path + "missing.wav", "No such file or directory"},
        {path, "Is a directory"},
        {path + "circle.wav", "Too many levels of symbolic links"},
        {folder.write("empty.wav", ""), "it is empty"},
        {copyGameFile("bang.wav", 0.0005), "no sound that can be decoded"},
        {write("none.wav", {}), "no sound in it"},
        {write("six.wav", {std::vector<float>(600), 6}), "6 channels, only one or two can be played"},
        {longest, "longer than ten minutes at 48 kHz"},
    };
    for (const bool hasDevice : {false, true}) { // a machine without sound says the same
        if (hasDevice) audio.init({});
        for (const auto& [file, reason] : rows)
            EXPECT_EQ(printedBy([&, name = file] { audio.addSound("duck", name); }),
                "ERROR | couldn't open sound file: " + file + " (" + reason +
                    ")\nERROR | Error, initializing Sound: duck\n");
    }
}

TEST_F(SoundDataTest, OfDamagedFilesWhatIsLeftIsPlayedNoLouderThanFullScale)
{
    const std::string spotted = copyGameFile("quackdash.mp3");
    for (int at = 200000; at < 1900000; at += 1000)
        std::fstream(spotted, std::ios::in | std::ios::out).seekp(at).put('x');
    const std::pair<std::string, const char*> rows[] = {
        {copyGameFile("bang.wav", 0.1), ""},
        {copyGameFile("quackdash.mp3", 0.1), "86 seconds at its end are lost"},
        {spotted, "seconds at its end are lost"},
    };
    for (const auto& [file, lost] : rows) {
        AudioSystem player(SoundTarget::Loopback);
        const std::string printed = printedBy([&, name = file] { player.init({{"sound", name}}); });
        EXPECT_EQ(printed.starts_with("WARNING | sound file is damaged: " + file + " ("), *lost != 0) << printed;
        EXPECT_NE(printed.find(lost), std::string::npos) << printed;
        player.play("sound", true, 1.0f);
        EXPECT_LE(listen(player, 20).peak(), 1.0f) << file;
        EXPECT_GT(listen(player, 1).peak(), 0.01f) << file << " does not loop";
    }

    const float cut[] = {0.5f, 1.0f, -1.0f, 0.0f, 1.0f};
    audio.init({{"loud", write("loud.wav", {{0.5f, 8.0f, -8.0f, NAN, INFINITY}})}});
    audio.play("loud", true, 1.0f);
    const Samples heard = listen(0.1);
    for (int i = 0; i < heard.frames(); ++i) ASSERT_EQ(heard.at(i, 0), cut[i % 5]) << i;
}

} // namespace
