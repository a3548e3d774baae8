#include "physics/Model.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Table.h"
#include "physics/report/Words.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "+.............................................................................\n";
constexpr ListFormat inBlock = {Brackets::Braces, "|"};

void appendDomainTable(std::string& text, const Model& model, std::string_view prefix)
{
    Table table({{"Id", Table::Align::Right}, {"Type"}, {"Symbol"}, {"Name"}});
    table.addHeader();
    for (const int id : model.domainIds())
        table.addRow({inWords(id), displayName(model.domainType(id)), model.domainSymbol(id), model.domainName(id)});
    table.appendTo(text, prefix);
}

} // namespace

void appendDomains(std::string& text, const Model& model, std::string_view prefix)
{
    for (const DomainType type : model.physics()->allowedDomainTypes())
        appendList(text, leftAligned(displayName(type), 17), inWords(model.domainIdsOfType(type)),
                   {Brackets::Braces, prefix});
    appendDomainTable(text, model, prefix);
}

void appendBlock(std::string& text, const Model& model)
{
    text.append(rule).append("| Model\n");
    appendLine(text, "| id                = ", inWords(model.id()));
    appendLine(text, "| Domains:", "");
    appendDomains(text, model, "|   ");
    appendList(text, " Volumes           = ", idsOf(model.volumes()), inBlock);
    appendList(text, " Boundaries        = ", idsOf(model.boundaries()), inBlock);
    appendList(text, " Boundary patches  = ", idsOf(model.boundaryPatches()), inBlock);
    appendList(text, " Interfaces        = ", idsOf(model.interfaces()), inBlock);
    appendList(text, " Volume settings          = ", idsOf(model.volumeSettings()), inBlock);
    appendList(text, " Internal settings        = ", idsOf(model.internalSettings()), inBlock);
    appendList(text, " Boundary patch settings  = ", idsOf(model.boundaryPatchSettings()), inBlock);
    appendList(text, " Interface settings       = ", idsOf(model.interfaceSettings()), inBlock);
}

void Model::dump(std::ostream& stream) const
{
    std::string text;
    appendBlock(text, *this);
    writeOut(stream, text);
}

void Model::dumpDomains(std::ostream& stream, const std::string& prefix) const
{
    std::string text;
    appendDomainTable(text, *this, prefix);
    writeOut(stream, text);
}

} // namespace physics
