#pragma once

#include "players/IPresentation.h"

#include <memory>
#include <vector>

class MeshGeometry;
class PlayerLabels;
class Renderer;
struct TextOptions;

/// The presentation with real models, drawn by the renderer, and real sounds, played by the audio system. Owned by the
/// game; needs the window and the loaded assets from the first car on.
class Presentation : public IPresentation {
public:
    /// The renderer is borrowed.
    explicit Presentation(Renderer& renderer);
    Presentation(Renderer& renderer, const TextOptions& options);
    ~Presentation() override;

    ICarModels& addCar(const CarNodes& nodes, const glm::vec4& colour) override;
    std::shared_ptr<void> addBall(Node& node, const glm::vec4& colour) override;
    void playSound(const std::string& name, bool loop, float volume) override;
    std::unique_ptr<ISound> createSound(const std::string& name, const std::string& file) override;
    void update() override;
    void addLabel(const PlayerLabel& label, const Viewport::Rect& view) override;
    void addSign(const std::string& sign, const glm::vec3& place, const Viewport& view) override;
    glm::ivec2 getWindowSize() const override;

private:
    class CarModels;

    MeshGeometry& getTireGeometry();

    Renderer& renderer;
    std::unique_ptr<PlayerLabels> labels;
    std::unique_ptr<MeshGeometry> tireGeometry; // shared by all tyres, made with the first
    std::vector<std::unique_ptr<CarModels>> cars;
};
