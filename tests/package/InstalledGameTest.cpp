#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"
#include "testing/VirtualDisplay.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

struct Installation {
    const char* name;
    const char* command; ///< installs below the working directory
    const char* program; ///< where it then lies
};

class InstalledGame : public testing::TestWithParam<Installation> {};

constexpr char kHere[] = QUACKDASH_PACKAGES;

// Whoever starts it need not stand anywhere, nor have a home or any other variable beside the display's.
TEST_P(InstalledGame, StartsFromTheRootFolderWithAndWithoutAHome)
{
    const TemporaryFolder folder;
    const std::string install = "cd '" + folder.path().string() + "' && here='" + kHere + "' && " + GetParam().command;
    ASSERT_EQ(std::system(install.c_str()), 0) << install;

    VirtualDisplay screen(folder.path());
    int run = 0;
    for (const std::string& home :
        {std::string("HOME=/nonexistent"), "HOME=" + folder.path().string(), std::string("NO_HOME=1")}) {
        ChildProcess game({{"env", "-i", home, "DISPLAY=" + screen.name(), "ALSOFT_DRIVERS=null",
                               folder.path() / GetParam().program},
            "/", screen.name(), folder.path() / ("log" + std::to_string(++run))});
        const auto isUp = [&] { return game.output().find("Enter RegisterPlayersGamestate") != std::string::npos; };
        EXPECT_TRUE(waitUntil(60, [&] { return isUp() || !game.isRunning(); }) && isUp());
        ASSERT_TRUE(screen.waitForWindow("Quackdash", 10)) << home << '\n' << game.output();
        screen.pressKey("Escape");
        EXPECT_EQ(game.waitForExit(30), std::optional<int>(0)) << home;
        screen.releaseKey("Escape");
        for (const char* complaint : {"ERROR | ", "WARNING | "})
            EXPECT_EQ(game.output().find(complaint), std::string::npos) << game.output();
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(From, InstalledGame, testing::Values(
    Installation{"ThePackage", "dpkg-deb -x \"$here\"/quackdash_*.deb .", "usr/games/quackdash"},
    Installation{"TheArchive", "mkdir quackdash && tar xf \"$here\"/quackdash-*.tar.gz -C quackdash --strip-components 1", "quackdash/games/quackdash"},
    Installation{"TheInstallCommand", "DESTDIR=. cmake --install \"$here\" --prefix /opt/quackdash", "opt/quackdash/games/quackdash"}),
    [](const testing::TestParamInfo<Installation>& row) { return row.param.name; });
// clang-format on

} // namespace
