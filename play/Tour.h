// The demonstration: plays scenarios/tour.desk and tells in words what happens, with pictures of the desk.
#pragma once

#include <string>

namespace play {

// Pictures go to the folder, or to a fresh temporary one when it is empty. Answers the exit code.
int runTour(const std::string& pictureFolder);

}  // namespace play
