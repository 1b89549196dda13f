#include "app/QKD_Game.h"
#include "platform/DataFolder.h"

#include <cstdlib>

int main()
{
    if (!enterDataFolder()) return EXIT_FAILURE;

    QKD_Game game;
    return game.run() ? EXIT_SUCCESS : EXIT_FAILURE;
}
