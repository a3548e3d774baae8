#include "examples/geometry/FanPassage.h"
#include "examples/geometry/HeatExchanger.h"
#include "importers/cad/CadReader.h"
#include "tests/importers/cad/Listing.h"

#include <gtest/gtest.h>

namespace {

using cadtests::listingOf;
using cadtests::TemporaryFile;
using gtm::bundled::CadResult;
using gtm::bundled::readCad;

std::string listingOfRewritten(const std::string& assembly, const std::vector<examples::NamedSolid>& solids)
{
    const TemporaryFile file("");
    examples::writeStep(file.path(), assembly, solids);
    return listingOf(*readCad(file.path()).model);
}

TEST(ExampleGeometry, theHeatExchangerHasTwoFluidsAndATubeBetweenThem)
{
    const CadResult result = readCad(PHYSICS_EXAMPLES "/heat_exchanger.step");

    EXPECT_EQ(listingOf(*result.model), "body hot in heat_exchanger\n"
                                        "body cold in heat_exchanger\n"
                                        "body tube in heat_exchanger\n"
                                        "face hot/tube-wall: hot | tube\n"
                                        "face hot/outlet: hot\n"
                                        "face hot/symmetry: hot\n"
                                        "face hot/inlet: hot\n"
                                        "face cold/outlet-nozzle: cold\n"
                                        "face cold/symmetry-top: cold\n"
                                        "face cold/outlet: cold\n"
                                        "face cold/shell: cold\n"
                                        "face cold/shell-front: cold\n"
                                        "face cold/tube-wall: tube | cold\n"
                                        "face cold/shell-back: cold\n"
                                        "face cold/inlet-nozzle: cold\n"
                                        "face cold/inlet: cold\n"
                                        "face cold/symmetry-bottom: cold\n"
                                        "face tube/back-outside: tube\n"
                                        "face tube/front-outside: tube\n"
                                        "face tube/back-end: tube\n"
                                        "face tube/symmetry-top: tube\n"
                                        "face tube/front-end: tube\n"
                                        "face tube/symmetry-bottom: tube\n");
    EXPECT_TRUE(result.notes.empty());
}

TEST(ExampleGeometry, theFanPassageHasAScreenBetweenPassageAndDuct)
{
    const CadResult result = readCad(PHYSICS_EXAMPLES "/fan_passage.step");

    EXPECT_EQ(listingOf(*result.model), "body passage in fan_passage\n"
                                        "body screen in fan_passage\n"
                                        "body duct in fan_passage\n"
                                        "body motor in drive\n"
                                        "face passage/hub: passage\n"
                                        "face passage/inlet: passage\n"
                                        "face passage/periodic-minus: passage\n"
                                        "face passage/periodic-plus: passage\n"
                                        "face passage/to-screen: passage | screen\n"
                                        "face passage/blade-suction: passage\n"
                                        "face passage/blade-pressure: passage\n"
                                        "face passage/shroud: passage\n"
                                        "face screen/hub: screen\n"
                                        "face screen/to-duct: screen | duct\n"
                                        "face screen/shroud: screen\n"
                                        "face screen/periodic-minus: screen\n"
                                        "face screen/periodic-plus: screen\n"
                                        "face duct/hub: duct\n"
                                        "face duct/outlet: duct\n"
                                        "face duct/shroud: duct\n"
                                        "face duct/periodic-minus: duct\n"
                                        "face duct/periodic-plus: duct\n"
                                        "face motor/front: motor\n"
                                        "face motor/cut-minus: motor\n"
                                        "face motor/bore: motor\n"
                                        "face motor/cut-plus: motor\n"
                                        "face motor/casing: motor\n"
                                        "face motor/back: motor\n");
    EXPECT_TRUE(result.notes.empty());
}

TEST(ExampleGeometry, theFilesAreWhatTheProgramsWrite)
{
    EXPECT_EQ(listingOfRewritten("heat_exchanger", examples::heatExchanger()),
              listingOf(*readCad(PHYSICS_EXAMPLES "/heat_exchanger.step").model));
    EXPECT_EQ(listingOfRewritten("fan_passage", examples::fanPassage()),
              listingOf(*readCad(PHYSICS_EXAMPLES "/fan_passage.step").model));
}

} // namespace
