#include "tests/apps/ToolRun.h"

#include "apps/CaseTool.h"
#include "apps/Output.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>
#include <iterator>
#include <sstream>

ToolRun::ToolRun(const std::vector<std::string>& arguments)
{
    std::ostringstream outStream;
    std::ostringstream errStream;
    physics::apps::Output output(outStream, errStream, false, false);
    code = static_cast<int>(physics::apps::runCaseTool(arguments, output));
    out = outStream.str();
    err = errStream.str();
}

std::filesystem::path sourceFile(const std::string& path) { return std::filesystem::path(PHYSICS_SOURCE_DIR) / path; }

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

WorkingFolder::WorkingFolder(const std::filesystem::path& folder) : m_before(std::filesystem::current_path())
{
    std::filesystem::current_path(folder);
}

WorkingFolder::~WorkingFolder() { std::filesystem::current_path(m_before); }

TemporaryFile::TemporaryFile(const std::string& name, const std::string& content)
    : m_path(std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "-" + name))
{
    std::ofstream(m_path, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile()
{
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}
