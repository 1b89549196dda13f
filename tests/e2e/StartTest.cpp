#include "testing/GameSession.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <random>
#include <stdexcept>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

TEST(Start, WithoutADisplayOrOpenGl43SaysSoAndEndsWithStatusOne)
{
    GameSession game;
    game.launch({});
    EXPECT_EQ(game.program().waitForExit(), 1);
    EXPECT_EQ(game.complaints(), "ERROR | Glfw initialization failed\n");

    game.launch({{"DISPLAY", game.screen().getName()}, {"MESA_GL_VERSION_OVERRIDE", "3.0"}});
    EXPECT_EQ(game.program().waitForExit(), 1);
    EXPECT_EQ(game.complaints(), "ERROR | Opengl 4.3 not available\n");
}

// What every other test here relies on when the program is broken: nobody waits for long, and everybody sees why.
TEST(Start, ThatFailsEndsTheWaitAtOnceWithTheLastLines)
{
    GameSession game;
    std::ofstream("libglfw.so.3") << "not a library";
    const auto launch = std::chrono::steady_clock::now();
    std::string message;
    try {
        game.start({{"LD_LIBRARY_PATH", "."}});
    } catch (const std::runtime_error& failure) {
        message = failure.what();
    }
    EXPECT_NE(message.find("error while loading shared libraries: ./libglfw.so.3"), std::string::npos) << message;
    EXPECT_LT(std::chrono::steady_clock::now() - launch, 10s);
}

TEST(Start, WithSpoiledFilesNamesThemAllAndTheGameGoesOn)
{
    using Spoiling = void (*)(const fs::path&);
    const std::pair<const char*, Spoiling> rows[] = {
        // Names of the files, a pattern; half a sound is a shorter one.
        {"(dae|tga|mp3|wav|shader)$", [](const fs::path& file) { fs::remove(file); }},
        {"(dae|tga|mp3|wav)$", [](const fs::path& file) { fs::resize_file(file, 0); }},
        {"(dae|tga)$", [](const fs::path& file) { fs::resize_file(file, fs::file_size(file) / 2); }},
        {"(dae|tga|mp3|wav)$",
            [](const fs::path& file) {
                std::ofstream out(file, std::ios::binary);
                for (std::minstd_rand random; out.tellp() < 5000;) out.put(static_cast<char>(random() >> 8));
            }},
    };
    for (const auto& [pattern, spoil] : rows) {
        GameSession game;
        const std::regex isSpoiled(pattern);
        std::vector<fs::path> files(fs::recursive_directory_iterator("."), {});
        std::erase_if(files, [&](const fs::path& file) { return !std::regex_search(file.string(), isSpoiled); });
        ASSERT_GE(files.size(), 9);
        for (const fs::path& file : files) spoil(file);
        game.start();
        game.startMatch();
        const int lines = game.program().count("\n");
        game.screen().press({"Up", "k"});
        std::this_thread::sleep_for(1s);
        EXPECT_LT(game.program().count("\n") - lines, 10) << "a line per frame:\n" << game.program().output();
        EXPECT_EQ(game.quit(), 0);
        const std::string complaints = game.complaints();
        for (const fs::path& file : files)
            EXPECT_NE(complaints.find(file.lexically_normal()), std::string::npos) << file << complaints;
        EXPECT_EQ(complaints.find("OpenGL Error:"), std::string::npos) << complaints;
    }
}

} // namespace
