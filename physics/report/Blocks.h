#pragma once

#include <string>
#include <string_view>

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class Settings;
class ThreadBundle;
class Volume;

// The framed blocks that objects write about themselves, as text, since they nest. `closes` asks for a
// rule at the end of every patch block.

void appendBlock(std::string& text, const Volume& volume, bool closes);
void appendBlock(std::string& text, const Boundary& boundary, bool closes);
void appendBlock(std::string& text, const Interface& interface);
void appendBlock(std::string& text, const BoundaryPatch& patch, bool closes);
void appendBlock(std::string& text, const Model& model);

/// "Settings" stands for an empty heading.
void appendBlock(std::string& text, const Settings& settings, std::string_view heading);

/// One line, behind the prefix.
void appendBundle(std::string& text, const ThreadBundle& bundle, std::string_view prefix);

/// The domains of a bundle in square brackets and its zones in braces, with a star when they are its own.
/// `prefix` and `column` are those of a list.
void appendDomainsAndZones(std::string& text, const ThreadBundle& bundle, std::string_view prefix, std::size_t column);

/// The ids of a model's domains, one line for each allowed type, behind the prefix; then all in a table.
void appendDomains(std::string& text, const Model& model, std::string_view prefix);

} // namespace physics
