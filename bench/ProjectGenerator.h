#pragma once

#include <QString>

// A synthetic VB project of standard modules with what real code has (comments after code,
// apostrophes inside strings, continued lines, conditional compilation, Windows-1252 text,
// blank lines), the same bytes every time.
namespace ProjectGenerator {

constexpr int modulesInProject = 50;
constexpr int routinesPerModule = 1053; // 19 lines each: 20,000 lines a module, 1M in all

// Writes the project into `folder` and gives its file name; empty when a file can't be written.
QString writeProject(const QString &folder,
                     int modules = modulesInProject,
                     int routines = routinesPerModule);

} // namespace ProjectGenerator
