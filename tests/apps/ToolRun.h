#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// One run of the command line inside the test, without colours.
struct ToolRun {
    explicit ToolRun(const std::vector<std::string>& arguments);

    int code = 0;
    std::string out;
    std::string err;
};

/// Where files of the repository lie.
std::filesystem::path sourceFile(const std::string& path);

/// The whole content of a file; a failure of the test when it cannot be read.
std::string contentOf(const std::filesystem::path& file);

/// Makes a folder the working one, so that messages name files without it, until it ends.
class WorkingFolder {
public:
    explicit WorkingFolder(const std::filesystem::path& folder);
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::filesystem::path m_before;
};

/// A file that exists as long as this object.
class TemporaryFile {
public:
    TemporaryFile(const std::string& name, const std::string& content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::string path() const { return m_path.string(); }

private:
    std::filesystem::path m_path;
};
