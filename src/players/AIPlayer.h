#pragma once

#include "input/AIController.h"
#include "players/Player.h"

/// The controller of a computer player, in a base of its own to exist before the player that is driven by it.
struct AIControllerHolder {
    explicit AIControllerHolder(int number) : controller(number) {}

    AIController controller;
};

/// A computer player: a grey car that makes little noise and has no place on the screen. The match creates it as it
/// does a player.
class AIPlayer final : private AIControllerHolder, public Player {
public:
    AIPlayer(IMatch& match, IPresentation& presentation);

    bool hasSound() const override { return false; }
};
