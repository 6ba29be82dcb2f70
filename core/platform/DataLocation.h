#pragma once

#include <QString>

// Where the program's data lives. Run from its build folder, or copied whole into one folder,
// the program keeps everything beside itself. Installed, its bundled data (the sample rulebase)
// is found in the platform's shared data folders, and its own files go to the user's data folder.
namespace DataLocation {

// The folder of the bundled data, with a trailing separator: the program's folder when the
// sample lies there, else the first "quorinadmin" folder holding it among the shared data
// folders and the installation's own, else the program's folder.
QString dataFolder();
// The folder the program writes its own files to (the log), with a trailing separator: the
// data folder when that is the program's, else the user's data folder for this program.
QString writableFolder();

} // namespace DataLocation
