// What a fresh machine has on its disk: the folders of a Mac with one user, small enough to be made for every test. It fills a Disk and keeps nothing.
#pragma once

namespace desk {

class Disk;

void makeSampleVolume(Disk& disk);
// What the scratch folders hold whatever the startup volume is: the system's own applications.
void makeScratchContents(Disk& disk);

}  // namespace desk
