#include "play/Tour.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "play/ScriptPlayer.h"
#include "play/Session.h"

namespace play {

namespace {

namespace fs = std::filesystem;

// Empty when it can't be made.
fs::path pictureFolderFrom(const std::string& wanted) {
    std::error_code error;
    if (!wanted.empty()) {
        fs::create_directories(wanted, error);
        return fs::is_directory(wanted, error) ? fs::absolute(wanted) : fs::path();
    }
    std::string pattern = (fs::temp_directory_path(error) / "orvane-tour-XXXXXX").string();
    const char* made = mkdtemp(pattern.data());
    return made == nullptr ? fs::path() : fs::path(made);
}

std::size_t countPictures(const fs::path& folder) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(folder)) count += entry.path().extension() == ".png" ? 1 : 0;
    return count;
}

}  // namespace

int runTour(const std::string& pictureFolder) {
    const fs::path script = fs::path(BRINDLE_SCENARIOS) / "tour.desk";
    std::ifstream stream(script, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    const fs::path folder = pictureFolderFrom(pictureFolder);
    if (!stream || folder.empty()) {
        std::cerr << "desk: " << (folder.empty() ? "no folder for the pictures" : "no tour at " + script.string())
                  << '\n';
        return 2;
    }

    // The script names its pictures without a folder.
    fs::current_path(folder);
    Session session;
    ScriptPlayer player(session, script.string(), text, std::cout, std::cerr);
    const int exitCode = player.play();
    std::cout << "\n" << countPictures(folder) << " pictures of the desk lie in " << folder.string() << '\n';
    return exitCode;
}

}  // namespace play
