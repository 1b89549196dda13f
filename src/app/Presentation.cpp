#include "app/Presentation.h"

#include "app/PlayerLabels.h"
#include "assets/BallModel.h"
#include "assets/DriverModel.h"
#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "audio/AudioSystem.h"
#include "gpu/Uniform_Texture.h"
#include "render/ParticleSystem.h"
#include "render/Renderer.h"
#include "render/TextOptions.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/Node.h"

namespace {

constexpr float kTireRadius = 0.45f; // world units
constexpr float kTireWidth = 0.35f;  // world units
constexpr int kTireSegments = 8;

class TireModel final : public Model {
public:
    explicit TireModel(MeshGeometry& geometry)
    {
        shader = Library::getInstance()->getShaderprogram("WireframeShader");
        setGeometry(geometry);
        setName("Tire");
        bindUniforms({});
    }
};

} // namespace

class Presentation::CarModels final : public ICarModels {
public:
    CarModels(const CarNodes& nodes, const glm::vec4& colour, MeshGeometry& tireGeometry)
        : driver(colour), smoke(Library::getInstance()->getShaderprogram("ParticleMovement")),
          smokeTexture(Library::getInstance()->getTexture("Smoke"), 0)
    {
        nodes.driver->attach(&driver);
        for (Node* wheel : nodes.wheels) {
            tires.push_back(std::make_unique<TireModel>(tireGeometry));
            wheel->attach(tires.back().get());
        }
        smoke.uniforms["smoke"] = &smokeTexture;
        nodes.exhaust->attach(&smoke);
    }

    void setEmitterPosition(const glm::vec3& position) override { smoke.setEmitterPosition(position); }

private:
    DriverModel driver;
    std::vector<std::unique_ptr<TireModel>> tires;
    ParticleSystem smoke;
    Uniform_Texture smokeTexture;
};

Presentation::Presentation(Renderer& ownRenderer) : Presentation(ownRenderer, TextOptions()) {}

Presentation::Presentation(Renderer& ownRenderer, const TextOptions& options)
    : renderer(ownRenderer), labels(makePlayerLabels(ownRenderer, options))
{
}

Presentation::~Presentation() = default;

ICarModels& Presentation::addCar(const CarNodes& nodes, const glm::vec4& colour)
{
    cars.push_back(std::make_unique<CarModels>(nodes, colour, getTireGeometry()));
    return *cars.back();
}

std::shared_ptr<void> Presentation::addBall(Node& node, const glm::vec4& colour)
{
    const auto withdraw = [this](BallModel* model) {
        renderer.getModelRenderer()->releaseModel(model);
        renderer.getShadowRenderer()->releaseModel(model);
        delete model;
    };
    std::shared_ptr<BallModel> model(new BallModel(colour), withdraw);
    node.attach(model.get());
    return model;
}

void Presentation::playSound(const std::string& name, bool loop, float volume)
{
    AudioSystem::getInstance()->play(name, loop, volume);
}

std::unique_ptr<ISound> Presentation::createSound(const std::string& name, const std::string& file)
{
    return AudioSystem::getInstance()->createSound(name, file);
}

void Presentation::update()
{
    AudioSystem::getInstance()->update();
}

void Presentation::addLabel(const PlayerLabel& label, const Viewport::Rect& view)
{
    labels->write(label, view);
}

void Presentation::addSign(const std::string& sign, const glm::vec3& place, const Viewport& view)
{
    labels->writeSign(sign, place, view);
}

glm::ivec2 Presentation::getWindowSize() const
{
    return {renderer.getWidth(), renderer.getHeight()};
}

MeshGeometry& Presentation::getTireGeometry()
{
    if (!tireGeometry) {
        Mesh mesh;
        createCylinder(mesh, kTireRadius, kTireWidth, kTireSegments);
        tireGeometry =
            std::make_unique<MeshGeometry>(mesh, std::initializer_list<MeshAttribute>{MeshAttribute::Position});
    }
    return *tireGeometry;
}
