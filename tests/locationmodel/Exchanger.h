#pragma once

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A small heat exchanger, and verbs to set things up on it:
///
///     inlet -[ hot | tube | cold ]- outlet, outlet-2        a baffle inside hot
class Exchanger : public ::testing::Test {
protected:
    static std::unique_ptr<gtm::bundled::LocationModel> makeModel()
    {
        using Side = gtm::bundled::TopologyBuilder::Side;
        gtm::bundled::TopologyBuilder builder;
        builder.addPart("water");
        builder.addPart("spare");
        builder.addBody("hot", "water");
        builder.addBody("tube");
        builder.addBody("cold", "water");
        builder.addFace("inlet", {"hot", "", {}});
        builder.addFace("hot wall", {"hot", "", {}}, Side{"tube", "", {}});
        builder.addFace("baffle", {"hot", "", {}}, Side{"hot", "", {}});
        builder.addFace("cold wall", {"tube", "", {}}, Side{"cold", "", {}});
        builder.addFace("outlet", {"cold", "", {}});
        builder.addFace("outlet-2", {"cold", "", {}});
        return builder.build();
    }

    gtm::Region* region(const std::string& id) const { return model->topology()->findRegionById(id); }
    gtm::Body* body(const std::string& id) const { return model->topology()->findBodyById(id); }

    /// Made in whatever state.
    gtm::Interior& interior(const std::string& name, const std::string& location)
    {
        return *copy.createInterior(name, location, false, false).first;
    }

    static gtm::Boundary& boundary(gtm::Interior& interior, const std::string& name, const std::string& location)
    {
        return *interior.createBoundary(name, location, false).first;
    }

    template <class RegionType>
    static std::vector<std::string> ids(const std::vector<RegionType*>& regions)
    {
        std::vector<std::string> list;
        for (const RegionType* region : regions) {
            list.push_back(region->id());
        }
        return list;
    }

    using Ids = std::vector<std::string>;

    std::unique_ptr<gtm::bundled::LocationModel> model = makeModel();
    gtm::VirtualTopology copy{model->topology(), "", 0};
};
