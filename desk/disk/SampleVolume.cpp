#include "desk/disk/SampleVolume.h"

#include <string>

#include "desk/disk/Disk.h"

namespace desk {

namespace {

constexpr const char* const folders[] = {
    "/Applications/Utilities",
    "/Library/Application Support",
    "/Library/Fonts",
    "/Users/Shared",
    "/Users/ana/Desktop/Screenshots",
    "/Users/ana/Documents/Invoices/2023",
    "/Users/ana/Documents/Invoices/2024/Q1/Paid",
    "/Users/ana/Documents/Projects/Harbour Survey/Phase 2/Field Notes/Site 7/Soil Samples",
    "/Users/ana/Documents/Projects/Harbour Survey/Phase 10",
    "/Users/ana/Documents/Projects/Café Menu/Été",
    "/Users/ana/Documents/Recipes 🍋/Cakes",
    "/Users/ana/Documents/\u05de\u05e1\u05de\u05db\u05d9\u05dd",
    "/Users/ana/Documents/Empty Folder",
    "/Users/ana/Downloads/Archive",
    "/Users/ana/Movies",
    "/Users/ana/Music/Playlists",
    "/Users/ana/Pictures/Holidays/Lisbon",
    "/Users/ana/Pictures/Holidays/Oslo",
    "/Users/ana/Public/Drop Box",
    "/Users/ana/Library/Application Support",
    "/Users/ana/.config",
    "/Volumes/Data/Reports/Annual",
    "/Volumes/Data/Reports/Monthly",
};

struct SampleFile {
    const char* path;
    const char* contents;
};

constexpr SampleFile files[] = {
    {"/Applications/Safari.app/Contents/Info.plist", "<plist/>\n"},
    {"/Applications/Safari.app/Contents/MacOS/Safari", "binary\n"},
    {"/Applications/TextEdit.app/Contents/Info.plist", "<plist/>\n"},
    {"/Users/ana/Desktop/To Do.txt", "Call the harbour office.\n"},
    {"/Users/ana/Documents/Budget.numbers", "1;2;3\n"},
    {"/Users/ana/Documents/Letter to “Bob”.txt", "Dear Bob,\n"},
    {"/Users/ana/Documents/100% done.txt", "Really.\n"},
    {"/Users/ana/Documents/Invoices/2024/Invoice 2.pdf", "%PDF\n"},
    {"/Users/ana/Documents/Invoices/2024/Invoice 10.pdf", "%PDF\n"},
    {"/Users/ana/Documents/Projects/Harbour Survey/Plan.md", "# Plan\n"},
    {"/Users/ana/Documents/Projects/Harbour Survey/Phase 2/Field Notes/Site 7/Soil Samples/Sample A.csv",
     "depth,ph\n10,6.8\n"},
    {"/Users/ana/Documents/Projects/Café Menu/Été/Menu.txt", "Tarte au citron\n"},
    {"/Users/ana/Documents/Recipes 🍋/Lemon Tart.txt", "Four lemons.\n"},
    {"/Users/ana/Documents/.hidden", "hidden\n"},
    {"/Users/ana/Downloads/Orvane.dmg", "image\n"},
    {"/Users/ana/Downloads/Read Me.txt", "Drag the application to Applications.\n"},
    {"/Users/ana/Pictures/Holidays/Lisbon/IMG_0001.jpg", "jpeg\n"},
    {"/Users/ana/Pictures/Holidays/Lisbon/IMG_0002.jpg", "jpeg\n"},
    {"/Volumes/Data/Reports/Summary.txt", "All is well.\n"},
    {"/Volumes/Data/Reports/Annual/2023.pdf", "%PDF\n"},
};

}  // namespace

void makeSampleVolume(Disk& disk) {
    for (const char* folder : folders) disk.makeFolder(folder);
    for (const SampleFile& file : files) disk.makeFile(file.path, file.contents);
    disk.makeSymbolicLink("/Volumes/Macintosh HD", "/");
    disk.makeSymbolicLink(disk.home() + "/Documents/Latest Invoices", "Invoices/2024");
}

void makeScratchContents(Disk& disk) {
    constexpr SampleFile scratchFiles[] = {
        {"/System/Applications/System Settings.app/Contents/Info.plist", "<plist/>\n"},
        {"/System/Applications/Utilities/Terminal.app/Contents/Info.plist", "<plist/>\n"},
        {"/System/Library/CoreServices/Finder.app/Contents/Info.plist", "<plist/>\n"},
    };
    for (const SampleFile& file : scratchFiles) disk.makeFile(file.path, file.contents);
}

}  // namespace desk
