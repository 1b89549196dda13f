#pragma once

#include "match/PlayerRegistration.h"
#include "platform/AppWindow.h"

class QKD_Game;

/// Where the game takes from what comes from outside, besides its clock and its keyboard, and who looks on at each
/// pass. This one hands out the machine's own things and looks away; recordings and replays have others. Outlives the
/// game.
class Outside {
public:
    virtual ~Outside() = default;

    /// Return the devices that people can join with. Once for each registration screen that is made.
    virtual InputDevices makeDevices(const ControlOptions& controls) { return makeInputDevices(controls); }

    /// Return where the mouse is. Asked in free flight only.
    virtual AppWindow::Position readMouse(const AppWindow& window) { return window.mousePosition(); }

    /// A pass has its length. Called for passes too that are not computed.
    virtual void passBegins(QKD_Game&) {}

    /// A pass is computed, and not yet drawn.
    virtual void passEnds(QKD_Game&) {}

    /// Somebody wants to find this moment again.
    virtual void mark() {}
};

/// Return the one that plain games share.
Outside& plainOutside();
