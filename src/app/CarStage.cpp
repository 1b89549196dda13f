#include "app/CarStage.h"

#include "assets/DriverModel.h"
#include "assets/Library.h"
#include "assets/MeshGeometry.h"
#include "assets/Uniform_AttachableTransformation.h"
#include "gpu/Uniform_Color.h"
#include "render/Renderer.h"
#include "render/TextRenderer.h"
#include "scene/Mesh.h"
#include "scene/MeshGenerators.h"
#include "scene/Node.h"

namespace {

constexpr float kTireRadius = 0.45f; // world units
constexpr float kTireWidth = 0.35f;  // world units
constexpr int kTireSegments = 8;

class TireModel : public Model {
public:
    explicit TireModel(const MeshGeometry& geometry) : transformation(this)
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

class CarStage::Dress {
public:
    Dress(QKD_Game* game, const CarNodes& nodes, const glm::vec4& colour, const MeshGeometry& tireGeometry)
        : driver(game, colour), driverTransformation(&driver), driverColour(colour)
    {
        driver.bindCameraUniforms(true);
        driver.uniforms["model"] = &driverTransformation;
        driver.uniforms["color"] = &driverColour;
        nodes.driver->attach(&driver);

        for (Node* wheel : nodes.wheels) {
            tires.push_back(std::make_unique<TireModel>(tireGeometry));
            wheel->attach(tires.back().get());
        }
    }

private:
    DriverModel driver;
    Uniform_AttachableTransformation driverTransformation;
    Uniform_Color driverColour;
    std::vector<std::unique_ptr<TireModel>> tires;
};

CarStage::CarStage(QKD_Game* ownGame, Renderer& ownRenderer) : game(ownGame), renderer(ownRenderer) {}

CarStage::~CarStage() = default;

void CarStage::dressCar(const CarNodes& nodes, const glm::vec4& colour)
{
    dresses.push_back(std::make_unique<Dress>(game, nodes, colour, getTireGeometry()));
}

void CarStage::addText(const std::string& text, double x, double y)
{
    renderer.getTextRenderer()->addText(text, x, y);
}

glm::ivec2 CarStage::getWindowSize() const
{
    return {renderer.getWidth(), renderer.getHeight()};
}

const MeshGeometry& CarStage::getTireGeometry()
{
    if (!tireGeometry) {
        Mesh mesh;
        createCylinder(mesh, kTireRadius, kTireWidth, kTireSegments);
        tireGeometry = std::make_unique<MeshGeometry>(mesh, std::initializer_list<MeshAttribute>{MeshAttribute::Position});
    }
    return *tireGeometry;
}
