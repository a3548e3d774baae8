#include "benchmarks/Geometry.h"

#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"

#include <optional>

namespace benchmarks {
namespace {

using Side = gtm::bundled::TopologyBuilder::Side;

Side sideOf(std::int64_t body) { return {Geometry::body(body), "", {}}; }

std::unique_ptr<gtm::bundled::LocationModel> built(std::int64_t noOfBodies)
{
    gtm::bundled::TopologyBuilder builder;
    for (std::int64_t i = 0; i < noOfBodies; ++i)
        builder.addBody(Geometry::body(i));
    for (std::int64_t i = 0; i < noOfBodies; ++i) {
        builder.addFace(Geometry::joint(i), sideOf(i), i == 0 ? std::nullopt : std::optional(sideOf(i - 1)));
        for (int k = 0; k < Geometry::wallsOfBody; ++k)
            builder.addFace(Geometry::wall(i, k), sideOf(i));
    }
    builder.addFace(Geometry::joint(noOfBodies), sideOf(noOfBodies - 1));
    return builder.build();
}

} // namespace

class Geometry::Implementation {
public:
    std::unique_ptr<gtm::bundled::LocationModel> model;
};

Geometry::Geometry(std::int64_t noOfBodies) : m_implementation(std::make_unique<Implementation>())
{
    m_implementation->model = built(noOfBodies);
}

Geometry::~Geometry() = default;

const gtm::Model* Geometry::model() const { return m_implementation->model.get(); }

} // namespace benchmarks
