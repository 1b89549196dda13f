#pragma once

#include "app/FreeFlight.h"
#include "app/OverviewViewport.h"

class AppWindow;
class QKD_Game;

/// The viewer's own free flight through a replayed match, which takes no notice of it. Has a camera in the game's
/// scene, and so is made anew with that.
class ViewerFlight {
public:
    /// Add the node "ViewerCamera" to the scene. Both are borrowed.
    ViewerFlight(QKD_Game& game, AppWindow& window);

    bool isFlying() const { return flying; }
    void setFlying(bool on);

    /// Fly on for so many seconds of the wall's clock.
    void update(float seconds);

    Viewport* getViewport() { return view.getViewport(); }
    glm::mat4 getPose() const; ///< as last drawn
    void setPose(const glm::mat4& pose);

private:
    FreeFlight::Mouse mouse() const;

    AppWindow& window;
    Node& node;
    OverviewViewport view;
    FreeFlight steering;
    bool flying = false;
};
