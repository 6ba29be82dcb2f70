#pragma once

#include <QByteArray>
#include <QString>

// Where tests find their data and write their files. Settings live in a temporary folder for
// the whole run, so no test touches the user's real settings.
namespace TestEnvironment {

QString sourceDir();
// ../shared/data beside the checkout; tests that need it skip when it is absent.
QString sharedDataDir();
QString sampleRulebase();
// A fresh folder, removed at exit.
QString makeTempDir();
// Removes every stored setting, for tests that need a first run.
void clearSettings();
// The bytes of a file; empty when it cannot be read.
QByteArray readFile(const QString &path);
// Writes a file whole, making its folders; fails the calling test when it cannot. Gives the path.
QString writeFile(const QString &path, const QByteArray &bytes);

} // namespace TestEnvironment

namespace TestEnvironment {
// Makes a folder refuse new files even to root (immutable flag), or to others by its mode.
// Gives false when neither can be done here; restore with makeWritable.
bool makeReadOnly(const QString &folder);
void makeWritable(const QString &folder);
} // namespace TestEnvironment
