#pragma once

#include "SteppedClock.h"
#include "match/MatchRules.h"
#include "physics/PhysicNode.h"
#include "physics/PhysxManager.h"
#include "physics/Terrain.h"
#include "platform/DataFolder.h"
#include "players/IStage.h"
#include "scene/SceneGraph.h"

/// A stage in the dark: nothing is shown and nothing is heard.
class SilentStage : public IStage, public ICarDress {
public:
    ICarDress& dressCar(const CarNodes&, const glm::vec4&, bool) override { return *this; }
    void setEmitterPosition(const glm::vec3&) override {}
    void setThrottle(float) override {}
    Attachable* dressBall(Node&, const glm::vec4&) override { return nullptr; }
    void undressBall(Attachable*) override {}
    void playSound(const std::string&, float) override {}
    void addText(const std::string&, double, double) override {}
    glm::ivec2 getWindowSize() const override { return {1024, 768}; }
};

/// A whole match without a window: the real rules, physics, ground and scene, on a clock that goes on by 1/120 s a
/// pass.
struct SilentMatch {
    SilentMatch()
    {
        FrameTimer::getInstance()->setClock(&clock);
        enterDataFolder();
        rules.setWorld(&scene, &stage);
        terrain = PhysxManager::instance()->createTerrain();
        scene.getRoot()->addChild(terrain->getNode());
        rules.setTerrain(terrain);
    }

    void pass()
    {
        clock.advance();
        FrameTimer::getInstance()->tick();
        rules.updateMatch();
        rules.stepPhysics();
        scene.update();
    }

    SteppedClock clock{1.0 / 120.0};
    SilentStage stage;
    SceneGraph scene;
    MatchRules rules;
    const Terrain* terrain = nullptr;
};
