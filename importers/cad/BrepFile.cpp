#include "importers/cad/BrepFile.h"

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <Standard_Failure.hxx>

#include <algorithm>
#include <cstddef>
#include <ios>
#include <iostream>
#include <locale>
#include <sstream>
#include <streambuf>
#include <string_view>

namespace gtm::bundled {

namespace {

constexpr std::string_view title = "CASCADE Topology V";

[[noreturn]] void refuseDamaged(std::istream& stream, const std::string& content)
{
    stream.exceptions(std::ios::goodbit);
    stream.clear();
    const auto line = 1 + std::count(content.begin(), content.begin() + stream.tellg(), '\n');
    throw CadError("the file ends too early or is damaged, in line " + std::to_string(line) +
                   "; copy or export it again.");
}

/// Takes standard output away from the kernel, which would complain about a damaged file there.
class QuietOutput {
public:
    QuietOutput() : m_buffer(std::cout.rdbuf(m_swallowed.rdbuf())) {}
    ~QuietOutput() { std::cout.rdbuf(m_buffer); }
    QuietOutput(const QuietOutput&) = delete;
    QuietOutput& operator=(const QuietOutput&) = delete;

private:
    std::ostringstream m_swallowed;
    std::streambuf* m_buffer;
};

/// The kernel trusts the file: it would take what it cannot read for zero, and may never come to an
/// end. So the stream itself objects.
TopoDS_Shape shapeOf(const std::string& content)
{
    std::istringstream stream(content);
    stream.imbue(std::locale::classic());
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    TopoDS_Shape shape;
    const QuietOutput quiet;
    try {
        BRepTools::Read(shape, stream, BRep_Builder());
    } catch (const std::ios::failure&) {
        refuseDamaged(stream, content);
    } catch (const Standard_Failure&) {
        refuseDamaged(stream, content);
    }
    if (shape.IsNull())
        throw CadError("the file has no shape that can be read; export it again.");
    return shape;
}

} // namespace

bool isBrep(const std::string& content)
{
    constexpr std::size_t headLength = 1024;
    return std::string_view(content).substr(0, headLength).find(title) != std::string_view::npos;
}

CadShapes readBrep(const std::string& content)
{
    const TopoDS_Shape shape = shapeOf(content);
    CadShapes shapes;
    for (const TopoDS_Shape& solid : subShapes(shape, TopAbs_SOLID))
        addSolid(solid, shapes);
    countLoose(shape, shapes.loose);
    return shapes;
}

} // namespace gtm::bundled
