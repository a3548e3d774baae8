#include "tests/importers/cad/Listing.h"

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace cadtests {

std::string listingOf(const gtm::bundled::LocationModel& model)
{
    std::string text;
    for (const gtm::Body* body : model.bodies()) {
        const gtm::Part* part = model.part(body);
        text += "body " + body->id() + (part ? " in " + part->id() : "") + "\n";
    }
    for (const gtm::Face* face : model.faces()) {
        text += "face " + face->id() + ": " + face->firstFaceUse()->body()->id();
        text += (face->secondFaceUse() ? " | " + face->secondFaceUse()->body()->id() : "") + "\n";
    }
    return text;
}

std::size_t noOfSharedFaces(const gtm::bundled::LocationModel& model)
{
    return static_cast<std::size_t>(std::count_if(model.faces().begin(), model.faces().end(),
                                                  [](const gtm::Face* face) { return face->secondFaceUse(); }));
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

std::string messageOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const gtm::bundled::CadError& error) {
        return error.what();
    }
    return "no error";
}

TemporaryFile::TemporaryFile(const std::string& content)
    : m_path(std::filesystem::path(testing::TempDir()) / ("cad_tests_" + std::to_string(getpid())))
{
    std::ofstream(m_path, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile() { std::filesystem::remove(m_path); }

} // namespace cadtests
