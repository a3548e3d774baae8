#include "examples/geometry/FanPassage.h"
#include "examples/geometry/HeatExchanger.h"

#include <exception>
#include <filesystem>
#include <iostream>

/// Writes the geometry files of the examples into the folder given, or into the present one.
int main(int argc, char** argv)
{
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    try {
        examples::writeStep(folder / "heat_exchanger.step", "heat_exchanger", examples::heatExchanger());
        examples::writeStep(folder / "fan_passage.step", "fan_passage", examples::fanPassage());
    } catch (const std::exception& problem) {
        std::cerr << problem.what() << '\n';
        return 1;
    }
    return 0;
}
