// A new version on its way to the place of the one that runs: it is fetched to a folder beside it and put in its place once that one has ended. At every point one of the two is whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace desk {

class Disk;
struct Bundle;

class Installation {
public:
    // Of the application that the process runs.
    Installation(Disk& theDisk, const Bundle& running, std::int32_t processIdentifier);

    // From a file URL. Empty on success, else one sentence that says what is wrong; nothing is left behind then.
    std::optional<std::string> fetch(const std::string& url) const;
    // What was fetched goes.
    void discard() const;
    // What was fetched takes the place. Where it can't, what stands there stays.
    void putInPlace() const;

    const std::string& place() const { return path; }

private:
    Disk* disk;
    std::string path;
    std::string executable;  // below the bundle
    std::string fetched;
    std::string setAside;
};

}  // namespace desk
