#include "app/CarStage.h"

#include "assets/BallModel.h"
#include "assets/DriverModel.h"
#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "audio/AudioSystem.h"
#include "gpu/Uniform_Color.h"
#include "gpu/Uniform_Texture.h"
#include "render/ParticleSystem.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/Node.h"

namespace {

constexpr float kTireRadius = 0.45f; // world units
constexpr float kTireWidth = 0.35f;  // world units
constexpr int kTireSegments = 8;
constexpr float kEngineVolume = 0.6f;

class TireModel final : public Model {
public:
    explicit TireModel(MeshGeometry& geometry) : transformation(this)
    {
        shader = Library::getInstance()->getShaderprogram("WireframeShader");
        setGeometry(geometry);
        setName("Tire");
        bindCameraUniforms(false);
        uniforms["model"] = &transformation;
    }

private:
    Uniform_AttachableTransformation transformation;
};

} // namespace

class CarStage::Dress final : public ICarDress {
public:
    Dress(QKD_Game* game, const CarNodes& nodes, const glm::vec4& colour, bool isHeard, MeshGeometry& geometry)
        : driver(game, colour), driverTransformation(&driver), driverColour(colour),
          smoke(Library::getInstance()->getShaderprogram("ParticleMovement")), smokeTransformation(&smoke),
          smokeTexture(Library::getInstance()->getTexture("Smoke"), 0)
    {
        dressDriver(*nodes.driver);
        dressWheels(nodes.wheels, geometry);
        dressExhaust(*nodes.exhaust);
        if (isHeard) startEngine();
    }

    void setEmitterPosition(const glm::vec3& position) override { smoke.setEmitterPosition(position); }
    void setThrottle(float throttle) override { engine->setPitch(throttle); }

private:
    void dressDriver(Node& node)
    {
        driver.bindCameraUniforms(true);
        driver.uniforms["model"] = &driverTransformation;
        driver.uniforms["color"] = &driverColour;
        node.attach(&driver);
    }

    void dressWheels(const std::array<Node*, 4>& wheels, MeshGeometry& geometry)
    {
        for (Node* wheel : wheels) {
            tires.push_back(std::make_unique<TireModel>(geometry));
            wheel->attach(tires.back().get());
        }
    }

    void dressExhaust(Node& node)
    {
        smoke.bindCameraUniforms(false);
        smoke.uniforms["model"] = &smokeTransformation;
        smoke.uniforms["smoke"] = &smokeTexture;
        node.attach(&smoke);
    }

    void startEngine()
    {
        engine = AudioSystem::getInstance()->createSound("engine", "Audio/engine.wav");
        engine->play(true, kEngineVolume);
    }

    DriverModel driver;
    Uniform_AttachableTransformation driverTransformation;
    Uniform_Color driverColour;
    std::vector<std::unique_ptr<TireModel>> tires;
    ParticleSystem smoke;
    Uniform_AttachableTransformation smokeTransformation;
    Uniform_Texture smokeTexture;
    std::unique_ptr<Sound> engine; // null for those who are not heard
};

CarStage::CarStage(QKD_Game* ownGame, Renderer& ownRenderer) : game(ownGame), renderer(ownRenderer) {}

CarStage::~CarStage() = default;

ICarDress& CarStage::dressCar(const CarNodes& nodes, const glm::vec4& colour, bool isHeard)
{
    dresses.push_back(std::make_unique<Dress>(game, nodes, colour, isHeard, getTireGeometry()));
    return *dresses.back();
}

Attachable* CarStage::dressBall(Node& node, const glm::vec4& colour)
{
    BallModel* model = new BallModel(game, colour);
    node.attach(model);
    return model;
}

void CarStage::undressBall(Attachable* model)
{
    BallModel* ball = static_cast<BallModel*>(model);
    renderer.getModelRenderer()->releaseModel(ball);
    renderer.getShadowRenderer()->releaseModel(ball);
    delete ball;
}

void CarStage::playSound(const std::string& name, float volume)
{
    AudioSystem::getInstance()->play(name, false, volume);
}

void CarStage::addText(const std::string& text, double x, double y)
{
    renderer.getTextRenderer()->addText(text, x, y);
}

glm::ivec2 CarStage::getWindowSize() const
{
    return {renderer.getWidth(), renderer.getHeight()};
}

MeshGeometry& CarStage::getTireGeometry()
{
    if (!tireGeometry) {
        Mesh mesh;
        createCylinder(mesh, kTireRadius, kTireWidth, kTireSegments);
        tireGeometry =
            std::make_unique<MeshGeometry>(mesh, std::initializer_list<MeshAttribute>{MeshAttribute::Position});
    }
    return *tireGeometry;
}
