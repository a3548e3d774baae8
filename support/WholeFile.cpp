#include "support/WholeFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

namespace gtm::support {
namespace {

namespace fs = std::filesystem;

FileError errorAbout(const fs::path& file, const std::string& what, int number)
{
    return FileError(file.string() + ": cannot " + what + " this file: " + std::generic_category().message(number) +
                     ".");
}

/// An open file that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_number >= 0; }

    /// Each false with `errno` set when it failed.
    bool write(std::string_view content) const;
    bool flush() const { return fsync(m_number) == 0; }
    bool setMode(mode_t mode) const { return fchmod(m_number, mode) == 0; }
    bool close()
    {
        const int number = m_number;
        m_number = -1;
        return number < 0 || ::close(number) == 0;
    }

private:
    int m_number;
};

bool Descriptor::write(std::string_view content) const
{
    while (!content.empty()) {
        const ssize_t written = ::write(m_number, content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return true;
}

/// As long as it lives, this thread takes no signal that asks the process to end; it takes them afterwards. So
/// Ctrl-C leaves no piece of a file behind.
class WithoutInterruption {
public:
    WithoutInterruption()
    {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            sigaddset(&signals, signal);
        }
        pthread_sigmask(SIG_BLOCK, &signals, &m_before);
    }
    ~WithoutInterruption() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    WithoutInterruption(const WithoutInterruption&) = delete;
    WithoutInterruption& operator=(const WithoutInterruption&) = delete;

private:
    sigset_t m_before = {};
};

/// A new file beside another one, removed at the end unless it took the other's name.
class FileBeside {
public:
    explicit FileBeside(const fs::path& target) : m_target(target), m_descriptor(open()) {}
    ~FileBeside()
    {
        if (m_isWaiting) {
            unlink(m_path.c_str());
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    /// False with `errno` set when it failed.
    bool replaceTarget(std::string_view content, std::optional<mode_t> mode);

private:
    /// A name that is free, also when an earlier run was killed and left its file.
    int open();

    fs::path m_target;
    fs::path m_path;
    bool m_isWaiting = false;
    Descriptor m_descriptor;
};

int FileBeside::open()
{
    const std::string stem = "." + m_target.filename().string() + "." + std::to_string(getpid()) + "-";
    for (int attempt = 0; attempt < 1000; ++attempt) {
        m_path = m_target.parent_path() / (stem + std::to_string(attempt));
        const int number = ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (number >= 0 || errno != EEXIST) {
            m_isWaiting = number >= 0;
            return number;
        }
    }
    return -1;
}

bool FileBeside::replaceTarget(std::string_view content, std::optional<mode_t> mode)
{
    if (!m_descriptor.isOpen() || (mode && !m_descriptor.setMode(*mode)) || !m_descriptor.write(content) ||
        !m_descriptor.flush() || !m_descriptor.close() || std::rename(m_path.c_str(), m_target.c_str()) != 0) {
        return false;
    }
    m_isWaiting = false;
    return true;
}

/// Makes the new name last through a crash. Not every file system can; the file is whole in any case.
void flushFolderOf(const fs::path& file)
{
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        static_cast<void>(descriptor.flush());
    }
}

/// For devices and pipes, which cannot be replaced.
void writeThrough(const fs::path& file, std::string_view content)
{
    Descriptor descriptor(open(file.c_str(), O_WRONLY | O_CLOEXEC));
    if (!descriptor.isOpen() || !descriptor.write(content) || !descriptor.close()) {
        throw errorAbout(file, "write", errno);
    }
}

} // namespace

std::string readWholeFile(const fs::path& file)
{
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) {
        throw FileError(file.string() + ": this is a folder; give the name of a file.");
    }
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad()) {
        throw errorAbout(file, "read", errno);
    }
    return content;
}

void writeWholeFile(const fs::path& file, std::string_view content)
{
    struct stat status = {};
    const bool exists = stat(file.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) {
        throw FileError(file.string() + ": this is a folder; give the name of a file.");
    }
    if (exists && !S_ISREG(status.st_mode)) {
        writeThrough(file, content);
        return;
    }
    if (exists && access(file.c_str(), W_OK) != 0) {
        throw errorAbout(file, "write", errno);
    }
    std::error_code ignored;
    const fs::path target = exists && fs::is_symlink(file, ignored) ? fs::canonical(file, ignored) : file;
    const WithoutInterruption without;
    FileBeside beside(target);
    if (!beside.replaceTarget(content, exists ? std::optional(status.st_mode & 07777U) : std::nullopt)) {
        throw errorAbout(file, "write", errno);
    }
    flushFolderOf(target);
}

} // namespace gtm::support
