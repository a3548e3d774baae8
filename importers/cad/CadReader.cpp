#include "importers/cad/CadReader.h"

#include "importers/cad/BrepFile.h"
#include "importers/cad/CadDescription.h"
#include "importers/cad/CadShapes.h"
#include "importers/cad/Imprint.h"
#include "importers/cad/StepFile.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_SequenceOfPrinters.hxx>
#include <Standard_Failure.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <fstream>
#include <mutex>
#include <sstream>
#include <utility>

namespace gtm::bundled {

namespace {

/// While it lives, the kernel prints nothing and invents no names. Both settings are global, and may
/// matter to a host that uses the kernel too.
class QuietKernel {
public:
    QuietKernel() : m_invents(XCAFDoc_ShapeTool::AutoNaming())
    {
        swapPrinters();
        XCAFDoc_ShapeTool::SetAutoNaming(false);
    }

    ~QuietKernel()
    {
        swapPrinters();
        XCAFDoc_ShapeTool::SetAutoNaming(m_invents);
    }

    QuietKernel(const QuietKernel&) = delete;
    QuietKernel& operator=(const QuietKernel&) = delete;

private:
    void swapPrinters() { std::swap(Message::DefaultMessenger()->ChangePrinters(), m_printers); }

    Message_SequenceOfPrinters m_printers;
    bool m_invents;
};

std::string contentOf(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored))
        throw CadError("there is no such file; check the name and the folder.");
    if (!std::filesystem::is_regular_file(file, ignored))
        throw CadError("this is not a file but a folder or a device; name the STEP or BREP file itself.");
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    if (!stream || stream.bad())
        throw CadError("the file cannot be read; check who may read it.");
    return content.str();
}

CadShapes shapesOf(const std::string& content, const CadOptions& options)
{
    const bool step = isStep(content);
    if (!step && !isBrep(content))
        throw CadError("the file is neither STEP, which begins with \"ISO-10303-21;\", nor BREP, which begins with "
                       "\"CASCADE Topology\"; export the geometry as one of these.");
    CadShapes shapes = step ? readStep(content) : readBrep(content);
    if (shapes.solids.empty()) {
        const std::string loose = shapes.loose.text();
        throw CadError("the file has no solid" + (loose.empty() ? "" : ", only " + loose) +
                       "; sew the surfaces into closed solids and export it again.");
    }
    if (options.imprint.value_or(step))
        imprint(shapes);
    return shapes;
}

CadResult read(const std::filesystem::path& file, const CadOptions& options)
{
    const std::string content = contentOf(file);
    if (content.empty())
        throw CadError("the file is empty; export it again.");
    static std::mutex kernel;
    const std::lock_guard<std::mutex> lock(kernel);
    const QuietKernel quiet;
    return buildModel(describe(shapesOf(content, options), options.triangleTolerance));
}

} // namespace

CadResult readCad(const std::filesystem::path& file, const CadOptions& options)
{
    const auto failure = [&](const std::string& reason) { return CadError(file.string() + ": " + reason); };
    try {
        return read(file, options);
    } catch (const TopologyError& error) {
        throw failure(error.what());
    } catch (const Standard_Failure& kernel) {
        throw failure(std::string("the geometry kernel gave up (") + kernel.DynamicType()->Name() +
                      "); check and repair the geometry, and export it again.");
    }
}

} // namespace gtm::bundled
