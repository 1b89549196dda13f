#pragma once

#include "players/IStage.h"

#include <memory>
#include <vector>

class MeshGeometry;
class QKD_Game;
class Renderer;

/// Shows participants with real models: ducks, tyres, smoke and text. Owned by the game; needs the window and the
/// loaded assets from the first car on.
class CarStage final : public IStage {
public:
    CarStage(QKD_Game* game, Renderer& renderer);
    ~CarStage();

    ICarDress& dressCar(const CarNodes& nodes, const glm::vec4& colour, bool isHeard) override;
    Attachable* dressBall(Node& node, const glm::vec4& colour) override;
    void undressBall(Attachable* model) override;
    void playSound(const std::string& name, float volume) override;
    void addText(const std::string& text, double x, double y) override;
    glm::ivec2 getWindowSize() const override;

private:
    class Dress; // the models of one car

    MeshGeometry& getTireGeometry();

    QKD_Game* game;
    Renderer& renderer;
    std::unique_ptr<MeshGeometry> tireGeometry; // shared by all tyres, made with the first
    std::vector<std::unique_ptr<Dress>> dresses;
};
