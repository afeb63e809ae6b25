#include "desk/disk/HostFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

namespace desk::host {

namespace {

constexpr std::int64_t fixedDate = 1'717'243'200;  // 2024-06-01 12:00:00 UTC

class Descriptor {
public:
    explicit Descriptor(int theNumber) : number(theNumber) {}
    ~Descriptor() {
        if (number >= 0) ::close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return number; }
    bool isRegularFile() const {
        struct stat status {};
        return number >= 0 && ::fstat(number, &status) == 0 && S_ISREG(status.st_mode);
    }
    // File systems write a truncated file through when it is closed, which would make each fresh disk a hundred times dearer.
    bool makeEmpty() const {
        struct stat status {};
        return ::fstat(number, &status) == 0 && (status.st_size == 0 || ::ftruncate(number, 0) == 0);
    }

private:
    int number;
};

EntryKind kindOfMode(mode_t mode) {
    if (S_ISLNK(mode)) return EntryKind::link;
    return S_ISDIR(mode) ? EntryKind::directory : EntryKind::file;
}

platform::Date dateOf(const timespec& time) {
    return platform::Date{std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec)};
}

EntryKind kindOfEntry(DIR* folder, const dirent& entry) {
    if (entry.d_type == DT_DIR) return EntryKind::directory;
    if (entry.d_type == DT_LNK) return EntryKind::link;
    if (entry.d_type != DT_UNKNOWN) return EntryKind::file;
    struct stat status {};
    if (::fstatat(::dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return EntryKind::file;
    return kindOfMode(status.st_mode);
}

}  // namespace

std::optional<EntryKind> kindOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    return kindOfMode(status.st_mode);
}

std::optional<EntryKind> kindWithoutLinks(const std::string& path) {
    open_how how{};
    how.flags = O_PATH | O_CLOEXEC;
    how.resolve = RESOLVE_NO_SYMLINKS;
    const Descriptor entry(static_cast<int>(::syscall(SYS_openat2, AT_FDCWD, path.c_str(), &how, sizeof how)));
    struct stat status {};
    if (entry.get() < 0 || ::fstat(entry.get(), &status) != 0) return std::nullopt;
    return kindOfMode(status.st_mode);
}

std::optional<std::string> linkTarget(const std::string& path) {
    char target[4096];
    const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
    if (length <= 0) return std::nullopt;
    return std::string(target, static_cast<std::size_t>(length));
}

std::optional<Status> statusOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    const std::uint64_t size = S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_size);
    return Status{size, dateOf(status.st_mtim), status.st_ino, dateOf(status.st_ctim)};
}

bool list(const std::string& path, const std::function<void(std::string_view name, EntryKind kind)>& visit) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path.c_str()), &::closedir);
    if (!folder) return false;
    while (const dirent* entry = ::readdir(folder.get())) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) continue;
        visit(entry->d_name, kindOfEntry(folder.get(), *entry));
    }
    return true;
}

std::optional<std::string> read(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file.isRegularFile()) return std::nullopt;
    std::string contents;
    char block[16384];
    ssize_t length = 0;
    while ((length = ::read(file.get(), block, sizeof block)) > 0)
        contents.append(block, static_cast<std::size_t>(length));
    if (length < 0) return std::nullopt;
    return contents;
}

bool write(const std::string& path, std::string_view contents) {
    {
        const Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0644));
        if (!file.isRegularFile() || !file.makeEmpty()) return false;
        while (!contents.empty()) {
            const ssize_t length = ::write(file.get(), contents.data(), contents.size());
            if (length <= 0) return false;
            contents.remove_prefix(static_cast<std::size_t>(length));
        }
    }
    setFixedDate(path);
    return true;
}

bool makeFolders(const std::string& path) {
    if (const auto kind = kindOf(path)) return *kind == EntryKind::directory;
    const std::size_t slash = path.rfind('/');
    if (slash != std::string::npos && slash > 0 && !makeFolders(path.substr(0, slash))) return false;
    if (::mkdir(path.c_str(), 0755) != 0) return false;
    setFixedDate(path);
    return true;
}

bool makeLink(const std::string& path, const std::string& target) {
    if (::symlink(target.c_str(), path.c_str()) != 0) return false;
    setFixedDate(path);
    return true;
}

bool removeAll(const std::string& path) {
    std::error_code error;
    std::filesystem::remove_all(path, error);
    setFixedDate(path);
    return !error && !kindOf(path);
}

bool copyAll(const std::string& source, const std::string& destination) {
    using Options = std::filesystem::copy_options;
    std::error_code error;
    std::filesystem::copy(source, destination, Options::recursive | Options::copy_symlinks, error);
    if (error) return false;
    setFixedDate(destination);
    if (kindOf(destination) != EntryKind::directory) return true;
    for (std::filesystem::recursive_directory_iterator entry(destination, error), end; !error && entry != end;
         entry.increment(error))
        setFixedDate(entry->path().string());
    return !error;
}

bool rename(const std::string& source, const std::string& destination) {
    if (::rename(source.c_str(), destination.c_str()) != 0) return false;
    setFixedDate(source);
    setFixedDate(destination);
    return true;
}

void setFixedDate(const std::string& path) {
    const timespec times[2] = {{fixedDate, 0}, {fixedDate, 0}};
    ::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
    const std::size_t slash = path.rfind('/');
    if (slash != std::string::npos) ::utimensat(AT_FDCWD, path.substr(0, slash).c_str(), times, AT_SYMLINK_NOFOLLOW);
}

std::optional<std::string> existingFolder(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::canonical(path, error);
    if (error || !std::filesystem::is_directory(absolute, error)) return std::nullopt;
    return absolute.string();
}

std::optional<std::string> makeTemporaryFolder() {
    // Memory first: a machine is made for every test, and a busy disk makes that slow.
    const char* wanted = std::getenv("TMPDIR");
    const char* parents[] = {wanted != nullptr && *wanted != '\0' ? wanted : "/dev/shm", "/tmp"};
    for (const char* parent : parents) {
        std::string name = std::string(parent) + "/desk-XXXXXX";
        if (::mkdtemp(name.data()) != nullptr) return existingFolder(name);
    }
    return std::nullopt;
}

}  // namespace desk::host
