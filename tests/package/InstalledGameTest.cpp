#include "testing/ChildProcess.h"
#include "testing/TemporaryFolder.h"
#include "testing/VirtualDisplay.h"

#include <gtest/gtest.h>

namespace {

// Whoever starts it need not stand anywhere, nor have a home or any other variable beside the display's.
TEST(InstalledGame, StartsFromTheRootFolderWithAndWithoutAHome)
{
    // What installs the game below the working directory from $here, the folder of the packages; where it then lies.
    const std::pair<const char*, const char*> rows[] = {
        {"dpkg-deb -x \"$here\"/quackdash_*.deb .", "usr/games/quackdash"},
        {"tar xf \"$here\"/quackdash-*.tar.gz --strip-components 1", "games/quackdash"},
        {"DESTDIR=. cmake --install \"$here\" --prefix /opt/quackdash", "opt/quackdash/games/quackdash"},
    };
    VirtualDisplay screen;
    for (const auto& [command, program] : rows) {
        const TemporaryFolder folder;
        const std::string log = folder.path() / "log.txt";
        ChildProcess installer({{"sh", "-ec", command}, log, {{"here", QUACKDASH_PACKAGES}}, folder.path()});
        ASSERT_EQ(installer.waitForExit(), 0) << installer.output();

        const std::string display = "DISPLAY=" + screen.getName(), home = "HOME=" + folder.path().string();
        for (const char* homeOrNone : {home.c_str(), "HOME=/dev/null", "NO_HOME=1"}) { // no driver makes the second
            ChildProcess game({
                .command = {"env", "-i", homeOrNone, display, "ALSOFT_DRIVERS=null", folder.path() / program,
                    "--language", "en", "--join", "arrows"},
                .output = log,
                .workingFolder = "/",
            });
            game.waitForOutput("Enter RegisterPlayersGamestate");
            game.waitFor("a window", [&] { return screen.findWindow("Quackdash"); });
            screen.press({"Escape"});
            EXPECT_EQ(game.waitForExit(), 0) << command << ' ' << homeOrNone;
            screen.release({"Escape"});
            EXPECT_EQ(game.count("Player 0, Arrows\n"), 1) << "not in English: " << game.output();
            EXPECT_EQ(game.count("ERROR | ") + game.count("WARNING | "), 0) << game.output();
        }
    }
}

} // namespace
